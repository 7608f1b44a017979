// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/protocol/linkedwindow.h"
#include "tests/support/hexbytes.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/testmain.h"

#include <QHostAddress>
#include <QPushButton>
#include <QSerialPort>
#include <QTcpSocket>

#include <array>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint16 port = 1234;

const QByteArray play = "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba;
const QByteArray stop = "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_ba;
const QByteArray lowestVolume
    = "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 36 34 00"_ba;
const QByteArray requestOfSource = "02 00 00 00 67 65 74 00 53 6F 75 72 63 65 00"_ba;
const QByteArray internalUsb = "04 00 00 00 63 6D 64 00 38 33 00 30 00 30 00"_ba;

QByteArray twice(const QByteArray &bytes)
{
    return bytes + ' ' + bytes;
}

void chooseModel(ConsoleWindow &console)
{
    console.selectModel(console.rowOfModel(u"Sonet A Lite (TCP/IP)"_s));
    console.setAddress(TcpPeer::address().toString());
}

/// A device that answers no connection attempt until it is told to: the queue of its listening
/// socket is full. The attempt that came too early is repeated by the system a second later.
class BusyDevice
{
public:
    explicit BusyDevice(quint16 ownPort)
        : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0))
        , m_queued(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(ownPort);
        address.sin_addr.s_addr = htonl(TcpPeer::address().toIPv4Address());
        const auto *where = reinterpret_cast<const sockaddr *>(&address);
        const int on = 1;
        ::setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        if (::bind(m_listener, where, sizeof address) != 0 || ::listen(m_listener, 0) != 0
            || ::connect(m_queued, where, sizeof address) != 0) {
            qFatal("no listening socket to be had");
        }
    }
    ~BusyDevice()
    {
        for (const int socket : {m_listener, m_queued, m_accepted, m_served}) {
            if (socket >= 0)
                ::close(socket);
        }
    }
    Q_DISABLE_COPY_MOVE(BusyDevice)

    /// Makes room in the queue, so that the next attempt is answered.
    void answer() { m_accepted = ::accept(m_listener, nullptr, nullptr); }

    QByteArray received()
    {
        if (m_served < 0)
            m_served = ::accept4(m_listener, nullptr, nullptr, SOCK_NONBLOCK);
        std::array<char, 4096> buffer;
        ssize_t count = 0;
        while (m_served >= 0 && (count = ::read(m_served, buffer.data(), buffer.size())) > 0)
            m_received.append(buffer.data(), count);
        return m_received;
    }

private:
    int m_listener = -1;
    int m_queued = -1;
    int m_accepted = -1;
    int m_served = -1;
    QByteArray m_received;
};

} // namespace

/// The family that is connected to for each command, with text messages.
class tst_OnDemand : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(std::exchange(m_messageBoxes.messages, {}).size(), 0); }

    void needsNoConnect();
    void writesTwiceToAnOpenSocket();
    void whileConnecting();
    void withSerialPortOpen();
    void bodies_data();
    void bodies();

private:
    MessageBoxCatcher m_messageBoxes;
};

void tst_OnDemand::needsNoConnect()
{
    TcpPeer device(port);
    ConsoleWindow console;
    chooseModel(console);
    QVERIFY(!console.find<QPushButton>("pushButton_Connect")->isEnabled());
    QVERIFY(!console.find<QPushButton>("pushButton_Disconnect")->isEnabled());
    QVERIFY(!tcpSocket->isOpen());

    for (int connections = 1; connections <= 3; ++connections) {
        console.click("pushButton_Play");
        QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(play));
        QTRY_COMPARE_WITH_TIMEOUT(hexBytes(device.received()), play, patience);
        QCOMPARE(device.connectionCount(), connections);
        QCOMPARE(tcpSocket->bytesToWrite(), 0);
        device.hangUp();
        QTRY_VERIFY_WITH_TIMEOUT(!tcpSocket->isOpen(), patience);
        // Nothing was left over that came after the command.
        QCOMPARE(hexBytes(device.takeReceived()), play);
    }
}

// A known trait, kept deliberately: on a socket that is open already the device gets the frame a
// second time. The window shows it once.
void tst_OnDemand::writesTwiceToAnOpenSocket()
{
    TcpPeer device(port);
    ConsoleWindow console;
    chooseModel(console);
    console.click("pushButton_Play");
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(device.received()), play, patience);
    QTRY_COMPARE_WITH_TIMEOUT(tcpSocket->state(), QAbstractSocket::ConnectedState, patience);
    device.takeReceived();

    QVERIFY(console.selectText("comboBox_Request", u"Source"_s));
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", u"Alternate: Internal USB"_s));
    const std::pair<const char *, QByteArray> commands[] = {
        {"pushButton_Stop", stop},
        {"pushButton_Volume_Less", lowestVolume},
        {"pushButton_Request", requestOfSource},
        {"pushButton_Launch_Playback", internalUsb},
    };
    for (const auto &[button, bytes] : commands) {
        console.click(button);
        QTRY_COMPARE_WITH_TIMEOUT(hexBytes(device.received()), twice(bytes), patience);
        QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(bytes));
        device.takeReceived();
    }
    QCOMPARE(device.connectionCount(), 1);
}

void tst_OnDemand::whileConnecting()
{
    BusyDevice device(port);
    ConsoleWindow console;
    chooseModel(console);

    // The socket counts as open from the moment of the attempt, so that only the first command is
    // written once.
    console.click("pushButton_Play");
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectingState);
    console.click("pushButton_Stop");
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectingState);

    device.answer();
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(device.received()), play + ' ' + twice(stop), patience);
}

void tst_OnDemand::withSerialPortOpen()
{
    TcpPeer device(port);
    PtyPeer pty;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Tempo Deck"_s));
    console.connectSerial(pty);
    QVERIFY(serialPort->isOpen());
    chooseModel(console);

    console.click("pushButton_Play");
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(pty.received()), play, patience);
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(device.received()), play, patience);
    pty.takeReceived();
    device.takeReceived();

    console.click("pushButton_Stop");
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(device.received()), twice(stop), patience);
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(pty.received()), stop, patience);
}

void tst_OnDemand::bodies_data()
{
    QTest::addColumn<CommandEntry>("entry");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QByteArray>("bytes");

    const auto command
        = [](quint32 id, quint8 code, const QByteArray &data, const QByteArray &dataMax = {}) {
              return CommandEntry(u"Command"_s, id, code, QByteArray::fromHex(data),
                                  QByteArray::fromHex(dataMax.isNull() ? data : dataMax));
          };
    // The models have none of these commands.
    QTest::newRow("pause: without arguments")
        << command(6, 4, "FF FF 33 33") << "on_pushButton_Pause_clicked"_ba
        << "04 00 00 00 63 6D 64 00 33 33 00"_ba;
    QTest::newRow("previous folder: without arguments")
        << command(2, 4, "FF FF 33 37") << "on_pushButton_Previous_Folder_clicked"_ba
        << "04 00 00 00 63 6D 64 00 33 37 00"_ba;
    QTest::newRow("next folder: without arguments")
        << command(8, 4, "FF FF 33 38") << "on_pushButton_Next_Folder_clicked"_ba
        << "04 00 00 00 63 6D 64 00 33 38 00"_ba;
    QTest::newRow("standby: without arguments")
        << command(12, 4, "FF FF 34 30") << "on_pushButton_Standby_Wakeup_clicked"_ba
        << "04 00 00 00 63 6D 64 00 34 30 00"_ba;
    QTest::newRow("mute: without arguments")
        << command(19, 4, "FF FF 35 31") << "on_pushButton_Volume_Mute_Unmute_clicked"_ba
        << "04 00 00 00 63 6D 64 00 35 31 00"_ba;
    // No text command: the code byte goes out alone.
    QTest::newRow("data of two bytes: the code alone")
        << command(6, 4, "FF FF") << "on_pushButton_Pause_clicked"_ba
        << "04"_ba;
    QTest::newRow("another code: the code alone")
        << command(6, 2, "FF FF 33 33") << "on_pushButton_Pause_clicked"_ba
        << "02"_ba;
    QTest::newRow("volume with another code: the code alone")
        << command(9, 5, "00 00 00", "00 40 00") << "on_pushButton_Volume_Less_clicked"_ba
        << "05"_ba;
}

void tst_OnDemand::bodies()
{
    QFETCH(const CommandEntry, entry);
    QFETCH(const QByteArray, slot);
    QFETCH(const QByteArray, bytes);

    DeviceModel model(u"On-demand test model"_s, ProtocolKind::Extended, TransportKind::TcpIp, 0, 0,
                      8, -1, port, {});
    model.commands = {entry};
    LinkedWindow window(model);
    const Sent sent = window.call(slot.constData());
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QString::fromLatin1(bytes));
}

TESSALY_WINDOW_TEST(tst_OnDemand)
#include "tst_ondemand.moc"
