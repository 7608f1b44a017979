// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <sys/types.h>

struct xcb_connection_t;

/// A program with one window, seen from outside: by what it draws on the screen, and by what the
/// system keeps about its process.
class StartedProgram
{
public:
    /// Starts it and returns when something of its window is drawn. Nothing else may open windows
    /// on the screen meanwhile.
    /// \a screen a connection that nobody else reads events of
    StartedProgram(const QByteArray &path, xcb_connection_t *screen);
    /// Ends the program.
    ~StartedProgram();
    Q_DISABLE_COPY_MOVE(StartedProgram)

    /// From just before the start to the first drawing, in ns.
    double startTime() const { return m_startTime; }

    /// Returns when the program has not run for half a second.
    void waitUntilIdle() const;

    /// What it holds of the memory, shared pages in parts (PSS), in kB.
    double memory() const;
    /// The processor time it took so far, in ns, as finely as the scheduler counts it.
    double processorTime() const;
    /// How often one of its threads has begun to run, be it to find nothing to do.
    double wakeups() const;

private:
    pid_t m_process = -1;
    xcb_connection_t *m_screen;
    double m_startTime = 0;
};
