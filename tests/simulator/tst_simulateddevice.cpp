// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/simulateddevice.h"
#include "tests/support/builtmodels.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

#include <algorithm>
#include <memory>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString vistarShow = u"Vistar Show - SV500 (Serial)"_s;
const QString sonetA = u"Sonet A (Serial)"_s;
const QString sonetALite = u"Sonet A Lite (TCP/IP)"_s;
const QString ampraOne = u"Ampra One"_s;

// Half an hour east of any whole hour, written out with its rule, so that no time zone data has to
// be installed.
constexpr char farFromGreenwich[] = "XST-9:30";

/// The moment at which every device here is switched on.
QDateTime start()
{
    return QDateTime(QDate(2026, 3, 7), QTime(14, 5, 9));
}

/// One device, asked and told by the labels of its model.
class Bench
{
public:
    explicit Bench(const QString &modelName = vistarShow, int playerId = 0)
        : m_model(builtModel(modelName))
        , m_device(m_model, playerId, start())
    {
    }

    /// The command of that label that is no request, with values of your own.
    DecodedCommand command(const QString &label) const
    {
        return entry(label, [](quint32 id) { return id != CommandId::Request; });
    }

    QByteArray obey(const DecodedCommand &command)
    {
        return m_device.obey(command, start().addMSecs(m_passed));
    }

    QByteArray tell(const QString &label, int number = 0)
    {
        DecodedCommand told = command(label);
        told.number = number;
        return obey(told);
    }

    /// \return the answer after "label: "
    QByteArray ask(const QString &label)
    {
        const QByteArray answer
            = obey(entry(label, [](quint32 id) { return id == CommandId::Request; }));
        const QByteArray head = label.toLatin1() + ": ";
        return answer.toLower().startsWith(head.toLower()) && answer.endsWith("\r\n")
                   ? answer.sliced(head.size()).chopped(2)
                   : "unexpected: " + answer;
    }

    /// The player status without the clock, which goes on by itself and is silent in standby.
    QByteArray status()
    {
        const QByteArray text = ask(u"Player status"_s);
        return text.first(text.contains(", clock ") ? text.indexOf(", clock ") : text.size());
    }

    QByteArray clock()
    {
        const QByteArray text = ask(u"Player status"_s);
        return text.contains(", clock ") ? text.sliced(text.indexOf(", clock ")) : "no clock"_ba;
    }

    void pass(qint64 milliseconds) { m_passed += milliseconds; }
    SimulatedDevice &device() { return m_device; }

private:
    template<typename Filter>
    DecodedCommand entry(const QString &label, Filter fits) const
    {
        // Upper and lower case are alike, as "Player Status" is spelled in two ways.
        const auto found = std::ranges::find_if(m_model.commands, [&](const CommandEntry &entry) {
            return entry.label.compare(label, Qt::CaseInsensitive) == 0 && fits(entry.commandId);
        });
        if (found == m_model.commands.cend())
            qFatal("%s has no %s", qPrintable(m_model.name), qPrintable(label));
        DecodedCommand command;
        command.entry = *found;
        return command;
    }

    DeviceModel m_model;
    SimulatedDevice m_device;
    qint64 m_passed = 0;
};

} // namespace

class tst_SimulatedDevice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", farFromGreenwich);
        ::tzset();
    }

    void playback_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("remaining");

        // Every command is told ten seconds after the one before.
        const auto row = [](const char *name, const QStringList &commands, const char *status,
                            const char *path, const char *remaining) {
            QTest::newRow(name) << commands << QByteArray(status) << QByteArray(path)
                                << QByteArray(remaining);
        };
        row("switched on", {}, "stopped", "/000/001", "00:00:00");
        row("play", {u"Play"_s}, "playing", "/000/001", "00:02:50");
        row("play again goes on", {u"Play"_s, u"Play"_s}, "playing", "/000/001", "00:02:40");
        row("stop", {u"Play"_s, u"Stop"_s}, "stopped", "/000/001", "00:00:00");
        row("play starts from the beginning after stop", {u"Play"_s, u"Stop"_s, u"Play"_s},
            "playing", "/000/001", "00:02:50");
        row("play/pause pauses", {u"Play"_s, u"Play/Pause"_s}, "paused", "/000/001", "00:02:50");
        row("play/pause twice goes on", {u"Play"_s, u"Play/Pause"_s, u"Play/Pause"_s}, "playing",
            "/000/001", "00:02:40");
        row("play/pause does not start", {u"Play/Pause"_s}, "stopped", "/000/001", "00:00:00");
        row("pause", {u"Play"_s, u"Pause"_s}, "paused", "/000/001", "00:02:50");
        row("pause twice stays paused", {u"Play"_s, u"Pause"_s, u"Pause"_s}, "paused", "/000/001",
            "00:02:50");
        row("pause does not start", {u"Pause"_s}, "stopped", "/000/001", "00:00:00");
        row("resume", {u"Play"_s, u"Pause"_s, u"Resume"_s}, "playing", "/000/001", "00:02:40");
        row("resume does not start", {u"Resume"_s}, "stopped", "/000/001", "00:00:00");
        row("play goes on after pause", {u"Play"_s, u"Pause"_s, u"Play"_s}, "playing", "/000/001",
            "00:02:40");
        row("stop while paused", {u"Play"_s, u"Pause"_s, u"Stop"_s}, "stopped", "/000/001",
            "00:00:00");
        row("next file starts it", {u"Next File"_s}, "playing", "/000/002", "00:02:50");
        row("next file begins at its head", {u"Play"_s, u"Next File"_s}, "playing", "/000/002",
            "00:02:50");
        row("previous file wraps to the last", {u"Previous File"_s}, "playing", "/000/012",
            "00:02:50");
        row("next file wraps to the first", {u"Previous File"_s, u"Next File"_s}, "playing",
            "/000/001", "00:02:50");
        row("next folder starts its first file", {u"Next File"_s, u"Next Folder"_s}, "playing",
            "/001/001", "00:02:50");
        row("previous folder wraps", {u"Previous Folder"_s}, "playing", "/999/001", "00:02:50");
        row("next folder wraps", {u"Previous Folder"_s, u"Next Folder"_s}, "playing", "/000/001",
            "00:02:50");
        row("standby stops", {u"Play"_s, u"Standby"_s}, "standby", "/000/001", "00:00:00");
        row("standby refuses", {u"Standby"_s, u"Play"_s, u"Next Folder"_s, u"Next File"_s},
            "standby", "/000/001", "00:00:00");
        row("wakeup stays stopped", {u"Play"_s, u"Standby"_s, u"Wakeup"_s}, "stopped", "/000/001",
            "00:00:00");
        row("wakeup alone changes nothing", {u"Play"_s, u"Wakeup"_s}, "playing", "/000/001",
            "00:02:40");
        row("standby/wakeup", {u"Play"_s, u"Standby/Wakeup"_s}, "standby", "/000/001", "00:00:00");
        row("standby/wakeup twice", {u"Standby/Wakeup"_s, u"Standby/Wakeup"_s, u"Play"_s},
            "playing", "/000/001", "00:02:50");
    }

    void playback()
    {
        QFETCH(const QStringList, commands);
        QFETCH(const QByteArray, status);
        QFETCH(const QByteArray, path);
        QFETCH(const QByteArray, remaining);

        Bench bench;
        for (const QString &label : commands) {
            bench.tell(label);
            bench.pass(10'000);
        }
        QCOMPARE(bench.status(), status);
        QCOMPARE(bench.ask(u"Full path name"_s), path);
        QCOMPARE(bench.ask(u"Remaining time"_s), remaining);
        QCOMPARE(bench.ask(u"Current file"_s), path.last(3));
        QCOMPARE(bench.ask(u"Current folder number"_s), path.sliced(1, 3));
        QCOMPARE(bench.ask(u"Total time of the file"_s), "00:03:00"_ba);
    }

    void legacyPauseToggles()
    {
        Bench bench(u"HV1xx (Serial) (legacy)"_s);
        bench.tell(u"Play"_s);
        QCOMPARE(bench.tell(u"Pause"_s), "OK Pause\r\n"_ba);
        QCOMPARE(bench.status(), "paused"_ba);
        bench.tell(u"Pause"_s);
        QCOMPARE(bench.status(), "playing"_ba);
    }

    void timePasses_data()
    {
        QTest::addColumn<qint64>("passed");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("remaining");

        QTest::newRow("nothing") << 0LL << "001"_ba
                                 << "00:03:00"_ba;
        QTest::newRow("a second") << 1'000LL << "001"_ba
                                  << "00:02:59"_ba;
        QTest::newRow("last second") << 179'000LL << "001"_ba
                                     << "00:00:01"_ba;
        QTest::newRow("next file") << 180'000LL << "002"_ba
                                   << "00:03:00"_ba;
        QTest::newRow("several files") << 550'000LL << "004"_ba
                                       << "00:02:50"_ba;
        QTest::newRow("last file") << 2'159'000LL << "012"_ba
                                   << "00:00:01"_ba;
        QTest::newRow("first file again") << 2'160'000LL << "001"_ba
                                          << "00:03:00"_ba;
        QTest::newRow("a year") << 31'536'000'000LL << "001"_ba
                                << "00:03:00"_ba;
        QTest::newRow("the computer's clock set back") << -86'400'000LL << "001"_ba
                                                       << "00:03:00"_ba;
    }

    void timePasses()
    {
        QFETCH(const qint64, passed);
        QFETCH(const QByteArray, file);
        QFETCH(const QByteArray, remaining);

        Bench bench;
        bench.tell(u"Play"_s);
        bench.pass(passed);
        QCOMPARE(bench.ask(u"Current file"_s), file);
        QCOMPARE(bench.ask(u"Remaining time"_s), remaining);
    }

    void timePassesInSteps()
    {
        Bench bench;
        bench.tell(u"Play"_s);
        for (int i = 0; i < 100; ++i) {
            bench.pass(1'999);
            bench.ask(u"Volume"_s);
        }
        QCOMPARE(bench.ask(u"Current file"_s), "002"_ba);
        QCOMPARE(bench.ask(u"Remaining time"_s), "00:02:40"_ba);
    }

    void timeStandsStill_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QByteArray>("remaining");
        QTest::newRow("paused") << u"Pause"_s << "00:02:58"_ba;
        QTest::newRow("stopped") << u"Stop"_s << "00:00:00"_ba;
        QTest::newRow("standby") << u"Standby"_s << "00:00:00"_ba;
    }

    void timeStandsStill()
    {
        QFETCH(const QString, command);
        QFETCH(const QByteArray, remaining);

        Bench bench;
        bench.tell(u"Play"_s);
        bench.pass(2'000);
        bench.tell(command);
        bench.pass(1'000'000);
        QCOMPARE(bench.ask(u"Remaining time"_s), remaining);
        QCOMPARE(bench.ask(u"Current file"_s), "001"_ba);
    }

    void folder()
    {
        Bench bench;
        bench.tell(u"Next File"_s);
        QCOMPARE(bench.tell(u"Folder"_s, 200), "OK Folder 200\r\n"_ba);
        QCOMPARE(bench.status(), "playing"_ba);
        QCOMPARE(bench.ask(u"Full path name"_s), "/200/001"_ba);
    }

    void foldersWrap_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("last");

        QTest::newRow("eight banks end at 999") << vistarShow << 999;
        QTest::newRow("eight banks over TCP/IP") << u"HV1xx (TCP/IP) (legacy)"_s << 999;
        QTest::newRow("two banks") << u"HV1xx (Serial) (legacy)"_s << 255;
    }

    void foldersWrap()
    {
        QFETCH(const QString, model);
        QFETCH(const int, last);

        Bench bench(model);
        bench.tell(u"Folder"_s, last);
        bench.tell(u"Next Folder"_s);
        QCOMPARE(bench.ask(u"Current folder number"_s), "000"_ba);
        bench.tell(u"Previous Folder"_s);
        QCOMPARE(bench.ask(u"Current folder number"_s), QByteArray::number(last));
        bench.tell(u"Previous Folder"_s);
        QCOMPARE(bench.ask(u"Current folder number"_s), QByteArray::number(last - 1));
    }

    // The models with one bank have no folder steps of their own; their range still counts.
    void singleBankWraps()
    {
        DeviceModel model = builtModel(u"HV1xx (Serial) (legacy)"_s);
        model.folderBankCount = 1;
        SimulatedDevice device(model, 0, start());
        const auto run = [&](const QString &label) {
            DecodedCommand command;
            command.entry = *std::ranges::find(model.commands, label, &CommandEntry::label);
            return device.obey(command, start());
        };
        run(u"Previous Folder"_s);
        QCOMPARE(run(u"Current folder number"_s), "Current folder number: 127\r\n"_ba);
        run(u"Next Folder"_s);
        QCOMPARE(run(u"Current folder number"_s), "Current folder number: 000\r\n"_ba);
    }

    void outOfRange_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("answer");

        const auto row = [](const char *name, const QString &model, const char *label, int number,
                            const char *answer) {
            QTest::newRow(name) << model << QString::fromLatin1(label) << number
                                << QByteArray(answer);
        };
        row("volume", u"Tempo Deck"_s, "Volume", 127,
            "ERROR Volume 127 (out of range 0 to 64)\r\n");
        row("amplifier volume", ampraOne, "Volume 1", 57,
            "ERROR Volume 1 57 (out of range 0 to 56)\r\n");
        row("folder", u"HV0xx (legacy)"_s, "Folder", 128,
            "ERROR Folder 128 (out of range 0 to 127)\r\n");
        row("change ID", u"HV0xx (legacy)"_s, "Change ID", 0,
            "ERROR Change ID 0 (out of range 1 to 127)\r\n");
        row("volume below zero", sonetALite, "Volume", -1,
            "ERROR Volume -1 (out of range 0 to 64)\r\n");
        row("reference", sonetALite, "MUSIC folder (Random)", 1000,
            "ERROR MUSIC folder (Random) 1000 (out of range 1 to 999)\r\n");
        row("date", vistarShow, "Set date", 0, "ERROR Set date (no such date or time)\r\n");
        row("language", vistarShow, "ISO639", 0,
            "ERROR Subtitles xyz (ISO639, unknown "
            "language)\r\n");
    }

    void outOfRange()
    {
        QFETCH(const QString, model);
        QFETCH(const QString, label);
        QFETCH(const int, number);
        QFETCH(const QByteArray, answer);

        Bench bench(model, 7);
        DecodedCommand command = bench.command(label);
        command.number = number;
        command.language = u"xyz"_s;
        command.inRange = false;
        QCOMPARE(bench.obey(command), answer);
        QCOMPARE(bench.device().playerId(), 7);
        if (model == vistarShow) {
            QCOMPARE(bench.status(), "stopped"_ba);
            QCOMPARE(bench.clock(), ", clock 2026-03-07 14:05:09"_ba);
        }
        if (model == sonetALite) {
            QCOMPARE(bench.ask(u"Volume"_s), "64"_ba);
            QCOMPARE(bench.ask(u"Source"_s), "none"_ba);
        }
        if (model == ampraOne)
            QCOMPARE(bench.ask(u"Information"_s), "simulated Ampra One, ID 7, volume 56"_ba);
    }

    void volume()
    {
        Bench bench;
        QCOMPARE(bench.ask(u"Volume"_s), "100"_ba);
        QCOMPARE(bench.tell(u"Volume +"_s), "OK Volume +\r\n"_ba);
        QCOMPARE(bench.ask(u"Volume"_s), "100"_ba);
        QCOMPARE(bench.tell(u"Volume -"_s), "OK Volume -\r\n"_ba);
        QCOMPARE(bench.ask(u"Volume"_s), "99"_ba);
        QCOMPARE(bench.tell(u"Volume"_s, 1), "OK Volume 1\r\n"_ba);
        bench.tell(u"Volume -"_s);
        QCOMPARE(bench.ask(u"Volume"_s), "0"_ba);
        bench.tell(u"Volume -"_s);
        QCOMPARE(bench.ask(u"Volume"_s), "0"_ba);
        bench.tell(u"Volume +"_s);
        QCOMPARE(bench.ask(u"Volume"_s), "1"_ba);
    }

    void mute()
    {
        Bench bench;
        bench.tell(u"Mute"_s);
        QCOMPARE(bench.ask(u"Volume"_s), "100 (muted)"_ba);
        QCOMPARE(bench.status(), "stopped, muted"_ba);
        bench.tell(u"Mute"_s);
        QCOMPARE(bench.status(), "stopped, muted"_ba);
        bench.tell(u"Unmute"_s);
        QCOMPARE(bench.ask(u"Volume"_s), "100"_ba);
        QCOMPARE(bench.status(), "stopped"_ba);
        bench.tell(u"Unmute"_s);
        QCOMPARE(bench.status(), "stopped"_ba);
        bench.tell(u"Mute/Demute"_s);
        QCOMPARE(bench.status(), "stopped, muted"_ba);
        bench.tell(u"Mute/Demute"_s);
        QCOMPARE(bench.status(), "stopped"_ba);
    }

    void standbyAnswers_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QByteArray>("answer");

        const auto row = [](const char *label, const char *answer) {
            QTest::newRow(label) << QString::fromLatin1(label) << QByteArray(answer);
        };
        row("Play", "ERROR standby: Play\r\n");
        row("Play/Pause", "ERROR standby: Play/Pause\r\n");
        row("Folder", "ERROR standby: Folder 5\r\n");
        row("Next Folder", "ERROR standby: Next Folder\r\n");
        row("Previous File", "ERROR standby: Previous File\r\n");
        row("Volume +", "ERROR standby: Volume +\r\n");
        row("Mute", "ERROR standby: Mute\r\n");
        row("Enable auto subtitles", "ERROR standby: Enable auto subtitles\r\n");
        row("Standby", "OK Standby\r\n");
        row("NTP on", "OK NTP on\r\n");
        row("HDMI-CEC Standby", "OK HDMI-CEC Standby\r\n");
        row("Wakeup", "OK Wakeup\r\n");
    }

    void standbyAnswers()
    {
        QFETCH(const QString, label);
        QFETCH(const QByteArray, answer);

        Bench bench;
        bench.tell(u"Standby"_s);
        QCOMPARE(bench.tell(label, 5), answer);
        bench.tell(u"Wakeup"_s);
        QCOMPARE(bench.ask(u"Full path name"_s), "/000/001"_ba);
        QCOMPARE(bench.ask(u"Volume"_s), "100"_ba);
        QCOMPARE(bench.ask(u"Get the list of subtitles"_s),
                 "0 eng, 1 fre, 2 ger, 3 spa; selected: off"_ba);
        QVERIFY2(bench.status().startsWith("stopped"), bench.status());
    }

    void displayStandby()
    {
        Bench bench;
        bench.tell(u"Play"_s);
        bench.tell(u"HDMI-CEC Standby"_s);
        QCOMPARE(bench.status(), "playing, display standby"_ba);
        bench.tell(u"HDMI-CEC Wakeup"_s);
        QCOMPARE(bench.status(), "playing"_ba);
        bench.tell(u"HDMI-CEC Standby/Wakeup"_s);
        QCOMPARE(bench.status(), "playing, display standby"_ba);
        bench.tell(u"HDMI-CEC Standby/Wakeup"_s);
        QCOMPARE(bench.status(), "playing"_ba);
    }

    void subtitles_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<QByteArray>("selected");

        const QString next = u"Next subtitles (without loop)"_s;
        const QString previous = u"Previous subtitles (without loop)"_s;
        const QString nextLoop = u"Next subtitles (with loop)"_s;
        const QString previousLoop = u"Previous subtitles (with loop)"_s;
        QTest::newRow("at first") << QStringList{} << "off"_ba;
        QTest::newRow("automatic") << QStringList{u"Enable auto subtitles"_s} << "automatic"_ba;
        QTest::newRow("off again")
            << QStringList{u"Enable auto subtitles"_s, u"Disable subtitles"_s} << "off"_ba;
        QTest::newRow("next") << QStringList{next, next} << "track 2"_ba;
        QTest::newRow("next ends") << QStringList{next, next, next, next} << "track 3"_ba;
        QTest::newRow("next loops") << QStringList{next, next, next, nextLoop} << "track 0"_ba;
        QTest::newRow("previous ends") << QStringList{previous} << "track 0"_ba;
        QTest::newRow("previous loops") << QStringList{previousLoop} << "track 3"_ba;
        QTest::newRow("previous") << QStringList{next, next, previous} << "track 1"_ba;
        QTest::newRow("loop in the middle")
            << QStringList{nextLoop, nextLoop, previousLoop} << "track 1"_ba;
    }

    void subtitles()
    {
        QFETCH(const QStringList, commands);
        QFETCH(const QByteArray, selected);

        Bench bench;
        for (const QString &label : commands)
            QCOMPARE(bench.tell(label), "OK " + label.toLatin1() + "\r\n");
        QCOMPARE(bench.ask(u"Get the list of subtitles"_s),
                 "0 eng, 1 fre, 2 ger, 3 spa; selected: " + selected);
        QCOMPARE(bench.status(),
                 selected == "off" ? "stopped"_ba : "stopped, subtitles " + selected);
    }

    void subtitleSelection()
    {
        Bench bench;
        DecodedCommand command = bench.command(u"ISO639"_s);
        command.language = u"fre"_s;
        QCOMPARE(bench.obey(command), "OK Subtitles fre (ISO639-2 (B))\r\n"_ba);
        QCOMPARE(bench.status(), "stopped, subtitles fre"_ba);
        QCOMPARE(bench.tell(u"Index"_s, 127), "OK Subtitles 127 (Index)\r\n"_ba);
        QCOMPARE(bench.status(), "stopped, subtitles track 127"_ba);
        bench.tell(u"Next subtitles (with loop)"_s);
        QCOMPARE(bench.status(), "stopped, subtitles track 0"_ba);
    }

    void source_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QByteArray>("playlist");
        QTest::addColumn<QByteArray>("playlistMode");
        QTest::addColumn<QByteArray>("spot");
        QTest::addColumn<QByteArray>("spotMode");
        QTest::addColumn<QByteArray>("webradio");

        const auto row = [](const char *label, int number, const char *type, const char *mode,
                            const char *playlist, const char *playlistMode, const char *spot,
                            const char *spotMode, const char *webradio) {
            QTest::newRow(label) << QString::fromLatin1(label) << number << QByteArray(type)
                                 << QByteArray(mode) << QByteArray(playlist)
                                 << QByteArray(playlistMode) << QByteArray(spot)
                                 << QByteArray(spotMode) << QByteArray(webradio);
        };
        row("MUSIC folder (Sequential + Reset)", 999, "MUSIC", "Sequential + Reset", "none", "none",
            "none", "none", "none");
        row("PLAYLIST folder (Random)", 12, "PLAYLIST", "Random", "12", "Random", "none", "none",
            "none");
        row("SPOT folder (Sequential)", 300, "SPOT", "Sequential", "none", "none", "300",
            "Sequential", "none");
        row("Webradio", 10, "none", "none", "none", "none", "none", "none", "10");
        row("Alternate: Internal USB", 0, "none", "none", "none", "none", "none", "none", "none");
    }

    void source()
    {
        QFETCH(const QString, label);
        QFETCH(const int, number);
        QFETCH(const QByteArray, type);
        QFETCH(const QByteArray, mode);
        QFETCH(const QByteArray, playlist);
        QFETCH(const QByteArray, playlistMode);
        QFETCH(const QByteArray, spot);
        QFETCH(const QByteArray, spotMode);
        QFETCH(const QByteArray, webradio);

        Bench bench(sonetALite);
        bench.tell(u"Next File"_s);
        bench.tell(label, number);
        QCOMPARE(bench.status(), "playing"_ba);
        QCOMPARE(bench.ask(u"Playing file"_s), "001"_ba);
        QCOMPARE(bench.ask(u"Source"_s), label.toLatin1());
        QCOMPARE(bench.ask(u"Folder type"_s), type);
        QCOMPARE(bench.ask(u"Folder mode"_s), mode);
        QCOMPARE(bench.ask(u"Playlist ID"_s), playlist);
        QCOMPARE(bench.ask(u"Playlist mode"_s), playlistMode);
        QCOMPARE(bench.ask(u"Spot ID"_s), spot);
        QCOMPARE(bench.ask(u"Spot mode"_s), spotMode);
        QCOMPARE(bench.ask(u"Webradio ID"_s), webradio);
        if (type != "none")
            QCOMPARE(bench.ask(u"Folder ID"_s), QByteArray::number(number).rightJustified(3, '0'));
    }

    void spotWithReset()
    {
        Bench bench(sonetA);
        DecodedCommand command = bench.command(u"SPOT folder (Random + Reset)"_s);
        command.number = 300;
        command.option = 2;
        QCOMPARE(bench.obey(command), "OK SPOT folder (Random + Reset) 300, option 2\r\n"_ba);
    }

    void clock_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QByteArray>("clock");

        const auto row
            = [](const char *label, QDate date, QTime time, const char *answer, const char *clock) {
                  QTest::newRow(label) << QString::fromLatin1(label) << date << time
                                       << QByteArray(answer) << QByteArray(clock);
              };
        row("Set time", {}, {23, 59, 58}, "OK Set time 23:59:58\r\n",
            ", clock 2026-03-07 23:59:58");
        row("Set date", {2000, 2, 29}, {}, "OK Set date 2000-02-29\r\n",
            ", clock 2000-02-29 14:05:09");
        row("Set date/time", {2099, 12, 31}, {1, 2, 3}, "OK Set date/time 2099-12-31 01:02:03\r\n",
            ", clock 2099-12-31 01:02:03");
        // Nine and a half hours west of the device.
        row("Set UTC/GMT date/time (epoch version)", {2023, 11, 14}, {22, 13, 20},
            "OK Set UTC/GMT date/time (epoch version) 2023-11-14 22:13:20 UTC\r\n",
            ", clock 2023-11-15 07:43:20");
        row("Set UTC/GMT date/time (full version)", {2026, 3, 7}, {0, 0, 0},
            "OK Set UTC/GMT date/time (full version) 2026-03-07 00:00:00 UTC\r\n",
            ", clock 2026-03-07 09:30:00");
    }

    void clock()
    {
        QFETCH(const QString, label);
        QFETCH(const QDate, date);
        QFETCH(const QTime, time);
        QFETCH(const QByteArray, answer);
        QFETCH(const QByteArray, clock);

        Bench bench;
        QCOMPARE(bench.clock(), ", clock 2026-03-07 14:05:09"_ba);
        DecodedCommand command = bench.command(label);
        command.date = date;
        command.time = time;
        QCOMPARE(bench.obey(command), answer);
        QCOMPARE(bench.clock(), clock);
    }

    void clockGoesOn()
    {
        Bench bench;
        bench.pass(51'000);
        QCOMPARE(bench.clock(), ", clock 2026-03-07 14:06:00"_ba);
        DecodedCommand command = bench.command(u"Set date/time"_s);
        command.date = QDate(2027, 12, 31);
        command.time = QTime(23, 59, 59);
        bench.obey(command);
        bench.pass(1'000);
        QCOMPARE(bench.clock(), ", clock 2028-01-01 00:00:00"_ba);

        // The time set keeps the date that the device has come to, and the other way round.
        command = bench.command(u"Set time"_s);
        command.time = QTime(6, 0);
        bench.obey(command);
        QCOMPARE(bench.clock(), ", clock 2028-01-01 06:00:00"_ba);
        bench.pass(3'600'000);
        command = bench.command(u"Set date"_s);
        command.date = QDate(2028, 2, 29);
        bench.obey(command);
        QCOMPARE(bench.clock(), ", clock 2028-02-29 07:00:00"_ba);
        bench.tell(u"Play"_s);
        QCOMPARE(bench.ask(u"Remaining time"_s), "00:03:00"_ba);
    }

    void networkTime()
    {
        Bench bench;
        QCOMPARE(bench.tell(u"NTP on"_s), "OK NTP on\r\n"_ba);
        QCOMPARE(bench.clock(), ", clock 2026-03-07 14:05:09, NTP"_ba);
        QCOMPARE(bench.tell(u"NTP off"_s), "OK NTP off\r\n"_ba);
        QCOMPARE(bench.clock(), ", clock 2026-03-07 14:05:09"_ba);
    }

    void changeId()
    {
        Bench bench(ampraOne, 3);
        QCOMPARE(bench.device().playerId(), 3);
        DecodedCommand command = bench.command(u"Change ID"_s);
        command.playerId = 3;
        QVERIFY(bench.device().isAddressedBy(command));
        command.number = 127;
        QCOMPARE(bench.obey(command), "OK Change ID 127\r\n"_ba);
        QCOMPARE(bench.device().playerId(), 127);
        QVERIFY(!bench.device().isAddressedBy(command));
        command.playerId = 127;
        QVERIFY(bench.device().isAddressedBy(command));
        QCOMPARE(bench.ask(u"Information"_s), "simulated Ampra One, ID 127, volume 56"_ba);
    }

    void framesWithoutId()
    {
        Bench bench(sonetA, 9);
        DecodedCommand command = bench.command(u"Play"_s);
        command.playerId = -1;
        QVERIFY(bench.device().isAddressedBy(command));
    }

    void requests_data() { addAllModelRows(); }

    /// Of a device that has just been switched on.
    void requests()
    {
        QFETCH(const ModelSheet, sheet);
        const int volume = sheet.has(9) ? sheet.commandsOf(9).constFirst().highestNumber() : -1;
        QHash<QString, QString> known{
            {u"Information"_s, u"simulated %1, ID 0, volume %2"_s.arg(sheet.name).arg(volume)},
            {u"Player Status"_s, u"stopped, clock 2026-03-07 14:05:09"_s},
            {u"Player status"_s, u"stopped, clock 2026-03-07 14:05:09"_s},
            {u"Current file"_s, u"001"_s},
            {u"Playing file"_s, u"001"_s},
            {u"Full path name"_s, u"/000/001"_s},
            {u"Used storage media"_s, u"SD card"_s},
            {u"Current folder number"_s, u"000"_s},
            {u"Remaining time"_s, u"00:00:00"_s},
            {u"Total time of the file"_s, u"00:03:00"_s},
            {u"Volume"_s, QString::number(volume)},
            {u"Get the list of subtitles"_s, u"0 eng, 1 fre, 2 ger, 3 spa; selected: off"_s},
            {u"Source"_s, u"none"_s},
            {u"Folder type"_s, u"none"_s},
            {u"Folder ID"_s, u"000"_s},
            {u"Folder mode"_s, u"none"_s},
            {u"Playlist ID"_s, u"none"_s},
            {u"Playlist mode"_s, u"none"_s},
            {u"Spot ID"_s, u"none"_s},
            {u"Spot mode"_s, u"none"_s},
            {u"Webradio ID"_s, u"none"_s},
        };
        for (int radio = 1; radio <= 10; ++radio)
            known.insert(u"Webradio %1 name"_s.arg(radio), u"Radio %1"_s.arg(radio));
        const DeviceModel model = builtModel(sheet.name);
        SimulatedDevice device(model, 0, start());
        for (const CommandEntry &entry : model.commands) {
            if (entry.commandId != CommandId::Request)
                continue;
            DecodedCommand command;
            command.entry = entry;
            const QString answer = QString::fromLatin1(device.obey(command, start()));
            const QString head = entry.label + ": "_L1;
            if (known.contains(entry.label))
                QCOMPARE(answer, head + known.value(entry.label) + "\r\n"_L1);
            else
                QVERIFY2(answer.startsWith(head) && answer.size() > head.size() + 2,
                         qPrintable(answer));
        }
    }

    void answersAreLines_data() { addAllModelRows(); }

    // Every command, awake and in standby, with a value and with one out of range.
    void answersAreLines()
    {
        QFETCH(const ModelSheet, sheet);
        const DeviceModel player = builtModel(sheet.name);

        for (const bool standby : {false, true}) {
            for (const bool inRange : {true, false}) {
                for (const CommandEntry &entry : player.commands) {
                    SimulatedDevice device(player, 0, start());
                    DecodedCommand command;
                    if (standby) {
                        command.entry.commandId = CommandId::Standby;
                        command.entry.label = u"Standby"_s;
                        device.obey(command, start());
                    }
                    command.entry = entry;
                    command.number = 1;
                    command.option = 1;
                    command.language = u"fre"_s;
                    command.date = start().date();
                    command.time = start().time();
                    command.inRange = inRange;
                    const QByteArray answer = device.obey(command, start());
                    QVERIFY2(answer.size() > 2 && answer.endsWith("\r\n"), answer);
                    const QByteArray line = answer.chopped(2);
                    for (const char byte : line)
                        QVERIFY2(byte >= ' ' && byte <= '~', answer.toHex(' '));
                    if (!inRange)
                        QVERIFY2(line.startsWith("ERROR "), answer);
                    else if (entry.commandId == CommandId::Request)
                        QVERIFY2(line.startsWith(entry.label.toLatin1() + ": ")
                                     && line.size() > entry.label.size() + 2,
                                 answer);
                    else
                        QVERIFY2(line.startsWith("OK ") || line.startsWith("ERROR standby: "),
                                 answer);
                }
            }
        }
    }
};

TESSALY_TEST(tst_SimulatedDevice)
#include "tst_simulateddevice.moc"
