// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"

#include <QList>

/// The models in the order in which the console lists them: row i of the model list is entry i.
using DeviceCatalogue = QList<DeviceModel>;

/// The fifteen models that the console offers.
DeviceCatalogue buildDeviceCatalogue();
