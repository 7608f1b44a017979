// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

/// How long the longest piece of a text is that has neither a blank nor a line end in it, in UTF-16
/// units; 0 for an empty text. A no-break blank counts as part of a word.
qsizetype longestWord(QStringView text);
