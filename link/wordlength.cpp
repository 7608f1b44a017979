// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/wordlength.h"

#include <algorithm>

namespace {

bool endsWord(QChar character)
{
    constexpr char16_t narrowNoBreakSpace = 0x202F;
    constexpr char16_t figureSpace = 0x2007;
    return character.isSpace() && character != QChar::Nbsp && character != narrowNoBreakSpace
           && character != figureSpace;
}

} // namespace

qsizetype longestWord(QStringView text)
{
    qsizetype longest = 0;
    for (auto start = text.begin(); start != text.end();) {
        const auto end = std::find_if(start, text.end(), endsWord);
        longest = std::max(longest, qsizetype(end - start));
        start = std::find_if_not(end, text.end(), endsWord);
    }
    return longest;
}
