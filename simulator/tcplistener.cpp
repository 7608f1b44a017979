// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/tcplistener.h"

#include "simulator/tcpconnection.h"

#include <QTcpSocket>

namespace {

constexpr int mostConnections = 32;

} // namespace

TcpListener::TcpListener(std::chrono::milliseconds outage, QObject *parent)
    : QObject(parent)
    , m_outage(outage)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    // Somebody else may have taken the port meanwhile.
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!m_server.listen(m_address, m_port))
            m_timer.start(m_outage);
    });
    connect(&m_server, &QTcpServer::newConnection, this, &TcpListener::accept);
}

bool TcpListener::listen(const QHostAddress &address, quint16 port)
{
    if (!m_server.listen(address, port))
        return false;
    m_address = address;
    m_port = m_server.serverPort();
    refuseForAWhile();
    return true;
}

void TcpListener::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        if (m_connectionCount == mostConnections) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        ++m_connectionCount;
        auto *connection = new TcpConnection(socket, this);
        connect(connection, &QObject::destroyed, this, [this] {
            --m_connectionCount;
            refuseForAWhile();
        });
        emit connected(connection);
    }
}

void TcpListener::refuseForAWhile()
{
    if (m_outage.count() == 0)
        return;
    m_server.close();
    m_timer.start(m_outage);
}
