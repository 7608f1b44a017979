// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"
#include "simulator/decodedframe.h"

#include <QString>

/// A command in words, with its label and value: "Play", "Folder 200", "Set date 2026-03-07",
/// "Subtitles fre (ISO639-2 (B))". A value that the model does not have is named as such.
///
/// The wire does not tell the three lists of language codes apart, so every list is named that has
/// the code.
QString commandMeaning(const DeviceModel &model, const DecodedCommand &command);

/// One line for a frame: time, model, player ID, bytes in hexadecimal and the meaning, between " |
/// ". \a playerId the ID that the device answers to; a frame for another one is marked
QString frameLine(const QDateTime &time, const DeviceModel &model, int playerId,
                  const DecodedFrame &frame);
