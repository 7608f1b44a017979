// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "protocol/bytestext.h"

/// How bytes are printed.
enum class ByteForm { Text, Hex, Dec };

/// Two upper-case digits or decimal numbers with blanks between them; hexadecimal for
/// ByteForm::Text, which is for answers alone.
inline QString numbersText(const QByteArray &bytes, ByteForm form)
{
    return form == ByteForm::Dec ? decimalBytesText(bytes) : hexBytesText(bytes);
}
