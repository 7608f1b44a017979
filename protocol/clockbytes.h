// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>

/// The data of a clock command for the moment `now`; empty for an id that is none.
///
///     27  hour, minute, second                              local time
///     28  year, month, day                                  local date
///     29  year, month, day, hour, minute, second            local
///     30  seconds since 1970 in five groups of seven bits   UTC
///     31  year, month, day, hour, minute, second            UTC
///
/// One byte each; the year counts from the century of the local year, for id 31 too.
QByteArray clockBytes(quint32 commandId, const QDateTime &now);
