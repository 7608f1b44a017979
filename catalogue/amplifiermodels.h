// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

// Amplifiers. Each function appends its model, complete, to the end of the catalogue.

void appendAmpraOne(DeviceCatalogue &catalogue);
