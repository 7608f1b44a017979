// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

// Audio players. Each function appends its model, complete, to the end of the catalogue.

void appendTempoDeck(DeviceCatalogue &catalogue);
void appendShowDeckGen2(DeviceCatalogue &catalogue);
void appendPicoDeckGen23(DeviceCatalogue &catalogue);
void appendSonetASerial(DeviceCatalogue &catalogue);
void appendSonetALiteTcp(DeviceCatalogue &catalogue);
void appendPicoDeckLegacy(DeviceCatalogue &catalogue);
void appendCardDeckHd(DeviceCatalogue &catalogue);
