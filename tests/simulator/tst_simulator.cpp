// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/filecontent.h"
#include "tests/support/sheetframes.h"
#include "tests/support/sheetrows.h"
#include "tests/support/simulatorprogram.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <array>
#include <memory>
#include <vector>

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString tempoDeck = u"Tempo Deck"_s;
const QString vistarShowTcp = u"Vistar Show - SV500 (TCP/IP)"_s;
const QString lite = u"Sonet A Lite (TCP/IP)"_s;

constexpr int longWait = 120'000; // in ms; reached only by what fails

/// What a busy machine may add to a second or three.
constexpr int longestDelay = 15'000; // in ms

/// Three seconds, as coarse as Qt's timers are.
constexpr int shortestOutage = 2'850; // in ms

// Of the simulator's memory, in kB.
#ifdef TESSALY_SANITIZED
constexpr int highestGrowth = 128 * 1'024; // with room for what surrounds each allocation
#else
constexpr int highestGrowth = 64 * 1'024;
#endif

QString addressText(quint32 number = 0)
{
    return QHostAddress(SimulatorProgram::firstAddress().toIPv4Address() + number).toString();
}

/// Where the simulator of all models has that one: those that share a port have addresses one after
/// the other.
QString placeInNetwork(const ModelSheet &sheet)
{
    quint32 neighbours = 0;
    for (const ModelSheet &other : modelSheets()) {
        if (other.name == sheet.name)
            break;
        if (other.isTcp && other.tcpPort == sheet.tcpPort)
            ++neighbours;
    }
    return u"%1 port %2"_s.arg(addressText(neighbours)).arg(sheet.tcpPort);
}

QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
}

/// The console's end of a link.
class Line
{
public:
    Line() = default;
    virtual ~Line() = default;
    Q_DISABLE_COPY_MOVE(Line)

    /// Sends all of it, running the event loop meanwhile.
    virtual bool send(const QByteArray &data) = 0;
    /// What has arrived since the last takeReceived().
    virtual QByteArray received() = 0;
    virtual QByteArray takeReceived() = 0;
    /// Whether the device is gone. What it sent before has been received then.
    virtual bool isCut() = 0;
};

class SerialLine : public Line
{
public:
    explicit SerialLine(const QString &path)
        : m_descriptor(
            ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
    }
    ~SerialLine() override
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY_MOVE(SerialLine)

    bool isOpen() const { return m_descriptor >= 0; }

    bool send(const QByteArray &data) override
    {
        qsizetype sent = 0;
        return QTest::qWaitFor(
            [&] {
                const ssize_t count = ::write(m_descriptor, data.constData() + sent,
                                              static_cast<size_t>(data.size() - sent));
                if (count > 0)
                    sent += count;
                return sent == data.size();
            },
            longWait);
    }

    QByteArray received() override
    {
        std::array<char, 65'536> buffer;
        ssize_t count = 0;
        while ((count = ::read(m_descriptor, buffer.data(), buffer.size())) > 0)
            m_received.append(buffer.data(), count);
        m_isCut = m_isCut || count == 0 || errno == EIO;
        return m_received;
    }

    QByteArray takeReceived() override
    {
        received();
        return std::exchange(m_received, {});
    }

    bool isCut() override
    {
        received();
        return m_isCut;
    }

private:
    int m_descriptor;
    QByteArray m_received;
    bool m_isCut = false;
};

class TcpLine : public Line
{
public:
    TcpLine(const QHostAddress &address, quint16 port) { m_socket.connectToHost(address, port); }

    QTcpSocket &socket() { return m_socket; }
    bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }

    bool send(const QByteArray &data) override
    {
        m_socket.write(data);
        return QTest::qWaitFor([this] { return m_socket.bytesToWrite() == 0; }, longWait);
    }
    QByteArray received() override
    {
        m_received += m_socket.readAll();
        return m_received;
    }
    QByteArray takeReceived() override
    {
        received();
        return std::exchange(m_received, {});
    }
    bool isCut() override { return m_socket.state() == QAbstractSocket::UnconnectedState; }

private:
    QTcpSocket m_socket;
    QByteArray m_received;
};

/// A line to a model of the simulator, by what the simulator says of it.
std::unique_ptr<Line> lineTo(SimulatorProgram &simulator, const QString &model)
{
    const QString place = simulator.endpoint(model);
    if (place.startsWith(u'/'))
        return std::make_unique<SerialLine>(place);
    auto line = std::make_unique<TcpLine>(QHostAddress(place.section(u' ', 0, 0)),
                                          place.section(u' ', 2, 2).toUShort());
    if (!QTest::qWaitFor([&] { return line->isConnected(); }))
        qWarning("%s is not reached at %s", qPrintable(model), qPrintable(place));
    return line;
}

QStringList playing(const QString &model, const QStringList &more = {})
{
    return QStringList{u"--model"_s, model, u"--address"_s, addressText()} + more;
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// A value of /proc/<process>/status, in kB.
int statusValue(qint64 process, const QByteArray &name)
{
    const QByteArray status = contentOf(u"/proc/%1/status"_s.arg(process));
    const qsizetype place = status.indexOf(name + ':');
    if (place < 0)
        return -1;
    const QByteArray text = status.sliced(place + name.size() + 1).split('\n').constFirst();
    return text.trimmed().split(' ').constFirst().toInt();
}

} // namespace

class tst_Simulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("LC_ALL", "C.UTF-8"); }

    void printsAndExits_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QRegularExpression>("output");

        const auto row
            = [](const char *option, const QString &output) {
                  QTest::newRow(option)
                      << QString::fromLatin1(option)
                      << QRegularExpression(output, QRegularExpression::DotMatchesEverythingOption);
              };
        row("--list", u"^Tempo Deck\\n    serial, 9600, 19200, .*\\)\\n$"_s);
        row("--help", u"^Usage: .*tessaly-simulator .*--model <NAME>.*\\n$"_s);
        row("--version", u"^tessaly-simulator \\d+(\\.\\d+)+\\n$"_s);
        row("--protocol", u"^<!-- .*\\| Tempo Deck \\| classic .*\\n$"_s);
    }

    void printsAndExits()
    {
        QFETCH(const QString, option);
        QFETCH(const QRegularExpression, output);

        SimulatorProgram simulator;
        QVERIFY(simulator.runToEnd({option}));
        QCOMPARE(simulator.exitCode(), 0);
        QCOMPARE(simulator.errorOutput(), ""_ba);
        QVERIFY2(output.match(QString::fromUtf8(simulator.output())).hasMatch(),
                 simulator.output());
    }

    /// The lines of 1500 frames are more than a pipe holds, and nobody reads them meanwhile.
    void blockedReader()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck)));
        const int port = ::open(QFile::encodeName(simulator.endpoint(tempoDeck)).constData(),
                                O_RDWR | O_NOCTTY | O_CLOEXEC);
        QVERIFY(port >= 0);
        const QByteArray frame = QByteArray::fromHex("80 02 01");
        const QByteArray answer = "OK Play\r\n";
        int answered = 0;
        for (; answered < 1500; ++answered) {
            QByteArray received;
            std::array<char, 64> buffer;
            pollfd readable{.fd = port, .events = POLLIN, .revents = 0};
            if (::write(port, frame.constData(), 3) != 3)
                break;
            while (received.size() < answer.size() && ::poll(&readable, 1, longWait) == 1) {
                const ssize_t count = ::read(port, buffer.data(), buffer.size());
                received.append(buffer.data(), std::max<ssize_t>(0, count));
            }
            if (received != answer)
                break;
        }
        ::close(port);
        QCOMPARE(answered, 1500);
        QVERIFY(simulator.stop());
        QCOMPARE(simulator.exitCode(), 0);
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("error");

        const auto row
            = [](const char *name, const QStringList &arguments, const QByteArray &error) {
                  QTest::newRow(name) << arguments << "tessaly-simulator: " + error + '\n';
              };
        row("nothing", {},
            "Which model? Give --model NAME or --all; --list shows the models. Try --help.");
        row("log file that cannot be opened",
            {u"--model"_s, tempoDeck, u"--log"_s, u"/dev/null/log"_s},
            "/dev/null/log: Not a directory");
        row("log file that is a folder", {u"--model"_s, tempoDeck, u"--log"_s, u"/"_s},
            "/: Is a directory");
        row("nothing to link", {u"--model"_s, lite, u"--link"_s, u"/dev/null/link"_s},
            "None of the models is a serial one, so there is nothing to link.");
        row("link where none can be", {u"--model"_s, tempoDeck, u"--link"_s, u"/dev/null/link"_s},
            "cannot link /dev/null/link: Not a directory");
        row("link on a file", {u"--model"_s, tempoDeck, u"--link"_s, u"/dev/null"_s},
            "/dev/null exists already and is no link to a pseudo-terminal");
        row("folder that cannot be made", {u"--all"_s, u"--link"_s, u"/dev/null/folder"_s},
            "The folder /dev/null/folder cannot be made.");
    }

    void errors()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, error);

        SimulatorProgram simulator;
        QVERIFY(simulator.runToEnd(arguments));
        QCOMPARE(simulator.exitCode(), 2);
        QCOMPARE(simulator.errorOutput(), error);
        QVERIFY2(!simulator.output().contains("Ready"), simulator.output());
    }

    // Links are made for all serial models: the path has to be a folder.
    void linkFolderThatIsAFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"links"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("mine"), 4);
        file.close();

        SimulatorProgram simulator;
        QVERIFY(simulator.runToEnd({u"--all"_s, u"--address"_s, addressText(), u"--link"_s, path}));
        QCOMPARE(simulator.exitCode(), 2);
        const QByteArray error = simulator.errorOutput();
        QVERIFY2(error.startsWith("tessaly-simulator: ") && error.contains(path.toUtf8()), error);
        QCOMPARE(contentOf(path), "mine"_ba);
    }

    void portInUse()
    {
        QTcpServer other;
        QVERIFY(other.listen(SimulatorProgram::firstAddress(), 1234));
        const QTemporaryDir folder;
        const QString link = folder.filePath(u"port"_s);

        SimulatorProgram simulator;
        QVERIFY(simulator.runToEnd(playing(tempoDeck, {u"--model"_s, lite, u"--link"_s, link})));
        QCOMPARE(simulator.exitCode(), 2);
        QCOMPARE(simulator.errorOutput(),
                 "tessaly-simulator: Sonet A Lite (TCP/IP) cannot listen on "
                     + addressText().toLatin1()
                     + " port 1234: The bound address is already in use.\n");
        QVERIFY2(!simulator.output().contains("Ready"), simulator.output());
        QCOMPARE(entriesOf(folder.path()), QStringList());
    }

    void allModels_data() { addModelRows(); }

    /// The first command of each, with its highest value.
    void allModels()
    {
        QFETCH(const ModelSheet, sheet);

        // One run for all rows.
        if (!m_all) {
            m_all = std::make_unique<SimulatorProgram>();
            QVERIFY2(m_all->start({u"--all"_s, u"--address"_s, addressText()}),
                     m_all->errorOutput());
            const qsizetype count = modelSheets().size();
            QCOMPARE(m_all->lines().size(), count + 1);
            QCOMPARE(m_all->lines().last(),
                     u"Ready: %1 devices. Ctrl+C ends the simulation."_s.arg(count));
            QStringList ports = m_all->serialPorts();
            QCOMPARE(ports.removeDuplicates(), 0);
            QCOMPARE(ports.size(), std::ranges::count(modelSheets(), false, &ModelSheet::isTcp));
        }
        QVERIFY(m_all->isRunning());
        m_all->forgetFrames();
        const QString place = m_all->endpoint(sheet.name);
        if (sheet.isTcp)
            QCOMPARE(place, placeInNetwork(sheet));
        else
            QVERIFY2(place.startsWith("/dev/pts/"_L1), qPrintable(place));

        const SheetCommand &command = sheet.commands.constFirst();
        const SheetFrame frame = command.hasRange()
                                     ? SheetFrame{command, command.highest, command.highestFrame}
                                     : SheetFrame{command, command.lowest, command.frame};
        const auto console = lineTo(*m_all, sheet.name);
        QVERIFY(console->send(frame.bytes));
        const QStringList line{logLine(sheet, frame, 0)};
        QTRY_COMPARE(m_all->frames(), line);
        if (command.id == 10)
            QTRY_VERIFY(console->received().startsWith(command.label.toLatin1() + ": "));
        else
            QTRY_COMPARE(console->received(), "OK " + frame.meaning().toLatin1() + "\r\n");
    }

    void allModelsEnd()
    {
        QVERIFY(m_all);
        QVERIFY(m_all->stop());
        QCOMPARE(m_all->exitCode(), 0);
        QCOMPARE(m_all->errorOutput(), ""_ba);
        m_all.reset();
    }

    void link()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        // From a run that was killed.
        QVERIFY(QFile::link(u"/dev/pts/999999"_s, path));

        SimulatorProgram simulator;
        QVERIFY2(simulator.start({u"--model"_s, tempoDeck, u"--link"_s, path}),
                 simulator.errorOutput());
        QCOMPARE(simulator.endpoint(tempoDeck), path);
        const QString target = QFile::symLinkTarget(path);
        QCOMPARE(simulator.lines().constFirst(), u"Tempo Deck: %1 (%2)"_s.arg(path, target));
        QCOMPARE(entriesOf(folder.path()), QStringList{u"port"_s});

        SerialLine byLink(path);
        QVERIFY(byLink.isOpen());
        QVERIFY(byLink.send(bytes("80 02 01")));
        QTRY_COMPARE(byLink.received(), "OK Play\r\n"_ba);

        SerialLine byPort(target);
        QVERIFY(byPort.isOpen());
        QVERIFY(byPort.send(bytes("80 02 02")));
        QTRY_COMPARE(byPort.received(), "OK Stop\r\n"_ba);
        QTRY_COMPARE(simulator.frames(), QStringList({u"Tempo Deck | ID 0 | 80 02 01 | Play"_s,
                                                      u"Tempo Deck | ID 0 | 80 02 02 | Stop"_s}));
    }

    void ends_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGTERM") << SIGTERM;
    }

    void ends()
    {
        QFETCH(const int, signal);
        const QTemporaryDir folder;
        const QString links = folder.filePath(u"made"_s);
        const QString kept = folder.filePath(u"kept"_s);
        QVERIFY(QDir().mkdir(kept));
        const QString single = folder.filePath(u"single"_s);

        SimulatorProgram all;
        QVERIFY2(all.start({u"--all"_s, u"--address"_s, addressText(), u"--link"_s, links}),
                 all.errorOutput());
        SimulatorProgram three;
        QVERIFY2(three.start({u"--model"_s, tempoDeck, u"--model"_s, u"Ampra One"_s, u"--model"_s,
                              tempoDeck, u"--link"_s, kept}),
                 three.errorOutput());
        SimulatorProgram one;
        QVERIFY2(one.start({u"--model"_s, tempoDeck, u"--link"_s, single}), one.errorOutput());

        QStringList paths;
        for (const QString &name : entriesOf(links))
            paths.append(links + u'/' + name);
        QStringList announced = all.serialPorts();
        announced.sort();
        QCOMPARE(paths, announced);
        QCOMPARE(announced.size(), std::ranges::count(modelSheets(), false, &ModelSheet::isTcp));
        for (const char *name :
             {"Ampra-One", "HV1xx-Serial-legacy", "Pico-Deck-Gen-2-3", "Vistar-Show-SV500-Serial"})
            QVERIFY2(paths.contains(links + u'/' + QLatin1String(name)), name);
        QCOMPARE(entriesOf(kept),
                 QStringList({u"Ampra-One"_s, u"Tempo-Deck"_s, u"Tempo-Deck-2"_s}));
        for (SimulatorProgram *simulator : {&all, &three, &one}) {
            QVERIFY(simulator->stop(signal));
            QCOMPARE(simulator->exitCode(), 0);
            QCOMPARE(simulator->errorOutput(), ""_ba);
        }
        QCOMPARE(entriesOf(kept), QStringList());
        QCOMPARE(entriesOf(folder.path()), QStringList{u"kept"_s});
    }

    // With consoles on it, too, and in the middle of an answer.
    void endsWhileTalking()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck, {u"--model"_s, vistarShowTcp, u"--fault"_s,
                                                    u"megabyte"_s, u"--link"_s, path})));
        const auto serial = lineTo(simulator, tempoDeck);
        const auto tcp = lineTo(simulator, vistarShowTcp);
        QVERIFY(serial->send(bytes("80 02 01")));
        QVERIFY(tcp->send(bytes("80 02 01")));
        QTRY_COMPARE(simulator.frames().size(), 2);
        QVERIFY(simulator.stop(SIGTERM));
        QCOMPARE(simulator.exitCode(), 0);
        QCOMPARE(entriesOf(folder.path()), QStringList());
        QTRY_VERIFY(tcp->isCut());
        QTRY_VERIFY(serial->isCut());
    }

    void foreignFilesStay()
    {
        const QTemporaryDir folder;
        const QString links = folder.filePath(u"links"_s);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(
            {u"--model"_s, tempoDeck, u"--model"_s, u"Ampra One"_s, u"--link"_s, links}));

        // The user has put a file of their own into the place of one link meanwhile.
        const QString foreign = links + "/Tempo-Deck"_L1;
        QVERIFY(QFile::remove(foreign));
        QFile file(foreign);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("mine"), 4);
        file.close();

        QVERIFY(simulator.stop());
        QCOMPARE(simulator.exitCode(), 0);
        QCOMPARE(entriesOf(links), QStringList{u"Tempo-Deck"_s});
        QCOMPARE(contentOf(foreign), "mine"_ba);
    }

    void log()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"frames.log"_s);
        QFile earlier(path);
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.write("an earlier line\n");
        earlier.close();

        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck, {u"--log"_s, path})));
        SerialLine console(simulator.endpoint(tempoDeck));
        QVERIFY(console.send(bytes("80 02 01 FF 85 02 02 80 03 7F")));
        QTRY_COMPARE(simulator.frames().size(), 4);
        // Each line is in the file when it is said, not at the end only.
        QCOMPARE(QString::fromUtf8(contentOf(path)),
                 "an earlier line\n"_L1 + simulator.lines().join(u'\n') + u'\n');

        const QRegularExpression time(u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3} \\| "
                                      "Tempo Deck \\| "_s);
        const QStringList lines = simulator.lines();
        for (const QString &line : lines.last(4))
            QVERIFY2(time.match(line).hasMatch(), qPrintable(line));
        QVERIFY(simulator.stop());
        QCOMPARE(QString::fromUtf8(contentOf(path)),
                 "an earlier line\n"_L1 + simulator.lines().join(u'\n') + u'\n');
    }

    // The devices play on, and the loss is named, once.
    void fullLog()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck, {u"--log"_s, u"/dev/full"_s})));
        SerialLine console(simulator.endpoint(tempoDeck));
        QVERIFY(console.send(bytes("80 02 01 80 02 02")));
        QTRY_COMPARE(console.received(), "OK Play\r\nOK Stop\r\n"_ba);
        QVERIFY(simulator.stop());
        const QByteArray error = simulator.errorOutput();
        QVERIFY2(error.count("tessaly-simulator: /dev/full: No space left on device\n") == 1,
                 error);
    }

    void playerIds()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(u"HV0xx (legacy)"_s, {u"--id"_s, u"5"_s})));
        SerialLine console(simulator.endpoint(u"HV0xx (legacy)"_s));
        // The first and the last are for others, the first of all has the ID after the change.
        QVERIFY(console.send(bytes("87 02 01  85 02 01  85 7F 07  87 02 02  85 02 03  80 02 04")));
        QTRY_COMPARE(
            simulator.frames(),
            QStringList({
                u"HV0xx (legacy) | ID 7 | 87 02 01 | Play (for another player, not obeyed)"_s,
                u"HV0xx (legacy) | ID 5 | 85 02 01 | Play"_s,
                u"HV0xx (legacy) | ID 5 | 85 7F 07 | Change ID 7"_s,
                u"HV0xx (legacy) | ID 7 | 87 02 02 | Stop"_s,
                u"HV0xx (legacy) | ID 5 | 85 02 03 | Next File (for another player, not obeyed)"_s,
                u"HV0xx (legacy) | ID 0 | 80 02 04 | Previous File (for another player, not "
                "obeyed)"_s,
            }));
        QTRY_COMPARE(console.received(), "OK Play\r\nOK Change ID 7\r\nOK Stop\r\n"_ba);
        // Nothing follows it: the next answer follows at once.
        QVERIFY(console.send(bytes("87 02 01")));
        QTRY_COMPARE(console.received(), "OK Play\r\nOK Change ID 7\r\nOK Stop\r\nOK Play\r\n"_ba);
    }

    void pieces_data() { addPlaces(); }

    void pieces()
    {
        QFETCH(const QString, model);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model)));
        const auto console = lineTo(simulator, model);
        const QByteArray frame = bytes("80 2C 1A 03 07 0E 05 09");
        for (const char byte : frame) {
            QVERIFY(console->send(QByteArray(1, byte)));
            QTest::qWait(50); // so that each byte arrives alone; the device waits for a second
        }
        QTRY_COMPARE(simulator.frames(),
                     QStringList{model
                                 + " | ID 0 | 80 2C 1A 03 07 0E 05 09 | Set date/time 2026-03-07 "
                                   "14:05:09"_L1});
        QTRY_COMPARE(console->received(), "OK Set date/time 2026-03-07 14:05:09\r\n"_ba);
    }

    void severalAtOnce_data() { addPlaces(); }

    void severalAtOnce()
    {
        QFETCH(const QString, model);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model)));
        const auto console = lineTo(simulator, model);
        QVERIFY(console->send(bytes("80 02 01  80 01 48  41 42  80 03 28  80 04 0B")));
        QTRY_COMPARE(simulator.frames(), QStringList({
                                             model + " | ID 0 | 80 02 01 | Play"_L1,
                                             model + " | ID 0 | 80 01 48 | Folder 72"_L1,
                                             model + " | no ID | 41 42 | no frame"_L1,
                                             model + " | ID 0 | 80 03 28 | Volume 40"_L1,
                                             model + " | ID 0 | 80 04 0B | Request: Volume"_L1,
                                         }));
        QTRY_COMPARE(console->received(),
                     "OK Play\r\nOK Folder 72\r\nOK Volume 40\r\nVolume: 40\r\n"_ba);
    }

    void frameThatNeverEnds_data() { addPlaces(); }

    void frameThatNeverEnds()
    {
        QFETCH(const QString, model);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model)));
        const auto console = lineTo(simulator, model);
        QElapsedTimer silence;
        silence.start();
        QVERIFY(console->send(bytes("80 0C 0E")));
        QTRY_COMPARE(simulator.frames(), QStringList{model + " | no ID | 80 0C 0E | no frame"_L1});
        QVERIFY2(silence.elapsed() >= 900, qPrintable(QString::number(silence.elapsed())));
        QVERIFY2(silence.elapsed() < longestDelay, qPrintable(QString::number(silence.elapsed())));
        QVERIFY(console->send(bytes("80 02 01")));
        QTRY_COMPARE(console->received(), "OK Play\r\n"_ba);
    }

    // What has arrived is shown although the console is gone before the frame ends.
    void frameCutByTheConsole()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(vistarShowTcp)));
        auto console = lineTo(simulator, vistarShowTcp);
        QVERIFY(console->send(bytes("80 02 01")));
        QTRY_COMPARE(console->received(), "OK Play\r\n"_ba);
        QVERIFY(console->send(bytes("80 0C 0E")));
        console.reset();
        QTRY_COMPARE(simulator.frames(),
                     QStringList({vistarShowTcp + " | ID 0 | 80 02 01 | Play"_L1,
                                  vistarShowTcp + " | no ID | 80 0C 0E | no frame"_L1}));
    }

    // A console that says much and leaves at once has said all of it.
    void consoleThatLeavesAtOnce()
    {
        constexpr int count = 30'000; // more than the device reads at a time
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(vistarShowTcp, {u"--fault"_s, u"no-answer"_s})));
        const qsizetype said = simulator.lines().size();
        {
            const auto console = lineTo(simulator, vistarShowTcp);
            QVERIFY(console->send(bytes("80 02 09").repeated(count)));
        }
        QTRY_COMPARE_WITH_TIMEOUT(simulator.lines().size(), said + count, longWait);
        QCOMPARE(simulator.frames().constLast(),
                 vistarShowTcp + " | ID 0 | 80 02 09 | Volume +"_L1);
    }

    void manyConsoles()
    {
        constexpr int count = 12;
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(vistarShowTcp)));
        std::vector<std::unique_ptr<Line>> consoles;
        consoles.reserve(count);
        for (int i = 0; i < count; ++i)
            consoles.push_back(lineTo(simulator, vistarShowTcp));
        // Each of them has begun a frame when the others go on with theirs.
        for (int i = 0; i < count; ++i)
            QVERIFY(consoles.at(static_cast<size_t>(i))->send(bytes("80 03")));
        for (int i = 0; i < count; ++i)
            QVERIFY(consoles.at(static_cast<size_t>(i))->send(QByteArray(1, static_cast<char>(i))));
        for (int i = 0; i < count; ++i) {
            QTRY_COMPARE(consoles.at(static_cast<size_t>(i))->received(),
                         "OK Volume " + QByteArray::number(i) + "\r\n");
        }
        QCOMPARE(simulator.frames().size(), count);
        // They all talk to one device.
        consoles.front()->takeReceived();
        QVERIFY(consoles.back()->send(bytes("80 03 63")));
        QTRY_VERIFY(consoles.back()->received().endsWith("OK Volume 99\r\n"));
        QVERIFY(consoles.front()->send(bytes("80 04 0B")));
        QTRY_COMPARE(consoles.front()->received(), "Volume: 99\r\n"_ba);
    }

    void tooManyConsoles()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(vistarShowTcp)));
        std::vector<std::unique_ptr<TcpLine>> consoles;
        for (int i = 0; i < 40; ++i) {
            consoles.push_back(
                std::make_unique<TcpLine>(SimulatorProgram::firstAddress(), quint16(65079)));
            consoles.back()->socket().write(bytes("80 02 01"));
        }
        const auto count = [&](auto is) {
            return static_cast<int>(std::count_if(consoles.begin(), consoles.end(), is));
        };
        const auto isServed = [](const std::unique_ptr<TcpLine> &console) {
            return console->received() == "OK Play\r\n";
        };
        const auto isCut = [](const std::unique_ptr<TcpLine> &console) { return console->isCut(); };
        QTRY_COMPARE(count(isServed), 32);
        QTRY_COMPARE(count(isCut), 8);
        QCOMPARE(count([&](const auto &console) { return isServed(console) && isCut(console); }),
                 0);

        // Who leaves makes room.
        std::erase_if(consoles, isCut);
        consoles.pop_back();
        QByteArray answer;
        QVERIFY(QTest::qWaitFor([&] {
            TcpLine late(SimulatorProgram::firstAddress(), 65079);
            late.socket().write(bytes("80 02 02"));
            static_cast<void>(
                QTest::qWaitFor([&] { return !late.received().isEmpty() || late.isCut(); }));
            answer = late.received();
            return !answer.isEmpty();
        }));
        QCOMPARE(answer, "OK Stop\r\n"_ba);
    }

    void connectOnDemand()
    {
        const QByteArray play = bytes("04 000000 636D6400 333200 32353500 32353500");
        const QByteArray stop = bytes("04 000000 636D6400 333400 32353500 32353500");
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(lite)));
        for (int i = 0; i < 3; ++i) {
            const auto console = lineTo(simulator, lite);
            QVERIFY(console->send(play));
            QTRY_VERIFY(console->isCut());
            QCOMPARE(console->received(), "OK Play\r\n"_ba);
        }
        // What arrives together is answered before the device hangs up.
        const auto console = lineTo(simulator, lite);
        QVERIFY(console->send(play + stop + stop));
        QTRY_VERIFY(console->isCut());
        QCOMPARE(console->received(), "OK Play\r\nOK Stop\r\nOK Stop\r\n"_ba);
        QTRY_COMPARE(simulator.frames().size(), 6);
        QCOMPARE(simulator.frames().constLast(),
                 u"Sonet A Lite (TCP/IP) | no ID | 04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 "
                 "35 35 00 | Stop"_s);

        // What is no command is none to hang up after.
        const auto patient = lineTo(simulator, lite);
        QVERIFY(patient->send(bytes("FF FE")));
        QTRY_COMPARE(simulator.frames().size(), 7);
        QVERIFY(!patient->isCut());
        QVERIFY(patient->send(play));
        QTRY_VERIFY(patient->isCut());
        QCOMPARE(patient->received(), "OK Play\r\n"_ba);
    }

    void closedSide_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QByteArray>("play");

        QTest::newRow("connection that stays") << vistarShowTcp << bytes("80 02 01");
        QTest::newRow("connection on demand")
            << lite << bytes("04 000000 636D6400 333200 32353500 32353500");
    }

    // Tools such as netcat close their side after the command, and read on.
    void closedSide()
    {
        QFETCH(const QString, model);
        QFETCH(const QByteArray, play);

        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model)));
        const QString place = simulator.endpoint(model);
        for (int i = 0; i < 10; ++i) {
            TcpLine console(QHostAddress(place.section(u' ', 0, 0)),
                            place.section(u' ', 2, 2).toUShort());
            QTRY_VERIFY(console.isConnected());
            console.socket().write(play);
            QVERIFY(console.socket().flush());
            QCOMPARE(::shutdown(static_cast<int>(console.socket().socketDescriptor()), SHUT_WR), 0);
            QTRY_VERIFY(console.isCut());
            QCOMPARE(console.received(), "OK Play\r\n"_ba);
        }
    }

    void faults_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("hangsUp");

        const std::array<std::pair<const char *, QString>, 3> models{
            {{"pty", tempoDeck}, {"TCP/IP", vistarShowTcp}, {"on demand", lite}}};
        for (const auto &[name, model] : models) {
            const bool onDemand = model == lite;
            const auto row = [&, &place = name, &player = model](
                                 const char *fault, const QByteArray &answer, bool hangsUp) {
                QTest::addRow("%s, %s", fault, place)
                    << player << QString::fromLatin1(fault) << answer << (hangsUp || onDemand);
            };
            row("single-bytes", "OK Play\r\n", false);
            row("garbage",
                bytes("00 80 FF FE 7F 4F 4B 20 50 6C 61 79 0D 0A C3 28 F0 9F 1B 5B 32 "
                      "4A E2 82"),
                false);
            row("hang-up", "OK P", true);
            row("megabyte", "OK Play\r\n"_ba.repeated(116'509).first(1'048'576), false);
            row("markup",
                "<b>OK Play</b> <img src=\"http://127.0.0.1:9/device.png\"><img "
                "src=\"file:///etc/hostname\"><a href=\"http://127.0.0.1:9/\">more</a>\r\n",
                false);
        }
    }

    void faults()
    {
        QFETCH(const QString, model);
        QFETCH(const QString, fault);
        QFETCH(const QByteArray, answer);
        QFETCH(const bool, hangsUp);

        const QByteArray play = model == lite ? bytes("04 000000 636D6400 333200 32353500 32353500")
                                              : bytes("80 02 01");
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model, {u"--fault"_s, fault})));
        for (int i = 1; i <= 2; ++i) {
            const auto console = lineTo(simulator, model);
            QElapsedTimer timer;
            timer.start();
            QVERIFY(console->send(play));
            QTRY_VERIFY_WITH_TIMEOUT(
                console->received().size() >= answer.size() || console->isCut(), longWait);
            if (fault == "single-bytes"_L1) // nine bytes, 20 ms before each
                QVERIFY2(timer.elapsed() >= 162, qPrintable(QString::number(timer.elapsed())));
            QTRY_COMPARE(hangsUp, console->isCut());
            QCOMPARE(console->received(), answer);
            // The command is obeyed all the same.
            QTRY_COMPARE(simulator.frames().size(), i);
            QVERIFY2(simulator.frames().constLast().endsWith(" | Play"_L1),
                     qPrintable(simulator.frames().constLast()));
            // On a serial line, a pulled plug comes back at a new place.
            if (hangsUp && model == tempoDeck)
                QTRY_COMPARE(simulator.lines().filter(u"/dev/pts/"_s).size(), 1 + i);
        }
    }

    void noAnswer_data() { addPlaces(); }

    void noAnswer()
    {
        QFETCH(const QString, model);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model, {u"--fault"_s, u"no-answer"_s})));
        const auto console = lineTo(simulator, model);
        QVERIFY(console->send(bytes("80 02 01 80 04 01")));
        QTRY_COMPARE(simulator.frames(),
                     QStringList({model + " | ID 0 | 80 02 01 | Play"_L1,
                                  model + " | ID 0 | 80 04 01 | Request: Player Status"_L1}));
        QVERIFY(!console->isCut());
        // What might be on its way has arrived when the device is gone.
        QVERIFY(simulator.stop());
        QTRY_VERIFY(console->isCut());
        QCOMPARE(console->received(), ""_ba);
    }

    void noAnswerOnDemand()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(lite, {u"--fault"_s, u"no-answer"_s})));
        const auto console = lineTo(simulator, lite);
        QVERIFY(console->send(bytes("04 000000 636D6400 333200 32353500 32353500")));
        QTRY_VERIFY(console->isCut());
        QCOMPARE(console->received(), ""_ba);
        QTRY_COMPARE(simulator.frames().size(), 1);
    }

    void pulledPlugMovesTheLink()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(
            {u"--model"_s, tempoDeck, u"--fault"_s, u"hang-up"_s, u"--link"_s, path}));
        for (int i = 1; i <= 3; ++i) {
            SerialLine console(path);
            QVERIFY(console.isOpen());
            QVERIFY(console.send(bytes("80 02 02")));
            QTRY_VERIFY(console.isCut());
            QCOMPARE(console.received(), "OK S"_ba);
            QTRY_COMPARE(simulator.lines().filter(u"/dev/pts/"_s).size(), 1 + i);
            QCOMPARE(simulator.lines().constLast(),
                     u"Tempo Deck: %1 (%2)"_s.arg(path, QFile::symLinkTarget(path)));
        }
        QVERIFY(simulator.stop());
        QCOMPARE(entriesOf(folder.path()), QStringList());
    }

    void nothingAfterHangUp_data()
    {
        QTest::addColumn<QString>("model");

        QTest::newRow("serial") << tempoDeck;
        QTest::newRow("TCP/IP") << vistarShowTcp;
    }

    void nothingAfterHangUp()
    {
        QFETCH(const QString, model);

        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(model, {u"--fault"_s, u"hang-up"_s})));
        const auto console = lineTo(simulator, model);
        QVERIFY(console->send(bytes("80 02 01 80 02 02 80 02 01")));
        QTRY_VERIFY(console->isCut());
        QCOMPARE(console->received(), "OK P"_ba);
        QTRY_COMPARE(simulator.frames().size(), 3);
    }

    // Nobody reads the half answer: the plug is pulled all the same.
    void pulledPlugWithoutReader()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck, {u"--fault"_s, u"hang-up"_s})));
        SerialLine console(simulator.endpoint(tempoDeck));
        QVERIFY(console.send(bytes("80 02 02")));
        QTRY_COMPARE(simulator.lines().filter(u"/dev/pts/"_s).size(), 2);
    }

    void refusal()
    {
        QElapsedTimer sinceStart;
        sinceStart.start();
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(vistarShowTcp, {u"--fault"_s, u"refuse"_s})));
        QCOMPARE(simulator.endpoint(vistarShowTcp), addressText() + " port 65079"_L1);

        for (int i = 1; i <= 2; ++i) {
            TcpLine early(SimulatorProgram::firstAddress(), 65079);
            QTRY_COMPARE(early.socket().error(), QAbstractSocket::ConnectionRefusedError);

            std::unique_ptr<TcpLine> console;
            QVERIFY(QTest::qWaitFor(
                [&] {
                    console = std::make_unique<TcpLine>(SimulatorProgram::firstAddress(),
                                                        quint16(65079));
                    return QTest::qWaitFor([&] { return console->isConnected(); }, 50);
                },
                longWait));
            QVERIFY2(sinceStart.elapsed() >= shortestOutage,
                     qPrintable(QString::number(sinceStart.elapsed())));
            QVERIFY2(sinceStart.elapsed() < longestDelay,
                     qPrintable(QString::number(sinceStart.elapsed())));
            QVERIFY(console->send(bytes("80 02 01")));
            QTRY_COMPARE(console->received(), "OK Play\r\n"_ba);

            // Refused again once this one is gone.
            sinceStart.restart();
            console->socket().disconnectFromHost();
            QTRY_VERIFY(console->isCut());
            QVERIFY(QTest::qWaitFor([&] {
                TcpLine next(SimulatorProgram::firstAddress(), 65079);
                return QTest::qWaitFor(
                    [&] {
                        return next.socket().error() == QAbstractSocket::ConnectionRefusedError;
                    },
                    50);
            }));
        }
    }

    // A serial line cannot refuse; the device is deaf instead.
    void deafness()
    {
        QElapsedTimer sinceStart;
        sinceStart.start();
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck, {u"--fault"_s, u"refuse"_s})));
        SerialLine console(simulator.endpoint(tempoDeck));
        QVERIFY(console.send(bytes("80 02 02")));
        QVERIFY(QTest::qWaitFor(
            [&] {
                console.send(bytes("80 02 01"));
                return QTest::qWaitFor([&] { return !console.received().isEmpty(); }, 100);
            },
            longWait));
        QVERIFY2(sinceStart.elapsed() >= shortestOutage,
                 qPrintable(QString::number(sinceStart.elapsed())));
        QVERIFY2(sinceStart.elapsed() < longestDelay,
                 qPrintable(QString::number(sinceStart.elapsed())));
        QTRY_VERIFY(console.received().startsWith("OK Play\r\n"));
        QTRY_VERIFY(!simulator.frames().isEmpty());
        QStringList frames = simulator.frames();
        frames.removeDuplicates();
        QCOMPARE(frames, QStringList{u"Tempo Deck | ID 0 | 80 02 01 | Play"_s});
    }

    void consoleThatNeverReads_data() { addPlaces(); }

    /// The bytes that wait, each of them a step of its own, take not much more room than their
    /// number.
    void consoleThatNeverReads()
    {
        QFETCH(const QString, model);

        constexpr int requests = 60'000; // 1.5 million bytes of answers

        // What a slow reader of the output misses is in the log.
        const QTemporaryDir folder;
        QFile log(folder.filePath(u"log"_s));
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck, {u"--model"_s, model, u"--log"_s, log.fileName(),
                                                    u"--fault"_s, u"single-bytes"_s})));
        QVERIFY(log.open(QIODevice::ReadOnly));
        log.readAll();
        qsizetype frames = 0;
        const int before = statusValue(simulator.processId(), "VmRSS");
        QVERIFY2(before > 0, qPrintable(QString::number(before)));

        const auto flood = lineTo(simulator, model);
        if (auto *tcp = dynamic_cast<TcpLine *>(flood.get()))
            tcp->socket().setReadBufferSize(1);
        QVERIFY(flood->send(bytes("80 04 03").repeated(requests)));
        const auto other = lineTo(simulator, tempoDeck);
        QVERIFY(other->send(bytes("80 02 01")));
        QTRY_VERIFY_WITH_TIMEOUT(other->received().startsWith("OK Play\r\n"), longWait);
        // All requests are answered or given up before the memory is looked at. On a busy machine a
        // frame may come in two parts, with so much time in between that each is a line.
        QTRY_VERIFY_WITH_TIMEOUT((frames += log.readAll().count('\n')) > requests, longWait);
        const int most = statusValue(simulator.processId(), "VmHWM");
        QVERIFY2(most - before < highestGrowth,
                 qPrintable(u"%1 kB at first, %2 kB at most"_s.arg(before).arg(most)));
        QVERIFY(simulator.isRunning());
        QVERIFY(simulator.stop());
        QCOMPARE(simulator.exitCode(), 0);
    }

    void longAnswersToNobody_data() { addPlaces(); }

    // One by one, so that each answer finds its way to the line as far as there is room.
    void longAnswersToNobody()
    {
        QFETCH(const QString, model);
        SimulatorProgram simulator;
        QVERIFY(simulator.start(
            playing(tempoDeck, {u"--model"_s, model, u"--fault"_s, u"megabyte"_s})));
        const qsizetype said = simulator.lines().size();
        const int before = statusValue(simulator.processId(), "VmRSS");
        QVERIFY2(before > 0, qPrintable(QString::number(before)));
        const auto console = lineTo(simulator, model);
        if (auto *tcp = dynamic_cast<TcpLine *>(console.get()))
            tcp->socket().setReadBufferSize(1);
        for (int i = 1; i <= 150; ++i) {
            QVERIFY(console->send(bytes("80 04 03")));
            QVERIFY(
                QTest::qWaitFor([&] { return simulator.lines().size() == said + i; }, longWait));
        }
        const auto other = lineTo(simulator, tempoDeck);
        QVERIFY(other->send(bytes("80 02 01")));
        QTRY_VERIFY_WITH_TIMEOUT(other->received().startsWith("OK Play\r\n"), longWait);
        const int most = statusValue(simulator.processId(), "VmHWM");
        QVERIFY2(most - before < highestGrowth,
                 qPrintable(u"%1 kB at first, %2 kB at most"_s.arg(before).arg(most)));
    }

    void nothingGraphical()
    {
        SimulatorProgram simulator;
        QVERIFY(simulator.start(playing(tempoDeck)));
        const QByteArray maps = contentOf(u"/proc/%1/maps"_s.arg(simulator.processId()));
        QVERIFY2(maps.contains("libQt6Network"), maps); // or the looking would be in vain
        for (const char *library :
             {"libQt6Gui", "libQt6Widgets", "libQt6DBus", "libX11", "libxcb", "libGL", "libfont"})
            QVERIFY2(!maps.contains(library), library);
    }

private:
    void addPlaces()
    {
        QTest::addColumn<QString>("model");
        QTest::newRow("serial") << u"Vistar Show - SV500 (Serial)"_s;
        QTest::newRow("TCP/IP") << vistarShowTcp;
    }

    std::unique_ptr<SimulatorProgram> m_all;
};

TESSALY_TEST(tst_Simulator)
#include "tst_simulator.moc"
