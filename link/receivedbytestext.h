// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// The three forms in which received bytes are shown. Nothing is put between two arrivals.

/// Every byte decoded as UTF-8; what is none shows as replacement characters, also where a
/// character was cut in two by the arrival's end.
QString asciiReceivedText(const QByteArray &bytes);

/// A blank and two upper-case hexadecimal digits for each byte: " 01 AB".
QString hexReceivedText(const QByteArray &bytes);

/// A blank and the decimal value, without padding, for each byte: " 1 171".
QString decimalReceivedText(const QByteArray &bytes);
