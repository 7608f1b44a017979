// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QMainWindow>

/// What the start and the memory of the console are held against.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(640, 798); // pixels of a window are no part of what the console adds to it
    window.show();
    return QApplication::exec();
}
