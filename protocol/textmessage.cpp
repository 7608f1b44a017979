// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/textmessage.h"

QByteArray textMessage(const QByteArray &verb, const QByteArray &name)
{
    return QByteArray(3, '\0') + verb + '\0' + name + '\0';
}

bool holdsTextName(const CommandEntry &entry)
{
    return entry.data.size() >= 3 && entry.dataMax.size() >= 3;
}

QByteArray textName(const CommandEntry &entry)
{
    return entry.data.sliced(2);
}
