// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/modelsheets.h"

// One model of each kind, for tests of what belongs to the kind. What each model adds is tested
// with its sheet.

inline const QString serialModel = QStringLiteral("Vistar Show - SV500 (Serial)");
inline const QString tcpModel = QStringLiteral("Vistar Show - SV500 (TCP/IP)");
inline const QString extendedSerialModel = QStringLiteral("Sonet A (Serial)");
/// Connected for each command.
inline const QString onDemandModel = QStringLiteral("Sonet A Lite (TCP/IP)");

/// \a model one with TCP/IP
inline quint16 portOf(const QString &model)
{
    return sheetOf(model).tcpPort;
}
