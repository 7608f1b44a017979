// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/packaging/packageroot.h"
#include "tests/support/consoleprogram.h"
#include "tests/support/folders.h"
#include "tests/support/languagefiles.h"
#include "tests/support/programtestmain.h"
#include "tests/support/ptypeer.h"
#include "tests/support/senderprogram.h"
#include "tests/support/simulatorprogram.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QProcess>
#include <QSettings>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int timeLimit = 120'000; // in ms; reached only by what fails

const QStringList packages{u"tessaly"_s, u"tessaly-tools"_s};

/// A shell that a user types into.
class Shell
{
public:
    /// \a command is found without its path
    Shell(const QString &command, const QString &home)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s,
                           QFileInfo(command).path() + u':' + qEnvironmentVariable("PATH"));
        environment.insert(u"HOME"_s, home);
        environment.insert(u"TERM"_s, u"dumb"_s);
        environment.insert(u"PS1"_s, u"ready: "_s);
        environment.insert(u"INPUTRC"_s, u"/dev/null"_s);
        m_process.setProcessEnvironment(environment);
        m_process.setChildProcessModifier([path = m_terminal.portName().toLocal8Bit(),
                                           peer = m_terminal.handle()] {
            ::close(peer); // else the shell would keep its own terminal from hanging up
            ::setsid();
            const int handle = ::open(path.constData(), O_RDWR); // the session's terminal by that
            for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
                ::dup2(handle, stream);
        });
        m_process.start(u"bash"_s, {u"--norc"_s, u"--noprofile"_s, u"-i"_s});
    }

    ~Shell()
    {
        m_terminal.hangUp();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Shell)

    bool isReady()
    {
        return QTest::qWaitFor([this] { return m_terminal.received().endsWith("ready: "); });
    }
    bool type(const QByteArray &text)
    {
        m_terminal.takeReceived();
        return m_terminal.send(text);
    }
    /// What the terminal shows for what was typed.
    QByteArray shown() { return m_terminal.received(); }

private:
    PtyPeer m_terminal;
    QProcess m_process;
};

} // namespace

/// The packages of this build, installed into a root of its own, used and removed.
class tst_Packages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void description_data();
    void description();
    void everyCommandHasItsPage();
    void menuEntry();
    void everyLanguage();
    void icons_data();
    void icons();
    void completion_data();
    void completion();
    void useFromAnotherFolder();
    void otherPlace();
    void withoutAWindow();

private:
    QString packageFile(const QString &package) const
    {
        return QDir(m_folder.path()).entryInfoList({package + "_*.deb"_L1}).value(0).filePath();
    }
    QStringList filesBelow(const QString &folder) const;

    QTemporaryDir m_folder;
    PackageRoot m_root;
};

void tst_Packages::initTestCase()
{
    QProcess cpack;
    cpack.setProcessChannelMode(QProcess::MergedChannels);
    cpack.start(u"cpack"_s, {u"-G"_s, u"DEB"_s, u"--config"_s, buildPath(u"CPackConfig.cmake"_s),
                             u"-B"_s, m_folder.path()});
    QVERIFY(cpack.waitForFinished(timeLimit));
    QVERIFY2(cpack.exitCode() == 0, cpack.readAll().constData());

    QVERIFY(m_root.install({packageFile(u"tessaly"_s), packageFile(u"tessaly-tools"_s)}));
    for (const QString &package : packages)
        QCOMPARE(m_root.status(package), u"install ok installed"_s);
}

void tst_Packages::cleanupTestCase()
{
    QVERIFY(m_root.leftovers().contains(u"/usr/bin/tessaly"_s));
    QVERIFY(m_root.purge(packages));
    for (const QString &package : packages)
        QCOMPARE(m_root.status(package), QString());
    QCOMPARE(m_root.leftovers(), QStringList());
}

QStringList tst_Packages::filesBelow(const QString &folder) const
{
    QStringList files;
    for (const QString &package : packages) {
        for (const QString &file : m_root.files(package)) {
            if (file.startsWith(folder + u'/'))
                files.append(file.sliced(folder.size() + 1));
        }
    }
    files.sort();
    return files;
}

void tst_Packages::description_data()
{
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("text");

    QTest::newRow("the console tells of the group")
        << u"tessaly"_s
        << u"To open a serial port, a user usually has to be a member of the group dialout."_s;
    QTest::newRow("the tools tell of the simulator")
        << u"tessaly-tools"_s << u"command line and simulator of the players that Tessaly drives"_s;
}

void tst_Packages::description()
{
    QFETCH(QString, package);
    QFETCH(QString, text);

    QProcess dpkg;
    dpkg.start(u"dpkg-deb"_s, {u"--field"_s, packageFile(package), u"Description"_s});
    QVERIFY(dpkg.waitForFinished(timeLimit));
    const QString description = QString::fromUtf8(dpkg.readAllStandardOutput());
    QVERIFY2(description.contains(text), qPrintable(description));
}

void tst_Packages::everyCommandHasItsPage()
{
    const QStringList commands = filesBelow(u"/usr/bin"_s);
    QVERIFY(commands.contains(u"tessaly"_s));
    QVERIFY(commands.contains(u"tessaly-send"_s));
    QVERIFY(commands.contains(u"tessaly-simulator"_s));
    QStringList pages = filesBelow(u"/usr/share/man/man1"_s);
    for (QString &page : pages) {
        QVERIFY2(page.endsWith(".1.gz"_L1), qPrintable(page));
        page.chop(5);
    }
    pages.sort();
    QCOMPARE(pages, commands);
}

void tst_Packages::menuEntry()
{
    QFile file(m_root.path(u"/usr/share/applications/tessaly.desktop"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : {u"Exec=tessaly"_s, u"Path=/usr/share/tessaly"_s, u"Icon=tessaly"_s,
                                u"StartupWMClass=tessaly"_s})
        QVERIFY2(lines.contains(line), qPrintable(line));

    // The menu entry has translations of its own, of everything or of nothing.
    QStringList languages;
    for (const QString &key : {u"GenericName"_s, u"Comment"_s, u"Keywords"_s}) {
        QStringList found;
        for (const QString &line : lines) {
            if (line.startsWith(key + u'['))
                found.append(line.section(u'[', 1).section(u']', 0, 0));
        }
        if (languages.isEmpty())
            languages = found;
        QVERIFY(found.contains(u"fr"_s));
        QCOMPARE(found, languages);
    }
    for (const QString &language : std::as_const(languages))
        QVERIFY2(languageCodes().contains(language), qPrintable(language));
}

void tst_Packages::everyLanguage()
{
    QStringList files;
    for (const QString &code : languageCodes())
        files.append(u"LanguageData_%1.qm"_s.arg(code));
    QCOMPARE(filesBelow(u"/usr/share/tessaly"_s), files);
}

void tst_Packages::icons_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("size");

    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512})
        QTest::addRow("%d", size) << u"%1x%1"_s.arg(size) << size;
    QTest::newRow("scalable") << u"scalable"_s << 0;
}

void tst_Packages::icons()
{
    QFETCH(QString, folder);
    QFETCH(int, size);

    const QString icon = m_root.path("/usr/share/icons/hicolor/"_L1 + folder + "/apps/tessaly"_L1);
    if (size > 0) {
        QCOMPARE(QImage(icon + ".png"_L1).size(), QSize(size, size));
        return;
    }
    QFile file(icon + ".svg"_L1);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("<svg "));
}

void tst_Packages::completion_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QByteArray>("shown");

    QTest::newRow("an option") << "--mo\t"_ba
                               << "--model "_ba;
    QTest::newRow("a name between quotes") << "--model \"Tempo D\t"_ba
                                           << "--model \"Tempo Deck\" "_ba;
    QTest::newRow("a name without quotes") << "--model Ampra\\ O\t"_ba
                                           << "--model Ampra\\ One "_ba;
    QTest::newRow("a name after =") << "--model=Tempo\\ D\t"_ba
                                    << "--model=Tempo\\ Deck "_ba;
    QTest::newRow("a name that goes on") << "--model \"Vistar Show - SV500 (T\t"_ba
                                         << "--model \"Vistar Show - SV500 (TCP/IP)\" "_ba;
    QTest::newRow("a fault") << "--fault me\t"_ba
                             << "--fault megabyte "_ba;
    QTest::newRow("nothing for a number") << "--id \t5 --po\t"_ba
                                          << "--id \a5 --port "_ba;
}

void tst_Packages::completion()
{
    QFETCH(QByteArray, typed);
    QFETCH(QByteArray, shown);

    Shell shell(m_root.path(u"/usr/bin/tessaly-simulator"_s), m_folder.path());
    QVERIFY(shell.isReady());
    QVERIFY(shell.type(
        ". "
        + m_root.path(u"/usr/share/bash-completion/completions/tessaly-simulator"_s).toLocal8Bit()
        + '\n'));
    QVERIFY(shell.isReady());
    QVERIFY(shell.type("tessaly-simulator " + typed));
    QTRY_COMPARE(shell.shown(), "tessaly-simulator " + shown);
}

void tst_Packages::useFromAnotherFolder()
{
    // The twin looks its translations up in this process' folder.
    QVERIFY(QDir::setCurrent(m_root.path(u"/usr/share/tessaly"_s)));
    const QTemporaryDir elsewhere;
    SimulatorProgram simulator(m_root.path(u"/usr/bin/tessaly-simulator"_s));
    const QString port = elsewhere.filePath(u"deck"_s);
    QVERIFY(simulator.start({u"--model"_s, u"Tempo Deck"_s, u"--link"_s, port}));
    ConsoleProgram console(port, m_root.path(u"/usr/bin/tessaly"_s), elsewhere.path());
    QVERIFY(console.start());
    QVERIFY(console.looksAsExpected());

    // By that class the desktop knows which menu entry the window belongs to.
    QProcess search;
    search.start(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--classname"_s, u"^tessaly$"_s});
    QVERIFY(search.waitForFinished(timeLimit));
    QVERIFY(!search.readAllStandardOutput().isEmpty());

    // From the top of the menu, Up goes round to its last entry.
    QVERIFY(console.press({u"alt+l"_s, u"Up"_s, u"Return"_s}));
    console.twin<QAction>("action_French")->trigger();
    QCOMPARE(console.twin<QLabel>("label_Sent")->text(), u"Octets envoyés\u00A0:"_s);
    QVERIFY(console.looksAsExpected());
    QVERIFY(console.saveScreenshot(u"installed"_s));

    QVERIFY(console.choose("comboBox_Player", u"Tempo Deck"_s));
    QVERIFY(console.choose("comboBox_Port", port));
    QVERIFY(console.click("pushButton_Connect"));
    console.expectLink(true);
    QVERIFY(console.click("pushButton_Play"));
    QTRY_COMPARE(simulator.frames(), QStringList{u"Tempo Deck | ID 0 | 80 02 01 | Play"_s});
    QVERIFY(console.click("textEdit_Data"));
    QVERIFY(console.copies(u"OK Play\n"_s));

    QVERIFY(console.press({u"ctrl+q"_s}));
    QVERIFY(console.endsWell());
    QVERIFY(simulator.stop());
    QCOMPARE(simulator.exitCode(), 0);
    // Nothing was written where it was started.
    QCOMPARE(QDir(elsewhere.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList());
}

/// A link to the command in another folder, as a user may have it in his own.
void tst_Packages::otherPlace()
{
    QVERIFY(QDir::setCurrent(m_root.path(u"/usr/share/tessaly"_s)));
    const QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(u"remote control"_s);
    QVERIFY(QFile::link(m_root.path(u"/usr/bin/tessaly"_s), link));
    ConsoleProgram console({}, link, elsewhere.path());
    QVERIFY(console.start());
    QVERIFY(console.press({u"alt+l"_s, u"Up"_s, u"Return"_s}));
    console.twin<QAction>("action_French")->trigger();
    QVERIFY(console.looksAsExpected());
    QVERIFY(console.press({u"ctrl+q"_s}));
    QVERIFY(console.endsWell());
}

void tst_Packages::withoutAWindow()
{
    const QTemporaryDir folder;
    const QString port = folder.filePath(u"deck"_s);
    SimulatorProgram simulator(m_root.path(u"/usr/bin/tessaly-simulator"_s));
    QVERIFY(simulator.start({u"--model"_s, u"Tempo Deck"_s, u"--link"_s, port}));
    SenderProgram sender(m_root.path(u"/usr/bin/tessaly-send"_s));
    QCOMPARE(sender.run({u"--model"_s, u"Tempo Deck"_s, u"--id"_s, u"0"_s, u"--port"_s, port,
                         u"folder"_s, u"12"_s}),
             0);
    QCOMPARE(sender.errors(), ""_ba);
    QTRY_COMPARE(simulator.frames(), QStringList{u"Tempo Deck | ID 0 | 80 01 0C | Folder 12"_s});
    QVERIFY(simulator.stop());
}

TESSALY_PROGRAM_TEST(tst_Packages)
#include "tst_packages.moc"
