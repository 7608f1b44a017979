// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// Expected texts, kept by hand in the files of golden/.

/// The lines of a file of golden/ without comments ('#') and empty lines; the test program ends
/// when the file cannot be read or holds no line.
QStringList goldenLines(const QString &fileName);

/// The language codes of a file of golden/, as they stand.
QStringList goldenCodes(const QString &fileName);

/// Where two lists of lines differ, human-readable; empty when they are equal.
QByteArray lineDifferences(const QStringList &actual, const QStringList &expected);
