// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/conversation.h"

#include "simulator/answerplayer.h"
#include "simulator/deviceconnection.h"
#include "simulator/fault.h"
#include "simulator/framelog.h"
#include "simulator/framemeaning.h"
#include "simulator/simulateddevice.h"

using namespace std::chrono_literals;

namespace {

/// A frame that stands still for so long will not be completed.
constexpr auto silenceLimit = 1s;

} // namespace

Conversation::Conversation(const DeviceModel &model, SimulatedDevice &device, const Fault *fault,
                           FrameLog &log, DeviceConnection *connection)
    : QObject(connection)
    , m_model(model)
    , m_device(device)
    , m_fault(fault)
    , m_log(log)
    , m_player(new AnswerPlayer(connection))
    , m_decoder(model)
{
    m_silence.setSingleShot(true);
    m_outage.setSingleShot(true);
    m_outage.setTimerType(Qt::PreciseTimer);
    const auto giveUpOnFrame = [this] { handle(m_decoder.flush()); };
    connect(&m_silence, &QTimer::timeout, this, giveUpOnFrame);
    connect(connection, &DeviceConnection::closed, this, giveUpOnFrame);
    connect(connection, &DeviceConnection::received, this, &Conversation::receive);
    // A network device refuses the connection itself; on a serial line it can only be deaf.
    if (fault && model.transport == TransportKind::Serial)
        m_outage.start(fault->outage());
}

void Conversation::receive(const QByteArray &bytes)
{
    if (m_outage.isActive())
        return;
    handle(m_decoder.feed(bytes));
    if (m_decoder.hasBegunFrame())
        m_silence.start(silenceLimit);
    else
        m_silence.stop();
}

void Conversation::handle(const QList<DecodedFrame> &frames)
{
    bool isObeyed = false;
    for (const DecodedFrame &frame : frames) {
        const QDateTime now = QDateTime::currentDateTime();
        m_log.write(frameLine(now, m_model, m_device.playerId(), frame));
        if (!frame.command || !m_device.isAddressedBy(*frame.command))
            continue;
        const QByteArray answer = m_device.obey(*frame.command, now);
        if (!m_player->isFull())
            m_player->play(m_fault ? m_fault->steps(answer) : QList<AnswerStep>{{{}, answer}});
        isObeyed = true;
    }
    if (isObeyed && m_model.connectsOnDemand())
        m_player->play({{{}, {}, true}});
}
