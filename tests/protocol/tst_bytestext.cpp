// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/bytestext.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;

class tst_BytesText : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data();
    void bytes();
    void everyByte_data();
    void everyByte();
    void hexFromDecimal_data();
    void hexFromDecimal();
    void decimalFromHex_data();
    void decimalFromHex();
    void longText();
};

void tst_BytesText::bytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("hexText");
    QTest::addColumn<QString>("decimalText");

    QTest::newRow("none") << ""_ba << u""_s << u""_s;
    QTest::newRow("play for player 5")
        << QByteArray("\x85\x02\x01", 3) << u"85 02 01"_s << u"133 2 1"_s;
    QTest::newRow("zeros inside and at the ends")
        << QByteArray("\0\x01\0\x02\0", 5) << u"00 01 00 02 00"_s << u"0 1 0 2 0"_s;
    QTest::newRow("text") << "cmd32"_ba << u"63 6D 64 33 32"_s << u"99 109 100 51 50"_s;
}

void tst_BytesText::bytes()
{
    QFETCH(QByteArray, bytes);
    QTEST(hexBytesText(bytes), "hexText");
    QTEST(decimalBytesText(bytes), "decimalText");
}

void tst_BytesText::everyByte_data()
{
    QTest::addColumn<QString>("hexText");
    QTest::addColumn<QString>("decimalText");

    QTest::newRow("00 to 0F") << u"00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F"_s
                              << u"0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15"_s;
    QTest::newRow("10 to 1F") << u"10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F"_s
                              << u"16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31"_s;
    QTest::newRow("20 to 2F") << u"20 21 22 23 24 25 26 27 28 29 2A 2B 2C 2D 2E 2F"_s
                              << u"32 33 34 35 36 37 38 39 40 41 42 43 44 45 46 47"_s;
    QTest::newRow("30 to 3F") << u"30 31 32 33 34 35 36 37 38 39 3A 3B 3C 3D 3E 3F"_s
                              << u"48 49 50 51 52 53 54 55 56 57 58 59 60 61 62 63"_s;
    QTest::newRow("40 to 4F") << u"40 41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E 4F"_s
                              << u"64 65 66 67 68 69 70 71 72 73 74 75 76 77 78 79"_s;
    QTest::newRow("50 to 5F") << u"50 51 52 53 54 55 56 57 58 59 5A 5B 5C 5D 5E 5F"_s
                              << u"80 81 82 83 84 85 86 87 88 89 90 91 92 93 94 95"_s;
    QTest::newRow("60 to 6F") << u"60 61 62 63 64 65 66 67 68 69 6A 6B 6C 6D 6E 6F"_s
                              << u"96 97 98 99 100 101 102 103 104 105 106 107 108 109 110 111"_s;
    QTest::newRow("70 to 7F")
        << u"70 71 72 73 74 75 76 77 78 79 7A 7B 7C 7D 7E 7F"_s
        << u"112 113 114 115 116 117 118 119 120 121 122 123 124 125 126 127"_s;
    QTest::newRow("80 to 8F")
        << u"80 81 82 83 84 85 86 87 88 89 8A 8B 8C 8D 8E 8F"_s
        << u"128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143"_s;
    QTest::newRow("90 to 9F")
        << u"90 91 92 93 94 95 96 97 98 99 9A 9B 9C 9D 9E 9F"_s
        << u"144 145 146 147 148 149 150 151 152 153 154 155 156 157 158 159"_s;
    QTest::newRow("A0 to AF")
        << u"A0 A1 A2 A3 A4 A5 A6 A7 A8 A9 AA AB AC AD AE AF"_s
        << u"160 161 162 163 164 165 166 167 168 169 170 171 172 173 174 175"_s;
    QTest::newRow("B0 to BF")
        << u"B0 B1 B2 B3 B4 B5 B6 B7 B8 B9 BA BB BC BD BE BF"_s
        << u"176 177 178 179 180 181 182 183 184 185 186 187 188 189 190 191"_s;
    QTest::newRow("C0 to CF")
        << u"C0 C1 C2 C3 C4 C5 C6 C7 C8 C9 CA CB CC CD CE CF"_s
        << u"192 193 194 195 196 197 198 199 200 201 202 203 204 205 206 207"_s;
    QTest::newRow("D0 to DF")
        << u"D0 D1 D2 D3 D4 D5 D6 D7 D8 D9 DA DB DC DD DE DF"_s
        << u"208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223"_s;
    QTest::newRow("E0 to EF")
        << u"E0 E1 E2 E3 E4 E5 E6 E7 E8 E9 EA EB EC ED EE EF"_s
        << u"224 225 226 227 228 229 230 231 232 233 234 235 236 237 238 239"_s;
    QTest::newRow("F0 to FF")
        << u"F0 F1 F2 F3 F4 F5 F6 F7 F8 F9 FA FB FC FD FE FF"_s
        << u"240 241 242 243 244 245 246 247 248 249 250 251 252 253 254 255"_s;
}

void tst_BytesText::everyByte()
{
    QFETCH(QString, hexText);
    QFETCH(QString, decimalText);

    const QByteArray bytes = QByteArray::fromHex(hexText.toLatin1());
    QCOMPARE(bytes.size(), 16);
    QCOMPARE(hexBytesText(bytes), hexText);
    QCOMPARE(decimalBytesText(bytes), decimalText);
    QCOMPARE(hexFromDecimalText(decimalText), hexText);
    QCOMPARE(decimalFromHexText(hexText), decimalText);
}

void tst_BytesText::hexFromDecimal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("play for player 5") << u"133 2 1"_s << u"85 02 01"_s;
    QTest::newRow("empty text: one empty token") << u""_s << u"00"_s;
    QTest::newRow("null text") << QString() << u"00"_s;
    QTest::newRow("single blank: two empty tokens") << u" "_s << u"00 00"_s;
    QTest::newRow("double blank: an empty token between") << u"1  2"_s << u"01 00 02"_s;
    QTest::newRow("leading blank") << u" 1"_s << u"00 01"_s;
    QTest::newRow("trailing blank") << u"1 "_s << u"01 00"_s;
    QTest::newRow("above a byte: as many digits as it takes") << u"256 4096"_s << u"100 1000"_s;
    QTest::newRow("highest 32-bit number") << u"2147483647"_s << u"7FFFFFFF"_s;
    QTest::newRow("above 32 bits") << u"2147483648 1"_s << u"00 01"_s;
    QTest::newRow("far above 64 bits") << u"99999999999999999999999"_s << u"00"_s;
    QTest::newRow("letters") << u"abc 10 FF"_s << u"00 0A 00"_s;
    QTest::newRow("fraction") << u"1.5"_s << u"00"_s;
    QTest::newRow("dots") << u"..."_s << u"00"_s;
    QTest::newRow("below 32 bits") << u"-2147483649"_s << u"00"_s;
}

void tst_BytesText::hexFromDecimal()
{
    QFETCH(QString, text);
    QTEST(hexFromDecimalText(text), "expected");
}

void tst_BytesText::decimalFromHex_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("play for player 5") << u"85 02 01"_s << u"133 2 1"_s;
    QTest::newRow("empty text: one empty token") << u""_s << u"0"_s;
    QTest::newRow("null text") << QString() << u"0"_s;
    QTest::newRow("one digit") << u"0"_s << u"0"_s;
    QTest::newRow("single blank: two empty tokens") << u" "_s << u"0 0"_s;
    QTest::newRow("double blank: an empty token between") << u"01  0A"_s << u"1 0 10"_s;
    QTest::newRow("leading blank") << u" 01"_s << u"0 1"_s;
    QTest::newRow("trailing blank") << u"01 "_s << u"1 0"_s;
    QTest::newRow("lower case") << u"ff 0a"_s << u"255 10"_s;
    QTest::newRow("above a byte") << u"100 FFFF"_s << u"256 65535"_s;
    QTest::newRow("highest 32-bit number") << u"7FFFFFFF"_s << u"2147483647"_s;
    QTest::newRow("above 32 bits") << u"80000000 FFFFFFFF 01"_s << u"0 0 1"_s;
    QTest::newRow("far above 64 bits") << u"FFFFFFFFFFFFFFFFFFFFFFFF"_s << u"0"_s;
    QTest::newRow("no digits") << u"xyz 0G ... 10"_s << u"0 0 0 16"_s;
    QTest::newRow("negative") << u"-1"_s << u"-1"_s;
}

void tst_BytesText::decimalFromHex()
{
    QFETCH(QString, text);
    QTEST(decimalFromHexText(text), "expected");
}

void tst_BytesText::longText()
{
    constexpr int count = 65536;
    const QByteArray bytes(count, '\xFE');
    const QString hexText = u"FE "_s.repeated(count).chopped(1);
    const QString decimalText = u"254 "_s.repeated(count).chopped(1);
    QCOMPARE(hexBytesText(bytes), hexText);
    QCOMPARE(decimalBytesText(bytes), decimalText);
    QCOMPARE(hexFromDecimalText(decimalText), hexText);
    QCOMPARE(decimalFromHexText(hexText), decimalText);
}

TESSALY_TEST(tst_BytesText)

#include "tst_bytestext.moc"
