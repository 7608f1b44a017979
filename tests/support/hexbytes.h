// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// Bytes as a failing comparison should show them: "85 02 01".
inline QByteArray hexBytes(const QByteArray &bytes)
{
    return bytes.toHex(' ').toUpper();
}
