// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/program/desk.h"
#include "tests/support/programtestmain.h"
#include "tests/support/tcppeer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// In ms.
constexpr int floodLimit = 240'000; // below the five minutes that Qt gives a test
constexpr int outage = 3000;        // of a device that refuses
constexpr int tolerance = 500;

const QString serialModel = u"Vistar Show - SV500 (Serial)"_s;
const QString tcpModel = u"Vistar Show - SV500 (TCP/IP)"_s;
const QString onDemandModel = u"Sonet A Lite (TCP/IP)"_s;

} // namespace

/// The built console, and devices that fail.
class tst_SimulatedFaults : public QObject
{
    Q_OBJECT

private slots:
    void faults_data();
    void faults();
    void garbage_data();
    void garbage();
    void hangUp_data();
    void hangUp();
    void megabyte_data();
    void megabyte();
    void markupOpensNoFile();
    void deafSerialLine();
    void refusedConnection();
    void refusedCommand();
};

void tst_SimulatedFaults::faults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("both");

    const auto row = [](const char *name, const QString &model, const char *fault,
                        const QString &first, const QString &both) {
        QTest::newRow(name) << QString::fromLatin1(fault) << model << first << both;
    };
    row("no answer, serial", serialModel, "no-answer", {}, {});
    row("no answer, TCP", tcpModel, "no-answer", {}, {});
    row("no answer, on demand", onDemandModel, "no-answer", {}, {});
    // The next command goes out while the first answer still arrives, if there is a connection.
    const QString answers = u"OK Play\nOK Stop\n"_s;
    row("single bytes, serial", serialModel, "single-bytes", {}, answers);
    row("single bytes, TCP", tcpModel, "single-bytes", {}, answers);
    row("single bytes, on demand", onDemandModel, "single-bytes", u"OK Play\n"_s, answers);
    // Shown as rich text, with a placeholder for each of the two images.
    const QString play = u"OK Play \uFFFC\uFFFCmore "_s;
    const QString stop = u"OK Stop \uFFFC\uFFFCmore "_s;
    row("markup, serial", serialModel, "markup", play, play + stop);
    row("markup, TCP", tcpModel, "markup", play, play + stop);
}

/// \a first, \a both what the window shows after the first and after both commands; empty: not
/// looked at, or nothing
void tst_SimulatedFaults::faults()
{
    QFETCH(const QString, fault);
    QFETCH(const QString, model);
    QFETCH(const QString, first);
    QFETCH(const QString, both);
    Desk desk(model);
    QVERIFY(desk.start(fault));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.plays());
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), QStringList{desk.play()}, Desk::timeLimit);
    if (!first.isEmpty())
        QVERIFY(desk.showsReceived(first));
    QVERIFY(desk.stops());
    const QStringList frames{desk.play(), desk.stop()};
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), frames, Desk::timeLimit);
    if (!both.isEmpty())
        QVERIFY(desk.showsReceived(both));
    QVERIFY(desk.showsSent(Desk::sentBytes(desk.stop())));
    if (both.isEmpty())
        QVERIFY(desk.console().looksAsExpected("textEdit_Data"));
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), frames);
}

void tst_SimulatedFaults::garbage_data()
{
    QTest::addColumn<QString>("model");

    QTest::newRow("serial") << serialModel;
    QTest::newRow("TCP") << tcpModel;
}

void tst_SimulatedFaults::garbage()
{
    QFETCH(const QString, model);
    Desk desk(model);
    QVERIFY(desk.start(u"garbage"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.console().click("radioButton_Data_Hex"));
    QVERIFY(desk.plays());
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), QStringList{desk.play()}, Desk::timeLimit);
    QVERIFY(desk.showsReceived(u" 00 80 FF FE 7F 4F 4B 20 50 6C 61 79 0D 0A"
                               " C3 28 F0 9F 1B 5B 32 4A E2 82"_s));
    QVERIFY(desk.clear());

    QVERIFY(desk.console().click("radioButton_Data_ASCII"));
    QVERIFY(desk.stops());
    QVERIFY(desk.showsReceived(
        u'\0' + u"\uFFFD\uFFFD\uFFFD\u007FOK Stop\n\uFFFD(\uFFFD\uFFFD\u001B[2J\uFFFD\uFFFD"_s));
    QVERIFY(desk.showsSent(Desk::sentBytes(desk.stop())));
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
}

void tst_SimulatedFaults::hangUp_data()
{
    garbage_data();
    QTest::newRow("on demand") << onDemandModel;
}

void tst_SimulatedFaults::hangUp()
{
    QFETCH(const QString, model);
    Desk desk(model);
    QVERIFY(desk.start(u"hang-up"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.plays());
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), QStringList{desk.play()}, Desk::timeLimit);
    QVERIFY(desk.isDisconnected());
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.connectLink());
    QVERIFY(desk.showsReceived(u"OK P"_s));
    QVERIFY(desk.stops());
    const QStringList frames{desk.play(), desk.stop()};
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), frames, Desk::timeLimit);
    QVERIFY(desk.isDisconnected());
    QVERIFY(desk.connectLink());
    QVERIFY(desk.showsReceived(u"OK POK S"_s));
    QVERIFY(desk.showsSent(Desk::sentBytes(desk.stop())));

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), frames);
}

void tst_SimulatedFaults::megabyte_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("count");

    // Long lines: the time to show a text grows with their number.
    const QString request = u"Get the list of subtitles"_s;
    const QString list = request + ": 0 eng, 1 fre, 2 ger, 3 spa; selected: off\n"_L1;
    const QString source = u"PLAYLIST folder (Sequential + Reset)"_s;
    QTest::newRow("serial") << serialModel << request << list << 1;
    QTest::newRow("TCP") << tcpModel << request << list << 2;
    QTest::newRow("on demand") << onDemandModel << source << "OK "_L1 + source + " 1\n"_L1 << 1;
}

/// \a label of the command that is answered with a megabyte
/// \a count how many times it is sent
void tst_SimulatedFaults::megabyte()
{
    QFETCH(const QString, model);
    QFETCH(const QString, label);
    QFETCH(const QString, line);
    QFETCH(const int, count);
    const ModelSheet &sheet = sheetOf(model);
    const QList<UserMove> moves = choosingMoves(sheet);
    const auto move = std::ranges::find_if(
        moves, [&](const UserMove &each) { return each.frame.command.label == label; });
    QVERIFY(move != moves.cend());
    Desk desk(sheet);
    QVERIFY(desk.start(u"megabyte"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.choose(*move));
    QStringList frames;
    for (int i = 0; i < count; ++i) {
        QVERIFY(desk.console().click(move->input.toLatin1()));
        frames.append(logLine(sheet, move->frame, 0));
        QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), frames, Desk::timeLimit);
    }
    // The window goes on working meanwhile. The command is for another player, which does not add
    // to the answers.
    if (sheet.hasPlayerIds()) {
        QVERIFY(desk.console().choose("comboBox_ID", u"3"_s));
        QVERIFY(desk.console().click("pushButton_Stop"));
        frames.append(u"%1 | ID 3 | 83 02 02 | Stop (for another player, not obeyed)"_s.arg(model));
        QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), frames, Desk::timeLimit);
    }

    // A megabyte on the link has one byte more for each line, and its last line is cut.
    constexpr qsizetype size = 1'048'576;
    const qsizetype lines = size / (line.size() + 1);
    const QString received = line.repeated(lines) + line.first(size % (line.size() + 1));
    QVERIFY(desk.showsReceived(received.repeated(count), floodLimit));
    QVERIFY(desk.showsSent(Desk::sentBytes(frames.last())));
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.clear());
    QVERIFY(desk.console().looksAsExpected("textEdit_Data"));

    desk.expectSent(frames.last());
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), frames);
}

/// An image that a device names may be anything on this computer: opening a pipe that nobody
/// writes to would never end.
void tst_SimulatedFaults::markupOpensNoFile()
{
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(u"pipe"_s));
    QCOMPARE(::mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    TcpPeer peer(65079);
    Desk desk(tcpModel);
    QVERIFY(desk.startConsole());
    QVERIFY(desk.connectLink());
    QTRY_VERIFY(peer.isConnected());

    peer.send("<b>OK</b><img src=\"file://" + pipe + "\">");
    QVERIFY(desk.showsReceived(u"OK\uFFFC"_s));
    QVERIFY(desk.console().press({u"XF86AudioStop"_s}));
    QTRY_COMPARE_WITH_TIMEOUT(peer.received(), "\x80\x02\x02"_ba, Desk::timeLimit);
    QVERIFY(desk.quit());
}

/// A serial line opens whether or not the device listens; what was sent too early is lost.
void tst_SimulatedFaults::deafSerialLine()
{
    Desk desk(serialModel);
    QVERIFY(desk.startConsole());
    QElapsedTimer sinceStart;
    QVERIFY(desk.startSimulator(u"refuse"_s));
    sinceStart.start();

    QVERIFY(desk.connectLink());
    QVERIFY(desk.plays());
    QCOMPARE_LT(sinceStart.elapsed(), outage);
    QVERIFY(desk.showsSent(Desk::sentBytes(desk.play())));
    QTRY_VERIFY(sinceStart.hasExpired(outage + tolerance));
    QCOMPARE(desk.frames(), QStringList());

    QVERIFY(desk.stops());
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), QStringList{desk.stop()}, Desk::timeLimit);
    QVERIFY(desk.showsReceived(u"OK Stop\n"_s));
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
}

void tst_SimulatedFaults::refusedConnection()
{
    Desk desk(tcpModel);
    QVERIFY(desk.startConsole());
    QVERIFY(desk.startSimulator(u"refuse"_s));

    // The refusal is silent, so that the window waits until the attempt's time is up.
    QElapsedTimer sinceClick;
    sinceClick.start();
    QVERIFY(desk.console().click("pushButton_Connect"));
    desk.console().expectConnecting();
    QVERIFY(desk.console().looksAsExpected());
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.isDisconnected());
    QCOMPARE_GT(sinceClick.elapsed(), 9000);
    QCOMPARE_LT(sinceClick.elapsed(), 20'000);

    QVERIFY(desk.connectLink());
    QVERIFY(desk.plays());
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), QStringList{desk.play()}, Desk::timeLimit);
    QVERIFY(desk.showsReceived(u"OK Play\n"_s));

    // The device is not reached again at once; the window can be closed meanwhile.
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.console().click("pushButton_Connect"));
    desk.console().expectConnecting();
    QVERIFY(desk.console().looksAsExpected());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), QStringList{desk.play()});
}

/// What is sent to a device that refuses the connection is lost without a word.
void tst_SimulatedFaults::refusedCommand()
{
    Desk desk(onDemandModel);
    QVERIFY(desk.startConsole());
    QElapsedTimer sinceStart;
    QVERIFY(desk.startSimulator(u"refuse"_s));
    sinceStart.start();

    QVERIFY(desk.plays());
    QCOMPARE_LT(sinceStart.elapsed(), outage);
    QVERIFY(desk.showsSent(Desk::sentBytes(desk.play())));
    QVERIFY(desk.saveScreenshot());
    QTRY_VERIFY(sinceStart.hasExpired(outage + tolerance));
    QCOMPARE(desk.frames(), QStringList());

    QVERIFY(desk.stops());
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), QStringList{desk.stop()}, Desk::timeLimit);
    QVERIFY(desk.showsReceived(u"OK Stop\n"_s));
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), QStringList{desk.stop()});
}

TESSALY_PROGRAM_TEST(tst_SimulatedFaults)
#include "tst_simulatedfaults.moc"
