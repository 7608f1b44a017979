// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framelog.h"

#include <cstdio>

#include <poll.h>
#include <unistd.h>

namespace {

constexpr int readerTimeLimit = 1000; // in ms

} // namespace

FrameLog::FrameLog()
{
    static_cast<void>(m_output.open(stdout, QIODevice::WriteOnly));
}

void FrameLog::write(const QString &line)
{
    if (m_output.isOpen() && isReaderReady()) {
        m_output.write(line.toUtf8() + '\n');
        m_output.flush();
    }
    m_file.write(line);
}

/// Writing to a full pipe would stop the whole simulation, its end by a signal included.
bool FrameLog::isReaderReady()
{
    pollfd output{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
    m_isReaderStill = ::poll(&output, 1, m_isReaderStill ? 0 : readerTimeLimit) == 0;
    return !m_isReaderStill;
}
