// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

/// Whether a compiled translation can be used without harm: all that its tables point at lies
/// within them. QTranslator follows them unseen, and a damaged file ends the program. The
/// translations that such a file may name besides are not looked at.
/// \a file the whole content of a file that QTranslator has loaded
bool isSoundTranslation(QByteArrayView file);

/// The same for the file of that path; one that cannot be read is not sound.
bool isSoundTranslationFile(const QString &path);
