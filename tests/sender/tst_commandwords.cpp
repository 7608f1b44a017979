// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/commandwords.h"

#include "tests/sender/sheetwords.h"
#include "tests/support/builtmodels.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

#include <QProcess>
#include <QTimeZone>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int playerId = 5;

const QString deck = u"Tempo Deck"_s;
const QString video = u"Vistar Show - SV500 (Serial)"_s;
const QString sonet = u"Sonet A (Serial)"_s;
const QString lite = u"Sonet A Lite (TCP/IP)"_s;
const QString ampra = u"Ampra One"_s;
const QString bridge = u"Lumo Bridge"_s;

/// The words of the text; '_' stands for a space within a word.
QStringList wordsOf(const QString &text)
{
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    words.replaceInStrings(u"_"_s, u" "_s);
    return words;
}

} // namespace

class tst_CommandWords : public QObject
{
    Q_OBJECT

private slots:
    void framesOfTheModel_data() { addAllModelRows(); }
    void framesOfTheModel();
    void frames_data();
    void frames();
    void clock_data();
    void clock();
    void errors_data();
    void errors();
    void ownWordsAreRead_data() { addAllModelRows(); }
    void ownWordsAreRead();
};

void tst_CommandWords::framesOfTheModel()
{
    QFETCH(const ModelSheet, sheet);

    const DeviceModel device = builtModel(sheet.name);
    const QDateTime now(QDate(2026, 3, 7), QTime(14, 5, 9), QTimeZone::utc());
    for (const SheetFrame &frame : framesOf(sheet)) {
        const WordsMeaning meaning = readCommandWords(device, wordsFor(frame));
        QCOMPARE(meaning.error, QString());
        for (const int player : sheet.playerIdSamples()) {
            const QByteArray expected = sheet.addressed(frame.bytes, player);
            const QByteArray actual = frameOf(device, player, *meaning.command, now);
            QCOMPARE(actual.size(), expected.size());
            const qsizetype compared = frame.carriesTime() ? 2 : expected.size();
            QCOMPARE(hexBytes(actual.first(compared)), hexBytes(expected.first(compared)));
        }
    }
}

void tst_CommandWords::frames_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QString &model, const char *words,
                        const char *bytes, const char *text) {
        QTest::newRow(name) << model << QString::fromLatin1(words) << QByteArray(bytes)
                            << QString::fromLatin1(text);
    };
    row("play", deck, "play", "85 02 01", "Play");
    row("upper case", deck, "PLAY", "85 02 01", "Play");
    row("a label of two words in one", deck, "next_file", "85 02 03", "Next File");
    row("with a hyphen", deck, "next-file", "85 02 03", "Next File");
    row("in two words", deck, "next file", "85 02 03", "Next File");
    row("with several spaces", deck, "next__file", "85 02 03", "Next File");
    row("a label with a slash", video, "play/pause", "85 02 05", "Play/Pause");
    row("its namesake", video, "pause", "85 02 0E", "Pause");
    row("a hyphen that is no space", video, "hdmi-cec-standby", "85 02 13", "HDMI-CEC Standby");
    row("a label that ends in a hyphen", deck, "volume_-", "85 02 0A", "Volume -");
    row("only hyphens", deck, "volume--", "85 02 0A", "Volume -");
    row("a label that ends in a plus", deck, "volume +", "85 02 09", "Volume +");
    row("label with brackets", video, "next_subtitles_(with_loop)", "85 0D 05",
        "Next subtitles (with loop)");
    row("folder as the console shows it", deck, "folder 007", "85 01 07", "Folder 7");
    row("folder of another bank", deck, "folder 200", "85 11 48", "Folder 200");
    row("volume", deck, "volume 40", "85 03 28", "Volume 40");
    row("the request of that name", video, "request volume", "85 04 0B", "Request: Volume");
    row("volume as text", lite, "volume 40",
        "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 32 34 00",
        "Volume 40");
    row("a label that ends in a number", ampra, "volume_1 40", "85 03 28", "Volume 1 40");
    row("the same in three words", ampra, "volume 1 40", "85 03 28", "Volume 1 40");
    row("change ID", ampra, "change_id 12", "85 7F 0C", "Change ID 12");
    row("baud rate", ampra, "set-baudrate-=-9600", "85 08 31", "Set baudrate = 9600");
    row("request", video, "request player_status", "85 04 01", "Request: Player Status");
    row("request in three words", video, "request player status", "85 04 01",
        "Request: Player Status");
    row("a request without its list", video, "player-status", "85 04 01", "Request: Player Status");
    row("a request that is called like a list", lite, "request source",
        "02 00 00 00 67 65 74 00 53 6F 75 72 63 65 00", "Request: Source");
    row("source", sonet, "source MUSIC_folder_(Random) 12", "00 00 0C FF",
        "MUSIC folder (Random) 12");
    row("source without its list", sonet, "music-folder-(random) 999", "00 03 E7 FF",
        "MUSIC folder (Random) 999");
    row("source with an option", sonet, "source spot-folder-(random-+-reset) 300 2", "12 01 2C 02",
        "SPOT folder (Random + Reset) 300 2");
    row("subtitles by language", video, "subtitles fre", "85 1D 66 72 65", "ISO639 fre");
    row("in upper case", video, "subtitles FRA", "85 1D 66 72 61", "ISO639 fra");
    row("of the third list alone", video, "subtitles hbs", "85 1D 68 62 73", "ISO639 hbs");
    row("subtitles by track", video, "subtitles 127", "85 2D 7F", "Index 127");
    row("language by its label", video, "subtitles iso639 fre", "85 1D 66 72 65", "ISO639 fre");
    row("track by its label", video, "subtitles INDEX 5", "85 2D 05", "Index 5");
    row("by the commands' own labels", video, "iso639 fre", "85 1D 66 72 65", "ISO639 fre");
    row("all contacts open", bridge, "relay", "85 19 00 00", "Relay");
    row("two contacts closed", bridge, "relay 1 8", "85 19 81 00", "Relay 1 8");
}

void tst_CommandWords::frames()
{
    QFETCH(const QString, model);
    QFETCH(const QString, words);

    const DeviceModel device = builtModel(model);
    const WordsMeaning meaning = readCommandWords(device, wordsOf(words));
    QCOMPARE(meaning.error, QString());
    QVERIFY(meaning.command);
    QTEST(hexBytes(frameOf(device, playerId, *meaning.command, QDateTime())), "bytes");
    QTEST(commandText(*meaning.command), "text");
}

void tst_CommandWords::clock_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("time") << u"set-time"_s << "85 0C 0E 05 09"_ba;
    QTest::newRow("date") << u"set-date"_s << "85 1C 1A 03 07"_ba;
    QTest::newRow("both") << u"set-date/time"_s << "85 2C 1A 03 07 0E 05 09"_ba;
    QTest::newRow("epoch") << u"set-utc/gmt-date/time-(epoch-version)"_s
                           << "85 3C 06 4D 30 61 15"_ba;
    QTest::newRow("full") << u"set-utc/gmt-date/time-(full-version)"_s
                          << "85 4C 1A 03 07 0E 05 09"_ba;
}

void tst_CommandWords::clock()
{
    QFETCH(const QString, words);

    const DeviceModel device = builtModel(video);
    const WordsMeaning meaning = readCommandWords(device, {words});
    QVERIFY(meaning.command);
    const QDateTime now(QDate(2026, 3, 7), QTime(14, 5, 9), QTimeZone::utc());
    QTEST(hexBytes(frameOf(device, playerId, *meaning.command, now)), "bytes");
}

void tst_CommandWords::errors_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QString &model, const char *words,
                        const char *error) {
        QTest::newRow(name) << model << QString::fromLatin1(words) << QString::fromLatin1(error);
    };
    row("no word", deck, "", "Which command?");
    row("misspelt", deck, "pley",
        "Tempo Deck has no command \"pley\". Did you mean \"Play\" or \"Previous File\" or "
        "\"Previous Folder\"?");
    row("misspelt, with a value", deck, "foldr 200",
        "Tempo Deck has no command \"foldr\". Did you mean \"Folder\" or \"Volume\" or \"Volume "
        "+\"?");
    row("a command of other models", deck, "resume",
        "Tempo Deck has no command \"resume\". Did you mean \"Volume\" or \"Volume +\" or "
        "\"Volume -\"?");
    row("a space too many within a word", deck, "pl_ay",
        "Tempo Deck has no command \"pl ay\". Did you mean \"Play\"?");
    row("the volume step is not the volume", deck, "volume- 5",
        "Tempo Deck has no command \"volume-\". Did you mean \"Volume\" or \"Volume +\" or "
        "\"Volume -\"?");
    row("number missing", deck, "folder", "Folder takes a number from 0 to 999; none is given.");
    row("number too many", deck, "folder 1 2", "Folder takes a number from 0 to 999, not \"1 2\".");
    row("number for nothing", deck, "play 1", "Play takes no value, not \"1\".");
    row("no number", deck, "folder twelve", "Folder takes a number from 0 to 999, not \"twelve\".");
    row("above the range", deck, "volume 65", "Volume takes a number from 0 to 64, not \"65\".");
    row("the range is the model's own", video, "volume 101",
        "Volume takes a number from 0 to 100, not \"101\".");
    row("below zero", deck, "volume -1", "Volume takes a number from 0 to 64, not \"-1\".");
    row("below the range", ampra, "change-id 0",
        "\"Change ID\" takes a number from 1 to 127, not \"0\".");
    row("web radio above its range", sonet, "source webradio 11",
        "source Webradio takes a number from 1 to 10, not \"11\".");
    row("option missing", sonet, "source spot-folder-(random-+-reset) 300",
        "source \"SPOT folder (Random + Reset)\" takes a number from 1 to 999 and an option from "
        "1 to 255, not \"300\".");
    row("option out of range", sonet, "source spot-folder-(random-+-reset) 300 0",
        "source \"SPOT folder (Random + Reset)\" takes an option from 1 to 255, not \"0\".");
    row("option where there is none", sonet, "source spot-folder-(random) 300 1",
        "source \"SPOT folder (Random)\" takes a number from 1 to 999, not \"300 1\".");
    row("source without a name", sonet, "source", "Which source?");
    row("unknown source", sonet, "source webrado 3",
        "Sonet A (Serial) has no source \"webrado\". Did you mean \"Webradio\"?");
    row("a model without sources", deck, "source webradio 3", "Tempo Deck has no sources.");
    row("unknown request", lite, "request playing-fil",
        "Sonet A Lite (TCP/IP) has no request \"playing-fil\". Did you mean \"Playing file\"?");
    row("what is no request", video, "request play",
        "Vistar Show - SV500 (Serial) has no request \"play\". Did you mean \"Player Status\"?");
    row("a model without requests", deck, "request volume", "Tempo Deck has no requests.");
    row("unknown language", video, "subtitles fr",
        "There is no subtitle language \"fr\". Did you mean \"afr\" or \"fre\" or \"frm\"?");
    row("a language that is not offered", video, "subtitles xyz",
        "There is no subtitle language \"xyz\". Did you mean \"aym\" or \"aze\" or \"byn\"?");
    row("track above the range", video, "subtitles 128",
        "subtitles takes a number from 0 to 127, not \"128\".");
    row("subtitles without a value", video, "subtitles",
        "subtitles takes a language code of three letters or a number from 0 to 127; none is "
        "given.");
    row("five tracks more", video, "subtitles +5",
        "subtitles takes a number from 0 to 127, not \"+5\".");
    row("five more, where the label ends in a plus, too", deck, "volume +5",
        "Volume takes a number from 0 to 64, not \"+5\".");
    row("a model without subtitles", deck, "subtitles fre",
        "Tempo Deck has no choice of subtitles.");
    row("no contact", bridge, "relay 1 9", "\"9\" is no contact, 1 to 8.");
}

void tst_CommandWords::errors()
{
    QFETCH(const QString, model);
    QFETCH(const QString, words);

    const WordsMeaning meaning = readCommandWords(builtModel(model), wordsOf(words));
    QTEST(meaning.error, "error");
    QVERIFY(!meaning.command);
}

/// The list of a model's commands is what a user copies from.
void tst_CommandWords::ownWordsAreRead()
{
    QFETCH(const ModelSheet, sheet);

    const DeviceModel device = builtModel(sheet.name);
    QVERIFY(!device.commands.isEmpty());
    for (const CommandEntry &entry : device.commands) {
        QStringList words = QProcess::splitCommand(commandWords(entry));
        for (const CommandValue &value : valuesOf(device, entry))
            words.append(value.range ? QString::number(value.range->last) : u"fre"_s);
        const WordsMeaning meaning = readCommandWords(device, words);
        QCOMPARE(meaning.error, QString());
        QCOMPARE(meaning.command->entry, entry);
    }
}

TESSALY_TEST(tst_CommandWords)
#include "tst_commandwords.moc"
