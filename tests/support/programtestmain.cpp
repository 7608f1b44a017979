// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/programtestmain.h"

#include "tests/support/testmain.h"

#include <QStandardPaths>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

bool prepareProgramTest(VirtualScreen &screen, const char *screenSize)
{
    prepareTestEnvironment();
    if (!screen.start(screenSize)) {
        std::fputs("FAIL!  : no X server: Xvfb is missing or did not start (scripts/setup "
                   "installs it)\n",
                   stderr);
        return false;
    }
    if (QStandardPaths::findExecutable(u"xdotool"_s).isEmpty()) {
        std::fputs("FAIL!  : xdotool is missing (scripts/setup installs it)\n", stderr);
        return false;
    }
    qputenv("DISPLAY", screen.displayName());
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Input method, menu bar and dialogs of a desktop session would reach the program, too.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const char *name : {"SESSION_MANAGER", "QT_IM_MODULE", "XMODIFIERS", "XAUTHORITY",
                             "XDG_CURRENT_DESKTOP", "WAYLAND_DISPLAY"}) {
        qunsetenv(name);
    }
    return true;
}
