// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

#include <time.h>

/// What two things took, in ns, as the medians of many turns.
struct Turns
{
    double ours = 0;
    double yardstick = 0;
};

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Runs both in turns, so that a change of the machine's speed meets both, each one first in every
/// other turn. The first turn warms up and does not count.
/// \a count at least 1
/// \a ours, \a yardstick take nothing and give what they took, a number of ns
template<typename Ours, typename Yardstick>
Turns takeTurns(int count, Ours ours, Yardstick yardstick)
{
    std::vector<double> oursTook;
    std::vector<double> yardstickTook;
    for (int turn = 0; turn <= count; ++turn) {
        double took[2] = {};
        for (const bool first : {true, false}) {
            const bool isOurs = first == (turn % 2 == 0);
            took[isOurs ? 0 : 1] = isOurs ? ours() : yardstick();
        }
        if (turn == 0)
            continue;
        oursTook.push_back(took[0]);
        yardstickTook.push_back(took[1]);
    }
    return {median(oursTook), median(yardstickTook)};
}

/// The time that something takes, waiting included, in ns.
template<typename Work>
double timeOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - start;
    return took.count();
}

/// The processor time that something takes in this thread, in ns: for what never waits. Unlike
/// timeOf(), it is about the same on a busy machine.
template<typename Work>
double processorTimeOf(Work work)
{
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
    };
    const double start = now();
    work();
    return now() - start;
}
