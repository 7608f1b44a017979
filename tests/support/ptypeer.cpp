// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/ptypeer.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A path that no other test has. The system gives the number of a closed pseudo-terminal to the
/// next one who asks, of any process: under its own name, a test could meet the lock of another
/// test's port, or its device.
QString newPortName()
{
    static const QTemporaryDir folder;
    static int count = 0;
    // Other users may walk through it, as through the folder of the devices.
    if (count == 0)
        QFile::setPermissions(folder.path(), QFile::Permissions::fromInt(0x7755));
    return folder.filePath(u"port%1"_s.arg(++count));
}

} // namespace

PtyPeer::PtyPeer()
    : m_master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    , m_portName(newPortName())
{
    if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0
        || !QFile::link(QString::fromLocal8Bit(::ptsname(m_master)), m_portName))
        qFatal("no pseudo-terminal to be had");
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
    if (m_master < 0)
        return;
    QFile::remove(m_portName);
    ::close(m_master);
    m_master = -1;
}
