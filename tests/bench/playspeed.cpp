// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/speeds.h"

#include "tests/bench/speedtable.h"
#include "tests/bench/turns.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QSerialPort>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

void settle(PtyPeer &peer)
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    peer.takeReceived();
}

/// The time from a move of the user until all the bytes are at the far end, in ns. The far end
/// looks by itself, as a device does: it need not wait until the window is drawn.
template<typename Move>
double timeToFarEnd(PtyPeer &peer, const QByteArray &bytes, Move move)
{
    using Clock = std::chrono::steady_clock;
    std::atomic looks = false;
    std::atomic done = false;
    Clock::time_point arrival;
    std::thread farEnd([&] {
        looks = true;
        while (peer.received().size() < bytes.size())
            std::this_thread::yield();
        arrival = Clock::now();
        done = true;
    });
    while (!looks)
        std::this_thread::yield();
    const Clock::time_point start = Clock::now();
    move();
    while (!done)
        QCoreApplication::processEvents();
    farEnd.join();
    if (peer.received() != bytes)
        qFatal("other bytes than expected");
    return std::chrono::duration<double, std::nano>(arrival - start).count();
}

} // namespace

void measurePlay(SpeedTable &table, bool quick)
{
    const QByteArray frame("\x80\x02\x01");
    ConsoleWindow console;
    PtyPeer peer;
    console.selectModel(console.rowOfModel(QStringLiteral("Tempo Deck")));
    console.connectSerial(peer);
    auto *play = console.find<QPushButton>("pushButton_Play");
    auto *shownBytes = console.find<QLabel>("label_Bytes_Sended");

    PtyPeer barePeer;
    QSerialPort port;
    port.setPortName(barePeer.portName());
    if (!port.open(QIODevice::ReadWrite))
        qFatal("cannot open %s", qPrintable(barePeer.portName()));
    QPushButton bareButton(QStringLiteral("Play"));
    bareButton.show();
    QObject::connect(&bareButton, &QPushButton::clicked, &port,
                     [&port, &frame] { port.write(frame); });

    const auto timeOfOurs = [&](auto move) {
        // What is shown has to change.
        shownBytes->clear();
        settle(peer);
        return timeToFarEnd(peer, frame, move);
    };
    const auto timeOfBare = [&](auto move) {
        settle(barePeer);
        return timeToFarEnd(barePeer, frame, move);
    };
    const int count = quick ? 50 : 1000;
    const Turns command = takeTurns(
        count, [&] { return timeOfOurs([&] { emit play->clicked(); }); },
        [&] { return timeOfBare([&] { port.write(frame); }); });
    table.compare("Play to the line's far end : bare write", command.ours, command.yardstick, 2.0,
                  SpeedTable::Unit::Nanoseconds);
    const Turns press = takeTurns(
        count, [&] { return timeOfOurs([&] { QTest::mouseClick(play, Qt::LeftButton); }); },
        [&] { return timeOfBare([&] { QTest::mouseClick(&bareButton, Qt::LeftButton); }); });
    table.compare("the same by the mouse : bare button", press.ours, press.yardstick, 2.0,
                  SpeedTable::Unit::Nanoseconds);
}
