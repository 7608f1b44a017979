// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/frameencoder.h"

#include "catalogue/listnumbers.h"
#include "protocol/textmessage.h"

#include <algorithm>

namespace {

constexpr quint8 setMessageCode = 3;
constexpr quint8 textCommandCode = 4;

constexpr char playbackArguments[] = {'2', '5', '5', '\0', '2', '5', '5', '\0'};

} // namespace

bool appendCommand(const DeviceModel &model, quint32 commandId, quint8 &code, QByteArray &body)
{
    bool found = false;
    for (const CommandEntry &entry : model.commands) {
        if (entry.commandId != commandId)
            continue;
        found = true;
        code = entry.code;
        if (!model.connectsOnDemand())
            body += entry.data;
        else if (entry.code == textCommandCode && holdsTextName(entry))
            body += textMessage("cmd", textName(entry));
    }
    return found;
}

bool appendVolumeCommand(const DeviceModel &model, quint8 volumeByte, quint8 &code,
                         QByteArray &body)
{
    bool found = false;
    for (const CommandEntry &entry : model.commands) {
        if (entry.commandId != CommandId::Volume)
            continue;
        found = true;
        code = entry.code;
        body += entry.data;
        if (model.protocol == ProtocolKind::Classic) {
            applyFirstByte(volumeByte, body);
        } else if (body.size() >= 2 && model.transport == TransportKind::Serial) {
            body[0] = '\0';
            body[1] = static_cast<char>(volumeByte);
        } else if (body.size() >= 2) {
            body.clear();
            if (entry.code == setMessageCode) {
                body += textMessage("set", volumeTextName);
                body += QByteArray::number(volumeByte - loudestTextVolume) + '\0';
            }
        }
    }
    return found;
}

quint8 sliderVolumeByte(int minimum, int value)
{
    return static_cast<quint8>(minimum + value);
}

void appendPlaybackArguments(const DeviceModel &model, quint32 commandId, QByteArray &body)
{
    if (!model.connectsOnDemand())
        return;
    switch (commandId) {
    case CommandId::PreviousFile:
    case CommandId::Play:
    case CommandId::Stop:
    case CommandId::NextFile:
        body.append(playbackArguments, sizeof playbackArguments);
        break;
    default:
        break;
    }
}

void applyFolderNumber(int folder, quint8 &code, QByteArray &body)
{
    const int bank = folder / 128;
    code = static_cast<quint8>(code + 16 * bank);
    applyFirstByte(folder - 128 * bank, body);
}

void applyFirstByte(int value, QByteArray &body)
{
    if (!body.isEmpty())
        body[0] = static_cast<char>(value);
}

void addToFirstByte(int value, QByteArray &body)
{
    if (!body.isEmpty())
        applyFirstByte(body.front() + value, body);
}

void applyContacts(const std::bitset<8> &closed, QByteArray &body)
{
    addToFirstByte(static_cast<int>(closed.to_ulong()), body);
}

QByteArray subtitleIndexBytes(int index)
{
    return QByteArray(1, static_cast<char>(index));
}

QByteArray languageCodeBytes(const QString &languageCode)
{
    QByteArray bytes;
    for (const QChar character : languageCode)
        bytes += character.unicode() < 256 ? static_cast<char>(character.unicode()) : '\0';
    return bytes;
}

quint8 playerIdByteFromText(const QString &playerId)
{
    return static_cast<quint8>(0x80U + static_cast<quint32>(numberFromText(playerId)));
}

// Classic:  | 80 + player ID | code | body |
// Extended: | code | body |
QByteArray wireFrame(const DeviceModel &model, quint8 playerIdByte, quint8 code,
                     const QByteArray &body)
{
    const qsizetype headerSize = model.protocol == ProtocolKind::Classic ? 2 : 1;
    QByteArray frame(headerSize + body.size(), Qt::Uninitialized);
    char *bytes = frame.data();
    if (model.protocol == ProtocolKind::Classic)
        *bytes++ = static_cast<char>(playerIdByte);
    *bytes++ = static_cast<char>(code);
    std::copy(body.cbegin(), body.cend(), bytes);
    return frame;
}
