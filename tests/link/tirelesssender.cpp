// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tirelesssender.h"

#include <algorithm>
#include <chrono>

#include <poll.h>
#include <unistd.h>

using namespace std::chrono_literals;

TirelessSender::TirelessSender(int handle, QByteArray bytes, int byteRate)
    : m_handle(handle)
    , m_bytes(std::move(bytes))
    , m_byteRate(byteRate)
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
    const auto start = std::chrono::steady_clock::now();
    while (!isDone() && !m_isBrokenOff) {
        qsizetype due = m_bytes.size();
        if (m_byteRate > 0) {
            const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
                std::chrono::steady_clock::now() - start);
            due = std::min(due, qsizetype(m_byteRate * elapsed.count() / 1000));
        }
        pollfd handle{.fd = m_handle, .events = POLLOUT, .revents = 0};
        if (due <= m_sentCount || ::poll(&handle, 1, 10) == 0) {
            std::this_thread::sleep_for(1ms);
            continue;
        }
        const ssize_t count = ::write(m_handle, m_bytes.constData() + m_sentCount,
                                      static_cast<size_t>(due - m_sentCount));
        if (count > 0)
            m_sentCount += count;
    }
}
