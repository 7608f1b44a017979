// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"
#include "tests/support/consoleprogram.h"
#include "tests/support/programtestmain.h"

#include <QScreen>

using namespace Qt::Literals::StringLiterals;

/// The built program on the screen of a small notebook.
class tst_SmallScreen : public QObject
{
    Q_OBJECT

private slots:
    void firstWindowFits();
};

void tst_SmallScreen::firstWindowFits()
{
    QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(1366, 768));
    ConsoleProgram program{QString()};
    QVERIFY(program.start());

    const QSize size = program.geometry().size();
    QCOMPARE(size.width(), 640);
    QVERIFY2(size.height() <= 750, qPrintable(QString::number(size.height()))); // and a title bar
    QVERIFY2(size.height() >= 730, qPrintable(QString::number(size.height())));

    program.twin<QWidget>("centralWidget")->window()->resize(size);
    program.expectLink(false);
    QVERIFY(program.looksAsExpected());
    QVERIFY(program.saveScreenshot(u"start"_s));
    QVERIFY(program.press({u"ctrl+q"_s}));
    QVERIFY(program.endsWell());
}

namespace {

int runSmallScreenTest(int argc, char *argv[])
{
    return runProgramTest<tst_SmallScreen>(argc, argv, "1366x768");
}

} // namespace

TESSALY_REGISTER_TEST(tst_SmallScreen, runSmallScreenTest)

#include "tst_smallscreen.moc"
