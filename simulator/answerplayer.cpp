// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/answerplayer.h"

#include "simulator/deviceconnection.h"

namespace {

/// An answer of single bytes is a step for each, and a step takes more room than its byte.
constexpr qsizetype mostQueuedSteps = 65'536;

} // namespace

AnswerPlayer::AnswerPlayer(DeviceConnection *connection)
    : QObject(connection)
    , m_connection(connection)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        playNext();
        playDue();
    });
}

void AnswerPlayer::play(const QList<AnswerStep> &steps)
{
    qsizetype size = 0;
    for (const AnswerStep &step : steps)
        size += step.bytes.size();
    if (m_queuedBytes + size > DeviceConnection::mostQueuedBytes
        || m_steps.size() + steps.size() > mostQueuedSteps) {
        m_isFull = true;
        return;
    }
    m_queuedBytes += size;
    m_steps += steps;
    if (!m_timer.isActive())
        playDue();
}

void AnswerPlayer::playDue()
{
    while (!m_steps.isEmpty()) {
        if (m_steps.front().pause.count() > 0) {
            m_timer.start(m_steps.front().pause);
            return;
        }
        playNext();
    }
}

void AnswerPlayer::playNext()
{
    m_isFull = false;
    const AnswerStep step = m_steps.takeFirst();
    m_queuedBytes -= step.bytes.size();
    m_connection->send(step.bytes);
    if (step.hangsUp) {
        m_steps.clear();
        m_queuedBytes = 0;
        m_connection->hangUp();
    }
}
