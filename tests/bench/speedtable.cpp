// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/speedtable.h"

#include <cstdio>

namespace {

QByteArray rounded(double value)
{
    return QByteArray::number(value, 'f', value < 10 ? 2 : value < 100 ? 1 : 0);
}

QByteArray amount(double value, SpeedTable::Unit unit)
{
    switch (unit) {
    case SpeedTable::Unit::Nanoseconds:
        if (value >= 1e9)
            return rounded(value / 1e9) + " s";
        if (value >= 1e6)
            return rounded(value / 1e6) + " ms";
        if (value >= 1e3)
            return rounded(value / 1e3) + " us";
        return rounded(value) + " ns";
    case SpeedTable::Unit::Kilobytes:
        return rounded(value / 1024) + " MiB";
    case SpeedTable::Unit::Times:
        break;
    }
    return QByteArray::number(value, 'f', 0);
}

} // namespace

void SpeedTable::compare(const QByteArray &measure, double ours, double yardstick, double limit,
                         Unit unit)
{
    const double ratio = ours / yardstick;
    print(measure, amount(ours, unit), amount(yardstick, unit), QByteArray::number(ratio, 'f', 2),
          QByteArray::number(limit, 'f', 2), ratio <= limit);
}

void SpeedTable::check(const QByteArray &measure, double ours, double limit, Unit unit)
{
    print(measure, amount(ours, unit), "-", "-", amount(limit, unit), ours <= limit);
}

void SpeedTable::print(const QByteArray &measure, const QByteArray &ours,
                       const QByteArray &yardstick, const QByteArray &ratio,
                       const QByteArray &limit, bool isWithin)
{
    m_withinLimits = m_withinLimits && isWithin;
    std::printf("%-56s %10s %10s %6s %8s  %s\n", measure.constData(), ours.constData(),
                yardstick.constData(), ratio.constData(), limit.constData(),
                isWithin ? "ok" : "MISSED");
    std::fflush(stdout);
}
