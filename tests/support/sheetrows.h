// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/modelsheets.h"

// For the "_data" function of a test: a row for each model, named after it, with the column
// "sheet", a ModelSheet.

/// The models that the console offers.
void addModelRows();

/// The models that are not offered, too.
void addAllModelRows();
