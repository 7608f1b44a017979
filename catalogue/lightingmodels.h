// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

// Lighting interfaces. Each function appends its model, complete, to the end of the catalogue.

/// The DMX interface: defined and ready to be listed, but not offered yet.
void appendLumoBridge(DeviceCatalogue &catalogue);
