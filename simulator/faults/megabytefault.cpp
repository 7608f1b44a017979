// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/megabytefault.h"

namespace {

constexpr qsizetype megabyte = 1'048'576;

} // namespace

QList<AnswerStep> MegabyteFault::steps(const QByteArray &answer) const
{
    return {{{}, answer.repeated(megabyte / answer.size() + 1).first(megabyte)}};
}
