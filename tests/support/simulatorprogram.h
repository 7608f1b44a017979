// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>
#include <QProcess>
#include <QStringList>

/// The built simulator, and what it has said.
class SimulatorProgram
{
public:
    /// The first of eight addresses of the loopback net that this process has to itself, for the
    /// models that share a port. Those of TcpPeer are below.
    static QHostAddress firstAddress();

    /// \a command what is started; the built simulator if nothing else is given
    explicit SimulatorProgram(const QString &command = {});
    /// Ends the simulator if it still runs. Fails the test if one that had started has not ended
    /// with exit code 0, for a crash and for what a sanitizer finds at the end.
    ~SimulatorProgram();
    Q_DISABLE_COPY_MOVE(SimulatorProgram)

    /// Returns when the devices are there.
    /// \return false when it ends before, or says nothing for 20 seconds
    bool start(const QStringList &arguments);
    /// Like start(), for a run that ends by itself.
    bool runToEnd(const QStringList &arguments);
    /// Sends SIGTERM, or another signal.
    /// \return whether it has ended normally; exitCode() says how
    bool stop(int signal = 15);

    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    int exitCode() const { return m_process.exitCode(); }
    qint64 processId() const { return m_process.processId(); }
    QByteArray errorOutput() { return m_process.readAllStandardError(); }
    QByteArray output() const { return m_output; } ///< of runToEnd()

    /// Where a model is: "/dev/pts/5" or the link to it, "127.0.0.1 port 1234". The last word on
    /// it counts.
    QString endpoint(const QString &model);
    /// What the console can open, for TESSALY_EXTRA_PORTS.
    QStringList serialPorts();

    /// Everything that was said, in lines.
    QStringList lines();
    /// What was said about frames: "Tempo Deck | ID 0 | 80 02 01 | Play", without the time.
    QStringList frames();
    void forgetFrames();

private:
    void readLines();

    QProcess m_process;
    bool m_isStarted = false;
    QByteArray m_output;
    QStringList m_lines;
    qsizetype m_firstFrame = 0;
};
