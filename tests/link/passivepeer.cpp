// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "passivepeer.h"

#include "tests/support/tcppeer.h"

#include <QHostAddress>
#include <QTest>

#include <array>
#include <tuple>

#include <linux/filter.h>
#include <netinet/in.h>
#include <poll.h>
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
    const int room = 1; // the system takes its minimum
    ::setsockopt(m_listener, SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
    if (::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        || ::listen(m_listener, 1) != 0) {
        qFatal("cannot listen");
    }
}

PassivePeer::~PassivePeer()
{
    for (const int fd : std::as_const(m_waiting))
        ::close(fd);
    if (m_connection >= 0)
        ::close(m_connection);
    ::close(m_listener);
}

void PassivePeer::stopAnswering()
{
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    ::getsockname(m_listener, generic, &size);
    // The system drops an attempt for which the listener's queue has no room. The queue is full
    // when an attempt stays unanswered for far longer than the loopback takes.
    for (int attempt = 0; attempt < 16; ++attempt) {
        const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        m_waiting.append(fd);
        // Nothing to learn from the result: the attempt is under way either way.
        std::ignore = ::connect(fd, generic, size);
        pollfd handle{.fd = fd, .events = POLLOUT, .revents = 0};
        if (::poll(&handle, 1, 100) == 0)
            return;
    }
    qFatal("the listener's queue does not fill");
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
