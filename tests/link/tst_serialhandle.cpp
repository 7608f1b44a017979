// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "link/serialhandle.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QPushButton>
#include <QSerialPort>

using namespace Qt::Literals::StringLiterals;

class tst_SerialHandle : public QObject
{
    Q_OBJECT

private slots:
    void aFullLineTakesNothing();
    void aGoneDeviceTakesNothing();
    void commandLeavesBeforeAnythingIsDrawn();
    void commandsForADeviceThatDoesNotRead();
};

void tst_SerialHandle::aFullLineTakesNothing()
{
    PtyPeer peer;
    QSerialPort port;
    port.setPortName(peer.portName());
    QVERIFY(port.open(QIODevice::ReadWrite));
    QVERIFY(takesBytes(port));
    port.write(QByteArray(1'000'000, 'x'));
    // Without the event loop, the peer reads nothing.
    const QDeadlineTimer deadline(5000);
    while (takesBytes(port) && !deadline.hasExpired())
        port.flush();
    QVERIFY(!takesBytes(port));
    QTRY_VERIFY((peer.received(), port.bytesToWrite() == 0));
    QTRY_VERIFY((peer.received(), takesBytes(port)));
}

void tst_SerialHandle::aGoneDeviceTakesNothing()
{
    PtyPeer peer;
    QSerialPort port;
    port.setPortName(peer.portName());
    QVERIFY(port.open(QIODevice::ReadWrite));
    peer.hangUp();
    QVERIFY(!takesBytes(port));
}

void tst_SerialHandle::commandLeavesBeforeAnythingIsDrawn()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Tempo Deck"_s));
    console.connectSerial(peer);
    console.window.on_pushButton_Play_clicked();
    // Without the event loop, nothing but what was sent at once comes here.
    const QDeadlineTimer deadline(5000);
    while (peer.received().size() < 3 && !deadline.hasExpired()) {
    }
    QCOMPARE(peer.received(), "\x80\x02\x01"_ba);
}

// Bytes that do not fit into the line wait for their turn, and the link stays open.
void tst_SerialHandle::commandsForADeviceThatDoesNotRead()
{
    constexpr int count = 20'000;
    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Tempo Deck"_s));
    console.connectSerial(peer);
    for (int i = 0; i < count; ++i) {
        if (i % 2 == 0)
            console.window.on_pushButton_Play_clicked();
        else
            console.window.on_pushButton_Stop_clicked();
    }
    QVERIFY(serialPort->bytesToWrite() > 0);
    QVERIFY(serialPort->isOpen());
    const QByteArray expected = "\x80\x02\x01\x80\x02\x02"_ba.repeated(count / 2);
    QTRY_COMPARE(peer.received().size(), expected.size());
    QVERIFY(peer.received() == expected);
    QVERIFY(console.find<QPushButton>("pushButton_Disconnect")->isEnabled());
}

TESSALY_WINDOW_TEST(tst_SerialHandle)

#include "tst_serialhandle.moc"
