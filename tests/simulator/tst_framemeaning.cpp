// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"
#include "catalogue/lightingmodels.h"
#include "protocol/bytestext.h"
#include "simulator/framedecoder.h"
#include "simulator/framemeaning.h"
#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// A line is "model | ID n | bytes | meaning", as the simulator writes it behind the time. Lines
// that begin with '#' and empty lines are skipped.
QString framesFolder()
{
    return sourcePath(u"tests/simulator/golden/frames"_s);
}

const QString valuesFile = u"values.txt"_s;

QStringList linesOf(const QString &fileName)
{
    QFile file(framesFolder() + u'/' + fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QStringList lines;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (!line.isEmpty() && !line.startsWith(u'#'))
            lines.append(line);
    }
    if (lines.isEmpty())
        qFatal("nothing in %s", qPrintable(file.fileName()));
    return lines;
}

QString column(const QString &line, int index)
{
    const QStringList columns = line.split(u" | "_s);
    return columns.size() == 4 ? columns.at(index) : u"not four columns: "_s + line;
}

/// The offered models, and the DMX bridge that is defined but not offered yet.
QList<DeviceModel> allModels()
{
    DeviceCatalogue models = buildDeviceCatalogue();
    appendLumoBridge(models);
    return models;
}

DeviceModel modelOfName(const QString &name)
{
    for (const DeviceModel &model : allModels()) {
        if (model.name == name)
            return model;
    }
    return {};
}

int ownPlayerId(const DeviceModel &model)
{
    return model.maxPlayerId == 0 ? 0 : 5;
}

QList<DecodedFrame> decoded(const DeviceModel &model, const QByteArray &bytes)
{
    FrameDecoder decoder(model);
    QList<DecodedFrame> frames = decoder.feed(bytes);
    frames += decoder.flush();
    return frames;
}

QString entryText(const CommandEntry &entry)
{
    return u"%1 (id %2, code %3, data %4)"_s.arg(entry.label)
        .arg(entry.commandId)
        .arg(entry.code)
        .arg(hexBytesText(entry.data));
}

} // namespace

class tst_FrameMeaning : public QObject
{
    Q_OBJECT

private slots:
    void linesReadRight_data();
    void linesReadRight();
    void eachCommandOfTheModelOnce_data();
    void eachCommandOfTheModelOnce();
    void oneFileForEachModel();
    void timeComesFirst();
    void ownIdIsWhatTheDeviceAnswersTo();
};

void tst_FrameMeaning::linesReadRight_data()
{
    QTest::addColumn<QString>("line");

    for (const QString &fileName : QDir(framesFolder()).entryList(QDir::Files)) {
        const QStringList lines = linesOf(fileName);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            QTest::addRow("%s, %d: %s", qPrintable(fileName), static_cast<int>(i) + 1,
                          qPrintable(column(lines.at(i), 3)))
                << lines.at(i);
        }
    }
}

void tst_FrameMeaning::linesReadRight()
{
    QFETCH(QString, line);
    const DeviceModel model = modelOfName(column(line, 0));
    QVERIFY2(!model.commands.isEmpty(), qPrintable(column(line, 0)));

    QStringList actual;
    const QByteArray bytes = QByteArray::fromHex(column(line, 2).toLatin1());
    for (const DecodedFrame &frame : decoded(model, bytes)) {
        const QDateTime time(QDate(2026, 3, 7), QTime(9, 5, 30, 125));
        actual.append(frameLine(time, model, ownPlayerId(model), frame));
    }
    QCOMPARE(actual.join(u'\n'), "2026-03-07T09:05:30.125 | "_L1 + line);
}

void tst_FrameMeaning::eachCommandOfTheModelOnce_data()
{
    QTest::addColumn<QString>("fileName");

    for (const QString &fileName : QDir(framesFolder()).entryList(QDir::Files)) {
        if (fileName != valuesFile)
            QTest::addRow("%s", qPrintable(fileName)) << fileName;
    }
}

void tst_FrameMeaning::eachCommandOfTheModelOnce()
{
    QFETCH(QString, fileName);
    const QStringList lines = linesOf(fileName);
    const DeviceModel model = modelOfName(column(lines.first(), 0));

    QStringList actual;
    for (const QString &line : lines) {
        QCOMPARE(column(line, 0), model.name);
        const QByteArray bytes = QByteArray::fromHex(column(line, 2).toLatin1());
        for (const DecodedFrame &frame : decoded(model, bytes))
            actual.append(frame.command ? entryText(frame.command->entry) : u"no frame"_s);
    }
    QStringList expected;
    for (const CommandEntry &entry : model.commands)
        expected.append(entryText(entry));
    QCOMPARE(actual, expected);
}

void tst_FrameMeaning::oneFileForEachModel()
{
    QStringList actual;
    for (const QString &fileName : QDir(framesFolder()).entryList(QDir::Files)) {
        if (fileName != valuesFile)
            actual.append(column(linesOf(fileName).constFirst(), 0));
    }
    QStringList expected;
    for (const DeviceModel &model : allModels())
        expected.append(model.name);
    actual.sort();
    expected.sort();
    QCOMPARE(actual, expected);
    QCOMPARE(actual.size(), 16);
}

void tst_FrameMeaning::timeComesFirst()
{
    const DeviceModel model = modelOfName(u"Tempo Deck"_s);
    const DecodedFrame frame = decoded(model, "\x85\x02\x01"_ba).constFirst();
    const QString rest = u" | Tempo Deck | ID 5 | 85 02 01 | Play"_s;

    QCOMPARE(frameLine(QDateTime(QDate(2027, 12, 31), QTime(23, 59, 59, 999)), model, 5, frame),
             "2027-12-31T23:59:59.999"_L1 + rest);
    QCOMPARE(frameLine(QDateTime(QDate(2026, 1, 2), QTime(0, 0)), model, 5, frame),
             "2026-01-02T00:00:00.000"_L1 + rest);
}

// After a change of its ID, the device answers to the new one only.
void tst_FrameMeaning::ownIdIsWhatTheDeviceAnswersTo()
{
    const DeviceModel model = modelOfName(u"Tempo Deck"_s);
    const QDateTime time(QDate(2026, 3, 7), QTime(9, 5, 30));
    const QString start = u"2026-03-07T09:05:30.000 | Tempo Deck | "_s;
    const DecodedFrame toFive = decoded(model, "\x85\x02\x01"_ba).constFirst();
    const DecodedFrame toZero = decoded(model, "\x80\x02\x01"_ba).constFirst();
    const DecodedFrame noFrame = decoded(model, "\x05"_ba).constFirst();

    QCOMPARE(frameLine(time, model, 0, toZero), start + "ID 0 | 80 02 01 | Play"_L1);
    QCOMPARE(frameLine(time, model, 0, toFive),
             start + "ID 5 | 85 02 01 | Play (for another player, not obeyed)"_L1);
    QCOMPARE(frameLine(time, model, 127, toFive),
             start + "ID 5 | 85 02 01 | Play (for another player, not obeyed)"_L1);
    QCOMPARE(frameLine(time, model, 5, noFrame), start + "no ID | 05 | no frame"_L1);
    QCOMPARE(frameLine(time, model, 0, noFrame), start + "no ID | 05 | no frame"_L1);
}

TESSALY_TEST(tst_FrameMeaning)
#include "tst_framemeaning.moc"
