// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/nearesttexts.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;

class tst_NearestTexts : public QObject
{
    Q_OBJECT

private slots:
    void nearest_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("nearest");

        const QStringList animals{u"Elephant"_s, u"Cat"_s, u"Caterpillar"_s, u"Rhinoceros"_s,
                                  u"Wildcat"_s};
        QTest::newRow("nothing to choose from") << u"cat"_s << QStringList{} << QStringList{};
        QTest::newRow("the text itself first")
            << u"Rhinoceros"_s << animals << QStringList{u"Rhinoceros"_s};
        QTest::newRow("a letter missing")
            << u"rinoceros"_s << animals << QStringList{u"Rhinoceros"_s};
        QTest::newRow("a letter too many")
            << u"rhinnoceros"_s << animals << QStringList{u"Rhinoceros"_s};
        QTest::newRow("a wrong letter")
            << u"Rhinozeros"_s << animals << QStringList{u"Rhinoceros"_s};
        QTest::newRow("upper and lower case are alike")
            << u"ELEPHANT"_s << animals << QStringList{u"Elephant"_s};
        QTest::newRow("the beginning of a text")
            << u"eleph"_s << animals << QStringList{u"Elephant"_s};
        QTest::newRow("a part of several texts, in their order")
            << u"CAT"_s << animals << QStringList{u"Cat"_s, u"Caterpillar"_s, u"Wildcat"_s};
        QTest::newRow("a misspelt beginning")
            << u"katerp"_s << animals << QStringList{u"Caterpillar"_s};
        QTest::newRow("blanks around do not count")
            << u"  cat "_s << QStringList{u"  xyz"_s, u"Wildcat"_s} << QStringList{u"Wildcat"_s};
        QTest::newRow("several blanks count as one")
            << u"show \t deck"_s << QStringList{u"Show Dark"_s, u"Old Show Deck"_s}
            << QStringList{u"Old Show Deck"_s, u"Show Dark"_s};
        QTest::newRow("three at most")
            << u"deck"_s << QStringList{u"Deck 1"_s, u"Deck 2"_s, u"Deck 3"_s, u"Deck 4"_s}
            << QStringList{u"Deck 1"_s, u"Deck 2"_s, u"Deck 3"_s};
        QTest::newRow("the more similar first")
            << u"abcdef"_s << QStringList{u"abcxyf"_s, u"abcdxf"_s, u"abcdef"_s}
            << QStringList{u"abcdef"_s, u"abcdxf"_s, u"abcxyf"_s};
        QTest::newRow("two letters more than the most similar, three not")
            << u"abcdef"_s << QStringList{u"axyzef"_s, u"abxyef"_s, u"abcdef"_s}
            << QStringList{u"abcdef"_s, u"abxyef"_s};
        QTest::newRow("equals keep their order")
            << u"ab"_s << QStringList{u"ax"_s, u"xb"_s} << QStringList{u"ax"_s, u"xb"_s};
        QTest::newRow("nothing similar still gives something")
            << u"zzzz"_s << QStringList{u"Cat"_s} << QStringList{u"Cat"_s};
        QTest::newRow("an empty text is the beginning of all")
            << QString() << animals << QStringList{u"Elephant"_s, u"Cat"_s, u"Caterpillar"_s};
        QTest::newRow("empty texts to choose from")
            << u"a"_s << QStringList{QString(), u"a"_s} << QStringList{u"a"_s, QString()};
        QTest::newRow("beyond ASCII")
            << u"ÉCRAN"_s << QStringList{u"écran"_s, u"xxxxx"_s} << QStringList{u"écran"_s};
    }

    void nearest()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, texts);
        QFETCH(const QStringList, nearest);
        QCOMPARE(nearestTexts(text, texts), nearest);
    }

    void question()
    {
        QCOMPARE(didYouMean(u"Tempo Dack"_s, {u"Ampra One"_s, u"Tempo Deck"_s}),
                 u"\"Tempo Dack\". Did you mean \"Tempo Deck\"?"_s);
        QCOMPARE(didYouMean(u"cat"_s, {u"Cat"_s, u"Wildcat"_s}),
                 u"\"cat\". Did you mean \"Cat\" or \"Wildcat\"?"_s);
    }

    // What a name may be mistyped as is typed by anybody; it must not take long.
    void longTexts()
    {
        const QString text(10'000, u'a');
        QCOMPARE(nearestTexts(text, {u"Tempo Deck"_s, u"Ampra One"_s}),
                 QStringList({u"Ampra One"_s, u"Tempo Deck"_s}));
    }
};

TESSALY_TEST(tst_NearestTexts)
#include "tst_nearesttexts.moc"
