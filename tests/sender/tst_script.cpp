// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/script.h"

#include "tests/support/builtmodels.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;

namespace {

DeviceModel video()
{
    return builtModel(u"Vistar Show - SV500 (Serial)"_s);
}

QStringList textsOf(const QList<Step> &steps)
{
    QStringList texts;
    for (const Step &step : steps) {
        const auto *command = std::get_if<ChosenCommand>(&step);
        texts.append(command ? commandText(*command)
                             : u"wait %1"_s.arg(std::get<std::chrono::milliseconds>(step).count()));
    }
    return texts;
}

} // namespace

class tst_Script : public QObject
{
    Q_OBJECT

private slots:
    void steps_data();
    void steps();
    void errors_data();
    void errors();
    void manyErrors();
    void longLines_data();
    void longLines();
};

void tst_Script::steps_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("steps");

    const QStringList play{u"Play"_s};
    QTest::newRow("one line") << "play\n"_ba << play;
    QTest::newRow("without a line end") << "play"_ba << play;
    QTest::newRow("line ends of other systems")
        << "play\r\nstop\r\n"_ba << QStringList{u"Play"_s, u"Stop"_s};
    QTest::newRow("spaces around") << " \t play \t \n"_ba << play;
    QTest::newRow("empty lines") << "\n\nplay\n \n"_ba << play;
    QTest::newRow("byte-order mark") << "\xEF\xBB\xBFplay\n"_ba << play;
    QTest::newRow("comment line") << "# stop\n  # stop\nplay\n"_ba << play;
    QTest::newRow("comment after a command") << "play # at eight\n"_ba << play;
    QTest::newRow("comment with a quote") << "play # 8 o'clock \"sharp\n"_ba << play;
    QTest::newRow("comment without a space") << "play #stop\n"_ba << play;
    QTest::newRow("pause") << "play\nwait 2000\nstop\n"_ba
                           << QStringList{u"Play"_s, u"wait 2000"_s, u"Stop"_s};
    QTest::newRow("no pause at all") << "play\nWAIT 0\n"_ba << QStringList{u"Play"_s, u"wait 0"_s};
    QTest::newRow("the longest pause")
        << "play\nwait 86400000\n"_ba << QStringList{u"Play"_s, u"wait 86400000"_s};
    QTest::newRow("quoted") << "request \"Player Status\"\n\"next file\"\n"_ba
                            << QStringList{u"Request: Player Status"_s, u"Next File"_s};
    QTest::newRow("not quoted") << "request Player Status\nnext file\n"_ba
                                << QStringList{u"Request: Player Status"_s, u"Next File"_s};
    QTest::newRow("values") << "folder 012\nsubtitles fre\n"_ba
                            << QStringList{u"Folder 12"_s, u"ISO639 fre"_s};
}

void tst_Script::steps()
{
    QFETCH(const QByteArray, text);

    const Script script = readScript(video(), u"show.txt"_s, text);
    QCOMPARE(script.errors, QStringList());
    QTEST(textsOf(script.steps), "steps");
}

void tst_Script::errors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("errors");

    const QStringList nothing{u"show.txt: There is no command in it."_s};
    QTest::newRow("empty") << ""_ba << nothing;
    QTest::newRow("comments alone") << "# play\n\n"_ba << nothing;
    QTest::newRow("pauses alone") << "wait 5\n"_ba << nothing;
    QTest::newRow("unknown command")
        << "play\nresum\nstop\n"_ba
        << QStringList{
               u"show.txt:2: Vistar Show - SV500 (Serial) has no command \"resum\". Did you mean "
               "\"Resume\" or \"Remaining time\"?"_s};
    QTest::newRow("every line that is wrong")
        << "volume 101\n\nplay\nplay 5"_ba
        << QStringList{u"show.txt:1: Volume takes a number from 0 to 100, not \"101\"."_s,
                       u"show.txt:4: Play takes no value, not \"5\"."_s};
    QTest::newRow("open quote") << "play\nrequest \"Player Status\n"_ba
                                << QStringList{u"show.txt:2: A quote is not closed."_s};

    const QString wait = u"show.txt:1: wait takes a number of milliseconds, 0 to 86400000."_s;
    for (const char *line : {"wait", "wait x", "wait -1", "wait 86400001", "wait 5 5", "wait 5 s"})
        QTest::newRow(line) << QByteArray(line) + "\nplay" << QStringList{wait};
    QTest::newRow("zero bytes")
        << "pl\0ay\n"_ba
        << QStringList{
               u"show.txt:1: Vistar Show - SV500 (Serial) has no command \"pl%1ay\". Did "
               "you mean \"Play\" or \"Play/Pause\" or \"Player Status\"?"_s.arg(QChar(u'\0'))};
}

void tst_Script::errors()
{
    QFETCH(const QByteArray, text);

    const Script script = readScript(video(), u"show.txt"_s, text);
    QTEST(script.errors, "errors");
    QCOMPARE(textsOf(script.steps), QStringList());
}

/// A file that is no script does not fill the screen.
void tst_Script::manyErrors()
{
    const Script script = readScript(video(), u"x"_s, QByteArray("play 1\n").repeated(1000));
    QCOMPARE(script.errors.size(), 11);
    QCOMPARE(script.errors.at(9), u"x:10: Play takes no value, not \"1\"."_s);
    QCOMPARE(script.errors.at(10), u"x: The rest is not looked at."_s);
}

void tst_Script::longLines_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");

    const QString head = u"x:1: Vistar Show - SV500 (Serial) has no command \"%1...\""_s;
    QTest::newRow("one word") << QByteArray(4'000'000, 'z') << head.arg(QString(60, u'z'));
    QTest::newRow("many words") << QByteArray("z ").repeated(2'000'000)
                                << head.arg(u"z "_s.repeated(30));
    QTest::newRow("many values") << "play" + QByteArray(" 1").repeated(2'000'000)
                                 << u"x:1: Play takes no value, not \"%1...\"."_s.arg(
                                        u"1 "_s.repeated(30));
    QTest::newRow("many lines") << QByteArray("zz\n").repeated(200'000)
                                << u"x:1: Vistar Show - SV500 (Serial) has no command \"zz\""_s;
}

/// A file that is no script is refused at once.
void tst_Script::longLines()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, error);

    const Script script = readScript(video(), u"x"_s, text);
    QVERIFY2(script.errors.value(0).startsWith(error), qPrintable(script.errors.value(0)));
}

TESSALY_TEST(tst_Script)
#include "tst_script.moc"
