// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/virtualscreen.h"

#include <array>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

constexpr int startTimeLimit = 30'000; // in ms

/// Up to the line's end or, when the writer is gone or too slow, what there was of it.
QByteArray readLine(int handle)
{
    QByteArray line;
    std::array<char, 32> buffer;
    pollfd source{.fd = handle, .events = POLLIN, .revents = 0};
    while (!line.endsWith('\n') && ::poll(&source, 1, startTimeLimit) == 1) {
        const ssize_t count = ::read(handle, buffer.data(), buffer.size());
        if (count <= 0)
            break;
        line.append(buffer.data(), count);
    }
    return line;
}

} // namespace

VirtualScreen::~VirtualScreen()
{
    if (m_connection)
        ::xcb_disconnect(m_connection);
    if (m_process <= 0)
        return;
    ::kill(m_process, SIGTERM);
    ::waitpid(m_process, nullptr, 0);
}

bool VirtualScreen::start(const char *size)
{
    int pipeEnds[2];
    if (::pipe2(pipeEnds, O_CLOEXEC) != 0)
        return false;

    // The server picks a free display and tells its number when it is ready.
    const QByteArray mode = size + QByteArray("x24");
    std::array arguments{"Xvfb",           "-displayfd", "1",   "-screen",   "0",
                         mode.constData(), "-nolisten",  "tcp", "-terminate"};
    std::array<char *, arguments.size() + 1> argv{};
    for (std::size_t i = 0; i < arguments.size(); ++i)
        argv[i] = const_cast<char *>(arguments[i]);

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
    const int error
        = ::posix_spawnp(&m_process, argv[0], &actions, nullptr, argv.data(), ::environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(pipeEnds[1]);

    const QByteArray line = error == 0 ? readLine(pipeEnds[0]) : QByteArray();
    ::close(pipeEnds[0]);
    if (!line.endsWith('\n'))
        return false;
    m_displayName = ':' + line.trimmed();
    m_connection = ::xcb_connect(m_displayName.constData(), nullptr);
    return ::xcb_connection_has_error(m_connection) == 0;
}

void VirtualScreen::useForPrograms() const
{
    qputenv("DISPLAY", m_displayName);
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Input method, menu bar and dialogs of a desktop session would reach the program, too.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const char *name : {"SESSION_MANAGER", "QT_IM_MODULE", "XMODIFIERS", "XAUTHORITY",
                             "XDG_CURRENT_DESKTOP", "WAYLAND_DISPLAY"}) {
        qunsetenv(name);
    }
}
