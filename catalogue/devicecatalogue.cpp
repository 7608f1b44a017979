// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"

#include "catalogue/amplifiermodels.h"
#include "catalogue/audiomodels.h"
#include "catalogue/videomodels.h"

DeviceCatalogue buildDeviceCatalogue()
{
    DeviceCatalogue catalogue;
    appendTempoDeck(catalogue);
    appendShowDeckGen2(catalogue);
    appendVistarShowSerial(catalogue);
    appendVistarShowTcp(catalogue);
    appendAmpraOne(catalogue);
    appendPicoDeckGen23(catalogue);
    appendSonetASerial(catalogue);
    appendSonetALiteTcp(catalogue);
    appendVistarHomeSerial(catalogue);
    appendVistarHomeTcp(catalogue);
    appendHv1xxSerial(catalogue);
    appendHv1xxTcp(catalogue);
    appendPicoDeckLegacy(catalogue);
    appendCardDeckHd(catalogue);
    appendHv0xx(catalogue);

    return catalogue;
}
