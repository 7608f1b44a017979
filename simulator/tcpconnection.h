// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/deviceconnection.h"

class QTcpSocket;

/// One console at a device on the network. Deletes itself when the console is gone.
class TcpConnection : public DeviceConnection
{
    Q_OBJECT

public:
    /// Takes the connected socket over.
    explicit TcpConnection(QTcpSocket *socket, QObject *parent);

    void send(const QByteArray &bytes) override;
    void hangUp() override;

private:
    QTcpSocket *m_socket;
};
