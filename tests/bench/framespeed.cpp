// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/allframes.h"
#include "tests/bench/speeds.h"

#include "tests/bench/speedtable.h"
#include "tests/bench/turns.h"

#include <QTest>

void measureFrames(SpeedTable &table, bool quick)
{
    constexpr int repeats = 100; // one pass over the commands is short for the clock
    const DeviceCatalogue models = buildDeviceCatalogue();
    const QByteArrayList frames = allFrames(models);
    qsizetype count = 0;
    const Turns took = takeTurns(
        quick ? 5 : 50,
        [&] {
            return processorTimeOf([&] {
                for (int i = 0; i < repeats; ++i)
                    forEachFrame(models,
                                 [&count](const QByteArray &frame) { count += frame.size(); });
            });
        },
        [&] {
            return processorTimeOf([&] {
                for (int i = 0; i < repeats; ++i) {
                    for (const QByteArray &frame : frames) {
                        const QByteArray copy(frame.constData(), frame.size());
                        count += copy.size();
                    }
                }
            });
        });
    if (count == 0)
        qFatal("there are no frames");
    const auto passes = static_cast<double>(repeats * frames.size());
    table.compare("building a frame : copying its bytes", took.ours / passes,
                  took.yardstick / passes, 5.0, SpeedTable::Unit::Nanoseconds);
}
