// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// Bytes as the console shows them: one token per byte, single blanks between them.

/// Two upper-case hexadecimal digits per byte: "85 02 01".
QString hexBytesText(const QByteArray &bytes);

/// Decimal without padding: "133 2 1".
QString decimalBytesText(const QByteArray &bytes);

/// Rewrites a decimal text in hexadecimal. Every token counts, the empty ones between two blanks
/// too; one that is no 32-bit number becomes 00.
QString hexFromDecimalText(const QString &text);

/// Rewrites a hexadecimal text in decimal; a token that is no 32-bit number becomes 0.
QString decimalFromHexText(const QString &text);
