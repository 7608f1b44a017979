// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

/// A file that lines are appended to. Each line is out when write() returns. When the file cannot
/// take it, on a full disk, this is said on standard error, once until lines are written again.
class LogFile
{
public:
    /// \return false when it cannot be opened; errorString() says why
    bool open(const QString &path);
    QString errorString() const { return m_file.errorString(); }

    /// Does nothing as long as no file is open.
    void write(const QString &line);
    /// Whether the latest line could not be written.
    bool isFailing() const { return m_isFailing; }

private:
    QFile m_file;
    bool m_isFailing = false;
};
