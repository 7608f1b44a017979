// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sender/answerprinter.h"
#include "sender/devicelink.h"
#include "sender/senderoptions.h"
#include "terminal/logfile.h"

#include <QElapsedTimer>
#include <QTimer>

/// Exit statuses of the program; see also SenderOptions::Action::Fail.
namespace ExitStatus {

enum Value : int {
    Done = 0,
    NotAnswered = 1,
    Rejected = 2,     ///< the command line or the script; nothing was sent
    NotConnected = 3, ///< the link could not be opened
    Broken = 4,       ///< the link, the output or the log failed on the way
    Signalled = 128,  ///< and the signal's number
};

} // namespace ExitStatus

/// Sends the steps of the options over a link, one frame after the other, and hands on what the
/// device answers.
class Runner : public QObject
{
    Q_OBJECT

public:
    /// All of them live as long as the runner.
    Runner(const SenderOptions &options, DeviceLink &link, LogFile &log, AnswerPrinter &printer,
           QObject *parent = nullptr);

    void start();
    /// Ends the run as soon as no frame is on its way.
    void stop(int signal);

signals:
    /// \a status an ExitStatus
    /// \a error what to tell the user, in one line; empty when nothing is wrong
    void finished(int status, const QString &error);

private:
    enum class State { Opening, Writing, Pausing, HangingUp, Closing, Finished };

    void open();
    void handleOpened();
    void proceed();
    void sendFrame(const ChosenCommand &command);
    void pause(std::chrono::milliseconds time);
    void handleTimeout();
    void handleWritten();
    void handleReceived(const QByteArray &bytes);
    void takeEarly();
    void handleFailed(const QString &reason);
    void handleHungUp();
    void handleLost(const QString &reason);
    void handleClosed();
    /// Closes the link and ends.
    void end(int status, const QString &error = {});
    void finish();
    void log(const QString &direction, const QByteArray &bytes, const QString &meaning = {});
    qint64 commandsInAll() const;
    QString progress() const;

    const SenderOptions &m_options;
    DeviceLink &m_link;
    LogFile &m_log;
    AnswerPrinter &m_printer;

    State m_state = State::Opening;
    QTimer m_timer; ///< of pauses and of frames that do not get away
    QElapsedTimer m_sinceSent;
    qsizetype m_nextStep = 0;
    int m_repetition = 0;
    qint64 m_sent = 0;
    QByteArray m_frame;
    QByteArray m_early; ///< what arrived while the frame was on its way
    bool m_isAnswered = false;
    int m_signal = 0;
    int m_status = ExitStatus::Done;
    QString m_error;
};
