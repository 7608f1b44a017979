// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

/// The lines that the simulator says, on standard output and in a file if there is one. Each line
/// is out when write() returns. When the file cannot take it, on a full disk, this is said on
/// standard error, once until lines are written again. A reader of standard output that stands
/// still for a second misses the lines until it reads again.
class FrameLog
{
public:
    FrameLog();

    /// Appends to that file from now on.
    /// \return false when it cannot be opened; errorString() says why
    bool openFile(const QString &path);
    QString errorString() const { return m_file.errorString(); }

    void write(const QString &line);

private:
    bool isReaderReady();

    QFile m_output;
    QFile m_file;
    bool m_isFileFailing = false;
    bool m_isReaderStill = false;
};
