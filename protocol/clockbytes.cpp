// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/clockbytes.h"

#include "catalogue/commandid.h"

namespace {

QByteArray timeBytes(QTime time)
{
    QByteArray bytes;
    bytes += static_cast<char>(time.hour());
    bytes += static_cast<char>(time.minute());
    bytes += static_cast<char>(time.second());
    return bytes;
}

/// \a centuryYear a year of the century that the two-digit year counts from
QByteArray dateBytes(QDate date, int centuryYear)
{
    QByteArray bytes;
    bytes += static_cast<char>(date.year() - centuryYear / 100 * 100);
    bytes += static_cast<char>(date.month());
    bytes += static_cast<char>(date.day());
    return bytes;
}

/// Seconds since 1970 in groups of 7 bits, the highest first: bits 28 to 34 | 21 to 27 | 14 to 20
/// | 7 to 13 | 0 to 6. No byte has its top bit set.
QByteArray epochBytes(const QDateTime &now)
{
    const qint64 seconds = now.toMSecsSinceEpoch() / 1000;
    QByteArray bytes;
    for (int shift = 28; shift >= 0; shift -= 7)
        bytes += static_cast<char>((seconds >> shift) & 0x7F);
    return bytes;
}

} // namespace

QByteArray clockBytes(quint32 commandId, const QDateTime &now)
{
    const QDateTime local = now.toLocalTime();
    const QDateTime utc = now.toUTC();
    const int localYear = local.date().year();

    switch (commandId) {
    case CommandId::SetTime:
        return timeBytes(local.time());
    case CommandId::SetDate:
        return dateBytes(local.date(), localYear);
    case CommandId::SetDateTime:
        return dateBytes(local.date(), localYear) + timeBytes(local.time());
    case CommandId::SetUtcEpoch:
        return epochBytes(now);
    case CommandId::SetUtcFull:
        // The century is the local one: it differs on the night a century turns, deliberately.
        return dateBytes(utc.date(), localYear) + timeBytes(utc.time());
    default:
        return {};
    }
}
