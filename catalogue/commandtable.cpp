// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandtable.h"

void appendCommands(DeviceModel &model, std::span<const CommandRow> rows)
{
    model.commands.reserve(model.commands.size() + static_cast<qsizetype>(rows.size()));
    for (const CommandRow &row : rows) {
        model.commands.append(CommandEntry(QString::fromLatin1(row.label), row.commandId, row.code,
                                           row.data.bytes(), row.dataMax.bytes()));
    }
}
