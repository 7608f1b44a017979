// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/lightingmodels.h"
#include "simulator/protocolpage.h"
#include "tests/support/folders.h"
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
        return rows.sliced(1); // behind the titles
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
    void everyCommand_data();
    void everyCommand();
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
    QTest::newRow("a day ahead, with daylight saving") << u"AAA-13BBB-14,M1.1.0,M12.1.0"_s;
    QTest::newRow("behind") << u"CCC11"_s;
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
        QFAIL("docs/protocol.md is not what the catalogue says. Make it anew with\n"
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
    row("Tempo Deck", "Play", "80 02 01");
    row("Tempo Deck", "Folder", "0 ... 999: 80 01 00 ... 80 71 67");
    row("Tempo Deck", "Volume", "0 ... 64: 80 03 00 ... 80 03 40");
    row("Tempo Deck", "Volume -", "80 02 0A");
    row("Show Deck (Gen 2)", "Next Folder", "80 02 06");
    row("Pico Deck Gen 2/3", "Previous File", "80 02 04");
    row("Pico Deck (legacy)", "Volume", "0 ... 31: 80 03 00 ... 80 03 1F");
    row("Card Deck HD (legacy)", "Folder", "0 ... 127: 80 01 00 ... 80 01 7F");
    row("Card Deck HD (legacy)", "Change ID", "1 ... 127: 80 7F 01 ... 80 7F 7F");
    row("HV1xx (Serial) (legacy)", "Folder", "0 ... 255: 80 01 00 ... 80 11 7F");
    row("HV1xx (TCP/IP) (legacy)", "Folder", "0 ... 999: 80 01 00 ... 80 71 67");
    row("HV1xx (TCP/IP) (legacy)", "Request: Volume", "80 04 0B");
    row("HV0xx (legacy)", "Volume", "0 ... 13: 80 03 00 ... 80 03 0D");
    row("Ampra One", "Volume 1", "0 ... 56: 80 03 00 ... 80 03 38");
    row("Ampra One", "Set baudrate = 19200", "80 08 32");

    const char *const video = "Vistar Home - HV4xx (TCP/IP)";
    row("Vistar Show - SV500 (Serial)", "Play/Pause", "80 02 05");
    row("Vistar Show - SV500 (TCP/IP)", "Pause", "80 02 0E");
    row("Vistar Home - HV4xx (Serial)", "Standby/Wakeup", "80 02 08");
    row(video, "Mute/Demute", "80 02 10");
    row(video, "PJLink Video Projector Power Off", "80 02 17");
    row(video, "NTP off", "80 5C 00");
    row(video, "Set time", "80 0C 0E 05 09");
    row(video, "Set date", "80 1C 1A 03 07");
    row(video, "Set date/time", "80 2C 1A 03 07 0E 05 09");
    // 1772892309 s
    row(video, "Set UTC/GMT date/time (epoch version)", "80 3C 06 4D 30 61 15");
    row(video, "Set UTC/GMT date/time (full version)", "80 4C 1A 03 07 0E 05 09");
    row(video, "Enable auto subtitles", "80 0D 01");
    row(video, "Next subtitles (with loop)", "80 0D 05");
    row(video, "ISO639", "aar ... zza: 80 1D 61 61 72 ... 80 1D 7A 7A 61");
    row(video, "Index", "0 ... 127: 80 2D 00 ... 80 2D 7F");
    row(video, "Request: Get the list of subtitles", "80 04 41");

    const char *const serial = "Sonet A (Serial)";
    row(serial, "Play", "20 FF FF FF");
    row(serial, "MUSIC folder (Sequential)", "1 ... 999: 02 00 01 FF ... 02 03 E7 FF");
    row(serial, "SPOT folder (Sequential + Reset)",
        "1, option 1 ... 999, option 255: 14 00 01 01 ... 14 03 E7 FF");
    row(serial, "Webradio", "1 ... 10: 40 00 01 FF ... 40 00 0A FF");
    row(serial, "Alternate: Aux input", "5B FF FF FF");
    row(serial, "Mute", "33 00 01 00");
    row(serial, "FTP update: preset 10", "41 00 0A FF");
    row(serial, "Volume", "0 ... 64: 30 00 00 00 ... 30 00 40 00");

    const char *const lite = "Sonet A Lite (TCP/IP)";
    row(lite, "Play", "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00");
    row(lite, "PLAYLIST folder (Sequential)",
        "1 ... 999: 04 00 00 00 63 6D 64 00 31 30 00 31 00 30 00 ... "
        "04 00 00 00 63 6D 64 00 31 30 00 39 39 39 00 30 00");
    row(lite, "Alternate: SD card", "04 00 00 00 63 6D 64 00 38 31 00 30 00 30 00");
    row(lite, "Request: Spot ID", "02 00 00 00 67 65 74 00 53 70 6F 74 49 44 00");
    row(lite, "Volume",
        "0 ... 64: 03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D "
        "36 34 00 ... 03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 "
        "30 00");
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

void tst_ProtocolPage::everyCommand_data()
{
    QTest::addColumn<int>("commands");

    QTest::newRow("Tempo Deck") << 10;
    QTest::newRow("Show Deck (Gen 2)") << 10;
    QTest::newRow("Vistar Show - SV500 (Serial)") << 48;
    QTest::newRow("Vistar Show - SV500 (TCP/IP)") << 48;
    QTest::newRow("Ampra One") << 7;
    QTest::newRow("Pico Deck Gen 2/3") << 10;
    QTest::newRow("Sonet A (Serial)") << 35;
    QTest::newRow("Sonet A Lite (TCP/IP)") << 44;
    QTest::newRow("Vistar Home - HV4xx (Serial)") << 48;
    QTest::newRow("Vistar Home - HV4xx (TCP/IP)") << 48;
    QTest::newRow("HV1xx (Serial) (legacy)") << 18;
    QTest::newRow("HV1xx (TCP/IP) (legacy)") << 18;
    QTest::newRow("Pico Deck (legacy)") << 6;
    QTest::newRow("Card Deck HD (legacy)") << 8;
    QTest::newRow("HV0xx (legacy)") << 7;
}

void tst_ProtocolPage::everyCommand()
{
    QFETCH(int, commands);

    const QString model = QString::fromLatin1(QTest::currentDataTag());
    const QList<Row> rows = rowsOf(m_page, model);
    QCOMPARE(rows.size(), commands);
    for (const Row &row : rows)
        QVERIFY2(!row.bytes.isEmpty(), qPrintable(row.label));
    // Once more in the table of the models.
    QCOMPARE(m_page.count(u"\n| %1 | "_s.arg(model)), 1);
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
