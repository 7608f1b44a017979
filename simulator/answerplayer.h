// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/fault.h"

#include <QTimer>

class DeviceConnection;

/// Sends answers step by step: one after the other, with their pauses.
class AnswerPlayer : public QObject
{
    Q_OBJECT

public:
    explicit AnswerPlayer(DeviceConnection *connection);

    /// Queues the steps behind those that are not done yet. An answer that would bring more than
    /// DeviceConnection::mostQueuedBytes, or very many steps, into the queue is lost.
    void play(const QList<AnswerStep> &steps);

private:
    void playNext();

    DeviceConnection *m_connection;
    QList<AnswerStep> m_steps;
    qsizetype m_queuedBytes = 0;
    QTimer m_timer;
};
