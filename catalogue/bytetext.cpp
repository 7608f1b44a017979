// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/bytetext.h"

#include <QList>

QByteArray ByteText::bytes() const
{
    // Quoted and unquoted stretches alternate, beginning with an unquoted one.
    QByteArray result;
    bool quoted = false;
    for (const QByteArray &stretch : QByteArray(m_text).split('\'')) {
        result += quoted ? stretch : QByteArray::fromHex(stretch);
        quoted = !quoted;
    }
    return result;
}
