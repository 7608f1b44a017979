// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/program/usermoves.h"
#include "tests/support/consoleprogram.h"
#include "tests/support/programtestmain.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QLabel>
#include <QMap>

#include <limits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int defaultCommandCount = 1000; // about two rounds over all models
constexpr int highestCommandCount = 100'000'000;
constexpr int timeLimit = 20'000; // in ms; reached only by what fails
#ifdef TESSALY_SANITIZED
// The sanitizer keeps what was freed, and books on all of it. It looks for leaks at the end.
constexpr int growthLimit = std::numeric_limits<int>::max();
#else
constexpr int growthLimit = 2048; // in KiB
#endif

/// What a process has for itself, in KiB. Pages of files are left out: how many of those are
/// counted depends on who else uses them.
int memoryOf(qint64 process)
{
    QFile file(u"/proc/%1/smaps_rollup"_s.arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    int sum = 0;
    int found = 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (!line.startsWith("Pss_Anon:") && !line.startsWith("Pss_Shmem:"))
            continue;
        sum += line.simplified().split(' ').at(1).toInt();
        ++found;
    }
    return found == 2 ? sum : -1;
}

} // namespace

/// The built console, used for long: it visits one model after the other, connects, sends frames of
/// the sheet, and disconnects.
class tst_Soak : public QObject
{
    Q_OBJECT

public:
    explicit tst_Soak(int commandCount)
        : m_commandCount(commandCount)
    {
    }

private slots:
    void sendsTheSameAndKeepsNothing();

private:
    void visit(const ModelSheet &sheet, int round);
    void chooseLink(const ModelSheet &sheet);
    void operate(const ModelSheet &sheet, const QList<UserMove> &moves);
    void expect(const ModelSheet &sheet, const QList<UserMove> &moves);
    QByteArray received();
    QByteArray takeReceived();
    bool nobodyReceives();

    const int m_commandCount;
    int m_sent = 0;
    int m_visits = 0;
    bool m_hasAddress = false;
    int m_playerId = 0; ///< that the window shows

    PtyPeer m_ports[2];
    QMap<quint16, std::shared_ptr<TcpPeer>> m_players; ///< by their TCP ports
    PtyPeer *m_port = nullptr;                         ///< of this visit; none: TCP
    TcpPeer *m_tcp = nullptr;                          ///< of this visit; none: serial
    ConsoleProgram m_console{m_ports[0].portName() + u':' + m_ports[1].portName()};
};

QByteArray tst_Soak::received()
{
    return m_port ? m_port->received() : m_tcp->received();
}

QByteArray tst_Soak::takeReceived()
{
    return m_port ? m_port->takeReceived() : m_tcp->takeReceived();
}

bool tst_Soak::nobodyReceives()
{
    return m_ports[0].received().isEmpty() && m_ports[1].received().isEmpty()
           && std::ranges::all_of(m_players, [](const std::shared_ptr<TcpPeer> &player) {
                  return player->received().isEmpty();
              });
}

void tst_Soak::expect(const ModelSheet &sheet, const QList<UserMove> &moves)
{
    QByteArray expected;
    QByteArray last;
    for (const UserMove &move : moves) {
        last = sheet.addressed(move.frame.bytes, m_playerId);
        expected += last;
        if (move.frame.command.id == 9)
            m_console.twin<QLabel>("label_Volume_2")->setText(move.frame.value);
    }
    const bool allArrived
        = QTest::qWaitFor([&] { return received().size() >= expected.size(); }, timeLimit);
    QCOMPARE(hexBytes(takeReceived()), hexBytes(expected));
    QVERIFY(allArrived);
    m_console.twin<QLabel>("label_Bytes_Sended")->setText(QLatin1String(hexBytes(last)));
    m_sent += static_cast<int>(moves.size());

    // The device's next command would be written twice while this connection is there.
    if (sheet.connectsOnDemand()) {
        QTRY_VERIFY_WITH_TIMEOUT(m_tcp->isConnected(), timeLimit);
        m_tcp->stopSending();
        QTRY_VERIFY_WITH_TIMEOUT(!m_tcp->isConnected(), timeLimit);
    }
}

/// Makes moves that need no more choices.
void tst_Soak::operate(const ModelSheet &sheet, const QList<UserMove> &moves)
{
    QStringList inputs;
    for (const UserMove &move : moves)
        inputs.append(move.input);
    QVERIFY(m_console.perform(inputs));
    expect(sheet, moves);
}

void tst_Soak::chooseLink(const ModelSheet &sheet)
{
    m_port = nullptr;
    m_tcp = nullptr;
    if (!sheet.isTcp) {
        m_port = &m_ports[m_visits % 2];
        QVERIFY(m_console.choose("comboBox_Port", m_port->portName()));
        return;
    }
    std::shared_ptr<TcpPeer> &player = m_players[sheet.tcpPort];
    if (!player)
        player = std::make_shared<TcpPeer>(sheet.tcpPort);
    m_tcp = player.get();
    // It stays, whichever model is chosen.
    if (!m_hasAddress)
        QVERIFY(m_console.typeAddress(TcpPeer::address().toString()));
    m_hasAddress = true;
}

void tst_Soak::visit(const ModelSheet &sheet, int round)
{
    const QList<int> players = sheet.playerIdSamples();
    m_playerId = players.at((round + m_visits) % players.size());
    ++m_visits;

    QVERIFY(m_console.choose("comboBox_Player", sheet.name));
    chooseLink(sheet);
    if (QTest::currentTestFailed())
        return;
    if (!sheet.connectsOnDemand()) {
        QVERIFY(m_console.click("pushButton_Connect"));
        m_console.expectLink(true);
    }
    if (sheet.hasPlayerIds())
        QVERIFY(m_console.choose("comboBox_ID", QString::number(m_playerId)));

    // Twice in a go; but where each command has a connection of its own, the next one waits for the
    // end of that.
    QList<UserMove> moves = plainMoves(sheet);
    if (!sheet.connectsOnDemand())
        moves += moves;
    const qsizetype atOnce = sheet.connectsOnDemand() ? 1 : moves.size();
    for (qsizetype i = 0; i < moves.size() && !QTest::currentTestFailed(); i += atOnce)
        operate(sheet, moves.sliced(i, atOnce));
    // Two of the lists' rows, others in each round.
    const QList<UserMove> choosing = choosingMoves(sheet);
    for (int i = 0; i < 2 && !choosing.isEmpty() && !QTest::currentTestFailed(); ++i) {
        const UserMove &move = choosing.at((2 * round + i) % choosing.size());
        for (const UserMove::Choice &choice : move.choices)
            QVERIFY(m_console.choose(choice.list.constData(), choice.text));
        operate(sheet, {move});
    }
    if (QTest::currentTestFailed() || sheet.connectsOnDemand())
        return;

    const QByteArray answer = QByteArray("OK\r\n").repeated(100);
    if (m_port)
        QVERIFY(m_port->send(answer));
    else
        m_tcp->send(answer);
    QVERIFY(m_console.click("pushButton_Clear"));
    QVERIFY(m_console.click("pushButton_Disconnect"));
    m_console.expectLink(false);
}

void tst_Soak::sendsTheSameAndKeepsNothing()
{
    QVERIFY(m_console.start());
    QElapsedTimer timer;
    timer.start();
    int first = 0;
    int last = 0;
    int nextReport = 0;
    for (int round = 0; m_sent < m_commandCount; ++round) {
        for (const ModelSheet &sheet : modelSheets()) {
            const int sentBefore = m_sent;
            visit(sheet, round);
            if (QTest::currentTestFailed()) {
                qWarning() << "round" << round << sheet.name << "after" << m_sent << "commands";
                return;
            }
            QVERIFY(m_sent > sentBefore);
        }
        QVERIFY(m_console.looksAsExpected());
        QVERIFY(nobodyReceives());

        // Before all models have been there, the program is not warm yet.
        last = memoryOf(m_console.processId());
        QVERIFY(last > 0);
        if (first == 0 && m_sent >= m_commandCount / 10)
            first = last;
        if (m_sent >= nextReport) {
            qInfo("%d commands in %d visits, %d s: %d KiB", m_sent, m_visits,
                  static_cast<int>(timer.elapsed() / 1000), last);
            nextReport += m_commandCount / 10;
        }
    }
    const int growth = last - first;
    qInfo("%d commands in %d visits, %d s: %d KiB, which is %d KiB more than after the first tenth",
          m_sent, m_visits, static_cast<int>(timer.elapsed() / 1000), last, growth);
    QVERIFY2(growth < growthLimit, qPrintable(u"memory grew by %1 KiB"_s.arg(growth)));

    QVERIFY(m_console.press({u"ctrl+q"_s}));
    QVERIFY(m_console.endsWell());
    QVERIFY(nobodyReceives());
}

namespace {

/// A number as the first argument is the minimum number of commands to send.
int runSoakTest(int argc, char *argv[])
{
    VirtualScreen screen;
    if (!prepareProgramTest(screen))
        return 1;
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    int commandCount = defaultCommandCount;
    bool isNumber = false;
    const int number = arguments.value(1).toInt(&isNumber);
    if (isNumber) {
        commandCount = qBound(1, number, highestCommandCount);
        arguments.removeAt(1);
    }
    // Five minutes are what Qt gives a test otherwise.
    qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(std::numeric_limits<int>::max()));
    tst_Soak test(commandCount);
    return QTest::qExec(&test, arguments);
}

} // namespace

TESSALY_REGISTER_TEST(tst_Soak, runSoakTest)

#include "tst_soak.moc"
