// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"
#include "tests/support/languagefiles.h"
#include "tests/support/testregistry.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int timeLimit = 120'000; // in ms; reached only by what fails

const QString metainfo = u"packaging/com.example.tessaly.metainfo.xml.in"_s;
const QString french = u"translations/LanguageData_fr.ts"_s;

/// What is replaced in a file.
struct Change
{
    QString file;
    QByteArray before;
    QByteArray after;
};

} // namespace

Q_DECLARE_METATYPE(Change)

/// scripts/release in a repository of its own, which holds what could be released.
class tst_Release : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void accepted();
    void refused_data();
    void refused();
    void everyReasonIsTold();
    void changesThatAreNotCommitted();
    void newFile();
    void tagIsThere();
    void release();

private:
    bool run(const QString &program, const QStringList &arguments);
    bool git(const QStringList &arguments);
    bool change(const Change &change);
    bool commit() { return git({u"commit"_s, u"--all"_s, u"--quiet"_s, u"--message=change"_s}); }
    /// scripts/release, expected to refuse for these reasons.
    void expectRefusal(const QStringList &reasons);
    QString path(const QString &file) const { return m_folder.filePath("clone/"_L1 + file); }

    QTemporaryDir m_folder;
    int m_exitCode = -1;
    QString m_output;
    QString m_errors;
};

bool tst_Release::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setWorkingDirectory(path(u"."_s));
    process.start(program, arguments);
    const bool isDone = process.waitForFinished(timeLimit);
    m_exitCode = isDone ? process.exitCode() : -1;
    m_output = QString::fromUtf8(process.readAllStandardOutput());
    m_errors = QString::fromUtf8(process.readAllStandardError());
    return m_exitCode == 0;
}

bool tst_Release::git(const QStringList &arguments)
{
    const bool isDone = run(u"git"_s, arguments);
    if (!isDone)
        qWarning().noquote() << arguments << m_errors;
    return isDone;
}

bool tst_Release::change(const Change &change)
{
    QFile file(path(change.file));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QByteArray text = file.readAll();
    file.close();
    const qsizetype place = text.indexOf(change.before);
    if (place < 0) {
        qWarning() << change.before << "is not in" << change.file;
        return false;
    }
    text.replace(place, change.before.size(), change.after);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

void tst_Release::initTestCase()
{
    // Whoever commits here is nobody, and nobody's settings count.
    qputenv("GIT_CONFIG_GLOBAL", "/dev/null");
    qputenv("GIT_CONFIG_NOSYSTEM", "1");
    for (const char *name : {"GIT_AUTHOR_NAME", "GIT_COMMITTER_NAME"})
        qputenv(name, "Test");
    for (const char *name : {"GIT_AUTHOR_EMAIL", "GIT_COMMITTER_EMAIL"})
        qputenv(name, "test@localhost");

    QVERIFY(QDir(m_folder.path()).mkdir(u"clone"_s));
    const QString copy
        = u"git -c safe.directory=\"$1\" -C \"$1\" ls-files -z --cached --others --exclude-standard"
          " | (cd \"$1\" && xargs -0 cp --parents --target-directory=\"$2\")"_s;
    QVERIFY(run(u"bash"_s, {u"-o"_s, u"pipefail"_s, u"-ec"_s, copy, u"copy"_s, sourcePath(u"."_s),
                            path(u""_s)}));

    // Whether these sources are a release or not yet one, those of the test are.
    QVERIFY(run(u"sed"_s, {u"--in-place"_s, u"s/^## 1\\.2\\.8\\.0 - .*/## 1.2.8.0 - 2026-03-07/"_s,
                           path(u"CHANGELOG.md"_s)}));
    QVERIFY(run(u"sed"_s, {u"--in-place"_s,
                           u"s/<release version=\"1\\.2\\.8\\.0\".*>/"
                           "<release version=\"1.2.8.0\" date=\"2026-03-07\">/"_s,
                           path(metainfo)}));
    QVERIFY(git({u"init"_s, u"--quiet"_s}));
    QVERIFY(git({u"add"_s, u"--all"_s}));
    QVERIFY(commit());
    QVERIFY(git({u"tag"_s, u"start"_s}));
}

void tst_Release::init()
{
    QVERIFY(git({u"reset"_s, u"--hard"_s, u"--quiet"_s, u"start"_s}));
    QVERIFY(git({u"clean"_s, u"-d"_s, u"--force"_s, u"--quiet"_s}));
    run(u"git"_s, {u"tag"_s, u"--delete"_s, u"v1.2.8.0"_s}); // if there is one
}

void tst_Release::accepted()
{
    QVERIFY2(run(path(u"scripts/release"_s), {u"--check"_s}), qPrintable(m_errors));
    QCOMPARE(m_output, u"release: 1.2.8.0 of 2026-03-07 can be released\n"_s);
    QVERIFY(git({u"tag"_s}));
    QCOMPARE(m_output, u"start\n"_s);
}

void tst_Release::expectRefusal(const QStringList &reasons)
{
    QVERIFY(!run(path(u"scripts/release"_s), {}));
    QCOMPARE(m_exitCode, 1);
    QStringList lines = m_errors.split(u'\n', Qt::SkipEmptyParts);
    QVERIFY2(lines.takeLast().endsWith(" is not released"_L1), qPrintable(m_errors));
    for (QString &line : lines)
        line.remove(u"release: "_s);
    QCOMPARE(lines, reasons);
    QCOMPARE(m_output, QString());
}

void tst_Release::refused_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("reasons");

    QTest::newRow("no date") << Change{u"CHANGELOG.md"_s, "2026-03-07", "unreleased"}
                             << QStringList{u"CHANGELOG.md gives no date: unreleased"_s,
                                            metainfo
                                                + " says 2026-03-07, CHANGELOG.md unreleased"_L1};
    QTest::newRow("a day that is none")
        << Change{u"CHANGELOG.md"_s, "2026-03-07", "2026-02-30"}
        << QStringList{u"CHANGELOG.md gives no date: 2026-02-30"_s,
                       metainfo + " says 2026-03-07, CHANGELOG.md 2026-02-30"_L1};
    QTest::newRow("other version in the changelog")
        << Change{u"CHANGELOG.md"_s, "## 1.2.8.0", "## 1.2.7.0"}
        << QStringList{u"CHANGELOG.md is about 1.2.7.0, CMakeLists.txt about 1.2.8.0"_s};
    QTest::newRow("no release in the changelog")
        << Change{u"CHANGELOG.md"_s, "## 1.2.8.0 - 2026-03-07", ""}
        << QStringList{u"CHANGELOG.md is about nothing, CMakeLists.txt about 1.2.8.0"_s,
                       u"CHANGELOG.md gives no date: nothing"_s,
                       metainfo + " says 2026-03-07, CHANGELOG.md "_L1};
    QTest::newRow("other version in the metainfo")
        << Change{metainfo, "version=\"1.2.8.0\"", "version=\"1.2.9.0\""}
        << QStringList{metainfo + " is about 1.2.9.0, CMakeLists.txt about 1.2.8.0"_L1};
    QTest::newRow("other date in the metainfo")
        << Change{metainfo, "2026-03-07", "2026-03-08"}
        << QStringList{metainfo + " says 2026-03-08, CHANGELOG.md 2026-03-07"_L1};
    QTest::newRow("metainfo of a development")
        << Change{metainfo, "\"2026-03-07\"", "\"2026-03-07\" type=\"development\""}
        << QStringList{metainfo + " calls it a development release"_L1};
    QTest::newRow("other version in a manual page")
        << Change{u"packaging/man/tessaly.1"_s, "@PROJECT_VERSION@", "1.2.7.0"}
        << QStringList{u"packaging/man/tessaly.1 is about another version"_s};
    QTest::newRow("unfinished translation")
        << Change{french, "<translation>", "<translation type=\"unfinished\">"}
        << QStringList{french + " has texts without a translation"_L1};
    QTest::newRow("translation of a text that is gone")
        << Change{french, "<source>",
                  "<source>No such text</source><translation/></message>\n"
                  "<message><source>"}
        << QStringList{french + " is not what scripts/translate makes of the program's texts"_L1};
}

void tst_Release::refused()
{
    QFETCH(Change, change);
    QFETCH(QStringList, reasons);

    QVERIFY(this->change(change));
    QVERIFY(commit());
    expectRefusal(reasons);
}

void tst_Release::everyReasonIsTold()
{
    QVERIFY(change({u"CMakeLists.txt"_s, "VERSION 1.2.8.0", "VERSION 1.2.9.0"}));
    QVERIFY(change({u"packaging/man/tessaly.1"_s, "@PROJECT_VERSION@", "1.2.8.0"}));
    QVERIFY(change({u"app/mainwindow_menus.cpp"_s, "( write here", "( write there"}));
    QVERIFY(commit());
    QStringList reasons{u"CHANGELOG.md is about 1.2.8.0, CMakeLists.txt about 1.2.9.0"_s,
                        metainfo + " is about 1.2.8.0, CMakeLists.txt about 1.2.9.0"_L1,
                        u"packaging/man/tessaly.1 is about another version"_s};
    for (const QString &code : languageCodes()) {
        reasons.append(languageFileName(code)
                       + " is not what scripts/translate makes of the program's texts"_L1);
    }
    expectRefusal(reasons);
}

void tst_Release::changesThatAreNotCommitted()
{
    QVERIFY(change({u"README.md"_s, "Tessaly", "Tesaly"}));
    expectRefusal({u"the checkout is not what is committed"_s});
}

void tst_Release::newFile()
{
    QFile file(path(u"notes"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    expectRefusal({u"the checkout is not what is committed"_s});
}

void tst_Release::tagIsThere()
{
    QVERIFY(git({u"tag"_s, u"v1.2.8.0"_s}));
    expectRefusal({u"the tag v1.2.8.0 is there already"_s});
}

/// The packages themselves are the business of another script.
void tst_Release::release()
{
    QFile script(path(u"scripts/package"_s));
    QVERIFY(script.open(QIODevice::WriteOnly));
    QVERIFY(script.write("#!/bin/sh\necho packages\n") > 0);
    script.close();
    QVERIFY(commit());

    QVERIFY2(run(path(u"scripts/release"_s), {}), qPrintable(m_errors));
    QCOMPARE(m_output,
             u"release: 1.2.8.0 of 2026-03-07 can be released\n"
             "packages\n"
             "release: tagged as v1.2.8.0; publish it with: git push origin v1.2.8.0\n"_s);
    QVERIFY(git({u"describe"_s}));
    QCOMPARE(m_output, u"v1.2.8.0\n"_s);
}

TESSALY_TEST(tst_Release)
#include "tst_release.moc"
