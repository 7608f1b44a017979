// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testregistry.h"

#include <QFileInfo>
#include <QMap>

namespace {

// Made when they are first needed, as tests are registered before main().

QMap<QByteArray, TestFunction> &tests()
{
    static QMap<QByteArray, TestFunction> all;
    return all;
}

QByteArray &runningName()
{
    static QByteArray name;
    return name;
}

} // namespace

bool registerTest(const char *className, TestFunction run)
{
    tests().insert(QByteArray(className).toLower(), run);
    return true;
}

TestFunction findTest(const QByteArray &name)
{
    return tests().value(name);
}

QByteArrayList testNames()
{
    return tests().keys();
}

QString runningTest()
{
    return runningName().isEmpty() ? QFileInfo(QCoreApplication::applicationFilePath()).fileName()
                                   : QString::fromLatin1(runningName());
}

void setRunningTest(const QByteArray &name)
{
    runningName() = name;
}
