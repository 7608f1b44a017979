// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"

void MainWindow::loadConfig(QString path)
{
    Q_UNUSED(path)
}

void MainWindow::saveConfig(QString path)
{
    Q_UNUSED(path)
}
