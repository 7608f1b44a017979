// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/hexbytes.h"
#include "tests/support/modelsheets.h"

#include <QStringList>

/// A frame of a sheet, to player 0.
struct SheetFrame
{
    SheetCommand command;
    QString value; ///< the command's lowest or highest one; empty where none is chosen
    QByteArray bytes;

    QString meaning() const { return command.meaning(value); }
    /// The sheet's moment is an example: the console sends the time of the click.
    bool carriesTime() const { return !value.isEmpty() && !command.hasRange(); }
};

/// What the simulator's log shows of it, after the time: "Tempo Deck | ID 5 | 85 02 01 | Play".
inline QString logLine(const ModelSheet &sheet, const SheetFrame &frame, int playerId)
{
    const QStringList columns{
        sheet.name,
        sheet.isExtended ? QStringLiteral("no ID") : QStringLiteral("ID %1").arg(playerId),
        QString::fromLatin1(hexBytes(sheet.addressed(frame.bytes, playerId))), frame.meaning()};
    return columns.join(QStringLiteral(" | "));
}

/// Two for each command with a range, of its lowest and of its highest value; one for each other.
inline QList<SheetFrame> framesOf(const ModelSheet &sheet)
{
    QList<SheetFrame> frames;
    for (const SheetCommand &command : sheet.commands) {
        frames.append({command, command.lowest, command.frame});
        if (command.hasRange())
            frames.append({command, command.highest, command.highestFrame});
    }
    return frames;
}
