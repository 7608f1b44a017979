// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/ptypeer.h"

#include <QTest>

#include <array>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

PtyPeer::PtyPeer()
    : m_master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
        qFatal("no pseudo-terminal to be had");
    m_portName = QString::fromLocal8Bit(::ptsname(m_master));
}

PtyPeer::~PtyPeer()
{
    hangUp();
}

QByteArray PtyPeer::received()
{
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while (m_master >= 0 && (count = ::read(m_master, buffer.data(), buffer.size())) > 0)
        m_received.append(buffer.data(), count);
    return m_received;
}

QByteArray PtyPeer::takeReceived()
{
    received();
    return std::exchange(m_received, {});
}

bool PtyPeer::send(const QByteArray &bytes)
{
    qsizetype sent = 0;
    return QTest::qWaitFor([&] {
        const ssize_t count
            = ::write(m_master, bytes.constData() + sent, static_cast<size_t>(bytes.size() - sent));
        if (count > 0)
            sent += count;
        return sent == bytes.size();
    });
}

void PtyPeer::hangUp()
{
    if (m_master >= 0)
        ::close(m_master);
    m_master = -1;
}
