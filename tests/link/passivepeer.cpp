// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "passivepeer.h"

#include "tests/support/tcppeer.h"

#include <QHostAddress>
#include <QTest>

#include <array>

#include <linux/filter.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

PassivePeer::PassivePeer(quint16 port)
    : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(TcpPeer::address().toIPv4Address());

    const int reuse = 1;
    ::setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse);
    const int room = 1; // the system takes its least
    ::setsockopt(m_listener, SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
    if (::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        || ::listen(m_listener, 1) != 0) {
        qFatal("cannot listen");
    }
}

PassivePeer::~PassivePeer()
{
    if (m_connection >= 0)
        ::close(m_connection);
    ::close(m_listener);
}

bool PassivePeer::accept()
{
    return QTest::qWaitFor([this] {
        m_connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        return m_connection >= 0;
    });
}

void PassivePeer::send(const QByteArray &bytes) const
{
    if (::send(m_connection, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL)
        != bytes.size()) {
        qFatal("the console does not take the bytes");
    }
}

QByteArray PassivePeer::read() const
{
    QByteArray bytes;
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while ((count = ::recv(m_connection, buffer.data(), buffer.size(), 0)) > 0)
        bytes.append(buffer.data(), count);
    return bytes;
}

void PassivePeer::stopSending() const
{
    ::shutdown(m_connection, SHUT_WR);
}

void PassivePeer::reset()
{
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(m_connection, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    ::close(m_connection);
    m_connection = -1;
}

void PassivePeer::ignoreEverything() const
{
    sock_filter takeNothing = BPF_STMT(BPF_RET | BPF_K, 0);
    const sock_fprog program{.len = 1, .filter = &takeNothing};
    if (::setsockopt(m_connection, SOL_SOCKET, SO_ATTACH_FILTER, &program, sizeof program) != 0)
        qFatal("the system does not filter");
}
