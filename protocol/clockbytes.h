// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>

/// The data of a clock command (ids 27 to 31) for the moment `now`: raw numbers, one byte each,
/// local time and date for ids 27 to 29, UTC for 30 and 31. Empty for any other id.
QByteArray clockBytes(quint32 commandId, const QDateTime &now);
