// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// The lines of the table that scripts/bench shows, printed as they are added. The script prints
/// the head and further lines in the same columns.
class SpeedTable
{
public:
    enum class Unit { Nanoseconds, Kilobytes, Times };

    /// Holds `ours` against `yardstick`, which is not 0; the limit is that of the ratio.
    void compare(const QByteArray &measure, double ours, double yardstick, double limit, Unit unit);
    /// Holds `ours` against an amount in the same unit.
    void check(const QByteArray &measure, double ours, double limit, Unit unit);

    /// Whether no line was beyond its limit.
    bool isWithinLimits() const { return m_withinLimits; }

private:
    void print(const QByteArray &measure, const QByteArray &ours, const QByteArray &yardstick,
               const QByteArray &ratio, const QByteArray &limit, bool isWithin);

    bool m_withinLimits = true;
};
