// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/configfile.h"

#include "app/applicationobjects.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

QString usualConfigFilePath()
{
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    return directory.absoluteFilePath(QCoreApplication::applicationName() + configFileSuffix);
}

std::optional<SavedSettings> readConfigFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    return settingsFromConfig(file.read(configSizeLimit));
}
