// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>

/// Notices what port and socket do not tell by themselves: a TCP attempt that gets no answer, and
/// a serial device that is gone. Reports once for each opening of a link.
///
/// A refused attempt leaves the socket open and unconnected without a word, so an attempt is
/// judged by the socket's state when its time is up. A vanished serial device shows in one of two
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
    /// The attempt failed or the device is gone; the link is still open and is to be closed.
    void linkLost();

private:
    void handleSocketState(QAbstractSocket::SocketState state);
    void handleConnectTimeout();
    void handleSerialError(QSerialPort::SerialPortError error);
    void checkSerialHandle();
    void reportSerialLoss();

    QSerialPort *m_serialPort;
    QTcpSocket *m_tcpSocket;
    QTimer m_connectTimer;
    QTimer m_handleTimer;
};
