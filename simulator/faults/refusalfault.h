// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A device that is still starting: nobody is reached for a while.
class RefusalFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
    std::chrono::milliseconds outage() const override;
};
