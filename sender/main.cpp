// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/configfile.h"
#include "sender/runner.h"
#include "sender/seriallink.h"
#include "sender/tcplink.h"
#include "terminal/terminationsignals.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 scriptSizeLimit = 16 << 20;

void tell(const QString &text)
{
    QTextStream stream(stderr);
    for (const QString &line : text.split(u'\n'))
        stream << QCoreApplication::applicationName() << ": "_L1 << line << '\n';
}

/// A stream that was closed by whoever started the program must not become the device. It still is
/// an error to use it.
void occupyStandardStreams()
{
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) == -1)
            static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

/// \return the exit status
int print(const QString &text)
{
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && output.write(text.toUtf8()) >= 0
        && output.flush()) {
        return ExitStatus::Done;
    }
    tell("standard output: "_L1 + output.errorString());
    return ExitStatus::Broken;
}

FileContent contentOf(const QString &path)
{
    QFile file(path);
    const bool isOpen
        = path == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return {{}, file.errorString()};
    QByteArray bytes;
    while (bytes.size() <= scriptSizeLimit) {
        const QByteArray some = file.read(scriptSizeLimit);
        if (some.isEmpty())
            break;
        bytes += some;
    }
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    if (bytes.size() > scriptSizeLimit)
        return {{}, u"a script has 16 MiB at most"_s};
    return {bytes, {}};
}

int dryRun(const SenderOptions &options)
{
    for (int i = 0; i < options.repetitions; ++i) {
        for (const Step &step : options.steps) {
            const auto *command = std::get_if<ChosenCommand>(&step);
            if (!command)
                continue;
            const QByteArray frame
                = frameOf(options.model, options.playerId, *command, QDateTime::currentDateTime());
            if (const int status = print(numbersText(frame, options.frameForm) + u'\n');
                status != ExitStatus::Done) {
                return status;
            }
        }
    }
    return ExitStatus::Done;
}

std::unique_ptr<DeviceLink> makeLink(const SenderOptions &options)
{
    if (options.model.transport == TransportKind::Serial)
        return std::make_unique<SerialLink>(options.port, options.baudRate);
    return std::make_unique<TcpLink>(options.host, options.model.tcpPort, options.timeout);
}

int send(const SenderOptions &options)
{
    LogFile log;
    if (!options.logPath.isEmpty() && !log.open(options.logPath)) {
        tell(u"%1: %2"_s.arg(options.logPath, log.errorString()));
        return ExitStatus::Rejected;
    }

    const TerminationSignals terminationSignals;
    const std::unique_ptr<DeviceLink> link = makeLink(options);
    AnswerPrinter printer(options.answerForm);
    Runner runner(options, *link, log, printer);
    int status = ExitStatus::Done;
    bool isFinished = false;
    const auto quit = [&] {
        if (isFinished)
            QCoreApplication::quit();
    };
    QObject::connect(&runner, &Runner::finished, &printer,
                     [&](int runStatus, const QString &error) {
                         status = runStatus;
                         isFinished = true;
                         if (!error.isEmpty())
                             tell(error);
                         if (printer.isDone() || status >= ExitStatus::Signalled)
                             QCoreApplication::quit();
                     });
    QObject::connect(&printer, &AnswerPrinter::done, &printer, quit);
    QObject::connect(
        &terminationSignals, &TerminationSignals::raised, &runner,
        [&](int signal) {
            if (isFinished)
                status = ExitStatus::Signalled + signal;
            quit();
            runner.stop(signal);
        },
        Qt::QueuedConnection);
    runner.start();
    QCoreApplication::exec();

    if (!printer.errorString().isEmpty())
        tell("standard output: "_L1 + printer.errorString());
    const bool isTold = printer.errorString().isEmpty() && !log.isFailing();
    return status == ExitStatus::Done && !isTold ? ExitStatus::Broken : status;
}

} // namespace

int main(int argc, char *argv[])
{
    occupyStandardStreams();
    // A reader of the output that goes away must not end the program in the middle of a frame.
    std::signal(SIGPIPE, SIG_IGN);

    // The console's names find its settings.
    setApplicationIdentity();
    const QCoreApplication application(argc, argv);
    const QString settingsPath = usualConfigFilePath();
    QCoreApplication::setApplicationName(u"tessaly-send"_s);

    const SenderOptions options = parseSenderOptions(
        QCoreApplication::arguments(),
        {.savedSettings = [&] { return readConfigFile(settingsPath); }, .readFile = contentOf});
    if (!options.note.isEmpty())
        tell(options.note);
    switch (options.action) {
    case SenderOptions::Action::Print:
        return print(options.text);
    case SenderOptions::Action::Fail:
        tell(options.text + " Try --help."_L1);
        return ExitStatus::Rejected;
    case SenderOptions::Action::DryRun:
        return dryRun(options);
    case SenderOptions::Action::Send:
        break;
    }
    const int status = send(options);
    // The look-up of a name cannot be called off, and Qt would wait for its end.
    if (status == ExitStatus::NotConnected || status > ExitStatus::Signalled)
        std::_Exit(status);
    return status;
}
