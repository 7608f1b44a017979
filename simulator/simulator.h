// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/options.h"

#include <QObject>

#include <memory>
#include <vector>

class DeviceConnection;
class Fault;
class FrameLog;
class PortLink;
class SimulatedDevice;

/// All devices of a run, each at its endpoint. Links that it has made go with it.
class Simulator : public QObject
{
    Q_OBJECT

public:
    Simulator(const SimulatorOptions &options, FrameLog &log);
    ~Simulator() override;

    /// Opens the endpoints and says where they are.
    /// \return what is wrong; empty when all are there
    QString start();

private:
    struct Device;

    QString startSerial(Device &device);
    QString startTcp(Device &device);
    QString prepareLinkFolder();
    QString linkPath(const DeviceModel &model) const;
    int serialModelCount() const;
    void converse(Device &device, DeviceConnection *connection);

    SimulatorOptions m_options;
    FrameLog &m_log;
    std::unique_ptr<Fault> m_fault;
    std::vector<std::unique_ptr<Device>> m_devices;
    QString m_madeFolder; ///< to be removed at the end
};
