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

    /// Takes the steps behind those that are not done yet. What needs no pause is sent before this
    /// returns, so that a console that closes its side behind its command still gets the answer. An
    /// answer that would bring more than DeviceConnection::mostQueuedBytes, or very many steps,
    /// into the queue is lost.
    void play(const QList<AnswerStep> &steps);
    /// An answer was lost and nothing has been sent since: another one would be lost as well.
    bool isFull() const { return m_isFull; }

private:
    /// Plays on up to the next pause.
    void playDue();
    void playNext();

    DeviceConnection *m_connection;
    QList<AnswerStep> m_steps;
    qsizetype m_queuedBytes = 0;
    bool m_isFull = false;
    QTimer m_timer;
};
