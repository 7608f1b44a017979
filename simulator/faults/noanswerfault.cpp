// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/noanswerfault.h"

QList<AnswerStep> NoAnswerFault::steps(const QByteArray &) const
{
    return {};
}
