// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandentry.h"

using namespace Qt::Literals::StringLiterals;

CommandEntry::CommandEntry(const QString &entryLabel, quint32 id, quint8 codeByte,
                           const QByteArray &dataBytes, const QByteArray &dataMaxBytes)
    : label(entryLabel)
    , commandId(id)
    , code(codeByte)
    , data(dataBytes.constData(), dataBytes.size())
    , dataMax(dataMaxBytes.constData(), dataMaxBytes.size())
{
}

QString commandTitle(const CommandEntry &entry)
{
    return entry.commandId == CommandId::Request ? "Request: "_L1 + entry.label : entry.label;
}
