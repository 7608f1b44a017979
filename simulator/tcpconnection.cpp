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
    if (m_socket->bytesToWrite() + bytes.size() <= mostQueuedBytes)
        m_socket->write(bytes);
}

void TcpConnection::hangUp()
{
    m_socket->disconnectFromHost();
}
