// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// How a subtitle track is designated, as the type list and the commands name it.
extern const QString subtitleTypeIso6392B;
extern const QString subtitleTypeIso6392T;
extern const QString subtitleTypeIso6393;
extern const QString subtitleTypeIndex;

/// The designations of a type, in the order of the value list: language codes, or the track
/// numbers 0 to 127. Empty for any other text.
QStringList subtitleValues(const QString &type);
