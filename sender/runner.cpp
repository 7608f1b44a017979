// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/runner.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What a device that hangs up after each command may take to do so.
constexpr auto hangUpTimeLimit = 1000ms;

} // namespace

Runner::Runner(const SenderOptions &options, DeviceLink &link, LogFile &log, AnswerPrinter &printer,
               QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_link(link)
    , m_log(log)
    , m_printer(printer)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Runner::handleTimeout);
    connect(&link, &DeviceLink::opened, this, &Runner::handleOpened, Qt::QueuedConnection);
    connect(&link, &DeviceLink::failed, this, &Runner::handleFailed, Qt::QueuedConnection);
    connect(&link, &DeviceLink::written, this, &Runner::handleWritten, Qt::QueuedConnection);
    connect(&link, &DeviceLink::received, this, &Runner::handleReceived, Qt::QueuedConnection);
    connect(&link, &DeviceLink::hungUp, this, &Runner::handleHungUp, Qt::QueuedConnection);
    connect(&link, &DeviceLink::lost, this, &Runner::handleLost, Qt::QueuedConnection);
    connect(&link, &DeviceLink::closed, this, &Runner::handleClosed, Qt::QueuedConnection);
}

void Runner::start()
{
    open();
}

void Runner::stop(int signal)
{
    if (m_signal != 0 || m_state == State::Closing || m_state == State::Finished)
        return;
    m_signal = signal;
    if (m_state != State::Writing)
        end(ExitStatus::Signalled + m_signal);
}

void Runner::open()
{
    m_state = State::Opening;
    m_link.open();
}

void Runner::handleOpened()
{
    if (m_state != State::Opening)
        return;
    m_state = State::Pausing;
    // A link that is closed again has its signal on its way.
    if (m_link.isOpen())
        proceed();
}

void Runner::proceed()
{
    if (m_state == State::Closing || m_state == State::Finished)
        return;
    if (m_signal != 0) {
        end(ExitStatus::Signalled + m_signal);
        return;
    }
    if (m_nextStep == m_options.steps.size()) {
        m_nextStep = 0;
        ++m_repetition;
    }
    if (m_repetition == m_options.repetitions) {
        end(m_options.wait && !m_isAnswered ? ExitStatus::NotAnswered : ExitStatus::Done);
        return;
    }

    const Step &step = m_options.steps.at(m_nextStep);
    if (const auto *time = std::get_if<std::chrono::milliseconds>(&step)) {
        ++m_nextStep;
        pause(*time);
        return;
    }
    const auto sinceSent
        = m_sinceSent.isValid() ? std::chrono::milliseconds(m_sinceSent.elapsed()) : m_options.gap;
    if (sinceSent < m_options.gap)
        pause(m_options.gap - sinceSent);
    else if (m_link.isOpen())
        sendFrame(std::get<ChosenCommand>(step));
    else if (m_options.model.connectsOnDemand())
        open();
    // Else the link is lost, and the signal for that is on its way.
}

void Runner::sendFrame(const ChosenCommand &command)
{
    m_frame = frameOf(m_options.model, m_options.playerId, command, QDateTime::currentDateTime());
    m_state = State::Writing;
    m_timer.start(m_options.timeout);
    m_link.write(m_frame);
}

void Runner::pause(std::chrono::milliseconds time)
{
    m_state = State::Pausing;
    m_timer.start(time);
}

void Runner::handleTimeout()
{
    switch (m_state) {
    case State::Writing:
        end(ExitStatus::Broken,
            u"%1: a frame did not get away within %2 ms; %3"_s.arg(
                m_link.name(), QString::number(m_options.timeout.count()), progress()));
        break;
    case State::HangingUp:
        m_printer.endLine();
        m_link.close();
        break;
    default:
        m_printer.endLine();
        proceed();
        break;
    }
}

void Runner::handleWritten()
{
    if (m_state != State::Writing)
        return;
    m_timer.stop();
    ++m_sent;
    m_sinceSent.start();
    log(u"sent"_s, m_frame, commandText(std::get<ChosenCommand>(m_options.steps.at(m_nextStep))));
    ++m_nextStep;
    m_state = State::Pausing;
    takeEarly();
    if (m_signal == 0 && m_options.model.connectsOnDemand()) {
        m_state = State::HangingUp;
        m_timer.start(
            std::max<std::chrono::milliseconds>(m_options.wait.value_or(0ms), hangUpTimeLimit));
    } else if (m_signal == 0 && m_options.wait) {
        pause(*m_options.wait);
    } else {
        proceed();
    }
}

void Runner::takeEarly()
{
    if (const QByteArray bytes = std::exchange(m_early, {}); !bytes.isEmpty())
        handleReceived(bytes);
}

void Runner::handleReceived(const QByteArray &bytes)
{
    // An answer may be there before we know that the whole frame is away.
    if (m_state == State::Writing) {
        m_early += bytes;
        return;
    }
    log(u"received"_s, bytes);
    const bool isLate = m_state == State::Closing || m_state == State::Finished;
    if (!m_options.wait || m_sent == 0 || isLate)
        return;
    m_isAnswered = true;
    m_printer.print(bytes);
}

void Runner::handleFailed(const QString &reason)
{
    m_status = m_sent == 0 ? ExitStatus::NotConnected : ExitStatus::Broken;
    m_error = u"cannot open %1: %2"_s.arg(m_link.name(), reason);
    if (m_sent > 0)
        m_error += "; "_L1 + progress();
    finish();
}

void Runner::handleHungUp()
{
    if (m_state == State::Closing || m_state == State::Opening)
        return;
    if (m_state == State::HangingUp) {
        m_timer.stop();
        m_printer.endLine();
        m_state = State::Pausing;
        proceed();
    } else if (m_sent == commandsInAll()) {
        // There is nothing more to wait for.
        m_nextStep = m_options.steps.size();
        m_repetition = m_options.repetitions - 1;
        m_timer.stop();
        m_printer.endLine();
        proceed();
    } else {
        handleLost(u"the device has hung up"_s);
    }
}

void Runner::handleLost(const QString &reason)
{
    if (m_state == State::Closing || m_state == State::Finished)
        return;
    m_status = ExitStatus::Broken;
    m_error = u"%1: %2; %3"_s.arg(m_link.name(), reason, progress());
    finish();
}

void Runner::handleClosed()
{
    if (m_state == State::HangingUp) {
        m_state = State::Pausing;
        proceed();
    } else if (m_state == State::Closing) {
        finish();
    }
}

void Runner::end(int status, const QString &error)
{
    m_timer.stop();
    m_status = status;
    m_error = error;
    m_state = State::Closing;
    m_link.close();
}

void Runner::finish()
{
    if (m_state == State::Finished)
        return;
    m_timer.stop();
    m_state = State::Finished;
    m_printer.endLine();
    emit finished(m_status, m_error);
}

void Runner::log(const QString &direction, const QByteArray &bytes, const QString &meaning)
{
    QStringList columns{QDateTime::currentDateTime().toString(Qt::ISODateWithMs), direction,
                        numbersText(bytes, m_options.frameForm)};
    if (!meaning.isEmpty())
        columns.append(meaning);
    m_log.write(columns.join(u" | "_s));
}

qint64 Runner::commandsInAll() const
{
    const auto isCommand
        = [](const Step &step) { return std::holds_alternative<ChosenCommand>(step); };
    return std::ranges::count_if(m_options.steps, isCommand) * qint64{m_options.repetitions};
}

QString Runner::progress() const
{
    return u"%1 of %2 commands were sent"_s.arg(m_sent).arg(commandsInAll());
}
