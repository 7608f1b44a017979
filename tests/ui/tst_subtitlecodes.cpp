// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "goldenlines.h"
#include "tests/support/consolewindow.h"
#include "tests/support/testmain.h"
#include "ui/subtitlecodes.h"
#include "windowstate.h"

#include <QApplication>
#include <QComboBox>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList trackNumbers()
{
    QStringList numbers;
    for (int number = 0; number <= 127; ++number)
        numbers.append(QString::number(number));
    return numbers;
}

/// The row, counted from 1, in which a text stands; 0 when it is not in the list.
qsizetype rowOf(const QString &text, const QStringList &list)
{
    return list.indexOf(text) + 1;
}

} // namespace

class tst_SubtitleCodes : public QObject
{
    Q_OBJECT

private slots:
    void typeTexts();
    void values_data();
    void values();
    void positions_data();
    void positions();
    void substitutions_data();
    void substitutions();
    void substitutionsAreTheOnlyOnes();
    void iso6393DiffersInThreeCodes();
    void unknownType_data();
    void unknownType();

    void windowOffersValues_data();
    void windowOffersValues();
    void activatingAgainReturnsToTheFirstRow_data();
    void activatingAgainReturnsToTheFirstRow();
    void windowOffersNothingForUnknownType_data();
    void windowOffersNothingForUnknownType();
};

void tst_SubtitleCodes::typeTexts()
{
    QCOMPARE(subtitleTypeIso6392B, u"ISO639-2 (B)"_s);
    QCOMPARE(subtitleTypeIso6392T, u"ISO639-2 (T)"_s);
    QCOMPARE(subtitleTypeIso6393, u"ISO639-3"_s);
    QCOMPARE(subtitleTypeIndex, u"Index"_s);
}

void tst_SubtitleCodes::values_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("count");

    QTest::newRow("bibliographic") << u"ISO639-2 (B)"_s << goldenCodes(u"iso639_2b.txt"_s) << 488;
    QTest::newRow("terminology") << u"ISO639-2 (T)"_s << goldenCodes(u"iso639_2t.txt"_s) << 488;
    QTest::newRow("ISO639-3") << u"ISO639-3"_s << goldenCodes(u"iso639_3.txt"_s) << 489;
    QTest::newRow("track numbers") << u"Index"_s << trackNumbers() << 128;
}

void tst_SubtitleCodes::values()
{
    QFETCH(const QString, type);
    QFETCH(const QStringList, expected);
    QFETCH(const int, count);

    const QStringList actual = subtitleValues(type);
    QCOMPARE(actual.size(), count);
    const QByteArray differences = lineDifferences(actual, expected);
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(QSet<QString>(actual.begin(), actual.end()).size(), count);
}

void tst_SubtitleCodes::positions_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("row");

    QTest::newRow("(B) begins") << u"ISO639-2 (B)"_s << u"aar"_s << 1;
    QTest::newRow("(B) ends") << u"ISO639-2 (B)"_s << u"zza"_s << 488;
    QTest::newRow("(B) French") << u"ISO639-2 (B)"_s << u"fre"_s << 138;
    QTest::newRow("(B) Kimbundu, the devices' own code") << u"ISO639-2 (B)"_s << u"kim"_s << 226;
    QTest::newRow("(B) no ISO code of Kimbundu") << u"ISO639-2 (B)"_s << u"kmb"_s << 0;
    QTest::newRow("(B) Serbian, withdrawn code") << u"ISO639-2 (B)"_s << u"scc"_s << 374;
    QTest::newRow("(B) no range for local use") << u"ISO639-2 (B)"_s << u"qaa"_s << 0;
    QTest::newRow("(T) begins") << u"ISO639-2 (T)"_s << u"aar"_s << 1;
    QTest::newRow("(T) ends") << u"ISO639-2 (T)"_s << u"zza"_s << 488;
    QTest::newRow("(T) French, out of order") << u"ISO639-2 (T)"_s << u"fra"_s << 138;
    QTest::newRow("(T) Kimbundu, out of order") << u"ISO639-2 (T)"_s << u"kmb"_s << 226;
    QTest::newRow("639-3 begins") << u"ISO639-3"_s << u"aar"_s << 1;
    QTest::newRow("639-3 ends") << u"ISO639-3"_s << u"zza"_s << 489;
    QTest::newRow("639-3 hbs behind haw") << u"ISO639-3"_s << u"haw"_s << 173;
    QTest::newRow("639-3 hbs") << u"ISO639-3"_s << u"hbs"_s << 174;
    QTest::newRow("639-3 hbs before heb") << u"ISO639-3"_s << u"heb"_s << 175;
    QTest::newRow("639-3 rcf behind rar") << u"ISO639-3"_s << u"rar"_s << 358;
    QTest::newRow("639-3 rcf") << u"ISO639-3"_s << u"rcf"_s << 359;
    QTest::newRow("639-3 rcf before roa") << u"ISO639-3"_s << u"roa"_s << 360;
    QTest::newRow("639-3 no ypk") << u"ISO639-3"_s << u"ypk"_s << 0;
    QTest::newRow("track 0") << u"Index"_s << u"0"_s << 1;
    QTest::newRow("track 127") << u"Index"_s << u"127"_s << 128;
}

void tst_SubtitleCodes::positions()
{
    QFETCH(const QString, type);
    QFETCH(const QString, value);
    QFETCH(const int, row);

    QCOMPARE(rowOf(value, subtitleValues(type)), row);
}

void tst_SubtitleCodes::substitutions_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("bibliographic");
    QTest::addColumn<QString>("terminology");

    const struct
    {
        int row;
        const char *bibliographic;
        const char *terminology;
    } replaced[] = {
        {13, "alb", "sqi"},  {24, "arm", "hye"},  {44, "baq", "eus"},  {66, "bur", "mya"},
        {79, "chi", "zho"},  {102, "cze", "ces"}, {117, "dut", "nld"}, {138, "fre", "fra"},
        {150, "geo", "kat"}, {151, "ger", "deu"}, {165, "gre", "ell"}, {188, "ice", "isl"},
        {226, "kim", "kmb"}, {263, "mac", "mkd"}, {271, "mao", "mri"}, {275, "may", "msa"},
        {344, "per", "fas"}, {361, "rum", "ron"}, {374, "scc", "srp"}, {388, "slo", "slk"},
        {429, "tib", "bod"}, {468, "wel", "cym"},
    };
    for (const auto &code : replaced) {
        QTest::newRow(code.bibliographic) << code.row << QString::fromLatin1(code.bibliographic)
                                          << QString::fromLatin1(code.terminology);
    }
}

void tst_SubtitleCodes::substitutions()
{
    QFETCH(const int, row);
    QFETCH(const QString, bibliographic);
    QFETCH(const QString, terminology);

    QCOMPARE(subtitleValues(u"ISO639-2 (B)"_s).at(row - 1), bibliographic);
    QCOMPARE(subtitleValues(u"ISO639-2 (T)"_s).at(row - 1), terminology);
    QVERIFY(!subtitleValues(u"ISO639-2 (T)"_s).contains(bibliographic));
    QVERIFY(!subtitleValues(u"ISO639-3"_s).contains(bibliographic));
    QVERIFY(subtitleValues(u"ISO639-3"_s).contains(terminology));
}

void tst_SubtitleCodes::substitutionsAreTheOnlyOnes()
{
    const QStringList bibliographic = subtitleValues(u"ISO639-2 (B)"_s);
    const QStringList terminology = subtitleValues(u"ISO639-2 (T)"_s);
    QCOMPARE(terminology.size(), bibliographic.size());
    int different = 0;
    for (qsizetype row = 0; row < bibliographic.size(); ++row)
        different += bibliographic.at(row) == terminology.at(row) ? 0 : 1;
    QCOMPARE(different, 22);
}

void tst_SubtitleCodes::iso6393DiffersInThreeCodes()
{
    QStringList codes = subtitleValues(u"ISO639-3"_s);
    QVERIFY(codes.removeOne(u"hbs"_s));
    QVERIFY(codes.removeOne(u"rcf"_s));
    codes.insert(codes.indexOf(u"zap"_s), u"ypk"_s);
    QCOMPARE(codes, subtitleValues(u"ISO639-2 (T)"_s));
}

void tst_SubtitleCodes::unknownType_data()
{
    QTest::addColumn<QString>("type");

    QTest::newRow("empty") << QString();
    QTest::newRow("lower case") << u"index"_s;
    QTest::newRow("upper case") << u"INDEX"_s;
    QTest::newRow("lower case letter in a code type") << u"ISO639-2 (b)"_s;
    QTest::newRow("lower case code type") << u"iso639-3"_s;
    QTest::newRow("beginning of a type") << u"ISO639-2"_s;
    QTest::newRow("label of the command") << u"ISO639"_s;
    QTest::newRow("blank at the end") << u"Index "_s;
}

void tst_SubtitleCodes::unknownType()
{
    QFETCH(const QString, type);

    QCOMPARE(subtitleValues(type), QStringList());
}

void tst_SubtitleCodes::windowOffersValues_data()
{
    values_data();
}

void tst_SubtitleCodes::windowOffersValues()
{
    QFETCH(const QString, type);
    QFETCH(const QStringList, expected);
    QFETCH(const int, count);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
    QVERIFY(console.selectText("comboBox_Subtitles_Type", type));
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    emit types->activated(types->currentIndex());

    const QStringList actual = rowsOf(console.window, "comboBox_Subtitles_Value");
    QCOMPARE(actual.size(), count);
    const QByteArray differences = lineDifferences(actual, expected);
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(console.find<QComboBox>("comboBox_Subtitles_Value")->currentIndex(), 0);
}

void tst_SubtitleCodes::activatingAgainReturnsToTheFirstRow_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("count");

    QTest::newRow("bibliographic") << u"ISO639-2 (B)"_s << u"aar"_s << 488;
    QTest::newRow("terminology") << u"ISO639-2 (T)"_s << u"aar"_s << 488;
    QTest::newRow("ISO639-3") << u"ISO639-3"_s << u"aar"_s << 489;
    QTest::newRow("track numbers") << u"Index"_s << u"0"_s << 128;
}

void tst_SubtitleCodes::activatingAgainReturnsToTheFirstRow()
{
    QFETCH(const QString, type);
    QFETCH(const QString, first);
    QFETCH(const int, count);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Vistar Home - HV4xx (TCP/IP)"_s));
    QVERIFY(console.selectText("comboBox_Subtitles_Type", type));
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    auto *values = console.find<QComboBox>("comboBox_Subtitles_Value");
    emit types->activated(types->currentIndex());
    values->setCurrentIndex(77);

    emit types->activated(types->currentIndex());
    QCOMPARE(values->currentText(), first);
    QCOMPARE(values->count(), count);
}

void tst_SubtitleCodes::windowOffersNothingForUnknownType_data()
{
    unknownType_data();
}

void tst_SubtitleCodes::windowOffersNothingForUnknownType()
{
    QFETCH(const QString, type);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    types->clear();
    if (!type.isEmpty())
        types->addItem(type);

    console.window.on_comboBox_Subtitles_Type_activated();
    QCOMPARE(rowsOf(console.window, "comboBox_Subtitles_Value"), QStringList());
}

TESSALY_WINDOW_TEST(tst_SubtitleCodes)
#include "tst_subtitlecodes.moc"
