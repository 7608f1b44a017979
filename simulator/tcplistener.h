// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTimer>

class TcpConnection;

/// The network port of a device. At most 32 consoles are served at once, more are sent away.
class TcpListener : public QObject
{
    Q_OBJECT

public:
    /// \a outage for how long connections are refused at first and after each connection
    explicit TcpListener(std::chrono::milliseconds outage, QObject *parent = nullptr);

    /// \a port 0 takes a free one
    /// \return false when the port cannot be had; errorString() says why
    bool listen(const QHostAddress &address, quint16 port);
    QString errorString() const { return m_server.errorString(); }
    quint16 port() const { return m_port; }

signals:
    void connected(TcpConnection *connection);

private:
    void accept();
    void refuseForAWhile();

    std::chrono::milliseconds m_outage;
    QTcpServer m_server;
    QTimer m_timer;
    QHostAddress m_address;
    quint16 m_port = 0;
    int m_connectionCount = 0;
};
