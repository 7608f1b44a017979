// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/startedprogram.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int startTimeLimit = 60'000; // in ms

struct Freed
{
    void operator()(void *memory) const { std::free(memory); }
};

using Event = std::unique_ptr<xcb_generic_event_t, Freed>;

Event nextEvent(xcb_connection_t *screen)
{
    ::xcb_flush(screen);
    Event event(::xcb_poll_for_event(screen));
    while (!event) {
        pollfd source{.fd = ::xcb_get_file_descriptor(screen), .events = POLLIN, .revents = 0};
        if (::poll(&source, 1, startTimeLimit) != 1 || ::xcb_connection_has_error(screen) != 0)
            qFatal("the program shows no window");
        event.reset(::xcb_poll_for_event(screen));
    }
    return event;
}

/// Returns when a window of the screen is shown and something was drawn in it.
void waitUntilDrawn(xcb_connection_t *screen)
{
    const uint8_t damageEvent
        = ::xcb_get_extension_data(screen, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
    xcb_window_t shown = XCB_WINDOW_NONE;
    for (;;) {
        const Event event = nextEvent(screen);
        const int type = event->response_type & 0x7F;
        if (type == XCB_CREATE_NOTIFY) {
            const auto *created = reinterpret_cast<xcb_create_notify_event_t *>(event.get());
            ::xcb_damage_create(screen, ::xcb_generate_id(screen), created->window,
                                XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        } else if (type == XCB_MAP_NOTIFY) {
            shown = reinterpret_cast<xcb_map_notify_event_t *>(event.get())->window;
        } else if (type == damageEvent) {
            const auto *drawn = reinterpret_cast<xcb_damage_notify_event_t *>(event.get());
            if (shown != XCB_WINDOW_NONE && drawn->drawable == shown)
                return;
        }
    }
}

QByteArray fileOf(pid_t process, const QByteArray &name)
{
    QFile file(u"/proc/%1/%2"_s.arg(QString::number(process), QString::fromLatin1(name)));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s of the program", name.constData());
    return file.readAll();
}

/// The sum, over the threads of the process, of one of the numbers in schedstat: time on a
/// processor, time spent waiting for one, both in ns, number of times put on one.
double schedulerSum(pid_t process, qsizetype number)
{
    double sum = 0;
    const QDir tasks(u"/proc/%1/task"_s.arg(process));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        sum += fileOf(process, "task/" + task.toLatin1() + "/schedstat")
                   .simplified()
                   .split(' ')
                   .value(number)
                   .toDouble();
    return sum;
}

} // namespace

StartedProgram::StartedProgram(const QByteArray &path, xcb_connection_t *screen)
    : m_screen(screen)
{
    // Windows come as children of the root.
    const xcb_window_t root = ::xcb_setup_roots_iterator(::xcb_get_setup(screen)).data->root;
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    ::xcb_change_window_attributes(screen, root, XCB_CW_EVENT_MASK, &events);
    std::free(::xcb_damage_query_version_reply(screen, ::xcb_damage_query_version(screen, 1, 1),
                                               nullptr));

    // What they say on the way is not part of the table.
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    char *const arguments[] = {const_cast<char *>(path.constData()), nullptr};
    const auto start = std::chrono::steady_clock::now();
    if (::posix_spawn(&m_process, path.constData(), &actions, nullptr, arguments, ::environ) != 0)
        qFatal("cannot start %s", path.constData());
    ::posix_spawn_file_actions_destroy(&actions);
    waitUntilDrawn(screen);
    const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - start;
    m_startTime = took.count();
}

StartedProgram::~StartedProgram()
{
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
    // What is still reported of its windows must not be taken for the next program's.
    std::free(::xcb_get_input_focus_reply(m_screen, ::xcb_get_input_focus(m_screen), nullptr));
    while (Event(::xcb_poll_for_event(m_screen))) {
    }
}

void StartedProgram::waitUntilIdle() const
{
    constexpr useconds_t quiet = 500'000;
    double before = -1;
    while (wakeups() > before) {
        before = wakeups();
        ::usleep(quiet);
    }
}

double StartedProgram::memory() const
{
    const QByteArray text = fileOf(m_process, "smaps_rollup");
    const qsizetype line = text.indexOf("\nPss:");
    const QByteArray value = text.sliced(line + 5, text.indexOf("kB", line) - line - 5);
    return value.trimmed().toDouble();
}

double StartedProgram::processorTime() const
{
    return schedulerSum(m_process, 0);
}

double StartedProgram::wakeups() const
{
    return schedulerSum(m_process, 2);
}
