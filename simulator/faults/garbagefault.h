// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A disturbed line: bytes without meaning stand before and behind every answer.
class GarbageFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
};
