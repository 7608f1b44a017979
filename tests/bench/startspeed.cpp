// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/speedtable.h"
#include "tests/bench/startedprogram.h"
#include "tests/bench/turns.h"
#include "tests/support/virtualscreen.h"

#include <QTemporaryDir>

#include <cstring>
#include <tuple>

#include <unistd.h>
#include <xcb/xcb.h>

namespace {

constexpr int starts = 30;
constexpr int memoryStarts = 5;
constexpr unsigned idleSeconds = 5;

} // namespace

/// Start, memory and idleness of the built program, on a virtual screen. It uses no part of Qt that
/// draws: pages that both share would make the program look smaller.
int main(int argc, char *argv[])
{
    const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;

    // Nobody's settings, and no display but this one.
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    VirtualScreen screen;
    if (!screen.start())
        qFatal("no X server: Xvfb is missing or did not start (scripts/setup installs it)");
    screen.useForPrograms();
    xcb_connection_t *connection = ::xcb_connect(screen.displayName().constData(), nullptr);

    const QByteArray console = TESSALY_PROGRAM;
    const QByteArray emptyWindow = TESSALY_EMPTY_WINDOW;
    const QByteArray leastWindow = TESSALY_LEAST_WINDOW;
    const auto startTime = [connection](const QByteArray &path) {
        return StartedProgram(path, connection).startTime();
    };
    const auto memory = [connection](const QByteArray &path) {
        const StartedProgram program(path, connection);
        program.waitUntilIdle();
        return program.memory();
    };

    SpeedTable table;
    for (const auto &[name, window, startLimit, memoryLimit] :
         {std::tuple("empty", emptyWindow, 2.0, 1.4), std::tuple("least", leastWindow, 1.6, 1.3)}) {
        const QByteArray yardstick = QByteArray(" : ") + name + " window's";
        const Turns start = takeTurns(
            quick ? 7 : starts, [&] { return startTime(console); },
            [&, &path = window] { return startTime(path); });
        table.compare("start to drawn window" + yardstick, start.ours, start.yardstick, startLimit,
                      SpeedTable::Unit::Nanoseconds);
        const Turns held = takeTurns(
            quick ? 1 : memoryStarts, [&] { return memory(console); },
            [&, &path = window] { return memory(path); });
        table.compare("memory (PSS)" + yardstick, held.ours, held.yardstick, memoryLimit,
                      SpeedTable::Unit::Kilobytes);
    }

    const StartedProgram program(console, connection);
    program.waitUntilIdle();
    const double wakeups = program.wakeups();
    const double processorTime = program.processorTime();
    ::sleep(idleSeconds);
    table.check("idle for 5 s: processor time", program.processorTime() - processorTime, 0,
                SpeedTable::Unit::Nanoseconds);
    table.check("idle for 5 s: wakeups", program.wakeups() - wakeups, 0, SpeedTable::Unit::Times);
    return table.isWithinLimits() ? 0 : 1;
}
