// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testregistry.h"

#include <cstdio>
#include <vector>

int main(int argc, char *argv[])
{
    const TestFunction run = argc > 1 ? findTest(argv[1]) : nullptr;
    if (!run) {
        std::fprintf(stderr, "Usage: %s TEST [QT-TEST-ARGUMENT...]\n\nThe tests:\n  %s\n", argv[0],
                     testNames().join("\n  ").constData());
        return 2;
    }
    setRunningTest(argv[1]);
    std::vector<char *> arguments(argv, argv + argc);
    arguments.erase(arguments.begin() + 1);
    arguments.push_back(nullptr);
    return run(argc - 1, arguments.data());
}
