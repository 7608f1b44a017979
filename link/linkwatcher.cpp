// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/linkwatcher.h"

#ifdef Q_OS_UNIX
#include <poll.h>
#endif

using namespace std::chrono_literals;

namespace {

constexpr auto handleCheckInterval = 250ms;

bool isHungUp(const QSerialPort &port)
{
#ifdef Q_OS_UNIX
    pollfd handle{.fd = port.handle(), .events = 0, .revents = 0};
    // Some systems cannot poll a terminal, and say so in another bit.
    return ::poll(&handle, 1, 0) == 1 && (handle.revents & (POLLERR | POLLHUP)) != 0;
#else
    // Windows reports the loss of a device as an error of the port.
    Q_UNUSED(port)
    return false;
#endif
}

} // namespace

LinkWatcher::LinkWatcher(QSerialPort *port, QTcpSocket *socket,
                         std::chrono::milliseconds connectTimeLimit, QObject *parent)
    : QObject(parent)
    , m_serialPort(port)
    , m_tcpSocket(socket)
{
    m_connectTimer.setSingleShot(true);
    m_connectTimer.setInterval(connectTimeLimit);
    m_handleTimer.setInterval(handleCheckInterval);

    connect(&m_connectTimer, &QTimer::timeout, this, &LinkWatcher::handleConnectTimeout);
    connect(&m_handleTimer, &QTimer::timeout, this, &LinkWatcher::checkSerialHandle);
    connect(m_tcpSocket, &QTcpSocket::stateChanged, this, &LinkWatcher::handleSocketState);
    connect(m_serialPort, &QSerialPort::errorOccurred, this, &LinkWatcher::handleSerialError);
    connect(m_serialPort, &QSerialPort::aboutToClose, &m_handleTimer, &QTimer::stop);
}

void LinkWatcher::handleSocketState(QAbstractSocket::SocketState state)
{
    switch (state) {
    case QAbstractSocket::HostLookupState:
        m_connectTimer.start();
        break;
    case QAbstractSocket::ConnectedState:
        m_connectTimer.stop();
        break;
    default:
        break;
    }
}

void LinkWatcher::handleConnectTimeout()
{
    if (!m_tcpSocket || m_tcpSocket->state() == QAbstractSocket::ConnectedState)
        return;
    // The attempt is over and closed, and a serial link was made since: that one is not to blame.
    if (!m_tcpSocket->isOpen() && m_serialPort && m_serialPort->isOpen())
        return;
    emit linkLost();
}

void LinkWatcher::handleSerialError(QSerialPort::SerialPortError error)
{
    switch (error) {
    case QSerialPort::NoError: // sent by every opening, just before the port is open
        m_handleTimer.start();
        break;
    case QSerialPort::ReadError:
    case QSerialPort::WriteError:
    case QSerialPort::ResourceError:
    case QSerialPort::UnknownError:
        reportSerialLoss();
        break;
    default:
        break;
    }
}

void LinkWatcher::checkSerialHandle()
{
    if (!m_serialPort || !m_serialPort->isOpen())
        m_handleTimer.stop();
    else if (isHungUp(*m_serialPort))
        reportSerialLoss();
}

void LinkWatcher::reportSerialLoss()
{
    if (!m_serialPort->isOpen())
        return;
    m_handleTimer.stop();
    emit linkLost();
}
