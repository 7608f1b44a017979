// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/bytestext.h"
#include "tests/fuzz/fuzztarget.h"

#include <QStringList>

#include <algorithm>

namespace {

bool isHexToken(const QString &token)
{
    return token.size() >= 2 && std::all_of(token.begin(), token.end(), [](QChar character) {
               return (character >= u'0' && character <= u'9')
                      || (character >= u'A' && character <= u'F');
           });
}

bool isDecimalToken(const QString &token)
{
    bool isNumber = false;
    return QString::number(token.toInt(&isNumber)) == token && isNumber;
}

qsizetype tokenCount(const QString &text)
{
    return text.count(u' ') + 1;
}

template<typename IsToken>
bool allTokens(const QString &text, IsToken isToken)
{
    const QStringList tokens = text.split(u' ');
    return std::all_of(tokens.begin(), tokens.end(), isToken);
}

/// What the console has sent is shown.
void checkBytes(const QByteArray &bytes)
{
    const QString hex = hexBytesText(bytes);
    const QString decimal = decimalBytesText(bytes);
    expect(QByteArray::fromHex(hex.toLatin1()) == bytes, "the hexadecimal text tells the bytes");
    if (bytes.isEmpty())
        return; // the empty text has one token, which counts as 0
    expect(decimalFromHexText(hex) == decimal, "from hexadecimal to decimal");
    expect(hexFromDecimalText(decimal) == hex, "from decimal to hexadecimal");
}

/// Any text is shown.
void checkText(const QString &text)
{
    const QString hex = hexFromDecimalText(text);
    const QString decimal = decimalFromHexText(text);
    expect(tokenCount(hex) == tokenCount(text), "every token becomes a hexadecimal one");
    expect(tokenCount(decimal) == tokenCount(text), "every token becomes a decimal one");
    // No byte is negative.
    if (text.contains(u'-'))
        return;
    expect(allTokens(hex, isHexToken), "two digits at least, in upper case");
    expect(allTokens(decimal, isDecimalToken), "a number without padding");
    expect(hexFromDecimalText(decimalFromHexText(hex)) == hex, "there and back from decimal");
    expect(decimalFromHexText(hexFromDecimalText(decimal)) == decimal,
           "there and back from hexadecimal");
}

} // namespace

/// The input is once the bytes that are sent, and once a text that is shown.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    checkBytes(bytes);
    checkText(QString::fromUtf8(bytes));
    return 0;
}
