// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/testregistry.h"

#include <QApplication>

/// Keeps the user's settings, language, ports and display out of the test. To be called before the
/// application object is created.
void prepareTestEnvironment();

/// Lets the next window begin with the defaults, whatever an earlier one has saved.
void forgetSavedSettings();

/// Runs a class that has windows.
template<typename TestClass>
int runWindowTest(int argc, char *argv[])
{
    prepareTestEnvironment();
    const QApplication application(argc, argv);
    TestClass test;
    return QTest::qExec(&test, argc, argv);
}

#define TESSALY_WINDOW_TEST(TestClass) TESSALY_REGISTER_TEST(TestClass, runWindowTest<TestClass>)
