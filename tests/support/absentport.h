// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

/// A serial port that does not exist. Each process has its own: while one of them tries to open a
/// port, its lock refuses the port to others.
inline QString absentPort()
{
    return QStringLiteral("/dev/no-such-port-%1").arg(QCoreApplication::applicationPid());
}
