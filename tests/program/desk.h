// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/program/usermoves.h"
#include "tests/support/consoleprogram.h"
#include "tests/support/simulatorprogram.h"

#include <QTemporaryDir>

/// The built console with a simulated device. What returns a bool waits like ConsoleProgram does.
class Desk
{
public:
    static constexpr int timeLimit = 20'000; // in ms; reached only by what fails

    explicit Desk(const ModelSheet &sheet);
    explicit Desk(const QString &model);

    /// \a fault its name; empty: none
    bool startSimulator(const QString &fault = {});
    /// Leaves the console ready to connect.
    bool startConsole();
    bool start(const QString &fault = {}) { return startSimulator(fault) && startConsole(); }
    bool connectLink();
    bool disconnectLink();
    /// The look of a window that has no link, without doing anything for it.
    bool isDisconnected();

    /// Makes the choices of a move.
    bool choose(const UserMove &move);
    /// Plays, with the mouse.
    bool plays();
    /// Stops, with the keyboard.
    bool stops();
    bool clear() { return m_console.click("pushButton_Clear"); }
    bool quit() { return m_console.press({QStringLiteral("ctrl+q")}) && m_console.endsWell(); }

    /// What the device's log shows for Play and Stop to player 0.
    QString play() const { return line(4); }
    QString stop() const { return line(5); }
    /// \a line one of the device's log
    static QString sentBytes(const QString &line);

    bool showsReceived(const QString &text, int limit = timeLimit);
    bool showsSent(const QString &bytes);
    /// Lets the window show the bytes of that line as those sent last.
    void expectSent(const QString &line);
    bool saveScreenshot();

    bool connectsOnDemand() const { return m_sheet.connectsOnDemand(); }
    ConsoleProgram &console() { return m_console; }
    QStringList frames() { return m_simulator.frames(); }

private:
    QString line(quint32 id) const;

    const QTemporaryDir m_folder;
    const QString m_port = m_folder.filePath(QStringLiteral("port"));
    const ModelSheet m_sheet;
    SimulatorProgram m_simulator;
    ConsoleProgram m_console;
};
