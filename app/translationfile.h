// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

/// Whether a compiled translation can be used without harm: all that its tables point at lies
/// within them, and it names no other translations. QTranslator follows both unseen: a damaged file
/// ends the program, and so does one that names itself.
/// \a file the whole content of a file; whether QTranslator knows its head is not looked at
bool isSoundTranslation(QByteArrayView file);

/// The same for the file of that path; one that cannot be read is not sound.
bool isSoundTranslationFile(const QString &path);

/// The file that QTranslator::load() takes for that name, in the working directory, where nothing
/// else is said: the name with ".qm", without it, then both for what stands before its last "_" or
/// ".", and so on.
/// \return its path; empty when there is none
QString translationFilePath(const QString &name);
