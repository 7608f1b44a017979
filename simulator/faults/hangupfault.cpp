// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/hangupfault.h"

QList<AnswerStep> HangUpFault::steps(const QByteArray &answer) const
{
    return {{{}, answer.first(answer.size() / 2), true}};
}
