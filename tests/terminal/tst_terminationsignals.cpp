// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "terminal/terminationsignals.h"
#include "tests/support/testregistry.h"

#include <QSignalSpy>

#include <csignal>

class tst_TerminationSignals : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            std::signal(number, SIG_DFL);
    }

    void raised_data()
    {
        QTest::addColumn<int>("number");

        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void raised()
    {
        QFETCH(const int, number);

        const TerminationSignals watched;
        QSignalSpy spy(&watched, &TerminationSignals::raised);
        QVERIFY(std::raise(number) == 0);
        QTRY_COMPARE(spy, QList<QList<QVariant>>{{number}});
        // One end is enough.
        QVERIFY(std::raise(number) == 0);
        QVERIFY(!spy.wait(100));
    }

    void ignored_data() { raised_data(); }

    void ignored()
    {
        QFETCH(const int, number);

        std::signal(number, SIG_IGN);
        {
            const TerminationSignals watched;
            QSignalSpy spy(&watched, &TerminationSignals::raised);
            QVERIFY(std::raise(number) == 0);
            QVERIFY(!spy.wait(100));
        }
        QVERIFY(std::signal(number, SIG_DFL) == SIG_IGN);
    }

    void defaultAgain()
    {
        {
            const TerminationSignals watched;
        }
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            QVERIFY(std::signal(number, SIG_DFL) == SIG_DFL);
    }
};

TESSALY_TEST(tst_TerminationSignals)
#include "tst_terminationsignals.moc"
