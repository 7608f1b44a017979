// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/receivedbytestext.h"
#include "tests/fuzz/fuzztarget.h"

#include <QStringList>

#include <algorithm>

namespace {

bool isAscii(char byte)
{
    return static_cast<uint8_t>(byte) < 0x80;
}

/// The characters below 128, in their order.
QByteArray asciiOf(const QString &text)
{
    QByteArray result;
    for (const QChar character : text) {
        if (character.unicode() < 0x80)
            result.append(static_cast<char>(character.unicode()));
    }
    return result;
}

QByteArray asciiOf(const QByteArray &bytes)
{
    QByteArray result;
    std::copy_if(bytes.begin(), bytes.end(), std::back_inserter(result), isAscii);
    return result;
}

/// One token for each byte, each behind one blank, that names this byte in this base.
bool isTokenText(const QString &text, const QByteArray &bytes, int base)
{
    QStringList tokens = text.split(u' ');
    if (!tokens.takeFirst().isEmpty() || tokens.size() != bytes.size())
        return false;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const QString &token = tokens.at(i);
        bool isNumber = false;
        const int value = token.toInt(&isNumber, base);
        if (!isNumber || value != static_cast<uint8_t>(bytes.at(i)))
            return false;
        const bool isPadded = token.size() == 2;
        const bool isBare = value == 0 ? token == u"0" : !token.startsWith(u'0');
        if (base == 16 ? !isPadded || token != token.toUpper() : !isBare)
            return false;
    }
    return true;
}

void checkArrival(const QByteArray &bytes)
{
    expect(isTokenText(hexReceivedText(bytes), bytes, 16), "a hexadecimal token for each byte");
    expect(isTokenText(decimalReceivedText(bytes), bytes, 10), "a decimal token for each byte");

    const QString text = asciiReceivedText(bytes);
    expect(text.isValidUtf16(), "no half of a character is shown");
    expect(text.size() <= bytes.size(), "no byte is shown twice");
    expect(text.isEmpty() == bytes.isEmpty(), "what has arrived is shown");
    expect(asciiOf(text) == asciiOf(bytes), "plain characters and zero bytes stay, in their order");
    if (!text.contains(QChar::ReplacementCharacter))
        expect(text.toUtf8() == bytes, "valid UTF-8 is shown as it is");
}

} // namespace

/// The input is what arrives, whole and cut in two at each newline.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    checkArrival(bytes);

    const qsizetype cut = bytes.indexOf('\n') + 1;
    const QByteArray head = bytes.first(cut);
    const QByteArray tail = bytes.sliced(cut);
    checkArrival(head);
    checkArrival(tail);
    expect(hexReceivedText(head) + hexReceivedText(tail) == hexReceivedText(bytes),
           "two arrivals show in hexadecimal like one");
    expect(decimalReceivedText(head) + decimalReceivedText(tail) == decimalReceivedText(bytes),
           "two arrivals show in decimal like one");
    // A newline is a character of its own.
    expect(asciiReceivedText(head) + asciiReceivedText(tail) == asciiReceivedText(bytes),
           "two arrivals of whole characters show like one");
    return 0;
}
