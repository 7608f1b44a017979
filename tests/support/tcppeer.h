// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QTcpServer>

class QTcpSocket;

/// The device's end of a TCP link. It serves one connection after the other and keeps the bytes of
/// all of them.
class TcpPeer : public QObject
{
    Q_OBJECT

public:
    /// An address of the loopback net that this process has to itself, so that tests that run at
    /// the same time can all use the models' own ports.
    static QHostAddress address();

    /// Listens on address(). A port of 0 takes a free one.
    explicit TcpPeer(quint16 port);

    quint16 port() const { return m_server.serverPort(); }
    /// The number of connections accepted so far.
    int connectionCount() const { return m_connectionCount; }
    /// Whether a connection is open at present.
    bool isConnected() const;

    /// Of the present connection.
    int handle() const;

    /// Everything that the console has sent since the last takeReceived().
    QByteArray received() const { return m_received; }
    QByteArray takeReceived() { return std::exchange(m_received, {}); }

    void send(const QByteArray &bytes);
    /// Closes the present connection and goes on listening.
    void hangUp();
    /// Says that nothing more is sent, and stays connected until the console has hung up, too.
    void stopSending();

private:
    void acceptConnection();

    QTcpServer m_server;
    QTcpSocket *m_socket = nullptr;
    int m_connectionCount = 0;
    QByteArray m_received;
};
