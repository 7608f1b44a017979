// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/textmessage.h"

QByteArray textMessage(QByteArrayView verb, QByteArrayView name)
{
    constexpr qsizetype head = 3;
    QByteArray message;
    message.reserve(head + verb.size() + 1 + name.size() + 1);
    message.append(head, '\0');
    message += verb;
    message += '\0';
    message += name;
    message += '\0';
    return message;
}

bool holdsTextName(const CommandEntry &entry)
{
    return entry.data.size() >= 3 && entry.dataMax.size() >= 3;
}

QByteArrayView textName(const CommandEntry &entry)
{
    return QByteArrayView(entry.data).sliced(2);
}
