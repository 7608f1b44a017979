// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "terminal/logfile.h"

#include <QFile>
#include <QString>

/// The lines that the simulator says, on standard output and in a file if there is one. Each line
/// is out when write() returns. A reader of standard output that stands still for a second misses
/// the lines until it reads again.
class FrameLog
{
public:
    FrameLog();

    /// Appends to that file from now on.
    /// \return false when it cannot be opened; errorString() says why
    bool openFile(const QString &path) { return m_file.open(path); }
    QString errorString() const { return m_file.errorString(); }

    void write(const QString &line);

private:
    bool isReaderReady();

    QFile m_output;
    LogFile m_file;
    bool m_isReaderStill = false;
};
