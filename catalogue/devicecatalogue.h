// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"

#include <QList>
#include <QStringList>

/// The models in the order in which the console lists them: row i of the model list is entry i.
using DeviceCatalogue = QList<DeviceModel>;

/// The models that the console offers.
DeviceCatalogue buildDeviceCatalogue();

/// The model of that name, in whatever case it is written; null when there is none. For as long as
/// the catalogue does not change.
const DeviceModel *findModel(const DeviceCatalogue &catalogue, const QString &name);
const DeviceModel *findModel(DeviceCatalogue &&catalogue, const QString &name) = delete;

QStringList modelNames(const DeviceCatalogue &catalogue);
