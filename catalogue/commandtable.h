// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/bytetext.h"
#include "catalogue/devicemodel.h"

#include <span>

/// One line of a command table.
struct CommandRow
{
    /// A command without a range: `dataMax` repeats `data`.
    consteval CommandRow(const char *rowLabel, quint32 rowId, quint8 rowCode, ByteText rowData)
        : CommandRow(rowLabel, rowId, rowCode, rowData, rowData)
    {
    }
    consteval CommandRow(const char *rowLabel, quint32 rowId, quint8 rowCode, ByteText rowData,
                         ByteText rowDataMax)
        : label(rowLabel)
        , commandId(rowId)
        , code(rowCode)
        , data(rowData)
        , dataMax(rowDataMax)
    {
    }

    const char *label;
    quint32 commandId;
    quint8 code;
    ByteText data;
    ByteText dataMax;
};

/// Appends the rows, in order, to the commands of the model.
void appendCommands(DeviceModel &model, std::span<const CommandRow> rows);
