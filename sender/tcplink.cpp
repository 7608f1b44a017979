// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/tcplink.h"

#include <sys/socket.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What a device may take to hang up, too, when we have.
constexpr auto closeTimeLimit = 500ms;

} // namespace

TcpLink::TcpLink(const QString &host, quint16 port, std::chrono::milliseconds connectTimeLimit,
                 QObject *parent)
    : DeviceLink(parent)
    , m_host(host)
    , m_port(port)
    , m_connectTimeLimit(connectTimeLimit)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TcpLink::handleTimeout);
    connect(&m_socket, &QTcpSocket::connected, this, &TcpLink::handleConnected);
    connect(&m_socket, &QTcpSocket::bytesWritten, this, &TcpLink::handleBytesWritten);
    connect(&m_socket, &QTcpSocket::readyRead, this, [this] { emit received(m_socket.readAll()); });
    // An error is told before the socket's own state is in order; what follows may open it again.
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &TcpLink::handleError,
            Qt::QueuedConnection);
    connect(&m_socket, &QTcpSocket::disconnected, this, &TcpLink::handleDisconnected,
            Qt::QueuedConnection);
}

QString TcpLink::name() const
{
    return u"%1 port %2"_s.arg(m_host).arg(m_port);
}

void TcpLink::open()
{
    m_state = State::Opening;
    m_timer.start(m_connectTimeLimit);
    m_socket.connectToHost(m_host, m_port);
}

void TcpLink::write(const QByteArray &frame)
{
    m_isWriting = true;
    m_socket.write(frame);
}

/// A socket that is closed while the device still sends makes the system tell it that the
/// connection broke, and it may drop the command that it has not read yet. So we say that nothing
/// more comes, and wait for the device to hang up.
void TcpLink::close()
{
    if (m_state == State::Open) {
        m_state = State::Closing;
        m_timer.start(closeTimeLimit);
        ::shutdown(static_cast<int>(m_socket.socketDescriptor()), SHUT_WR);
        return;
    }
    reset();
    emit closed();
}

void TcpLink::handleConnected()
{
    if (m_state != State::Opening)
        return;
    m_timer.stop();
    m_state = State::Open;
    // A command is not to wait for the next one.
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    emit opened();
}

void TcpLink::handleTimeout()
{
    const State state = m_state;
    reset();
    if (state == State::Opening)
        emit failed(u"no connection within %1 ms"_s.arg(m_connectTimeLimit.count()));
    else if (state == State::Closing)
        emit closed();
}

void TcpLink::handleBytesWritten()
{
    if (!m_isWriting || m_socket.bytesToWrite() > 0)
        return;
    m_isWriting = false;
    emit written();
}

void TcpLink::handleError(QAbstractSocket::SocketError error)
{
    const State state = m_state;
    if (state == State::Closed || error == QAbstractSocket::RemoteHostClosedError)
        return; // the end in good order is told by disconnected()
    const QString reason = m_socket.errorString();
    reset();
    if (state == State::Opening)
        emit failed(reason);
    else if (state == State::Open)
        emit lost(reason);
    else
        emit closed();
}

void TcpLink::handleDisconnected()
{
    const State state = m_state;
    if (state != State::Open && state != State::Closing)
        return;
    reset();
    if (state == State::Open)
        emit hungUp();
    else
        emit closed();
}

void TcpLink::reset()
{
    m_timer.stop();
    m_isWriting = false;
    m_state = State::Closed;
    m_socket.abort();
}
