// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/commandentry.h"

#include <QStringList>

#include <optional>

// Numbers as the panels list them and as the command slots read them back.

/// A range of numbers, both ends included; empty when `last` is below `first`.
struct NumberRange
{
    int first = 0;
    int last = -1;

    bool operator==(const NumberRange &) const = default;
};

/// The range between the bytes at `index` of `data` and `dataMax`; empty when one lacks the byte.
NumberRange byteRange(const CommandEntry &entry, qsizetype index = 0);

/// The range between the 16-bit big-endian values at the head of `data` and `dataMax`; empty when
/// one holds fewer than two bytes.
NumberRange wordRange(const CommandEntry &entry);

/// The number with leading zeros to at least three digits: 7 gives "007", 1234 stays "1234".
QString paddedNumber(int number);

/// Every number of the range, in decimal.
QStringList numberTexts(NumberRange range);

/// Every number of the range, each through paddedNumber().
QStringList paddedNumberTexts(NumberRange range);

/// The folder numbers that a folder command offers, padded: one number per bank and value of its
/// range, counted on from bank to bank, none above 999.
QStringList folderTexts(const CommandEntry &entry, int bankCount);

/// The lowest and the highest of these numbers; empty when there is none.
NumberRange folderRange(const CommandEntry &entry, int bankCount);

/// The range for people: "0 to 127", or the number alone when it holds but one.
QString rangeText(NumberRange range);

/// The number that a text shows, base 10; nothing when it is none, or none of the range. "+5" is
/// none: who writes so may mean five more.
std::optional<int> numberInRange(const QString &text, NumberRange range);

/// The number that a list text shows, base 10; 0 when it is none or does not fit 32 bits.
int numberFromText(const QString &text);
