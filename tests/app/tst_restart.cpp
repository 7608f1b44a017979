// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/app/windowfiles.h"
#include "tests/support/examplemodels.h"
#include "tests/support/ptypeer.h"
#include "tests/support/settingsfile.h"
#include "tests/support/testregistry.h"
#include "tests/support/virtualscreen.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patience = 20'000; // milliseconds; for the start of a program on a busy machine

/// A difference then names its line.
QByteArrayList linesOf(const QByteArray &bytes)
{
    return bytes.split('\n');
}

QByteArrayList linesOf(const SettingsFile &file)
{
    return linesOf(file.bytes());
}

/// What the program writes when its user changes nothing.
SettingsFile untouchedFile(const QByteArray &port)
{
    const ModelSheet &sheet = modelSheets().constFirst();
    return {.model = sheet.name.toUtf8(),
            .port = port,
            .baudRate = QByteArray::number(sheet.defaultBaudRate),
            .playerId = "0",
            .sentForm = "2",
            .dataForm = "1"};
}

SettingsFile editedFile(const QByteArray &port, const QByteArray &playerId)
{
    return {.language = "French",
            .model = serialModel.toUtf8(),
            .port = port,
            .baudRate = "38400",
            .address = {"192", "168", "0", "255"},
            .autoConnection = "1",
            .playerId = playerId,
            .sentForm = "3",
            .dataForm = "2"};
}

SettingsFile typedFile(const QByteArray &port, const QByteArray &language)
{
    return {.language = language,
            .model = serialModel.toUtf8(),
            .port = port,
            .baudRate = "9600",
            .address = {"192", "168", "7", "255"},
            .playerId = "0",
            .sentForm = "2",
            .dataForm = "1"};
}

/// In the list of models.
qsizetype rowOf(const QString &model)
{
    QStringList names;
    for (const ModelSheet &sheet : modelSheets())
        names.append(sheet.name);
    return names.indexOf(model);
}

QStringList times(qsizetype count, const QString &key)
{
    return QStringList(count, key);
}

} // namespace

/// Starts the real program on a display of its own and ends it by its own shortcut: a program that
/// is killed saves nothing.
class tst_restart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void twoStarts();
    void typedSettings();
    void fileMenu_data();
    void fileMenu();
    void fileOfAnotherProgram();
    void pipeInPlaceOfTheFile();
    void fileWithoutEnd();

private:
    QString path() const;
    /// Waits for the program's window and types into it.
    bool typeKeys(const QStringList &keys);
    bool focusWindow();
    bool runTool(const QStringList &arguments, QByteArray *output = nullptr);
    void startProgram();
    void endProgram(const QStringList &keys = {u"ctrl+q"_s});

    VirtualScreen m_screen;
    QProcess m_program;
    QProcessEnvironment m_environment;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<PtyPeer> m_peer;
};

QString tst_restart::path() const
{
    return m_home->filePath(u"Ambrette/Tessaly/Tessaly.cfg"_s);
}

void tst_restart::initTestCase()
{
    QVERIFY(m_screen.start());

    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(u"DISPLAY"_s, QString::fromLatin1(m_screen.displayName()));
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_environment.remove(u"LANGUAGE"_s);
    m_environment.remove(u"WAYLAND_DISPLAY"_s);
}

void tst_restart::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_peer = std::make_unique<PtyPeer>();
    QVERIFY(m_home->isValid());
    m_environment.insert(u"HOME"_s, m_home->path());
    m_environment.insert(u"XDG_DATA_HOME"_s, m_home->path());
    m_environment.insert(u"TESSALY_EXTRA_PORTS"_s, m_peer->portName());
}

void tst_restart::cleanup()
{
    if (m_program.state() != QProcess::NotRunning) {
        m_program.kill();
        m_program.waitForFinished(patience);
    }
}

bool tst_restart::runTool(const QStringList &arguments, QByteArray *output)
{
    QProcess tool;
    tool.setProcessEnvironment(m_environment);
    tool.start(u"xdotool"_s, arguments);
    if (!tool.waitForFinished(patience)) {
        qWarning("xdotool %s does not end", qPrintable(arguments.join(u' ')));
        tool.kill();
        tool.waitForFinished(patience);
        return false;
    }
    if (output)
        *output = tool.readAllStandardOutput().trimmed();
    return tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

bool tst_restart::focusWindow()
{
    // There is no window manager that would give the focus to the new window.
    QByteArray window;
    QByteArray focus;
    return runTool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Tessaly 1\\.2\\.8\\.0$"_s},
                   &window)
           && runTool({u"windowfocus"_s, QString::fromLatin1(window)})
           && runTool({u"getwindowfocus"_s, u"-f"_s}, &focus) && focus == window;
}

bool tst_restart::typeKeys(const QStringList &keys)
{
    return QTest::qWaitFor([this] { return focusWindow(); }, patience)
           && runTool(QStringList{u"key"_s} + keys);
}

void tst_restart::startProgram()
{
    const QString bin = QCoreApplication::applicationDirPath();
    m_program.setProcessEnvironment(m_environment);
    m_program.setWorkingDirectory(bin);
    m_program.setProcessChannelMode(QProcess::ForwardedChannels);
    m_program.start(bin + u"/tessaly"_s, QStringList());
    QVERIFY2(m_program.waitForStarted(patience), qPrintable(m_program.errorString()));
}

void tst_restart::endProgram(const QStringList &keys)
{
    // Keys that arrive while a menu closes may be lost with it.
    const auto hasEnded = [this] { return m_program.state() == QProcess::NotRunning; };
    for (int attempt = 1; attempt < 4 && !hasEnded(); ++attempt) {
        QVERIFY(typeKeys(keys));
        if (QTest::qWaitFor(hasEnded, patience))
            break;
    }
    QVERIFY(hasEnded());
    QCOMPARE(m_program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_program.exitCode(), 0);
}

void tst_restart::twoStarts()
{
    startProgram();
    if (QTest::currentTestFailed())
        return;
    QVERIFY(typeKeys({u"ctrl+5"_s})); // not connected: sends nothing
    QVERIFY(!QFile::exists(path()));
    endProgram();
    if (QTest::currentTestFailed())
        return;
    QVERIFY(m_peer->received().isEmpty());
    // A machine with serial ports of its own lists them first.
    const QByteArray firstPort = linesOf(readFile(path())).value(8);
    const QByteArray port = m_peer->portName().toLatin1();
    QVERIFY2(firstPort == port || firstPort.startsWith("tty"), firstPort.constData());
    QCOMPARE(linesOf(readFile(path())), linesOf(untouchedFile(firstPort)));

    QVERIFY(writeFile(path(), editedFile(port, "12").bytes()));
    startProgram();
    if (QTest::currentTestFailed())
        return;
    // Connected by itself, to the port of the file, as player 0: the ID is never restored.
    QVERIFY(typeKeys({u"ctrl+5"_s}));
    QTRY_COMPARE_WITH_TIMEOUT(m_peer->received().toHex(' '), "80 01 05"_ba, patience);
    endProgram();
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(linesOf(readFile(path())), linesOf(editedFile(port, "0")));

    startProgram();
    if (QTest::currentTestFailed())
        return;
    endProgram();
    QCOMPARE(linesOf(readFile(path())), linesOf(editedFile(port, "0")));
}

void tst_restart::typedSettings()
{
    const QByteArray port = m_peer->portName().toLatin1();

    startProgram();
    if (QTest::currentTestFailed())
        return;
    // The list of models has the focus first. The address can be typed for a TCP model only, port
    // and speed for a serial one only. A lost key shows in the file.
    QVERIFY(typeKeys(QStringList{u"Home"_s} + times(rowOf(tcpModel), u"Down"_s)
                     + QStringList{u"Tab"_s} + QStringList{u"1"_s, u"9"_s, u"2"_s, u"Tab"_s}
                     + QStringList{u"1"_s, u"6"_s, u"8"_s, u"Tab"_s} + QStringList{u"7"_s, u"Tab"_s}
                     + QStringList{u"2"_s, u"5"_s, u"5"_s} + times(4, u"shift+Tab"_s)));
    // TESSALY_EXTRA_PORTS comes last in the list of ports.
    QVERIFY(typeKeys(QStringList{u"Home"_s} + times(rowOf(serialModel), u"Down"_s)
                     + QStringList{u"Tab"_s, u"End"_s, u"Tab"_s, u"Home"_s}
                     + times(sheetOf(serialModel).baudRates.indexOf(9600), u"Down"_s)));
    // From the top of the menu, Up goes round to its last entry.
    QVERIFY(typeKeys({u"alt+l"_s, u"Up"_s, u"Return"_s}));
    QVERIFY(!QFile::exists(path()));
    endProgram();
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(linesOf(readFile(path())), linesOf(typedFile(port, "French")));

    startProgram();
    if (QTest::currentTestFailed())
        return;
    // The window has come up in French: "Fichier", "Quitter".
    endProgram({u"alt+f"_s, u"q"_s});
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(linesOf(readFile(path())), linesOf(typedFile(port, "French")));
}

void tst_restart::fileMenu_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("ends");

    // The row that ends, and typedSettings(), show that Alt+F does open the menu of the others.
    QTest::newRow("French: no Exit") << "French"_ba << u"e"_s << false;
    QTest::newRow("English: E of Exit") << "English"_ba << u"e"_s << true;
    QTest::newRow("English: no Quitter") << "English"_ba << u"q"_s << false;
}

void tst_restart::fileMenu()
{
    QFETCH(const QByteArray, language);
    QFETCH(const QString, key);
    QFETCH(const bool, ends);

    QVERIFY(writeFile(path(), typedFile(m_peer->portName().toLatin1(), language).bytes()));
    startProgram();
    if (QTest::currentTestFailed())
        return;
    if (ends) {
        endProgram({u"alt+f"_s, key});
        return;
    }

    // One Escape for the menu, one for its bar. The next model in the file then shows that the
    // program lived on after the key.
    QVERIFY(typeKeys({u"alt+f"_s, key, u"Escape"_s, u"Escape"_s, u"Down"_s}));
    endProgram();
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(linesOf(readFile(path())).value(4), language);
    QCOMPARE(linesOf(readFile(path())).value(6),
             modelSheets().value(rowOf(serialModel) + 1).name.toUtf8());
}

void tst_restart::fileOfAnotherProgram()
{
    QVERIFY(writeFile(path(), "TSY12.00\n" + QByteArray(100'000, '\xFF')));
    startProgram();
    if (QTest::currentTestFailed())
        return;
    endProgram();
    const QByteArrayList lines = linesOf(readFile(path()));
    QCOMPARE(lines, linesOf(untouchedFile(lines.value(8))));
}

void tst_restart::pipeInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(m_home->filePath(u"Ambrette/Tessaly"_s)));
    QCOMPARE(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    startProgram();
    if (QTest::currentTestFailed())
        return;
    endProgram();
}

void tst_restart::fileWithoutEnd()
{
    QVERIFY(writeFile(path(), "TSY11.00\n"));
    QVERIFY(QFile::resize(path(), qint64(8) << 30)); // zeros that take no room on the disk
    startProgram();
    if (QTest::currentTestFailed())
        return;
    endProgram();
    const QByteArrayList lines = linesOf(readFile(path()));
    QCOMPARE(lines, linesOf(untouchedFile(lines.value(8))));
}

TESSALY_TEST(tst_restart)
#include "tst_restart.moc"
