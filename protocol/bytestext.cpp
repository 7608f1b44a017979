// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/bytestext.h"

#include <QStringList>

namespace {

QString hexToken(int value)
{
    return QString::number(value, 16).rightJustified(2, u'0').toUpper();
}

/// Rewrites the tokens of a text from one base to another.
template<typename ToToken>
QString convertedText(const QString &text, int base, ToToken toToken)
{
    QStringList tokens = text.split(u' ');
    for (QString &token : tokens)
        token = toToken(token.toInt(nullptr, base));
    return tokens.join(u' ');
}

} // namespace

QString hexBytesText(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex(' ')).toUpper();
}

QString decimalBytesText(const QByteArray &bytes)
{
    QStringList tokens;
    for (const char byte : bytes)
        tokens.append(QString::number(static_cast<quint8>(byte)));
    return tokens.join(u' ');
}

QString hexFromDecimalText(const QString &text)
{
    return convertedText(text, 10, hexToken);
}

QString decimalFromHexText(const QString &text)
{
    return convertedText(text, 16, [](int value) { return QString::number(value); });
}
