// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "protocol/chosencommand.h"

#include <chrono>
#include <variant>

/// What is done next: a command is sent, or some time passes.
using Step = std::variant<ChosenCommand, std::chrono::milliseconds>;
