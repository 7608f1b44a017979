// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "link/linkwatcher.h"
#include "passivepeer.h"
#include "tests/support/absentport.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/hexbytes.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSerialPort>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTcpSocket>

#include <ctime>
#include <memory>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto shortLimit = 400ms;

// What widgetStates() says in each state; '+' is enabled or shown. The list of ports is empty
// unless the test has added one.
const QString disconnectedWithPort
    = u"Player+ Port+ Baudrate+ Settings+ Connect+ Disconnect- Commands- message-"_s;
const QString disconnectedWithoutPort
    = u"Player+ Port- Baudrate+ Settings+ Connect+ Disconnect- Commands- message-"_s;
const QString disconnectedTcp
    = u"Player+ Port- Baudrate- Settings+ Connect+ Disconnect- Commands- message-"_s;
const QString waitingOnDemand
    = u"Player+ Port- Baudrate- Settings+ Connect- Disconnect- Commands+ message-"_s;
const QString connecting
    = u"Player- Port- Baudrate- Settings- Connect- Disconnect- Commands- message+"_s;
const QString connected
    = u"Player- Port- Baudrate- Settings- Connect- Disconnect+ Commands+ message-"_s;

/// The window with a model picked and no ports listed but those of the test.
class Console : public ConsoleWindow
{
public:
    explicit Console(const QString &model,
                     std::chrono::milliseconds limit = MainWindow::defaultConnectTimeLimit)
        : ConsoleWindow(limit)
    {
        if (rowOfModel(model) < 0)
            qFatal("no model %s", qPrintable(model));
        find<QComboBox>("comboBox_Port")->clear();
        selectModel(rowOfModel(model));
    }

    void listPort(const QString &name) const
    {
        auto *ports = find<QComboBox>("comboBox_Port");
        ports->addItem(name);
        ports->setCurrentIndex(ports->count() - 1);
        find<QWidget>("frame_Port")->setEnabled(true);
    }

    /// Each widget's own state, not the one that it has from its parents.
    QString widgetStates() const
    {
        static constexpr const char *names[] = {
            "frame_Player",   "frame_Port",         "frame_Baudrate",
            "frame_Settings", "pushButton_Connect", "pushButton_Disconnect",
            "frame_Commands",
        };
        QString states;
        for (const char *name : names) {
            const auto *widget = find<QWidget>(name);
            states += QString::fromLatin1(name).section(u'_', 1)
                      + (widget->isEnabledTo(widget->parentWidget()) ? u"+ "_s : u"- "_s);
        }
        return states + u"message"_s
               + (find<QLabel>("label_Connection_Message")->isHidden() ? u'-' : u'+');
    }
};

/// Lets the process open files as somebody without any rights, also when it runs as root.
class WithoutRights
{
public:
    WithoutRights() { ::setfsuid(65534); }
    ~WithoutRights() { ::setfsuid(::geteuid()); }
    Q_DISABLE_COPY_MOVE(WithoutRights)
};

qint64 processorMilliseconds()
{
    return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

/// The models of a kind of link, with a row for each.
void addModelRows(const QString &link)
{
    QTest::addColumn<ModelSheet>("sheet");
    for (const ModelSheet &sheet : modelSheets()) {
        if (sheet.isTcp == (link == "TCP/IP"_L1))
            QTest::newRow(qPrintable(sheet.name)) << sheet;
    }
}

QString serialErrorBoxText(const QString &reason)
{
    return u"An error on the serial port has occurred!\n"_s + reason;
}

} // namespace

// The box as Qt builds it from one button OK and no default button.
#define COMPARE_CRITICAL_BOX(box, boxTitle, boxText, window) \
    do { \
        QCOMPARE((box).title, boxTitle); \
        QCOMPARE((box).text, boxText); \
        QCOMPARE((box).icon, int(QMessageBox::Critical)); \
        QCOMPARE((box).buttons, int(QMessageBox::Ok)); \
        QCOMPARE((box).parent, static_cast<QWidget *>(&(window))); \
    } while (false)

class tst_Connection : public QObject
{
    Q_OBJECT

private slots:
    // Serial
    void serialModels_data();
    void serialModels();
    void settingsAreMadeInOrder();
    void unknownBaudRateOpensAt9600();
    void serialConnectAndDisconnect();
    void wrongPortName();
    void portWithoutPermission();
    void portHeldBySomebodyElse();
    void connectWhileOpenIsRefusedSilently();
    void openWithoutEverything_data();
    void openWithoutEverything();
    void errorTextOfAPortWithoutError();
    void vanishedDevice();

    // TCP
    void tcpModels_data();
    void tcpModels();
    void timeLimitOfTheProgram();
    void tcpConnectAndDisconnect();
    void unansweredAttempt();
    void refusedAttempt();
    void refusedAttemptWithACommandQueued_data();
    void refusedAttemptWithACommandQueued();
    void addressIsUsedAsItStands_data();
    void addressIsUsedAsItStands();
    void openSocketIsLeftAlone();

    // The model that connects for each command
    void onDemandCommandConnects();
    void onDemandUnanswered();
    void onDemandRefused();
    void onDemandButtonConnectsNothing();

    // Errors of the socket
    void socketErrorReports_data();
    void socketErrorReports();
    void socketErrorTellsTheReason();

    // Widgets
    void emptyModelListKeepsItsFrame_data();
    void emptyModelListKeepsItsFrame();
    void refreshWithoutPortsOrRates();
    void disconnectClosesBothLinks();
    void noModelSelected();

    // Writing
    void frames_data();
    void frames();
    void frameOnBothLinks();
    void frameWithoutALink();
    void onDemandFrameGoesOutOnce();
    void onDemandFrameOnAnOpenSocketGoesOutTwice();
    void onDemandFramesWhileConnecting();
    void onDemandFrameWithASerialPortOpen();
};

void tst_Connection::serialModels_data()
{
    addModelRows(u"serial"_s);
}

void tst_Connection::serialModels()
{
    QFETCH(const ModelSheet, sheet);
    const PtyPeer peer;
    Console console(sheet.name);
    QCOMPARE(console.find<QComboBox>("comboBox_Baudrate")->count(), sheet.baudRates.size());
    console.listPort(peer.portName());
    for (const qint32 baudRate : sheet.baudRates) {
        QVERIFY(console.selectText("comboBox_Baudrate", QString::number(baudRate)));
        console.click("pushButton_Connect");

        QVERIFY(serialPort->isOpen());
        QCOMPARE(serialPort->openMode(), QIODevice::ReadWrite);
        QCOMPARE(serialPort->baudRate(QSerialPort::Input), baudRate);
        QCOMPARE(serialPort->baudRate(QSerialPort::Output), baudRate);
        QCOMPARE(serialPort->dataBits(), QSerialPort::Data8);
        QCOMPARE(serialPort->parity(), QSerialPort::NoParity);
        QCOMPARE(serialPort->stopBits(), QSerialPort::OneStop);
        QCOMPARE(serialPort->flowControl(), QSerialPort::NoFlowControl);
        QVERIFY(!tcpSocket->isOpen());
        QCOMPARE(console.widgetStates(), connected);
        console.click("pushButton_Disconnect");
        QCOMPARE(console.widgetStates(), disconnectedWithPort);
    }
}

void tst_Connection::tcpModels_data()
{
    addModelRows(u"TCP/IP"_s);
}

void tst_Connection::tcpModels()
{
    QFETCH(const ModelSheet, sheet);
    const TcpPeer peer(sheet.tcpPort);
    Console console(sheet.name);
    console.setAddress(TcpPeer::address().toString());
    const QString before = sheet.connectsOnDemand() ? waitingOnDemand : disconnectedTcp;
    QCOMPARE(console.widgetStates(), before);
    // Where the button is disabled, a connection made at the start comes this way.
    console.window.on_pushButton_Connect_clicked();
    QCOMPARE(console.widgetStates(), connecting);
    QTRY_COMPARE(console.widgetStates(), connected);
    QTRY_COMPARE(peer.connectionCount(), 1);
    QCOMPARE(tcpSocket->peerPort(), sheet.tcpPort);
    QVERIFY(!serialPort->isOpen());
    console.click("pushButton_Disconnect");
    QCOMPARE(console.widgetStates(), before);
}

void tst_Connection::settingsAreMadeInOrder()
{
    const PtyPeer peer;
    Console console(serialModel);
    serialPort->setBaudRate(4800);
    serialPort->setDataBits(QSerialPort::Data7);
    serialPort->setParity(QSerialPort::EvenParity);
    serialPort->setStopBits(QSerialPort::TwoStop);
    serialPort->setFlowControl(QSerialPort::HardwareControl);

    QStringList changes;
    const QObject scope;
    connect(serialPort, &QSerialPort::baudRateChanged, &scope,
            [&](qint32 rate, QSerialPort::Directions directions) {
                changes += u"baud %1"_s.arg(rate);
                QCOMPARE(directions, QSerialPort::Directions(QSerialPort::AllDirections));
            });
    connect(serialPort, &QSerialPort::dataBitsChanged, &scope,
            [&](int bits) { changes += u"data %1"_s.arg(bits); });
    connect(serialPort, &QSerialPort::parityChanged, &scope,
            [&](int parity) { changes += u"parity %1"_s.arg(parity); });
    connect(serialPort, &QSerialPort::stopBitsChanged, &scope,
            [&](int bits) { changes += u"stop %1"_s.arg(bits); });
    connect(serialPort, &QSerialPort::flowControlChanged, &scope,
            [&](int control) { changes += u"flow %1"_s.arg(control); });
    console.connectSerial(peer);

    QVERIFY(serialPort->isOpen());
    QCOMPARE(changes,
             QStringList({u"baud 115200"_s, u"data 8"_s, u"parity 0"_s, u"stop 1"_s, u"flow 0"_s}));
}

void tst_Connection::unknownBaudRateOpensAt9600()
{
    const PtyPeer peer;
    Console console(serialModel);
    const int row = console.rowOfModel(serialModel);
    deviceCatalogue[row].baudRates = {38400, 14400, 4800};
    console.selectModel(row);
    QVERIFY(console.selectText("comboBox_Baudrate", u"14400"_s));
    console.connectSerial(peer);
    QVERIFY(serialPort->isOpen());
    QCOMPARE(serialPort->baudRate(), 9600);

    termios settings{};
    QCOMPARE(::tcgetattr(serialPort->handle(), &settings), 0);
    QCOMPARE(::cfgetispeed(&settings), speed_t(B9600));
    QCOMPARE(::cfgetospeed(&settings), speed_t(B9600));
}

void tst_Connection::serialConnectAndDisconnect()
{
    PtyPeer peer;
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    QCOMPARE(console.widgetStates(), disconnectedWithoutPort);

    console.connectSerial(peer);
    QCOMPARE(console.widgetStates(), connected);
    QCOMPARE(serialPort->portName(), peer.portName());

    console.click("pushButton_Disconnect");
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
    QCOMPARE(peer.received(), QByteArray());

    console.click("pushButton_Connect");
    QVERIFY(serialPort->isOpen());
    QCOMPARE(console.widgetStates(), connected);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::wrongPortName()
{
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    console.listPort(absentPort());
    console.click("pushButton_Connect");

    QCOMPARE(boxes.messages.size(), 1);
    COMPARE_CRITICAL_BOX(boxes.messages.first(), u"Serial port error"_s,
                         serialErrorBoxText(u"Device not found error."_s), console.window);
    QCOMPARE(console.window.serialErrorText(), u"Device not found error."_s);
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
}

void tst_Connection::portWithoutPermission()
{
    const PtyPeer peer;
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    const QByteArray device = peer.portName().toLocal8Bit();
    console.listPort(peer.portName());

    // The right to the device is all that is missing below.
    QCOMPARE(::chmod(device.constData(), 0666), 0);
    {
        const WithoutRights nobody;
        console.click("pushButton_Connect");
    }
    QCOMPARE(boxes.messages.size(), 0);
    QVERIFY(serialPort->isOpen());
    console.click("pushButton_Disconnect");

    QCOMPARE(::chmod(device.constData(), 0), 0);
    {
        const WithoutRights nobody;
        console.click("pushButton_Connect");
    }
    QCOMPARE(boxes.messages.size(), 1);
    COMPARE_CRITICAL_BOX(boxes.messages.first(), u"Serial port error"_s,
                         serialErrorBoxText(u"Permission error."_s), console.window);
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
}

void tst_Connection::portHeldBySomebodyElse()
{
    const PtyPeer peer;
    QSerialPort holder;
    holder.setPortName(peer.portName());
    QVERIFY(holder.open(QIODevice::ReadWrite));

    const MessageBoxCatcher boxes;
    Console console(serialModel);
    console.listPort(peer.portName());
    console.click("pushButton_Connect");
    QCOMPARE(boxes.messages.size(), 1);
    COMPARE_CRITICAL_BOX(boxes.messages.first(), u"Serial port error"_s,
                         serialErrorBoxText(u"Permission error."_s), console.window);
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedWithPort);

    holder.close();
    console.click("pushButton_Connect");
    QVERIFY(serialPort->isOpen());
    QCOMPARE(console.widgetStates(), connected);
    QCOMPARE(boxes.messages.size(), 1);
}

void tst_Connection::connectWhileOpenIsRefusedSilently()
{
    const PtyPeer peer;
    const PtyPeer otherPeer;
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    console.connectSerial(peer);
    QVERIFY(serialPort->isOpen());

    console.listPort(otherPeer.portName());
    QVERIFY(console.selectText("comboBox_Baudrate", u"9600"_s));
    const QString before = console.widgetStates();
    console.window.on_pushButton_Connect_clicked();
    QVERIFY(!console.window.openSerialLink());
    QVERIFY(!console.window.openSerialPort(9600, otherPeer.portName()));

    QCOMPARE(boxes.messages.size(), 0);
    QCOMPARE(console.widgetStates(), before);
    QCOMPARE(serialPort->portName(), peer.portName());
    QCOMPARE(serialPort->baudRate(), 115200);
    QVERIFY(!tcpSocket->isOpen());
}

void tst_Connection::openWithoutEverything_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("row");

    QTest::newRow("no model") << "comboBox_Player"_ba << -1;
    QTest::newRow("no port") << "comboBox_Port"_ba << -1;
    QTest::newRow("no baud rate") << "comboBox_Baudrate"_ba << -1;
    QTest::newRow("a baud rate that the model lacks")
        << "comboBox_Baudrate"_ba << int(sheetOf(serialModel).baudRates.size());
}

void tst_Connection::openWithoutEverything()
{
    QFETCH(const QByteArray, list);
    QFETCH(const int, row);
    const PtyPeer peer;
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    console.listPort(peer.portName());
    console.find<QComboBox>("comboBox_Baudrate")->addItem(u"250000"_s);
    console.find<QComboBox>(list.constData())->setCurrentIndex(row);
    const QString before = console.widgetStates();

    console.click("pushButton_Connect");
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
    QVERIFY(!console.window.openSerialLink());
    QVERIFY(!console.window.openTcpLink());
    QCOMPARE(console.widgetStates(), before);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::errorTextOfAPortWithoutError()
{
    const PtyPeer peer;
    Console console(serialModel);
    console.connectSerial(peer);
    QCOMPARE(console.window.serialErrorText(), u"No error."_s);
}

void tst_Connection::vanishedDevice()
{
    PtyPeer peer;
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    console.connectSerial(peer);
    QCOMPARE(console.widgetStates(), connected);
    QSignalSpy lost(console.window.findChild<LinkWatcher *>(), &LinkWatcher::linkLost);
    QSignalSpy closed(serialPort, &QSerialPort::aboutToClose);

    peer.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(console.widgetStates(), disconnectedWithPort, 20'000);
    QVERIFY(!serialPort->isOpen());

    // A port that is left open keeps a core busy from here on.
    const qint64 before = processorMilliseconds();
    QTest::qWait(1000);
    const qint64 used = processorMilliseconds() - before;
    QVERIFY2(used < 300, qPrintable(QString::number(used)));

    QCOMPARE(lost.count(), 1);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(boxes.messages.size(), 0);
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
}

void tst_Connection::timeLimitOfTheProgram()
{
    QCOMPARE(qint64(MainWindow::defaultConnectTimeLimit.count()), qint64(10000));
}

void tst_Connection::tcpConnectAndDisconnect()
{
    TcpPeer peer(portOf(tcpModel));
    const MessageBoxCatcher boxes;
    Console console(tcpModel);
    QCOMPARE(console.widgetStates(), disconnectedTcp);

    console.setAddress(TcpPeer::address().toString());
    console.click("pushButton_Connect");
    // Open from the first moment, before anybody has answered.
    QVERIFY(tcpSocket->isOpen());
    QCOMPARE(tcpSocket->openMode() & QIODevice::ReadWrite,
             QIODevice::OpenMode(QIODevice::ReadWrite));
    QCOMPARE(console.widgetStates(), connecting);
    QCOMPARE(console.text("label_Connection_Message"),
             u"Connecting to the player... Please wait."_s);

    QTRY_COMPARE(console.widgetStates(), connected);
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
    QCOMPARE(tcpSocket->peerPort(), portOf(tcpModel));
    QTRY_VERIFY(peer.isConnected());

    console.click("pushButton_Disconnect");
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(tcpSocket->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(console.widgetStates(), disconnectedTcp);
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(peer.received(), QByteArray());

    QVERIFY(console.connectTcp());
    QTRY_COMPARE(peer.connectionCount(), 2);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::unansweredAttempt()
{
    PassivePeer peer(portOf(tcpModel));
    peer.stopAnswering();
    const MessageBoxCatcher boxes;
    Console console(tcpModel, shortLimit);
    console.setAddress(TcpPeer::address().toString());
    QElapsedTimer time;
    qint64 closedAfter = 0;
    const QObject scope;
    connect(tcpSocket, &QTcpSocket::aboutToClose, &scope, [&] { closedAfter = time.elapsed(); });
    time.start();
    console.click("pushButton_Connect");

    while (time.elapsed() < 300) {
        QCOMPARE(console.widgetStates(), connecting);
        QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectingState);
        QTest::qWait(20);
    }
    QTRY_COMPARE(console.widgetStates(), disconnectedTcp);
    // Timers of this kind may be 5 % early, and the clocks are cut to milliseconds.
    QVERIFY2(closedAfter >= 350, qPrintable(QString::number(closedAfter)));
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::refusedAttempt()
{
    const MessageBoxCatcher boxes;
    Console console(tcpModel, shortLimit);
    console.setAddress(TcpPeer::address().toString());
    QElapsedTimer time;
    qint64 closedAfter = 0;
    const QObject scope;
    connect(tcpSocket, &QTcpSocket::aboutToClose, &scope, [&] { closedAfter = time.elapsed(); });
    time.start();
    console.click("pushButton_Connect");

    QTRY_COMPARE(tcpSocket->error(), QAbstractSocket::ConnectionRefusedError);
    while (time.elapsed() < 300) {
        QCOMPARE(console.widgetStates(), connecting);
        QTest::qWait(20);
    }
    QTRY_COMPARE(console.widgetStates(), disconnectedTcp);
    QVERIFY2(closedAfter >= 350, qPrintable(QString::number(closedAfter)));
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(boxes.messages.size(), 0);

    const TcpPeer peer(portOf(tcpModel));
    QVERIFY(console.connectTcp());
}

void tst_Connection::refusedAttemptWithACommandQueued_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("afterwards");

    QTest::newRow("classic, by a shortcut") << tcpModel << disconnectedTcp;
    QTest::newRow("on demand, as by auto-connection") << onDemandModel << waitingOnDemand;
}

void tst_Connection::refusedAttemptWithACommandQueued()
{
    QFETCH(const QString, model);
    QFETCH(const QString, afterwards);
    const MessageBoxCatcher boxes;
    Console console(model, shortLimit);
    console.setAddress(TcpPeer::address().toString());
    console.window.on_pushButton_Connect_clicked();
    // Commands are disabled while connecting, but a shortcut needs no button.
    console.window.on_pushButton_Play_clicked();

    // With bytes queued, the socket closes itself and says nothing: the limit is what is left.
    QTRY_VERIFY(!tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), connecting);
    QTRY_COMPARE(console.widgetStates(), afterwards);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::addressIsUsedAsItStands_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QString>("host");

    QTest::newRow("unspecified address")
        << QStringList{u"0"_s, u"0"_s, u"0"_s, u"0"_s} << u"0.0.0.0"_s;
    QTest::newRow("plain") << QStringList{u"127"_s, u"1"_s, u"20"_s, u"254"_s} << u"127.1.20.254"_s;
    QTest::newRow("leading zeros are neither octal nor kept")
        << QStringList{u"127"_s, u"000"_s, u"010"_s, u"001"_s} << u"127.0.10.1"_s;
    QTest::newRow("broadcast of the loopback net")
        << QStringList{u"127"_s, u"255"_s, u"255"_s, u"255"_s} << u"127.255.255.255"_s;
}

void tst_Connection::addressIsUsedAsItStands()
{
    QFETCH(const QStringList, typed);
    const MessageBoxCatcher boxes;
    Console console(tcpModel, shortLimit);
    for (int i = 0; i < 4; ++i) {
        const QByteArray name = "spinBox_IP_" + QByteArray::number(i + 1);
        auto *box = console.find<QSpinBox>(name.constData());
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, typed.at(i));
    }
    console.window.on_pushButton_Connect_clicked();
    QTEST(tcpSocket->peerName(), "host");
    QVERIFY(tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), connecting);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::openSocketIsLeftAlone()
{
    // Of the socket, which is asked to connect again.
    QTest::failOnWarning(QRegularExpression(u"connectToHost"_s));
    TcpPeer peer(portOf(tcpModel));
    Console console(tcpModel);
    QVERIFY(console.connectTcp());
    QTRY_COMPARE(peer.connectionCount(), 1);

    console.setAddress(u"127.0.0.1"_s);
    console.window.connectTcpSocket(u"127.0.0.1"_s, 1);
    QVERIFY(console.window.openTcpLink());
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
    QCOMPARE(tcpSocket->peerName(), TcpPeer::address().toString());
    QCOMPARE(tcpSocket->peerPort(), portOf(tcpModel));
}

void tst_Connection::onDemandCommandConnects()
{
    TcpPeer peer(portOf(onDemandModel));
    const MessageBoxCatcher boxes;
    Console console(onDemandModel);
    console.setAddress(TcpPeer::address().toString());
    QCOMPARE(console.widgetStates(), waitingOnDemand);
    const QByteArray play = "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba;

    for (int command = 1; command <= 2; ++command) {
        console.click("pushButton_Play");
        QVERIFY(tcpSocket->isOpen());
        QCOMPARE(console.widgetStates(), waitingOnDemand);
        QTRY_COMPARE(console.widgetStates(), connected);
        QTRY_COMPARE(hexBytes(peer.received()), play);
        QCOMPARE(peer.connectionCount(), command);
        peer.takeReceived();

        // The device hangs up after every command.
        peer.hangUp();
        QTRY_COMPARE(console.widgetStates(), waitingOnDemand);
        QVERIFY(!tcpSocket->isOpen());
    }
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::onDemandUnanswered()
{
    auto silent = std::make_unique<PassivePeer>(portOf(onDemandModel));
    silent->stopAnswering();
    const MessageBoxCatcher boxes;
    Console console(onDemandModel, shortLimit);
    console.setAddress(TcpPeer::address().toString());
    QElapsedTimer time;
    qint64 closedAfter = 0;
    const QObject scope;
    connect(tcpSocket, &QTcpSocket::aboutToClose, &scope, [&] { closedAfter = time.elapsed(); });
    time.start();
    console.click("pushButton_Play");
    QVERIFY(tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), waitingOnDemand);

    QTRY_VERIFY(!tcpSocket->isOpen());
    QVERIFY2(closedAfter >= 350, qPrintable(QString::number(closedAfter)));
    QCOMPARE(tcpSocket->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(console.widgetStates(), waitingOnDemand);
    QCOMPARE(boxes.messages.size(), 0);

    // The command that did not get through is forgotten.
    silent.reset();
    const TcpPeer peer(portOf(onDemandModel));
    console.click("pushButton_Stop");
    QTRY_COMPARE(hexBytes(peer.received()),
                 "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_ba);
}

void tst_Connection::onDemandRefused()
{
    const MessageBoxCatcher boxes;
    Console console(onDemandModel, shortLimit);
    console.setAddress(TcpPeer::address().toString());
    for (int command = 1; command <= 2; ++command) {
        console.click("pushButton_Play");
        QVERIFY(tcpSocket->isOpen());
        // With a frame queued the socket itself gives up, at the refusal.
        QTRY_VERIFY(!tcpSocket->isOpen());
        QCOMPARE(tcpSocket->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(console.widgetStates(), waitingOnDemand);
    }
    QCOMPARE(boxes.messages.size(), 0);

    const TcpPeer peer(portOf(onDemandModel));
    console.click("pushButton_Stop");
    QTRY_COMPARE(hexBytes(peer.received()),
                 "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_ba);
}

void tst_Connection::onDemandButtonConnectsNothing()
{
    Console console(onDemandModel);
    console.setAddress(TcpPeer::address().toString());
    console.click("pushButton_Connect");
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), waitingOnDemand);
}

void tst_Connection::socketErrorReports_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QAbstractSocket::SocketError>("error");
    QTest::addColumn<bool>("dialog");

    QTest::newRow("extended over TCP/IP hangs up: normal")
        << onDemandModel << QAbstractSocket::RemoteHostClosedError << false;
    QTest::newRow("extended over RS-232 counts as well")
        << extendedSerialModel << QAbstractSocket::RemoteHostClosedError << false;
    QTest::newRow("extended refuses")
        << onDemandModel << QAbstractSocket::ConnectionRefusedError << true;
    QTest::newRow("extended not found")
        << onDemandModel << QAbstractSocket::HostNotFoundError << true;
    QTest::newRow("classic hangs up") << tcpModel << QAbstractSocket::RemoteHostClosedError << true;
    QTest::newRow("classic refuses") << tcpModel << QAbstractSocket::ConnectionRefusedError << true;
}

void tst_Connection::socketErrorReports()
{
    QFETCH(const QString, model);
    QFETCH(const QAbstractSocket::SocketError, error);
    QFETCH(const bool, dialog);
    const TcpPeer peer(portOf(tcpModel));
    const MessageBoxCatcher boxes;
    Console console(model);
    console.window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
    QTRY_COMPARE(console.widgetStates(), connected);
    qsizetype boxesBeforeClosing = -1;
    const QObject scope;
    connect(tcpSocket, &QTcpSocket::aboutToClose, &scope,
            [&] { boxesBeforeClosing = boxes.messages.size(); });

    console.window.onSocketError(error);

    QCOMPARE(boxes.messages.size(), dialog ? 1 : 0);
    if (dialog) {
        COMPARE_CRITICAL_BOX(boxes.messages.first(), u"TCP/IP error"_s,
                             u"An TCP/IP error has occurred!\nUnknown error"_s, console.window);
    }
    QCOMPARE(boxesBeforeClosing, dialog ? 1 : 0);
    QVERIFY(!tcpSocket->isOpen());
    QVERIFY(console.find<QWidget>("frame_Settings")->isEnabled());
}

void tst_Connection::socketErrorTellsTheReason()
{
    const MessageBoxCatcher boxes;
    Console console(tcpModel);
    console.setAddress(TcpPeer::address().toString());
    console.click("pushButton_Connect");
    QTRY_COMPARE(tcpSocket->error(), QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(console.widgetStates(), connecting);

    console.window.onSocketError(QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(boxes.messages.size(), 1);
    QCOMPARE(boxes.messages.first().text, u"An TCP/IP error has occurred!\nConnection refused"_s);
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedTcp);
}

void tst_Connection::emptyModelListKeepsItsFrame_data()
{
    QTest::addColumn<bool>("enabled");

    QTest::newRow("enabled") << true;
    QTest::newRow("disabled") << false;
}

void tst_Connection::emptyModelListKeepsItsFrame()
{
    QFETCH(const bool, enabled);
    Console console(serialModel);
    auto *frame = console.find<QWidget>("frame_Player");
    console.find<QComboBox>("comboBox_Player")->clear();
    frame->setEnabled(enabled);
    console.window.onSocketConnected();
    QCOMPARE(frame->isEnabled(), enabled);

    // The list of ports has its say in any case.
    QVERIFY(!console.find<QWidget>("frame_Port")->isEnabled());
    console.find<QComboBox>("comboBox_Port")->addItem(absentPort());
    console.window.onSocketConnected();
    QVERIFY(console.find<QWidget>("frame_Port")->isEnabled());
    QCOMPARE(frame->isEnabled(), enabled);
}

void tst_Connection::refreshWithoutPortsOrRates()
{
    Console console(serialModel);
    console.listPort(absentPort());
    console.window.showConnectingState();
    QCOMPARE(console.widgetStates(), connecting);
    console.window.onSocketConnected();
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
    console.find<QComboBox>("comboBox_Port")->clear();
    console.window.onSocketConnected();
    QCOMPARE(console.widgetStates(), disconnectedWithoutPort);
    console.find<QComboBox>("comboBox_Baudrate")->clear();
    console.window.onSocketConnected();
    QCOMPARE(console.widgetStates(), disconnectedTcp);
}

void tst_Connection::disconnectClosesBothLinks()
{
    const PtyPeer serialPeer;
    const TcpPeer tcpPeer(portOf(tcpModel));
    Console console(serialModel);
    console.connectSerial(serialPeer);
    console.window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
    QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
    QVERIFY(serialPort->isOpen());
    QCOMPARE(console.widgetStates(), connected);

    console.click("pushButton_Disconnect");
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
}

void tst_Connection::noModelSelected()
{
    PtyPeer serialPeer;
    TcpPeer tcpPeer(portOf(tcpModel));
    const MessageBoxCatcher boxes;
    Console console(serialModel);
    console.connectSerial(serialPeer);
    console.window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
    QTRY_VERIFY(tcpPeer.isConnected());
    console.find<QComboBox>("comboBox_Player")->setCurrentIndex(-1);

    QVERIFY(!console.window.openSerialLink());
    QVERIFY(!console.window.openTcpLink());
    console.window.on_pushButton_Connect_clicked();
    console.window.onSocketConnected();
    QCOMPARE(console.widgetStates(), connected);
    console.window.writeFrame(0x80, 2, "\x01"_ba);
    QVERIFY(serialPort->isOpen());
    QVERIFY(tcpSocket->isOpen());
    console.window.onSocketError(QAbstractSocket::RemoteHostClosedError);
    QCOMPARE(boxes.messages.size(), 1);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedWithPort);

    console.window.on_pushButton_Connect_clicked();
    console.window.on_pushButton_Disconnect_clicked();
    console.window.onSocketDisconnected();
    console.window.writeFrame(0x80, 2, "\x01"_ba);
    QCOMPARE(console.widgetStates(), disconnectedWithPort);
    QCOMPARE(boxes.messages.size(), 1);
}

void tst_Connection::frames_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("frame");

    QTest::newRow("classic, serial") << serialModel << "01"_ba
                                     << "83 02 01"_ba;
    QTest::newRow("classic, serial, no body") << serialModel << ""_ba
                                              << "83 02"_ba;
    QTest::newRow("classic, serial, any bytes") << serialModel << "00 0D 0A 11 13 FF 00"_ba
                                                << "83 02 00 0D 0A 11 13 FF 00"_ba;
    // The extended frames carry no player ID.
    QTest::newRow("extended, serial") << extendedSerialModel << "FF 00 FF"_ba
                                      << "02 FF 00 FF"_ba;
    QTest::newRow("extended, serial, no body") << extendedSerialModel << ""_ba
                                               << "02"_ba;
    QTest::newRow("classic, TCP/IP") << tcpModel << "01"_ba
                                     << "83 02 01"_ba;
    QTest::newRow("classic, TCP/IP, any bytes") << tcpModel << "00 0D 0A 11 13 FF 00"_ba
                                                << "83 02 00 0D 0A 11 13 FF 00"_ba;
}

void tst_Connection::frames()
{
    QFETCH(const QString, model);
    QFETCH(const QByteArray, body);
    QFETCH(const QByteArray, frame);
    PtyPeer serialPeer;
    const TcpPeer tcpPeer(portOf(tcpModel));
    Console console(model);
    const bool overTcp = model == tcpModel;
    if (overTcp)
        QVERIFY(console.connectTcp());
    else
        console.connectSerial(serialPeer);

    console.window.writeFrame(0x83, 2, QByteArray::fromHex(body));
    QTRY_COMPARE(hexBytes(overTcp ? tcpPeer.received() : serialPeer.received()), frame);
}

void tst_Connection::frameOnBothLinks()
{
    PtyPeer serialPeer;
    const TcpPeer tcpPeer(portOf(tcpModel));
    Console console(serialModel);
    console.connectSerial(serialPeer);
    console.window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
    QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);

    console.window.writeFrame(0xFF, 3, "\x40"_ba);
    QTRY_COMPARE(hexBytes(serialPeer.received()), "FF 03 40"_ba);
    QTRY_COMPARE(hexBytes(tcpPeer.received()), "FF 03 40"_ba);
}

void tst_Connection::frameWithoutALink()
{
    const TcpPeer peer(portOf(tcpModel));
    const MessageBoxCatcher boxes;
    Console console(tcpModel);
    console.setAddress(TcpPeer::address().toString());
    console.window.writeFrame(0x80, 2, "\x01"_ba);
    QVERIFY(!tcpSocket->isOpen());
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(console.widgetStates(), disconnectedTcp);

    // What was written to no link does not wait for the next one either.
    QVERIFY(console.connectTcp());
    console.window.writeFrame(0x80, 2, "\x02"_ba);
    QTRY_COMPARE(hexBytes(peer.received()), "80 02 02"_ba);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Connection::onDemandFrameGoesOutOnce()
{
    const TcpPeer peer(portOf(onDemandModel));
    Console console(onDemandModel);
    console.setAddress(TcpPeer::address().toString());
    console.window.writeFrame(0x80, 4, "A"_ba);
    QTRY_COMPARE(console.widgetStates(), connected);
    QTRY_COMPARE(hexBytes(peer.received()), "04 41"_ba);
    // All that the console sends stands in front of what the peer sees of the end.
    console.click("pushButton_Disconnect");
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(hexBytes(peer.received()), "04 41"_ba);
}

// A known trait, kept deliberately: it is written to the open socket and once more to the one
// that the command asks for.
void tst_Connection::onDemandFrameOnAnOpenSocketGoesOutTwice()
{
    const TcpPeer peer(portOf(onDemandModel));
    Console console(onDemandModel);
    console.setAddress(TcpPeer::address().toString());
    console.window.on_pushButton_Connect_clicked();
    QTRY_COMPARE(console.widgetStates(), connected);
    console.window.writeFrame(0x80, 4, "A"_ba);
    QTRY_COMPARE(hexBytes(peer.received()), "04 41 04 41"_ba);
    QCOMPARE(peer.connectionCount(), 1);
}

void tst_Connection::onDemandFramesWhileConnecting()
{
    const TcpPeer peer(portOf(onDemandModel));
    Console console(onDemandModel);
    console.setAddress(TcpPeer::address().toString());
    // The socket counts as open while it connects, so the second frame is doubled.
    console.window.writeFrame(0x80, 4, "A"_ba);
    console.window.writeFrame(0x80, 4, "B"_ba);
    QTRY_COMPARE(hexBytes(peer.received()), "04 41 04 42 04 42"_ba);
    QCOMPARE(peer.connectionCount(), 1);
}

void tst_Connection::onDemandFrameWithASerialPortOpen()
{
    PtyPeer serialPeer;
    const TcpPeer tcpPeer(portOf(onDemandModel));
    Console console(onDemandModel);
    console.setAddress(TcpPeer::address().toString());
    QVERIFY(console.window.openSerialPort(9600, serialPeer.portName()));
    console.window.writeFrame(0x80, 4, "A"_ba);
    QTRY_COMPARE(hexBytes(serialPeer.received()), "04 41"_ba);
    QTRY_COMPARE(hexBytes(tcpPeer.received()), "04 41"_ba);
}

TESSALY_WINDOW_TEST(tst_Connection)
#include "tst_connection.moc"
