// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testmain.h"

#include "app/applicationobjects.h"

#include <QFile>
#include <QTemporaryDir>

void prepareTestEnvironment()
{
    // Lives until the process ends, as the window writes its settings when it is destroyed.
    static const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    qunsetenv("TESSALY_EXTRA_PORTS");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    setApplicationIdentity();
}

void forgetSavedSettings()
{
    if (!configFilePath.isEmpty())
        QFile::remove(configFilePath);
}
