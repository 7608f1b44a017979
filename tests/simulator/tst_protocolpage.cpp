// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/lightingmodels.h"
#include "simulator/protocolpage.h"
#include "tests/support/folders.h"
#include "tests/support/hexbytes.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

#include <QFile>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

QString committedPath()
{
    return sourcePath(u"docs/protocol.md"_s);
}

/// A row of a command table: label, value, bytes and, of text messages, their text.
struct Row
{
    QString label;
    QString value;
    QString bytes;
    QString message;
};

/// The rows below the heading that names the model; none when no heading or several do.
QList<Row> rowsOf(const QString &page, const QString &model)
{
    QList<Row> rows;
    int headings = 0;
    bool isInside = false;
    for (const QString &line : page.split(u'\n')) {
        if (line.startsWith("### "_L1)) {
            isInside = line.sliced(4).split(u", "_s).contains(model);
            headings += isInside ? 1 : 0;
        } else if (isInside && line.startsWith("| "_L1) && !line.startsWith("| ---"_L1)) {
            QStringList cells = line.sliced(1).split(u'|');
            for (QString &cell : cells)
                cell = cell.remove(u'`').trimmed();
            rows.append({cells.value(0), cells.value(1), cells.value(2), cells.value(3)});
        }
    }
    if (headings == 1 && !rows.isEmpty())
        return rows.sliced(1); // without the titles
    return {};
}

/// What a command's row says, "value: bytes"; one line for each row of that label.
QString commandText(const QString &page, const QString &model, const QString &label)
{
    QStringList texts;
    for (const Row &row : rowsOf(page, model)) {
        if (row.label == label)
            texts.append((row.value.isEmpty() ? QString() : row.value + ": "_L1) + row.bytes);
    }
    return texts.join(u'\n');
}

/// "80 0C .. .. ..": the page is about another moment than the sheets.
QString withoutTime(const QString &bytes)
{
    return bytes.section(u' ', 0, 1) + QString(u" .."_s).repeated(bytes.count(u' ') - 1);
}

/// How the page names the command.
QString pageTitle(const SheetCommand &command)
{
    return command.id == 10 ? command.meaning({}) : command.label;
}

} // namespace

class tst_ProtocolPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void committedPage_data();
    void committedPage();
    void bytes_data();
    void bytes();
    void messages_data();
    void messages();
    void commandsOfTheModel_data() { addModelRows(); }
    void commandsOfTheModel();
    void model_data() { addModelRows(); }
    void model();
    void outputContacts();

private:
    QString m_page;
};

void tst_ProtocolPage::initTestCase()
{
    m_page = protocolPage(buildDeviceCatalogue());
}

void tst_ProtocolPage::committedPage_data()
{
    QTest::addColumn<QString>("timeZone");

    QTest::newRow("in London") << u"UTC0"_s;
    QTest::newRow("a day ahead, with daylight saving time") << u"AAA-13BBB-14,M1.1.0,M12.1.0"_s;
    QTest::newRow("hours behind") << u"CCC11"_s;
}

void tst_ProtocolPage::committedPage()
{
    QFETCH(QString, timeZone);

    QProcess simulator;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TZ"_s, timeZone);
    simulator.setProcessEnvironment(environment);
    simulator.start(programPath(u"tessaly-simulator"_s), {u"--protocol"_s});
    QVERIFY(simulator.waitForFinished());
    QCOMPARE(simulator.readAllStandardError(), ""_ba);
    QCOMPARE(simulator.exitCode(), 0);

    QProcess diff;
    diff.start(u"diff"_s, {u"--unified"_s, u"--label=docs/protocol.md"_s, u"--label=catalogue"_s,
                           committedPath(), u"-"_s});
    QVERIFY(diff.waitForStarted());
    diff.write(simulator.readAllStandardOutput());
    diff.closeWriteChannel();
    QVERIFY(diff.waitForFinished());
    const QByteArray difference = diff.readAllStandardOutput() + diff.readAllStandardError();
    if (diff.exitCode() != 0) {
        qWarning().noquote() << difference;
        QFAIL("docs/protocol.md does not match the catalogue. Print it again with\n"
              "build/dev/bin/tessaly-simulator --protocol > docs/protocol.md");
    }
}

void tst_ProtocolPage::bytes_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *model, const char *command, const char *expected) {
        QTest::addRow("%s, %s", model, command)
            << QString::fromLatin1(model) << QString::fromLatin1(command)
            << QString::fromLatin1(expected);
    };
    // What the lowest and highest values of the sheets do not show.
    const char *const video = "Vistar Home - HV4xx (TCP/IP)";
    row(video, "Set time", "80 0C 0E 05 09");
    row(video, "Set date", "80 1C 1A 03 07");
    row(video, "Set date/time", "80 2C 1A 03 07 0E 05 09");
    // 1772892309 s
    row(video, "Set UTC/GMT date/time (epoch version)", "80 3C 06 4D 30 61 15");
    row(video, "Set UTC/GMT date/time (full version)", "80 4C 1A 03 07 0E 05 09");
    row(video, "ISO639", "aar ... zza: 80 1D 61 61 72 ... 80 1D 7A 7A 61");
    row("HV1xx (Serial) (legacy)", "Folder", "0 ... 255: 80 01 00 ... 80 11 7F");
    row("Sonet A (Serial)", "SPOT folder (Sequential + Reset)",
        "1, option 1 ... 999, option 255: 14 00 01 01 ... 14 03 E7 FF");
}

void tst_ProtocolPage::bytes()
{
    QFETCH(QString, model);
    QFETCH(QString, command);
    QFETCH(QString, expected);

    QCOMPARE(commandText(m_page, model, command), expected);
}

void tst_ProtocolPage::messages_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("message");

    QTest::newRow("file step") << u"Next File"_s << u"cmd 35 255 255"_s;
    QTest::newRow("source") << u"Webradio"_s << u"cmd 64 1 0 ... cmd 64 10 0"_s;
    QTest::newRow("request") << u"Request: Webradio 10 name"_s << u"get WRadio10Name"_s;
    QTest::newRow("volume") << u"Volume"_s
                            << u"set VolumeLocalMusic -64 ... set VolumeLocalMusic 0"_s;
}

void tst_ProtocolPage::messages()
{
    QFETCH(QString, command);
    QFETCH(QString, message);

    QStringList messages;
    for (const Row &row : rowsOf(m_page, u"Sonet A Lite (TCP/IP)"_s)) {
        if (row.label == command)
            messages.append(row.message);
    }
    QCOMPARE(messages, QStringList{message});
}

void tst_ProtocolPage::commandsOfTheModel()
{
    QFETCH(const ModelSheet, sheet);
    QStringList expected;
    QStringList actual;
    for (const SheetCommand &command : sheet.commands) {
        QString value;
        QString bytes = QLatin1String(hexBytes(command.frame));
        if (command.hasRange()) {
            value = command.lowest + " ... "_L1 + command.highest;
            bytes += " ... "_L1 + QLatin1String(hexBytes(command.highestFrame));
        } else if (!command.lowest.isEmpty()) {
            bytes = withoutTime(bytes);
        }
        expected.append(QStringList{pageTitle(command), value, bytes}.join(u" | "_s));
    }
    const QList<Row> rows = rowsOf(m_page, sheet.name);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const SheetCommand command = sheet.commands.value(i);
        const bool isClock = !command.lowest.isEmpty() && !command.hasRange();
        const Row &row = rows.at(i);
        actual.append(
            QStringList{row.label, row.value, isClock ? withoutTime(row.bytes) : row.bytes}.join(
                u" | "_s));
    }
    QCOMPARE(actual, expected);
}

/// Its line in the table of the models.
void tst_ProtocolPage::model()
{
    QFETCH(const ModelSheet, sheet);
    QString link = u"TCP/IP, port %1"_s.arg(sheet.tcpPort);
    if (!sheet.isTcp) {
        QStringList rates;
        for (const qint32 rate : sheet.baudRates) {
            const bool isPreset = rate == sheet.defaultBaudRate && sheet.baudRates.size() > 1;
            rates.append((isPreset ? u"**%1**"_s : u"%1"_s).arg(rate));
        }
        link = u"RS-232, %1 baud"_s.arg(rates.join(u", "_s));
    }
    QString ids = u"none"_s;
    if (sheet.hasPlayerIds())
        ids = u"%1 to %2"_s.arg(sheet.lowestPlayerId).arg(sheet.highestPlayerId);
    else if (!sheet.isExtended)
        ids = QString::number(sheet.lowestPlayerId);
    const QString firmware = sheet.firmware.isEmpty() ? u"any"_s : sheet.firmware;
    const QString family = sheet.isExtended ? u"extended"_s : u"classic"_s;

    const QStringList lines = m_page.split(u'\n').filter(u"| %1 | "_s.arg(sheet.name));
    QCOMPARE(lines, QStringList{u"| %1 | %2 | %3 | %4 | %5 |"_s.arg(sheet.name, family, link, ids,
                                                                    firmware)});
}

void tst_ProtocolPage::outputContacts()
{
    DeviceCatalogue catalogue;
    appendLumoBridge(catalogue);
    const QString page = protocolPage(catalogue);
    QCOMPARE(commandText(page, u"Lumo Bridge"_s, u"Relay"_s),
             u"none ... 1 to 8: 80 19 00 00 ... 80 19 FF 00"_s);
}

TESSALY_TEST(tst_ProtocolPage)
#include "tst_protocolpage.moc"
