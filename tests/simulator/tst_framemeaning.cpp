// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framedecoder.h"
#include "simulator/framemeaning.h"
#include "tests/support/builtmodels.h"
#include "tests/support/folders.h"
#include "tests/support/sheetframes.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime &moment()
{
    static const QDateTime time(QDate(2026, 3, 7), QTime(9, 5, 30, 125));
    return time;
}

const QString timeColumn = u"2026-03-07T09:05:30.125 | "_s;
const QString notObeyed = u" (for another player, not obeyed)"_s;

QList<DecodedFrame> decoded(const DeviceModel &model, const QByteArray &bytes)
{
    FrameDecoder decoder(model);
    QList<DecodedFrame> frames = decoder.feed(bytes);
    frames += decoder.flush();
    return frames;
}

/// What the log of a device with that ID shows for the bytes.
QString logLines(const DeviceModel &model, int playerId, const QByteArray &bytes)
{
    QStringList lines;
    for (const DecodedFrame &frame : decoded(model, bytes))
        lines.append(frameLine(moment(), model, playerId, frame));
    return lines.join(u'\n');
}

} // namespace

class tst_FrameMeaning : public QObject
{
    Q_OBJECT

private slots:
    void framesOfTheModel_data() { addAllModelRows(); }
    void framesOfTheModel();
    void framesOfTheFamily_data();
    void framesOfTheFamily();
    void timeComesFirst();
};

void tst_FrameMeaning::framesOfTheModel()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel model = builtModel(sheet.name);
    for (const int own : sheet.playerIdSamples()) {
        for (const int addressed : sheet.playerIdSamples()) {
            for (const SheetFrame &frame : framesOf(sheet)) {
                QCOMPARE(logLines(model, own, sheet.addressed(frame.bytes, addressed)),
                         timeColumn + logLine(sheet, frame, addressed)
                             + (own == addressed ? QString() : notObeyed));
            }
        }
    }
}

void tst_FrameMeaning::framesOfTheFamily_data()
{
    QTest::addColumn<QString>("line");

    QFile file(sourcePath(u"tests/simulator/golden/readings.txt"_s));
    QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.errorString()));
    for (int number = 1; !file.atEnd(); ++number) {
        const QString line = QString::fromUtf8(file.readLine()).chopped(1);
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        QCOMPARE(line.count(" | "_L1), 3);
        QTest::addRow("line %d: %s", number, qPrintable(line.section(u" | "_s, 3))) << line;
    }
}

void tst_FrameMeaning::framesOfTheFamily()
{
    QFETCH(const QString, line);
    const DeviceModel model = builtModel(line.section(u" | "_s, 0, 0));
    const int playerId = model.maxPlayerId == 0 ? 0 : 5;
    const QByteArray bytes = QByteArray::fromHex(line.section(u" | "_s, 2, 2).toLatin1());
    QCOMPARE(logLines(model, playerId, bytes), timeColumn + line);
}

void tst_FrameMeaning::timeComesFirst()
{
    const DeviceModel model = builtModel(u"Tempo Deck"_s);
    const DecodedFrame frame = decoded(model, "\x85\x02\x01"_ba).constFirst();
    const QString rest = u" | Tempo Deck | ID 5 | 85 02 01 | Play"_s;

    QCOMPARE(frameLine(QDateTime(QDate(2027, 12, 31), QTime(23, 59, 59, 999)), model, 5, frame),
             "2027-12-31T23:59:59.999"_L1 + rest);
    QCOMPARE(frameLine(QDateTime(QDate(2026, 1, 2), QTime(0, 0)), model, 5, frame),
             "2026-01-02T00:00:00.000"_L1 + rest);
}

TESSALY_TEST(tst_FrameMeaning)
#include "tst_framemeaning.moc"
