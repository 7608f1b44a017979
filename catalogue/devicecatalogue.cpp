// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"

#include "catalogue/amplifiermodels.h"
#include "catalogue/audiomodels.h"
#include "catalogue/videomodels.h"

#include <algorithm>

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

const DeviceModel *findModel(const DeviceCatalogue &catalogue, const QString &name)
{
    const auto found = std::ranges::find_if(catalogue, [&](const DeviceModel &model) {
        return model.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == catalogue.cend() ? nullptr : &*found;
}

QStringList modelNames(const DeviceCatalogue &catalogue)
{
    QStringList names;
    for (const DeviceModel &model : catalogue)
        names.append(model.name);
    return names;
}
