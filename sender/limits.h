// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/listnumbers.h"

/// What a pause may be, in ms: up to a day.
inline constexpr NumberRange pauseLimits{0, 86'400'000};

/// What a time limit may be, in ms: up to an hour.
inline constexpr NumberRange timeoutLimits{1, 3'600'000};

inline constexpr NumberRange repeatLimits{1, 1'000'000'000};
