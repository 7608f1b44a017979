// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "attentionmeter.h"

#include <QFile>

#include <algorithm>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The time in which this thread was ready and others had the processor. None when the system does
/// not keep it.
std::chrono::milliseconds waitedForProcessor()
{
    QFile file(u"/proc/thread-self/schedstat"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0ms;
    // Nanoseconds of running, nanoseconds of waiting, number of turns.
    const std::chrono::nanoseconds waited(file.readAll().split(' ').value(1).toLongLong());
    return std::chrono::duration_cast<std::chrono::milliseconds>(waited);
}

} // namespace

AttentionMeter::AttentionMeter()
    : m_waitedBefore(waitedForProcessor())
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
    m_time.start();
    m_timer.start(5ms);
}

std::chrono::milliseconds AttentionMeter::elapsed() const
{
    return std::chrono::milliseconds(m_time.elapsed()) - (waitedForProcessor() - m_waitedBefore);
}

void AttentionMeter::tick()
{
    ++m_tickCount;
    const std::chrono::milliseconds now = elapsed();
    const std::chrono::milliseconds last = std::exchange(m_lastTick, now);
    const std::chrono::milliseconds absence = now - last;
    if (absence <= unnoticed)
        return;
    m_longestAbsence = std::max(m_longestAbsence, absence);
    m_share = 1 - double(m_absence.count()) / double(std::max(last, 1ms).count());
    m_absence += absence;
}
