// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/senderprogram.h"

#include "tests/support/folders.h"
#include "tests/support/testedprocess.h"

#include <QTest>

#include <signal.h>

using namespace Qt::Literals::StringLiterals;

SenderProgram::SenderProgram(const QString &command)
{
    m_process.setProgram(command.isEmpty() ? programPath(u"tessaly-send"_s) : command);
    bindToTest(m_process);
}

SenderProgram::~SenderProgram()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

int SenderProgram::run(const QStringList &arguments, const QByteArray &input)
{
    if (!start(arguments))
        return -1;
    m_process.write(input);
    m_process.closeWriteChannel();
    return waitForEnd();
}

bool SenderProgram::start(const QStringList &arguments)
{
    m_output.clear();
    m_errors.clear();
    m_process.setArguments(arguments);
    m_process.start();
    return m_process.waitForStarted();
}

int SenderProgram::waitForEnd(int limit)
{
    if (!QTest::qWaitFor([this] { return !isRunning(); }, limit))
        return -1;
    output();
    errors();
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void SenderProgram::raise(int signal) const
{
    ::kill(static_cast<pid_t>(m_process.processId()), signal);
}

QString SenderProgram::error()
{
    const QString text = QString::fromUtf8(errors());
    const QString head = u"tessaly-send: "_s;
    if (!text.startsWith(head) || text.indexOf(u'\n') != text.size() - 1)
        return u"not one line: "_s + text;
    return text.sliced(head.size()).chopped(1);
}
