// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"
#include "catalogue/listnumbers.h"

/// Whether the user picks a number for the command: a folder, volume, ID, index or reference.
bool takesNumber(const CommandEntry &entry);

/// The numbers that such a command of the model takes.
NumberRange valueRange(const DeviceModel &model, const CommandEntry &entry);
