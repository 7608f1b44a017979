// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/amplifiermodels.h"
#include "catalogue/audiomodels.h"
#include "catalogue/devicecatalogue.h"
#include "catalogue/lightingmodels.h"
#include "catalogue/listnumbers.h"
#include "catalogue/videomodels.h"
#include "goldentables.h"
#include "protocol/frameencoder.h"
#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <iterator>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace {

// Row of each model in the list of the console.
enum Row {
    TempoDeck,
    ShowDeckGen2,
    VistarShowSerial,
    VistarShowTcp,
    AmpraOne,
    PicoDeckGen23,
    SonetASerial,
    SonetALiteTcp,
    VistarHomeSerial,
    VistarHomeTcp,
    Hv1xxSerial,
    Hv1xxTcp,
    PicoDeckLegacy,
    CardDeckHd,
    Hv0xx,
    OfferedModels,
    LumoBridge = OfferedModels, ///< behind the offered ones, for the tests alone
};

struct Builder
{
    const char *modelName;
    void (*append)(DeviceCatalogue &);
};

const Builder builders[] = {
    {"Tempo Deck", appendTempoDeck},
    {"Show Deck (Gen 2)", appendShowDeckGen2},
    {"Vistar Show - SV500 (Serial)", appendVistarShowSerial},
    {"Vistar Show - SV500 (TCP/IP)", appendVistarShowTcp},
    {"Ampra One", appendAmpraOne},
    {"Pico Deck Gen 2/3", appendPicoDeckGen23},
    {"Sonet A (Serial)", appendSonetASerial},
    {"Sonet A Lite (TCP/IP)", appendSonetALiteTcp},
    {"Vistar Home - HV4xx (Serial)", appendVistarHomeSerial},
    {"Vistar Home - HV4xx (TCP/IP)", appendVistarHomeTcp},
    {"HV1xx (Serial) (legacy)", appendHv1xxSerial},
    {"HV1xx (TCP/IP) (legacy)", appendHv1xxTcp},
    {"Pico Deck (legacy)", appendPicoDeckLegacy},
    {"Card Deck HD (legacy)", appendCardDeckHd},
    {"HV0xx (legacy)", appendHv0xx},
    {"Lumo Bridge", appendLumoBridge},
};

QByteArray hex(const QByteArray &bytes)
{
    return bytes.toHex(' ').toUpper();
}

QList<CommandEntry> entriesOf(const DeviceModel &model, quint32 commandId)
{
    QList<CommandEntry> entries;
    for (const CommandEntry &entry : model.commands) {
        if (entry.commandId == commandId)
            entries.append(entry);
    }
    return entries;
}

QStringList labelsOf(const DeviceModel &model, quint32 commandId)
{
    QStringList labels;
    for (const CommandEntry &entry : entriesOf(model, commandId))
        labels.append(entry.label);
    return labels;
}

/// "label / id / code / data / dataMax" of each entry: a failing comparison of lists shows them.
QStringList described(const QList<CommandEntry> &entries)
{
    QStringList texts;
    for (const CommandEntry &entry : entries) {
        texts.append(u"%1 / %2 / %3 / %4 / %5"_s.arg(entry.label)
                         .arg(entry.commandId)
                         .arg(entry.code)
                         .arg(QLatin1String(hex(entry.data)), QLatin1String(hex(entry.dataMax))));
    }
    return texts;
}

QString goldenFolder()
{
    return sourcePath(u"tests/catalogue/golden"_s);
}

} // namespace

class tst_Catalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    // against the golden tables
    void modelFields_data();
    void modelFields();
    void entries_data();
    void entries();
    void entryCounts_data();
    void entryCounts();
    void malformedCommandLine_data();
    void malformedCommandLine();
    void malformedModelLine_data();
    void malformedModelLine();
    void damagedGoldenFolder();

    // records
    void defaultDeviceModel();
    void deviceModelArguments();
    void defaultCommandEntry();
    void commandEntryCopiesItsBytes();
    void enumerationValues();
    void commandIdValues_data();
    void commandIdValues();

    // the list of models
    void modelOrder();
    void lumoBridgeIsNotOffered();
    void modelsByName();
    void everyBuilderAppendsOneModel_data();
    void everyBuilderAppendsOneModel();
    void tcpPorts_data();
    void tcpPorts();
    void tcpModelsHaveNoBaudRatesAndOnePlayerId();
    void defaultBaudRateIsOffered();
    void connectsOnDemand();
    void folderBanksOfThePairs_data();
    void folderBanksOfThePairs();

    // all command lists
    void unknownIdVisitsNothing_data();
    void unknownIdVisitsNothing();
    void labelsOfEachId_data();
    void labelsOfEachId();
    void onlyListIdsRepeat();
    void onlyRangesHaveAnotherMaximum();
    void volumeRanges_data();
    void volumeRanges();
    void changeIdModels();
    void folderNumbers_data();
    void folderNumbers();

    // audio players
    void deckListsAreEqual();
    void deckActionBytes();
    void picoDeckLegacyBeginsLikeTheDeck();
    void sonetModelsHaveNoFolderCommand();
    void sonetASerialHasThreeBytesEverywhere();
    void sonetASerialSpotFolders();
    void sonetASerialMuteAndUnmute();
    void sonetASerialEndsWithVolume();
    void sonetALiteVolumeIsTheFifth();
    void sonetALiteLacks_data();
    void sonetALiteLacks();
    void sonetALiteUnequalMaximums();
    void sonetALiteVolumeOccursTwice();
    void sonetALiteCarriesTheSerialCodeAsText();
    void sonetALiteRequests();

    // video players
    void videoListsAreEqual();
    void sharedListRequests();
    void sharedListActionBytes();
    void sharedListPairs();
    void sharedListPauses();
    void hv1xxTcpHasChangeId();
    void sharedListGoesToTheLastModel_data();
    void sharedListGoesToTheLastModel();

    // amplifier and lighting
    void ampraOneOtherCommands();
    void ampraOneHasNoPlayback();
    void baudRateCommandsFollowTheBaudRates_data();
    void baudRateCommandsFollowTheBaudRates();
    void lumoBridgeDefinition();

private:
    /// The model of a row, or Lumo Bridge; a default one when there is no such row.
    DeviceModel model(int row) const
    {
        return row == LumoBridge ? m_unlisted.value(0) : m_catalogue.value(row);
    }

    DeviceCatalogue m_catalogue;
    DeviceCatalogue m_unlisted; ///< Lumo Bridge
    QList<GoldenModel> m_golden;
};

void tst_Catalogue::initTestCase()
{
    m_catalogue = buildDeviceCatalogue();
    appendLumoBridge(m_unlisted);

    QString error;
    m_golden = loadGoldenModels(goldenFolder(), error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(m_golden.size(), OfferedModels + 1);
}

void tst_Catalogue::modelFields_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < m_golden.size(); ++row)
        QTest::newRow(qPrintable(m_golden.at(row).name)) << row;
}

void tst_Catalogue::modelFields()
{
    QFETCH(int, row);
    const GoldenModel golden = m_golden.at(row);
    const DeviceModel actual = model(row);

    QCOMPARE(row < m_catalogue.size(), golden.offered);
    QCOMPARE(actual.name, golden.name);
    QCOMPARE(int(actual.protocol), golden.protocol);
    QCOMPARE(int(actual.transport), golden.transport);
    QCOMPARE(int(actual.minPlayerId), golden.minPlayerId);
    QCOMPARE(int(actual.maxPlayerId), golden.maxPlayerId);
    QCOMPARE(int(actual.folderBankCount), golden.folderBankCount);
    QCOMPARE(actual.baudRates, golden.baudRates);
    QCOMPARE(actual.defaultBaudRate, golden.defaultBaudRate);
    QCOMPARE(int(actual.tcpPort), golden.tcpPort);
    QCOMPARE(actual.firmwareVersion, golden.firmwareVersion);
    QCOMPARE(actual.commands.size(), golden.commands.size());
}

void tst_Catalogue::entries_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("index");
    for (int row = 0; row < m_golden.size(); ++row) {
        const GoldenModel &golden = m_golden.at(row);
        for (int index = 0; index < golden.commands.size(); ++index) {
            QTest::addRow("%s / %d %s", qPrintable(golden.name), index + 1,
                          qPrintable(golden.commands.at(index).label))
                << row << index;
        }
    }
}

void tst_Catalogue::entries()
{
    QFETCH(int, row);
    QFETCH(int, index);
    const GoldenCommand golden = m_golden.at(row).commands.at(index);
    const QList<CommandEntry> commands = model(row).commands;
    QVERIFY2(index < commands.size(), "the model has fewer commands");
    const CommandEntry &actual = commands.at(index);

    QCOMPARE(actual.label, golden.label);
    QCOMPARE(int(actual.commandId), golden.commandId);
    QCOMPARE(int(actual.code), golden.code);
    QCOMPARE(hex(actual.data), golden.data);
    QCOMPARE(hex(actual.dataMax), golden.dataMax);
}

void tst_Catalogue::entryCounts_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");

    QTest::newRow("Tempo Deck") << int(TempoDeck) << 10;
    QTest::newRow("Show Deck (Gen 2)") << int(ShowDeckGen2) << 10;
    QTest::newRow("Vistar Show - SV500 (Serial)") << int(VistarShowSerial) << 48;
    QTest::newRow("Vistar Show - SV500 (TCP/IP)") << int(VistarShowTcp) << 48;
    QTest::newRow("Ampra One") << int(AmpraOne) << 7;
    QTest::newRow("Pico Deck Gen 2/3") << int(PicoDeckGen23) << 10;
    QTest::newRow("Sonet A (Serial)") << int(SonetASerial) << 35;
    QTest::newRow("Sonet A Lite (TCP/IP)") << int(SonetALiteTcp) << 44;
    QTest::newRow("Vistar Home - HV4xx (Serial)") << int(VistarHomeSerial) << 48;
    QTest::newRow("Vistar Home - HV4xx (TCP/IP)") << int(VistarHomeTcp) << 48;
    QTest::newRow("HV1xx (Serial) (legacy)") << int(Hv1xxSerial) << 18;
    QTest::newRow("HV1xx (TCP/IP) (legacy)") << int(Hv1xxTcp) << 18;
    QTest::newRow("Pico Deck (legacy)") << int(PicoDeckLegacy) << 6;
    QTest::newRow("Card Deck HD (legacy)") << int(CardDeckHd) << 8;
    QTest::newRow("HV0xx (legacy)") << int(Hv0xx) << 7;
    QTest::newRow("Lumo Bridge") << int(LumoBridge) << 25;
}

void tst_Catalogue::entryCounts()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QCOMPARE(model(row).name, QLatin1String(QTest::currentDataTag()));
    QCOMPARE(model(row).commands.size(), count);
}

void tst_Catalogue::malformedCommandLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");

    QTest::newRow("too few columns")
        << "Play | 4 | 2 | 01"_ba << u"list.txt:4: 4 columns instead of 5"_s;
    QTest::newRow("too many columns")
        << "Play | 4 | 2 | 01 | 01 | 01"_ba << u"list.txt:4: 6 columns instead of 5"_s;
    QTest::newRow("no columns") << "Play"_ba << u"list.txt:4: 1 columns instead of 5"_s;
    QTest::newRow("no label") << " | 4 | 2 | 01 | 01"_ba << u"list.txt:4: column 1 is empty"_s;
    QTest::newRow("no id") << "Play | | 2 | 01 | 01"_ba << u"list.txt:4: column 2 is empty"_s;
    QTest::newRow("id in words") << "Play | play | 2 | 01 | 01"_ba
                                 << u"list.txt:4: \"play\" is no number from 1 to 99"_s;
    QTest::newRow("id 0") << "Play | 0 | 2 | 01 | 01"_ba
                          << u"list.txt:4: \"0\" is no number from 1 to 99"_s;
    QTest::newRow("code over a byte")
        << "Play | 4 | 256 | 01 | 01"_ba << u"list.txt:4: \"256\" is no number from 0 to 255"_s;
    QTest::newRow("code below a byte")
        << "Play | 4 | -1 | 01 | 01"_ba << u"list.txt:4: \"-1\" is no number from 0 to 255"_s;
    QTest::newRow("no data") << "Play | 4 | 2 | | 01"_ba << u"list.txt:4: column 4 is empty"_s;
    QTest::newRow("no dataMax") << "Play | 4 | 2 | 01 |"_ba << u"list.txt:4: column 5 is empty"_s;
    QTest::newRow("abbreviated dataMax")
        << "Play | 4 | 2 | 01 | same"_ba << u"list.txt:4: \"same\" is no list of bytes"_s;
    QTest::newRow("lower-case digits")
        << "Play | 4 | 2 | 0a | 0A"_ba << u"list.txt:4: \"0a\" is no list of bytes"_s;
    QTest::newRow("one digit") << "Play | 4 | 2 | 01 | 1"_ba
                               << u"list.txt:4: \"1\" is no list of bytes"_s;
    QTest::newRow("no blank between bytes")
        << "Play | 4 | 2 | FFFF | FF FF"_ba << u"list.txt:4: \"FFFF\" is no list of bytes"_s;
    QTest::newRow("two blanks between bytes")
        << "Play | 4 | 2 | FF  FF | FF FF"_ba << u"list.txt:4: \"FF  FF\" is no list of bytes"_s;
    QTest::newRow("quoted text") << "Play | 4 | 2 | FF 'A' | FF 41"_ba
                                 << u"list.txt:4: \"FF 'A'\" is no list of bytes"_s;
}

void tst_Catalogue::malformedCommandLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);
    const QByteArray before = "# label | id | code | data | dataMax\n\nStop | 5 | 2 | 02 | 02\n"_ba;

    QString actual;
    QCOMPARE(parseGoldenCommands(u"list.txt"_s, before + line + '\n', actual).size(), 0);
    QCOMPARE(actual, error);

    actual.clear();
    QCOMPARE(parseGoldenCommands(u"list.txt"_s, before, actual).size(), 1);
    QCOMPARE(actual, QString());
}

void tst_Catalogue::malformedModelLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");

    QTest::newRow("too few columns")
        << "0 | A | Classic | Serial | 0 | 127 | 8 | 9600 | 9600 | 0 | -"_ba
        << u"models.txt:2: 11 columns instead of 12"_s;
    QTest::newRow("wrong row")
        << "1 | A | Classic | Serial | 0 | 127 | 8 | 9600 | 9600 | 0 | - | a"_ba
        << u"models.txt:2: row 1 stands at place 0"_s;
    QTest::newRow("unknown protocol")
        << "0 | A | classic | Serial | 0 | 127 | 8 | 9600 | 9600 | 0 | - | a"_ba
        << u"models.txt:2: \"classic\" is none of Classic, Extended"_s;
    QTest::newRow("unknown transport")
        << "0 | A | Classic | TCP | 0 | 127 | 8 | 9600 | 9600 | 0 | - | a"_ba
        << u"models.txt:2: \"TCP\" is none of Serial, TcpIp"_s;
    QTest::newRow("player id over a byte")
        << "0 | A | Classic | Serial | 0 | 256 | 8 | 9600 | 9600 | 0 | - | a"_ba
        << u"models.txt:2: \"256\" is no number from 0 to 255"_s;
    QTest::newRow("comma between baud rates")
        << "0 | A | Classic | Serial | 0 | 127 | 8 | 9600, 19200 | 9600 | 0 | - | a"_ba
        << u"models.txt:2: \"9600,\" is no number from 1 to 2147483647"_s;
    QTest::newRow("no default baud rate")
        << "0 | A | Classic | Serial | 0 | 127 | 8 | 9600 | - | 0 | - | a"_ba
        << u"models.txt:2: \"-\" is no number from -1 to 2147483647"_s;
    QTest::newRow("port over 16 bits")
        << "0 | A | Classic | Serial | 0 | 127 | 8 | 9600 | 9600 | 65536 | - | a"_ba
        << u"models.txt:2: \"65536\" is no number from 0 to 65535"_s;
    QTest::newRow("no command list")
        << "0 | A | Classic | Serial | 0 | 127 | 8 | 9600 | 9600 | 0 | - |"_ba
        << u"models.txt:2: column 12 is empty"_s;
    QTest::newRow("no model") << "# nothing"_ba << u"models.txt:3: no row up to here"_s;
}

void tst_Catalogue::malformedModelLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);
    QString actual;
    QCOMPARE(parseGoldenModels(u"models.txt"_s, "# row | name\n" + line + '\n', actual).size(), 0);
    QCOMPARE(actual, error);
}

void tst_Catalogue::damagedGoldenFolder()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QDir original(goldenFolder());
    for (const QString &name : original.entryList(QDir::Files))
        QVERIFY(QFile::copy(original.filePath(name), folder.filePath(name)));

    QString error;
    QCOMPARE(loadGoldenModels(folder.path(), error).size(), m_golden.size());
    QCOMPARE(error, QString());

    QFile extra(folder.filePath(u"extra.txt"_s));
    QVERIFY(extra.open(QIODevice::WriteOnly));
    extra.close();
    QCOMPARE(loadGoldenModels(folder.path(), error).size(), 0);
    QCOMPARE(error, u"extra.txt: no model has these commands"_s);
    QVERIFY(extra.remove());

    QFile deck(folder.filePath(u"deck.txt"_s));
    QVERIFY(deck.open(QIODevice::ReadWrite));
    const qsizetype lines = deck.readAll().count('\n');
    QVERIFY(deck.write("Pause | 6 | 2 | 05\n") > 0);
    deck.close();
    error.clear();
    QCOMPARE(loadGoldenModels(folder.path(), error).size(), 0);
    QCOMPARE(error, u"deck.txt:%1: 4 columns instead of 5"_s.arg(lines + 1));

    QVERIFY(deck.remove());
    error.clear();
    QCOMPARE(loadGoldenModels(folder.path(), error).size(), 0);
    QVERIFY2(error.contains("deck.txt: "_L1), qPrintable(error));
}

void tst_Catalogue::defaultDeviceModel()
{
    const DeviceModel model;
    QCOMPARE(model.name, QString());
    QCOMPARE(model.protocol, ProtocolKind::Classic);
    QCOMPARE(model.transport, TransportKind::Serial);
    QCOMPARE(int(model.minPlayerId), 0);
    QCOMPARE(int(model.maxPlayerId), 0);
    QCOMPARE(int(model.folderBankCount), 1);
    QCOMPARE(model.baudRates, QList<qint32>());
    QCOMPARE(model.commands.size(), 0);
    QCOMPARE(model.defaultBaudRate, -1);
    QCOMPARE(int(model.tcpPort), 0);
    QCOMPARE(model.firmwareVersion, QString());
}

void tst_Catalogue::deviceModelArguments()
{
    const DeviceModel model(u"Name"_s, ProtocolKind::Extended, TransportKind::TcpIp, 1, 255, 3,
                            4000000, 65535, u"5.6"_s);
    QCOMPARE(model.name, u"Name"_s);
    QCOMPARE(model.protocol, ProtocolKind::Extended);
    QCOMPARE(model.transport, TransportKind::TcpIp);
    QCOMPARE(int(model.minPlayerId), 1);
    QCOMPARE(int(model.maxPlayerId), 255);
    QCOMPARE(int(model.folderBankCount), 3);
    QCOMPARE(model.baudRates, QList<qint32>());
    QCOMPARE(model.commands.size(), 0);
    QCOMPARE(model.defaultBaudRate, 4000000);
    QCOMPARE(int(model.tcpPort), 65535);
    QCOMPARE(model.firmwareVersion, u"5.6"_s);
}

void tst_Catalogue::defaultCommandEntry()
{
    const CommandEntry entry;
    QCOMPARE(entry.label, QString());
    QCOMPARE(entry.commandId, 99U);
    QCOMPARE(int(entry.code), 0);
    QCOMPARE(hex(entry.data), ""_ba);
    QCOMPARE(hex(entry.dataMax), ""_ba);
}

void tst_Catalogue::commandEntryCopiesItsBytes()
{
    char low[] = {0x01, 0x02, 0x03};
    char high[] = {0x0A, 0x00};
    const CommandEntry entry(u"Volume"_s, 9, 3, QByteArray::fromRawData(low, sizeof low),
                             QByteArray::fromRawData(high, sizeof high));
    const CommandEntry copy = entry;
    for (char &byte : low)
        byte = 0x55;
    for (char &byte : high)
        byte = 0x66;

    QCOMPARE(entry.label, u"Volume"_s);
    QCOMPARE(entry.commandId, 9U);
    QCOMPARE(int(entry.code), 3);
    QCOMPARE(hex(entry.data), "01 02 03"_ba);
    QCOMPARE(hex(entry.dataMax), "0A 00"_ba);
    QCOMPARE(hex(copy.data), "01 02 03"_ba);
    QCOMPARE(hex(copy.dataMax), "0A 00"_ba);
}

void tst_Catalogue::enumerationValues()
{
    static_assert(std::is_same_v<std::underlying_type_t<TransportKind>, quint8>);
    static_assert(std::is_same_v<std::underlying_type_t<ProtocolKind>, quint32>);
    QCOMPARE(int(TransportKind::Serial), 0);
    QCOMPARE(int(TransportKind::TcpIp), 1);
    QCOMPARE(int(ProtocolKind::Classic), 0);
    QCOMPARE(int(ProtocolKind::Extended), 1);
}

void tst_Catalogue::commandIdValues_data()
{
    QTest::addColumn<quint32>("actual");
    QTest::addColumn<quint32>("expected");

    const auto row = [](const char *name, quint32 actual, quint32 expected) {
        QTest::newRow(name) << actual << expected;
    };
    row("folder", CommandId::Folder, 1);
    row("previous folder", CommandId::PreviousFolder, 2);
    row("previous file", CommandId::PreviousFile, 3);
    row("play", CommandId::Play, 4);
    row("stop", CommandId::Stop, 5);
    row("pause", CommandId::Pause, 6);
    row("next file", CommandId::NextFile, 7);
    row("next folder", CommandId::NextFolder, 8);
    row("volume", CommandId::Volume, 9);
    row("request", CommandId::Request, 10);
    row("change id", CommandId::ChangeId, 11);
    row("standby/wake-up", CommandId::StandbyWakeup, 12);
    row("volume up", CommandId::VolumeUp, 13);
    row("volume down", CommandId::VolumeDown, 14);
    row("standby", CommandId::Standby, 15);
    row("wake-up", CommandId::Wakeup, 16);
    row("pause only", CommandId::PauseOnly, 17);
    row("resume", CommandId::Resume, 18);
    row("mute toggle", CommandId::MuteToggle, 19);
    row("mute", CommandId::Mute, 20);
    row("unmute", CommandId::Unmute, 21);
    row("relay", CommandId::Relay, 22);
    row("source folder", CommandId::SourceFolder, 23);
    row("source spot reset", CommandId::SourceSpotReset, 24);
    row("source webradio", CommandId::SourceWebradio, 25);
    row("source alternate", CommandId::SourceAlternate, 26);
    row("set time", CommandId::SetTime, 27);
    row("set date", CommandId::SetDate, 28);
    row("set date and time", CommandId::SetDateTime, 29);
    row("set UTC, epoch", CommandId::SetUtcEpoch, 30);
    row("set UTC, full", CommandId::SetUtcFull, 31);
    row("NTP", CommandId::Ntp, 32);
    row("subtitles off", CommandId::SubtitlesOff, 33);
    row("subtitles on", CommandId::SubtitlesOn, 34);
    row("previous subtitles", CommandId::SubtitlesPrevious, 35);
    row("next subtitles", CommandId::SubtitlesNext, 36);
    row("previous subtitles, loop", CommandId::SubtitlesPreviousLoop, 37);
    row("next subtitles, loop", CommandId::SubtitlesNextLoop, 38);
    row("subtitles by language", CommandId::SubtitlesByLanguage, 39);
    row("subtitles by index", CommandId::SubtitlesByIndex, 40);
    row("HDMI-CEC standby", CommandId::HdmiCecStandby, 41);
    row("HDMI-CEC wake-up", CommandId::HdmiCecWakeup, 42);
    row("HDMI-CEC toggle", CommandId::HdmiCecToggle, 43);
    row("projector power", CommandId::ProjectorPower, 44);
    row("reserved", CommandId::Reserved45, 45);
    row("other", CommandId::Other, 99);
}

void tst_Catalogue::commandIdValues()
{
    QFETCH(quint32, actual);
    QFETCH(quint32, expected);
    QCOMPARE(actual, expected);
}

void tst_Catalogue::modelOrder()
{
    QStringList names;
    for (const DeviceModel &model : m_catalogue)
        names.append(model.name);
    QCOMPARE(
        names,
        QStringList({u"Tempo Deck"_s, u"Show Deck (Gen 2)"_s, u"Vistar Show - SV500 (Serial)"_s,
                     u"Vistar Show - SV500 (TCP/IP)"_s, u"Ampra One"_s, u"Pico Deck Gen 2/3"_s,
                     u"Sonet A (Serial)"_s, u"Sonet A Lite (TCP/IP)"_s,
                     u"Vistar Home - HV4xx (Serial)"_s, u"Vistar Home - HV4xx (TCP/IP)"_s,
                     u"HV1xx (Serial) (legacy)"_s, u"HV1xx (TCP/IP) (legacy)"_s,
                     u"Pico Deck (legacy)"_s, u"Card Deck HD (legacy)"_s, u"HV0xx (legacy)"_s}));
}

void tst_Catalogue::modelsByName()
{
    const DeviceCatalogue catalogue = buildDeviceCatalogue();
    QCOMPARE(findModel(catalogue, u"Ampra One"_s), &catalogue.at(4));
    QCOMPARE(findModel(catalogue, u"hv0XX (LEGACY)"_s), &catalogue.at(14));
    QVERIFY(!findModel(catalogue, u"Ampra"_s));
    QVERIFY(!findModel(catalogue, u"Lumo Bridge"_s));
    const DeviceCatalogue empty;
    QVERIFY(!findModel(empty, u"Ampra One"_s));
    QCOMPARE(modelNames(catalogue).size(), 15);
    QCOMPARE(modelNames(catalogue).constFirst(), u"Tempo Deck"_s);
    QCOMPARE(modelNames(catalogue).constLast(), u"HV0xx (legacy)"_s);
}

void tst_Catalogue::lumoBridgeIsNotOffered()
{
    QCOMPARE(m_catalogue.size(), OfferedModels);
    for (const DeviceModel &model : m_catalogue)
        QVERIFY2(!model.name.contains("Lumo"_L1), qPrintable(model.name));
}

void tst_Catalogue::everyBuilderAppendsOneModel_data()
{
    QTest::addColumn<int>("builder");
    for (int i = 0; i < int(std::size(builders)); ++i)
        QTest::newRow(builders[i].modelName) << i;
}

void tst_Catalogue::everyBuilderAppendsOneModel()
{
    QFETCH(int, builder);
    DeviceModel before(u"Before"_s, ProtocolKind::Classic, TransportKind::Serial, 1, 2, 3, 4800, 5,
                       u"6"_s);
    before.baudRates = {4800};
    before.commands = {CommandEntry(u"Only"_s, 99, 7, "a"_ba, "b"_ba)};
    DeviceCatalogue catalogue{before};
    builders[builder].append(catalogue);

    QCOMPARE(catalogue.size(), 2);
    QCOMPARE(catalogue.first().name, u"Before"_s);
    QCOMPARE(catalogue.first().baudRates, QList<qint32>{4800});
    QCOMPARE(described(catalogue.first().commands), QStringList{u"Only / 99 / 7 / 61 / 62"_s});

    const DeviceModel &appended = catalogue.last();
    QCOMPARE(appended.name, QLatin1String(builders[builder].modelName));
    QCOMPARE(appended.baudRates, model(builder).baudRates);
    QCOMPARE(described(appended.commands), described(model(builder).commands));
}

void tst_Catalogue::tcpPorts_data()
{
    QTest::addColumn<int>("port");

    QTest::newRow("0") << 0;
    QTest::newRow("1") << 0;
    QTest::newRow("2") << 0;
    QTest::newRow("3") << 65079;
    QTest::newRow("4") << 0;
    QTest::newRow("5") << 0;
    QTest::newRow("6") << 0;
    QTest::newRow("7") << 1234;
    QTest::newRow("8") << 0;
    QTest::newRow("9") << 0xFE37;
    QTest::newRow("10") << 0;
    QTest::newRow("11") << 65079;
    QTest::newRow("12") << 0;
    QTest::newRow("13") << 0;
    QTest::newRow("14") << 0;
}

void tst_Catalogue::tcpPorts()
{
    QFETCH(int, port);
    const DeviceModel actual = m_catalogue.value(QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(int(actual.tcpPort), port);
    QCOMPARE(actual.transport, port == 0 ? TransportKind::Serial : TransportKind::TcpIp);
}

void tst_Catalogue::tcpModelsHaveNoBaudRatesAndOnePlayerId()
{
    QList<int> rows;
    for (int row = 0; row < m_catalogue.size(); ++row) {
        const DeviceModel &model = m_catalogue.at(row);
        if (model.transport != TransportKind::TcpIp)
            continue;
        rows.append(row);
        QCOMPARE(model.baudRates, QList<qint32>());
        QCOMPARE(model.defaultBaudRate, -1);
        QCOMPARE(int(model.minPlayerId), 0);
        QCOMPARE(int(model.maxPlayerId), 0);
    }
    QCOMPARE(rows, QList<int>({3, 7, 9, 11}));
}

void tst_Catalogue::defaultBaudRateIsOffered()
{
    for (int row = 0; row <= LumoBridge; ++row) {
        const DeviceModel actual = model(row);
        if (actual.transport == TransportKind::Serial)
            QVERIFY2(actual.baudRates.count(actual.defaultBaudRate) == 1, qPrintable(actual.name));
    }
}

void tst_Catalogue::connectsOnDemand()
{
    QList<int> rows;
    for (int row = 0; row <= LumoBridge; ++row) {
        if (model(row).connectsOnDemand())
            rows.append(row);
    }
    QCOMPARE(rows, QList<int>{SonetALiteTcp});
}

void tst_Catalogue::folderBanksOfThePairs_data()
{
    QTest::addColumn<int>("serialRow");
    QTest::addColumn<int>("tcpRow");
    QTest::addColumn<int>("serialBanks");
    QTest::addColumn<int>("tcpBanks");

    QTest::newRow("Vistar Show") << int(VistarShowSerial) << int(VistarShowTcp) << 8 << 8;
    QTest::newRow("Vistar Home") << int(VistarHomeSerial) << int(VistarHomeTcp) << 8 << 8;
    QTest::newRow("HV1xx") << int(Hv1xxSerial) << int(Hv1xxTcp) << 2 << 8;
}

void tst_Catalogue::folderBanksOfThePairs()
{
    QFETCH(int, serialRow);
    QFETCH(int, tcpRow);
    QFETCH(int, serialBanks);
    QFETCH(int, tcpBanks);
    QCOMPARE(int(model(serialRow).folderBankCount), serialBanks);
    QCOMPARE(int(model(tcpRow).folderBankCount), tcpBanks);
}

void tst_Catalogue::unknownIdVisitsNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<quint32>("commandId");

    QTest::newRow("Tempo Deck: pause") << int(TempoDeck) << 6U;
    QTest::newRow("Tempo Deck: 0") << int(TempoDeck) << 0U;
    QTest::newRow("Tempo Deck: above all ids") << int(TempoDeck) << 100U;
    QTest::newRow("Ampra One: play") << int(AmpraOne) << 4U;
    QTest::newRow("Sonet A (Serial): folder") << int(SonetASerial) << 1U;
    QTest::newRow("Sonet A (Serial): request") << int(SonetASerial) << 10U;
    QTest::newRow("Sonet A Lite (TCP/IP): other") << int(SonetALiteTcp) << 99U;
    QTest::newRow("Vistar Show (Serial): reserved") << int(VistarShowSerial) << 45U;
    QTest::newRow("Vistar Show (Serial): other") << int(VistarShowSerial) << 99U;
}

void tst_Catalogue::unknownIdVisitsNothing()
{
    QFETCH(int, row);
    QFETCH(quint32, commandId);
    QVERIFY(!model(row).commands.isEmpty());
    QCOMPARE(labelsOf(model(row), commandId), QStringList());

    quint8 code = 0xEE;
    QByteArray body;
    QVERIFY(!appendCommand(model(row), commandId, code, body));
    QCOMPARE(int(code), 0xEE);
    QCOMPARE(hex(body), ""_ba);
}

void tst_Catalogue::labelsOfEachId_data()
{
    QTest::addColumn<quint32>("commandId");
    QTest::addColumn<QSet<QString>>("labels");

    const auto row = [](quint32 commandId, const QSet<QString> &labels) {
        QTest::addRow("%u", commandId) << commandId << labels;
    };
    row(0, {});
    row(1, {u"Folder"_s});
    row(2, {u"Previous Folder"_s});
    row(3, {u"Previous File"_s});
    row(4, {u"Play"_s});
    row(5, {u"Stop"_s});
    row(6, {u"Play/Pause"_s, u"Pause"_s});
    row(7, {u"Next File"_s});
    row(8, {u"Next Folder"_s});
    row(9, {u"Volume"_s, u"Volume 1"_s});
    row(11, {u"Change ID"_s});
    row(12, {u"Standby/Wakeup"_s});
    row(13, {u"Volume +"_s});
    row(14, {u"Volume -"_s});
    row(15, {u"Standby"_s});
    row(16, {u"Wakeup"_s});
    row(17, {u"Pause"_s});
    row(18, {u"Resume"_s});
    row(19, {u"Mute/Demute"_s});
    row(20, {u"Mute"_s});
    row(21, {u"Unmute"_s});
    row(22, {u"Relay"_s});
    row(24, {u"SPOT folder (Random + Reset)"_s, u"SPOT folder (Sequential + Reset)"_s});
    row(25, {u"Webradio"_s});
    row(27, {u"Set time"_s});
    row(28, {u"Set date"_s});
    row(29, {u"Set date/time"_s});
    row(30, {u"Set UTC/GMT date/time (epoch version)"_s});
    row(31, {u"Set UTC/GMT date/time (full version)"_s});
    row(32, {u"NTP on"_s, u"NTP off"_s});
    row(33, {u"Disable subtitles"_s});
    row(34, {u"Enable auto subtitles"_s});
    row(35, {u"Previous subtitles (without loop)"_s});
    row(36, {u"Next subtitles (without loop)"_s});
    row(37, {u"Previous subtitles (with loop)"_s});
    row(38, {u"Next subtitles (with loop)"_s});
    row(39, {u"ISO639"_s});
    row(40, {u"Index"_s});
    row(41, {u"HDMI-CEC Standby"_s});
    row(42, {u"HDMI-CEC Wakeup"_s});
    row(43, {u"HDMI-CEC Standby/Wakeup"_s});
    row(44, {u"PJLink Video Projector Power On"_s, u"PJLink Video Projector Power Off"_s});
    row(45, {});
}

void tst_Catalogue::labelsOfEachId()
{
    QFETCH(quint32, commandId);
    QFETCH(QSet<QString>, labels);

    QSet<QString> actual;
    for (int row = 0; row <= LumoBridge; ++row) {
        for (const QString &label : labelsOf(model(row), commandId))
            actual.insert(label);
    }
    QStringList actualSorted = actual.values();
    QStringList expectedSorted = labels.values();
    actualSorted.sort();
    expectedSorted.sort();
    QCOMPARE(actualSorted, expectedSorted);
}

void tst_Catalogue::onlyListIdsRepeat()
{
    QSet<quint32> repeated;
    for (int row = 0; row <= LumoBridge; ++row) {
        QSet<quint32> seen;
        for (const CommandEntry &entry : model(row).commands) {
            if (seen.contains(entry.commandId))
                repeated.insert(entry.commandId);
            seen.insert(entry.commandId);
        }
    }
    QList<quint32> sorted = repeated.values();
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(sorted, QList<quint32>({10, 23, 24, 26, 32, 44, 99}));
}

void tst_Catalogue::onlyRangesHaveAnotherMaximum()
{
    const QSet<quint32> ranged{1, 9, 11, 22, 23, 24, 25, 40};
    QStringList others;
    for (int row = 0; row <= LumoBridge; ++row) {
        for (const CommandEntry &entry : model(row).commands) {
            const bool isRange = entry.data != entry.dataMax;
            if (isRange != ranged.contains(entry.commandId))
                others.append(model(row).name + ": "_L1 + entry.label);
        }
    }
    QCOMPARE(others, QStringList({u"Sonet A Lite (TCP/IP): Previous File"_s,
                                  u"Sonet A Lite (TCP/IP): Webradio 10 name"_s}));
}

void tst_Catalogue::volumeRanges_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    QTest::newRow("Tempo Deck") << int(TempoDeck) << 0 << 64;
    QTest::newRow("Show Deck (Gen 2)") << int(ShowDeckGen2) << 0 << 64;
    QTest::newRow("Vistar Show - SV500 (Serial)") << int(VistarShowSerial) << 0 << 100;
    QTest::newRow("Vistar Show - SV500 (TCP/IP)") << int(VistarShowTcp) << 0 << 100;
    QTest::newRow("Ampra One") << int(AmpraOne) << 0 << 56;
    QTest::newRow("Pico Deck Gen 2/3") << int(PicoDeckGen23) << 0 << 64;
    QTest::newRow("Sonet A (Serial)") << int(SonetASerial) << 0 << 64;
    QTest::newRow("Sonet A Lite (TCP/IP)") << int(SonetALiteTcp) << 0 << 64;
    QTest::newRow("Vistar Home - HV4xx (Serial)") << int(VistarHomeSerial) << 0 << 100;
    QTest::newRow("Vistar Home - HV4xx (TCP/IP)") << int(VistarHomeTcp) << 0 << 100;
    QTest::newRow("HV1xx (Serial) (legacy)") << int(Hv1xxSerial) << 0 << 31;
    QTest::newRow("HV1xx (TCP/IP) (legacy)") << int(Hv1xxTcp) << 0 << 31;
    QTest::newRow("Pico Deck (legacy)") << int(PicoDeckLegacy) << 0 << 31;
    QTest::newRow("Card Deck HD (legacy)") << int(CardDeckHd) << 0 << 31;
    QTest::newRow("HV0xx (legacy)") << int(Hv0xx) << 0 << 13;
}

void tst_Catalogue::volumeRanges()
{
    QFETCH(int, row);
    QFETCH(int, lowest);
    QFETCH(int, highest);
    const QList<CommandEntry> volumes = entriesOf(model(row), 9);
    QCOMPARE(volumes.size(), 1);

    const bool extended = row == SonetASerial || row == SonetALiteTcp;
    const NumberRange range = extended ? wordRange(volumes.first()) : byteRange(volumes.first());
    QCOMPARE(range.first, lowest);
    QCOMPARE(range.last, highest);
}

void tst_Catalogue::changeIdModels()
{
    QStringList names;
    for (int row = 0; row <= LumoBridge; ++row) {
        const QList<CommandEntry> commands = entriesOf(model(row), 11);
        if (commands.isEmpty())
            continue;
        names.append(model(row).name);
        QCOMPARE(described(commands), QStringList{u"Change ID / 11 / 127 / 01 / 7F"_s});
    }
    QCOMPARE(names, QStringList({u"Ampra One"_s, u"HV1xx (Serial) (legacy)"_s,
                                 u"HV1xx (TCP/IP) (legacy)"_s, u"Card Deck HD (legacy)"_s,
                                 u"HV0xx (legacy)"_s, u"Lumo Bridge"_s}));

    for (const int row : {SonetASerial, SonetALiteTcp}) {
        QCOMPARE(int(model(row).minPlayerId), 0);
        QCOMPARE(int(model(row).maxPlayerId), 0);
    }
}

void tst_Catalogue::folderNumbers_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("last");

    QTest::newRow("Tempo Deck") << int(TempoDeck) << 1000 << u"999"_s;
    QTest::newRow("Vistar Show - SV500 (TCP/IP)") << int(VistarShowTcp) << 1000 << u"999"_s;
    QTest::newRow("HV1xx (Serial) (legacy)") << int(Hv1xxSerial) << 256 << u"255"_s;
    QTest::newRow("HV1xx (TCP/IP) (legacy)") << int(Hv1xxTcp) << 1000 << u"999"_s;
    QTest::newRow("Card Deck HD (legacy)") << int(CardDeckHd) << 128 << u"127"_s;
    QTest::newRow("HV0xx (legacy)") << int(Hv0xx) << 128 << u"127"_s;
}

void tst_Catalogue::folderNumbers()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, last);
    const QList<CommandEntry> folders = entriesOf(model(row), 1);
    QCOMPARE(folders.size(), 1);

    const QStringList texts = folderTexts(folders.first(), model(row).folderBankCount);
    QCOMPARE(texts.size(), count);
    QCOMPARE(texts.constFirst(), u"000"_s);
    QCOMPARE(texts.constLast(), last);
}

void tst_Catalogue::deckListsAreEqual()
{
    QCOMPARE(model(TempoDeck).commands.size(), 10);
    QCOMPARE(described(model(ShowDeckGen2).commands), described(model(TempoDeck).commands));
    QCOMPARE(described(model(PicoDeckGen23).commands), described(model(TempoDeck).commands));
    QCOMPARE(model(PicoDeckLegacy).commands.size(), 6);
    QCOMPARE(model(CardDeckHd).commands.size(), 8);
}

void tst_Catalogue::deckActionBytes()
{
    QByteArrayList actions;
    QStringList labels;
    for (const CommandEntry &entry : model(TempoDeck).commands) {
        labels.append(entry.label);
        if (entry.code == 2)
            actions.append(hex(entry.data));
    }
    QCOMPARE(actions.join(", "), "01, 02, 03, 04, 06, 07, 09, 0A"_ba);
    QCOMPARE(labels.indexOf("Volume"_L1), labels.indexOf("Previous File"_L1) + 1);
    QCOMPARE(labels.indexOf("Volume"_L1), labels.indexOf("Next Folder"_L1) - 1);
}

void tst_Catalogue::picoDeckLegacyBeginsLikeTheDeck()
{
    const QList<CommandEntry> commands = model(PicoDeckLegacy).commands;
    QCOMPARE(described(commands.mid(0, 5)), described(model(TempoDeck).commands.mid(0, 5)));
    QCOMPARE(described(commands.mid(5)), QStringList{u"Volume / 9 / 3 / 00 / 1F"_s});
}

void tst_Catalogue::sonetModelsHaveNoFolderCommand()
{
    QCOMPARE(model(SonetASerial).commands.size(), 35);
    QCOMPARE(model(SonetALiteTcp).commands.size(), 44);
    QCOMPARE(labelsOf(model(SonetASerial), 1), QStringList());
    QCOMPARE(labelsOf(model(SonetALiteTcp), 1), QStringList());

    QCOMPARE(entriesOf(model(SonetASerial), 23).size(), 10);
    QCOMPARE(entriesOf(model(SonetASerial), 24).size(), 2);
    QCOMPARE(entriesOf(model(SonetASerial), 25).size(), 1);
    QCOMPARE(entriesOf(model(SonetASerial), 26).size(), 5);
    QCOMPARE(entriesOf(model(SonetALiteTcp), 23).size(), 10);
    QCOMPARE(entriesOf(model(SonetALiteTcp), 24).size(), 0);
    QCOMPARE(entriesOf(model(SonetALiteTcp), 25).size(), 1);
    QCOMPARE(entriesOf(model(SonetALiteTcp), 26).size(), 5);
}

void tst_Catalogue::sonetASerialHasThreeBytesEverywhere()
{
    for (const CommandEntry &entry : model(SonetASerial).commands) {
        QVERIFY2(entry.data.size() == 3, qPrintable(entry.label));
        QVERIFY2(entry.dataMax.size() == 3, qPrintable(entry.label));
    }
}

void tst_Catalogue::sonetASerialSpotFolders()
{
    QList<CommandEntry> spots;
    for (const CommandEntry &entry : model(SonetASerial).commands) {
        if (entry.label.startsWith("SPOT"_L1))
            spots.append(entry);
    }
    QCOMPARE(described(spots),
             QStringList({u"SPOT folder (Random) / 23 / 16 / 00 01 FF / 03 E7 FF"_s,
                          u"SPOT folder (Sequential) / 23 / 17 / 00 01 FF / 03 E7 FF"_s,
                          u"SPOT folder (Random + Reset) / 24 / 18 / 00 01 01 / 03 E7 FF"_s,
                          u"SPOT folder (Sequential + Reset) / 24 / 20 / 00 01 01 / 03 E7 FF"_s}));
}

void tst_Catalogue::sonetASerialMuteAndUnmute()
{
    QCOMPARE(described(entriesOf(model(SonetASerial), 20)),
             QStringList{u"Mute / 20 / 51 / 00 01 00 / 00 01 00"_s});
    QCOMPARE(described(entriesOf(model(SonetASerial), 21)),
             QStringList{u"Unmute / 21 / 51 / 00 00 00 / 00 00 00"_s});
}

void tst_Catalogue::sonetASerialEndsWithVolume()
{
    QCOMPARE(described(model(SonetASerial).commands.mid(34)),
             QStringList{u"Volume / 9 / 48 / 00 00 00 / 00 40 00"_s});
}

void tst_Catalogue::sonetALiteVolumeIsTheFifth()
{
    QList<int> places;
    const QList<CommandEntry> commands = model(SonetALiteTcp).commands;
    for (int i = 0; i < commands.size(); ++i) {
        if (commands.at(i).code == 3)
            places.append(i + 1);
    }
    QCOMPARE(places, QList<int>{5});
    QCOMPARE(described(commands.mid(4, 1)), QStringList{u"Volume / 9 / 3 / 00 00 00 / 00 40 00"_s});
}

void tst_Catalogue::sonetALiteLacks_data()
{
    QTest::addColumn<quint32>("commandId");
    QTest::newRow("SPOT reset") << 24U;
    QTest::newRow("mute") << 20U;
    QTest::newRow("unmute") << 21U;
    QTest::newRow("FTP presets and other commands") << 99U;
}

void tst_Catalogue::sonetALiteLacks()
{
    QFETCH(quint32, commandId);
    QCOMPARE(labelsOf(model(SonetALiteTcp), commandId), QStringList());
    QVERIFY(!labelsOf(model(SonetASerial), commandId).isEmpty());
}

void tst_Catalogue::sonetALiteUnequalMaximums()
{
    const QList<CommandEntry> commands = model(SonetALiteTcp).commands;
    QCOMPARE(described(commands.mid(3, 1)),
             QStringList{u"Previous File / 3 / 4 / FF FF 33 36 / FF FF 36"_s});
    QCOMPARE(described(commands.mid(43)),
             QStringList{u"Webradio 10 name / 10 / 2 / FF FF 57 52 61 64 69 6F 31 30 4E 61 6D 65 / "
                         "FF FF 57 52 61 64 69 6F 31 03 4E 61 6D 65"_s});
    for (const CommandEntry &entry : commands)
        QVERIFY2(entry.data.size() >= 3 && entry.dataMax.size() >= 3, qPrintable(entry.label));
}

void tst_Catalogue::sonetALiteVolumeOccursTwice()
{
    QList<quint32> ids;
    for (const CommandEntry &entry : model(SonetALiteTcp).commands) {
        if (entry.label == "Volume"_L1)
            ids.append(entry.commandId);
    }
    QCOMPARE(ids, QList<quint32>({9, 10}));
}

void tst_Catalogue::sonetALiteCarriesTheSerialCodeAsText()
{
    int compared = 0;
    for (const CommandEntry &entry : model(SonetALiteTcp).commands) {
        if (entry.code != 4)
            continue;
        for (const CommandEntry &serial : model(SonetASerial).commands) {
            if (serial.label == entry.label) {
                QCOMPARE(entry.data.mid(2), QByteArray::number(serial.code));
                ++compared;
            }
        }
    }
    QCOMPARE(compared, 20);
}

void tst_Catalogue::sonetALiteRequests()
{
    QStringList actual;
    for (const CommandEntry &entry : entriesOf(model(SonetALiteTcp), 10)) {
        QCOMPARE(int(entry.code), 2);
        QCOMPARE(hex(entry.data.left(2)), "FF FF"_ba);
        actual.append(entry.label + u'=' + QString::fromLatin1(entry.data.mid(2)));
    }
    QCOMPARE(actual,
             QStringList({u"Player status=PlayerStatus"_s,   u"Source=Source"_s,
                          u"Folder type=FolderType"_s,       u"Folder ID=FolderID"_s,
                          u"Folder mode=FolderMode"_s,       u"Playlist ID=PlaylistID"_s,
                          u"Playlist mode=PlaylistMode"_s,   u"Spot ID=SpotID"_s,
                          u"Spot mode=SpotMode"_s,           u"Playing file=PlayingFile"_s,
                          u"Remaining time=RemainingTime"_s, u"Volume=VolumeLocalMusic"_s,
                          u"Webradio ID=WebRadioID"_s,       u"Webradio 1 name=WRadio1Name"_s,
                          u"Webradio 2 name=WRadio2Name"_s,  u"Webradio 3 name=WRadio3Name"_s,
                          u"Webradio 4 name=WRadio4Name"_s,  u"Webradio 5 name=WRadio5Name"_s,
                          u"Webradio 6 name=WRadio6Name"_s,  u"Webradio 7 name=WRadio7Name"_s,
                          u"Webradio 8 name=WRadio8Name"_s,  u"Webradio 9 name=WRadio9Name"_s,
                          u"Webradio 10 name=WRadio10Name"_s}));
    QCOMPARE(labelsOf(model(SonetASerial), 10), QStringList());
}

void tst_Catalogue::videoListsAreEqual()
{
    const QStringList shared = described(model(VistarShowSerial).commands);
    QCOMPARE(shared.size(), 48);
    QCOMPARE(described(model(VistarShowTcp).commands), shared);
    QCOMPARE(described(model(VistarHomeSerial).commands), shared);
    QCOMPARE(described(model(VistarHomeTcp).commands), shared);

    const QStringList legacy = described(model(Hv1xxSerial).commands);
    QCOMPARE(legacy.size(), 18);
    QCOMPARE(described(model(Hv1xxTcp).commands), legacy);
    QCOMPARE(model(Hv0xx).commands.size(), 7);
}

void tst_Catalogue::sharedListRequests()
{
    const QList<CommandEntry> requests = entriesOf(model(VistarShowSerial), 10);
    QCOMPARE(requests.size(), 9);
    QCOMPARE(described(requests.last(1)),
             QStringList{u"Get the list of subtitles / 10 / 4 / 41 / 41"_s});

    QByteArrayList values;
    for (const CommandEntry &request : requests)
        values.append(hex(request.data));
    QCOMPARE(values.join(", "), "01, 02, 03, 04, 06, 09, 0A, 0B, 41"_ba);
}

void tst_Catalogue::sharedListActionBytes()
{
    QByteArrayList actions;
    QByteArrayList subtitleActions;
    for (const CommandEntry &entry : model(VistarShowSerial).commands) {
        if (entry.code == 2)
            actions.append(hex(entry.data));
        if (entry.code == 13)
            subtitleActions.append(hex(entry.data));
    }
    std::sort(actions.begin(), actions.end());
    QCOMPARE(actions.join(", "), "01, 02, 03, 04, 05, 06, 07, 08, 09, 0A, 0C, 0D, 0E, 0F, 10, 11, "
                                 "12, 13, 14, 15, 16, 17"_ba);
    QCOMPARE(subtitleActions.join(", "), "01, 00, 02, 03, 04, 05"_ba);
}

void tst_Catalogue::sharedListPairs()
{
    const DeviceModel video = model(VistarShowSerial);
    QCOMPARE(labelsOf(video, 44), QStringList({u"PJLink Video Projector Power On"_s,
                                               u"PJLink Video Projector Power Off"_s}));
    QCOMPARE(labelsOf(video, 32), QStringList({u"NTP on"_s, u"NTP off"_s}));
}

void tst_Catalogue::sharedListPauses()
{
    const DeviceModel video = model(VistarShowSerial);
    QCOMPARE(described(entriesOf(video, 6)), QStringList{u"Play/Pause / 6 / 2 / 05 / 05"_s});
    QCOMPARE(described(entriesOf(video, 17)), QStringList{u"Pause / 17 / 2 / 0E / 0E"_s});
}

void tst_Catalogue::hv1xxTcpHasChangeId()
{
    QCOMPARE(int(model(Hv1xxTcp).maxPlayerId), 0);
    QCOMPARE(described(model(Hv1xxTcp).commands.mid(17)),
             QStringList{u"Change ID / 11 / 127 / 01 / 7F"_s});
}

void tst_Catalogue::sharedListGoesToTheLastModel_data()
{
    QTest::addColumn<DeviceCatalogue>("catalogue");

    DeviceCatalogue lastIsAmplifier;
    appendTempoDeck(lastIsAmplifier);
    appendAmpraOne(lastIsAmplifier);
    DeviceCatalogue lastIsVideo;
    appendAmpraOne(lastIsVideo);
    appendVistarHomeTcp(lastIsVideo);

    QTest::newRow("only model, bare") << DeviceCatalogue{DeviceModel()};
    QTest::newRow("amplifier") << lastIsAmplifier;
    QTest::newRow("video model that has the list") << lastIsVideo;
}

void tst_Catalogue::sharedListGoesToTheLastModel()
{
    QFETCH(DeviceCatalogue, catalogue);
    const DeviceCatalogue before = catalogue;
    appendSharedVideoCommands(catalogue);

    QCOMPARE(catalogue.size(), before.size());
    for (qsizetype i = 0; i + 1 < before.size(); ++i)
        QCOMPARE(described(catalogue.at(i).commands), described(before.at(i).commands));

    const QStringList commands = described(catalogue.last().commands);
    const QStringList own = described(before.last().commands);
    QCOMPARE(commands.mid(0, own.size()), own);

    QStringList shared;
    for (const GoldenCommand &golden : m_golden.at(VistarShowSerial).commands) {
        shared.append(u"%1 / %2 / %3 / %4 / %5"_s.arg(golden.label)
                          .arg(golden.commandId)
                          .arg(golden.code)
                          .arg(QLatin1String(golden.data), QLatin1String(golden.dataMax)));
    }
    QCOMPARE(commands.mid(own.size()), shared);
}

void tst_Catalogue::ampraOneOtherCommands()
{
    QCOMPARE(m_catalogue.value(4).name, u"Ampra One"_s);
    QCOMPARE(m_catalogue.value(4).commands.size(), 7);
    QCOMPARE(
        labelsOf(m_catalogue.value(4), 99),
        QStringList({u"Triggering of the secondary volume (Volume 2)"_s, u"Set baudrate = 4800"_s,
                     u"Set baudrate = 9600"_s, u"Set baudrate = 19200"_s}));
}

void tst_Catalogue::ampraOneHasNoPlayback()
{
    for (quint32 commandId = 1; commandId <= 8; ++commandId)
        QCOMPARE(labelsOf(model(AmpraOne), commandId), QStringList());
}

void tst_Catalogue::baudRateCommandsFollowTheBaudRates_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("Ampra One") << int(AmpraOne);
    QTest::newRow("Lumo Bridge") << int(LumoBridge);
}

void tst_Catalogue::baudRateCommandsFollowTheBaudRates()
{
    QFETCH(int, row);
    QList<CommandEntry> settings;
    for (const CommandEntry &entry : model(row).commands) {
        if (entry.label.startsWith("Set baudrate"_L1))
            settings.append(entry);
    }
    QCOMPARE(described(settings), QStringList({u"Set baudrate = 4800 / 99 / 8 / 30 / 30"_s,
                                               u"Set baudrate = 9600 / 99 / 8 / 31 / 31"_s,
                                               u"Set baudrate = 19200 / 99 / 8 / 32 / 32"_s}));
    QCOMPARE(model(row).baudRates, QList<qint32>({4800, 9600, 19200}));
}

void tst_Catalogue::lumoBridgeDefinition()
{
    QCOMPARE(m_unlisted.size(), 1);
    QCOMPARE(model(LumoBridge).commands.size(), 25);
    QCOMPARE(entriesOf(model(LumoBridge), 99).size(), 22);
    QCOMPARE(described(entriesOf(model(LumoBridge), 22)),
             QStringList{u"Relay / 22 / 25 / 00 00 / 0F 0F"_s});
}

TESSALY_TEST(tst_Catalogue)

#include "tst_catalogue.moc"
