// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The environment names it; else it is the first folder above the programs that has the tests.
QString sourceFolder()
{
    QString named = qEnvironmentVariable("TESSALY_SOURCE_FOLDER");
    if (!named.isEmpty())
        return named;
    QDir folder(QCoreApplication::applicationDirPath());
    do {
        if (folder.exists(u"tests/models"_s))
            return folder.path();
    } while (folder.cdUp());
    qFatal("TESSALY_SOURCE_FOLDER has to name the folder of the sources");
}

} // namespace

QString sourcePath(const QString &path)
{
    static const QDir folder(sourceFolder());
    return folder.filePath(path);
}

QString programPath(const QString &name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

QString buildPath(const QString &path)
{
    return QDir::cleanPath(programPath("../"_L1 + path));
}
