// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/frameencoder.h"
#include "tests/support/hexbytes.h"
#include "tests/support/testregistry.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Every command is one of these, so that a row of test data reads like a line of a model's table.
CommandEntry command(quint32 id, quint8 code, const QByteArray &data, const QByteArray &dataMax)
{
    return {u"Command"_s, id, code, QByteArray::fromHex(data), QByteArray::fromHex(dataMax)};
}

CommandEntry command(quint32 id, quint8 code, const QByteArray &data)
{
    return command(id, code, data, data);
}

DeviceModel model(ProtocolKind protocol, TransportKind transport,
                  const QList<CommandEntry> &commands = {})
{
    DeviceModel result;
    result.protocol = protocol;
    result.transport = transport;
    result.commands = commands;
    return result;
}

constexpr auto Classic = ProtocolKind::Classic;
constexpr auto Extended = ProtocolKind::Extended;
constexpr auto Serial = TransportKind::Serial;
constexpr auto TcpIp = TransportKind::TcpIp;

/// What `code` holds before a function that must leave it alone.
constexpr quint8 untouched = 0xAB;

} // namespace

Q_DECLARE_METATYPE(DeviceModel)

class tst_FrameEncoder : public QObject
{
    Q_OBJECT

private slots:
    void appendCommand_data();
    void appendCommand();
    void appendCommandKeepsWhatTheBodyHolds();
    void appendPlaybackArguments_data();
    void appendPlaybackArguments();
    void appendVolumeCommand_data();
    void appendVolumeCommand();
    void sliderVolumeByte_data();
    void sliderVolumeByte();
    void applyFolderNumber_data();
    void applyFolderNumber();
    void applyFirstByte_data();
    void applyFirstByte();
    void applyContacts_data();
    void applyContacts();
    void playerIdByteFromText_data();
    void playerIdByteFromText();
};

void tst_FrameEncoder::appendCommand_data()
{
    QTest::addColumn<DeviceModel>("model");
    QTest::addColumn<quint32>("commandId");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("without data") << model(Classic, Serial, {command(99, 8, "")}) << 99U << true
                                  << 8 << ""_ba;
    QTest::newRow("model without commands")
        << model(Classic, Serial) << 4U << false << int(untouched) << ""_ba;
    QTest::newRow("default-made command has id 99")
        << model(Classic, Serial, {CommandEntry()}) << 99U << true << 0 << ""_ba;
    QTest::newRow("default-made command has no other id")
        << model(Classic, Serial, {CommandEntry()}) << 0U << false << int(untouched) << ""_ba;
    QTest::newRow("all of long data")
        << model(Classic, Serial, {command(29, 44, "07 08 09 0A 0B 0C")}) << 29U << true << 44
        << "07 08 09 0A 0B 0C"_ba;
    QTest::newRow("text code on a classic model is no text command")
        << model(Classic, TcpIp, {command(4, 4, "FF FF 33 32")}) << 4U << true << 4
        << "FF FF 33 32"_ba;

    QTest::newRow("extended serial copies the data of the text code too")
        << model(Extended, Serial, {command(4, 4, "FF FF 33 32")}) << 4U << true << 4
        << "FF FF 33 32"_ba;
    QTest::newRow("extended serial copies short data")
        << model(Extended, Serial, {command(4, 2, "01")}) << 4U << true << 2 << "01"_ba;

    QTest::newRow("text command: the longest dataMax changes nothing")
        << model(Extended, TcpIp, {command(4, 4, "FF FF 33 32", "FF FF 33 32 33 34")}) << 4U << true
        << 4 << "00 00 00 63 6D 64 00 33 32 00"_ba;
    QTest::newRow("text command: dataMax shorter than data, yet of three bytes")
        << model(Extended, TcpIp, {command(3, 4, "FF FF 33 36", "FF FF 36")}) << 3U << true << 4
        << "00 00 00 63 6D 64 00 33 36 00"_ba;
    // A command of this family that is no text command is still sent, as its code byte alone.
    QTest::newRow("no text command: data of two bytes")
        << model(Extended, TcpIp, {command(4, 4, "FF FF", "FF FF 33")}) << 4U << true << 4 << ""_ba;
    QTest::newRow("no text command: dataMax of two bytes")
        << model(Extended, TcpIp, {command(4, 4, "FF FF 33", "FF FF")}) << 4U << true << 4 << ""_ba;
    QTest::newRow("no text command: no data at all")
        << model(Extended, TcpIp, {command(4, 4, "")}) << 4U << true << 4 << ""_ba;
    QTest::newRow("no text command: another code")
        << model(Extended, TcpIp, {command(4, 2, "FF FF 33 32")}) << 4U << true << 2 << ""_ba;

    // The table of a model is not checked for ids listed twice: both bodies travel in one frame.
    QTest::newRow("listed twice: both bodies, the last code") << model(
        Classic, Serial, {command(4, 2, "01"), command(5, 2, "02"), command(4, 7, "0A 0B")})
                                                              << 4U << true << 7 << "01 0A 0B"_ba;
    QTest::newRow("listed three times on extended serial")
        << model(Extended, Serial, {command(4, 1, "01"), command(4, 2, "02"), command(4, 3, "03")})
        << 4U << true << 3 << "01 02 03"_ba;
    QTest::newRow("listed twice as text command")
        << model(Extended, TcpIp, {command(4, 4, "FF FF 33 32"), command(4, 4, "FF FF 33 34")})
        << 4U << true << 4 << "00 00 00 63 6D 64 00 33 32 00 00 00 00 63 6D 64 00 33 34 00"_ba;
    QTest::newRow("listed as text command, then not: its body, the last code")
        << model(Extended, TcpIp, {command(4, 4, "FF FF 33 32"), command(4, 9, "FF FF 33 34")})
        << 4U << true << 9 << "00 00 00 63 6D 64 00 33 32 00"_ba;
}

void tst_FrameEncoder::appendCommand()
{
    QFETCH(DeviceModel, model);
    QFETCH(quint32, commandId);

    quint8 code = untouched;
    QByteArray body;
    QTEST(::appendCommand(model, commandId, code, body), "found");
    QTEST(int(code), "code");
    QTEST(hexBytes(body), "body");
}

void tst_FrameEncoder::appendCommandKeepsWhatTheBodyHolds()
{
    quint8 code = 0;
    QByteArray body("\x11", 1);
    QVERIFY(::appendCommand(model(Classic, Serial, {command(4, 2, "01")}), 4, code, body));
    QCOMPARE(hexBytes(body), "11 01"_ba);
    QVERIFY(!::appendCommand(model(Classic, Serial, {command(4, 2, "01")}), 5, code, body));
    QCOMPARE(hexBytes(body), "11 01"_ba);
}

void tst_FrameEncoder::appendPlaybackArguments_data()
{
    QTest::addColumn<quint32>("commandId");
    QTest::addColumn<QByteArray>("body");

    for (const quint32 id : {3U, 4U, 5U, 7U})
        QTest::addRow("%u", id) << id << "41 32 35 35 00 32 35 35 00"_ba;
    // The models of this family have none of these commands.
    for (const quint32 id : {1U, 2U, 6U, 8U, 9U, 12U, 15U, 17U, 19U, 34U})
        QTest::addRow("%u: none", id) << id << "41"_ba;
}

void tst_FrameEncoder::appendPlaybackArguments()
{
    QFETCH(quint32, commandId);

    QByteArray body = "A"_ba;
    ::appendPlaybackArguments(model(Extended, TcpIp), commandId, body);
    QTEST(hexBytes(body), "body");
}

void tst_FrameEncoder::appendVolumeCommand_data()
{
    QTest::addColumn<DeviceModel>("model");
    QTest::addColumn<int>("volume");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("body");

    const DeviceModel classic
        = model(Classic, Serial, {command(4, 2, "01"), command(9, 3, "00", "40")});
    QTest::newRow("classic 255") << classic << 255 << true << 3 << "FF"_ba;
    QTest::newRow("classic: only the first byte is the volume")
        << model(Classic, Serial, {command(9, 3, "0A 0B 0C")}) << 5 << true << 3 << "05 0B 0C"_ba;
    QTest::newRow("classic without data: nothing to write the volume into")
        << model(Classic, Serial, {command(9, 3, "")}) << 5 << true << 3 << ""_ba;
    // The second command's data stands behind the first one's, the volume at the head.
    QTest::newRow("classic: listed twice")
        << model(Classic, Serial, {command(9, 3, "00"), command(9, 5, "0A")}) << 7 << true << 5
        << "07 0A"_ba;
    QTest::newRow("classic: the first without data")
        << model(Classic, Serial, {command(9, 3, ""), command(9, 5, "0A")}) << 7 << true << 5
        << "07"_ba;

    const DeviceModel serial = model(Extended, Serial, {command(9, 48, "00 00 00", "00 40 00")});
    QTest::newRow("extended serial 40") << serial << 40 << true << 48 << "00 28 00"_ba;
    QTest::newRow("extended serial 255") << serial << 255 << true << 48 << "00 FF 00"_ba;
    QTest::newRow("extended serial: high byte is always 0")
        << model(Extended, Serial, {command(9, 48, "01 02 FF")}) << 9 << true << 48
        << "00 09 FF"_ba;
    QTest::newRow("extended serial: two bytes are enough")
        << model(Extended, Serial, {command(9, 48, "01 02")}) << 9 << true << 48 << "00 09"_ba;
    QTest::newRow("extended serial: a single byte is kept")
        << model(Extended, Serial, {command(9, 48, "07")}) << 9 << true << 48 << "07"_ba;
    QTest::newRow("extended serial: no data")
        << model(Extended, Serial, {command(9, 48, "")}) << 9 << true << 48 << ""_ba;
    QTest::newRow("extended serial: listed twice")
        << model(Extended, Serial, {command(9, 48, "01 02"), command(9, 49, "03 04")}) << 9 << true
        << 49 << "00 09 03 04"_ba;

    // The text form counts downwards from 64: "-64", "-24", "0", "191".
    const DeviceModel onDemand = model(Extended, TcpIp, {command(9, 3, "00 00 00", "00 40 00")});
    const QByteArray name
        = "00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00";
    QTest::newRow("text form 40") << onDemand << 40 << true << 3 << name + " 2D 32 34 00";
    QTest::newRow("text form 65") << onDemand << 65 << true << 3 << name + " 31 00";
    QTest::newRow("text form 255") << onDemand << 255 << true << 3 << name + " 31 39 31 00";
    QTest::newRow("text form: two bytes are enough")
        << model(Extended, TcpIp, {command(9, 3, "00 00")}) << 64 << true << 3 << name + " 30 00";
    QTest::newRow("no text form for another code: the code byte alone")
        << model(Extended, TcpIp, {command(9, 4, "00 00 00", "00 40 00")}) << 40 << true << 4
        << ""_ba;
    QTest::newRow("connect on demand: a single byte is kept")
        << model(Extended, TcpIp, {command(9, 3, "07")}) << 40 << true << 3 << "07"_ba;
    QTest::newRow("connect on demand: no data")
        << model(Extended, TcpIp, {command(9, 3, "")}) << 40 << true << 3 << ""_ba;
    QTest::newRow("connect on demand: none") << model(Extended, TcpIp, {command(10, 2, "FF FF 41")})
                                             << 40 << false << int(untouched) << ""_ba;
    // The text form replaces all that is in the body, hence that of an earlier command as well.
    QTest::newRow("text form listed twice: once on the wire")
        << model(Extended, TcpIp, {command(9, 3, "00 00 00"), command(9, 3, "00 00 00")}) << 64
        << true << 3 << name + " 30 00";
    QTest::newRow("text form, then another code: the code byte alone")
        << model(Extended, TcpIp, {command(9, 3, "00 00 00"), command(9, 4, "00 00 00")}) << 64
        << true << 4 << ""_ba;
    QTest::newRow("single byte, then text form")
        << model(Extended, TcpIp, {command(9, 4, "07"), command(9, 3, "00 00 00")}) << 64 << true
        << 3 << name + " 30 00";
}

void tst_FrameEncoder::appendVolumeCommand()
{
    QFETCH(DeviceModel, model);
    QFETCH(int, volume);

    quint8 code = untouched;
    QByteArray body;
    QTEST(::appendVolumeCommand(model, static_cast<quint8>(volume), code, body), "found");
    QTEST(int(code), "code");
    QTEST(hexBytes(body), "body");
}

void tst_FrameEncoder::sliderVolumeByte_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expected");

    QTest::newRow("from 0: the value") << 0 << 40 << 40;
    QTest::newRow("from 10: twice the minimum") << 10 << 10 << 20;
    QTest::newRow("from 10, above it") << 10 << 25 << 35;
    QTest::newRow("modulo 256") << 100 << 200 << 44;
}

void tst_FrameEncoder::sliderVolumeByte()
{
    QFETCH(int, minimum);
    QFETCH(int, value);

    QTEST(int(::sliderVolumeByte(minimum, value)), "expected");
}

void tst_FrameEncoder::applyFolderNumber_data()
{
    QTest::addColumn<int>("folder");
    QTest::addColumn<int>("codeBefore");
    QTest::addColumn<QByteArray>("bodyBefore");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("body");

    const struct
    {
        int folder;
        int code;
        const char *body;
    } folders[] = {
        {0, 0x01, "00"},
        {1, 0x01, "01"},
        {5, 0x01, "05"},
        {9, 0x01, "09"},
        {127, 0x01, "7F"},
        {128, 0x11, "00"},
        {129, 0x11, "01"},
        {200, 0x11, "48"},
        {255, 0x11, "7F"},
        {256, 0x21, "00"},
        {383, 0x21, "7F"},
        {384, 0x31, "00"},
        {512, 0x41, "00"},
        {640, 0x51, "00"},
        {768, 0x61, "00"},
        {896, 0x71, "00"},
        {999, 0x71, "67"},
        {1023, 0x71, "7F"},
        {1024, 0x81, "00"},
        {2048, 0x01, "00"},
        {2176, 0x11, "00"},
        // Below zero the bank is cut towards zero; what is left over travels as it is.
        {-1, 0x01, "FF"},
        {-127, 0x01, "81"},
        {-128, 0xF1, "00"},
        {-129, 0xF1, "FF"},
        {-200, 0xF1, "B8"},
        {-256, 0xE1, "00"},
    };
    for (const auto &[folder, code, body] : folders)
        QTest::addRow("folder %d", folder) << folder << 1 << "55"_ba << code << QByteArray(body);

    QTest::newRow("highest number")
        << std::numeric_limits<int>::max() << 1 << "55"_ba << 0xF1 << "7F"_ba;
    QTest::newRow("lowest number")
        << std::numeric_limits<int>::min() << 1 << "55"_ba << 0x01 << "00"_ba;
    QTest::newRow("code wraps round") << 128 << 0xFA << "55"_ba << 0x0A << "00"_ba;
    QTest::newRow("only the first byte") << 200 << 1 << "55 66"_ba << 0x11 << "48 66"_ba;
    QTest::newRow("empty body stays empty") << 200 << 1 << ""_ba << 0x11 << ""_ba;
}

void tst_FrameEncoder::applyFolderNumber()
{
    QFETCH(int, folder);
    QFETCH(int, codeBefore);
    QFETCH(QByteArray, bodyBefore);

    auto code = static_cast<quint8>(codeBefore);
    QByteArray body = QByteArray::fromHex(bodyBefore);
    ::applyFolderNumber(folder, code, body);
    QTEST(int(code), "code");
    QTEST(hexBytes(body), "body");
}

void tst_FrameEncoder::applyFirstByte_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("bodyBefore");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("12") << 12 << "01"_ba
                        << "0C"_ba;
    QTest::newRow("200: no range check") << 200 << "01"_ba
                                         << "C8"_ba;
    QTest::newRow("256: low 8 bits") << 256 << "01"_ba
                                     << "00"_ba;
    QTest::newRow("-1: low 8 bits") << -1 << "01"_ba
                                    << "FF"_ba;
    QTest::newRow("the rest of the body stays") << 12 << "01 02 03"_ba
                                                << "0C 02 03"_ba;
    QTest::newRow("empty body stays empty") << 12 << ""_ba
                                            << ""_ba;
}

void tst_FrameEncoder::applyFirstByte()
{
    QFETCH(int, value);
    QFETCH(QByteArray, bodyBefore);

    QByteArray body = QByteArray::fromHex(bodyBefore);
    ::applyFirstByte(value, body);
    QTEST(hexBytes(body), "body");
}

void tst_FrameEncoder::applyContacts_data()
{
    QTest::addColumn<QString>("closed"); // contact 8 first
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("changed");

    QTest::newRow("first and last") << u"10000001"_s << "00"_ba
                                    << "81"_ba;
    QTest::newRow("what the table holds is added to") << u"00000011"_s << "10"_ba
                                                      << "13"_ba;
    QTest::newRow("modulo 256") << u"11111111"_s << "02"_ba
                                << "01"_ba;
    QTest::newRow("nothing to write into") << u"11111111"_s << ""_ba
                                           << ""_ba;
}

void tst_FrameEncoder::applyContacts()
{
    QFETCH(const QString, closed);
    QFETCH(const QByteArray, body);

    QByteArray changed = QByteArray::fromHex(body);
    ::applyContacts(std::bitset<8>(closed.toStdString()), changed);
    QTEST(hexBytes(changed), "changed");
}

void tst_FrameEncoder::playerIdByteFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("byte");

    QTest::newRow("leading zeros") << u"007"_s << 0x87;
    QTest::newRow("128: no range check") << u"128"_s << 0x00;
    QTest::newRow("200: no range check") << u"200"_s << 0x48;
    QTest::newRow("256") << u"256"_s << 0x80;
    QTest::newRow("-1") << u"-1"_s << 0x7F;
    QTest::newRow("highest 32-bit number") << u"2147483647"_s << 0x7F;
    QTest::newRow("above 32 bits") << u"2147483648"_s << 0x80;
    QTest::newRow("lowest 32-bit number") << u"-2147483648"_s << 0x80;
    QTest::newRow("far above 32 bits") << u"99999999999999999999"_s << 0x80;
    QTest::newRow("above 32 bits, with low bits set") << u"4294967301"_s << 0x80;
    QTest::newRow("empty") << u""_s << 0x80;
    QTest::newRow("null") << QString() << 0x80;
    QTest::newRow("letters") << u"abc"_s << 0x80;
    QTest::newRow("hexadecimal is none") << u"0x05"_s << 0x80;
    QTest::newRow("fraction") << u"5.0"_s << 0x80;
}

void tst_FrameEncoder::playerIdByteFromText()
{
    QFETCH(QString, text);
    QTEST(int(::playerIdByteFromText(text)), "byte");
}

TESSALY_TEST(tst_FrameEncoder)

#include "tst_frameencoder.moc"
