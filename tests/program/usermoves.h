// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/sheetframes.h"

/// What a user of the console does with mouse and keyboard to send a frame of a sheet.
struct UserMove
{
    /// A row of a list, by its text.
    struct Choice
    {
        QByteArray list;
        QString text;
    };

    SheetFrame frame;
    QList<Choice> choices; ///< to be made first, in this order
    QString input;         ///< the button to click or, as xdotool names it, the key to press
};

/// The moves that need no choice: buttons, and shortcuts with a frame in the sheet. Those
/// of the volume come last: the lowest, then the highest.
QList<UserMove> plainMoves(const ModelSheet &sheet);

/// Those that choose a value or a command, with lowest and highest values. What carries the time of
/// day is left out, and so is what the window does not offer.
QList<UserMove> choosingMoves(const ModelSheet &sheet);
