// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sender/devicelink.h"

#include <QTcpSocket>
#include <QTimer>

#include <chrono>

/// A device in the network.
class TcpLink : public DeviceLink
{
    Q_OBJECT

public:
    /// \a connectTimeLimit what connecting may take, name look-up included
    TcpLink(const QString &host, quint16 port, std::chrono::milliseconds connectTimeLimit,
            QObject *parent = nullptr);

    void open() override;
    bool isOpen() const override { return m_state == State::Open; }
    void write(const QByteArray &frame) override;
    void close() override;
    QString name() const override;

private:
    enum class State { Closed, Opening, Open, Closing };

    void handleConnected();
    void handleTimeout();
    void handleBytesWritten();
    void handleError(QAbstractSocket::SocketError error);
    void handleDisconnected();
    void reset();

    QString m_host;
    quint16 m_port;
    std::chrono::milliseconds m_connectTimeLimit;
    State m_state = State::Closed;
    bool m_isWriting = false;
    QTcpSocket m_socket;
    QTimer m_timer; ///< of connecting, and of closing
};
