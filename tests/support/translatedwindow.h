// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// The real window in any language: the menu names French alone, so the language's file takes the
/// place of the French one for as long as this lives.
class TranslatedWindow
{
public:
    /// \a code of the language; empty: the built-in texts
    explicit TranslatedWindow(const QString &code)
    {
        const QString file = QStringLiteral("/LanguageData_%1.qm");
        if (code.isEmpty())
            return;
        if (!QFile::copy(QCoreApplication::applicationDirPath() + file.arg(code),
                         m_folder.path() + file.arg(QStringLiteral("fr"))))
            qFatal("cannot copy the texts of %s", qPrintable(code));
        QDir::setCurrent(m_folder.path());
        console.find<QAction>("action_French")->trigger();
    }
    ~TranslatedWindow()
    {
        console.find<QAction>("action_English")->trigger();
        QDir::setCurrent(QCoreApplication::applicationDirPath());
    }
    Q_DISABLE_COPY_MOVE(TranslatedWindow)

    ConsoleWindow console;

private:
    const QTemporaryDir m_folder;
};
