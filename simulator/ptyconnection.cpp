// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/ptyconnection.h"

#include <array>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

/// Longer than a console may be busy with showing what it has read.
constexpr auto unreadLimit = 30s;
/// How long pulling the plug waits for the console to read what was sent before.
constexpr auto plugLimit = 2s;
constexpr auto plugPollInterval = 10ms;
/// What is written counts as unread only when the system has passed it on, which takes up to 10 ms
/// on a busy machine. So nothing unread has to last.
constexpr auto quietTime = 100ms;

bool hasPassed(std::chrono::milliseconds limit, const QElapsedTimer &since)
{
    return since.hasExpired(limit.count());
}

} // namespace

PtyConnection::PtyConnection(QObject *parent)
    : DeviceConnection(parent)
{
    m_unreadTimer.setSingleShot(true);
    connect(&m_unreadTimer, &QTimer::timeout, this, &PtyConnection::dropUnread);
    connect(&m_plugTimer, &QTimer::timeout, this, &PtyConnection::pullPlugWhenRead);
}

PtyConnection::~PtyConnection()
{
    close();
}

bool PtyConnection::open()
{
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
        return false;
    const char *path = ::ptsname(m_master);

    // Kept open: without anybody at the other end, the master would report a hang-up without end.
    // It also keeps the line raw, so that no answer is echoed back as a command.
    m_slave = ::open(path, O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings{};
    if (m_slave < 0 || ::tcgetattr(m_slave, &settings) != 0)
        return false;
    ::cfmakeraw(&settings);
    if (::tcsetattr(m_slave, TCSANOW, &settings) != 0)
        return false;

    m_path = QString::fromLocal8Bit(path);
    m_readNotifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    m_writeNotifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Write);
    m_writeNotifier->setEnabled(false);
    connect(m_readNotifier.get(), &QSocketNotifier::activated, this, &PtyConnection::readMaster);
    connect(m_writeNotifier.get(), &QSocketNotifier::activated, this, &PtyConnection::writeMaster);
    return true;
}

void PtyConnection::close()
{
    m_readNotifier.reset();
    m_writeNotifier.reset();
    for (int *descriptor : {&m_slave, &m_master}) {
        if (*descriptor >= 0)
            ::close(*descriptor);
        *descriptor = -1;
    }
    m_unsent.clear();
}

void PtyConnection::send(const QByteArray &bytes)
{
    if (m_plugTimer.isActive() || m_unsent.size() + bytes.size() > mostQueuedBytes)
        return;
    m_unsent += bytes;
    // A line that is full says itself when it takes more.
    if (!m_writeNotifier->isEnabled())
        writeMaster();
}

void PtyConnection::hangUp()
{
    if (m_plugTimer.isActive())
        return;
    m_hangingUp.start();
    m_quiet.start();
    m_plugTimer.start(plugPollInterval);
}

void PtyConnection::readMaster()
{
    std::array<char, 4096> buffer;
    const ssize_t count = ::read(m_master, buffer.data(), buffer.size());
    if (count > 0)
        emit received(QByteArray(buffer.data(), count));
}

void PtyConnection::writeMaster()
{
    const ssize_t count
        = ::write(m_master, m_unsent.constData(), static_cast<size_t>(m_unsent.size()));
    if (count > 0) {
        m_unsent.remove(0, count);
        m_unreadTimer.start(unreadLimit);
    }
    m_writeNotifier->setEnabled(!m_unsent.isEmpty());
}

int PtyConnection::unreadBytes() const
{
    int count = 0;
    return ::ioctl(m_slave, FIONREAD, &count) == 0 ? count : 0;
}

void PtyConnection::dropUnread()
{
    m_unsent.clear();
    m_writeNotifier->setEnabled(false);
    ::tcflush(m_slave, TCIFLUSH);
}

void PtyConnection::pullPlugWhenRead()
{
    if (!m_unsent.isEmpty() || unreadBytes() > 0)
        m_quiet.restart();
    if (!hasPassed(quietTime, m_quiet) && !hasPassed(plugLimit, m_hangingUp))
        return;
    m_plugTimer.stop();
    m_unreadTimer.stop();
    close();
    if (open())
        emit pathChanged(m_path);
}
