// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A device that will not stop talking: the answer is repeated for a megabyte.
class MegabyteFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
};
