// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

/// A device whose answers look like a page of the web, with things to load.
class MarkupFault : public Fault
{
public:
    QList<AnswerStep> steps(const QByteArray &answer) const override;
};
