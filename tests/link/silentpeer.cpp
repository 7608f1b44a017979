// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "silentpeer.h"

#include "tests/support/tcppeer.h"

#include <QHostAddress>

#include <tuple>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

SilentPeer::SilentPeer(quint16 port)
    : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(TcpPeer::address().toIPv4Address());
    const auto *generic = reinterpret_cast<const sockaddr *>(&address);

    const int reuse = 1;
    ::setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse);
    if (::bind(m_listener, generic, sizeof address) != 0 || ::listen(m_listener, 0) != 0)
        qFatal("cannot listen");

    // The queue is full when an attempt stays unanswered for far longer than the loopback takes.
    for (int attempt = 0; attempt < 16; ++attempt) {
        const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        m_waiting.append(fd);
        // Nothing to learn from it: the attempt is under way either way.
        std::ignore = ::connect(fd, generic, sizeof address);
        pollfd handle{.fd = fd, .events = POLLOUT, .revents = 0};
        if (::poll(&handle, 1, 100) == 0)
            return;
    }
    qFatal("the listener's queue does not fill");
}

SilentPeer::~SilentPeer()
{
    for (const int fd : std::as_const(m_waiting))
        ::close(fd);
    ::close(m_listener);
}
