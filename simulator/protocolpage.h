// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

#include <QString>

/// docs/protocol.md: the frames of both families and, for every model of the catalogue, the bytes
/// of each command on the wire for player 0. Models of which all rows are alike share a table.
/// The text depends on the catalogue alone, on neither the clock nor the time zone.
QString protocolPage(const DeviceCatalogue &catalogue);
