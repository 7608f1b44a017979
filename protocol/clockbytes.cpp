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
    // Conversions between time zones are slow, and most commands are no clock commands.
    switch (commandId) {
    case CommandId::SetTime:
        return timeBytes(now.toLocalTime().time());
    case CommandId::SetDate: {
        const QDate local = now.toLocalTime().date();
        return dateBytes(local, local.year());
    }
    case CommandId::SetDateTime: {
        const QDateTime local = now.toLocalTime();
        return dateBytes(local.date(), local.date().year()) + timeBytes(local.time());
    }
    case CommandId::SetUtcEpoch:
        return epochBytes(now);
    case CommandId::SetUtcFull: {
        const QDateTime utc = now.toUTC();
        // The century is the local one: it differs on the night a century turns, deliberately.
        const int localYear = now.toLocalTime().date().year();
        return dateBytes(utc.date(), localYear) + timeBytes(utc.time());
    }
    default:
        return {};
    }
}
