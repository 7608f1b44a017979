// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/sender/sheetwords.h"
#include "tests/support/senderprogram.h"
#include "tests/support/sheetrows.h"
#include "tests/support/simulatorprogram.h"
#include "tests/support/testregistry.h"

#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int playerId = 5; // of the devices that have one

int ownPlayerId(const ModelSheet &sheet)
{
    return sheet.hasPlayerIds() ? playerId : sheet.lowestPlayerId;
}

/// The line of a script that sends it.
QByteArray scriptLine(const SheetFrame &frame)
{
    return u"\"%1\"\n"_s.arg(wordsFor(frame).join(u"\" \""_s)).toUtf8();
}

/// "Tempo Deck | ID 5 | 80 0C | Set time" of a line with the time of day.
QString withoutTime(const QString &line, const SheetFrame &frame)
{
    const QStringList columns = line.split(u" | "_s);
    if (columns.size() != 4 || !columns.at(3).startsWith(frame.command.label))
        return line;
    return QStringList{columns.at(0), columns.at(1), columns.at(2).section(u' ', 0, 1),
                       frame.command.label}
        .join(u" | "_s);
}

} // namespace

/// tessaly-send with the simulator of every model.
class tst_SimulatedDevices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void noAnswer();
    void answers_data();
    void answers();
    // Last, as a device may then answer to another player ID.
    void everyCommand_data() { addModelRows(); }
    void everyCommand();

private:
    QStringList linkTo(const ModelSheet &sheet);

    const QTemporaryDir m_folder;
    SimulatorProgram m_simulator;
};

void tst_SimulatedDevices::initTestCase()
{
    QVERIFY(m_simulator.start({u"--all"_s, u"--id"_s, QString::number(playerId), u"--address"_s,
                               SimulatorProgram::firstAddress().toString(), u"--link"_s,
                               m_folder.filePath(u"ports"_s)}));
}

/// The options that lead to the simulated device.
QStringList tst_SimulatedDevices::linkTo(const ModelSheet &sheet)
{
    const QString place = m_simulator.endpoint(sheet.name);
    QStringList options{u"--model"_s, sheet.name};
    options += sheet.isTcp ? QStringList{u"--host"_s, place.section(u' ', 0, 0)}
                           : QStringList{u"--port"_s, place};
    if (sheet.hasPlayerIds())
        options += {u"--id"_s, QString::number(playerId)};
    return options;
}

void tst_SimulatedDevices::everyCommand()
{
    QFETCH(const ModelSheet, sheet);

    // A new player ID comes last: the device does not obey the old one any longer.
    QList<SheetFrame> frames = framesOf(sheet);
    std::stable_partition(frames.begin(), frames.end(),
                          [](const SheetFrame &frame) { return frame.command.id != 11; });
    QByteArray script;
    QStringList expected;
    bool isObeyed = true;
    for (const SheetFrame &frame : std::as_const(frames)) {
        script += scriptLine(frame);
        const QString line = logLine(sheet, frame, ownPlayerId(sheet));
        expected.append(frame.carriesTime() ? withoutTime(line, frame) : line);
        if (!isObeyed)
            expected.last() += " (for another player, not obeyed)"_L1;
        isObeyed = isObeyed && frame.command.id != 11;
    }
    m_simulator.forgetFrames();
    SenderProgram sender;
    const int status = sender.run(
        linkTo(sheet) + QStringList{u"--gap"_s, u"0"_s, u"--script"_s, u"-"_s}, script);
    QCOMPARE(sender.errors(), QByteArray());
    QCOMPARE(status, 0);
    QCOMPARE(sender.output(), QByteArray());

    QTRY_VERIFY(m_simulator.frames().size() >= frames.size());
    QStringList understood = m_simulator.frames();
    for (qsizetype i = 0; i < frames.size(); ++i) {
        if (frames.at(i).carriesTime())
            understood[i] = withoutTime(understood.at(i), frames.at(i));
    }
    QCOMPARE(understood, expected);
}

void tst_SimulatedDevices::answers_data()
{
    QTest::addColumn<QString>("model");

    QTest::newRow("serial") << u"Ampra One"_s;
    QTest::newRow("network") << u"Vistar Show - SV500 (TCP/IP)"_s;
    QTest::newRow("connected for each command") << u"Sonet A Lite (TCP/IP)"_s;
}

void tst_SimulatedDevices::answers()
{
    QFETCH(const QString, model);

    const ModelSheet &sheet = sheetOf(model);
    const SheetFrame frame = framesOf(sheet).constFirst();
    SenderProgram sender;
    // Longer and longer, as others use the machine, too.
    for (int wait = 100; wait <= 6400; wait *= 2) {
        if (sender.run(linkTo(sheet)
                           + QStringList{u"--wait"_s, QString::number(wait), u"--script"_s, u"-"_s},
                       scriptLine(frame))
            == 0) {
            break;
        }
        QCOMPARE(sender.errors(), QByteArray());
    }
    QCOMPARE(sender.output(), "OK " + frame.meaning().toUtf8() + "\r\n");
}

/// To another player than the one that is there.
void tst_SimulatedDevices::noAnswer()
{
    SenderProgram sender;
    const QStringList link{u"--model=Tempo Deck"_s, u"--port"_s,
                           m_simulator.endpoint(u"Tempo Deck"_s)};
    QCOMPARE(sender.run(link + QStringList{u"--id=6"_s, u"--wait=50"_s, u"play"_s}), 1);
    QCOMPARE(sender.output(), QByteArray());
    QCOMPARE(sender.errors(), QByteArray());
}

TESSALY_TEST(tst_SimulatedDevices)
#include "tst_simulateddevices.moc"
