// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "goldenlines.h"
#include "tests/support/consolewindow.h"
#include "tests/support/testmain.h"
#include "windowstate.h"

#include <QApplication>
#include <QComboBox>

using namespace Qt::Literals::StringLiterals;

class tst_SubtitleCodes : public QObject
{
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void unknownType_data();
    void unknownType();
};

void tst_SubtitleCodes::values_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    QStringList trackNumbers;
    for (int number = 0; number <= 127; ++number)
        trackNumbers.append(QString::number(number));
    QTest::newRow("bibliographic") << u"ISO639-2 (B)"_s << goldenCodes(u"iso639_2b.txt"_s);
    QTest::newRow("terminology") << u"ISO639-2 (T)"_s << goldenCodes(u"iso639_2t.txt"_s);
    QTest::newRow("ISO639-3") << u"ISO639-3"_s << goldenCodes(u"iso639_3.txt"_s);
    QTest::newRow("track numbers") << u"Index"_s << trackNumbers;
}

void tst_SubtitleCodes::values()
{
    QFETCH(const QString, type);
    QFETCH(const QStringList, expected);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
    QVERIFY(console.selectText("comboBox_Subtitles_Type", type));
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    auto *values = console.find<QComboBox>("comboBox_Subtitles_Value");
    // The second time, the list is filled again and its first row is the current one again.
    for (int turn = 0; turn < 2; ++turn) {
        emit types->activated(types->currentIndex());
        const QByteArray differences
            = lineDifferences(rowsOf(console.window, "comboBox_Subtitles_Value"), expected);
        QVERIFY2(differences.isEmpty(), differences.constData());
        QCOMPARE(values->currentIndex(), 0);
        values->setCurrentIndex(77);
    }
}

void tst_SubtitleCodes::unknownType_data()
{
    QTest::addColumn<QString>("type");

    QTest::newRow("none") << QString();
    QTest::newRow("lower case") << u"index"_s;
    QTest::newRow("lower case letter in a code type") << u"ISO639-2 (b)"_s;
    QTest::newRow("beginning of a type") << u"ISO639-2"_s;
    QTest::newRow("label of the command") << u"ISO639"_s;
    QTest::newRow("space at the end") << u"Index "_s;
}

void tst_SubtitleCodes::unknownType()
{
    QFETCH(const QString, type);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    types->clear();
    if (!type.isNull())
        types->addItem(type);

    console.window.on_comboBox_Subtitles_Type_activated();
    QCOMPARE(rowsOf(console.window, "comboBox_Subtitles_Value"), QStringList());
}

TESSALY_WINDOW_TEST(tst_SubtitleCodes)
#include "tst_subtitlecodes.moc"
