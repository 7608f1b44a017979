// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "attentionmeter.h"
#include "passivepeer.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/settingsfile.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTextEdit>

#include <ctime>
#include <memory>

#include <malloc.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray play = "\x80\x02\x01"_ba;
const QByteArray onDemandPlay = QByteArray::fromHex("04000000636d640033320032353500323535"
                                                    "00");

/// The window with a model picked.
class Console : public ConsoleWindow
{
public:
    explicit Console(const QString &model)
    {
        find<QComboBox>("comboBox_Port")->clear();
        selectModel(rowOfModel(model));
        setAddress(TcpPeer::address().toString());
    }

    bool isEnabled(const char *widget) const
    {
        const auto *found = find<QWidget>(widget);
        return found->isEnabledTo(found->parentWidget());
    }
    bool looksConnected() const
    {
        return isEnabled("pushButton_Disconnect") && !isEnabled("pushButton_Connect")
               && isEnabled("frame_Commands") && !isEnabled("frame_Settings");
    }
    bool looksDisconnected() const
    {
        return !isEnabled("pushButton_Disconnect") && isEnabled("pushButton_Connect")
               && !isEnabled("frame_Commands") && isEnabled("frame_Settings");
    }
    QString shown() const { return find<QTextEdit>("textEdit_Data")->toPlainText(); }

    void expectQuiet() const { QCOMPARE(m_boxes.messages.size(), 0); }

private:
    MessageBoxCatcher m_boxes;
};

bool anyLinkIsOpen()
{
    return serialPort->isOpen() || tcpSocket->isOpen();
}

/// What the process has in use on its heap.
qint64 usedMemory()
{
    const struct mallinfo2 info = ::mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

constexpr int rounds = 100;

/// The files that this process has open. What stays open in each round is a leak; Qt may open some
/// for itself, once.
class OpenFiles
{
public:
    bool haveGrown() const { return count() - m_before >= rounds / 10; }

private:
    static qsizetype count() { return QDir(u"/proc/self/fd"_s).entryList(QDir::NoFilter).size(); }

    const qsizetype m_before = count();
};

qint64 processorMilliseconds()
{
    return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

} // namespace

class tst_LinkFaults : public QObject
{
    Q_OBJECT

private slots:
    void serialDeviceVanishesInAReceivedText();
    void networkDeviceHangsUpAfterAReceivedText();
    void networkDeviceResetsInAReceivedText();
    void serialDeviceVanishesDuringAWrite();
    void networkDeviceHangsUpDuringAWrite();
    void networkDeviceResetsDuringAWrite();
    void networkDeviceStopsSendingDuringAWrite();
    void networkDeviceResets();
    void onDemandDeviceResets();
    void halfOpenConnection();
    void halfOpenConnectionIsEndedByTheSystem();
    void serialDeviceNeverReads();
    void networkDeviceNeverReads();
    void serialDeviceReadsAtLast();
    void networkDeviceReadsAtLast();
    void manySerialConnects();
    void manyNetworkConnects();
    void manyHangUps();
    void manyOnDemandCommands();
    void manyRefusedCommands();
    void manyVanishedDevices();
    void configurationChangesTheModel_data();
    void configurationChangesTheModel();
};

void tst_LinkFaults::serialDeviceVanishesInAReceivedText()
{
    Console console(serialModel);
    {
        PtyPeer peer;
        console.connectSerial(peer);
        QVERIFY(peer.send("Volume: "_ba));
        QTRY_COMPARE(receivedText, u"Volume: "_s);
        QVERIFY(peer.send("64\r\n"_ba));
        peer.hangUp();
        QTRY_VERIFY(console.looksDisconnected());
    }
    QVERIFY(!anyLinkIsOpen());
    // What was still under way may be lost, what has come is not.
    QVERIFY2(u"Volume: 64\r\n"_s.startsWith(receivedText), qPrintable(receivedText));
    QVERIFY(receivedText.startsWith(u"Volume: "_s));

    const QString before = receivedText;
    PtyPeer next;
    console.connectSerial(next);
    QVERIFY(next.send("OK"_ba));
    QTRY_COMPARE(receivedText, before + u"OK"_s);
    QTRY_VERIFY(console.shown().endsWith(u"OK"_s));
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceHangsUpAfterAReceivedText()
{
    TcpPeer peer(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QTRY_VERIFY(peer.isConnected());
    // A hang-up comes after all that was sent: none of it is lost.
    const QByteArray line = "0123456789:;=?@\n"_ba;
    peer.send(line.repeated(10'000));
    peer.hangUp();
    QTRY_VERIFY(console.looksDisconnected());
    QVERIFY(!anyLinkIsOpen());
    QCOMPARE(receivedText.size(), 160'000);
    QVERIFY(receivedText == QString::fromLatin1(line).repeated(10'000));
    QTRY_COMPARE(console.shown().size(), 160'000);
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceResetsInAReceivedText()
{
    PassivePeer peer(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(peer.accept());
    peer.send("Volume: "_ba);
    QTRY_COMPARE(receivedText, u"Volume: "_s);
    peer.send("64\r\n"_ba);
    peer.reset();
    QTRY_VERIFY(console.looksDisconnected());
    QVERIFY(!anyLinkIsOpen());
    QVERIFY2(u"Volume: 64\r\n"_s.startsWith(receivedText), qPrintable(receivedText));
    QVERIFY(receivedText.startsWith(u"Volume: "_s));
    console.expectQuiet();
}

void tst_LinkFaults::serialDeviceVanishesDuringAWrite()
{
    Console console(serialModel);
    {
        PtyPeer deaf;
        console.connectSerial(deaf);
        while (serialPort->bytesToWrite() < 1000) {
            console.window.on_pushButton_Play_clicked();
            QCoreApplication::processEvents();
        }
        deaf.hangUp();
        QTRY_VERIFY(console.looksDisconnected());
    }
    QVERIFY(!anyLinkIsOpen());
    // A port that is left open keeps a core busy from here on.
    const qint64 before = processorMilliseconds();
    QTest::qWait(500);
    const qint64 used = processorMilliseconds() - before;
    QVERIFY2(used < 150, qPrintable(QString::number(used)));

    // The next device gets nothing of what was meant for the last one.
    PtyPeer next;
    console.connectSerial(next);
    console.window.on_pushButton_Play_clicked();
    QTRY_COMPARE(next.received(), play);
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceHangsUpDuringAWrite()
{
    auto deaf = std::make_unique<PassivePeer>(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(deaf->accept());
    console.window.on_pushButton_Play_clicked();
    QCOMPARE(tcpSocket->bytesToWrite(), play.size());
    // It closes with unread bytes or none: either way the connection is over.
    deaf.reset();
    QTRY_VERIFY(console.looksDisconnected());
    QVERIFY(!anyLinkIsOpen());

    const TcpPeer next(portOf(tcpModel));
    QVERIFY(console.connectTcp());
    console.window.on_pushButton_Play_clicked();
    QTRY_COMPARE(next.received(), play);
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceResetsDuringAWrite()
{
    auto deaf = std::make_unique<PassivePeer>(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(deaf->accept());
    while (tcpSocket->bytesToWrite() < 1000) {
        console.window.writeFrame(0x80, 2, QByteArray(10'000, '\x01'));
        QCoreApplication::processEvents();
    }
    deaf->reset();
    QTRY_VERIFY(console.looksDisconnected());
    QVERIFY(!anyLinkIsOpen());
    QCOMPARE(tcpSocket->bytesToWrite(), 0);
    deaf.reset();

    const TcpPeer next(portOf(tcpModel));
    QVERIFY(console.connectTcp());
    console.window.on_pushButton_Play_clicked();
    QTRY_COMPARE(next.received(), play);
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceStopsSendingDuringAWrite()
{
    PassivePeer peer(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(peer.accept());
    while (tcpSocket->bytesToWrite() < 1000) {
        console.window.writeFrame(0x80, 2, QByteArray(10'000, '\x01'));
        QCoreApplication::processEvents();
    }
    // Its other direction stays open, and it never reads what waits there.
    peer.stopSending();
    QTRY_VERIFY(console.looksDisconnected());
    QVERIFY(!anyLinkIsOpen());
    QCOMPARE(tcpSocket->bytesToWrite(), 0);
    peer.reset();

    QVERIFY(console.connectTcp());
    QVERIFY(peer.accept());
    console.window.on_pushButton_Play_clicked();
    QByteArray received;
    QTRY_COMPARE((received += peer.read()).toHex(), play.toHex());
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceResets()
{
    PassivePeer peer(portOf(tcpModel));
    Console console(tcpModel);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(console.connectTcp());
        QVERIFY(peer.accept());
        QVERIFY(console.looksConnected());
        peer.reset();
        QTRY_VERIFY(console.looksDisconnected());
        QVERIFY(!anyLinkIsOpen());
    }
    console.expectQuiet();
}

void tst_LinkFaults::onDemandDeviceResets()
{
    PassivePeer peer(portOf(onDemandModel));
    Console console(onDemandModel);
    for (int i = 0; i < 2; ++i) {
        console.click("pushButton_Play");
        QVERIFY(peer.accept());
        QByteArray received;
        QTRY_COMPARE((received += peer.read()).toHex(), onDemandPlay.toHex());
        QTRY_VERIFY(console.looksConnected());
        peer.reset();
        QTRY_VERIFY(!anyLinkIsOpen());
        QTRY_VERIFY(console.isEnabled("frame_Commands") && console.isEnabled("frame_Settings"));
    }
    console.expectQuiet();
}

void tst_LinkFaults::halfOpenConnection()
{
    PassivePeer peer(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(peer.accept());
    peer.ignoreEverything();

    // Nothing tells the console; it goes on, and its user is not held up.
    const AttentionMeter attention;
    for (int i = 0; i < 1000; ++i) {
        console.window.on_pushButton_Play_clicked();
        QCoreApplication::processEvents();
    }
    QVERIFY(console.looksConnected());
    QVERIFY2(attention.longestAbsence() < 500ms,
             qPrintable(QString::number(attention.longestAbsence().count())));

    QElapsedTimer time;
    time.start();
    console.click("pushButton_Disconnect");
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(console.looksDisconnected());
    QVERIFY(!anyLinkIsOpen());

    // The device is back.
    QVERIFY(console.connectTcp());
    QVERIFY(peer.accept());
    console.window.on_pushButton_Play_clicked();
    QByteArray received;
    QTRY_COMPARE((received += peer.read()).toHex(), play.toHex());
    console.expectQuiet();
}

void tst_LinkFaults::halfOpenConnectionIsEndedByTheSystem()
{
    PassivePeer peer(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(peer.accept());
    peer.ignoreEverything();
    // By itself the system takes a quarter of an hour.
    const unsigned milliseconds = 300;
    QCOMPARE(::setsockopt(int(tcpSocket->socketDescriptor()), IPPROTO_TCP, TCP_USER_TIMEOUT,
                          &milliseconds, sizeof milliseconds),
             0);
    console.window.on_pushButton_Play_clicked();
    QTRY_VERIFY_WITH_TIMEOUT(console.looksDisconnected(), 20'000);
    QVERIFY(!anyLinkIsOpen());
    console.expectQuiet();
}

namespace {

// A shortcut that is held down repeats thirty times a second; this is what ten minutes of it send.
constexpr int manyCommands = 18'000;

/// Sends them, and looks at what they cost.
void sendManyCommands(Console &console)
{
    const QIODevice &link = serialPort->isOpen() ? static_cast<QIODevice &>(*serialPort)
                                                 : static_cast<QIODevice &>(*tcpSocket);
    console.window.on_pushButton_Play_clicked();
    QCoreApplication::processEvents();
    const qint64 memoryBefore = usedMemory();
    const AttentionMeter attention;
    for (int i = 1; i < manyCommands; ++i) {
        console.window.on_pushButton_Play_clicked();
        if (i % 10 == 0)
            QCoreApplication::processEvents();
    }
    // The bound is the commands themselves: three bytes each, none of which the device has read.
    QVERIFY(link.bytesToWrite() <= manyCommands * play.size());
    QVERIFY(link.bytesToWrite() > 0);
    const qint64 grown = usedMemory() - memoryBefore;
    QVERIFY2(grown < 262'144, qPrintable(QString::number(grown)));
    QVERIFY2(attention.longestAbsence() < 500ms,
             qPrintable(QString::number(attention.longestAbsence().count())));
    QVERIFY(console.looksConnected());

    // Waiting for the device costs nothing.
    const qint64 before = processorMilliseconds();
    QTest::qWait(500);
    const qint64 used = processorMilliseconds() - before;
    QVERIFY2(used < 150, qPrintable(QString::number(used)));
}

/// Leaves the system so little room for what the device has not read that commands have to wait.
void keepSendBufferSmall()
{
    const int room = 1; // the system takes its minimum
    QCOMPARE(
        ::setsockopt(int(tcpSocket->socketDescriptor()), SOL_SOCKET, SO_SNDBUF, &room, sizeof room),
        0);
}

} // namespace

void tst_LinkFaults::serialDeviceNeverReads()
{
    const PtyPeer deaf;
    Console console(serialModel);
    console.connectSerial(deaf);
    sendManyCommands(console);

    QElapsedTimer time;
    time.start();
    console.click("pushButton_Disconnect");
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(console.looksDisconnected());

    // The next device gets nothing of what was meant for this one.
    PtyPeer next;
    console.connectSerial(next);
    console.window.on_pushButton_Stop_clicked();
    QTRY_COMPARE(next.received().toHex(), "800202"_ba);
    console.expectQuiet();
}

void tst_LinkFaults::networkDeviceNeverReads()
{
    PassivePeer deaf(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(deaf.accept());
    keepSendBufferSmall();
    sendManyCommands(console);

    QElapsedTimer time;
    time.start();
    console.click("pushButton_Disconnect");
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(console.looksDisconnected());
    QCOMPARE(tcpSocket->bytesToWrite(), 0);
    console.expectQuiet();
}

void tst_LinkFaults::serialDeviceReadsAtLast()
{
    PtyPeer slow;
    Console console(serialModel);
    console.connectSerial(slow);
    sendManyCommands(console);
    QTRY_COMPARE_WITH_TIMEOUT(slow.received().size(), manyCommands * play.size(), 30'000);
    QVERIFY(slow.received() == play.repeated(manyCommands));
}

void tst_LinkFaults::networkDeviceReadsAtLast()
{
    PassivePeer slow(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QVERIFY(slow.accept());
    keepSendBufferSmall();
    sendManyCommands(console);
    QByteArray received;
    QTRY_COMPARE_WITH_TIMEOUT((received += slow.read()).size(), manyCommands * play.size(), 30'000);
    QVERIFY(received == play.repeated(manyCommands));
}

void tst_LinkFaults::manySerialConnects()
{
    PtyPeer peer;
    Console console(serialModel);
    console.connectSerial(peer);
    console.click("pushButton_Disconnect");
    const OpenFiles files;
    for (int i = 0; i < rounds; ++i) {
        console.click("pushButton_Connect");
        QVERIFY(console.looksConnected());
        console.click("pushButton_Play");
        QTRY_COMPARE(peer.received(), play);
        peer.takeReceived();
        console.click("pushButton_Disconnect");
        QVERIFY(console.looksDisconnected());
        QVERIFY(!anyLinkIsOpen());
    }
    QVERIFY(!files.haveGrown());
    // The port is free for others.
    QSerialPort other;
    other.setPortName(peer.portName());
    QVERIFY(other.open(QIODevice::ReadWrite));
    console.expectQuiet();
}

void tst_LinkFaults::manyNetworkConnects()
{
    TcpPeer peer(portOf(tcpModel));
    Console console(tcpModel);
    const OpenFiles files;
    for (int i = 1; i <= rounds; ++i) {
        QVERIFY(console.connectTcp());
        console.click("pushButton_Play");
        QTRY_COMPARE(peer.received(), play);
        peer.takeReceived();
        QCOMPARE(peer.connectionCount(), i);
        console.click("pushButton_Disconnect");
        QVERIFY(console.looksDisconnected());
        QTRY_VERIFY(!peer.isConnected());
    }
    QVERIFY(!files.haveGrown());
    console.expectQuiet();
}

void tst_LinkFaults::manyHangUps()
{
    TcpPeer peer(portOf(tcpModel));
    Console console(tcpModel);
    const OpenFiles files;
    for (int i = 0; i < rounds; ++i) {
        QVERIFY(console.connectTcp());
        QTRY_VERIFY(peer.isConnected());
        peer.hangUp();
        QTRY_VERIFY(console.looksDisconnected());
        QVERIFY(!anyLinkIsOpen());
        QTRY_VERIFY(!peer.isConnected());
    }
    QVERIFY(!files.haveGrown());
    console.expectQuiet();
}

void tst_LinkFaults::manyOnDemandCommands()
{
    TcpPeer peer(portOf(onDemandModel));
    Console console(onDemandModel);
    const OpenFiles files;
    for (int i = 1; i <= rounds; ++i) {
        console.click("pushButton_Play");
        QTRY_COMPARE(peer.received().toHex(), onDemandPlay.toHex());
        peer.takeReceived();
        QCOMPARE(peer.connectionCount(), i);
        peer.hangUp();
        QTRY_VERIFY(!anyLinkIsOpen() && !peer.isConnected());
    }
    QVERIFY(!files.haveGrown());
    console.expectQuiet();
}

void tst_LinkFaults::manyRefusedCommands()
{
    Console console(onDemandModel);
    const OpenFiles files;
    for (int i = 0; i < rounds; ++i) {
        console.click("pushButton_Play");
        QVERIFY(anyLinkIsOpen());
        QTRY_VERIFY(!anyLinkIsOpen());
    }
    QVERIFY(!files.haveGrown());
    console.expectQuiet();
}

void tst_LinkFaults::manyVanishedDevices()
{
    Console console(serialModel);
    const OpenFiles files;
    for (int i = 0; i < rounds; ++i) {
        {
            // Each device is another one, and nobody presses Disconnect.
            const PtyPeer peer;
            QVERIFY(console.window.openSerialPort(9600, peer.portName()));
        }
        QTRY_VERIFY(!anyLinkIsOpen());
    }
    QVERIFY(!files.haveGrown());
    console.expectQuiet();
}

void tst_LinkFaults::configurationChangesTheModel_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QByteArray>("overSerial"); // each in hexadecimal
    QTest::addColumn<QByteArray>("overTcp");
    QTest::addColumn<QByteArray>("onDemand");
    QTest::addColumn<bool>("hasRequests");

    const QByteArray classic = "800201"_ba;
    const QByteArray onDemand = onDemandPlay.toHex();
    const QByteArray none;
    QTest::newRow("serial, to a simpler player")
        << serialModel << u"Tempo Deck"_s << classic << none << none << false;
    QTest::newRow("serial, to an extended one")
        << serialModel << extendedSerialModel << "20ffffff"_ba << none << none << false;
    QTest::newRow("serial, to a network model")
        << serialModel << tcpModel << classic << none << none << true;
    QTest::newRow("network, to a serial model")
        << tcpModel << serialModel << none << classic << none << true;
    // It is connected for the command, beside the link that is open.
    QTest::newRow("serial, to one on demand")
        << serialModel << onDemandModel << onDemand << none << onDemand << true;
    // With the socket open already, the command goes out there, twice.
    QTest::newRow("network, to one on demand")
        << tcpModel << onDemandModel << none << onDemand + onDemand << none << true;
}

/// The model list is disabled while a link is open, but a configuration can choose another model.
/// The link stays; what is sent is the new model's.
void tst_LinkFaults::configurationChangesTheModel()
{
    QFETCH(const QString, model);
    QFETCH(const QString, configured);
    QFETCH(const QByteArray, overSerial);
    QFETCH(const QByteArray, overTcp);
    QFETCH(const QByteArray, onDemand);
    QFETCH(const bool, hasRequests);
    PtyPeer serialPeer;
    TcpPeer tcpPeer(portOf(tcpModel));
    TcpPeer onDemandPeer(portOf(onDemandModel));
    Console console(model);
    const bool isSerial = model == serialModel;
    if (isSerial)
        console.connectSerial(serialPeer);
    else
        QVERIFY(console.connectTcp());
    QVERIFY(console.looksConnected());

    const QTemporaryDir folder;
    QFile file(folder.filePath(u"Tessaly.cfg"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(SettingsFile{.model = configured.toUtf8(),
                            .address = TcpPeer::address().toString().toLatin1().split('.')}
                   .bytes());
    file.close();
    console.window.loadConfig(file.fileName());

    QCOMPARE(console.find<QComboBox>("comboBox_Player")->currentText(), configured);
    QCOMPARE(!console.find<QWidget>("frame_Request")->isHidden(), hasRequests);
    QVERIFY(console.looksConnected());
    QCOMPARE(serialPort->isOpen(), isSerial);
    QCOMPARE(tcpSocket->isOpen(), !isSerial);

    console.click("pushButton_Play");
    QTRY_COMPARE(serialPeer.received().toHex(), overSerial);
    QTRY_COMPARE(tcpPeer.received().toHex(), overTcp);
    QTRY_COMPARE(onDemandPeer.received().toHex(), onDemand);
    QCOMPARE(tcpPeer.connectionCount(), isSerial ? 0 : 1);
    QCOMPARE(onDemandPeer.connectionCount(), onDemand.isEmpty() ? 0 : 1);
    if (isSerial)
        QVERIFY(serialPeer.send("OK"_ba));
    else
        tcpPeer.send("OK"_ba);
    QTRY_COMPARE(receivedText, u"OK"_s);

    // The widgets are those of the new model from here on.
    console.click("pushButton_Disconnect");
    QVERIFY(!anyLinkIsOpen());
    QCOMPARE(console.isEnabled("pushButton_Connect"), configured != onDemandModel);
    QCOMPARE(console.isEnabled("frame_Commands"), configured == onDemandModel);
    QVERIFY(!console.isEnabled("pushButton_Disconnect"));
    console.expectQuiet();
}

TESSALY_WINDOW_TEST(tst_LinkFaults)
#include "tst_linkfaults.moc"
