// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QStringList>

/// The built tessaly-send. It finds the settings of the test's environment.
class SenderProgram
{
public:
    /// \a command what is started; the built program if nothing else is given
    explicit SenderProgram(const QString &command = {});
    /// Kills the program if it still runs; a test has then failed already.
    ~SenderProgram();
    Q_DISABLE_COPY_MOVE(SenderProgram)

    /// Runs it to its end. \return the exit status; -1 when it does not end by itself within 20 s
    int run(const QStringList &arguments, const QByteArray &input = {});

    /// For a run that is looked at meanwhile.
    bool start(const QStringList &arguments);
    /// The exit status, like run(). Runs the event loop, so that far ends of the test can work.
    int waitForEnd(int limit = 20'000);
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    void raise(int signal) const;

    QByteArray output() { return m_output += m_process.readAllStandardOutput(); }
    QByteArray errors() { return m_errors += m_process.readAllStandardError(); }
    /// The error of a run that must have exactly one, without the program's name.
    QString error();

    /// To set another output, or to change the process before it starts.
    QProcess &process() { return m_process; }

private:
    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};
