// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/endpoints.h"

#include <algorithm>

QList<Endpoint> assignEndpoints(const QList<DeviceModel> &models, const QHostAddress &address,
                                std::optional<quint16> port)
{
    QList<Endpoint> endpoints;
    for (const DeviceModel &model : models) {
        Endpoint endpoint{model, {}, 0};
        if (model.transport == TransportKind::TcpIp) {
            endpoint.port = port.value_or(model.tcpPort);
            const auto sharesPort = [&](const Endpoint &other) {
                return !other.address.isNull() && other.port == endpoint.port;
            };
            const auto neighbours
                = endpoint.port == 0 ? 0 : std::ranges::count_if(endpoints, sharesPort);
            endpoint.address
                = neighbours == 0
                      ? address
                      : QHostAddress(address.toIPv4Address() + static_cast<quint32>(neighbours));
        }
        endpoints.append(endpoint);
    }
    return endpoints;
}
