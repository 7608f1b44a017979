// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

#include <QString>

// What tessaly-send can be told, for people and for programs.

/// A line for each model: name, link, baud rates or port, player IDs.
QString modelsText(const DeviceCatalogue &catalogue);

/// A line for each command of the model, as it is typed, with the ranges of its values.
QString commandsText(const DeviceModel &model);

/// An array of objects with "name", "link", "baudRates" and "defaultBaudRate" or "tcpPort",
/// "playerIds", "firmware".
QString modelsJson(const DeviceCatalogue &catalogue);

/// The model's object with the array "commands" of objects with "label", "list" (empty for what is
/// in none), "words" as they are typed, and "values" with their names and ranges.
QString commandsJson(const DeviceModel &model);
