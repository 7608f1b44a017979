// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consoleprogram.h"
#include "tests/support/folders.h"
#include "tests/support/programtestmain.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QHostAddress>
#include <QLabel>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int defaultCommandCount = 1000; // about three rounds over all models
constexpr int highestCommandCount = 100'000'000;
constexpr int timeLimit = 20'000; // in ms; reached only by what fails
#ifdef __SANITIZE_ADDRESS__
// The sanitizer keeps what was freed, and books on all of it. It looks for leaks at the end.
constexpr int growthLimit = std::numeric_limits<int>::max();
#else
constexpr int growthLimit = 2048; // in KiB
#endif

enum class Link { Serial, Tcp, OnDemand };

struct Model
{
    QString name;
    Link link;
    QString commandsFile; ///< in the golden folder "commands"
    QString requestsFile; ///< in the golden folder "requests"
};

const QList<Model> &models()
{
    static const QList<Model> all{
        {u"Tempo Deck"_s, Link::Serial, u"00_tempo_deck"_s, u"tempo_deck"_s},
        {u"Show Deck (Gen 2)"_s, Link::Serial, u"01_show_deck_gen_2"_s, u"show_deck_gen2"_s},
        {u"Vistar Show - SV500 (Serial)"_s, Link::Serial, u"02_vistar_show_sv500_serial"_s,
         u"vistar_show_serial"_s},
        {u"Vistar Show - SV500 (TCP/IP)"_s, Link::Tcp, u"03_vistar_show_sv500_tcp_ip"_s,
         u"vistar_show_tcp"_s},
        {u"Ampra One"_s, Link::Serial, u"04_ampra_one"_s, u"ampra_one"_s},
        {u"Pico Deck Gen 2/3"_s, Link::Serial, u"05_pico_deck_gen_2_3"_s, u"pico_deck_gen23"_s},
        {u"Sonet A (Serial)"_s, Link::Serial, u"06_sonet_a_serial"_s, u"sonet_a_serial"_s},
        {u"Sonet A Lite (TCP/IP)"_s, Link::OnDemand, u"07_sonet_a_lite_tcp_ip"_s,
         u"sonet_a_lite_tcp"_s},
        {u"Vistar Home - HV4xx (Serial)"_s, Link::Serial, u"08_vistar_home_hv4xx_serial"_s,
         u"vistar_home_serial"_s},
        {u"Vistar Home - HV4xx (TCP/IP)"_s, Link::Tcp, u"09_vistar_home_hv4xx_tcp_ip"_s,
         u"vistar_home_tcp"_s},
        {u"HV1xx (Serial) (legacy)"_s, Link::Serial, u"10_hv1xx_serial_legacy"_s,
         u"hv1xx_serial"_s},
        {u"HV1xx (TCP/IP) (legacy)"_s, Link::Tcp, u"11_hv1xx_tcp_ip_legacy"_s, u"hv1xx_tcp"_s},
        {u"Pico Deck (legacy)"_s, Link::Serial, u"12_pico_deck_legacy"_s, u"pico_deck_legacy"_s},
        {u"Card Deck HD (legacy)"_s, Link::Serial, u"13_card_deck_hd_legacy"_s, u"card_deck_hd"_s},
        {u"HV0xx (legacy)"_s, Link::Serial, u"14_hv0xx_legacy"_s, u"hv0xx"_s},
    };
    return all;
}

/// What one move of the user sends.
struct Command
{
    QString list; ///< where `text` is chosen first; empty: nowhere
    QString text;
    QString move;   ///< the button to click or, as xdotool names it, the key to press
    QString bytes;  ///< "80 02 01"; empty: none
    QString volume; ///< what the volume's label reads from now on; empty: what it did before
};

/// What a player gets in one visit, from a state that the visit itself restores.
struct Programme
{
    QString playerId;
    QList<Command> moves;   ///< to be made one after the other, in this order
    QList<Command> choices; ///< to be made behind them, in any order
};

QString keyName(const QString &control)
{
    static const QHash<QString, QString> names{
        {u"Ctrl++"_s, u"ctrl+plus"_s},
        {u"Ctrl+-"_s, u"ctrl+minus"_s},
        {u"Media Play"_s, u"XF86AudioPlay"_s},
        {u"Media Stop"_s, u"XF86AudioStop"_s},
        {u"Media Pause"_s, u"XF86AudioPause"_s},
        {u"Media Next"_s, u"XF86AudioNext"_s},
        {u"Media Previous"_s, u"XF86AudioPrev"_s},
        {u"Ctrl+Media Next"_s, u"ctrl+XF86AudioNext"_s},
        {u"Ctrl+Media Previous"_s, u"ctrl+XF86AudioPrev"_s},
        {u"Volume Mute"_s, u"XF86AudioMute"_s},
    };
    return names.value(control, control.toLower());
}

/// The columns of each line that is neither empty nor a comment.
QList<QStringList> readColumns(const QString &name)
{
    QFile file(sourcePath("tests/protocol/golden/"_L1 + name + ".txt"_L1));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    QList<QStringList> lines;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        QStringList columns = line.split(u" | "_s);
        for (QString &column : columns) {
            column = column.trimmed();
            if (column == "-"_L1)
                column.clear();
        }
        lines.append(columns);
    }
    return lines;
}

/// "model | player ID | control or key | bytes | volume", see tst_commands. The slider is not
/// drawn, so what a key adds to the volume drawn before is left out.
QList<Programme> readCommands(const QString &name)
{
    QList<Programme> programmes;
    bool isDrawn = false;
    for (const QStringList &line : readColumns("commands/"_L1 + name)) {
        if (programmes.isEmpty() || programmes.constLast().playerId != line.at(1)) {
            programmes.append({line.at(1), {}, {}});
            isDrawn = false;
        }
        Programme &programme = programmes.last();
        const QString &control = line.at(2);
        const QString &bytes = line.at(3);
        const QStringList choice = control.split(u" = "_s);
        if (control.startsWith("horizontalSlider_"_L1))
            isDrawn = true;
        else if (choice.size() == 2)
            programme.choices.append({choice.first(),
                                      choice.last(),
                                      "pushButton"_L1 + choice.first().sliced(8),
                                      bytes,
                                      {}});
        else if (control.startsWith("on_"_L1)) // has neither button nor key
            continue;
        else if (control.startsWith("pushButton_"_L1)) {
            isDrawn = false;
            programme.moves.append({{}, {}, control, bytes, line.value(4)});
        } else if (!isDrawn) {
            programme.moves.append({{}, {}, keyName(control), bytes, line.value(4)});
        }
    }
    return programmes;
}

/// "list | label | reference | option | web radio | bytes". What needs further choices is left out,
/// and so is what sends the time of day.
QList<Command> readRequests(const QString &name)
{
    static const QHash<QString, std::pair<QString, QString>> widgets{
        {u"request"_s, {u"comboBox_Request"_s, u"pushButton_Request"_s}},
        {u"other"_s, {u"comboBox_Other_Command"_s, u"pushButton_Other_Command"_s}},
        {u"source"_s, {u"comboBox_Source_Of_Playback"_s, u"pushButton_Launch_Playback"_s}},
    };
    QList<Command> commands;
    for (const QStringList &line : readColumns("requests/"_L1 + name)) {
        const QString &label = line.at(1);
        const bool isClock = label.startsWith("Set time"_L1) || label.startsWith("Set date"_L1)
                             || label.startsWith("Set UTC"_L1);
        const bool isAlone = line.at(2).isEmpty() && line.at(3).isEmpty() && line.at(4).isEmpty();
        if (isClock || !isAlone)
            continue;
        const auto [list, button] = widgets.value(line.at(0));
        commands.append({list, label, button, line.at(5), {}});
    }
    return commands;
}

/// The player that the lists of requests are written for.
bool isPlayerOfRequests(const Programme &programme, const Model &model)
{
    return model.link != Link::Serial || model.name == "Sonet A (Serial)"_L1
           || programme.playerId == "5"_L1;
}

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

/// The built console, used for long: it visits one model after the other, connects, sends what the
/// golden files list, and disconnects.
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
    void visit(const Model &model, int round);
    void chooseLink(const Model &model);
    void operate(const QList<Command> &moves);
    void choose(const Command &choice);
    void expect(const QList<Command> &sent);
    QByteArray received();
    QByteArray takeReceived();
    bool nobodyReceives();

    const int m_commandCount;
    int m_sent = 0;
    int m_visits = 0;
    bool m_hasAddress = false;

    PtyPeer m_ports[2];
    TcpPeer m_player{65079};
    TcpPeer m_onDemandPlayer{1234};
    PtyPeer *m_port = nullptr; ///< of this visit; none: TCP
    TcpPeer *m_tcp = nullptr;  ///< of this visit; none: serial
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
           && m_player.received().isEmpty() && m_onDemandPlayer.received().isEmpty();
}

void tst_Soak::expect(const QList<Command> &sent)
{
    QStringList bytes;
    for (const Command &command : sent) {
        if (!command.volume.isEmpty())
            m_console.twin<QLabel>("label_Volume_2")->setText(command.volume);
        if (!command.bytes.isEmpty())
            bytes.append(command.bytes);
    }
    if (bytes.isEmpty())
        return;
    const QString expected = bytes.join(u' ');
    const qsizetype size = (expected.size() + 1) / 3;
    const bool allArrived = QTest::qWaitFor([&] { return received().size() >= size; }, timeLimit);
    QCOMPARE(QString::fromLatin1(takeReceived().toHex(' ').toUpper()), expected);
    QVERIFY(allArrived);
    m_console.twin<QLabel>("label_Bytes_Sended")->setText(bytes.constLast());
    m_sent += static_cast<int>(bytes.size());

    // Its next command would be written twice while this connection is there.
    if (m_tcp == &m_onDemandPlayer) {
        QTRY_VERIFY(m_tcp->isConnected());
        m_tcp->stopSending();
        QTRY_VERIFY_WITH_TIMEOUT(!m_tcp->isConnected(), timeLimit);
    }
}

void tst_Soak::operate(const QList<Command> &moves)
{
    QStringList inputs;
    for (const Command &command : moves)
        inputs.append(command.move);
    QVERIFY(m_console.perform(inputs));
    expect(moves);
}

void tst_Soak::choose(const Command &choice)
{
    const QByteArray list = choice.list.toLatin1();
    QVERIFY(m_console.choose(list.constData(), choice.text));
    operate({choice});
}

void tst_Soak::chooseLink(const Model &model)
{
    m_port = nullptr;
    m_tcp = nullptr;
    if (model.link == Link::Serial) {
        m_port = &m_ports[m_visits % 2];
        QVERIFY(m_console.choose("comboBox_Port", m_port->portName()));
        return;
    }
    m_tcp = model.link == Link::OnDemand ? &m_onDemandPlayer : &m_player;
    // It stays, whichever model is chosen.
    if (!m_hasAddress)
        QVERIFY(m_console.typeAddress(TcpPeer::address().toString()));
    m_hasAddress = true;
}

void tst_Soak::visit(const Model &model, int round)
{
    const QList<Programme> programmes = readCommands(model.commandsFile);
    const Programme &programme = programmes.at((round + m_visits) % programmes.size());
    const bool isOnDemand = model.link == Link::OnDemand;
    ++m_visits;

    QVERIFY(m_console.choose("comboBox_Player", model.name));
    chooseLink(model);
    if (QTest::currentTestFailed())
        return;
    if (!isOnDemand) {
        QVERIFY(m_console.click("pushButton_Connect"));
        m_console.expectLink(true);
    }
    if (programmes.size() > 1)
        QVERIFY(m_console.choose("comboBox_ID", programme.playerId));

    // Where each command has a connection of its own, the next one waits for the end of that.
    if (isOnDemand) {
        for (const Command &command : programme.moves) {
            operate({command});
            if (QTest::currentTestFailed())
                return;
        }
    } else {
        operate(programme.moves);
    }
    QList<QList<Command>> lists{programme.choices};
    if (isPlayerOfRequests(programme, model))
        lists.append(readRequests(model.requestsFile));
    for (const QList<Command> &list : std::as_const(lists)) {
        if (QTest::currentTestFailed())
            return;
        if (!list.isEmpty())
            choose(list.at(round % list.size()));
    }
    if (QTest::currentTestFailed() || isOnDemand)
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
        for (const Model &model : models()) {
            const int sentBefore = m_sent;
            visit(model, round);
            if (QTest::currentTestFailed()) {
                qWarning() << "round" << round << model.name << "after" << m_sent << "commands";
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

/// A number as the first argument is the least number of commands to send.
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
