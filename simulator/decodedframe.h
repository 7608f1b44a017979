// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/commandentry.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

/// A command as the device understands it: the model's entry and the values that came with it.
struct DecodedCommand
{
    CommandEntry entry;
    int playerId = -1;   ///< -1: the frames of this family carry none
    int number = 0;      ///< folder, volume, player ID, index, reference, or output contacts by bit
    int option = 0;      ///< of the SPOT sources with reset
    QString language;    ///< three-letter code of a subtitle selection
    QDate date;          ///< of a clock command; UTC for the UTC ones
    QTime time;          ///< of a clock command; UTC for the UTC ones
    bool inRange = true; ///< false: a value that the model does not have
};

/// A piece of what has arrived.
struct DecodedFrame
{
    QByteArray bytes;
    std::optional<DecodedCommand> command; ///< none: the bytes are no frame of this model
};
