// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A slow line: every byte arrives alone.
class SingleBytesFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
};
