// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"
#include "simulator/decodedframe.h"
#include "simulator/framecursor.h"

/// What bytes are when they are read as one command of a model.
struct CommandReading
{
    FrameCursor::State state = FrameCursor::State::Wrong;
    qsizetype length = 0;   ///< of the frame, when it fits
    DecodedCommand command; ///< when it fits
};

/// Reads the head of `bytes` as a frame of this entry of the model; what follows the frame is not
/// looked at. A value that the wire can carry but the model does not have is read and marked as out
/// of range, where that leaves no doubt about where the frame ends.
CommandReading readCommand(const DeviceModel &model, const CommandEntry &entry,
                           QByteArrayView bytes);
