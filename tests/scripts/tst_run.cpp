// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/filecontent.h"
#include "tests/support/folders.h"
#include "tests/support/modelsheets.h"
#include "tests/support/testregistry.h"
#include "tests/support/virtualscreen.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int startTimeLimit = 60'000; // in ms; reached only by what fails

QString read(const QString &path)
{
    return QString::fromUtf8(contentOf(path));
}

} // namespace

/// scripts/run, which builds and starts the preset "dev": this very build.
class tst_Run : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void visitWithoutDisplay();
    void simulatedDevices();
    void endedByASignal();
    void hardware();
    void hardwareWithoutDisplay();

private:
    void start(const QStringList &arguments, const QByteArray &display);
    bool tool(const QStringList &arguments, QString *output = nullptr);
    bool focusWindow();

    QTemporaryDir m_folder;
    VirtualScreen m_screen;
    QProcess m_run;
    QString m_output;
};

void tst_Run::initTestCase()
{
    QVERIFY(m_screen.start());
    // Of an earlier run.
    QVERIFY(QDir(sourcePath(u"build/dev/screenshots/tessaly-visit"_s)).removeRecursively());
}

void tst_Run::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning().noquote() << m_output;
    if (m_run.state() == QProcess::NotRunning)
        return;
    m_run.terminate();
    m_run.waitForFinished();
}

/// \a display of the window; empty: there is none
void tst_Run::start(const QStringList &arguments, const QByteArray &display)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name :
         {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s, u"XDG_DATA_HOME"_s}) {
        environment.remove(name);
    }
    environment.insert(u"HOME"_s, m_folder.path());
    if (!display.isEmpty())
        environment.insert(u"DISPLAY"_s, QString::fromLatin1(display));
    m_run.setProcessEnvironment(environment);
    m_run.setProcessChannelMode(QProcess::MergedChannels);
    m_run.setWorkingDirectory(m_folder.path());
    m_output.clear();
    m_run.start(sourcePath(u"scripts/run"_s), arguments);
}

bool tst_Run::tool(const QStringList &arguments, QString *output)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, QString::fromLatin1(m_screen.displayName()));
    process.setProcessEnvironment(environment);
    process.start(u"xdotool"_s, arguments);
    process.waitForFinished();
    if (output)
        *output = QString::fromLatin1(process.readAllStandardOutput()).trimmed();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool tst_Run::focusWindow()
{
    QString window;
    QString focus;
    return tool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Tessaly 1\\.2\\.8\\.0$"_s},
                &window)
           && tool({u"windowfocus"_s, window}) && tool({u"getwindowfocus"_s, u"-f"_s}, &focus)
           && focus == window;
}

void tst_Run::visitWithoutDisplay()
{
    start({}, {});
    QVERIFY(m_run.waitForFinished(startTimeLimit));
    m_output = QString::fromUtf8(m_run.readAll());
    QCOMPARE(m_run.exitCode(), 0);

    QVERIFY(m_output.contains("there is no display"_L1));
    for (
        const QString &line :
        {u"  Vistar Show - SV500 (Serial) | ID 0 | 80 02 01 | Play"_s,
         u"  Vistar Show - SV500 (Serial) | ID 0 | 80 03 63 | Volume 99"_s,
         u"  answer: Volume: 99"_s,
         u"  Vistar Home - HV4xx (TCP/IP) | ID 0 | 80 1D 66 72 65 | Subtitles fre (ISO639-2 (B))"_s,
         u"  Sonet A (Serial) | no ID | 08 00 0C FF | PLAYLIST folder (Random) 12"_s,
         u"  Ampra One | ID 0 | 80 04 40 | Request: Information"_s,
         u"  Sonet A Lite (TCP/IP) | no ID | 04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 "
         "00 | Play"_s,
         u"All went as planned."_s}) {
        QVERIFY2(m_output.split(u'\n').contains(line), qPrintable(line));
    }
    const QDir pictures(sourcePath(u"build/dev/screenshots/tessaly-visit"_s));
    QCOMPARE(pictures.entryList(QDir::Files),
             (QStringList{u"amplifier.png"_s, u"audio-player-on-demand.png"_s,
                          u"audio-player-sources.png"_s, u"video-player-network.png"_s,
                          u"video-player-serial.png"_s}));
    for (const QString &name : pictures.entryList(QDir::Files))
        QCOMPARE(QImage(pictures.filePath(name)).size(), QSize(640, 798));
    QVERIFY(!QFile::exists(m_folder.filePath(u".local"_s)));
}

void tst_Run::simulatedDevices()
{
    start({}, m_screen.displayName());
    QTRY_VERIFY_WITH_TIMEOUT(focusWindow(), startTimeLimit);
    // Connected from the start, to the simulated video player.
    QVERIFY(tool({u"key"_s, u"ctrl+5"_s}));
    const QString log = sourcePath(u"build/dev/run/simulator.log"_s);
    QTRY_VERIFY_WITH_TIMEOUT(
        read(log).contains(" | Vistar Show - SV500 (Serial) | ID 0 | 80 01 05 | Folder 5\n"_L1),
        startTimeLimit);
    QVERIFY(read(log).contains(u"Ready: %1 devices."_s.arg(modelSheets().size())));
    const QDir ports(sourcePath(u"build/dev/run/ports"_s));
    const auto portCount = [&ports] {
        return ports.entryList(QDir::System | QDir::NoDotAndDotDot | QDir::AllEntries).size();
    };
    const auto serialModels = std::ranges::count(modelSheets(), false, &ModelSheet::isTcp);
    QCOMPARE(portCount(), serialModels);

    // A second start takes nothing away from the first.
    QProcess second;
    second.setProcessEnvironment(m_run.processEnvironment());
    second.start(sourcePath(u"scripts/run"_s), {});
    QVERIFY(second.waitForFinished(startTimeLimit));
    QCOMPARE(second.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(second.readAllStandardError()).section(u'\n', -2),
             u"run: it runs already in this folder; end that first\n"_s);
    QCOMPARE(portCount(), serialModels);

    QVERIFY(tool({u"key"_s, u"ctrl+q"_s}));
    QVERIFY(m_run.waitForFinished(startTimeLimit));
    m_output = QString::fromUtf8(m_run.readAll());
    QCOMPARE(m_run.exitCode(), 0);
    // The simulator has ended, too, and the user's settings are as they were.
    QVERIFY(!ports.exists());
    QVERIFY(!QFile::exists(m_folder.filePath(u".local"_s)));
    QVERIFY(QFile::exists(sourcePath(u"build/dev/run/settings/Ambrette/Tessaly/Tessaly.cfg"_s)));
}

void tst_Run::endedByASignal()
{
    start({}, m_screen.displayName());
    QTRY_VERIFY_WITH_TIMEOUT(focusWindow(), startTimeLimit);
    m_run.terminate();
    QVERIFY(m_run.waitForFinished(startTimeLimit));
    m_output = QString::fromUtf8(m_run.readAll());
    QCOMPARE(m_run.exitCode(), 143);
    QTRY_VERIFY(!focusWindow());
    QVERIFY(!QFile::exists(sourcePath(u"build/dev/run/ports"_s)));
}

void tst_Run::hardware()
{
    start({u"--hardware"_s}, m_screen.displayName());
    QTRY_VERIFY_WITH_TIMEOUT(focusWindow(), startTimeLimit);
    QVERIFY(!QFile::exists(sourcePath(u"build/dev/run/ports"_s)));
    QVERIFY(tool({u"key"_s, u"ctrl+q"_s}));
    QVERIFY(m_run.waitForFinished(startTimeLimit));
    m_output = QString::fromUtf8(m_run.readAll());
    QCOMPARE(m_run.exitCode(), 0);
    QVERIFY(QFile::exists(m_folder.filePath(u".local/share/Ambrette/Tessaly/Tessaly.cfg"_s)));
}

void tst_Run::hardwareWithoutDisplay()
{
    start({u"--hardware"_s}, {});
    QVERIFY(m_run.waitForFinished(startTimeLimit));
    m_output = QString::fromUtf8(m_run.readAll());
    QCOMPARE(m_run.exitCode(), 1);
    QVERIFY(m_output.contains("there is no display"_L1));
}

TESSALY_TEST(tst_Run)
#include "tst_run.moc"
