// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/frameencoder.h"
#include "protocol/labelledcommands.h"
#include "tests/support/hexbytes.h"
#include "tests/support/testregistry.h"

#include <QTimeZone>

using namespace Qt::Literals::StringLiterals;

namespace {

// Stands in `code` until a command writes its own.
constexpr quint8 untouched = 0xEE;

QByteArray bytes(const char *text)
{
    return QByteArray::fromHex(text);
}

CommandEntry entry(const QString &label, quint32 id, quint8 code, const char *data,
                   const char *dataMax)
{
    return CommandEntry(label, id, code, bytes(data), bytes(dataMax));
}

CommandEntry entry(const QString &label, quint32 id, quint8 code, const char *data)
{
    return entry(label, id, code, data, data);
}

DeviceModel model(ProtocolKind protocol, TransportKind transport,
                  const QList<CommandEntry> &commands)
{
    DeviceModel result;
    result.protocol = protocol;
    result.transport = transport;
    result.commands = commands;
    return result;
}

const ProtocolKind protocols[] = {ProtocolKind::Classic, ProtocolKind::Extended};
const TransportKind transports[] = {TransportKind::Serial, TransportKind::TcpIp};

/// 2026-03-07 09:05:30 UTC, which is its local time as well, as main() sets the zone.
QDateTime moment()
{
    return QDateTime(QDate(2026, 3, 7), QTime(9, 5, 30), QTimeZone::utc());
}

} // namespace

Q_DECLARE_METATYPE(PlaybackChoice)
Q_DECLARE_METATYPE(ProtocolKind)
Q_DECLARE_METATYPE(TransportKind)
Q_DECLARE_METATYPE(CommandEntry)

class tst_LabelledCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void request_data();
    void request();
    void requestNeedsItsId();
    void requestDuplicates();

    void otherCommandOfAnyId_data();
    void otherCommandOfAnyId();
    void clockReplacesStoredData_data();
    void clockReplacesStoredData();
    void otherCommandDuplicates();

    void serialLaunch_data();
    void serialLaunch();
    void networkLaunch_data();
    void networkLaunch();
    void launchDuplicates();

    void labelMatchesExactly_data();
    void labelMatchesExactly();
    void bodyIsAppendedTo();

    void firstByteSum_data();
    void firstByteSum();
    void languageCode_data();
    void languageCode();
};

void tst_LabelledCommands::initTestCase()
{
    // The clock commands are told apart by what they carry, not by the zone that the test runs in.
    qputenv("TZ", "UTC0");
    QCOMPARE(moment().toLocalTime().time(), QTime(9, 5, 30));
}

void tst_LabelledCommands::request_data()
{
    QTest::addColumn<ProtocolKind>("protocol");
    QTest::addColumn<TransportKind>("transport");
    QTest::addColumn<CommandEntry>("command");
    QTest::addColumn<QByteArray>("body");

    const auto classic = ProtocolKind::Classic;
    const auto extended = ProtocolKind::Extended;
    const auto serial = TransportKind::Serial;
    const auto tcp = TransportKind::TcpIp;
    const auto ask = [](quint8 code, const char *data, const char *dataMax) {
        return entry(u"Ask"_s, 10, code, data, dataMax);
    };

    QTest::newRow("classic, serial") << classic << serial << ask(4, "41", "41") << "41"_ba;
    QTest::newRow("classic, TCP") << classic << tcp << ask(4, "FF FF 41", "FF FF 41")
                                  << "FF FF 41"_ba;
    QTest::newRow("extended, serial")
        << extended << serial << ask(2, "FF FF 41", "FF FF 41") << "FF FF 41"_ba;
    QTest::newRow("dataMax plays no part in plain data")
        << extended << serial << ask(2, "FF FF 41", "") << "FF FF 41"_ba;
    QTest::newRow("empty data") << classic << serial << ask(4, "", "") << ""_ba;

    QTest::newRow("text: get, name, zero")
        << extended << tcp << ask(2, "FF FF 41 42", "FF FF 41 42")
        << "00 00 00 67 65 74 00 41 42 00"_ba;
    QTest::newRow("text: the two bytes before the name are skipped")
        << extended << tcp << ask(2, "67 65 41 42 43", "67 65 41 42 43")
        << "00 00 00 67 65 74 00 41 42 43 00"_ba;
    // The text form of a fixed command wants code 4; that of a request wants none.
    for (const int code : {0, 2, 3, 4, 255}) {
        QTest::addRow("text: code %d", code)
            << extended << tcp << ask(static_cast<quint8>(code), "FF FF 41", "FF FF 41")
            << "00 00 00 67 65 74 00 41 00"_ba;
    }
    QTest::newRow("text: dataMax of other bytes")
        << extended << tcp << ask(2, "FF FF 30 31", "FF FF 03 31")
        << "00 00 00 67 65 74 00 30 31 00"_ba;
    QTest::newRow("text: dataMax shorter than data, but three bytes")
        << extended << tcp << ask(2, "FF FF 33 36", "FF FF 36")
        << "00 00 00 67 65 74 00 33 36 00"_ba;
    QTest::newRow("text: data of two bytes")
        << extended << tcp << ask(2, "FF FF", "FF FF 41") << ""_ba;
    QTest::newRow("text: dataMax of two bytes")
        << extended << tcp << ask(2, "FF FF 41", "FF FF") << ""_ba;
    QTest::newRow("text: nothing at all") << extended << tcp << ask(2, "", "") << ""_ba;
}

void tst_LabelledCommands::request()
{
    QFETCH(ProtocolKind, protocol);
    QFETCH(TransportKind, transport);
    QFETCH(CommandEntry, command);
    QFETCH(QByteArray, body);

    quint8 code = untouched;
    QByteArray built;
    appendRequest(model(protocol, transport, {command}), u"Ask"_s, code, built);
    QCOMPARE(hexBytes(built), body);
    QCOMPARE(code, command.code);
}

void tst_LabelledCommands::requestNeedsItsId()
{
    for (const ProtocolKind protocol : protocols) {
        for (const TransportKind transport : transports) {
            const DeviceModel device = model(protocol, transport,
                                             {entry(u"Volume"_s, 9, 3, "00 00 41"),
                                              entry(u"Volume"_s, 99, 5, "00 00 42"),
                                              entry(u"Volume"_s, 11, 6, "00 00 43")});
            quint8 code = untouched;
            QByteArray built;
            appendRequest(device, u"Volume"_s, code, built);
            QCOMPARE(hexBytes(built), ""_ba);
            QCOMPARE(code, untouched);
        }
    }

    // The volume command and the request for the volume share a label.
    const DeviceModel device
        = model(ProtocolKind::Classic, TransportKind::Serial,
                {entry(u"Volume"_s, 9, 3, "00"), entry(u"Volume"_s, 10, 4, "0B"),
                 entry(u"Volume"_s, 99, 5, "0C")});
    quint8 code = untouched;
    QByteArray built;
    appendRequest(device, u"Volume"_s, code, built);
    QCOMPARE(hexBytes(built), "0B"_ba);
    QCOMPARE(code, quint8(4));
}

void tst_LabelledCommands::requestDuplicates()
{
    const QList<CommandEntry> commands
        = {entry(u"Ask"_s, 10, 4, "00 00 41"), entry(u"Other"_s, 10, 9, "00 00 44"),
           entry(u"Ask"_s, 10, 7, "00 00 42 43"), entry(u"Ask"_s, 99, 8, "00 00 45")};

    quint8 code = untouched;
    QByteArray built;
    appendRequest(model(ProtocolKind::Classic, TransportKind::Serial, commands), u"Ask"_s, code,
                  built);
    QCOMPARE(hexBytes(built), "00 00 41 00 00 42 43"_ba);
    QCOMPARE(code, quint8(7));

    code = untouched;
    built.clear();
    appendRequest(model(ProtocolKind::Extended, TransportKind::TcpIp, commands), u"Ask"_s, code,
                  built);
    QCOMPARE(hexBytes(built), "00 00 00 67 65 74 00 41 00 00 00 00 67 65 74 00 42 43 00"_ba);
    QCOMPARE(code, quint8(7));

    // A last one that adds nothing still gives its code.
    code = untouched;
    built.clear();
    appendRequest(model(ProtocolKind::Extended, TransportKind::TcpIp,
                        {entry(u"Ask"_s, 10, 4, "00 00 41"), entry(u"Ask"_s, 10, 6, "00 00")}),
                  u"Ask"_s, code, built);
    QCOMPARE(hexBytes(built), "00 00 00 67 65 74 00 41 00"_ba);
    QCOMPARE(code, quint8(6));
}

void tst_LabelledCommands::otherCommandOfAnyId_data()
{
    QTest::addColumn<quint32>("id");

    for (const quint32 id : {0U,  1U,  4U,  9U,  10U, 11U, 13U, 18U, 20U, 21U, 22U, 23U,
                             24U, 25U, 26U, 32U, 39U, 40U, 41U, 44U, 45U, 46U, 99U, 100U})
        QTest::addRow("%u", id) << id;
}

// The stored data goes out as it is, in every family: there is no text form for these.
void tst_LabelledCommands::otherCommandOfAnyId()
{
    QFETCH(quint32, id);

    for (const ProtocolKind protocol : protocols) {
        for (const TransportKind transport : transports) {
            const DeviceModel device
                = model(protocol, transport, {entry(u"Do"_s, id, 4, "FF FF 33 32")});
            quint8 code = untouched;
            QByteArray built;
            appendOtherCommand(device, u"Do"_s, moment(), code, built);
            QCOMPARE(hexBytes(built), "FF FF 33 32"_ba);
            QCOMPARE(code, quint8(4));
        }
    }
}

void tst_LabelledCommands::clockReplacesStoredData_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("time") << 27U << "09 05 1E"_ba;
    QTest::newRow("date") << 28U << "1A 03 07"_ba;
    QTest::newRow("date and time") << 29U << "1A 03 07 09 05 1E"_ba;
    QTest::newRow("epoch") << 30U << "06 4D 2F 54 5A"_ba;
    QTest::newRow("UTC date and time") << 31U << "1A 03 07 09 05 1E"_ba;
}

void tst_LabelledCommands::clockReplacesStoredData()
{
    QFETCH(quint32, id);
    QFETCH(QByteArray, body);

    for (const ProtocolKind protocol : protocols) {
        for (const TransportKind transport : transports) {
            for (const char *stored : {"", "01", "01 02 03 04 05 06 07 08"}) {
                const DeviceModel device
                    = model(protocol, transport, {entry(u"Set"_s, id, 60, stored)});
                quint8 code = untouched;
                QByteArray built;
                appendOtherCommand(device, u"Set"_s, moment(), code, built);
                QCOMPARE(hexBytes(built), body);
                QCOMPARE(code, quint8(60));
            }
        }
    }
}

void tst_LabelledCommands::otherCommandDuplicates()
{
    const DeviceModel device
        = model(ProtocolKind::Classic, TransportKind::Serial,
                {entry(u"Do"_s, 99, 8, "30"), entry(u"Do not"_s, 99, 7, "31"),
                 entry(u"Do"_s, 27, 12, "01 02 03"), entry(u"Do"_s, 44, 2, "16 17")});
    quint8 code = untouched;
    QByteArray built;
    appendOtherCommand(device, u"Do"_s, moment(), code, built);
    QCOMPARE(hexBytes(built), "30 09 05 1E 16 17"_ba);
    QCOMPARE(code, quint8(2));
}

void tst_LabelledCommands::serialLaunch_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<PlaybackChoice>("choice");
    QTest::addColumn<QByteArray>("body");

    const PlaybackChoice choice{.reference = 300, .option = 2, .webradio = 7};
    const auto withReference = [](int number) {
        return PlaybackChoice{.reference = number, .option = 2, .webradio = 7};
    };
    const auto withOption = [](int number) {
        return PlaybackChoice{.reference = 300, .option = number, .webradio = 7};
    };
    const auto withWebradio = [](int number) {
        return PlaybackChoice{.reference = 300, .option = 2, .webradio = number};
    };

    QTest::newRow("folder") << 23U << "00 01 FF"_ba << choice << "01 2C FF"_ba;
    QTest::newRow("folder, two bytes") << 23U << "00 01"_ba << choice << "01 2C"_ba;
    QTest::newRow("folder, five bytes")
        << 23U << "0A 0B 0C 0D 0E"_ba << choice << "01 2C 0C 0D 0E"_ba;
    QTest::newRow("folder, one byte") << 23U << "0A"_ba << choice << "0A"_ba;
    QTest::newRow("folder, no byte") << 23U << ""_ba << choice << ""_ba;
    QTest::newRow("folder 0") << 23U << "00 01 FF"_ba << withReference(0) << "00 00 FF"_ba;
    QTest::newRow("folder 65535") << 23U << "00 01 FF"_ba << withReference(65535) << "FF FF FF"_ba;
    QTest::newRow("folder 65537: low 16 bits")
        << 23U << "00 01 FF"_ba << withReference(65537) << "00 01 FF"_ba;

    QTest::newRow("SPOT reset") << 24U << "00 01 01"_ba << choice << "01 2C 02"_ba;
    QTest::newRow("SPOT reset, four bytes")
        << 24U << "0A 0B 0C 0D"_ba << choice << "01 2C 02 0D"_ba;
    QTest::newRow("SPOT reset, two bytes") << 24U << "0A 0B"_ba << choice << "0A 0B"_ba;
    QTest::newRow("SPOT reset, one byte") << 24U << "0A"_ba << choice << "0A"_ba;
    QTest::newRow("SPOT reset, no byte") << 24U << ""_ba << choice << ""_ba;
    QTest::newRow("SPOT reset, option 0") << 24U << "00 01 01"_ba << withOption(0) << "01 2C 00"_ba;

    QTest::newRow("web radio") << 25U << "00 01 FF"_ba << choice << "00 07 FF"_ba;
    QTest::newRow("web radio, two bytes") << 25U << "00 01"_ba << choice << "00 07"_ba;
    QTest::newRow("web radio, four bytes") << 25U << "0A 0B 0C 0D"_ba << choice << "00 07 0C 0D"_ba;
    QTest::newRow("web radio, one byte") << 25U << "0A"_ba << choice << "0A"_ba;
    QTest::newRow("web radio, no byte") << 25U << ""_ba << choice << ""_ba;
    QTest::newRow("web radio 300") << 25U << "00 01 FF"_ba << withWebradio(300) << "01 2C FF"_ba;

    QTest::newRow("alternate") << 26U << "FF FF FF"_ba << choice << "FF FF FF"_ba;
    QTest::newRow("alternate, one byte") << 26U << "0A"_ba << choice << "0A"_ba;
    QTest::newRow("any other id") << 99U << "0A 0B 0C"_ba << choice << "0A 0B 0C"_ba;
    QTest::newRow("clock id: the stored data") << 27U << "01 02 03"_ba << choice << "01 02 03"_ba;
}

void tst_LabelledCommands::serialLaunch()
{
    QFETCH(quint32, id);
    QFETCH(QByteArray, data);
    QFETCH(PlaybackChoice, choice);
    QFETCH(QByteArray, body);

    for (const ProtocolKind protocol : protocols) {
        // On a serial line `dataMax` plays no part.
        for (const char *dataMax : {"", "03 E7 FF"}) {
            const DeviceModel device
                = model(protocol, TransportKind::Serial,
                        {entry(u"Source"_s, id, 18, data.constData(), dataMax)});
            quint8 code = untouched;
            QByteArray built;
            appendPlaybackSource(device, u"Source"_s, choice, code, built);
            QCOMPARE(hexBytes(built), body);
            QCOMPARE(code, quint8(18));
        }
    }
}

void tst_LabelledCommands::networkLaunch_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<PlaybackChoice>("choice");
    QTest::addColumn<QByteArray>("body");

    const PlaybackChoice choice{.reference = 12, .option = 2, .webradio = 7};
    const auto withReference = [](int number) {
        return PlaybackChoice{.reference = number, .option = 2, .webradio = 7};
    };
    const QByteArray first = "00 01 36 34"_ba;
    const QByteArray last = "03 E7 36 34"_ba;
    const QByteArray head = "00 00 00 63 6D 64 00 36 34 00 "_ba;

    QTest::newRow("folder") << 23U << first << last << choice << head + "31 32 00 30 00";
    QTest::newRow("folder 0") << 23U << first << last << withReference(0) << head + "30 00 30 00";
    QTest::newRow("SPOT reset: empty first argument, no option")
        << 24U << first << last << choice << head + "00 30 00";
    QTest::newRow("web radio") << 25U << first << last << choice << head + "37 00 30 00";
    QTest::newRow("alternate") << 26U << first << last << choice << head + "30 00 30 00";
    QTest::newRow("any other id: empty first argument")
        << 99U << first << last << choice << head + "00 30 00";

    QTest::newRow("name of one letter")
        << 23U << "00 01 30"_ba
        << "03 E7 30"_ba << choice << "00 00 00 63 6D 64 00 30 00 31 32 00 30 00"_ba;
    QTest::newRow("dataMax shorter than data, but three bytes")
        << 23U << first << "03 E7 34"_ba << choice << head + "31 32 00 30 00";
    for (const quint32 id : {23U, 24U, 25U, 26U, 99U}) {
        QTest::addRow("id %u, data of two bytes", id) << id << "00 01"_ba
                                                      << "03 E7 30"_ba << choice << ""_ba;
        QTest::addRow("id %u, dataMax of two bytes", id) << id << "00 01 30"_ba
                                                         << "03 E7"_ba << choice << ""_ba;
        QTest::addRow("id %u, no data", id) << id << ""_ba
                                            << ""_ba << choice << ""_ba;
    }
}

// What decides is the transport alone: a classic model would send the text, too.
void tst_LabelledCommands::networkLaunch()
{
    QFETCH(quint32, id);
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, dataMax);
    QFETCH(PlaybackChoice, choice);
    QFETCH(QByteArray, body);

    for (const ProtocolKind protocol : protocols) {
        for (const int commandCode : {2, 4}) {
            const auto expectedCode = static_cast<quint8>(commandCode);
            const DeviceModel device = model(
                protocol, TransportKind::TcpIp,
                {entry(u"Source"_s, id, expectedCode, data.constData(), dataMax.constData())});
            quint8 code = untouched;
            QByteArray built;
            appendPlaybackSource(device, u"Source"_s, choice, code, built);
            QCOMPARE(hexBytes(built), body);
            QCOMPARE(code, expectedCode);
        }
    }
}

void tst_LabelledCommands::launchDuplicates()
{
    const PlaybackChoice choice{.reference = 300, .option = 2, .webradio = 7};
    const QList<CommandEntry> commands
        = {entry(u"Twice"_s, 26, 5, "0A 0B 0C"), entry(u"Once"_s, 26, 7, "01 02 03"),
           entry(u"Twice"_s, 23, 6, "0D 0E 0F")};

    // The numbers go to the head of the whole body, which is the first one's.
    quint8 code = untouched;
    QByteArray built;
    appendPlaybackSource(model(ProtocolKind::Extended, TransportKind::Serial, commands), u"Twice"_s,
                         choice, code, built);
    QCOMPARE(hexBytes(built), "01 2C 0C 0D 0E 0F"_ba);
    QCOMPARE(code, quint8(6));

    code = untouched;
    built.clear();
    appendPlaybackSource(model(ProtocolKind::Extended, TransportKind::TcpIp, commands), u"Twice"_s,
                         choice, code, built);
    QCOMPARE(hexBytes(built), "00 00 00 63 6D 64 00 0C 00 30 00 30 00 "
                              "00 00 00 63 6D 64 00 0F 00 33 30 30 00 30 00"_ba);
    QCOMPARE(code, quint8(6));
}

void tst_LabelledCommands::labelMatchesExactly_data()
{
    QTest::addColumn<QString>("label");

    QTest::newRow("lower case") << u"player status"_s;
    QTest::newRow("upper case") << u"PLAYER STATUS"_s;
    QTest::newRow("one letter's case") << u"Player status"_s;
    QTest::newRow("blank in front") << u" Player Status"_s;
    QTest::newRow("blank behind") << u"Player Status "_s;
    QTest::newRow("beginning") << u"Player"_s;
    QTest::newRow("longer") << u"Player Status 2"_s;
    QTest::newRow("empty, as of an empty list") << QString();
}

void tst_LabelledCommands::labelMatchesExactly()
{
    QFETCH(QString, label);

    for (const ProtocolKind protocol : protocols) {
        for (const TransportKind transport : transports) {
            const DeviceModel device
                = model(protocol, transport, {entry(u"Player Status"_s, 10, 4, "FF FF 41")});
            quint8 code = untouched;
            QByteArray built;
            appendRequest(device, label, code, built);
            appendOtherCommand(device, label, moment(), code, built);
            appendPlaybackSource(device, label, {}, code, built);
            QCOMPARE(hexBytes(built), ""_ba);
            QCOMPARE(code, untouched);
        }
    }

    // A model without commands has none of any label either.
    quint8 code = untouched;
    QByteArray built;
    appendRequest({}, label, code, built);
    appendOtherCommand({}, label, moment(), code, built);
    appendPlaybackSource({}, label, {}, code, built);
    QCOMPARE(hexBytes(built), ""_ba);
    QCOMPARE(code, untouched);
}

void tst_LabelledCommands::bodyIsAppendedTo()
{
    const DeviceModel device
        = model(ProtocolKind::Classic, TransportKind::Serial, {entry(u"Do"_s, 10, 4, "41")});
    quint8 code = untouched;
    QByteArray built = bytes("01");
    appendRequest(device, u"Do"_s, code, built);
    appendOtherCommand(device, u"Do"_s, moment(), code, built);
    appendPlaybackSource(device, u"Do"_s, {}, code, built);
    QCOMPARE(hexBytes(built), "01 41 41 41"_ba);
}

void tst_LabelledCommands::firstByteSum_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("stored byte carried") << "05 0F"_ba << QList<int>{1, 4} << "0A 0F"_ba;
    QTest::newRow("stored byte above 127") << "80"_ba << QList<int>{1} << "81"_ba;
    QTest::newRow("modulo 256") << "FF 0F"_ba << QList<int>{1} << "00 0F"_ba;
    QTest::newRow("modulo 256, several") << "81"_ba << QList<int>{1, 128} << "02"_ba;
    QTest::newRow("empty body") << ""_ba << QList<int>{1, 128} << ""_ba;
}

void tst_LabelledCommands::firstByteSum()
{
    QFETCH(QByteArray, stored);
    QFETCH(QList<int>, values);
    QFETCH(QByteArray, body);

    QByteArray built = bytes(stored.constData());
    for (const int value : values)
        addToFirstByte(value, built);
    QCOMPARE(hexBytes(built), body);
}

void tst_LabelledCommands::languageCode_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("case kept") << u"FrE"_s << "46 72 45"_ba;
    QTest::newRow("empty") << QString() << ""_ba;
    QTest::newRow("one letter") << u"a"_s << "61"_ba;
    QTest::newRow("below 256") << u"\u00E9"_s << "E9"_ba;
    QTest::newRow("255") << u"\u00FF"_s << "FF"_ba;
    QTest::newRow("256") << u"\u0100"_s << "00"_ba;
    QTest::newRow("mixed") << u"a\u20ACb"_s << "61 00 62"_ba;
}

void tst_LabelledCommands::languageCode()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, body);

    QCOMPARE(hexBytes(languageCodeBytes(value)), body);
}

TESSALY_TEST(tst_LabelledCommands)
#include "tst_labelledcommands.moc"
