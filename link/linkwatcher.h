// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>

/// Notices what port and socket do not tell by themselves: a TCP attempt that does not succeed, and
/// a serial device that is gone.
///
/// A refused attempt ends without a word: the socket stays open and unconnected or, when bytes
/// were queued, closes itself. So an attempt is judged by the socket's state when its time is up,
/// whatever happened before. A vanished serial device shows in one of two
/// ways, depending on Qt's version: errors without end while the port stays open, or none at all.
/// So the first error counts, and the handle is asked for a hang-up a few times a second.
class LinkWatcher : public QObject
{
    Q_OBJECT

public:
    /// \a connectTimeLimit what a TCP attempt may take, name look-up included
    LinkWatcher(QSerialPort *port, QTcpSocket *socket, std::chrono::milliseconds connectTimeLimit,
                QObject *parent = nullptr);

signals:
    /// The attempt failed or the device is gone; what is still open is to be closed.
    void linkLost();

private:
    void handleSocketState(QAbstractSocket::SocketState state);
    void handleConnectTimeout();
    void handleSerialError(QSerialPort::SerialPortError error);
    void checkSerialHandle();
    void reportSerialLoss();

    QPointer<QSerialPort> m_serialPort;
    QPointer<QTcpSocket> m_tcpSocket;
    QTimer m_connectTimer;
    QTimer m_handleTimer;
};
