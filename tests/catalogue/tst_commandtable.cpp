// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandtable.h"
#include "tests/support/hexbytes.h"
#include "tests/support/testregistry.h"

#include <algorithm>
#include <array>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A text as a template argument, so that it can be asked whether a row with it compiles.
template<std::size_t Size>
struct Literal
{
    consteval Literal(const char (&literal)[Size]) { std::copy_n(literal, Size, text.begin()); }

    std::array<char, Size> text{};
};

template<Literal literal>
concept CompilesAsBytes = requires
{
    typename std::bool_constant<(ByteText(literal.text.data()), true)>;
};

static_assert(CompilesAsBytes<"">);
static_assert(CompilesAsBytes<"00">);
static_assert(CompilesAsBytes<"FF FF '32'">);
static_assert(CompilesAsBytes<"''">);
static_assert(!CompilesAsBytes<"F">, "half a byte");
static_assert(!CompilesAsBytes<"FF F">, "half a byte at the end");
static_assert(!CompilesAsBytes<"F F">, "a blank within a byte");
static_assert(!CompilesAsBytes<"ff">, "lower-case digits");
static_assert(!CompilesAsBytes<"0G">, "no hexadecimal digit");
static_assert(!CompilesAsBytes<"0x01">, "prefix");
static_assert(!CompilesAsBytes<"01,02">, "comma");
static_assert(!CompilesAsBytes<"FF FF '32">, "text without a closing quote");
static_assert(!CompilesAsBytes<"FF FF 32'">, "text without an opening quote");
static_assert(!CompilesAsBytes<"'it's'">, "a quote within the text");

/// The bytes of the row's only entry, as hexadecimal text.
QByteArray dataHex(const CommandRow &row)
{
    DeviceModel model;
    appendCommands(model, {&row, 1});
    return hexBytes(model.commands.value(0).data);
}

} // namespace

class tst_CommandTable : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data();
    void bytes();
    void emptyData();
    void fieldsOfARow();
};

void tst_CommandTable::bytes_data()
{
    QTest::addColumn<QByteArray>("actual");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("digits of both kinds") << dataHex({"", 0, 0, "09 90 AF FA"}) << "09 90 AF FA"_ba;
    QTest::newRow("no blank between") << dataHex({"", 0, 0, "0102FF"}) << "01 02 FF"_ba;
    QTest::newRow("blanks around") << dataHex({"", 0, 0, "  01   02  "}) << "01 02"_ba;
    QTest::newRow("text behind bytes") << dataHex({"", 0, 0, "FF FF '32'"}) << "FF FF 33 32"_ba;
    QTest::newRow("text before bytes") << dataHex({"", 0, 0, "'A' 0A"}) << "41 0A"_ba;
    QTest::newRow("text between bytes") << dataHex({"", 0, 0, "01'A'02"}) << "01 41 02"_ba;
    QTest::newRow("two texts") << dataHex({"", 0, 0, "'A' 00 'B'"}) << "41 00 42"_ba;
    QTest::newRow("texts side by side") << dataHex({"", 0, 0, "'A''B'"}) << "41 42"_ba;
    QTest::newRow("blank in a text") << dataHex({"", 0, 0, "'A B'"}) << "41 20 42"_ba;
    QTest::newRow("digits in a text stay text") << dataHex({"", 0, 0, "'FF'"}) << "46 46"_ba;
    QTest::newRow("empty text") << dataHex({"", 0, 0, "01 '' 02"}) << "01 02"_ba;
}

void tst_CommandTable::bytes()
{
    QFETCH(QByteArray, actual);
    QFETCH(QByteArray, expected);
    QCOMPARE(actual, expected);
}

void tst_CommandTable::emptyData()
{
    static constexpr CommandRow rows[] = {{"No bytes", 99, 1, ""}, {"No bytes", 99, 1, "", "7F"}};
    DeviceModel model;
    appendCommands(model, rows);
    QCOMPARE(model.commands.size(), 2);
    QCOMPARE(hexBytes(model.commands.at(0).data), ""_ba);
    QCOMPARE(hexBytes(model.commands.at(0).dataMax), ""_ba);
    QCOMPARE(hexBytes(model.commands.at(1).data), ""_ba);
    QCOMPARE(hexBytes(model.commands.at(1).dataMax), "7F"_ba);
}

void tst_CommandTable::fieldsOfARow()
{
    static constexpr CommandRow rows[] = {{"Volume +", 4'000'000'000, 255, "01 02", "FF FF '6'"}};
    DeviceModel model;
    appendCommands(model, rows);
    QCOMPARE(model.commands.size(), 1);
    const CommandEntry entry = model.commands.constFirst();
    QCOMPARE(entry.label, u"Volume +"_s);
    QCOMPARE(entry.commandId, 4'000'000'000U);
    QCOMPARE(int(entry.code), 255);
    QCOMPARE(hexBytes(entry.data), "01 02"_ba);
    QCOMPARE(hexBytes(entry.dataMax), "FF FF 36"_ba);
}

TESSALY_TEST(tst_CommandTable)

#include "tst_commandtable.moc"
