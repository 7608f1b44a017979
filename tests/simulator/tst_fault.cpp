// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/answerplayer.h"
#include "simulator/deviceconnection.h"
#include "simulator/fault.h"
#include "tests/support/hexbytes.h"
#include "tests/support/testregistry.h"

#include <QElapsedTimer>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype mebibyte = 1'048'576;

/// Writes down what goes out, and when.
class FakeConnection : public DeviceConnection
{
public:
    struct Event
    {
        QByteArray what;
        qint64 moment = 0; // in ms
    };

    FakeConnection()
        : DeviceConnection(nullptr)
    {
        m_clock.start();
    }

    void send(const QByteArray &bytes) override
    {
        m_size += bytes.size();
        note(bytes.size() > 64 ? QByteArray::number(bytes.size()) + " bytes" : bytes);
    }
    void hangUp() override { note("(hangs up)"_ba); }

    QByteArray said() const
    {
        QByteArrayList texts;
        for (const Event &event : m_events)
            texts.append(event.what);
        return texts.join('|');
    }
    qsizetype size() const { return m_size; }
    const QList<Event> &events() const { return m_events; }

private:
    void note(const QByteArray &what) { m_events.append({what, m_clock.elapsed()}); }

    QElapsedTimer m_clock;
    QList<Event> m_events;
    qsizetype m_size = 0;
};

/// "20 ms 4F 4B (hangs up)"
QString stepText(const AnswerStep &step)
{
    return u"%1 ms %2%3"_s.arg(step.pause.count())
        .arg(QLatin1String(hexBytes(step.bytes)), step.hangsUp ? u" (hangs up)"_s : QString());
}

} // namespace

class tst_Fault : public QObject
{
    Q_OBJECT

private slots:
    void names()
    {
        QVERIFY(faultNames().contains(u"hang-up"_s));
        for (const QString &name : faultNames()) {
            QVERIFY2(makeFault(name), qPrintable(name));
            QVERIFY2(faultDescriptions().contains(u"  %1 "_s.arg(name, -13)), qPrintable(name));
        }
        for (const QString &name : {u""_s, u"Hang-up"_s, u"hangup"_s, u"no-answer "_s})
            QVERIFY2(!makeFault(name), qPrintable(name));
    }

    void descriptions()
    {
        const QStringList lines = faultDescriptions().split(u'\n');
        QCOMPARE(lines.constFirst(), u"  no-answer     commands are obeyed and never answered"_s);
        QCOMPARE(lines.constLast(), QString());
        for (const QString &line : lines)
            QVERIFY2(line.size() < 80, qPrintable(line));
    }

    void steps_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QStringList>("steps");

        QTest::newRow("no-answer") << u"no-answer"_s << "OK\r\n"_ba << QStringList{};
        QTest::newRow("single-bytes")
            << u"single-bytes"_s << "OK\r\n"_ba
            << QStringList{u"20 ms 4F"_s, u"20 ms 4B"_s, u"20 ms 0D"_s, u"20 ms 0A"_s};
        QTest::newRow("garbage") << u"garbage"_s << "OK\r\n"_ba
                                 << QStringList{u"0 ms 00 80 FF FE 7F 4F 4B 0D 0A "
                                                "C3 28 F0 9F 1B 5B 32 4A E2 82"_s};
        QTest::newRow("hang-up") << u"hang-up"_s << "OK\r\n"_ba
                                 << QStringList{u"0 ms 4F 4B (hangs up)"_s};
        QTest::newRow("hang-up, odd length")
            << u"hang-up"_s << "OK!\r\n"_ba << QStringList{u"0 ms 4F 4B (hangs up)"_s};
        QTest::newRow("refuse") << u"refuse"_s << "OK\r\n"_ba << QStringList{u"0 ms 4F 4B 0D 0A"_s};
    }

    void steps()
    {
        QFETCH(const QString, fault);
        QFETCH(const QByteArray, answer);
        QFETCH(const QStringList, steps);

        QStringList texts;
        for (const AnswerStep &step : makeFault(fault)->steps(answer))
            texts.append(stepText(step));
        QCOMPARE(texts, steps);
    }

    void markup()
    {
        const QList<AnswerStep> steps = makeFault(u"markup"_s)->steps("OK Play\r\n"_ba);
        QCOMPARE(steps.size(), 1);
        QCOMPARE(
            steps.front().bytes,
            "<b>OK Play</b> <img src=\"http://127.0.0.1:9/device.png\">"
            "<img src=\"file:///etc/hostname\"><a href=\"http://127.0.0.1:9/\">more</a>\r\n"_ba);
        QVERIFY(!steps.front().hangsUp);
        QCOMPARE(steps.front().pause, 0ms);
    }

    void megabyte()
    {
        for (const QByteArray &answer : {"OK Play\r\n"_ba, "OK\r\n"_ba, "x"_ba}) {
            const QList<AnswerStep> steps = makeFault(u"megabyte"_s)->steps(answer);
            QCOMPARE(steps.size(), 1);
            QVERIFY(!steps.front().hangsUp);
            const QByteArray &bytes = steps.front().bytes;
            QCOMPARE(bytes.size(), 1'048'576);
            for (qsizetype i = 0; i < bytes.size(); ++i) {
                if (bytes.at(i) != answer.at(i % answer.size()))
                    QFAIL(qPrintable(u"byte %1 is %2"_s.arg(i).arg(quint8(bytes.at(i)))));
            }
        }
    }

    void outages()
    {
        for (const QString &name : faultNames())
            QCOMPARE(makeFault(name)->outage(), name == u"refuse" ? 3'000ms : 0ms);
    }

    void answersInOrder()
    {
        FakeConnection connection;
        auto *player = new AnswerPlayer(&connection);
        player->play({{0ms, "one"_ba}, {0ms, "two"_ba}});
        player->play({});
        player->play({{0ms, "three"_ba}});
        // Without a pause, all is sent before play() returns.
        QCOMPARE(connection.said(), "one|two|three"_ba);
        player->play({{10ms, "four"_ba}});
        player->play({{0ms, "five"_ba}});
        QCOMPARE(connection.said(), "one|two|three"_ba);
        QTRY_COMPARE(connection.said(), "one|two|three|four|five"_ba);
    }

    void pauses()
    {
        FakeConnection connection;
        auto *player = new AnswerPlayer(&connection);
        player->play({{30ms, "one"_ba}, {100ms, "two"_ba}, {0ms, "three"_ba}});
        player->play({{50ms, "four"_ba}});
        QTRY_COMPARE(connection.said(), "one|two|three|four"_ba);

        // Timers may be late, never early; the clock counts whole milliseconds.
        const QList<FakeConnection::Event> events = connection.events();
        QVERIFY2(events.at(0).moment >= 28, qPrintable(QString::number(events.at(0).moment)));
        const qint64 second = events.at(1).moment - events.at(0).moment;
        QVERIFY2(second >= 94, qPrintable(QString::number(second)));
        const qint64 fourth = events.at(3).moment - events.at(2).moment;
        QVERIFY2(fourth >= 46, qPrintable(QString::number(fourth)));
    }

    void queueIsBounded()
    {
        FakeConnection connection;
        auto *player = new AnswerPlayer(&connection);
        player->play({{10ms, QByteArray(3 * mebibyte, 'a')}});
        player->play({{0ms, QByteArray(mebibyte, 'b')}, {0ms, "x"_ba}}); // one byte too many
        player->play({{0ms, QByteArray(mebibyte - 1, 'c')}});
        player->play({{0ms, "d"_ba}});
        player->play({{0ms, "e"_ba}}); // there is no room left
        QTRY_COMPARE(connection.said(), "3145728 bytes|1048575 bytes|d"_ba);

        // What has gone out makes room again.
        player->play({{0ms, QByteArray(4 * mebibyte, 'f')}});
        QTRY_COMPARE(connection.said(), "3145728 bytes|1048575 bytes|d|4194304 bytes"_ba);
        QCOMPARE(connection.size(), 8 * mebibyte);
    }

    void oneAnswerIsBounded()
    {
        FakeConnection connection;
        auto *player = new AnswerPlayer(&connection);
        player->play({{0ms, QByteArray(4 * mebibyte + 1, 'a')}});
        player->play({{0ms, "b"_ba}});
        QTRY_COMPARE(connection.said(), "b"_ba);
    }

    void hangUpClearsTheRest()
    {
        FakeConnection connection;
        auto *player = new AnswerPlayer(&connection);
        player->play({{10ms, "one"_ba},
                      {0ms, "two"_ba, true},
                      {0ms, "three"_ba},
                      {0ms, QByteArray(3 * mebibyte, 'a')}});
        player->play({{0ms, "four"_ba}});
        QTRY_COMPARE(connection.said(), "one|two|(hangs up)"_ba);

        // The room of what was cleared is free again, and a line that comes back is served.
        player->play({{0ms, QByteArray(4 * mebibyte, 'b')}});
        QTRY_COMPARE(connection.said(), "one|two|(hangs up)|4194304 bytes"_ba);
    }

    void hangUpWithoutBytes()
    {
        FakeConnection connection;
        auto *player = new AnswerPlayer(&connection);
        player->play({{0ms, "one"_ba}});
        player->play({{0ms, {}, true}});
        QTRY_COMPARE(connection.said(), "one||(hangs up)"_ba);
    }

    void playerGoesWithItsConnection()
    {
        auto connection = std::make_unique<FakeConnection>();
        const QPointer<AnswerPlayer> player = new AnswerPlayer(connection.get());
        player->play({{0ms, "one"_ba}});
        connection.reset();
        QVERIFY(player.isNull());
    }
};

TESSALY_TEST(tst_Fault)
#include "tst_fault.moc"
