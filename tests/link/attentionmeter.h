// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <chrono>

/// Measures how much of its time the event loop has for the window's user: it ticks, and a tick
/// that comes late tells how long nothing else was answered. Time in which other programs had the
/// processor does not count, so that a busy machine changes no result.
class AttentionMeter
{
public:
    /// What nobody notices.
    static constexpr std::chrono::milliseconds unnoticed{50};

    AttentionMeter();

    int tickCount() const { return m_tickCount; }
    std::chrono::milliseconds longestAbsence() const { return m_longestAbsence; }
    /// The part of the time in which the loop answered, from 0 to 1: from the start to the moment
    /// at which the last absence began.
    double share() const { return m_share; }

private:
    void tick();
    /// Since the start, without the time in which this thread had to wait for the processor.
    std::chrono::milliseconds elapsed() const;

    QTimer m_timer;
    QElapsedTimer m_time;
    std::chrono::milliseconds m_waitedBefore{};
    std::chrono::milliseconds m_lastTick{};
    std::chrono::milliseconds m_longestAbsence{};
    std::chrono::milliseconds m_absence{};
    int m_tickCount = 0;
    double m_share = 1;
};
