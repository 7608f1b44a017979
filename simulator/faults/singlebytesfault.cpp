// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/singlebytesfault.h"

using namespace std::chrono_literals;

QList<AnswerStep> SingleBytesFault::steps(const QByteArray &answer) const
{
    QList<AnswerStep> steps;
    for (const char byte : answer)
        steps.append({20ms, QByteArray(1, byte)});
    return steps;
}
