// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/garbagefault.h"

using namespace Qt::Literals::StringLiterals;

QList<AnswerStep> GarbageFault::steps(const QByteArray &answer) const
{
    // Zero bytes, invalid UTF-8, the beginning of a character that never ends, frame headers.
    const QByteArray before = "\x00\x80\xFF\xFE\x7F"_ba;
    const QByteArray behind = "\xC3\x28\xF0\x9F\x1B[2J\xE2\x82"_ba;
    return {{{}, before + answer + behind}};
}
