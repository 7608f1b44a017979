// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/receivedtextdisplay.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTextEdit>

#include <memory>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto longTime = 5s; ///< no showing takes it, however busy the computer is

/// An editor that takes as long as the test wants to show a text.
class Showing
{
public:
    explicit Showing(std::chrono::milliseconds cheapTime = ReceivedTextDisplay::defaultCheapTime)
        : display(std::make_unique<ReceivedTextDisplay>(&edit, &text, nullptr, cheapTime))
    {
        QObject::connect(&edit, &QTextEdit::textChanged, &edit, [this] {
            ++count;
            pause = std::chrono::milliseconds(sinceLast.isValid() ? sinceLast.elapsed() : 0);
            std::this_thread::sleep_for(cost);
            sinceLast.start();
        });
    }

    void arrive(const QString &more)
    {
        text += more;
        display->handleArrival();
    }

    QTextEdit edit;
    QString text;
    std::unique_ptr<ReceivedTextDisplay> display;
    std::chrono::milliseconds cost{};
    int count = 0;
    std::chrono::milliseconds pause{}; ///< between the last two showings
    QElapsedTimer sinceLast;

    /// The shortest that leaves more than half of the time to the user, as coarse as timers are.
    std::chrono::milliseconds shortestPause() const
    {
        return cost * 3 / 2 - std::chrono::milliseconds(2);
    }
};

} // namespace

class tst_ReceivedTextDisplay : public QObject
{
    Q_OBJECT

private slots:
    void cheapTimeOfTheProgram();
    void cheapArrivalsAreShownOneByOne();
    void arrivalsAfterADearOneAreShownTogether_data();
    void arrivalsAfterADearOneAreShownTogether();
    void everyDearShowingHasItsPause();
    void nothingIsShownAfterAQuietPause();
    void cheapArrivalsAreShownOneByOneAgain();
    void clearedTextDoesNotReappear();
    void arrivalAfterClearIsShownAtOnce();
    void goneInThePause();
    void onlyLongWordsAreWrappedAnywhere_data();
    void onlyLongWordsAreWrappedAnywhere();
    void wrapsBetweenWordsAgain();
    void endIsShown_data();
    void endIsShown();
};

void tst_ReceivedTextDisplay::cheapTimeOfTheProgram()
{
    QCOMPARE(qint64(ReceivedTextDisplay::defaultCheapTime.count()), qint64(50));
}

void tst_ReceivedTextDisplay::cheapArrivalsAreShownOneByOne()
{
    Showing showing(longTime);
    for (int i = 1; i <= 20; ++i) {
        showing.arrive(u"x"_s);
        QCOMPARE(showing.edit.toPlainText(), u"x"_s.repeated(i));
        QCOMPARE(showing.count, i);
    }
}

void tst_ReceivedTextDisplay::arrivalsAfterADearOneAreShownTogether_data()
{
    QTest::addColumn<int>("cost");

    QTest::newRow("a little more than cheap") << 60;
    QTest::newRow("half a second") << 500;
}

void tst_ReceivedTextDisplay::arrivalsAfterADearOneAreShownTogether()
{
    QFETCH(const int, cost);
    Showing showing;
    showing.cost = std::chrono::milliseconds(cost);
    showing.arrive(u"A"_s);
    QCOMPARE(showing.edit.toPlainText(), u"A"_s);

    showing.arrive(u"B"_s);
    QCoreApplication::processEvents();
    showing.arrive(u"C"_s);
    QCOMPARE(showing.edit.toPlainText(), u"A"_s);
    QCOMPARE(showing.text, u"ABC"_s);

    QTRY_COMPARE(showing.edit.toPlainText(), u"ABC"_s);
    QCOMPARE(showing.count, 2);
    QVERIFY2(showing.pause >= showing.shortestPause(),
             qPrintable(QString::number(showing.pause.count())));
}

void tst_ReceivedTextDisplay::everyDearShowingHasItsPause()
{
    Showing showing;
    showing.cost = 60ms;
    QTimer flood;
    QObject::connect(&flood, &QTimer::timeout, &flood, [&] { showing.arrive(u"x"_s); });
    flood.start(1ms);
    for (int count = 2; count <= 5; ++count) {
        QTRY_COMPARE(showing.count, count);
        QVERIFY2(showing.pause >= showing.shortestPause(),
                 qPrintable(QString::number(showing.pause.count())));
    }
    flood.stop();
    QTRY_COMPARE(showing.edit.toPlainText(), showing.text);
}

void tst_ReceivedTextDisplay::nothingIsShownAfterAQuietPause()
{
    Showing showing;
    showing.cost = 60ms;
    showing.arrive(u"A"_s);
    // Many times the pause, also when a busy machine has made the showing slower.
    QVERIFY(!QTest::qWaitFor([&] { return showing.count > 1; }, 1500));

    showing.arrive(u"B"_s);
    QCOMPARE(showing.edit.toPlainText(), u"AB"_s);
    QCOMPARE(showing.count, 2);
}

void tst_ReceivedTextDisplay::cheapArrivalsAreShownOneByOneAgain()
{
    constexpr auto cheapTime = 500ms;
    Showing showing(cheapTime);
    showing.cost = 520ms;
    showing.arrive(u"A"_s);
    showing.arrive(u"B"_s);
    showing.cost = 0ms;
    QTRY_COMPARE(showing.edit.toPlainText(), u"AB"_s);
    for (const QString &text : {u"ABC"_s, u"ABCD"_s}) {
        showing.arrive(text.last(1));
        QCOMPARE(showing.edit.toPlainText(), text);
    }
}

void tst_ReceivedTextDisplay::clearedTextDoesNotReappear()
{
    Showing showing;
    showing.cost = 60ms;
    showing.arrive(u"A"_s);
    showing.arrive(u"B"_s);
    showing.text.clear();
    showing.display->clear();
    QCOMPARE(showing.edit.toPlainText(), QString());
    const int count = showing.count;
    QVERIFY(!QTest::qWaitFor([&] { return showing.count > count; }, 300));
}

void tst_ReceivedTextDisplay::arrivalAfterClearIsShownAtOnce()
{
    Showing showing;
    showing.cost = 60ms;
    showing.arrive(u"A"_s);
    showing.arrive(u"B"_s);
    showing.text.clear();
    showing.display->clear();
    showing.arrive(u"C"_s);
    QCOMPARE(showing.edit.toPlainText(), u"C"_s);
}

void tst_ReceivedTextDisplay::goneInThePause()
{
    Showing showing;
    showing.cost = 60ms;
    showing.arrive(u"A"_s);
    showing.arrive(u"B"_s);
    showing.display.reset();
    QVERIFY(!QTest::qWaitFor([&] { return showing.count > 1; }, 300));
}

void tst_ReceivedTextDisplay::onlyLongWordsAreWrappedAnywhere_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QTextOption::WrapMode>("mode");

    const auto row = [](const char *name, const QString &text, QTextOption::WrapMode mode) {
        QTest::newRow(name) << text << mode;
    };
    const auto betweenWords = QTextOption::WrapAtWordBoundaryOrAnywhere;
    row("nothing", {}, betweenWords);
    row("lines", u"Volume: 64\r\n"_s.repeated(2000), betweenWords);
    row("hexadecimal", u" 3A"_s.repeated(5000), betweenWords);
    row("a word of several lines", u"x"_s.repeated(4096) + u" OK"_s, betweenWords);
    row("a word of many lines", u"OK "_s + u"x"_s.repeated(4097), QTextOption::WrapAnywhere);
    row("zero bytes", QString(5000, QChar::Null), QTextOption::WrapAnywhere);
}

void tst_ReceivedTextDisplay::onlyLongWordsAreWrappedAnywhere()
{
    QFETCH(const QString, text);
    Showing showing(longTime);
    showing.arrive(text);
    QTEST(showing.edit.wordWrapMode(), "mode");
    QCOMPARE(showing.edit.toPlainText(), QString(text).remove(u'\r'));
}

void tst_ReceivedTextDisplay::wrapsBetweenWordsAgain()
{
    Showing showing(longTime);
    showing.edit.resize(400, 100);
    showing.edit.show();
    const QString word = u"x"_s.repeated(5000);
    showing.arrive(word);
    // Without spaces in it, a word is wrapped where it would have been.
    QTextEdit other;
    other.resize(400, 100);
    other.show();
    other.setText(word);
    QCOMPARE(showing.edit.document()->size(), other.document()->size());

    showing.text.clear();
    showing.display->clear();
    showing.arrive(u"OK"_s);
    QCOMPARE(showing.edit.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    QCOMPARE(showing.edit.toPlainText(), u"OK"_s);
}

void tst_ReceivedTextDisplay::endIsShown_data()
{
    QTest::addColumn<QString>("text");

    // Qt lays lines out bit by bit, and guesses the height from the part that is done.
    QTest::newRow("a few lines") << u"a line of some length\n"_s.repeated(10);
    QTest::newRow("10 kB of lines") << u"a line of some length\n"_s.repeated(450);
    QTest::newRow("300 kB of lines") << u"a line of some length\n"_s.repeated(13'600);
    QTest::newRow("one line") << u" 3A"_s.repeated(10'000);
    QTest::newRow("markup") << u"<b>bold</b> and not<br>"_s.repeated(1000);
}

void tst_ReceivedTextDisplay::endIsShown()
{
    QFETCH(const QString, text);
    Showing showing;
    showing.edit.resize(400, 100);
    showing.edit.show();
    showing.arrive(text);
    const QScrollBar *bar = showing.edit.verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(bar->maximum() + showing.edit.viewport()->height(),
             qRound(showing.edit.document()->size().height()));

    // The timers of the layout have nothing left to change.
    QCoreApplication::processEvents();
    QVERIFY(!QTest::qWaitFor([&] { return bar->value() != bar->maximum(); }, 50));
}

TESSALY_WINDOW_TEST(tst_ReceivedTextDisplay)
#include "tst_receivedtextdisplay.moc"
