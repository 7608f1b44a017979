// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"
#include "catalogue/lightingmodels.h"

/// The model of the catalogue that has exactly that name, offered or not. Ends the program when
/// there is none.
inline DeviceModel modelOfName(const QString &name)
{
    DeviceCatalogue models = buildDeviceCatalogue();
    appendLumoBridge(models);
    for (const DeviceModel &model : models) {
        if (model.name == name)
            return model;
    }
    qFatal("the catalogue has no %s", qPrintable(name));
}
