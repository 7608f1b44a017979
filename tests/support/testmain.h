// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

/// Keeps the user's settings, language, ports and display out of the test. To be called before the
/// application object is created.
void prepareTestEnvironment();

/// Lets the next window begin with the defaults, whatever an earlier one has saved.
void forgetSavedSettings();

// main() of a test program that has windows.
#define TESSALY_TEST_MAIN(TestClass) \
    int main(int argc, char *argv[]) \
    { \
        prepareTestEnvironment(); \
        const QApplication application(argc, argv); \
        TestClass test; \
        return QTest::qExec(&test, argc, argv); \
    }
