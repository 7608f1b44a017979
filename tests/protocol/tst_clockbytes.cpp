// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandid.h"
#include "protocol/clockbytes.h"
#include "tests/support/hexbytes.h"
#include "tests/support/testregistry.h"

#include <QTimeZone>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Written out with their rules, so that no time zone data has to be installed.
constexpr char auckland[] = "NZST-12NZDT,M9.5.0,M4.1.0/3";
constexpr char kathmandu[] = "NPT-5:45";
constexpr char paris[] = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr char greenwich[] = "UTC0";
constexpr char losAngeles[] = "PST8PDT,M3.2.0,M11.1.0";
constexpr char farEast[] = "EST-14";
constexpr char farWest[] = "WST12";

void setZone(const QByteArray &zone)
{
    // A zone that was not set has no name at all; an empty one would mean UTC.
    if (zone.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", zone);
    ::tzset();
}

QDateTime utc(const QString &text)
{
    QDateTime moment = QDateTime::fromString(text, u"yyyy-MM-dd HH:mm:ss.zzz"_s);
    if (!moment.isValid())
        moment = QDateTime::fromString(text, u"yyyy-MM-dd HH:mm:ss"_s);
    moment.setTimeZone(QTimeZone::utc());
    return moment;
}

} // namespace

class tst_ClockBytes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (qEnvironmentVariableIsSet("TZ"))
            m_zone = qgetenv("TZ");
    }
    void cleanup() { setZone(m_zone); }

    void literals_data();
    void literals();
    void epoch_data();
    void epoch();
    void zones_data();
    void zones();
    void centuryTurn_data();
    void centuryTurn();
    void momentInAnyTimeSpec();
    void otherIdsAreEmpty_data();
    void otherIdsAreEmpty();

private:
    QByteArray m_zone;
};

void tst_ClockBytes::literals_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QByteArray>("bytes");

    const QString day = u"2026-03-07 21:08:59.999"_s;
    QTest::newRow("time") << 27U << day << "15 08 3B"_ba;
    QTest::newRow("date") << 28U << day << "1A 03 07"_ba;
    QTest::newRow("date and time") << 29U << day << "1A 03 07 15 08 3B"_ba;
    QTest::newRow("epoch") << 30U << day << "06 4D 32 27 6B"_ba;
    QTest::newRow("UTC date and time") << 31U << day << "1A 03 07 15 08 3B"_ba;

    const QString firstSecond = u"2000-01-01 00:00:00"_s;
    QTest::newRow("time of the first second") << 27U << firstSecond << "00 00 00"_ba;
    QTest::newRow("year 2000 counts as 0") << 28U << firstSecond << "00 01 01"_ba;
    QTest::newRow("UTC year 2000 counts as 0") << 31U << firstSecond << "00 01 01 00 00 00"_ba;

    const QString lastSecond = u"1999-12-31 23:59:59"_s;
    QTest::newRow("time of the last second") << 27U << lastSecond << "17 3B 3B"_ba;
    QTest::newRow("year 1999 counts as 99") << 28U << lastSecond << "63 0C 1F"_ba;
    QTest::newRow("UTC year 1999 counts as 99") << 31U << lastSecond << "63 0C 1F 17 3B 3B"_ba;
    QTest::newRow("leap day") << 29U << u"2028-02-29 12:00:00"_s << "1C 02 1D 0C 00 00"_ba;
}

void tst_ClockBytes::literals()
{
    QFETCH(quint32, id);
    QFETCH(QString, moment);
    QFETCH(QByteArray, bytes);
    setZone(greenwich);

    QCOMPARE(hexBytes(clockBytes(id, utc(moment))), bytes);
}

void tst_ClockBytes::epoch_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("0") << Q_INT64_C(0) << "00 00 00 00 00"_ba;
    QTest::newRow("999 ms is no second yet") << Q_INT64_C(999) << "00 00 00 00 00"_ba;
    QTest::newRow("1") << Q_INT64_C(1000) << "00 00 00 00 01"_ba;
    QTest::newRow("highest of bits 0 to 6") << Q_INT64_C(127000) << "00 00 00 00 7F"_ba;
    QTest::newRow("bit 7") << Q_INT64_C(128000) << "00 00 00 01 00"_ba;
    QTest::newRow("bit 14") << Q_INT64_C(16384000) << "00 00 01 00 00"_ba;
    QTest::newRow("bit 21") << Q_INT64_C(2097152000) << "00 01 00 00 00"_ba;
    QTest::newRow("bit 28") << Q_INT64_C(268435456000) << "01 00 00 00 00"_ba;
    QTest::newRow("1 700 000 000") << Q_INT64_C(1700000000000) << "06 2A 4F 62 00"_ba;
    QTest::newRow("1 700 000 000 and 999 ms") << Q_INT64_C(1700000000999) << "06 2A 4F 62 00"_ba;
    QTest::newRow("one second later") << Q_INT64_C(1700000001000) << "06 2A 4F 62 01"_ba;
    QTest::newRow("beyond 31 bits") << Q_INT64_C(2147483648000) << "08 00 00 00 00"_ba;
    QTest::newRow("beyond 32 bits") << Q_INT64_C(4294967296000) << "10 00 00 00 00"_ba;
    QTest::newRow("largest of 35 bits") << Q_INT64_C(34359738367000) << "7F 7F 7F 7F 7F"_ba;
    QTest::newRow("largest of 35 bits and 999 ms")
        << Q_INT64_C(34359738367999) << "7F 7F 7F 7F 7F"_ba;
    QTest::newRow("bit 35 is cut off") << Q_INT64_C(34359738368000) << "00 00 00 00 00"_ba;
}

void tst_ClockBytes::epoch()
{
    QFETCH(qint64, milliseconds);
    QFETCH(QByteArray, bytes);

    for (const char *zone : {farEast, greenwich, farWest}) {
        setZone(zone);
        const QDateTime moment = QDateTime::fromMSecsSinceEpoch(milliseconds, QTimeZone::utc());
        QCOMPARE(hexBytes(clockBytes(CommandId::SetUtcEpoch, moment)), bytes);
        QCOMPARE(hexBytes(clockBytes(CommandId::SetUtcEpoch, moment.toLocalTime())), bytes);
    }
}

void tst_ClockBytes::zones_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("moment"); // UTC
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("dateTime");
    QTest::addColumn<QByteArray>("utcDateTime");

    // clang-format off
    QTest::newRow("Auckland, 31 December")
        << QByteArray(auckland) << u"2026-12-31 10:59:59"_s
        << "17 3B 3B"_ba << "1A 0C 1F"_ba << "1A 0C 1F 17 3B 3B"_ba << "1A 0C 1F 0A 3B 3B"_ba;
    QTest::newRow("Auckland, 1 January while UTC is in the old year")
        << QByteArray(auckland) << u"2026-12-31 11:00:00"_s
        << "00 00 00"_ba << "1B 01 01"_ba << "1B 01 01 00 00 00"_ba << "1A 0C 1F 0B 00 00"_ba;
    QTest::newRow("Auckland, winter time")
        << QByteArray(auckland) << u"2026-06-30 12:00:00"_s
        << "00 00 00"_ba << "1A 07 01"_ba << "1A 07 01 00 00 00"_ba << "1A 06 1E 0C 00 00"_ba;

    QTest::newRow("Kathmandu, 1 January while UTC is in the old year")
        << QByteArray(kathmandu) << u"2026-12-31 18:15:00"_s
        << "00 00 00"_ba << "1B 01 01"_ba << "1B 01 01 00 00 00"_ba << "1A 0C 1F 12 0F 00"_ba;

    QTest::newRow("Paris, 1 January while UTC is in the old year")
        << QByteArray(paris) << u"2026-12-31 23:00:00"_s
        << "00 00 00"_ba << "1B 01 01"_ba << "1B 01 01 00 00 00"_ba << "1A 0C 1F 17 00 00"_ba;
    QTest::newRow("Paris, summer time")
        << QByteArray(paris) << u"2026-07-14 22:30:00"_s
        << "00 1E 00"_ba << "1A 07 0F"_ba << "1A 07 0F 00 1E 00"_ba << "1A 07 0E 16 1E 00"_ba;


    QTest::newRow("Los Angeles, 31 December while UTC is in the new year")
        << QByteArray(losAngeles) << u"2027-01-01 07:59:59"_s
        << "17 3B 3B"_ba << "1A 0C 1F"_ba << "1A 0C 1F 17 3B 3B"_ba << "1B 01 01 07 3B 3B"_ba;
    QTest::newRow("Los Angeles, summer time")
        << QByteArray(losAngeles) << u"2026-07-14 06:59:59"_s
        << "17 3B 3B"_ba << "1A 07 0D"_ba << "1A 07 0D 17 3B 3B"_ba << "1A 07 0E 06 3B 3B"_ba;
    // clang-format on
}

void tst_ClockBytes::zones()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, moment);
    QFETCH(QByteArray, time);
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, dateTime);
    QFETCH(QByteArray, utcDateTime);
    setZone(zone);

    const QDateTime now = utc(moment);
    QCOMPARE(hexBytes(clockBytes(CommandId::SetTime, now)), time);
    QCOMPARE(hexBytes(clockBytes(CommandId::SetDate, now)), date);
    QCOMPARE(hexBytes(clockBytes(CommandId::SetDateTime, now)), dateTime);
    QCOMPARE(hexBytes(clockBytes(CommandId::SetUtcFull, now)), utcDateTime);
}

// The UTC year counts from the century of the local year, deliberately.
void tst_ClockBytes::centuryTurn_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("moment"); // UTC
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("utcDateTime");

    QTest::newRow("local 2100, UTC 2099")
        << QByteArray(farEast) << u"2099-12-31 10:00:00"_s << "00 01 01"_ba
        << "FF 0C 1F 0A 00 00"_ba;
    QTest::newRow("local 2099, UTC 2100")
        << QByteArray(farWest) << u"2100-01-01 11:59:59"_s << "63 0C 1F"_ba
        << "64 01 01 0B 3B 3B"_ba;
    QTest::newRow("both 2099 in the east")
        << QByteArray(farEast) << u"2099-12-31 09:59:59"_s << "63 0C 1F"_ba
        << "63 0C 1F 09 3B 3B"_ba;
    QTest::newRow("both 2100 in the west")
        << QByteArray(farWest) << u"2100-01-01 12:00:00"_s << "00 01 01"_ba
        << "00 01 01 0C 00 00"_ba;
    QTest::newRow("local 2000, UTC 1999")
        << QByteArray(farEast) << u"1999-12-31 23:59:59"_s << "00 01 01"_ba
        << "FF 0C 1F 17 3B 3B"_ba;
    QTest::newRow("local 1999, UTC 2000")
        << QByteArray(farWest) << u"2000-01-01 00:00:00"_s << "63 0C 1F"_ba
        << "64 01 01 00 00 00"_ba;
}

void tst_ClockBytes::centuryTurn()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, moment);
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, utcDateTime);
    setZone(zone);

    const QDateTime now = utc(moment);
    QCOMPARE(hexBytes(clockBytes(CommandId::SetDate, now)), date);
    QCOMPARE(hexBytes(clockBytes(CommandId::SetUtcFull, now)), utcDateTime);
}

// The moment counts, not the clock on which the caller has read it.
void tst_ClockBytes::momentInAnyTimeSpec()
{
    setZone(losAngeles);
    const QDateTime now = utc(u"2027-01-01 07:59:59"_s);

    for (const QDateTime &same : {now, now.toLocalTime(), now.toOffsetFromUtc(13 * 3600)}) {
        QCOMPARE(hexBytes(clockBytes(CommandId::SetTime, same)), "17 3B 3B"_ba);
        QCOMPARE(hexBytes(clockBytes(CommandId::SetDate, same)), "1A 0C 1F"_ba);
        QCOMPARE(hexBytes(clockBytes(CommandId::SetDateTime, same)), "1A 0C 1F 17 3B 3B"_ba);
        QCOMPARE(hexBytes(clockBytes(CommandId::SetUtcEpoch, same)), "06 59 5D 39 7F"_ba);
        QCOMPARE(hexBytes(clockBytes(CommandId::SetUtcFull, same)), "1B 01 01 07 3B 3B"_ba);
    }
}

void tst_ClockBytes::otherIdsAreEmpty_data()
{
    QTest::addColumn<quint32>("id");

    for (const quint32 id : {0U, 1U, 9U, 10U, 23U, 26U, 32U, 39U, 45U, 99U, 283U, 0xFFFFFFFFU})
        QTest::addRow("%u", id) << id;
}

void tst_ClockBytes::otherIdsAreEmpty()
{
    QFETCH(quint32, id);

    QCOMPARE(clockBytes(id, utc(u"2026-03-07 21:08:59"_s)), QByteArray());
}

TESSALY_TEST(tst_ClockBytes)
#include "tst_clockbytes.moc"
