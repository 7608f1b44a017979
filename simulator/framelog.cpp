// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framelog.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

#include <poll.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int readerTimeLimit = 1000; // in ms

} // namespace

FrameLog::FrameLog()
{
    static_cast<void>(m_output.open(stdout, QIODevice::WriteOnly));
}

bool FrameLog::openFile(const QString &path)
{
    m_file.setFileName(path);
    return m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text);
}

void FrameLog::write(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    for (QFile *file : {&m_output, &m_file}) {
        if (!file->isOpen() || (file == &m_output && !isReaderReady()))
            continue;
        const bool isOut = file->write(bytes) == bytes.size() && file->flush();
        if (file != &m_file || isOut != m_isFileFailing)
            continue;
        m_isFileFailing = !isOut;
        if (m_isFileFailing) {
            QTextStream(stderr) << QCoreApplication::applicationName() << ": "_L1
                                << m_file.fileName() << ": "_L1 << m_file.errorString() << '\n';
        }
    }
}

/// Writing to a full pipe would stop the whole simulation, its end by a signal included.
bool FrameLog::isReaderReady()
{
    pollfd output{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
    m_isReaderStill = ::poll(&output, 1, m_isReaderStill ? 0 : readerTimeLimit) == 0;
    return !m_isReaderStill;
}
