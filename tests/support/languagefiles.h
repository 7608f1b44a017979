// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

// The languages of the console. Each is one file, translations/LanguageData_<code>.ts: no test has
// a list of them.

struct TranslatedText
{
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString state; ///< "unfinished", "vanished", "obsolete"; empty when the text is translated

    /// How a failing test names it.
    QString key() const;
};

struct LanguageFile
{
    QString language; ///< that of the head: "pt_BR"
    QList<TranslatedText> texts;

    /// \return an empty text when there is no translation
    QString translated(const QString &context, const QString &source) const;
};

/// Those of the files, in alphabetical order: "de", "es"...
QStringList languageCodes();

/// Relative to the source folder.
QString languageFileName(const QString &code);

/// Ends the program when the file is missing or is no XML.
LanguageFile readLanguageFile(const QString &path);

/// The file of a language in the source folder.
LanguageFile languageFile(const QString &code);
