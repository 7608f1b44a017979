// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/translationfile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype magicLength = 16;

// The sections of a file, of which each begins with its tag and its length.
constexpr quint8 contextSection = 0x2F;
constexpr quint8 hashSection = 0x42;
constexpr quint8 messageSection = 0x69;
constexpr quint8 dependencySection = 0x96;

// The fields of a message.
constexpr quint8 messageEnd = 1;
constexpr quint8 translationField = 3;
constexpr quint8 obsoleteField = 5;
constexpr quint8 sourceTextField = 6;
constexpr quint8 contextField = 7;
constexpr quint8 commentField = 8;

/// A hash and the offset of its message.
constexpr qsizetype hashEntryLength = 8;

/// Takes big-endian numbers from the front of bytes.
class NumberReader
{
public:
    explicit NumberReader(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    qsizetype left() const { return m_bytes.size(); }

    /// \return nothing when too few bytes are left
    template<typename Number>
    std::optional<Number> take()
    {
        if (left() < qsizetype(sizeof(Number)))
            return std::nullopt;
        const auto number = qFromBigEndian<Number>(m_bytes.data());
        m_bytes = m_bytes.sliced(sizeof(Number));
        return number;
    }

    /// \return nothing when too few bytes are left
    std::optional<QByteArrayView> takeBytes(quint32 length)
    {
        if (left() < qsizetype(length))
            return std::nullopt;
        const QByteArrayView bytes = m_bytes.first(length);
        m_bytes = m_bytes.sliced(length);
        return bytes;
    }

private:
    QByteArrayView m_bytes;
};

/// Whether the message at the front ends properly.
bool isSoundMessage(QByteArrayView bytes)
{
    NumberReader reader(bytes);
    while (const auto field = reader.take<quint8>()) {
        switch (*field) {
        case translationField:
        case sourceTextField:
        case contextField:
        case commentField: {
            const auto length = reader.take<quint32>();
            // lrelease writes an empty translation with the length -1. QTranslator stops at an odd
            // length of what should be UTF-16.
            if (*field == translationField && length && *length % 2 != 0)
                return true;
            if (!length || !reader.takeBytes(*length))
                return false;
            break;
        }
        case obsoleteField:
            if (!reader.take<quint32>())
                return false;
            break;
        case messageEnd:
        default: // QTranslator stops here, too
            return true;
        }
    }
    return true;
}

bool areSoundHashes(QByteArrayView hashes, QByteArrayView messages)
{
    if (hashes.size() % hashEntryLength != 0)
        return false;
    NumberReader reader(hashes);
    while (reader.take<quint32>()) {
        const auto offset = reader.take<quint32>();
        if (!offset || qsizetype(*offset) >= messages.size()
            || !isSoundMessage(messages.sliced(*offset)))
            return false;
    }
    return true;
}

/// A table of offsets, counted in 16-bit units, and behind it lists of names, each of which ends
/// with an empty one.
bool areSoundContexts(QByteArrayView contexts)
{
    NumberReader reader(contexts);
    const quint16 count = reader.take<quint16>().value_or(0);
    const auto table = reader.takeBytes(quint32(sizeof(quint16)) * count);
    const auto names = reader.takeBytes(quint32(reader.left()));
    if (count == 0 || !table || !names)
        return false;
    NumberReader offsets(*table);
    while (const auto offset = offsets.take<quint16>()) {
        if (*offset == 0) // no list
            continue;
        const qsizetype start = qsizetype(sizeof(quint16)) * *offset;
        if (start >= names->size())
            return false;
        NumberReader list(names->sliced(start));
        std::optional<quint8> length;
        while ((length = list.take<quint8>()) && *length > 0) {
            if (!list.takeBytes(*length))
                return false;
        }
        if (!length)
            return false;
    }
    return true;
}

} // namespace

bool isSoundTranslation(QByteArrayView file)
{
    if (file.size() < magicLength)
        return false;
    QByteArrayView contexts;
    QByteArrayView hashes;
    QByteArrayView messages;
    NumberReader reader(file.sliced(magicLength));
    while (reader.left() > 0) {
        const auto tag = reader.take<quint8>();
        const auto length = reader.take<quint32>();
        if (!length || *tag == 0 || *length == 0)
            break;
        const auto section = reader.takeBytes(*length);
        if (!section)
            return false;
        switch (*tag) {
        case contextSection:
            contexts = *section;
            break;
        case hashSection:
            hashes = *section;
            break;
        case messageSection:
            messages = *section;
            break;
        case dependencySection:
            return false;
        default:
            break;
        }
    }
    return (contexts.isEmpty() || areSoundContexts(contexts)) && areSoundHashes(hashes, messages);
}

bool isSoundTranslationFile(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    // Mapped rather than read: it takes no memory, however long the file is.
    const uchar *bytes = file.map(0, file.size());
    return bytes && isSoundTranslation(QByteArrayView(bytes, qsizetype(file.size())));
}

QString translationFilePath(const QString &name)
{
    QString stem = name;
    for (;;) {
        for (const QString &path : {stem + ".qm"_L1, stem}) {
            const QFileInfo file(path);
            if (file.isFile() && file.isReadable())
                return path;
        }
        const qsizetype cut = qMax(stem.lastIndexOf(u'_'), stem.lastIndexOf(u'.'));
        if (cut <= 0)
            return {};
        stem.truncate(cut);
    }
}
