// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/senderoptions.h"
#include "tests/support/modelsheets.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Action = SenderOptions::Action;

const QString deck = u"Tempo Deck"_s;
const QString video = u"Vistar Show - SV500 (TCP/IP)"_s;
const QString port = u"/dev/ttyUSB0"_s;

SavedSettings savedDeck()
{
    SavedSettings settings;
    settings.model = deck;
    settings.port = u"ttyS7"_s;
    settings.baudRate = u"38400"_s;
    settings.address = {192, 168, 1, 20};
    settings.playerId = u"12"_s;
    return settings;
}

SavedSettings savedVideo()
{
    SavedSettings settings = savedDeck();
    settings.model = video;
    settings.playerId = u"0"_s;
    return settings;
}

/// What a window saves that nobody has touched.
SavedSettings savedPlaceholders()
{
    SavedSettings settings = savedDeck();
    settings.model = settings.port = settings.baudRate = settings.playerId = u"(default)"_s;
    return settings;
}

SenderOptions parsed(const QStringList &arguments,
                     const std::optional<SavedSettings> &saved = std::nullopt)
{
    return parseSenderOptions(QStringList{u"tessaly-send"_s} + arguments,
                              {.savedSettings = [&] { return saved; },
                               .readFile =
                                   [](const QString &path) {
                                       return path == "lost"_L1
                                                  ? FileContent{{}, u"No such file"_s}
                                                  : FileContent{"play\nwait 5\nfolder 12\n", {}};
                                   }});
}

/// Where the commands would go.
QString placeOf(const SenderOptions &options)
{
    const QString place = options.host.isEmpty()
                              ? u"%1 at %2 baud"_s.arg(options.port).arg(options.baudRate)
                              : options.host;
    return u"%1, ID %2, %3"_s.arg(options.model.name).arg(options.playerId).arg(place);
}

} // namespace

Q_DECLARE_METATYPE(std::optional<SavedSettings>)

class tst_SenderOptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(u"tessaly-send"_s);
        QCoreApplication::setApplicationVersion(u"9.8.7"_s);
    }

    void defaults()
    {
        const SenderOptions options = parsed({u"--model"_s, deck, u"--port"_s, port, u"play"_s});
        QVERIFY(options.action == Action::Send);
        QCOMPARE(options.text, QString());
        QCOMPARE(options.note, QString());
        QCOMPARE(placeOf(options), u"Tempo Deck, ID 0, /dev/ttyUSB0 at 19200 baud"_s);
        QCOMPARE(options.steps.size(), 1);
        QCOMPARE(options.repetitions, 1);
        QVERIFY(options.gap == 50ms);
        QVERIFY(options.timeout == 10s);
        QVERIFY(!options.wait);
        QVERIFY(options.answerForm == ByteForm::Text);
        QVERIFY(options.frameForm == ByteForm::Hex);
        QCOMPARE(options.logPath, QString());
    }

    void allValues()
    {
        const SenderOptions options
            = parsed({u"--model=tempo DECK"_s, u"--id=127"_s, u"--port"_s, port, u"--baud=9600"_s,
                      u"--gap=0"_s, u"--timeout=1"_s, u"--wait=300"_s, u"--dec"_s, u"--repeat=7"_s,
                      u"--log"_s, u"a.log"_s, u"--script"_s, u"show"_s},
                     savedVideo());
        QVERIFY(options.action == Action::Send);
        QCOMPARE(options.note, QString());
        QCOMPARE(placeOf(options), u"Tempo Deck, ID 127, /dev/ttyUSB0 at 9600 baud"_s);
        QCOMPARE(options.steps.size(), 3);
        QCOMPARE(options.repetitions, 7);
        QVERIFY(options.gap == 0ms);
        QVERIFY(options.timeout == 1ms);
        QVERIFY(options.wait == 300ms);
        QVERIFY(options.answerForm == ByteForm::Dec);
        QVERIFY(options.frameForm == ByteForm::Dec);
        QCOMPARE(options.logPath, u"a.log"_s);
    }

    void hexadecimalAnswers()
    {
        const SenderOptions options
            = parsed({u"--model"_s, deck, u"--port"_s, port, u"--hex"_s, u"play"_s});
        QVERIFY(options.answerForm == ByteForm::Hex);
        QVERIFY(options.frameForm == ByteForm::Hex);
    }

    void dryRunNeedsNoLink()
    {
        const SenderOptions options = parsed(
            {u"--dry-run"_s, u"--model"_s, deck, u"--id"_s, u"3"_s, u"play"_s}, savedVideo());
        QVERIFY(options.action == Action::DryRun);
        QCOMPARE(options.note, QString());
        QCOMPARE(options.playerId, 3);
    }

    void help()
    {
        const SenderOptions options = parsed({u"--help"_s});
        QVERIFY(options.action == Action::Print);
        QVERIFY(options.text.startsWith("Usage: "_L1));
        QVERIFY(options.text.contains("\n  --model <NAME> "_L1));
        QVERIFY(options.text.contains("\nExit status: 0 when all is sent "_L1));
    }

    void version()
    {
        const SenderOptions options = parsed({u"--version"_s});
        QVERIFY(options.action == Action::Print);
        QCOMPARE(options.text, u"tessaly-send 9.8.7\n"_s);
    }

    void lists()
    {
        const QString first = modelSheets().constFirst().name + ": "_L1;
        QVERIFY(parsed({u"--list"_s}).text.startsWith(first));
        QVERIFY(parsed({u"--list"_s, u"--json"_s}).text.startsWith("[\n"_L1));
        QVERIFY(
            parsed({u"--list"_s, u"--model"_s, u"ampra one"_s}).text.startsWith("Ampra One: "_L1));
        QVERIFY(parsed({u"--json"_s, u"--model"_s, deck, u"--list"_s}).text.startsWith("{\n"_L1));
        // It is about the catalogue, whatever the console has saved.
        QVERIFY(parsed({u"--list"_s}, savedVideo()).text.startsWith(first));
    }

    void savedSettings_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<std::optional<SavedSettings>>("saved");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("note");

        const auto row = [](const char *name, const QStringList &arguments,
                            const SavedSettings &saved, const char *place, const char *note) {
            const QString head = *note ? u"using the console's saved settings: "_s : QString();
            QTest::newRow(name) << arguments << std::optional(saved) << QString::fromLatin1(place)
                                << head + QString::fromLatin1(note);
        };
        row("all of them", {}, savedDeck(), "Tempo Deck, ID 12, ttyS7 at 38400 baud",
            "model Tempo Deck, player ID 12, port ttyS7, 38400 baud");
        row("all of a device in the network", {}, savedVideo(),
            "Vistar Show - SV500 (TCP/IP), ID 0, 192.168.1.20",
            "model Vistar Show - SV500 (TCP/IP), host 192.168.1.20");
        row("all but the ID", {u"--id=3"_s}, savedDeck(), "Tempo Deck, ID 3, ttyS7 at 38400 baud",
            "model Tempo Deck, port ttyS7, 38400 baud");
        row("all but the port, whose rate is the model's preset", {u"--port=/dev/x"_s}, savedDeck(),
            "Tempo Deck, ID 12, /dev/x at 19200 baud", "model Tempo Deck, player ID 12");
        row("all but the rate", {u"--baud=9600"_s}, savedDeck(),
            "Tempo Deck, ID 12, ttyS7 at 9600 baud", "model Tempo Deck, player ID 12, port ttyS7");
        row("all but the model, which lacks the rate", {u"--model=Ampra One"_s}, savedDeck(),
            "Ampra One, ID 12, ttyS7 at 19200 baud", "player ID 12, port ttyS7, 19200 baud");
        row("all but the host", {u"--host=::1"_s}, savedVideo(),
            "Vistar Show - SV500 (TCP/IP), ID 0, ::1", "model Vistar Show - SV500 (TCP/IP)");
        row("the link alone", {u"--model"_s, deck, u"--id=1"_s}, savedVideo(),
            "Tempo Deck, ID 1, ttyS7 at 38400 baud", "port ttyS7, 38400 baud");
        row("an ID that means nothing", {u"--model"_s, deck, u"--port"_s, port},
            savedPlaceholders(), "Tempo Deck, ID 0, /dev/ttyUSB0 at 19200 baud", "");
    }

    void savedSettings()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const std::optional<SavedSettings>, saved);

        const SenderOptions options
            = parsed(arguments + QStringList{u"set-baudrate-=-9600"_s}, saved);
        const SenderOptions other = parsed(arguments + QStringList{u"play"_s}, saved);
        const SenderOptions &right = options.action == Action::Fail ? other : options;
        QCOMPARE(right.text, QString());
        QTEST(placeOf(right), "place");
        QTEST(right.note, "note");
    }

    /// The user has not written that name, and learns where it comes from.
    void savedModelThatIsUnknown()
    {
        SavedSettings settings = savedDeck();
        settings.model = u"Tempo Dick"_s;
        const SenderOptions options = parsed({u"play"_s}, settings);
        QVERIFY(options.action == Action::Fail);
        QVERIFY2(options.text.startsWith(
                     "The console's saved settings name an unknown model, \"Tempo Dick\". "
                     "Did you mean \"Tempo Deck\""_L1),
                 qPrintable(options.text));
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");

        const auto row = [](const char *name, const QStringList &arguments, const QString &error) {
            QTest::newRow(name) << arguments << error;
        };
        const QStringList ready{u"--model"_s, deck, u"--port"_s, port};
        const QStringList toVideo{u"--model"_s, video, u"--host"_s, u"10.0.0.1"_s};
        row("nothing", {}, u"Which model? Give --model NAME; --list shows the models."_s);
        row("no command", ready, u"Which command? --model \"Tempo Deck\" --list shows them."_s);
        row("unknown model", {u"--model"_s, u"Tempo Dick"_s, u"play"_s},
            u"There is no model \"Tempo Dick\". Did you mean \"Tempo Deck\"*"_s);
        row("unknown model with --list", {u"--list"_s, u"--model"_s, u"Ampra Two"_s},
            u"There is no model \"Ampra Two\". Did you mean \"Ampra One\"*"_s);
        row("unknown command", ready + QStringList{u"pley"_s},
            u"Tempo Deck has no command \"pley\". Did you mean \"Play\" or \"Previous File\" or "
            "\"Previous Folder\"?"_s);
        row("value out of range", ready + QStringList{u"folder"_s, u"1000"_s},
            u"Folder takes a number from 0 to 999, not \"1000\"."_s);
        row("value below zero", ready + QStringList{u"volume"_s, u"-5"_s},
            u"\"-5\" is no value: none is below 0."_s);
        row("unknown option", ready + QStringList{u"--speed"_s}, u"Unknown option 'speed'."_s);
        row("ID out of range", ready + QStringList{u"--id=128"_s, u"play"_s},
            u"\"128\" is no player ID of Tempo Deck, 0 to 127."_s);
        row("ID of a model that has but one", toVideo + QStringList{u"--id=1"_s, u"play"_s},
            u"\"1\" is no player ID of Vistar Show - SV500 (TCP/IP), 0."_s);
        row("no port", {u"--model"_s, deck, u"play"_s},
            u"Which serial port? Give --port PORT, such as /dev/ttyUSB0."_s);
        row("empty port", {u"--model"_s, deck, u"--port="_s, u"play"_s},
            u"Which serial port? Give --port PORT, such as /dev/ttyUSB0."_s);
        row("no host", {u"--model"_s, video, u"play"_s},
            u"Which device? Give --host HOST, its IP address or name."_s);
        row("host of a serial model", ready + QStringList{u"--host=10.0.0.1"_s, u"play"_s},
            u"Tempo Deck is driven over a serial port: give --port instead of --host."_s);
        row("port of a network model", toVideo + QStringList{u"--port"_s, port, u"play"_s},
            u"Vistar Show - SV500 (TCP/IP) is driven over TCP/IP: give --host, and no --port."_s);
        row("rate of a network model", toVideo + QStringList{u"--baud=9600"_s, u"play"_s},
            u"Vistar Show - SV500 (TCP/IP) is driven over TCP/IP: give --host, and no --baud."_s);
        row("rate that the model lacks", ready + QStringList{u"--baud=115200"_s, u"play"_s},
            u"\"115200\" is no baud rate of Tempo Deck: 9600, 19200, 38400."_s);
        row("no number", ready + QStringList{u"--gap=x"_s, u"play"_s},
            u"--gap: \"x\" is no number of milliseconds, 0 to 86400000."_s);
        row("gap below zero", ready + QStringList{u"--gap=-1"_s, u"play"_s},
            u"--gap: \"-1\" is no number of milliseconds, 0 to 86400000."_s);
        row("no time to connect", ready + QStringList{u"--timeout=0"_s, u"play"_s},
            u"--timeout: \"0\" is no number of milliseconds, 1 to 3600000."_s);
        row("wait too long", ready + QStringList{u"--wait=86400001"_s, u"play"_s},
            u"--wait: \"86400001\" is no number of milliseconds, 0 to 86400000."_s);
        row("never", ready + QStringList{u"--repeat=0"_s, u"play"_s},
            u"--repeat: \"0\" is no number of times, 1 to 1000000000."_s);
        row("two forms", ready + QStringList{u"--hex"_s, u"--dec"_s, u"play"_s},
            u"--text, --hex and --dec: one of them is enough."_s);
        row("log without a path", ready + QStringList{u"--log="_s, u"play"_s},
            u"--log needs a path."_s);
        row("script without a path", ready + QStringList{u"--script="_s},
            u"--script needs a path."_s);
        row("script and command", ready + QStringList{u"--script=show"_s, u"play"_s},
            u"Either a command or --script, not both."_s);
        row("script that cannot be read", ready + QStringList{u"--script=lost"_s},
            u"lost: No such file."_s);
        row("JSON of nothing", ready + QStringList{u"--json"_s, u"play"_s},
            u"--json goes with --list."_s);
        row("command beside --list", {u"--list"_s, u"play"_s},
            u"Unexpected argument \"play\" beside --list."_s);
    }

    void errors()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, error);

        const SenderOptions options = parsed(arguments);
        // Which models come near is a matter of the models that there are.
        if (error.endsWith(u'*'))
            QVERIFY2(options.text.startsWith(error.chopped(1)), qPrintable(options.text));
        else
            QCOMPARE(options.text, error);
        QVERIFY(options.action == Action::Fail);
    }

    /// The script is read for the model that it is sent to.
    void scriptErrors()
    {
        const SenderOptions options
            = parsed({u"--model=Ampra One"_s, u"--port"_s, port, u"--script"_s, u"show"_s});
        QVERIFY(options.action == Action::Fail);
        QCOMPARE(options.text.count(u'\n'), 1);
        QVERIFY(options.text.startsWith("show:1: Ampra One has no command \"play\". "_L1));
        QVERIFY(options.text.contains("\nshow:3: Ampra One has no command \"folder\". "_L1));
    }

    void placeholdersAreNoSettings()
    {
        QCOMPARE(parsed({u"play"_s}, savedPlaceholders()).text,
                 u"Which model? Give --model NAME; --list shows the models."_s);
        QCOMPARE(parsed({u"--model"_s, deck, u"play"_s}, savedPlaceholders()).text,
                 u"Which serial port? Give --port PORT, such as /dev/ttyUSB0."_s);
    }

    void addressThatIsNotComplete()
    {
        SavedSettings saved = savedVideo();
        saved.address.at(2).reset();
        QCOMPARE(parsed({u"play"_s}, saved).text,
                 u"Which device? Give --host HOST, its IP address or name."_s);
    }
};

TESSALY_TEST(tst_SenderOptions)
#include "tst_senderoptions.moc"
