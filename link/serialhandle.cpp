// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/serialhandle.h"

#include <QSerialPort>

#ifdef Q_OS_UNIX
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#endif

bool takesBytes(const QSerialPort &port)
{
#ifdef Q_OS_UNIX
    pollfd handle{.fd = port.handle(), .events = POLLOUT, .revents = 0};
    // A device that is gone is none of the writer's business.
    return ::poll(&handle, 1, 0) == 1 && handle.revents == POLLOUT;
#else
    Q_UNUSED(port)
    return false;
#endif
}

bool isDrained(const QSerialPort &port)
{
#ifdef Q_OS_UNIX
    int waiting = 0;
    if (::ioctl(port.handle(), TIOCOUTQ, &waiting) == 0 && waiting > 0)
        return false;
    // What the device's own few bytes of buffer hold is not counted, and is soon away.
    ::tcdrain(port.handle());
#else
    Q_UNUSED(port)
#endif
    return true;
}
