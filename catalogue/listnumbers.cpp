// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/listnumbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highestFolder = 999;

int byteAt(const QByteArray &bytes, qsizetype index)
{
    return static_cast<quint8>(bytes.at(index));
}

int wordAtHead(const QByteArray &bytes)
{
    return byteAt(bytes, 0) * 256 + byteAt(bytes, 1);
}

} // namespace

NumberRange byteRange(const CommandEntry &entry, qsizetype index)
{
    if (entry.data.size() <= index || entry.dataMax.size() <= index)
        return {};
    return {byteAt(entry.data, index), byteAt(entry.dataMax, index)};
}

NumberRange wordRange(const CommandEntry &entry)
{
    if (entry.data.size() < 2 || entry.dataMax.size() < 2)
        return {};
    return {wordAtHead(entry.data), wordAtHead(entry.dataMax)};
}

QString paddedNumber(int number)
{
    constexpr int digits = 3;
    if (number < 0 || number > highestFolder)
        return QString::number(number).rightJustified(digits, u'0');
    // The lists have up to a thousand of them.
    QString text(digits, Qt::Uninitialized);
    for (int place = digits - 1; place >= 0; --place) {
        text[place] = QChar(u'0' + number % 10);
        number /= 10;
    }
    return text;
}

QStringList numberTexts(NumberRange range)
{
    QStringList texts;
    for (int number = range.first; number <= range.last; ++number)
        texts.append(QString::number(number));
    return texts;
}

QStringList paddedNumberTexts(NumberRange range)
{
    QStringList texts;
    for (int number = range.first; number <= range.last; ++number)
        texts.append(paddedNumber(number));
    return texts;
}

QStringList folderTexts(const CommandEntry &entry, int bankCount)
{
    const NumberRange range = byteRange(entry);
    const int bankSize = range.last - range.first + 1;

    QStringList texts;
    for (int bank = 0; bank < bankCount; ++bank) {
        for (int value = range.first; value <= range.last; ++value) {
            const int folder = bankSize * bank + value;
            if (folder <= highestFolder)
                texts.append(paddedNumber(folder));
        }
    }
    return texts;
}

NumberRange folderRange(const CommandEntry &entry, int bankCount)
{
    const NumberRange range = byteRange(entry);
    if (range.last < range.first || bankCount < 1)
        return {};
    const int bankSize = range.last - range.first + 1;
    return {range.first, qMin(bankSize * (bankCount - 1) + range.last, highestFolder)};
}

QString rangeText(NumberRange range)
{
    return range.first == range.last ? QString::number(range.first)
                                     : u"%1 to %2"_s.arg(range.first).arg(range.last);
}

std::optional<int> numberInRange(const QString &text, NumberRange range)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || text.contains(u'+') || number < range.first || number > range.last)
        return std::nullopt;
    return number;
}

int numberFromText(const QString &text)
{
    return text.toInt();
}
