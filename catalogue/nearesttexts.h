// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// For "did you mean": those of the texts that a user may have meant by a text that is none of
/// them, the most similar first, three at most. Texts that contain it count as near; upper and
/// lower case are alike.
QStringList nearestTexts(const QString &text, const QStringList &texts);

/// The rest of an error that begins with "There is no ...": the text in quotes, and the nearest
/// ones as a question.
QString didYouMean(const QString &text, const QStringList &texts);
