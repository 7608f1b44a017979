// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/simulatorprogram.h"

#include "tests/support/folders.h"
#include "tests/support/testedprocess.h"

#include <QTest>

#include <signal.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int timeLimit = 20'000; // in ms; reached only by what fails

} // namespace

QHostAddress SimulatorProgram::firstAddress()
{
    const auto process = static_cast<quint32>(QCoreApplication::applicationPid());
    return QHostAddress(0x7F800000U + 8U * (process % 0x80000U));
}

SimulatorProgram::SimulatorProgram(const QString &command)
{
    m_process.setProgram(command.isEmpty() ? programPath(u"tessaly-simulator"_s) : command);
    bindToTest(m_process);
}

SimulatorProgram::~SimulatorProgram()
{
    if (isRunning() && !stop())
        m_process.kill();
    m_process.waitForFinished();
    if (!m_isStarted || (m_process.exitStatus() == QProcess::NormalExit && exitCode() == 0))
        return;
    qWarning().noquote() << "the simulator did not end well:" << errorOutput();
    // Not every program with a simulator is a test.
    if (QTest::currentTestFunction())
        QTest::qFail("the simulator did not end well", __FILE__, __LINE__);
}

bool SimulatorProgram::start(const QStringList &arguments)
{
    m_process.setArguments(arguments);
    m_process.start();
    const bool isReady = QTest::qWaitFor(
        [this] {
            readLines();
            return !isRunning() || (!m_lines.isEmpty() && m_lines.last().startsWith("Ready"_L1));
        },
        timeLimit);
    m_isStarted = isReady && isRunning();
    return m_isStarted;
}

bool SimulatorProgram::runToEnd(const QStringList &arguments)
{
    m_process.setArguments(arguments);
    m_process.start();
    const bool isDone = m_process.waitForFinished(timeLimit);
    m_output = m_process.readAllStandardOutput();
    return isDone && m_process.exitStatus() == QProcess::NormalExit;
}

bool SimulatorProgram::stop(int signal)
{
    ::kill(static_cast<pid_t>(m_process.processId()), signal);
    const bool isDone
        = isRunning() ? m_process.waitForFinished(timeLimit) : m_process.processId() == 0;
    readLines();
    return isDone && m_process.exitStatus() == QProcess::NormalExit;
}

QString SimulatorProgram::endpoint(const QString &model)
{
    readLines();
    QString place;
    for (const QString &line : std::as_const(m_lines)) {
        if (line.startsWith(model + ": "_L1))
            place = line.sliced(model.size() + 2).section(" (/dev"_L1, 0, 0);
    }
    return place;
}

QStringList SimulatorProgram::serialPorts()
{
    readLines();
    QStringList ports;
    for (const QString &line : std::as_const(m_lines)) {
        if (line.contains("/dev/pts/"_L1))
            ports.append(line.section(": "_L1, 1).section(" (/dev"_L1, 0, 0));
    }
    return ports;
}

QStringList SimulatorProgram::lines()
{
    readLines();
    return m_lines;
}

QStringList SimulatorProgram::frames()
{
    readLines();
    QStringList frames;
    for (const QString &line : m_lines.sliced(m_firstFrame)) {
        if (line.contains(" | "_L1))
            frames.append(line.section(" | "_L1, 1));
    }
    return frames;
}

void SimulatorProgram::forgetFrames()
{
    readLines();
    m_firstFrame = m_lines.size();
}

void SimulatorProgram::readLines()
{
    m_process.waitForReadyRead(0); // what is in the pipe counts, whether or not events were handled
    while (m_process.canReadLine())
        m_lines.append(QString::fromUtf8(m_process.readLine()).chopped(1));
}
