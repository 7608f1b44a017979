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
    screen.useForPrograms();
    return true;
}
