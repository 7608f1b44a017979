// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/configlines.h"

/// Where the console keeps its settings: below the user's folder for local data, by the names of
/// maker and program that are set.
QString usualConfigFilePath();

/// What the file says; nothing when it is no regular file, cannot be read or is none of ours. It
/// waits for nobody who may or may not write into a pipe or a terminal.
std::optional<SavedSettings> readConfigFile(const QString &path);
