// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/endpoints.h"

#include <QString>

/// What is known of each model, for people: link, baud rates or port and address, player IDs, and
/// every command with its range. Lines of at most 100 characters.
QString modelListText(const QList<Endpoint> &endpoints);
