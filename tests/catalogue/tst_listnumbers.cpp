// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/listnumbers.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;

namespace QTest {

template<>
char *toString(const NumberRange &range)
{
    return qstrdup(qPrintable(u"%1 to %2"_s.arg(range.first).arg(range.last)));
}

} // namespace QTest

namespace {

CommandEntry entry(const QByteArray &dataHex, const QByteArray &dataMaxHex)
{
    return {u"Folder"_s, CommandId::Folder, 1, QByteArray::fromHex(dataHex),
            QByteArray::fromHex(dataMaxHex)};
}

/// A text to be found at a place of a list.
struct Place
{
    qsizetype index;
    QString text;
};

} // namespace

Q_DECLARE_METATYPE(NumberRange)
Q_DECLARE_METATYPE(Place)

class tst_ListNumbers : public QObject
{
    Q_OBJECT

private slots:
    void defaultRangeIsEmpty();
    void byteRanges_data();
    void byteRanges();
    void byteRangeReadsTheHeadByDefault();
    void wordRanges_data();
    void wordRanges();
    void paddedNumbers_data();
    void paddedNumbers();
    void texts_data();
    void texts();
    void folders_data();
    void folders();
    void noFolders_data();
    void noFolders();
    void rangeTexts_data();
    void rangeTexts();
    void numbersInRanges_data();
    void numbersInRanges();
    void numbersFromTexts_data();
    void numbersFromTexts();
};

void tst_ListNumbers::defaultRangeIsEmpty()
{
    const NumberRange range;
    QVERIFY(range.last < range.first);
    QCOMPARE(numberTexts(range), QStringList());
    QCOMPARE(paddedNumberTexts(range), QStringList());
}

void tst_ListNumbers::byteRanges_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("empty");
    QTest::addColumn<NumberRange>("range");

    const NumberRange none;
    QTest::newRow("bytes above 127") << "80"_ba
                                     << "FF"_ba << 0 << false << NumberRange{128, 255};
    QTest::newRow("one value") << "05"_ba
                               << "05"_ba << 0 << false << NumberRange{5, 5};
    QTest::newRow("ends the wrong way round") << "07"_ba
                                              << "06"_ba << 0 << true << NumberRange{7, 6};
    QTest::newRow("second byte") << "00 02 FF"_ba
                                 << "03 E7 FF"_ba << 1 << false << NumberRange{2, 231};
    QTest::newRow("third byte") << "00 01 01"_ba
                                << "03 E7 FF"_ba << 2 << false << NumberRange{1, 255};
    QTest::newRow("no bytes") << ""_ba
                              << ""_ba << 0 << true << none;
    QTest::newRow("no lowest") << ""_ba
                               << "7F"_ba << 0 << true << none;
    QTest::newRow("no highest") << "00"_ba
                                << ""_ba << 0 << true << none;
    QTest::newRow("third byte of two") << "00 01"_ba
                                       << "03 E7"_ba << 2 << true << none;
    QTest::newRow("third byte missing below") << "00 01"_ba
                                              << "03 E7 FF"_ba << 2 << true << none;
    QTest::newRow("third byte missing above") << "00 01 01"_ba
                                              << "03 E7"_ba << 2 << true << none;
}

void tst_ListNumbers::byteRanges()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, dataMax);
    QFETCH(int, index);
    QFETCH(bool, empty);
    QFETCH(NumberRange, range);

    const NumberRange actual = byteRange(entry(data, dataMax), index);
    QCOMPARE(actual, range);
    QCOMPARE(actual.last < actual.first, empty);
}

void tst_ListNumbers::byteRangeReadsTheHeadByDefault()
{
    QCOMPARE(byteRange(entry("0102", "0A0B")), (NumberRange{1, 10}));
}

void tst_ListNumbers::wordRanges_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<bool>("empty");
    QTest::addColumn<NumberRange>("range");

    const NumberRange none;
    QTest::newRow("two bytes") << "00 00"_ba
                               << "00 64"_ba << false << NumberRange{0, 100};
    QTest::newRow("high byte first") << "01 00"_ba
                                     << "01 02"_ba << false << NumberRange{256, 258};
    QTest::newRow("bytes above 127") << "80 80"_ba
                                     << "FF FF"_ba << false << NumberRange{32896, 65535};
    QTest::newRow("ends the wrong way round") << "01 00"_ba
                                              << "00 FF"_ba << true << NumberRange{256, 255};
    QTest::newRow("no bytes") << ""_ba
                              << ""_ba << true << none;
    QTest::newRow("one byte each") << "00"_ba
                                   << "40"_ba << true << none;
    QTest::newRow("one byte below") << "00"_ba
                                    << "00 40"_ba << true << none;
    QTest::newRow("one byte above") << "00 00"_ba
                                    << "40"_ba << true << none;
}

void tst_ListNumbers::wordRanges()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, dataMax);
    QFETCH(bool, empty);
    QFETCH(NumberRange, range);

    const NumberRange actual = wordRange(entry(data, dataMax));
    QCOMPARE(actual, range);
    QCOMPARE(actual.last < actual.first, empty);
}

void tst_ListNumbers::paddedNumbers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("zero") << 0 << u"000"_s;
    QTest::newRow("one digit") << 7 << u"007"_s;
    QTest::newRow("three digits") << 999 << u"999"_s;
    QTest::newRow("four digits") << 1234 << u"1234"_s;
    QTest::newRow("five digits") << 65535 << u"65535"_s;
}

void tst_ListNumbers::paddedNumbers()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QCOMPARE(paddedNumber(number), text);
}

void tst_ListNumbers::texts_data()
{
    QTest::addColumn<NumberRange>("range");
    QTest::addColumn<QStringList>("plain");
    QTest::addColumn<QStringList>("padded");

    QTest::newRow("both ends belong to it")
        << NumberRange{8, 11} << QStringList{u"8"_s, u"9"_s, u"10"_s, u"11"_s}
        << QStringList{u"008"_s, u"009"_s, u"010"_s, u"011"_s};
    QTest::newRow("past three digits") << NumberRange{999, 1000} << QStringList{u"999"_s, u"1000"_s}
                                       << QStringList{u"999"_s, u"1000"_s};
    QTest::newRow("one number") << NumberRange{0, 0} << QStringList{u"0"_s}
                                << QStringList{u"000"_s};
    QTest::newRow("empty") << NumberRange{1, 0} << QStringList() << QStringList();
    QTest::newRow("far from any number") << NumberRange{64, 0} << QStringList() << QStringList();
}

void tst_ListNumbers::texts()
{
    QFETCH(NumberRange, range);
    QFETCH(QStringList, plain);
    QFETCH(QStringList, padded);
    QCOMPARE(numberTexts(range), plain);
    QCOMPARE(paddedNumberTexts(range), padded);
}

void tst_ListNumbers::folders_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<int>("bankCount");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<Place>>("places");

    QTest::newRow("0 to 127, 8 banks, cut in the last")
        << "00"_ba
        << "7F"_ba << 8 << 1000 << QList<Place>{{0, u"000"_s},   {1, u"001"_s},   {99, u"099"_s},
                                                {100, u"100"_s}, {127, u"127"_s}, {128, u"128"_s},
                                                {895, u"895"_s}, {896, u"896"_s}, {999, u"999"_s}};
    QTest::newRow("0 to 127, 7 banks, none cut")
        << "00"_ba
        << "7F"_ba << 7 << 896 << QList<Place>{{0, u"000"_s}, {895, u"895"_s}};
    QTest::newRow("0 to 127, 2 banks")
        << "00"_ba
        << "7F"_ba << 2 << 256
        << QList<Place>{{0, u"000"_s}, {127, u"127"_s}, {128, u"128"_s}, {255, u"255"_s}};
    QTest::newRow("0 to 99, 10 banks")
        << "00"_ba
        << "63"_ba << 10 << 1000 << QList<Place>{{0, u"000"_s},   {99, u"099"_s},  {100, u"100"_s},
                                                 {899, u"899"_s}, {900, u"900"_s}, {999, u"999"_s}};
    QTest::newRow("1 to 99, 2 banks")
        << "01"_ba
        << "63"_ba << 2 << 198
        << QList<Place>{{0, u"001"_s}, {98, u"099"_s}, {99, u"100"_s}, {197, u"198"_s}};
    QTest::newRow("0 to 124, 8 banks")
        << "00"_ba
        << "7C"_ba << 8 << 1000
        << QList<Place>{{0, u"000"_s}, {124, u"124"_s}, {125, u"125"_s}, {999, u"999"_s}};
    QTest::newRow("1 to 127, 8 banks, cut")
        << "01"_ba
        << "7F"_ba << 8 << 999 << QList<Place>{{0, u"001"_s}, {998, u"999"_s}};
    QTest::newRow("one folder a bank, 255 banks")
        << "03"_ba
        << "03"_ba << 255 << 255 << QList<Place>{{0, u"003"_s}, {1, u"004"_s}, {254, u"257"_s}};
    QTest::newRow("bytes above 127, 8 banks, cut")
        << "80"_ba
        << "FF"_ba << 8 << 872
        << QList<Place>{{0, u"128"_s}, {127, u"255"_s}, {128, u"256"_s}, {871, u"999"_s}};
}

void tst_ListNumbers::folders()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, dataMax);
    QFETCH(int, bankCount);
    QFETCH(int, count);
    QFETCH(QList<Place>, places);

    const QStringList texts = folderTexts(entry(data, dataMax), bankCount);
    QCOMPARE(texts.size(), count);
    for (const Place &place : places)
        QCOMPARE(texts.at(place.index), place.text);
    for (qsizetype i = 1; i < texts.size(); ++i)
        QCOMPARE(texts.at(i).toInt(), texts.at(i - 1).toInt() + 1);
}

void tst_ListNumbers::noFolders_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<int>("bankCount");

    QTest::newRow("entry without bytes") << ""_ba
                                         << ""_ba << 8;
    QTest::newRow("no lowest") << ""_ba
                               << "7F"_ba << 8;
    QTest::newRow("no highest") << "00"_ba
                                << ""_ba << 8;
    QTest::newRow("no banks") << "00"_ba
                              << "7F"_ba << 0;
    QTest::newRow("ends the wrong way round") << "7F"_ba
                                              << "00"_ba << 8;
}

void tst_ListNumbers::noFolders()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, dataMax);
    QFETCH(int, bankCount);
    QCOMPARE(folderTexts(entry(data, dataMax), bankCount), QStringList());
}

void tst_ListNumbers::rangeTexts_data()
{
    QTest::addColumn<NumberRange>("range");
    QTest::addColumn<QString>("text");

    QTest::newRow("two ends") << NumberRange{0, 127} << u"0 to 127"_s;
    QTest::newRow("one number") << NumberRange{5, 5} << u"5"_s;
    QTest::newRow("below zero") << NumberRange{-3, 0} << u"-3 to 0"_s;
}

void tst_ListNumbers::rangeTexts()
{
    QFETCH(const NumberRange, range);
    QTEST(rangeText(range), "text");
}

void tst_ListNumbers::numbersInRanges_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<NumberRange>("range");
    QTest::addColumn<QString>("number");

    const QString none = u"none"_s;
    QTest::newRow("the first") << u"1"_s << NumberRange{1, 127} << u"1"_s;
    QTest::newRow("the last") << u"127"_s << NumberRange{1, 127} << u"127"_s;
    QTest::newRow("leading zeros") << u"007"_s << NumberRange{0, 999} << u"7"_s;
    QTest::newRow("below") << u"0"_s << NumberRange{1, 127} << none;
    QTest::newRow("above") << u"128"_s << NumberRange{1, 127} << none;
    QTest::newRow("below zero") << u"-1"_s << NumberRange{0, 127} << none;
    QTest::newRow("five more") << u"+5"_s << NumberRange{0, 127} << none;
    QTest::newRow("no number") << u"1x"_s << NumberRange{0, 127} << none;
    QTest::newRow("nothing") << QString() << NumberRange{0, 127} << none;
    QTest::newRow("more than 32 bits") << u"4294967297"_s << NumberRange{0, 127} << none;
    QTest::newRow("an empty range") << u"0"_s << NumberRange{} << none;
}

void tst_ListNumbers::numbersInRanges()
{
    QFETCH(const QString, text);
    QFETCH(const NumberRange, range);
    const std::optional<int> number = numberInRange(text, range);
    QTEST(number ? QString::number(*number) : u"none"_s, "number");
}

void tst_ListNumbers::numbersFromTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("plain") << u"42"_s << 42;
    QTest::newRow("padded") << u"007"_s << 7;
    QTest::newRow("leading zero is not octal") << u"010"_s << 10;
    QTest::newRow("zero") << u"000"_s << 0;
    QTest::newRow("highest folder") << u"999"_s << 999;
    QTest::newRow("negative") << u"-5"_s << -5;
    QTest::newRow("highest of 32 bits") << u"2147483647"_s << 2147483647;
    QTest::newRow("one too high") << u"2147483648"_s << 0;
    QTest::newRow("lowest of 32 bits") << u"-2147483648"_s << -2147483647 - 1;
    QTest::newRow("one too low") << u"-2147483649"_s << 0;
    QTest::newRow("far too high") << u"99999999999999999999"_s << 0;
    QTest::newRow("null") << QString() << 0;
    QTest::newRow("empty") << u""_s << 0;
    QTest::newRow("word") << u"Folder"_s << 0;
    QTest::newRow("number and word") << u"12 kg"_s << 0;
    QTest::newRow("hexadecimal") << u"0x1F"_s << 0;
    QTest::newRow("hexadecimal digits") << u"1F"_s << 0;
    QTest::newRow("fraction") << u"1.5"_s << 0;
}

void tst_ListNumbers::numbersFromTexts()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QCOMPARE(numberFromText(text), number);
}

TESSALY_TEST(tst_ListNumbers)

#include "tst_listnumbers.moc"
