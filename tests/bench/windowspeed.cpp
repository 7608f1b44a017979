// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/speeds.h"
#include "tests/bench/speedtable.h"
#include "tests/support/testmain.h"

#include <QApplication>

/// What the window does with a command, an arrival and a chosen model, without a screen.
int main(int argc, char *argv[])
{
    prepareTestEnvironment();
    const QApplication application(argc, argv);
    const bool quick = QCoreApplication::arguments().contains(QStringLiteral("--quick"));

    SpeedTable table;
    measurePanels(table, quick);
    measurePlay(table, quick);
    measureFrames(table, quick);
    measureReceived(table, quick);
    return table.isWithinLimits() ? 0 : 1;
}
