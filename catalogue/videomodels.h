// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

// Video players. Each function appends its model, complete, to the end of the catalogue.

void appendVistarShowSerial(DeviceCatalogue &catalogue);
void appendVistarShowTcp(DeviceCatalogue &catalogue);
void appendVistarHomeSerial(DeviceCatalogue &catalogue);
void appendVistarHomeTcp(DeviceCatalogue &catalogue);
void appendHv1xxSerial(DeviceCatalogue &catalogue);
void appendHv1xxTcp(DeviceCatalogue &catalogue);
void appendHv0xx(DeviceCatalogue &catalogue);

/// Appends the commands that all current video models share to the catalogue's last model; the
/// catalogue must not be empty.
void appendSharedVideoCommands(DeviceCatalogue &catalogue);
