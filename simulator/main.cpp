// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framelog.h"
#include "simulator/simulator.h"
#include "terminal/terminationsignals.h"

#include <QCoreApplication>
#include <QTextStream>

#include <csignal>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int errorStatus = 2;

int fail(const QString &text)
{
    QTextStream(stderr) << "tessaly-simulator: " << text << '\n';
    return errorStatus;
}

} // namespace

int main(int argc, char *argv[])
{
    // A reader of the output that goes away must not end the simulation.
    std::signal(SIGPIPE, SIG_IGN);

    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"tessaly-simulator"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSALY_VERSION));

    const SimulatorOptions options = parseOptions(QCoreApplication::arguments());
    switch (options.action) {
    case SimulatorOptions::Action::Print:
        QTextStream(stdout) << options.text;
        return 0;
    case SimulatorOptions::Action::Fail:
        return fail(options.text + " Try --help."_L1);
    case SimulatorOptions::Action::Play:
        break;
    }

    FrameLog log;
    if (!options.logPath.isEmpty() && !log.openFile(options.logPath))
        return fail(u"%1: %2"_s.arg(options.logPath, log.errorString()));

    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::raised, &application,
                     &QCoreApplication::quit, Qt::QueuedConnection);
    Simulator simulator(options, log);
    if (const QString error = simulator.start(); !error.isEmpty())
        return fail(error);
    return QCoreApplication::exec();
}
