// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/linkwatcher.h"
#include "passivepeer.h"
#include "tests/support/absentport.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto limit = 100ms;
/// Long enough for another report to come if there were one: the limit and a check of the handle.
constexpr int silence = 350;
/// A busy machine makes a connection within this limit, too.
constexpr auto wideLimit = 2000ms;
constexpr int wideSilence = 2500;
constexpr quint16 devicePort = 4001;

/// A pair of links of the test's own, watched; what it reports is kept.
struct WatchedLinks
{
    QSerialPort port;
    QTcpSocket socket;
    LinkWatcher watcher;
    QSignalSpy lost{&watcher, &LinkWatcher::linkLost};

    explicit WatchedLinks(std::chrono::milliseconds connectTimeLimit = limit)
        : watcher(&port, &socket, connectTimeLimit)
    {
    }

    bool openPort(const PtyPeer &peer, QIODevice::OpenMode mode = QIODevice::ReadWrite)
    {
        port.setPortName(peer.portName());
        return port.open(mode);
    }
};

} // namespace

class tst_LinkWatcher : public QObject
{
    Q_OBJECT

private slots:
    void unansweredAttemptIsReportedAtTheLimit();
    void refusedAttemptIsReportedAtTheLimit();
    void limitAsksForTheState_data();
    void limitAsksForTheState();
    void connectingStopsTheLimit();
    void attemptThatClosesItselfIsReported();
    void closedAttemptDoesNotCostALaterSerialLink();
    void everyAttemptHasItsOwnLimit();
    void openingReportsNothing();
    void failedOpeningReportsNothing_data();
    void failedOpeningReportsNothing();
    void vanishedDeviceIsReportedOnce();
    void vanishedDeviceIsReportedWithoutAnError();
    void vanishedDeviceIsReportedSoon();
    void serialErrors_data();
    void serialErrors();
    void closedPortIsNotReported();
    void reopenedPortIsWatchedAgain();
    void goneWatcher();
    void goneLinks();
};

void tst_LinkWatcher::unansweredAttemptIsReportedAtTheLimit()
{
    PassivePeer peer(devicePort);
    peer.stopAnswering();
    WatchedLinks links;
    QElapsedTimer time;
    time.start();
    links.socket.connectToHost(TcpPeer::address(), devicePort);

    QTRY_COMPARE(links.lost.count(), 1);
    // Timers of this kind may be 5 % early, and the clocks are cut to milliseconds.
    QVERIFY2(time.elapsed() >= 85, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(links.socket.state(), QAbstractSocket::ConnectingState);
    QTest::qWait(silence);
    QCOMPARE(links.lost.count(), 1);
}

void tst_LinkWatcher::refusedAttemptIsReportedAtTheLimit()
{
    WatchedLinks links;
    QElapsedTimer time;
    time.start();
    links.socket.connectToHost(TcpPeer::address(), devicePort);

    QTRY_COMPARE(links.socket.error(), QAbstractSocket::ConnectionRefusedError);
    QTRY_COMPARE(links.lost.count(), 1);
    QVERIFY2(time.elapsed() >= 85, qPrintable(QString::number(time.elapsed())));
    // A refused attempt leaves the socket like this.
    QCOMPARE(links.socket.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(links.socket.isOpen());
}

void tst_LinkWatcher::limitAsksForTheState_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<int>("reports");

    QTest::newRow("not connected and not open either") << false << 1;
    QTest::newRow("connected and open") << true << 0;
}

void tst_LinkWatcher::limitAsksForTheState()
{
    QFETCH(const bool, connected);
    QFETCH(const int, reports);
    const TcpPeer peer(devicePort);
    WatchedLinks links(wideLimit);
    if (connected) {
        links.socket.connectToHost(TcpPeer::address(), devicePort);
        QTRY_COMPARE(links.socket.state(), QAbstractSocket::ConnectedState);
    }
    QCOMPARE(links.socket.isOpen(), connected);

    emit links.socket.stateChanged(QAbstractSocket::HostLookupState);
    QCOMPARE(
        QTest::qWaitFor([&] { return !links.lost.isEmpty(); }, reports > 0 ? 20'000 : wideSilence),
        reports > 0);
    QCOMPARE(links.lost.count(), reports);
}

void tst_LinkWatcher::connectingStopsTheLimit()
{
    const TcpPeer peer(devicePort);
    WatchedLinks links(wideLimit);
    links.socket.connectToHost(TcpPeer::address(), devicePort);
    QTRY_COMPARE(links.socket.state(), QAbstractSocket::ConnectedState);
    // A connection that ends after it was made is not an attempt that failed.
    links.socket.disconnectFromHost();
    QTRY_COMPARE(links.socket.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(!QTest::qWaitFor([&] { return !links.lost.isEmpty(); }, wideSilence));
}

void tst_LinkWatcher::attemptThatClosesItselfIsReported()
{
    WatchedLinks links;
    links.socket.connectToHost(TcpPeer::address(), devicePort);
    // With bytes queued, a refused attempt closes the socket and says nothing.
    links.socket.write("queued"_ba);
    QTRY_VERIFY(!links.socket.isOpen());
    QTRY_COMPARE(links.lost.count(), 1);
}

void tst_LinkWatcher::closedAttemptDoesNotCostALaterSerialLink()
{
    PassivePeer silent(devicePort);
    silent.stopAnswering();
    const PtyPeer peer;
    WatchedLinks links;
    links.socket.connectToHost(TcpPeer::address(), devicePort);
    links.socket.close();
    QVERIFY(links.openPort(peer));
    QVERIFY(!QTest::qWaitFor([&] { return !links.lost.isEmpty(); }, silence));
}

void tst_LinkWatcher::everyAttemptHasItsOwnLimit()
{
    WatchedLinks links;
    for (int attempt = 1; attempt <= 3; ++attempt) {
        links.socket.connectToHost(TcpPeer::address(), devicePort);
        QTRY_COMPARE(links.lost.count(), attempt);
        links.socket.close();
    }
    QTest::qWait(silence);
    QCOMPARE(links.lost.count(), 3);
}

void tst_LinkWatcher::openingReportsNothing()
{
    PtyPeer peer;
    WatchedLinks links;
    QSignalSpy errors(&links.port, &QSerialPort::errorOccurred);
    QVERIFY(links.openPort(peer));
    // Qt announces that all went well as an error.
    QVERIFY(!errors.isEmpty());
    QCOMPARE(errors.first().first().value<QSerialPort::SerialPortError>(), QSerialPort::NoError);
    QVERIFY(peer.send("x"_ba));
    QVERIFY(!QTest::qWaitFor([&] { return !links.lost.isEmpty(); }, silence));
    QVERIFY(links.port.isOpen());
}

void tst_LinkWatcher::failedOpeningReportsNothing_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QSerialPort::SerialPortError>("error");

    QTest::newRow("no such device") << false << QSerialPort::DeviceNotFoundError;
    QTest::newRow("held by somebody else") << true << QSerialPort::PermissionError;
}

void tst_LinkWatcher::failedOpeningReportsNothing()
{
    QFETCH(const bool, exists);
    const PtyPeer peer;
    QSerialPort holder;
    holder.setPortName(peer.portName());
    QVERIFY(holder.open(QIODevice::ReadWrite));

    WatchedLinks links;
    links.port.setPortName(exists ? peer.portName() : absentPort());
    QVERIFY(!links.port.open(QIODevice::ReadWrite));
    QTEST(links.port.error(), "error");
    QVERIFY(!QTest::qWaitFor([&] { return !links.lost.isEmpty(); }, silence));
}

void tst_LinkWatcher::vanishedDeviceIsReportedOnce()
{
    PtyPeer peer;
    WatchedLinks links;
    connect(&links.watcher, &LinkWatcher::linkLost, &links.port, &QSerialPort::close);
    QVERIFY(links.openPort(peer));
    peer.hangUp();
    QTRY_COMPARE(links.lost.count(), 1);
    QVERIFY(!links.port.isOpen());
    QTest::qWait(silence);
    QCOMPARE(links.lost.count(), 1);
}

void tst_LinkWatcher::vanishedDeviceIsReportedWithoutAnError()
{
    PtyPeer peer;
    WatchedLinks links;
    connect(&links.watcher, &LinkWatcher::linkLost, &links.port, &QSerialPort::close);
    // Who does not read gets no read errors, as with the versions of Qt that report none at all.
    QVERIFY(links.openPort(peer, QIODevice::WriteOnly));
    QSignalSpy errors(&links.port, &QSerialPort::errorOccurred);
    peer.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(links.lost.count(), 1, 20'000);
    QCOMPARE(errors.count(), 0);
    QTest::qWait(silence);
    QCOMPARE(links.lost.count(), 1);
}

void tst_LinkWatcher::vanishedDeviceIsReportedSoon()
{
    // A busy machine may delay any report; one in time shows how often the watcher looks.
    qint64 shortest = std::numeric_limits<qint64>::max(); // in ms
    for (int device = 0; device < 5 && shortest > 500; ++device) {
        PtyPeer peer;
        WatchedLinks links;
        connect(&links.watcher, &LinkWatcher::linkLost, &links.port, &QSerialPort::close);
        QVERIFY(links.openPort(peer, QIODevice::WriteOnly));
        QElapsedTimer time;
        time.start();
        peer.hangUp();
        QTRY_COMPARE_WITH_TIMEOUT(links.lost.count(), 1, 20'000);
        shortest = std::min(shortest, time.elapsed());
    }
    QVERIFY2(shortest <= 500, qPrintable(QString::number(shortest)));
}

void tst_LinkWatcher::serialErrors_data()
{
    QTest::addColumn<QSerialPort::SerialPortError>("error");
    QTest::addColumn<int>("reports");

    QTest::newRow("no error") << QSerialPort::NoError << 0;
    QTest::newRow("device not found") << QSerialPort::DeviceNotFoundError << 0;
    QTest::newRow("permission") << QSerialPort::PermissionError << 0;
    QTest::newRow("open") << QSerialPort::OpenError << 0;
    QTest::newRow("write") << QSerialPort::WriteError << 1;
    QTest::newRow("read") << QSerialPort::ReadError << 1;
    QTest::newRow("resource") << QSerialPort::ResourceError << 1;
    QTest::newRow("unsupported operation") << QSerialPort::UnsupportedOperationError << 0;
    QTest::newRow("unknown") << QSerialPort::UnknownError << 1;
    QTest::newRow("timeout") << QSerialPort::TimeoutError << 0;
    QTest::newRow("not open") << QSerialPort::NotOpenError << 0;
}

void tst_LinkWatcher::serialErrors()
{
    QFETCH(const QSerialPort::SerialPortError, error);
    QFETCH(const int, reports);
    const PtyPeer peer;
    WatchedLinks links;
    connect(&links.watcher, &LinkWatcher::linkLost, &links.port, &QSerialPort::close);
    QVERIFY(links.openPort(peer));
    for (int i = 0; i < 3; ++i)
        emit links.port.errorOccurred(error);
    QCOMPARE(links.lost.count(), reports);
    QCOMPARE(links.port.isOpen(), reports == 0);
}

void tst_LinkWatcher::closedPortIsNotReported()
{
    PtyPeer peer;
    WatchedLinks links;
    emit links.port.errorOccurred(QSerialPort::ReadError);
    QVERIFY(links.openPort(peer));
    links.port.close();
    emit links.port.errorOccurred(QSerialPort::ResourceError);
    peer.hangUp();
    QVERIFY(!QTest::qWaitFor([&] { return !links.lost.isEmpty(); }, silence));
}

void tst_LinkWatcher::reopenedPortIsWatchedAgain()
{
    WatchedLinks links;
    connect(&links.watcher, &LinkWatcher::linkLost, &links.port, &QSerialPort::close);
    for (int opening = 1; opening <= 3; ++opening) {
        PtyPeer peer;
        QVERIFY(links.openPort(peer, QIODevice::WriteOnly));
        QTest::qWait(10);
        QCOMPARE(links.lost.count(), opening - 1);
        peer.hangUp();
        QTRY_COMPARE_WITH_TIMEOUT(links.lost.count(), opening, 20'000);
    }
}

void tst_LinkWatcher::goneWatcher()
{
    PtyPeer peer;
    QSerialPort port;
    QTcpSocket socket;
    auto watcher = std::make_unique<LinkWatcher>(&port, &socket, limit);
    port.setPortName(peer.portName());
    QVERIFY(port.open(QIODevice::WriteOnly));
    socket.connectToHost(TcpPeer::address(), devicePort);
    watcher.reset();
    peer.hangUp();
    emit port.errorOccurred(QSerialPort::ResourceError);
    QTest::qWait(silence);
    QVERIFY(port.isOpen());
    QVERIFY(socket.isOpen());
}

void tst_LinkWatcher::goneLinks()
{
    PassivePeer silent(devicePort);
    silent.stopAnswering();
    const PtyPeer peer;
    auto port = std::make_unique<QSerialPort>();
    auto socket = std::make_unique<QTcpSocket>();
    const LinkWatcher watcher(port.get(), socket.get(), limit);
    QSignalSpy lost(&watcher, &LinkWatcher::linkLost);
    port->setPortName(peer.portName());
    QVERIFY(port->open(QIODevice::ReadWrite));
    socket->connectToHost(TcpPeer::address(), devicePort);
    port.reset();
    socket.reset();
    QVERIFY(!QTest::qWaitFor([&] { return !lost.isEmpty(); }, silence));
}

TESSALY_WINDOW_TEST(tst_LinkWatcher)
#include "tst_linkwatcher.moc"
