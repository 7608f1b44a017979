// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/testregistry.h"
#include "tests/support/virtualscreen.h"

#include <QApplication>

/// Starts the screen and lets this process and its programs use it, without any part of the user's
/// desktop session. To be called before the application object is created.
/// \a screenSize as VirtualScreen::start() takes it
/// \return false, having said why, when a tool is missing
bool prepareProgramTest(VirtualScreen &screen, const char *screenSize = "1280x1024");

/// Runs a class that drives the built console.
template<typename TestClass, typename... ScreenSize>
int runProgramTest(int argc, char *argv[], ScreenSize... screenSize)
{
    VirtualScreen screen;
    if (!prepareProgramTest(screen, screenSize...))
        return 1;
    const QApplication application(argc, argv);
    TestClass test;
    return QTest::qExec(&test, argc, argv);
}

#define TESSALY_PROGRAM_TEST(TestClass) TESSALY_REGISTER_TEST(TestClass, runProgramTest<TestClass>)
