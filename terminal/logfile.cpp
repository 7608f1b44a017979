// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "terminal/logfile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

bool LogFile::open(const QString &path)
{
    m_file.setFileName(path);
    // A device has no end to go to.
    const bool isDevice = QFileInfo::exists(path) && !QFileInfo(path).isFile();
    return m_file.open(QIODevice::WriteOnly | QIODevice::Text
                       | (isDevice ? QIODevice::NotOpen : QIODevice::Append));
}

void LogFile::write(const QString &line)
{
    if (!m_file.isOpen())
        return;
    const QByteArray bytes = line.toUtf8() + '\n';
    const bool isOut = m_file.write(bytes) == bytes.size() && m_file.flush();
    if (isOut != m_isFailing)
        return;
    m_isFailing = !isOut;
    if (m_isFailing) {
        QTextStream(stderr) << QCoreApplication::applicationName() << ": "_L1 << m_file.fileName()
                            << ": "_L1 << m_file.errorString() << '\n';
    }
}
