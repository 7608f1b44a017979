// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "goldenlines.h"
#include "modelpanel.h"
#include "tests/support/commandcontrols.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"
#include "tests/support/sheetrows.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"
#include "windowstate.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSerialPort>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QTcpSocket>

#include <memory>

using namespace Qt::Literals::StringLiterals;

using Commands = QList<CommandEntry>;

namespace {

const QString sonetSerial = u"Sonet A (Serial)"_s;
const QString sonetTcp = u"Sonet A Lite (TCP/IP)"_s;
const QString tempoDeck = u"Tempo Deck"_s;
const QString vistarShowSerial = u"Vistar Show - SV500 (Serial)"_s;
const QString vistarShowTcp = u"Vistar Show - SV500 (TCP/IP)"_s;

/// Of the widgets that a model can hide.
QStringList shownPanels(const ConsoleWindow &console)
{
    QStringList names;
    for (const QString &name : modelWidgets()) {
        if (!console.find<QWidget>(name.toLatin1().constData())->isHidden())
            names.append(name);
    }
    names.sort();
    return names;
}

/// What a serial model without any command and with a single ID shows, and `more`.
QStringList serialPanelsWith(const QStringList &more = {})
{
    QStringList names{u"checkBox_Auto_connection"_s, u"frame_Baudrate"_s, u"frame_Port"_s};
    names += more;
    names.sort();
    return names;
}

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray array;
    for (const int value : values)
        array.append(static_cast<char>(value));
    return array;
}

CommandEntry command(quint32 id, const QString &label, const QByteArray &data = {},
                     const QByteArray &dataMax = {})
{
    return {label, id, 1, data, dataMax};
}

DeviceModel model(const Commands &commands, ProtocolKind protocol = ProtocolKind::Classic,
                  TransportKind transport = TransportKind::Serial)
{
    DeviceModel invented(u"Invented"_s, protocol, transport, 0, 0, 1, 9600, 4711, QString());
    if (transport == TransportKind::Serial)
        invented.baudRates = {9600};
    invented.commands = commands;
    return invented;
}

/// Lists a model after those of the catalogue; the next window starts with a fresh catalogue.
int offer(const ConsoleWindow &console, const DeviceModel &invented)
{
    deviceCatalogue.append(invented);
    auto *list = console.find<QComboBox>("comboBox_Player");
    list->addItem(invented.name);
    return list->count() - 1;
}

void choose(ConsoleWindow &console, const DeviceModel &invented)
{
    console.selectModel(offer(console, invented));
}

void choose(ConsoleWindow &console, const QString &model)
{
    console.selectModel(console.rowOfModel(model));
}

/// The models' names, the last one first.
QStringList backwards()
{
    QStringList names;
    for (const ModelSheet &sheet : modelSheets())
        names.prepend(sheet.name);
    return names;
}

void activate(const ConsoleWindow &console, const char *comboBox, int row)
{
    auto *list = console.find<QComboBox>(comboBox);
    list->setCurrentIndex(row);
    emit list->activated(row);
}

/// Of the requests of a model.
QStringList requestsOf(const QString &model)
{
    QStringList labels;
    for (const SheetCommand &command : sheetOf(model).commandsOf(10))
        labels.append(command.label);
    return labels;
}

void compareSourceLists(const ConsoleWindow &console, const SourceLists &expected)
{
    QCOMPARE(rowsOf(console.window, "comboBox_Ref_Of_Playback"), expected.references);
    QCOMPARE(rowsOf(console.window, "comboBox_Option_Of_Playback"), expected.options);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), expected.radios);
    QCOMPARE(console.find<QWidget>("frame_Ref_Of_Playback")->isHidden(),
             expected.references.isEmpty());
    QCOMPARE(console.find<QWidget>("frame_Option_Of_Playback")->isHidden(),
             expected.options.isEmpty());
    QCOMPARE(console.find<QWidget>("frame_Webradio_Ref_Of_Playback")->isHidden(),
             expected.radios.isEmpty());
}

} // namespace

class tst_Panels : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void walkThroughTheList_data();
    void walkThroughTheList();
    void sourcesOfTheModels_data();
    void sourcesOfTheModels();

    void commandIds_data();
    void commandIds();
    void playerIds_data();
    void playerIds();
    void baudRates_data();
    void baudRates();
    void tcpPort_data();
    void tcpPort();
    void folders_data();
    void folders();
    void volume_data();
    void volume();
    void changeId_data();
    void changeId();
    void standbyShowsThePlaybackLine();
    void otherCommandsKeepTheirOrder();
    void addOtherCommandShowsItsPanel();
    void subtitleTypes_data();
    void subtitleTypes();
    void sources_data();
    void sources();
    void sourceRowIsOnlyCounted();

    void currentRowDecidesProtocolAndNote();
    void currentRowDecidesAutoConnection();
    void currentRowDecidesSources();
    void rowOutsideTheCatalogueRefreshesOnly_data();
    void rowOutsideTheCatalogueRefreshesOnly();
    void emptyCatalogueRefreshesOnly();
    void noCurrentRow();
    void firmwareNote_data();
    void firmwareNote();
    void textsAreTranslated();
    void hideCommandPanelsHidesAll();

    void sameModelTwiceGivesTheSameWindow_data() { addModelRows(); }
    void sameModelTwiceGivesTheSameWindow();
    void openSerialLinkIsLeftAlone();
    void openTcpLinkIsLeftAlone();
    void choosingConnectsNothing();

private:
    std::unique_ptr<ConsoleWindow> m_walk;
};

void tst_Panels::init()
{
    if (QLatin1StringView(QTest::currentTestFunction()) != "walkThroughTheList"_L1)
        m_walk.reset();
}

void tst_Panels::walkThroughTheList_data()
{
    QTest::addColumn<ModelSheet>("sheet");

    for (const ModelSheet &sheet : modelSheets())
        QTest::addRow("forwards, %s", qPrintable(sheet.name)) << sheet;
    for (const QString &name : backwards())
        QTest::addRow("backwards, %s", qPrintable(name)) << sheetOf(name);
}

// One window for all of them: nothing of a model may be left in the next one.
void tst_Panels::walkThroughTheList()
{
    QFETCH(const ModelSheet, sheet);

    if (!m_walk) {
        m_walk = std::make_unique<ConsoleWindow>();
        // The constructor has applied the first model.
        const QByteArray differences
            = lineDifferences(shownPanel(*m_walk).lines(),
                              expectedPanel(modelSheets().constFirst(), sliderState(*m_walk),
                                            u"( Port number: ...)"_s)
                                  .lines());
        QVERIFY2(differences.isEmpty(), differences.constData());
    }
    const QString port = u"text of another model"_s;
    m_walk->find<QLabel>("label_IP_Port")->setText(port);
    const QString volume = sliderState(*m_walk);
    choose(*m_walk, sheet.name);

    const QByteArray differences
        = lineDifferences(shownPanel(*m_walk).lines(), expectedPanel(sheet, volume, port).lines());
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(m_walk->text("label_Volume_2"), u"..."_s);
    QCOMPARE(m_walk->text("label_Bytes_Sended"), u"0"_s);
}

void tst_Panels::sourcesOfTheModels_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<SheetCommand>("source");

    for (const ModelSheet &sheet : modelSheets()) {
        for (const SheetCommand &command : sheet.commands) {
            if (controlOf(command.id).list == "comboBox_Source_Of_Playback") {
                QTest::addRow("%s, %s", qPrintable(sheet.name), qPrintable(command.label))
                    << sheet.name << command;
            }
        }
    }
}

void tst_Panels::sourcesOfTheModels()
{
    QFETCH(const QString, model);
    QFETCH(const SheetCommand, source);

    ConsoleWindow console;
    choose(console, model);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", source.label));
    activate(console, "comboBox_Source_Of_Playback",
             console.find<QComboBox>("comboBox_Source_Of_Playback")->currentIndex());
    compareSourceLists(console, sourceLists(source));
    QCOMPARE(console.find<QComboBox>("comboBox_Source_Of_Playback")->currentText(), source.label);
}

void tst_Panels::commandIds_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("rows");

    const QHash<quint32, QStringList> values{
        {1, {u"000"_s, u"001"_s}}, {11, {u"0"_s, u"1"_s}}, {39, goldenCodes(u"iso639_2b.txt"_s)}};
    for (const CommandControl &control : commandControls()) {
        for (const quint32 id : control.ids) {
            QStringList shown = sourcePanels(id);
            for (const QByteArray &panel : control.panels)
                shown += QString::fromLatin1(panel);
            const bool hasLabels = control.listHolds == CommandControl::List::Labels;
            QTest::addRow("%u", id) << id << shown << control.list
                                    << (hasLabels ? QStringList{u"Label"_s} : values.value(id));
        }
    }
    for (const quint32 id : {0U, 46U, 97U, 98U, 100U, 257U, 0x80000001U, 0xFFFFFFFFU})
        QTest::addRow("%u, unknown", id) << id << QStringList() << QByteArray() << QStringList();
}

void tst_Panels::commandIds()
{
    QFETCH(const quint32, id);
    QFETCH(const QStringList, shown);
    QFETCH(const QByteArray, list);
    QFETCH(const QStringList, rows);

    ConsoleWindow console;
    choose(console, model({command(id, u"Label"_s, bytes({0, 1, 0}), bytes({1, 2, 1}))}));

    QCOMPARE(shownPanels(console), serialPanelsWith(shown));
    for (const QByteArray &name : modelLists()) {
        const QByteArrayList others{"comboBox_Baudrate", "comboBox_ID", "comboBox_Subtitles_Type"};
        if (name == list)
            QCOMPARE(rowsOf(console.window, name.constData()), rows);
        else if (!others.contains(name) && !name.endsWith("_Of_Playback"))
            QCOMPARE(rowsOf(console.window, name.constData()), QStringList());
    }
}

void tst_Panels::playerIds_data()
{
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");

    QTest::newRow("5 only, hidden") << 5 << 5 << 1 << u"5"_s << u"5"_s;
    QTest::newRow("two") << 7 << 8 << 2 << u"7"_s << u"8"_s;
    QTest::newRow("all bytes") << 0 << 255 << 256 << u"0"_s << u"255"_s;
    QTest::newRow("upside down") << 2 << 1 << 0 << QString() << QString();
}

void tst_Panels::playerIds()
{
    QFETCH(const int, lowest);
    QFETCH(const int, highest);
    QFETCH(const int, count);
    QFETCH(const QString, first);
    QFETCH(const QString, last);

    ConsoleWindow console;
    DeviceModel invented = model({});
    invented.minPlayerId = static_cast<quint8>(lowest);
    invented.maxPlayerId = static_cast<quint8>(highest);
    choose(console, invented);

    const QStringList rows = rowsOf(console.window, "comboBox_ID");
    QCOMPARE(rows.size(), count);
    QCOMPARE(rows.value(0), first);
    QCOMPARE(rows.value(count - 1), last);
    QCOMPARE(console.find<QComboBox>("comboBox_ID")->currentIndex(), count > 0 ? 0 : -1);
    QCOMPARE(shownPanels(console), count > 1 ? serialPanelsWith(
                                       {u"frame_ID"_s, u"line_ID_and_Folder"_s, u"line_after_ID"_s})
                                             : serialPanelsWith());
}

void tst_Panels::baudRates_data()
{
    QTest::addColumn<QList<qint32>>("baudRates");
    QTest::addColumn<int>("preset");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("current");

    QTest::newRow("preset twice: the later one")
        << QList<qint32>{9600, 19200, 9600, 1200} << 9600
        << QStringList{u"9600"_s, u"19200"_s, u"9600"_s, u"1200"_s} << 2;
    QTest::newRow("preset missing")
        << QList<qint32>{9600, 19200} << 300 << QStringList{u"9600"_s, u"19200"_s} << 0;
    QTest::newRow("no preset") << QList<qint32>{9600, 19200} << -1
                               << QStringList{u"9600"_s, u"19200"_s} << 0;
    QTest::newRow("a rate that no port knows")
        << QList<qint32>{14400} << 14400 << QStringList{u"14400"_s} << 0;
    QTest::newRow("none") << QList<qint32>{} << 9600 << QStringList() << -1;
}

void tst_Panels::baudRates()
{
    QFETCH(const QList<qint32>, baudRates);
    QFETCH(const int, preset);
    QFETCH(const QStringList, rows);
    QFETCH(const int, current);

    ConsoleWindow console;
    DeviceModel invented = model({});
    invented.baudRates = baudRates;
    invented.defaultBaudRate = preset;
    choose(console, invented);

    QCOMPARE(rowsOf(console.window, "comboBox_Baudrate"), rows);
    QCOMPARE(console.find<QComboBox>("comboBox_Baudrate")->currentIndex(), current);
    QCOMPARE(console.find<QWidget>("frame_Baudrate")->isEnabled(), !rows.isEmpty());
    QCOMPARE(shownPanels(console), serialPanelsWith());
}

void tst_Panels::tcpPort_data()
{
    QTest::addColumn<quint16>("port");
    QTest::addColumn<QString>("text");

    QTest::newRow("highest") << quint16(0xFFFF) << u"( Port number: 65535 )"_s;
    QTest::newRow("none") << quint16(0) << u"( Port number: 0 )"_s;
}

void tst_Panels::tcpPort()
{
    QFETCH(const quint16, port);
    QFETCH(const QString, text);

    ConsoleWindow console;
    console.setAddress(u"10.0.20.255"_s);
    DeviceModel invented = model({}, ProtocolKind::Classic, TransportKind::TcpIp);
    invented.tcpPort = port;
    invented.baudRates = {9600}; // of no use to it
    choose(console, invented);

    QCOMPARE(console.text("label_IP_Port"), text);
    QCOMPARE(rowsOf(console.window, "comboBox_Baudrate"), QStringList());
    QCOMPARE(shownPanels(console), QStringList({u"checkBox_Auto_connection"_s, u"frame_IP"_s}));
    QCOMPARE(console.find<QSpinBox>("spinBox_IP_1")->value(), 10);
    QCOMPARE(console.find<QSpinBox>("spinBox_IP_4")->value(), 255);
}

void tst_Panels::folders_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("banks");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("1 to 99, 2 banks: counted on") << 1 << 99 << 2 << paddedRun(1, 198);
    QTest::newRow("one number") << 0 << 0 << 1 << QStringList{u"000"_s};
    QTest::newRow("no bank") << 0 << 127 << 0 << QStringList();
    QTest::newRow("upside down") << 5 << 4 << 8 << QStringList();
}

void tst_Panels::folders()
{
    QFETCH(const int, first);
    QFETCH(const int, last);
    QFETCH(const int, banks);
    QFETCH(const QStringList, rows);

    ConsoleWindow console;
    DeviceModel invented = model({command(1, u"Folder"_s, bytes({first}), bytes({last}))});
    invented.folderBankCount = static_cast<quint8>(banks);
    choose(console, invented);

    const QByteArray differences = lineDifferences(rowsOf(console.window, "comboBox_Folder"), rows);
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(shownPanels(console),
             rows.isEmpty() ? serialPanelsWith()
                            : serialPanelsWith({u"frame_Folder"_s, u"line_ID_and_Folder"_s}));
}

void tst_Panels::volume_data()
{
    QTest::addColumn<ProtocolKind>("protocol");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<QString>("slider");

    const auto classic = ProtocolKind::Classic;
    const auto extended = ProtocolKind::Extended;
    const QString kept = u"2..50 at 20"_s;
    QTest::newRow("classic, more bytes: the first ones")
        << classic << bytes({1, 2}) << bytes({3, 4}) << u"1..3 at 3"_s;
    QTest::newRow("classic, above the range before")
        << classic << bytes({60}) << bytes({70}) << u"60..70 at 70"_s;
    QTest::newRow("classic, single value") << classic << bytes({9}) << bytes({9}) << u"9..9 at 9"_s;
    // The minimum is set first, so the maximum has the last word.
    QTest::newRow("classic, upside down")
        << classic << bytes({40}) << bytes({20}) << u"20..20 at 20"_s;
    QTest::newRow("classic, no data") << classic << QByteArray() << bytes({64}) << kept;
    QTest::newRow("extended, two bytes wide, big-endian")
        << extended << bytes({0, 1}) << bytes({1, 2}) << u"1..258 at 258"_s;
    QTest::newRow("extended, one byte of data") << extended << bytes({0}) << bytes({0, 64}) << kept;
}

void tst_Panels::volume()
{
    QFETCH(const ProtocolKind, protocol);
    QFETCH(const QByteArray, data);
    QFETCH(const QByteArray, dataMax);
    QFETCH(const QString, slider);

    ConsoleWindow console;
    auto *volume = console.find<QSlider>("horizontalSlider_Volume");
    volume->setRange(2, 50);
    volume->setValue(20);
    choose(console, model({command(9, u"Volume"_s, data, dataMax)}, protocol));

    QCOMPARE(sliderState(console), slider);
    QCOMPARE(shownPanels(console),
             serialPanelsWith({u"frame_Volume"_s, u"pushButton_Volume_Less"_s,
                               u"pushButton_Volume_More"_s, u"line_Volume"_s}));
}

void tst_Panels::changeId_data()
{
    QTest::addColumn<TransportKind>("transport");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<QStringList>("rows");

    const auto serial = TransportKind::Serial;
    const auto tcp = TransportKind::TcpIp;
    QTest::newRow("serial, 0 to 0: hidden")
        << serial << bytes({0}) << bytes({0}) << QStringList{u"0"_s};
    QTest::newRow("serial, upside down") << serial << bytes({2}) << bytes({1}) << QStringList();
    QTest::newRow("serial, no data") << serial << QByteArray() << bytes({1}) << QStringList();
    QTest::newRow("TCP/IP: not offered") << tcp << bytes({1}) << bytes({127}) << QStringList();
}

void tst_Panels::changeId()
{
    QFETCH(const TransportKind, transport);
    QFETCH(const QByteArray, data);
    QFETCH(const QByteArray, dataMax);
    QFETCH(const QStringList, rows);

    ConsoleWindow console;
    choose(console,
           model({command(11, u"Change ID"_s, data, dataMax)}, ProtocolKind::Classic, transport));

    QCOMPARE(rowsOf(console.window, "comboBox_Change_ID"), rows);
    QCOMPARE(console.find<QWidget>("frame_Change_ID")->isHidden(), rows.size() < 2);
    QCOMPARE(console.find<QWidget>("line_after_Change_ID")->isHidden(), rows.size() < 2);
}

// The line under the playback row goes with standby also where there is no playback button.
void tst_Panels::standbyShowsThePlaybackLine()
{
    ConsoleWindow console;
    choose(console, model({command(12, u"Standby/Wakeup"_s)}));
    QVERIFY(!console.find<QWidget>("line_Playback_Command")->isHidden());
    QVERIFY(console.find<QWidget>("frame_Playback_Command")->isHidden());
    // Of no effect without the other commands, in whose frame it lies.
    QVERIFY(!console.find<QWidget>("line_Playback_Command")->isVisible());

    choose(console, model({command(12, u"Standby/Wakeup"_s), command(99, u"Other"_s)}));
    QVERIFY(console.find<QWidget>("line_Playback_Command")->isVisible());

    choose(console, model({command(99, u"Other"_s)}));
    QVERIFY(console.find<QWidget>("line_Playback_Command")->isHidden());
}

void tst_Panels::otherCommandsKeepTheirOrder()
{
    ConsoleWindow console;
    choose(console, model({command(99, u"z"_s), command(13, u"a"_s), command(99, u"z"_s),
                           command(10, u"r"_s), command(45, u"reserved"_s), command(44, u"On"_s),
                           command(44, u"Off"_s), command(27, QString())}));
    QCOMPARE(rowsOf(console.window, "comboBox_Other_Command"),
             QStringList({u"z"_s, u"a"_s, u"z"_s, u"reserved"_s, u"On"_s, u"Off"_s, QString()}));
    QCOMPARE(console.find<QComboBox>("comboBox_Other_Command")->currentIndex(), 0);
    QCOMPARE(rowsOf(console.window, "comboBox_Request"), QStringList({u"r"_s}));
}

void tst_Panels::addOtherCommandShowsItsPanel()
{
    ConsoleWindow console;
    choose(console, model({}));
    console.window.addOtherCommand(u"First"_s);
    console.window.addOtherCommand(u"Second"_s);
    QCOMPARE(rowsOf(console.window, "comboBox_Other_Command"),
             QStringList({u"First"_s, u"Second"_s}));
    QCOMPARE(console.find<QComboBox>("comboBox_Other_Command")->currentIndex(), 0);
    QCOMPARE(shownPanels(console),
             serialPanelsWith({u"frame_Other_Command"_s, u"line_Other_Command"_s}));
}

void tst_Panels::subtitleTypes_data()
{
    QTest::addColumn<QList<quint32>>("ids");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<int>("valueCount");
    QTest::addColumn<QString>("firstValue");

    const QStringList codes{u"ISO639-2 (B)"_s, u"ISO639-2 (T)"_s, u"ISO639-3"_s};
    const QStringList index{u"Index"_s};
    QTest::newRow("language codes") << QList<quint32>{39} << codes << 488 << u"aar"_s;
    // The values of the track numbers wait until the user touches the type list.
    QTest::newRow("index only: no values yet") << QList<quint32>{40} << index << 0 << QString();
    QTest::newRow("codes, index") << QList<quint32>{39, 40} << codes + index << 488 << u"aar"_s;
    QTest::newRow("index, codes") << QList<quint32>{40, 39} << index + codes << 128 << u"0"_s;
    QTest::newRow("codes twice") << QList<quint32>{39, 39} << codes + codes << 488 << u"aar"_s;
    QTest::newRow("index twice") << QList<quint32>{40, 40} << index + index << 0 << QString();
}

void tst_Panels::subtitleTypes()
{
    QFETCH(const QList<quint32>, ids);
    QFETCH(const QStringList, types);
    QFETCH(const int, valueCount);
    QFETCH(const QString, firstValue);

    ConsoleWindow console;
    choose(console, vistarShowSerial); // leaves values behind
    Commands commands;
    for (const quint32 id : ids)
        commands.append(command(id, u"Subtitles"_s, bytes({0}), bytes({127})));
    choose(console, model(commands));

    QCOMPARE(rowsOf(console.window, "comboBox_Subtitles_Type"), types);
    QCOMPARE(console.find<QComboBox>("comboBox_Subtitles_Type")->currentIndex(), 0);
    QCOMPARE(rowsOf(console.window, "comboBox_Subtitles_Value").size(), valueCount);
    QCOMPARE(console.find<QComboBox>("comboBox_Subtitles_Value")->currentText(), firstValue);
    QCOMPARE(shownPanels(console),
             serialPanelsWith({u"frame_Content_Subtitles"_s, u"line_Subtitles"_s,
                               u"frame_Subtitles_Value"_s, u"frame_Subtitles_Type"_s,
                               u"pushButton_Subtitles_Select"_s}));

    activate(console, "comboBox_Subtitles_Type", static_cast<int>(types.indexOf(u"Index"_s)));
    QCOMPARE(rowsOf(console.window, "comboBox_Subtitles_Value").size(),
             types.contains(u"Index"_s) ? 128 : 0);
}

void tst_Panels::sources_data()
{
    QTest::addColumn<Commands>("commands");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("references");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("radios");

    const QStringList none;
    const QString spot = u"Spot"_s;
    const QByteArray first = bytes({0, 1, 1});
    const QByteArray last = bytes({0, 3, 2});

    QTest::newRow("24: two bytes of data offer nothing")
        << Commands{command(24, spot, bytes({0, 1}), last)} << spot << none << none << none;
    QTest::newRow("24: two bytes of dataMax offer nothing")
        << Commands{command(24, spot, first, bytes({0, 3}))} << spot << none << none << none;
    QTest::newRow("24: no references, options alone")
        << Commands{command(24, spot, bytes({0, 3, 7}), bytes({0, 1, 8}))} << spot << none
        << paddedRun(7, 8) << none;
    QTest::newRow("24: no options, references alone")
        << Commands{command(24, spot, bytes({0, 1, 9}), bytes({0, 2, 8}))} << spot
        << paddedRun(1, 2) << none << none;
    // Two bytes are read, three are wanted all the same.
    QTest::newRow("23: two bytes offer nothing")
        << Commands{command(23, spot, bytes({0, 1}), bytes({0, 3}))} << spot << none << none
        << none;
    QTest::newRow("25: two bytes offer nothing")
        << Commands{command(25, spot, bytes({0, 1}), bytes({0, 3}))} << spot << none << none
        << none;
    QTest::newRow("label shared by two families: both")
        << Commands{command(23, spot, first, last),
                    command(25, spot, bytes({0, 7, 0}), bytes({0, 8, 0}))}
        << spot << paddedRun(1, 3) << none << paddedRun(7, 8);
    QTest::newRow("label twice in a family: one after the other")
        << Commands{command(23, spot, first, last),
                    command(23, spot, bytes({0, 9, 0}), bytes({0, 9, 0}))}
        << spot << (paddedRun(1, 3) << u"009"_s) << none << none;
    QTest::newRow("label shared with another kind of command")
        << Commands{command(10, spot, first, last), command(23, spot, first, last),
                    command(99, spot, first, last)}
        << spot << paddedRun(1, 3) << none << none;
    QTest::newRow("case matters") << Commands{command(25, u"Spot"_s, first, last),
                                              command(23, u"spot"_s, first, last)}
                                  << u"Spot"_s << none << none << paddedRun(1, 3);
    QTest::newRow("case matters, second row")
        << Commands{command(25, u"Spot"_s, first, last), command(23, u"spot"_s, first, last)}
        << u"spot"_s << paddedRun(1, 3) << none << none;
    QTest::newRow("beginning of another label")
        << Commands{command(26, spot, first, last), command(23, u"Spot 2"_s, first, last)} << spot
        << none << none << none;
}

void tst_Panels::sources()
{
    QFETCH(const Commands, commands);
    QFETCH(const QString, source);
    QFETCH(const QStringList, references);
    QFETCH(const QStringList, options);
    QFETCH(const QStringList, radios);

    ConsoleWindow console;
    choose(console, sonetSerial);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", u"SPOT folder (Random + Reset)"_s));
    console.window.on_comboBox_Source_Of_Playback_activated(0);
    choose(console, model(commands));
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", source));
    activate(console, "comboBox_Source_Of_Playback",
             console.find<QComboBox>("comboBox_Source_Of_Playback")->currentIndex());

    compareSourceLists(console, {references, options, radios});
    QVERIFY(!console.find<QWidget>("frame_Content_Playback")->isHidden());
}

// The row is compared with the length of the list and not used for anything else: the source is the
// current text.
void tst_Panels::sourceRowIsOnlyCounted()
{
    ConsoleWindow console;
    choose(console, sonetSerial);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", u"Webradio"_s));
    const int count = console.find<QComboBox>("comboBox_Source_Of_Playback")->count();
    console.window.on_comboBox_Source_Of_Playback_activated(count - 1);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), paddedRun(1, 10));

    console.window.on_comboBox_Source_Of_Playback_activated(count);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), QStringList());
    QVERIFY(console.find<QWidget>("frame_Webradio_Ref_Of_Playback")->isHidden());

    choose(console, tempoDeck); // no source at all
    console.window.on_comboBox_Source_Of_Playback_activated(0);
    QCOMPARE(rowsOf(console.window, "comboBox_Ref_Of_Playback"), QStringList());
    QVERIFY(console.find<QWidget>("frame_Ref_Of_Playback")->isHidden());
}

void tst_Panels::currentRowDecidesProtocolAndNote()
{
    const Commands volume{command(9, u"Volume"_s, bytes({1, 2}), bytes({3, 4}))};
    ConsoleWindow console;
    DeviceModel classic = model(volume);
    classic.firmwareVersion = u"of the classic one"_s;
    DeviceModel extended = model(volume, ProtocolKind::Extended);
    extended.firmwareVersion = u"of the extended one"_s;
    const int classicRow = offer(console, classic);
    const int extendedRow = offer(console, extended);
    auto *list = console.find<QComboBox>("comboBox_Player");

    list->setCurrentIndex(extendedRow);
    console.window.on_comboBox_Player_activated(classicRow);
    QCOMPARE(sliderState(console), u"258..772 at 772"_s);
    QVERIFY(console.text("label_Comments").contains(u"of the extended one"_s));

    list->setCurrentIndex(classicRow);
    console.window.on_comboBox_Player_activated(extendedRow);
    QCOMPARE(sliderState(console), u"1..3 at 3"_s);
    QVERIFY(console.text("label_Comments").contains(u"of the classic one"_s));
}

void tst_Panels::currentRowDecidesAutoConnection()
{
    ConsoleWindow console;
    auto *list = console.find<QComboBox>("comboBox_Player");
    const auto *box = console.find<QWidget>("checkBox_Auto_connection");
    const int serialRow = console.rowOfModel(tempoDeck);
    const int onDemandRow = console.rowOfModel(sonetTcp);

    list->setCurrentIndex(onDemandRow);
    console.window.on_comboBox_Player_activated(serialRow);
    QVERIFY(box->isHidden());
    // All the rest is of the row that is applied.
    QVERIFY(!console.find<QWidget>("frame_Port")->isHidden());
    QVERIFY(console.find<QWidget>("frame_IP")->isHidden());
    QCOMPARE(rowsOf(console.window, "comboBox_ID").size(), 128);

    list->setCurrentIndex(serialRow);
    console.window.on_comboBox_Player_activated(onDemandRow);
    QVERIFY(!box->isHidden());
    QVERIFY(!console.find<QWidget>("frame_IP")->isHidden());
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 1234 )"_s);
    QCOMPARE(rowsOf(console.window, "comboBox_Request"), requestsOf(sonetTcp));
}

void tst_Panels::currentRowDecidesSources()
{
    ConsoleWindow console;
    console.find<QComboBox>("comboBox_Player")->setCurrentIndex(console.rowOfModel(tempoDeck));
    console.window.on_comboBox_Player_activated(console.rowOfModel(sonetSerial));
    QVERIFY(!rowsOf(console.window, "comboBox_Source_Of_Playback").isEmpty());
    QCOMPARE(rowsOf(console.window, "comboBox_Ref_Of_Playback"), QStringList());
    QVERIFY(console.find<QWidget>("frame_Ref_Of_Playback")->isHidden());
}

void tst_Panels::rowOutsideTheCatalogueRefreshesOnly_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("first one after the catalogue") << static_cast<int>(modelSheets().size());
    QTest::newRow("far away") << 1000;
    QTest::newRow("none") << -1;
}

void tst_Panels::rowOutsideTheCatalogueRefreshesOnly()
{
    QFETCH(const int, row);

    ConsoleWindow console;
    choose(console, sonetSerial);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", u"Webradio"_s));
    console.window.on_comboBox_Source_Of_Playback_activated(0);
    console.find<QComboBox>("comboBox_Other_Command")->setCurrentIndex(5);
    const QStringList before = windowState(console.window);

    // The state of the link and the lists of the source are brought up to date again ...
    console.find<QWidget>("label_Connection_Message")->show();
    console.find<QWidget>("pushButton_Connect")->setEnabled(false);
    console.find<QComboBox>("comboBox_Ref_Of_Playback")->addItem(u"left behind"_s);
    console.find<QComboBox>("comboBox_Webradio_Ref_Of_Playback")->clear();
    console.window.on_comboBox_Player_activated(row);

    // ... and everything else stays.
    const QByteArray differences = lineDifferences(windowState(console.window), before);
    QVERIFY2(differences.isEmpty(), differences.constData());
}

void tst_Panels::emptyCatalogueRefreshesOnly()
{
    ConsoleWindow console;
    choose(console, vistarShowSerial);
    const QStringList before = windowState(console.window);
    deviceCatalogue.clear();
    console.window.on_comboBox_Player_activated(0);
    const QByteArray differences = lineDifferences(windowState(console.window), before);
    QVERIFY2(differences.isEmpty(), differences.constData());
}

void tst_Panels::noCurrentRow()
{
    ConsoleWindow console;
    console.find<QComboBox>("comboBox_Player")->setCurrentIndex(-1);
    console.window.on_comboBox_Player_activated(console.rowOfModel(sonetTcp));
    QVERIFY(!console.find<QWidget>("frame_IP")->isHidden());
    QVERIFY(!console.find<QWidget>("checkBox_Auto_connection")->isHidden());
    QCOMPARE(rowsOf(console.window, "comboBox_Request"), requestsOf(sonetTcp));
    QCOMPARE(console.text("label_Comments"), QString());
}

void tst_Panels::firmwareNote_data()
{
    QTest::addColumn<QString>("firmware");

    QTest::newRow("with a version") << u"AP 1.11 / MCU 1.05"_s;
    QTest::newRow("without one") << QString();
}

void tst_Panels::firmwareNote()
{
    QFETCH(const QString, firmware);
    const QString note = ::firmwareNote(firmware);

    ConsoleWindow console;
    DeviceModel invented = model({});
    invented.firmwareVersion = firmware;
    auto *label = console.find<QLabel>("label_Comments");
    auto *list = console.find<QComboBox>("comboBox_Player");
    label->setText(u"left over"_s);
    choose(console, invented);
    QCOMPARE(label->text(), note);

    label->setText(u"left over"_s);
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), note);

    list->addItem(u"not in the catalogue"_s);
    list->setCurrentIndex(list->count() - 1);
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), QString());

    label->setText(u"left over"_s);
    list->setCurrentIndex(-1);
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), QString());

    label->setText(u"left over"_s);
    list->setCurrentIndex(0);
    deviceCatalogue.clear();
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), QString());
}

void tst_Panels::textsAreTranslated()
{
    ConsoleWindow console;
    const BracingTranslator braces;
    choose(console, vistarShowTcp);
    QCOMPARE(console.text("label_IP_Port"), u"( {Port number: }65079 )"_s);
    QCOMPARE(console.text("label_Comments"),
             u"{All commands present in this model can be executed for devices with firmware }1.11"
             "{ or higher. If the device embed a lower firmware version, some commands may not be "
             "executed. Refer to the release notes of this application for more information.}"_s);
    // Labels of commands are the devices' own.
    QCOMPARE(rowsOf(console.window, "comboBox_Request").constFirst(), u"Player Status"_s);
    QCOMPARE(rowsOf(console.window, "comboBox_Subtitles_Type").constFirst(), u"ISO639-2 (B)"_s);
}

void tst_Panels::hideCommandPanelsHidesAll()
{
    ConsoleWindow console;
    for (const QString &name : modelWidgets())
        console.find<QWidget>(name.toLatin1().constData())->show();
    console.window.hideCommandPanels();
    // Not among the command panels.
    QCOMPARE(shownPanels(console), QStringList({u"checkBox_Auto_connection"_s}));
    QVERIFY(!console.find<QWidget>("frame_Launch_Playback")->isHidden());
    QVERIFY(!console.find<QWidget>("frame_Subtitles_Select")->isHidden());
}

void tst_Panels::sameModelTwiceGivesTheSameWindow()
{
    QFETCH(const ModelSheet, sheet);

    ConsoleWindow console;
    choose(console, sheet.name);
    const QStringList before = windowState(console.window);

    for (const QByteArray &name : modelLists()) {
        auto *list = console.find<QComboBox>(name.constData());
        list->setCurrentIndex(list->count() - 1);
    }
    console.window.on_comboBox_Source_Of_Playback_activated(0);
    console.window.on_comboBox_Subtitles_Type_activated();
    auto *slider = console.find<QSlider>("horizontalSlider_Volume");
    const QSignalBlocker silent(slider);
    // A model without a volume leaves it alone.
    if (sheet.has(9))
        slider->setValue(slider->minimum());
    choose(console, sheet.name);

    const QByteArray differences = lineDifferences(windowState(console.window), before);
    QVERIFY2(differences.isEmpty(), differences.constData());
}

void tst_Panels::openSerialLinkIsLeftAlone()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    // The slider jumps to the new model's maximum, and sends nothing.
    console.find<QLabel>("label_Volume_2")->setText(u"17"_s);

    for (const QString &name : backwards()) {
        choose(console, name);
        QVERIFY(serialPort->isOpen());
        QVERIFY(!tcpSocket->isOpen());
        QVERIFY(console.find<QWidget>("pushButton_Disconnect")->isEnabled());
        QVERIFY(!console.find<QWidget>("pushButton_Connect")->isEnabled());
        QVERIFY(console.find<QWidget>("frame_Commands")->isEnabled());
        QVERIFY(!console.find<QWidget>("frame_Settings")->isEnabled());
        // Enabled by its rates for a moment, then by the state of the link.
        QVERIFY(!console.find<QWidget>("frame_Baudrate")->isEnabled());
        QCOMPARE(console.text("label_Volume_2"), u"17"_s);
        QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    }
    // The bytes of the next command are the first ones to arrive.
    choose(console, tempoDeck);
    console.click("pushButton_Play");
    QTRY_COMPARE(peer.received().toHex(' '), QByteArray("80 02 01"));
}

void tst_Panels::openTcpLinkIsLeftAlone()
{
    TcpPeer peer(sheetOf(vistarShowTcp).tcpPort);
    ConsoleWindow console;
    choose(console, vistarShowTcp);
    QVERIFY(console.connectTcp());
    for (const QString &name : backwards()) {
        choose(console, name);
        QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
        QVERIFY(console.find<QWidget>("pushButton_Disconnect")->isEnabled());
        QVERIFY(console.find<QWidget>("frame_Commands")->isEnabled());
    }
    QTRY_COMPARE(peer.connectionCount(), 1);
    QCOMPARE(peer.received().toHex(' '), QByteArray());
}

void tst_Panels::choosingConnectsNothing()
{
    TcpPeer peer(sheetOf(sonetTcp).tcpPort);
    ConsoleWindow console;
    console.setAddress(TcpPeer::address().toString());
    for (const ModelSheet &sheet : modelSheets()) {
        choose(console, sheet.name);
        QCOMPARE(tcpSocket->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!tcpSocket->isOpen());
        QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    }
    QCOMPARE(peer.connectionCount(), 0);
}

TESSALY_WINDOW_TEST(tst_Panels)
#include "tst_panels.moc"
