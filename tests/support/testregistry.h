// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTest>

// A test program holds many test classes, of which a run takes one, named by its first argument:
// what a class changes in its process is never seen by another one. CTest runs each of them.

/// Runs a test class, with the arguments of Qt Test. Returns the exit status.
using TestFunction = int (*)(int argc, char *argv[]);

/// Adds a class to the program. To be called before main().
/// \return true
bool registerTest(const char *className, TestFunction run);

/// The function of a class; null where there is none of that name.
/// \a name of the class in lower case, as its file is named
TestFunction findTest(const QByteArray &name);

QByteArrayList testNames();

/// The name of the class that is run, or of a program that runs none.
QString runningTest();
void setRunningTest(const QByteArray &name);

/// Runs a class that needs an application object without windows.
template<typename TestClass>
int runTest(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    TestClass test;
    return QTest::qExec(&test, argc, argv);
}

/// \a run a function such as runTest<TestClass>
#define TESSALY_REGISTER_TEST(TestClass, run) \
    [[maybe_unused]] static const bool TestClass##IsRegistered = registerTest(#TestClass, run);

#define TESSALY_TEST(TestClass) TESSALY_REGISTER_TEST(TestClass, runTest<TestClass>)
