// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandtable.h"

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

void appendCommands(DeviceModel &model, std::span<const CommandRow> rows)
{
    model.commands.reserve(model.commands.size() + static_cast<qsizetype>(rows.size()));
    for (const CommandRow &row : rows) {
        model.commands.append(CommandEntry(QString::fromLatin1(row.label), row.commandId, row.code,
                                           row.data.bytes(), row.dataMax.bytes()));
    }
}
