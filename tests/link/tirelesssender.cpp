// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tirelesssender.h"

#include <algorithm>
#include <chrono>

#include <poll.h>
#include <unistd.h>

using namespace std::chrono_literals;

TirelessSender::TirelessSender(int handle, QByteArray bytes)
    : m_handle(handle)
    , m_bytes(std::move(bytes))
    , m_thread(&TirelessSender::send, this)
{
}

TirelessSender::~TirelessSender()
{
    m_isBrokenOff = true;
    m_thread.join();
}

void TirelessSender::send()
{
    while (!isDone() && !m_isBrokenOff) {
        pollfd handle{.fd = m_handle, .events = POLLOUT, .revents = 0};
        if (::poll(&handle, 1, 10) == 0)
            continue;
        const ssize_t count = ::write(m_handle, m_bytes.constData() + m_sentCount,
                                      static_cast<size_t>(m_bytes.size() - m_sentCount));
        if (count > 0)
            m_sentCount += count;
    }
}
