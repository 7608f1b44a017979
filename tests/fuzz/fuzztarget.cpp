// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/fuzz/fuzztarget.h"

#include <cstdio>
#include <cstdlib>

void expect(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}
