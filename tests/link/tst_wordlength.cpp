// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/wordlength.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;

class tst_WordLength : public QObject
{
    Q_OBJECT

private slots:
    void longest_data();
    void longest();
};

void tst_WordLength::longest_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");

    QTest::newRow("nothing") << u""_s << 0;
    QTest::newRow("blanks") << u" \t\r\n "_s << 0;
    QTest::newRow("one word") << u"Volume"_s << 6;
    QTest::newRow("the first") << u"Volume: 64\r\n"_s << 7;
    QTest::newRow("the second") << u"OK, playing 1"_s << 7;
    QTest::newRow("the last") << u" 1 22 333"_s << 3;
    QTest::newRow("between tabs and line ends") << u"a\tbb\nccc\rdd\u2028e"_s << 3;
    QTest::newRow("zero bytes") << u"OK "_s + QString(5, QChar::Null) << 5;
    QTest::newRow("what was no UTF-8") << u"\uFFFD\uFFFD \uFFFD"_s << 2;
    QTest::newRow("no-break blanks") << u"1\u00A0000\u202F000\u2007000 000"_s << 13;
    QTest::newRow("long") << u"x y\n"_s.repeated(1000) + u"z"_s.repeated(70'000) + u" x"_s
                          << 70'000;
}

void tst_WordLength::longest()
{
    QFETCH(const QString, text);
    QTEST(int(longestWord(text)), "length");
}

TESSALY_TEST(tst_WordLength)
#include "tst_wordlength.moc"
