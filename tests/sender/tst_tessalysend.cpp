// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/support/filecontent.h"
#include "tests/support/folders.h"
#include "tests/support/hexbytes.h"
#include "tests/support/modelsheets.h"
#include "tests/support/ptypeer.h"
#include "tests/support/senderprogram.h"
#include "tests/support/simulatorprogram.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <array>
#include <memory>

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/capability.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString deck = u"Tempo Deck"_s;
const QString video = u"Vistar Show - SV500 (TCP/IP)"_s;
const QString lite = u"Sonet A Lite (TCP/IP)"_s;

constexpr quint16 videoPort = 65079;
constexpr quint16 litePort = 1234;

QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
}

QStringList toDeck(const PtyPeer &peer)
{
    return {u"--model"_s, deck, u"--id=5"_s, u"--port"_s, peer.portName()};
}

QStringList toVideo()
{
    return {u"--model"_s, video, u"--host"_s, TcpPeer::address().toString()};
}

QStringList toLite()
{
    return {u"--model"_s, lite, u"--host"_s, TcpPeer::address().toString()};
}

/// A listening socket with room for one connection that nobody has accepted yet.
class Listener
{
public:
    explicit Listener(quint16 port)
        : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        m_address.sin_family = AF_INET;
        m_address.sin_port = htons(port);
        m_address.sin_addr.s_addr = htonl(TcpPeer::address().toIPv4Address());
        const int on = 1;
        ::setsockopt(m_socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        if (::bind(m_socket, where(), sizeof m_address) != 0 || ::listen(m_socket, 0) != 0)
            qFatal("cannot listen");
    }
    ~Listener() { ::close(m_socket); }
    Q_DISABLE_COPY_MOVE(Listener)

    int accept() const { return ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC); }
    int connectToIt() const
    {
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (::connect(socket, where(), sizeof m_address) != 0)
            qFatal("cannot connect");
        return socket;
    }

private:
    const sockaddr *where() const { return reinterpret_cast<const sockaddr *>(&m_address); }

    int m_socket;
    sockaddr_in m_address{};
};

/// A device in the network that reads no byte until it is told to, and has little room for them.
class LazyDevice
{
public:
    explicit LazyDevice(quint16 port)
    {
        m_server.listen(TcpPeer::address(), port);
        const int size = 4096;
        ::setsockopt(static_cast<int>(m_server.socketDescriptor()), SOL_SOCKET, SO_RCVBUF, &size,
                     sizeof size);
    }

    bool isConnected() { return m_socket || (m_socket = accepted()); }
    QTcpSocket *socket() const { return m_socket; }

    /// Everything that is there, when the event loop has run.
    QByteArray read()
    {
        if (isConnected())
            m_received += m_socket->readAll();
        return m_received;
    }

private:
    QTcpSocket *accepted()
    {
        QTcpSocket *socket = m_server.nextPendingConnection();
        if (socket)
            socket->setReadBufferSize(1);
        return socket;
    }

    QTcpServer m_server;
    QTcpSocket *m_socket = nullptr;
    QByteArray m_received;
};

/// Whether the bytes are complete frames of that kind and nothing else.
bool areFrames(const QByteArray &received, const QByteArray &frame)
{
    return !received.isEmpty() && received == frame.repeated(received.size() / frame.size());
}

} // namespace

/// The built program with peers of the test's own.
class tst_TessalySend : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void serial();
    void network();
    void dryRunOpensNothing();
    void clock();
    void printsHelpAndLists();
    void rejects_data();
    void rejects();

    void scriptFromFile();
    void scriptIsCheckedFirst();
    void scriptThatCannotBeRead_data();
    void scriptThatCannotBeRead();
    void endlessScript();
    void thousandLines();
    void repeats();
    void gap();
    void noGap();
    void waitLines();

    void answer_data();
    void answer();
    void answerInPieces();
    void cutAnswer();
    void noAnswer();
    void earlierBytesAreNoAnswer();
    void greeting();
    void answersOfSeveralCommands();
    void log();
    void logThatCannotBeOpened();
    void fullLog();

    void connectedForEachCommand();
    void deviceThatKeepsTheConnection();
    void deviceThatIsNotThereAgain();
    void deviceLosesNothingAtTheEnd();

    void savedSettings();
    void noSavedSettings();

    void noSuchPort();
    void portWithoutPermission();
    void busyPort_data();
    void busyPort();
    void refused();
    void noConnectionInTime();
    void unknownHost();
    void slowNameLookup_data();
    void slowNameLookup();

    void serialDeviceVanishes();
    void networkDeviceHangsUp();
    void networkDeviceResets();
    void hangUpAtOnce();
    void hangUpAfterTheLastCommand();
    void frameThatDoesNotGetAway();
    void slowSerialDevice();
    void slowNetworkDevice();

    void signalBetweenFrames_data();
    void signalBetweenFrames();
    void ignoredSignal_data();
    void ignoredSignal();
    void signalWithinAFrame();
    void signalWhileConnecting();

    void readerGoesAway();
    void blockedReader();
    void fullOutput();
    void closedStreams();
    void closedOutput();
    void closedInput();

private:
    QTemporaryDir m_home;
};

void tst_TessalySend::initTestCase()
{
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
}

void tst_TessalySend::serial()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"folder"_s, u"200"_s}), 0);
    QCOMPARE(peer.received(), bytes("85 11 48"));
    QCOMPARE(sender.output(), QByteArray());
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::network()
{
    TcpPeer peer(videoPort);
    SenderProgram sender;
    QCOMPARE(sender.run(toVideo() + QStringList{u"volume"_s, u"40"_s}), 0);
    QTRY_COMPARE(peer.received(), bytes("80 03 28"));
    QCOMPARE(peer.connectionCount(), 1);
    QCOMPARE(sender.output(), QByteArray());
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::dryRunOpensNothing()
{
    PtyPeer peer;
    const QString log = m_home.filePath(u"dry.log"_s);
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer)
                        + QStringList{u"--dry-run"_s, u"--log"_s, log, u"folder"_s, u"200"_s}),
             0);
    QCOMPARE(sender.output(), "85 11 48\n"_ba);
    QCOMPARE(sender.run(toDeck(peer)
                            + QStringList{u"--dry-run"_s, u"--dec"_s, u"--repeat=2"_s,
                                          u"--script"_s, u"-"_s},
                        "folder 200\nwait 60000\nplay\n"),
             0);
    QCOMPARE(sender.output(), "133 17 72\n133 2 1\n133 17 72\n133 2 1\n"_ba);
    QCOMPARE(peer.received(), QByteArray());
    QVERIFY(!QFile::exists(log));
    // Without any link, too.
    QCOMPARE(sender.run(
                 {u"--dry-run"_s, u"--hex"_s, u"--model"_s, lite, u"request"_s, u"playlist-id"_s}),
             0);
    QCOMPARE(sender.output(), "02 00 00 00 67 65 74 00 50 6C 61 79 6C 69 73 74 49 44 00\n"_ba);
    QCOMPARE(sender.errors(), QByteArray());
}

/// Of the computer's time zone, which is written out here, so that no time zone data is needed.
void tst_TessalySend::clock()
{
    SenderProgram sender;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TZ"_s, u"XST-9:30"_s);
    sender.process().setProcessEnvironment(environment);
    const auto bytesOf = [](const QDateTime &time) {
        const QDate date = time.date();
        QByteArray bytes;
        for (const int number : {date.year() - 2000, date.month(), date.day(), time.time().hour(),
                                 time.time().minute(), time.time().second()})
            bytes += static_cast<char>(number);
        return hexBytes(bytes);
    };
    // The program looks at its clock within a second that the test knows.
    QDateTime now;
    do {
        now = QDateTime::currentDateTimeUtc();
        QCOMPARE(sender.run({u"--dry-run"_s, u"--model"_s, video, u"--script=-"_s},
                            "set-date/time\nset-utc/gmt-date/time-(full-version)\n"),
                 0);
    } while (QDateTime::currentSecsSinceEpoch() != now.toSecsSinceEpoch());
    QCOMPARE(sender.output(),
             "80 2C " + bytesOf(now.addSecs(34'200)) + "\n80 4C " + bytesOf(now) + '\n');
}

void tst_TessalySend::printsHelpAndLists()
{
    SenderProgram sender;
    QCOMPARE(sender.run({u"--help"_s}), 0);
    QVERIFY(sender.output().startsWith("Usage: "));
    QCOMPARE(sender.run({u"--version"_s}), 0);
    setApplicationIdentity();
    QCOMPARE(QString::fromUtf8(sender.output()),
             u"tessaly-send %1\n"_s.arg(QCoreApplication::applicationVersion()));
    QCOMPARE(sender.run({u"--list"_s}), 0);
    QCOMPARE(sender.output().count('\n'), modelSheets().size());
    QCOMPARE(sender.run({u"--list"_s, u"--model"_s, lite}), 0);
    QCOMPARE(sender.output().count('\n'), 1 + sheetOf(lite).commands.size());
    QCOMPARE(sender.run({u"--list"_s, u"--json"_s}), 0);
    QVERIFY(sender.output().startsWith("[\n"));
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::rejects_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QStringList &arguments, const char *error) {
        QTest::newRow(name) << arguments << QString::fromLatin1(error);
    };
    row("unknown command", {u"stopp"_s},
        "Tempo Deck has no command \"stopp\". Did you mean \"Stop\"? Try --help.");
    row("unknown option", {u"--loud"_s, u"play"_s}, "Unknown option 'loud'. Try --help.");
}

void tst_TessalySend::rejects()
{
    QFETCH(const QStringList, arguments);

    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(QStringList{u"--model"_s, deck, u"--port"_s, peer.portName()} + arguments),
             2);
    QTEST(sender.error(), "error");
    QCOMPARE(sender.output(), QByteArray());
    QCOMPARE(peer.received(), QByteArray());
}

void tst_TessalySend::scriptFromFile()
{
    const QString path = m_home.filePath(u"show.txt"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("# opening\nfolder 12   # the loop\nvolume 40\n\nnext file\n");
    file.close();
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--script"_s, path}), 0);
    QCOMPARE(peer.received(), bytes("85 01 0C 85 03 28 85 02 03"));
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::scriptIsCheckedFirst()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--script"_s, u"-"_s},
                        "play\nvolume 65\nstop\nstopp\n"),
             2);
    QCOMPARE(sender.errors(),
             "tessaly-send: standard input:2: Volume takes a number from 0 to 64, not \"65\".\n"
             "tessaly-send: standard input:4: Tempo Deck has no command \"stopp\". Did you mean "
             "\"Stop\"? Try --help.\n"_ba);
    QCOMPARE(peer.received(), QByteArray());
}

void tst_TessalySend::scriptThatCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");

    QTest::newRow("missing") << u"/no/such/script"_s
                             << u"/no/such/script: No such file or directory. Try --help."_s;
    QTest::newRow("a folder") << u"/"_s << u"/: file to open is a directory. Try --help."_s;
    QTest::newRow("empty") << u"/dev/null"_s
                           << u"/dev/null: There is no command in it. Try --help."_s;
}

void tst_TessalySend::scriptThatCannotBeRead()
{
    QFETCH(const QString, path);

    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--script"_s, path}), 2);
    QTEST(sender.error(), "error");
    QCOMPARE(peer.received(), QByteArray());
}

void tst_TessalySend::endlessScript()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--script"_s, u"/dev/zero"_s}), 2);
    QCOMPARE(sender.error(), u"/dev/zero: a script has 16 MiB at most. Try --help."_s);
}

void tst_TessalySend::thousandLines()
{
    QByteArray script;
    QByteArray expected;
    for (int i = 0; i < 1000; ++i) {
        script += "folder " + QByteArray::number(i) + '\n';
        expected += '\x85';
        expected += static_cast<char>(1 + 16 * (i / 128));
        expected += static_cast<char>(i % 128);
    }
    SimulatorProgram simulator;
    const QString port = m_home.filePath(u"deck"_s);
    QVERIFY(simulator.start({u"--model"_s, deck, u"--id=5"_s, u"--link"_s, port}));
    SenderProgram sender;
    QCOMPARE(sender.run({u"--model"_s, deck, u"--id=5"_s, u"--port"_s, port, u"--gap=0"_s,
                         u"--script"_s, u"-"_s},
                        script),
             0);
    QTRY_COMPARE(simulator.frames().size(), 1000);
    const QStringList frames = simulator.frames();
    QByteArray received;
    for (const QString &frame : frames)
        received += QByteArray::fromHex(frame.section(u'|', 2, 2).toLatin1());
    QCOMPARE(received, expected);
    QCOMPARE(frames.at(0), u"Tempo Deck | ID 5 | 85 01 00 | Folder 0"_s);
    QCOMPARE(frames.at(999), u"Tempo Deck | ID 5 | 85 71 67 | Folder 999"_s);
}

void tst_TessalySend::repeats()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(
        sender.run(toDeck(peer) + QStringList{u"--gap=1"_s, u"--repeat=3"_s, u"--script"_s, u"-"_s},
                   "play\nstop\n"),
        0);
    QCOMPARE(peer.received(), bytes("85 02 01 85 02 02 85 02 01 85 02 02 85 02 01 85 02 02"));
}

/// The program may be slower than asked for, but not faster.
void tst_TessalySend::gap()
{
    const QString log = m_home.filePath(u"gap.log"_s);
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--log"_s, log, u"--script"_s, u"-"_s},
                        QByteArray("play\n").repeated(4)),
             0);
    const QList<QByteArray> lines = contentOf(log).split('\n');
    QCOMPARE(lines.size(), 5);
    for (int i = 1; i < 4; ++i) {
        const auto time = [&lines](int line) {
            return QDateTime::fromString(QString::fromUtf8(lines.at(line).first(23)),
                                         Qt::ISODateWithMs);
        };
        QVERIFY(time(i).isValid());
        QVERIFY2(time(i - 1).msecsTo(time(i)) >= 50, lines.at(i).constData());
    }
}

void tst_TessalySend::noGap()
{
    PtyPeer peer;
    SenderProgram sender;
    // With the usual gap it would be half a minute, which is longer than run() waits.
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--gap=0"_s, u"--repeat=600"_s, u"play"_s}), 0);
    QCOMPARE(peer.received().size(), 1800);
}

void tst_TessalySend::waitLines()
{
    PtyPeer peer;
    SenderProgram sender;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--script"_s, u"-"_s},
                        "wait 100\nplay\nwait 200\nstop\nwait 150\n"),
             0);
    QVERIFY(clock.elapsed() >= 450);
    QCOMPARE(peer.received(), bytes("85 02 01 85 02 02"));
}

void tst_TessalySend::answer_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QByteArray>("printed");

    const QByteArray bytesOfAll("\x00\x41\xFF\x0A", 4);
    QTest::newRow("text") << u"--text"_s << "Playing \xC3\xA9\r\n"_ba
                          << "Playing \xC3\xA9\r\n"_ba;
    QTest::newRow("a line end is added") << u"--text"_s << "Playing"_ba
                                         << "Playing\n"_ba;
    QTest::newRow("bytes that are no text") << u"--text"_s << "a\xFF\x62"_ba
                                            << "a\xEF\xBF\xBD\x62\n"_ba;
    QTest::newRow("hexadecimal") << u"--hex"_s << bytesOfAll << "00 41 FF 0A\n"_ba;
    QTest::newRow("decimal") << u"--dec"_s << bytesOfAll << "0 65 255 10\n"_ba;
}

void tst_TessalySend::answer()
{
    QFETCH(const QString, form);
    QFETCH(const QByteArray, answer);

    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(toDeck(peer) + QStringList{form, u"--wait=2000"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    QVERIFY(peer.send(answer));
    QCOMPARE(sender.waitForEnd(), 0);
    QTEST(sender.output(), "printed");
    QCOMPARE(sender.errors(), QByteArray());
}

/// A character may be cut in two, and a line of numbers goes on.
void tst_TessalySend::answerInPieces()
{
    for (const auto &[form, printed] :
         {std::pair{u"--text"_s, "\xC3\xA9\n"_ba}, std::pair{u"--dec"_s, "195 169\n"_ba}}) {
        PtyPeer peer;
        const QString log = m_home.filePath("pieces"_L1 + form);
        SenderProgram sender;
        QVERIFY(sender.start(toDeck(peer)
                             + QStringList{form, u"--wait=3000"_s, u"--log"_s, log, u"play"_s}));
        QTRY_COMPARE(peer.received(), bytes("85 02 01"));
        QVERIFY(peer.send("\xC3"));
        QTRY_VERIFY(contentOf(log).contains("received"));
        QVERIFY(peer.send("\xA9"));
        QCOMPARE(sender.waitForEnd(), 0);
        QCOMPARE(sender.output(), printed);
    }
}

/// What is left of one answer must not go into the next.
void tst_TessalySend::cutAnswer()
{
    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(toDeck(peer) + QStringList{u"--wait=2000"_s, u"--repeat=2"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    QVERIFY(peer.send("a\xC3"));
    QTRY_COMPARE(peer.received(), bytes("85 02 01 85 02 01"));
    QVERIFY(peer.send("\xA9"));
    QCOMPARE(sender.waitForEnd(), 0);
    QCOMPARE(sender.output(), "a\xEF\xBF\xBD\n\xEF\xBF\xBD\n"_ba);
}

void tst_TessalySend::noAnswer()
{
    PtyPeer peer;
    SenderProgram sender;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--wait=200"_s, u"play"_s}), 1);
    QVERIFY(clock.elapsed() >= 200);
    QCOMPARE(peer.received(), bytes("85 02 01"));
    QCOMPARE(sender.output(), QByteArray());
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::earlierBytesAreNoAnswer()
{
    PtyPeer peer;
    // Somebody else has the line open, so that what arrives is kept.
    const int other = ::open(peer.portName().toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
    QVERIFY(other >= 0);
    QVERIFY(peer.send("noise\n"));
    SenderProgram sender;
    const int status = sender.run(toDeck(peer) + QStringList{u"--wait=200"_s, u"play"_s});
    ::close(other);
    QCOMPARE(status, 1);
    QCOMPARE(sender.output(), QByteArray());
}

void tst_TessalySend::greeting()
{
    TcpPeer peer(videoPort);
    SenderProgram sender;
    QVERIFY(sender.start(toVideo() + QStringList{u"--wait=200"_s, u"--script=-"_s}));
    sender.process().write("wait 2000\nplay\n");
    sender.process().closeWriteChannel();
    QTRY_COMPARE(peer.connectionCount(), 1);
    peer.send("Welcome\n");
    // What comes before the first command is no answer to it.
    QCOMPARE(sender.waitForEnd(), 1);
    QCOMPARE(sender.output(), QByteArray());
    QTRY_VERIFY(!peer.received().isEmpty());
}

void tst_TessalySend::answersOfSeveralCommands()
{
    SimulatorProgram simulator;
    QVERIFY(simulator.start({u"--model"_s, lite, u"--address"_s, TcpPeer::address().toString()}));
    SenderProgram sender;
    QCOMPARE(sender.run(toLite() + QStringList{u"--wait=5000"_s, u"--script"_s, u"-"_s},
                        "volume 40\nrequest volume\nplay\n"),
             0);
    QCOMPARE(sender.output(), "OK Volume 40\r\nVolume: 40\r\nOK Play\r\n"_ba);
}

void tst_TessalySend::log()
{
    const QString path = m_home.filePath(u"all.log"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("first\n");
    file.close();
    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(toDeck(peer)
                         + QStringList{u"--log"_s, path, u"--wait=2000"_s, u"folder"_s, u"200"_s}));
    QTRY_COMPARE(peer.received(), bytes("85 11 48"));
    QVERIFY(peer.send("OK\n"));
    QCOMPARE(sender.waitForEnd(), 0);

    const QStringList lines = QString::fromUtf8(contentOf(path)).split(u'\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), u"first"_s);
    QCOMPARE(lines.at(3), QString());
    static const QRegularExpression time(u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}$"_s);
    for (int i : {1, 2})
        QVERIFY(time.match(lines.at(i).section(" | "_L1, 0, 0)).hasMatch());
    QCOMPARE(lines.at(1).section(" | "_L1, 1), u"sent | 85 11 48 | Folder 200"_s);
    QCOMPARE(lines.at(2).section(" | "_L1, 1), u"received | 4F 4B 0A"_s);
}

void tst_TessalySend::logThatCannotBeOpened()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--log=/dev/null/log"_s, u"play"_s}), 2);
    QCOMPARE(sender.error(), u"/dev/null/log: Not a directory"_s);
    QCOMPARE(peer.received(), QByteArray());
}

/// What is to be sent is more important than the log, but the exit status tells.
void tst_TessalySend::fullLog()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"--log=/dev/full"_s, u"--script"_s, u"-"_s},
                        "play\nstop\n"),
             4);
    QCOMPARE(sender.error(), u"/dev/full: No space left on device"_s);
    QCOMPARE(peer.received(), bytes("85 02 01 85 02 02"));
}

/// Such a device closes the connection after each command; each is sent once, on a connection of
/// its own.
void tst_TessalySend::connectedForEachCommand()
{
    TcpPeer peer(litePort);
    const QByteArray play = bytes("04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00");
    const QByteArray stop = bytes("04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00");
    SenderProgram sender;
    QVERIFY(sender.start(toLite() + QStringList{u"--gap=0"_s, u"--wait=60000"_s, u"--script=-"_s}));
    sender.process().write("play\nstop\n");
    sender.process().closeWriteChannel();
    QTRY_COMPARE(peer.received(), play);
    QCOMPARE(peer.connectionCount(), 1);
    peer.send("one\n");
    peer.hangUp();
    QTRY_COMPARE(peer.received(), play + stop);
    QCOMPARE(peer.connectionCount(), 2);
    peer.send("two\n");
    peer.hangUp();
    // The program does not wait for a device that has closed the connection.
    QCOMPARE(sender.waitForEnd(), 0);
    QCOMPARE(sender.output(), "one\ntwo\n"_ba);
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::deviceThatKeepsTheConnection()
{
    TcpPeer peer(litePort);
    SenderProgram sender;
    QVERIFY(sender.start(toLite() + QStringList{u"--gap=0"_s, u"--repeat=2"_s, u"play"_s}));
    QCOMPARE(sender.waitForEnd(), 0);
    QTRY_COMPARE(peer.received(),
                 bytes("04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00").repeated(2));
    QCOMPARE(peer.connectionCount(), 2);
}

/// Something has been sent then, so this is another end than that of a device that was never there.
void tst_TessalySend::deviceThatIsNotThereAgain()
{
    auto peer = std::make_unique<TcpPeer>(litePort);
    SenderProgram sender;
    QVERIFY(sender.start(toLite() + QStringList{u"--repeat=3"_s, u"play"_s}));
    QTRY_COMPARE(peer->received(),
                 bytes("04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"));
    peer.reset();
    QCOMPARE(sender.waitForEnd(), 4);
    QCOMPARE(sender.error(),
             u"cannot open %1 port 1234: Connection refused; 1 of 3 commands were sent"_s.arg(
                 TcpPeer::address().toString()));
}

/// What a device answers must not break the connection before it has read the commands.
void tst_TessalySend::deviceLosesNothingAtTheEnd()
{
    const Listener listener(videoPort);
    SenderProgram sender;
    QVERIFY(sender.start(toVideo() + QStringList{u"--gap=0"_s, u"--repeat=500"_s, u"play"_s}));
    const int device = listener.accept();
    QElapsedTimer clock;
    clock.start();
    int queued = 0;
    while (queued < 3 * 500 && clock.elapsed() < 20'000)
        ::ioctl(device, FIONREAD, &queued);
    QCOMPARE(::send(device, "answer", 6, MSG_NOSIGNAL), 6);
    QCOMPARE(sender.waitForEnd(), 0);

    QByteArray received;
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while ((count = ::recv(device, buffer.data(), buffer.size(), 0)) > 0)
        received.append(buffer.data(), count);
    int error = 0;
    socklen_t size = sizeof error;
    ::getsockopt(device, SOL_SOCKET, SO_ERROR, &error, &size);
    ::close(device);
    QCOMPARE(count, 0);
    // Not EPIPE: the answer was not refused.
    QCOMPARE(error, 0);
    QCOMPARE(received, bytes("80 02 01").repeated(500));
}

void tst_TessalySend::savedSettings()
{
    PtyPeer peer;
    const QString folder = m_home.filePath(u"Ambrette/Tessaly"_s);
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/Tessaly.cfg"_L1);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("TSY11.00\nx\nx\n*\n(default)\n*\nTempo Deck\n*\n" + peer.portName().toUtf8()
               + "\n*\n38400\n*\n127\n0\n0\n1\n*\n0\n*\n7\n*\n2\n*\n1\n");
    file.close();
    SenderProgram sender;
    const int status = sender.run({u"play"_s});
    file.remove();
    QCOMPARE(sender.error(), u"using the console's saved settings: model Tempo Deck, player ID 7, "
                             "port %1, 38400 baud"_s.arg(peer.portName()));
    QCOMPARE(status, 0);
    QCOMPARE(peer.received(), bytes("87 02 01"));
}

void tst_TessalySend::noSavedSettings()
{
    SenderProgram sender;
    QCOMPARE(sender.run({u"play"_s}), 2);
    QCOMPARE(sender.error(),
             u"Which model? Give --model NAME; --list shows the models. Try --help."_s);
}

void tst_TessalySend::noSuchPort()
{
    SenderProgram sender;
    QCOMPARE(sender.run({u"--model"_s, deck, u"--port=/dev/ttyNone"_s, u"play"_s}), 3);
    QCOMPARE(sender.error(), u"cannot open /dev/ttyNone: No such file or directory"_s);
}

/// The program has no more rights than a user, whoever runs the test.
void tst_TessalySend::portWithoutPermission()
{
    PtyPeer peer;
    QVERIFY(::chmod(peer.portName().toLocal8Bit().constData(), 0) == 0);
    SenderProgram sender;
    sender.process().setChildProcessModifier([] {
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
        ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
    });
    QCOMPARE(sender.run(toDeck(peer) + QStringList{u"play"_s}), 3);
    const QString error = sender.error();
    QVERIFY2(error.startsWith(u"cannot open %1: "_s.arg(peer.portName())), qPrintable(error));
    QVERIFY2(error.contains("group dialout"_L1), qPrintable(error));
    QCOMPARE(peer.received(), QByteArray());
}

void tst_TessalySend::busyPort_data()
{
    QTest::addColumn<bool>("isRelative");

    QTest::newRow("absolute path") << false;
    QTest::newRow("path below the working directory") << true;
}

void tst_TessalySend::busyPort()
{
    QFETCH(const bool, isRelative);

    PtyPeer peer;
    SenderProgram first;
    QVERIFY(first.start(toDeck(peer) + QStringList{u"--wait=60000"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    const QTemporaryDir folder;
    QVERIFY(QFile::link(peer.portName(), folder.filePath(u"deck"_s)));
    QStringList arguments = toDeck(peer);
    if (isRelative)
        arguments.last() = u"./deck"_s;
    SenderProgram second;
    second.process().setWorkingDirectory(folder.path());
    second.process().setChildProcessModifier([] { ::prctl(PR_CAPBSET_DROP, CAP_SYS_ADMIN); });
    QCOMPARE(second.run(arguments + QStringList{u"stop"_s}), 3);
    const QString error = second.error();
    QVERIFY2(error.endsWith("another program has it open"_L1), qPrintable(error));
    QCOMPARE(peer.received(), bytes("85 02 01"));
    first.raise(SIGINT);
    QCOMPARE(first.waitForEnd(), 130);
}

void tst_TessalySend::refused()
{
    SenderProgram sender;
    QCOMPARE(sender.run(toVideo() + QStringList{u"play"_s}), 3);
    QCOMPARE(sender.error(),
             u"cannot open %1 port 65079: Connection refused"_s.arg(TcpPeer::address().toString()));
}

/// The queue of the listening socket is full, so that nobody answers.
void tst_TessalySend::noConnectionInTime()
{
    const Listener listener(videoPort);
    const int queued = listener.connectToIt();
    SenderProgram sender;
    QElapsedTimer clock;
    clock.start();
    const int status = sender.run(toVideo() + QStringList{u"--timeout=300"_s, u"play"_s});
    const qint64 elapsed = clock.elapsed();
    ::close(queued);
    QCOMPARE(sender.error(), u"cannot open %1 port 65079: no connection within 300 ms"_s.arg(
                                 TcpPeer::address().toString()));
    QCOMPARE(status, 3);
    QVERIFY(elapsed >= 285); // as coarse as Qt's timers are
}

void tst_TessalySend::unknownHost()
{
    SenderProgram sender;
    QCOMPARE(sender.run({u"--model"_s, video, u"--host=device.invalid"_s, u"play"_s}), 3);
    QVERIFY2(sender.error().startsWith("cannot open device.invalid port 65079: "_L1),
             qPrintable(sender.error()));
}

void tst_TessalySend::slowNameLookup_data()
{
    QTest::addColumn<QString>("timeout");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("status");

    QTest::newRow("no connection in time") << u"--timeout=300"_s << 0 << 3;
    QTest::newRow("signal") << u"--timeout=60000"_s << SIGINT << 130;
}

/// The DNS lookup takes half a minute, and the program does not wait for it.
void tst_TessalySend::slowNameLookup()
{
    QFETCH(const QString, timeout);
    QFETCH(const int, signal);

    SenderProgram sender;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s, buildPath(u"tests/sender/libtessaly_slow_lookup.so"_s));
    // The sanitizer would insist on being the first library.
    environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
    sender.process().setProcessEnvironment(environment);
    QVERIFY(sender.start({u"--model"_s, video, u"--host=device.invalid"_s, timeout, u"play"_s}));
    if (signal != 0) {
        const QString started = u"/proc/%1/task"_s.arg(sender.process().processId());
        QTRY_VERIFY(QDir(started).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() > 1);
        sender.raise(signal);
    }
    QTEST(sender.waitForEnd(15'000), "status");
    QCOMPARE(sender.errors().contains("no connection within 300 ms"), signal == 0);
}

void tst_TessalySend::serialDeviceVanishes()
{
    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(toDeck(peer) + QStringList{u"--repeat=100000"_s, u"play"_s}));
    QTRY_VERIFY(peer.received().size() >= 6);
    peer.hangUp();
    QCOMPARE(sender.waitForEnd(), 4);
    static const QRegularExpression error(
        u"^/\\S+/port\\d+: .+; \\d+ of 100000 commands were sent$"_s);
    QVERIFY2(error.match(sender.error()).hasMatch(), qPrintable(sender.error()));
    // It is noticed at once, not by a frame that gets stuck.
    QVERIFY2(!sender.error().contains("get away"_L1), qPrintable(sender.error()));
}

void tst_TessalySend::networkDeviceHangsUp()
{
    TcpPeer peer(videoPort);
    SenderProgram sender;
    QVERIFY(sender.start(toVideo() + QStringList{u"--gap=60000"_s, u"--repeat=2"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("80 02 01"));
    peer.hangUp();
    QCOMPARE(sender.waitForEnd(), 4);
    QCOMPARE(sender.error(),
             u"%1 port 65079: the device has hung up; 1 of 2 commands were sent"_s.arg(
                 TcpPeer::address().toString()));
}

/// Writing into a connection that is broken already must not kill the program.
void tst_TessalySend::networkDeviceResets()
{
    TcpPeer peer(videoPort);
    SenderProgram sender;
    QVERIFY(
        sender.start(toVideo() + QStringList{u"--gap=0"_s, u"--repeat=100000000"_s, u"play"_s}));
    QTRY_VERIFY(peer.received().size() >= 300);
    const linger reset{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(peer.handle(), SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
    peer.hangUp();
    QCOMPARE(sender.waitForEnd(), 4);
    QVERIFY2(sender.error().contains(" of 100000000 commands were sent"_L1),
             qPrintable(sender.error()));
}

/// Nobody is asked again and again.
void tst_TessalySend::hangUpAtOnce()
{
    for (const QStringList &link : {toVideo(), toLite()}) {
        const Listener listener(link == toVideo() ? videoPort : litePort);
        SenderProgram sender;
        QVERIFY(sender.start(link + QStringList{u"--script=-"_s}));
        sender.process().write("wait 200\nplay\n");
        QVERIFY(sender.process().waitForBytesWritten());
        sender.process().closeWriteChannel();
        const int device = listener.accept();
        ::close(device);
        QCOMPARE(sender.waitForEnd(), 4);
        QVERIFY2(sender.error().endsWith("the device has hung up; 0 of 1 commands were sent"_L1),
                 qPrintable(sender.error()));
    }
}

void tst_TessalySend::hangUpAfterTheLastCommand()
{
    TcpPeer peer(videoPort);
    SenderProgram sender;
    QVERIFY(sender.start(toVideo() + QStringList{u"--wait=60000"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("80 02 01"));
    peer.send("bye");
    peer.hangUp();
    QCOMPARE(sender.waitForEnd(), 0);
    QCOMPARE(sender.output(), "bye\n"_ba);
    QCOMPARE(sender.errors(), QByteArray());
}

/// The device takes no more: at last that is an error, and there is no other end.
void tst_TessalySend::frameThatDoesNotGetAway()
{
    PtyPeer peer;
    SenderProgram sender;
    QCOMPARE(sender.run(
                 toDeck(peer)
                 + QStringList{u"--gap=0"_s, u"--timeout=500"_s, u"--repeat=1000000"_s, u"play"_s}),
             4);
    static const QRegularExpression error(
        u"^/\\S+/port\\d+: a frame did not get away within 500 ms; "
        "\\d+ of 1000000 commands were sent$"_s);
    QVERIFY2(error.match(sender.error()).hasMatch(), qPrintable(sender.error()));
}

void tst_TessalySend::slowSerialDevice()
{
    constexpr qsizetype count = 20'000;
    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(
        toDeck(peer)
        + QStringList{u"--gap=0"_s, u"--repeat"_s, QString::number(count), u"play"_s}));
    // The line is full, and stays so for a while.
    const QString stat = u"/proc/%1/stat"_s.arg(sender.process().processId());
    QByteArray before;
    QTRY_VERIFY((QTest::qWait(100), std::exchange(before, contentOf(stat)) == contentOf(stat)));
    QVERIFY(sender.isRunning());
    QByteArray received;
    while (sender.isRunning()) {
        QVERIFY(QTest::qWaitFor([&] { return !peer.received().isEmpty() || !sender.isRunning(); }));
        received += peer.takeReceived();
    }
    received += peer.takeReceived();
    QCOMPARE(sender.waitForEnd(), 0);
    QCOMPARE(received.size(), 3 * count);
    QVERIFY(areFrames(received, bytes("85 02 01")));
}

void tst_TessalySend::slowNetworkDevice()
{
    constexpr qsizetype count = 100'000;
    LazyDevice device(videoPort);
    SenderProgram sender;
    QVERIFY(sender.start(
        toVideo() + QStringList{u"--gap=0"_s, u"--repeat"_s, QString::number(count), u"play"_s}));
    QTRY_VERIFY(device.isConnected());
    QByteArray received;
    QTRY_VERIFY_WITH_TIMEOUT((received = device.read()).size() >= 1000, 60'000);
    device.socket()->setReadBufferSize(0);
    QTRY_VERIFY_WITH_TIMEOUT((received = device.read()).size() >= 3 * count, 60'000);
    QCOMPARE(sender.waitForEnd(), 0);
    QCOMPARE(received.size(), 3 * count);
    QVERIFY(areFrames(received, bytes("80 02 01")));
}

void tst_TessalySend::signalBetweenFrames_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_TessalySend::signalBetweenFrames()
{
    QFETCH(const int, signal);

    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(
        toDeck(peer) + QStringList{u"--gap=0"_s, u"--repeat=1000000000"_s, u"folder"_s, u"200"_s}));
    QTRY_VERIFY(peer.received().size() > 30);
    sender.raise(signal);
    QVERIFY(QTest::qWaitFor(
        [&] {
            peer.received();
            return !sender.isRunning();
        },
        20'000));
    QCOMPARE(sender.waitForEnd(), 128 + signal);
    QVERIFY(areFrames(peer.received(), bytes("85 11 48")));
    QCOMPARE(sender.errors(), QByteArray());
}

void tst_TessalySend::ignoredSignal_data()
{
    signalBetweenFrames_data();
}

/// As for a job in the background of a script, or one that is to outlive its terminal.
void tst_TessalySend::ignoredSignal()
{
    QFETCH(const int, signal);

    PtyPeer peer;
    SenderProgram sender;
    sender.process().setChildProcessModifier([signal] { ::signal(signal, SIG_IGN); });
    QVERIFY(sender.start(toDeck(peer) + QStringList{u"--gap=500"_s, u"--repeat=3"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    sender.raise(signal);
    QCOMPARE(sender.waitForEnd(), 0);
    QTRY_COMPARE(peer.received(), bytes("85 02 01 85 02 01 85 02 01"));
}

/// The line is full in the middle of a frame, and the rest of it still goes out.
void tst_TessalySend::signalWithinAFrame()
{
    PtyPeer peer;
    SenderProgram sender;
    QVERIFY(sender.start(toDeck(peer)
                         + QStringList{u"--gap=0"_s, u"--timeout=20000"_s, u"--repeat=1000000000"_s,
                                       u"folder"_s, u"200"_s}));
    const QString stat = u"/proc/%1/stat"_s.arg(sender.process().processId());
    QByteArray before;
    QTRY_VERIFY((QTest::qWait(100), std::exchange(before, contentOf(stat)) == contentOf(stat)));
    sender.raise(SIGINT);
    QVERIFY(!QTest::qWaitFor([&] { return !sender.isRunning(); }, 300));
    QVERIFY(QTest::qWaitFor(
        [&] {
            peer.received();
            return !sender.isRunning();
        },
        20'000));
    QCOMPARE(sender.waitForEnd(), 130);
    QVERIFY(areFrames(peer.received(), bytes("85 11 48")));
}

void tst_TessalySend::signalWhileConnecting()
{
    SenderProgram sender;
    TcpPeer peer(videoPort);
    QVERIFY(sender.start(toVideo() + QStringList{u"--script=-"_s}));
    sender.process().write("wait 60000\nplay\n");
    sender.process().closeWriteChannel();
    QTRY_COMPARE(peer.connectionCount(), 1);
    sender.raise(SIGINT);
    QCOMPARE(sender.waitForEnd(), 130);
    QCOMPARE(peer.received(), QByteArray());
}

/// The commands are sent all the same, and the exit status tells.
void tst_TessalySend::readerGoesAway()
{
    PtyPeer peer;
    std::array<int, 2> ends{};
    QVERIFY(::pipe2(ends.data(), O_CLOEXEC) == 0);
    SenderProgram sender;
    sender.process().setChildProcessModifier([ends] { ::dup2(ends[1], STDOUT_FILENO); });
    QVERIFY(sender.start(toDeck(peer) + QStringList{u"--wait=2000"_s, u"--repeat=2"_s, u"play"_s}));
    ::close(ends[0]);
    ::close(ends[1]);
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    QVERIFY(peer.send("OK\n"));
    QTRY_COMPARE(peer.received(), bytes("85 02 01 85 02 01"));
    QCOMPARE(sender.waitForEnd(), 4);
    QCOMPARE(sender.error(), u"standard output: Broken pipe"_s);
}

/// A reader that is blocked, or reads a little, delays no command and no signal.
void tst_TessalySend::blockedReader()
{
    PtyPeer peer;
    std::array<int, 2> ends{};
    QVERIFY(::pipe2(ends.data(), O_CLOEXEC) == 0);
    const QByteArray filling(::fcntl(ends[1], F_GETPIPE_SZ), 'x');
    QCOMPARE(::write(ends[1], filling.constData(), static_cast<size_t>(filling.size())),
             filling.size());
    SenderProgram sender;
    sender.process().setChildProcessModifier([ends] { ::dup2(ends[1], STDOUT_FILENO); });
    QVERIFY(sender.start(toDeck(peer) + QStringList{u"--wait=500"_s, u"--repeat=4"_s, u"play"_s}));
    ::close(ends[1]);
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    QVERIFY(peer.send(QByteArray(200'000, 'x')));
    QTRY_COMPARE(peer.received(), bytes("85 02 01").repeated(2));
    std::array<char, 8192> some;
    QCOMPARE(::read(ends[0], some.data(), some.size()), ssize_t(some.size()));
    QTRY_COMPARE(peer.received(), bytes("85 02 01").repeated(4));
    // All is sent; it waits for its reader alone.
    QVERIFY(!QTest::qWaitFor([&] { return !sender.isRunning(); }, 1000));
    sender.raise(SIGINT);
    QCOMPARE(sender.waitForEnd(), 130);
    ::close(ends[0]);
}

void tst_TessalySend::fullOutput()
{
    SenderProgram sender;
    sender.process().setStandardOutputFile(u"/dev/full"_s);
    QCOMPARE(sender.run({u"--dry-run"_s, u"--model"_s, deck, u"play"_s}), 4);
    QCOMPARE(sender.error(), u"standard output: No space left on device"_s);
    QCOMPARE(sender.run({u"--list"_s}), 4);
}

/// The device must not be opened in place of the standard output and be sent its own answers.
void tst_TessalySend::closedStreams()
{
    PtyPeer peer;
    SenderProgram sender;
    sender.process().setChildProcessModifier([] {
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            ::close(stream);
    });
    QVERIFY(sender.start(toDeck(peer) + QStringList{u"--wait=2000"_s, u"play"_s}));
    QTRY_COMPARE(peer.received(), bytes("85 02 01"));
    QVERIFY(peer.send("OK\n"));
    // Nobody can have read the answer.
    QCOMPARE(sender.waitForEnd(), 4);
    QCOMPARE(peer.received(), bytes("85 02 01"));
}

void tst_TessalySend::closedOutput()
{
    SenderProgram sender;
    sender.process().setChildProcessModifier([] { ::close(STDOUT_FILENO); });
    QCOMPARE(sender.run({u"--list"_s}), 4);
    QCOMPARE(sender.error(), u"standard output: Bad file descriptor"_s);
}

void tst_TessalySend::closedInput()
{
    SenderProgram sender;
    sender.process().setChildProcessModifier([] { ::close(STDIN_FILENO); });
    QVERIFY(sender.start({u"--dry-run"_s, u"--model"_s, deck, u"--script=-"_s}));
    QCOMPARE(sender.waitForEnd(), 2);
    QCOMPARE(sender.error(), u"standard input: Bad file descriptor. Try --help."_s);
}

TESSALY_TEST(tst_TessalySend)
#include "tst_tessalysend.moc"
