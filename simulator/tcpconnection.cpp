// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/tcpconnection.h"

#include <QTcpSocket>

namespace {

constexpr qint64 readBufferSize = 65'536;

} // namespace

TcpConnection::TcpConnection(QTcpSocket *socket, QObject *parent)
    : DeviceConnection(parent)
    , m_socket(socket)
{
    socket->setParent(this);
    socket->setReadBufferSize(readBufferSize);
    connect(socket, &QTcpSocket::readyRead, this, [this] { emit received(m_socket->readAll()); });
    connect(socket, &QTcpSocket::disconnected, this, &DeviceConnection::closed);
    connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
}

void TcpConnection::send(const QByteArray &bytes)
{
    const bool isCut = m_socket->state() != QAbstractSocket::ConnectedState;
    if (isCut || m_socket->bytesToWrite() + bytes.size() > mostQueuedBytes)
        return;
    m_socket->write(bytes);
    // A console that has closed its side ends the socket, with all that waits in it.
    m_socket->flush();
}

void TcpConnection::hangUp()
{
    m_socket->disconnectFromHost();
}
