// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"
#include "catalogue/lightingmodels.h"

/// The models that are defined and not offered, as the product builds them.
inline DeviceCatalogue unofferedModels()
{
    DeviceCatalogue models;
    appendLumoBridge(models);
    return models;
}

/// A model as the product builds it, offered or not; there has to be one of that name.
inline DeviceModel builtModel(const QString &name)
{
    const DeviceCatalogue models = buildDeviceCatalogue() + unofferedModels();
    const DeviceModel *found = findModel(models, name);
    if (!found)
        qFatal("the product has no model %s", qPrintable(name));
    return *found;
}
