// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "attentionmeter.h"

#include <algorithm>

using namespace std::chrono_literals;

AttentionMeter::AttentionMeter()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
    m_time.start();
    m_timer.start(5ms);
}

void AttentionMeter::tick()
{
    ++m_tickCount;
    const std::chrono::milliseconds now(m_time.elapsed());
    const std::chrono::milliseconds last = std::exchange(m_lastTick, now);
    const std::chrono::milliseconds absence = now - last;
    if (absence <= unnoticed)
        return;
    m_longestAbsence = std::max(m_longestAbsence, absence);
    m_share = 1 - double(m_absence.count()) / double(std::max(last, 1ms).count());
    m_absence += absence;
}
