// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/refusalfault.h"

using namespace std::chrono_literals;

QList<AnswerStep> RefusalFault::steps(const QByteArray &answer) const
{
    return {{{}, answer}};
}

std::chrono::milliseconds RefusalFault::outage() const
{
    return 3s;
}
