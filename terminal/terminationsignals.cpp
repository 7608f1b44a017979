// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "terminal/terminationsignals.h"

#include <array>
#include <csignal>

#include <unistd.h>

namespace {

// A signal handler may do little more than write to a pipe: {read end, write end}.
std::array<int, 2> pipeEnds{-1, -1};

extern "C" void writeToPipe(int signal)
{
    const auto byte = static_cast<char>(signal);
    [[maybe_unused]] const ssize_t count = ::write(pipeEnds[1], &byte, 1);
}

/// For the signals that are not ignored.
void setHandler(void (*handler)(int))
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, handler) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
}

} // namespace

TerminationSignals::TerminationSignals()
{
    if (::pipe(pipeEnds.data()) != 0)
        return; // the signals end the program without ado, as they do by default
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        char signal = 0;
        if (::read(pipeEnds[0], &signal, 1) == 1)
            emit raised(signal);
    });
    setHandler(writeToPipe);
}

TerminationSignals::~TerminationSignals()
{
    setHandler(SIG_DFL);
    m_notifier.reset();
    for (int &end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}
