// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/simulator.h"

#include "simulator/conversation.h"
#include "simulator/fault.h"
#include "simulator/framelog.h"
#include "simulator/portlink.h"
#include "simulator/ptyconnection.h"
#include "simulator/simulateddevice.h"
#include "simulator/tcpconnection.h"
#include "simulator/tcplistener.h"

#include <QDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

struct Simulator::Device
{
    Device(const Endpoint &place, int playerId)
        : endpoint(place)
        , device(place.model,
                 std::clamp<int>(playerId, place.model.minPlayerId, place.model.maxPlayerId),
                 QDateTime::currentDateTime())
    {
    }

    Endpoint endpoint;
    SimulatedDevice device;
    PortLink link;
};

Simulator::Simulator(const SimulatorOptions &options, FrameLog &log)
    : m_options(options)
    , m_log(log)
    , m_fault(makeFault(options.faultName))
{
}

Simulator::~Simulator()
{
    m_devices.clear();
    if (!m_madeFolder.isEmpty())
        QDir().rmdir(m_madeFolder);
}

QString Simulator::start()
{
    if (QString error = prepareLinkFolder(); !error.isEmpty())
        return error;
    for (const Endpoint &endpoint : m_options.endpoints) {
        m_devices.push_back(std::make_unique<Device>(endpoint, m_options.playerId));
        QString error = endpoint.model.transport == TransportKind::Serial
                            ? startSerial(*m_devices.back())
                            : startTcp(*m_devices.back());
        if (!error.isEmpty())
            return error;
    }
    m_log.write(u"Ready: %1 %2. Ctrl+C ends the simulation."_s.arg(m_devices.size())
                    .arg(m_devices.size() == 1 ? u"device"_s : u"devices"_s));
    return {};
}

QString Simulator::startSerial(Device &device)
{
    auto *connection = new PtyConnection(this);
    if (!connection->open())
        return u"The system has no pseudo-terminal left."_s;
    const QString &name = device.endpoint.model.name;
    const QString path = linkPath(device.endpoint.model);
    const auto announce = [this, &device, name, path](const QString &port) {
        QString error = path.isEmpty() ? QString() : device.link.point(path, port);
        m_log.write(path.isEmpty() || !error.isEmpty() ? name + ": "_L1 + port
                                                       : u"%1: %2 (%3)"_s.arg(name, path, port));
        return error;
    };
    connect(connection, &PtyConnection::pathChanged, this, [this, announce](const QString &port) {
        if (const QString error = announce(port); !error.isEmpty())
            m_log.write(error);
    });
    converse(device, connection);
    return announce(connection->path());
}

QString Simulator::startTcp(Device &device)
{
    auto *listener
        = new TcpListener(m_fault ? m_fault->outage() : std::chrono::milliseconds(), this);
    const Endpoint &endpoint = device.endpoint;
    if (!listener->listen(endpoint.address, endpoint.port)) {
        return u"%1 cannot listen on %2 port %3: %4."_s.arg(
            endpoint.model.name, endpoint.address.toString(), QString::number(endpoint.port),
            listener->errorString());
    }
    connect(listener, &TcpListener::connected, this,
            [this, &device](TcpConnection *connection) { converse(device, connection); });
    m_log.write(u"%1: %2 port %3"_s.arg(endpoint.model.name, endpoint.address.toString())
                    .arg(listener->port()));
    return {};
}

void Simulator::converse(Device &device, DeviceConnection *connection)
{
    new Conversation(device.endpoint.model, device.device, m_fault.get(), m_log, connection);
}

QString Simulator::prepareLinkFolder()
{
    const QString &path = m_options.linkPath;
    if (path.isEmpty())
        return {};
    if (serialModelCount() == 0)
        return u"None of the models is a serial one, so there is nothing to link."_s;
    if (serialModelCount() == 1 || QDir(path).exists())
        return {};
    if (!QDir().mkdir(path))
        return u"The folder %1 cannot be made."_s.arg(path);
    m_madeFolder = path;
    return {};
}

/// With one serial model the path itself, with several a name in it: "Tempo-Deck", or
/// "Tempo-Deck-2" for the second of its kind. Empty when no link is asked for.
QString Simulator::linkPath(const DeviceModel &model) const
{
    if (m_options.linkPath.isEmpty() || serialModelCount() == 1)
        return m_options.linkPath;
    QString name = model.name;
    name.remove(u'(')
        .remove(u')')
        .replace(u'/', u'-')
        .replace(u' ', u'-')
        .replace("---"_L1, "-"_L1);
    const auto sameModels = std::ranges::count(
        m_devices, model.name, [](const auto &device) { return device->endpoint.model.name; });
    const QString number = sameModels > 1 ? u"-%1"_s.arg(sameModels) : QString();
    return m_options.linkPath + u'/' + name + number;
}

int Simulator::serialModelCount() const
{
    return static_cast<int>(
        std::ranges::count(m_options.endpoints, TransportKind::Serial,
                           [](const Endpoint &endpoint) { return endpoint.model.transport; }));
}
