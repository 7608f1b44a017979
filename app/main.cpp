// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char *argv[])
{
    setApplicationIdentity();
    // The window's entry in menus and task bars: packaging/tessaly.desktop.in.
    QGuiApplication::setDesktopFileName(u"tessaly"_s);
    const QApplication application(argc, argv);

    MainWindow window;
    // The window manager adds a title bar; what has no room then is scrolled to.
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    window.resize(window.size().boundedTo(window.screen()->availableSize() - QSize(0, titleBar)));
    window.show();
    return QApplication::exec();
}
