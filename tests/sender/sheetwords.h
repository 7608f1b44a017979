// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/sheetframes.h"

/// What a user of tessaly-send writes to have a frame of a sheet: {"request", "Player Status"}.
inline QStringList wordsFor(const SheetFrame &frame)
{
    const SheetCommand &command = frame.command;
    QStringList values = frame.value.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    values.replaceInStrings(QStringLiteral("option "), QString());
    if (frame.carriesTime() || frame.value == QStringLiteral("none"))
        values.clear();
    switch (command.id) {
    case 10:
        return QStringList{QStringLiteral("request"), command.label};
    case 23:
    case 24:
    case 25:
    case 26:
        return QStringList{QStringLiteral("source"), command.label} + values;
    case 39:
    case 40:
        return QStringList{QStringLiteral("subtitles")} + values;
    default:
        return QStringList{command.label} + values;
    }
}
