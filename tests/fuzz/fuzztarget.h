// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

// A fuzz target is this function: it is called with one input after the other and returns 0. It
// answers to libFuzzer, which makes the inputs up, and to replay.cpp, which reads them from files.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

/// Ends the program when a promise is broken, having said which; the input is then a finding.
void expect(bool holds, const char *promise);
