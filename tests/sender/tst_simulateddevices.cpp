// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"
#include "tests/support/senderprogram.h"
#include "tests/support/simulatorprogram.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The frames that the simulator's own tests know: "Tempo Deck | ID 5 | 85 02 01 | Play", one for
/// each command, by their models.
QMap<QString, QStringList> goldenFrames()
{
    QMap<QString, QStringList> frames;
    const QDir folder(sourcePath(u"tests/simulator/golden/frames"_s));
    for (const QString &name : folder.entryList({u"*.txt"_s}, QDir::Files)) {
        if (name == "values.txt"_L1 || name == "lumo_bridge.txt"_L1)
            continue;
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(name));
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            if (line.contains(" | "_L1))
                frames[line.section(" | "_L1, 0, 0)].append(line);
        }
    }
    return frames;
}

/// What a user types to have that frame.
QString wordsOf(const QString &frame)
{
    static const QRegularExpression clock(u"^(Set (time|date|date/time|UTC.*\\))) \\d.*$"_s);
    static const QRegularExpression subtitles(u"^Subtitles (\\w+) \\(.*$"_s);
    return frame.section(" | "_L1, 3)
        .replace(clock, u"\\1"_s)
        .replace(subtitles, u"subtitles \\1"_s)
        .replace("Request: "_L1, "request "_L1)
        .replace(", option "_L1, " "_L1);
}

/// A frame, of those with the computer's time without that.
QString timeless(const QString &frame)
{
    static const QRegularExpression clock(
        u"^(.* \\| .. ..) [^|]* \\| (Set (time|date|date/time|UTC.*\\))) \\d.*$"_s);
    return QString(frame).replace(clock, u"\\1 | \\2"_s);
}

} // namespace

/// The program before the simulator of every model.
class tst_SimulatedDevices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void noAnswer();
    void answers_data() { addModels(); }
    void answers();
    // Last, as a device may then answer to another player ID.
    void everyCommand_data() { addModels(); }
    void everyCommand();

private:
    static void addModels();
    QStringList linkTo(const QString &model);

    const QTemporaryDir m_folder;
    SimulatorProgram m_simulator;
};

void tst_SimulatedDevices::initTestCase()
{
    QVERIFY(m_simulator.start({u"--all"_s, u"--id"_s, u"5"_s, u"--address"_s,
                               TcpPeer::address().toString(), u"--link"_s,
                               m_folder.filePath(u"ports"_s)}));
}

void tst_SimulatedDevices::addModels()
{
    QTest::addColumn<QStringList>("frames");

    const QMap<QString, QStringList> frames = goldenFrames();
    QCOMPARE(frames.size(), 15);
    for (auto row = frames.begin(); row != frames.end(); ++row)
        QTest::addRow("%s", qPrintable(row.key())) << row.value();
}

/// The options that lead to the simulated device.
QStringList tst_SimulatedDevices::linkTo(const QString &model)
{
    const QString place = m_simulator.endpoint(model);
    QStringList options{u"--model"_s, model};
    if (model.contains("(TCP/IP)"_L1))
        return options + QStringList{u"--host"_s, place.section(u' ', 0, 0)};
    options += {u"--port"_s, place};
    if (!model.startsWith("Sonet"_L1))
        options += {u"--id"_s, u"5"_s};
    return options;
}

void tst_SimulatedDevices::everyCommand()
{
    QFETCH(const QStringList, frames);

    QByteArray script;
    QStringList expected;
    for (const QString &frame : frames) {
        script += wordsOf(frame).toUtf8() + '\n';
        expected.append(timeless(frame));
    }
    m_simulator.forgetFrames();
    SenderProgram sender;
    const QString model = QString::fromUtf8(QTest::currentDataTag());
    const int status = sender.run(
        linkTo(model) + QStringList{u"--gap"_s, u"0"_s, u"--script"_s, u"-"_s}, script);
    QCOMPARE(sender.errors(), QByteArray());
    QCOMPARE(status, 0);
    QCOMPARE(sender.output(), QByteArray());

    QTRY_VERIFY(m_simulator.frames().size() >= frames.size());
    QStringList understood;
    for (const QString &frame : m_simulator.frames())
        understood.append(timeless(frame));
    QCOMPARE(understood, expected);
}

void tst_SimulatedDevices::answers()
{
    QFETCH(const QStringList, frames);

    const QString model = QString::fromUtf8(QTest::currentDataTag());
    SenderProgram sender;
    // Longer and longer, as others use the machine, too.
    for (int wait = 100; wait <= 6400; wait *= 2) {
        if (sender.run(linkTo(model)
                           + QStringList{u"--wait"_s, QString::number(wait), u"--script"_s, u"-"_s},
                       wordsOf(frames.constFirst()).toUtf8())
            == 0) {
            break;
        }
        QCOMPARE(sender.errors(), QByteArray());
    }
    QCOMPARE(sender.output(), "OK " + frames.constFirst().section(" | "_L1, 3).toUtf8() + "\r\n");
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
