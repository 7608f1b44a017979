// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    setApplicationIdentity();
    const QApplication application(argc, argv);

    MainWindow window;
    window.show();
    return QApplication::exec();
}
