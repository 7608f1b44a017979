// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/receivedbytestext.h"

#include "protocol/bytestext.h"

#include <QStringDecoder>

namespace {

/// Every byte brings its own blank, the first one too.
QString withLeadingBlank(const QString &text)
{
    return text.isEmpty() ? text : u' ' + text;
}

} // namespace

QString asciiReceivedText(const QByteArray &bytes)
{
    // Unlike QString::fromUtf8(), this keeps a byte-order mark at the head of an arrival.
    QStringDecoder decode(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom
                                                    | QStringConverter::Flag::Stateless);
    return decode(bytes);
}

QString hexReceivedText(const QByteArray &bytes)
{
    return withLeadingBlank(hexBytesText(bytes));
}

QString decimalReceivedText(const QByteArray &bytes)
{
    return withLeadingBlank(decimalBytesText(bytes));
}
