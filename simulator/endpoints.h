// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"

#include <QHostAddress>

#include <optional>

/// Where a simulated device can be reached: at a pseudo-terminal of its own, or in the network.
struct Endpoint
{
    DeviceModel model;
    QHostAddress address; ///< null: a pseudo-terminal
    quint16 port = 0;     ///< 0 for TCP/IP models: a free one

    bool operator==(const Endpoint &other) const
    {
        return model.name == other.model.name && address == other.address && port == other.port;
    }
};

/// Gives every TCP/IP model an address and its own port, or `port` if there is one. Models that
/// share a port get one address after the other: 127.0.0.1, 127.0.0.2, ...
QList<Endpoint> assignEndpoints(const QList<DeviceModel> &models, const QHostAddress &address,
                                std::optional<quint16> port);
