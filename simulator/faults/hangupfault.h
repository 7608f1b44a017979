// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A link that breaks in the middle of every answer.
class HangUpFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
};
