// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A device that obeys and says nothing.
class NoAnswerFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
};
