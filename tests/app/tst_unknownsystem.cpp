// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testmain.h"

#include "app/aboutwindow.h"

#include <QApplication>
#include <QSysInfo>
#include <QTranslator>

#include <cerrno>
#include <cstdarg>
#include <string_view>

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/utsname.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

// A system that names itself nowhere. The program's own functions come before those of the C
// library, for Qt as well.
extern "C" int uname(utsname *) noexcept
{
    errno = EFAULT;
    return -1;
}

extern "C" int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    const std::string_view name(path);
    if (name.ends_with("-release") || name.ends_with("_version")) {
        errno = ENOENT;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

class tst_UnknownSystem : public QObject
{
    Q_OBJECT

private slots:
    void frameworkKnowsNothing();
    void aboutSaysSo();
};

void tst_UnknownSystem::frameworkKnowsNothing()
{
    QCOMPARE(QSysInfo::productType(), u"unknown"_s);
    QCOMPARE(QSysInfo::prettyProductName(), u"unknown"_s);
}

void tst_UnknownSystem::aboutSaysSo()
{
    const aboutwindow dialog;
    QCOMPARE(dialog.operatingSystemText(), u"Unkown OS"_s);

    QTranslator french;
    QVERIFY(french.load(u"LanguageData_fr"_s, QCoreApplication::applicationDirPath()));
    QVERIFY(QCoreApplication::installTranslator(&french));
    QCOMPARE(dialog.operatingSystemText(), u"Système d’exploitation inconnu"_s);
}

TESSALY_WINDOW_TEST(tst_UnknownSystem)
#include "tst_unknownsystem.moc"
