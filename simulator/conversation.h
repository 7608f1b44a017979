// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/framedecoder.h"

#include <QTimer>

class AnswerPlayer;
class DeviceConnection;
class Fault;
class FrameLog;
class SimulatedDevice;

/// What a device and one console say to each other: every frame is logged, obeyed when it is for
/// the device, and answered. Goes with its connection.
class Conversation : public QObject
{
    Q_OBJECT

public:
    /// \a fault what becomes of the answers; may be nullptr
    Conversation(const DeviceModel &model, SimulatedDevice &device, const Fault *fault,
                 FrameLog &log, DeviceConnection *connection);

private:
    void receive(const QByteArray &bytes);
    void handle(const QList<DecodedFrame> &frames);

    DeviceModel m_model;
    SimulatedDevice &m_device;
    const Fault *m_fault;
    FrameLog &m_log;
    AnswerPlayer *m_player;
    FrameDecoder m_decoder;
    QTimer m_silence;
    QTimer m_outage; ///< until it is over, nothing is read
};
