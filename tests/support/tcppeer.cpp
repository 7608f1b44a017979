// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/tcppeer.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QTcpSocket>

#include <sys/socket.h>

QHostAddress TcpPeer::address()
{
    const auto process = static_cast<quint32>(QCoreApplication::applicationPid());
    return QHostAddress(0x7F000002U + (process % 0xFF0000U));
}

TcpPeer::TcpPeer(quint16 port)
{
    connect(&m_server, &QTcpServer::newConnection, this, &TcpPeer::acceptConnection);
    if (!m_server.listen(address(), port))
        qFatal("cannot listen: %s", qPrintable(m_server.errorString()));
}

bool TcpPeer::isConnected() const
{
    return m_socket && m_socket->state() == QAbstractSocket::ConnectedState;
}

int TcpPeer::handle() const
{
    return static_cast<int>(m_socket->socketDescriptor());
}

void TcpPeer::send(const QByteArray &bytes)
{
    m_socket->write(bytes);
}

void TcpPeer::hangUp()
{
    m_socket->disconnectFromHost();
}

void TcpPeer::stopSending()
{
    ::shutdown(static_cast<int>(m_socket->socketDescriptor()), SHUT_WR);
}

void TcpPeer::acceptConnection()
{
    QTcpSocket *socket = m_server.nextPendingConnection();
    connect(socket, &QTcpSocket::readyRead, this,
            [this, socket] { m_received += socket->readAll(); });
    m_socket = socket;
    ++m_connectionCount;
}
