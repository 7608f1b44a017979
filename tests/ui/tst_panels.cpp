// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "goldenlines.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"
#include "windowstate.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSerialPort>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QTcpSocket>

#include <memory>

using namespace Qt::Literals::StringLiterals;

using Commands = QList<CommandEntry>;

namespace {

enum Row {
    TempoDeck = 0,
    VistarShowSerial = 2,
    VistarShowTcp = 3,
    SonetASerial = 6,
    SonetALiteTcp = 7,
    Hv0xx = 14,
};

// Everything that a model can show.
const char *const panels[] = {
    "checkBox_Auto_connection",
    "frame_Port",
    "frame_Baudrate",
    "frame_IP",
    "frame_ID",
    "frame_Change_ID",
    "line_after_Change_ID",
    "line_after_ID",
    "frame_Folder",
    "line_ID_and_Folder",
    "frame_Playback_Command",
    "pushButton_Previous_Folder",
    "pushButton_Previous_File",
    "pushButton_Play",
    "pushButton_Stop",
    "pushButton_Pause",
    "pushButton_Next_Folder",
    "pushButton_Next_File",
    "line_Playback_Command",
    "frame_Volume",
    "pushButton_Volume_Less",
    "pushButton_Volume_More",
    "line_Volume",
    "frame_Request",
    "line_Request",
    "frame_Standby_Wakeup",
    "line_after_Change_Before_Standby",
    "frame_Other_Command",
    "line_Other_Command",
    "pushButton_Volume_Mute_Unmute",
    "line_before_Mute_Unmute",
    "frame_Relay_Command",
    "line_Relay",
    "line_Content_Playback",
    "frame_Content_Playback",
    "frame_Ref_Of_Playback",
    "frame_Option_Of_Playback",
    "frame_Webradio_Ref_Of_Playback",
    "frame_Content_Subtitles",
    "line_Subtitles",
    "pushButton_Subtitles_On",
    "pushButton_Subtitles_Off",
    "pushButton_Subtitles_Next",
    "pushButton_Subtitles_Next_Loop",
    "pushButton_Subtitles_Previous",
    "pushButton_Subtitles_Previous_Loop",
    "frame_Subtitles_Value",
    "frame_Subtitles_Type",
    "pushButton_Subtitles_Select",
};

const char *const modelLists[] = {
    "comboBox_Baudrate",
    "comboBox_ID",
    "comboBox_Change_ID",
    "comboBox_Folder",
    "comboBox_Request",
    "comboBox_Other_Command",
    "comboBox_Source_Of_Playback",
    "comboBox_Ref_Of_Playback",
    "comboBox_Option_Of_Playback",
    "comboBox_Webradio_Ref_Of_Playback",
    "comboBox_Subtitles_Type",
    "comboBox_Subtitles_Value",
};

const char *const goldenFiles[] = {
    "00_tempo_deck",       "01_show_deck_gen2",   "02_vistar_show_serial",
    "03_vistar_show_tcp",  "04_ampra_one",        "05_pico_deck_gen23",
    "06_sonet_a_serial",   "07_sonet_a_lite_tcp", "08_vistar_home_serial",
    "09_vistar_home_tcp",  "10_hv1xx_serial",     "11_hv1xx_tcp",
    "12_pico_deck_legacy", "13_card_deck_hd",     "14_hv0xx",
};

constexpr int modelCount = static_cast<int>(std::size(goldenFiles));

QStringList paddedRun(int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number)
        texts.append(u"%1"_s.arg(number, 3, 10, QChar(u'0')));
    return texts;
}

/// A golden file with "000..999" and "@file of codes" written out.
QStringList goldenPanel(const QString &fileName)
{
    static const QRegularExpression run(u"^    (\\d+)\\.\\.(\\d+)$"_s);
    QStringList lines;
    const QStringList written = goldenLines("panels/"_L1 + fileName + ".txt"_L1);
    for (const QString &line : written) {
        if (const QRegularExpressionMatch match = run.match(line); match.hasMatch()) {
            const qsizetype width = match.captured(1).size();
            const int last = match.captured(2).toInt();
            for (int number = match.captured(1).toInt(); number <= last; ++number) {
                lines.append("    "_L1
                             + u"%1"_s.arg(number, static_cast<int>(width), 10, QChar(u'0')));
            }
        } else if (line.startsWith("    @"_L1)) {
            const QStringList codes = goldenCodes(line.sliced(5));
            for (const QString &code : codes)
                lines.append("    "_L1 + code);
        } else {
            lines.append(line);
        }
    }
    return lines;
}

/// The window as a golden file describes it.
QStringList panelOf(const ConsoleWindow &console, const QString &previousPort)
{
    QStringList lines{"model: "_L1 + console.find<QComboBox>("comboBox_Player")->currentText()};
    for (const char *name : panels) {
        if (!console.find<QWidget>(name)->isHidden())
            lines.append("shown: "_L1 + QLatin1StringView(name));
    }
    for (const char *name : modelLists) {
        const QStringList rows = rowsOf(console.window, name);
        const int current = console.find<QComboBox>(name)->currentIndex();
        lines.append(QLatin1StringView(name)
                     + (rows.isEmpty() ? u": empty"_s
                                       : u": %1 rows, current %2"_s.arg(rows.size()).arg(current)));
        for (const QString &row : rows)
            lines.append("    "_L1 + row);
    }
    const auto *slider = console.find<QSlider>("horizontalSlider_Volume");
    lines.append(u"volume: %1..%2 at %3"_s.arg(slider->minimum())
                     .arg(slider->maximum())
                     .arg(slider->value()));
    const QString port = console.text("label_IP_Port");
    lines.append("port: "_L1 + (port == previousPort ? u"unchanged"_s : port));
    const QString note = console.text("label_Comments");
    lines.append("note: "_L1 + (note.isEmpty() ? u"empty"_s : note));
    return lines;
}

QStringList shownPanels(const ConsoleWindow &console)
{
    QStringList names;
    for (const char *name : panels) {
        if (!console.find<QWidget>(name)->isHidden())
            names.append(QString::fromLatin1(name));
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

/// Lists a model behind those of the catalogue; the next window starts with a fresh catalogue.
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

void activate(const ConsoleWindow &console, const char *comboBox, int row)
{
    auto *list = console.find<QComboBox>(comboBox);
    list->setCurrentIndex(row);
    emit list->activated(row);
}

QString sliderState(const ConsoleWindow &console)
{
    const auto *slider = console.find<QSlider>("horizontalSlider_Volume");
    return u"%1..%2 at %3"_s.arg(slider->minimum()).arg(slider->maximum()).arg(slider->value());
}

} // namespace

class tst_Panels : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void walkThroughTheList_data();
    void walkThroughTheList();
    void onlyPanelsAreEverHidden();
    void sourcesOfSonetA_data();
    void sourcesOfSonetA();

    void commandIds_data();
    void commandIds();
    void modelWithoutCommands();
    void playerIds_data();
    void playerIds();
    void baudRates_data();
    void baudRates();
    void tcpPort_data();
    void tcpPort();
    void autoConnection_data();
    void autoConnection();
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

    void sameModelTwiceGivesTheSameWindow_data();
    void sameModelTwiceGivesTheSameWindow();
    void choosingSendsNothing();
    void choosingConnectsNothing();
    void serialLinkStaysOpen();
    void tcpLinkStaysOpen();

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
    QTest::addColumn<int>("row");

    for (int row = 0; row < modelCount; ++row)
        QTest::addRow("forwards %s", goldenFiles[row]) << row;
    for (int row = modelCount - 1; row >= 0; --row)
        QTest::addRow("backwards %s", goldenFiles[row]) << row;
}

// One window for the whole walk: nothing of a model may be left in the next one.
void tst_Panels::walkThroughTheList()
{
    QFETCH(const int, row);

    if (!m_walk) {
        m_walk = std::make_unique<ConsoleWindow>();
        QCOMPARE(m_walk->find<QComboBox>("comboBox_Player")->count(), modelCount);
        // The constructor has applied the first model.
        const QByteArray differences
            = lineDifferences(panelOf(*m_walk, u"( Port number: ...)"_s),
                              goldenPanel(QString::fromLatin1(goldenFiles[0])));
        QVERIFY2(differences.isEmpty(), differences.constData());
    }
    // A serial model keeps the text, a TCP/IP model writes it also when it is the same.
    auto *port = m_walk->find<QLabel>("label_IP_Port");
    port->setText(u"text of another model"_s);
    m_walk->selectModel(row);

    const QByteArray differences
        = lineDifferences(panelOf(*m_walk, u"text of another model"_s),
                          goldenPanel(QString::fromLatin1(goldenFiles[row])));
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(m_walk->text("label_Volume_2"), u"..."_s);
    QCOMPARE(m_walk->text("label_Bytes_Sended"), u"0"_s);
}

void tst_Panels::onlyPanelsAreEverHidden()
{
    ConsoleWindow console;
    QSet<QString> mayBeHidden{u"label_Connection_Message"_s};
    for (const char *name : panels)
        mayBeHidden.insert(QString::fromLatin1(name));
    for (int row = 0; row < modelCount; ++row) {
        console.selectModel(row);
        const QList<QWidget *> widgets = namedWidgets(console.window);
        for (const QWidget *widget : widgets) {
            if (widget->isHidden() && !widget->isWindow())
                QVERIFY2(mayBeHidden.contains(widget->objectName()),
                         qPrintable(widget->objectName()));
        }
        QVERIFY(console.find<QWidget>("label_Connection_Message")->isHidden());
    }
}

void tst_Panels::sourcesOfSonetA_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("references");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("radios");

    const QStringList none;
    const struct
    {
        int row;
        const char *name;
    } models[] = {{SonetASerial, "serial"}, {SonetALiteTcp, "TCP/IP"}};
    for (const auto &sonet : models) {
        const auto add = [&](const char *source, const QStringList &references,
                             const QStringList &options, const QStringList &radios) {
            QTest::addRow("%s, %s", sonet.name, source)
                << sonet.row << QString::fromLatin1(source) << references << options << radios;
        };
        for (const char *source :
             {"MUSIC folder (Random)", "MUSIC folder (Random + Reset)", "MUSIC folder (Sequential)",
              "MUSIC folder (Sequential + Reset)", "PLAYLIST folder (Random)",
              "PLAYLIST folder (Random + Reset)", "PLAYLIST folder (Sequential)",
              "PLAYLIST folder (Sequential + Reset)", "SPOT folder (Random)",
              "SPOT folder (Sequential)"}) {
            add(source, paddedRun(1, 999), none, none);
        }
        if (sonet.row == SonetASerial) {
            for (const char *source :
                 {"SPOT folder (Random + Reset)", "SPOT folder (Sequential + Reset)"}) {
                add(source, paddedRun(1, 999), paddedRun(1, 255), none);
            }
        }
        add("Webradio", none, none, paddedRun(1, 10));
        for (const char *source :
             {"Alternate: Internal USB", "Alternate: External USB", "Alternate: SD card",
              "Alternate: Internal HDD", "Alternate: Aux input"}) {
            add(source, none, none, none);
        }
    }
}

void tst_Panels::sourcesOfSonetA()
{
    QFETCH(const int, model);
    QFETCH(const QString, source);
    QFETCH(const QStringList, references);
    QFETCH(const QStringList, options);
    QFETCH(const QStringList, radios);

    ConsoleWindow console;
    console.selectModel(model);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", source));
    activate(console, "comboBox_Source_Of_Playback",
             console.find<QComboBox>("comboBox_Source_Of_Playback")->currentIndex());

    QCOMPARE(rowsOf(console.window, "comboBox_Ref_Of_Playback"), references);
    QCOMPARE(rowsOf(console.window, "comboBox_Option_Of_Playback"), options);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), radios);
    QCOMPARE(console.find<QWidget>("frame_Ref_Of_Playback")->isHidden(), references.isEmpty());
    QCOMPARE(console.find<QWidget>("frame_Option_Of_Playback")->isHidden(), options.isEmpty());
    QCOMPARE(console.find<QWidget>("frame_Webradio_Ref_Of_Playback")->isHidden(), radios.isEmpty());
    QCOMPARE(console.find<QComboBox>("comboBox_Source_Of_Playback")->currentText(), source);
}

void tst_Panels::commandIds_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("rows");

    const auto add = [](quint32 id, const char *shown, const char *list = "",
                        const QStringList &rows = {}) {
        QTest::addRow("%u", id) << id << QString::fromLatin1(shown).split(u' ', Qt::SkipEmptyParts)
                                << QByteArray(list) << rows;
    };
    const QStringList label{u"Label"_s};

    add(0, "");
    add(1, "line_ID_and_Folder frame_Folder", "comboBox_Folder", {u"000"_s, u"001"_s});
    add(2, "frame_Playback_Command pushButton_Previous_Folder line_Playback_Command");
    add(3, "frame_Playback_Command pushButton_Previous_File line_Playback_Command");
    add(4, "frame_Playback_Command pushButton_Play line_Playback_Command");
    add(5, "frame_Playback_Command pushButton_Stop line_Playback_Command");
    add(6, "frame_Playback_Command pushButton_Pause line_Playback_Command");
    add(7, "frame_Playback_Command pushButton_Next_File line_Playback_Command");
    add(8, "frame_Playback_Command pushButton_Next_Folder line_Playback_Command");
    add(9, "frame_Volume pushButton_Volume_Less pushButton_Volume_More line_Volume");
    add(10, "frame_Request line_Request", "comboBox_Request", label);
    add(11, "frame_Change_ID line_after_Change_ID", "comboBox_Change_ID", {u"0"_s, u"1"_s});
    // The line lies in another, hidden frame; it is switched all the same.
    add(12, "frame_Standby_Wakeup line_after_Change_Before_Standby line_Playback_Command");
    for (const quint32 id : {13U, 14U, 15U, 16U, 17U, 18U, 20U, 21U, 27U, 28U,
                             29U, 30U, 31U, 32U, 41U, 42U, 43U, 44U, 45U, 99U}) {
        add(id, "frame_Other_Command line_Other_Command", "comboBox_Other_Command", label);
    }
    add(19, "frame_Volume pushButton_Volume_Mute_Unmute line_Volume line_before_Mute_Unmute");
    add(22, "frame_Relay_Command line_Relay");
    add(23, "frame_Content_Playback line_Content_Playback frame_Ref_Of_Playback",
        "comboBox_Source_Of_Playback", label);
    add(24,
        "frame_Content_Playback line_Content_Playback frame_Ref_Of_Playback "
        "frame_Option_Of_Playback",
        "comboBox_Source_Of_Playback", label);
    add(25, "frame_Content_Playback line_Content_Playback frame_Webradio_Ref_Of_Playback",
        "comboBox_Source_Of_Playback", label);
    add(26, "frame_Content_Playback line_Content_Playback", "comboBox_Source_Of_Playback", label);
    add(33, "frame_Content_Subtitles line_Subtitles pushButton_Subtitles_Off");
    add(34, "frame_Content_Subtitles line_Subtitles pushButton_Subtitles_On");
    add(35, "frame_Content_Subtitles line_Subtitles pushButton_Subtitles_Previous");
    add(36, "frame_Content_Subtitles line_Subtitles pushButton_Subtitles_Next");
    add(37, "frame_Content_Subtitles line_Subtitles pushButton_Subtitles_Previous_Loop");
    add(38, "frame_Content_Subtitles line_Subtitles pushButton_Subtitles_Next_Loop");
    const char *selection = "frame_Content_Subtitles line_Subtitles frame_Subtitles_Value "
                            "frame_Subtitles_Type pushButton_Subtitles_Select";
    add(39, selection, "comboBox_Subtitles_Type",
        {u"ISO639-2 (B)"_s, u"ISO639-2 (T)"_s, u"ISO639-3"_s});
    add(40, selection, "comboBox_Subtitles_Type", {u"Index"_s});
    for (const quint32 id : {46U, 97U, 98U, 100U, 257U, 0x80000001U, 0xFFFFFFFFU})
        add(id, "");
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
    for (const char *name : modelLists) {
        const QByteArrayList own{list, "comboBox_Baudrate", "comboBox_ID"};
        const bool filledBySource = shown.contains(u"frame_Content_Playback"_s)
                                    && QByteArray(name).endsWith("_Of_Playback");
        const bool filledByType = id == 39 && QByteArray(name) == "comboBox_Subtitles_Value";
        if (!own.contains(name) && !filledBySource && !filledByType)
            QCOMPARE(rowsOf(console.window, name), QStringList());
    }
    if (!list.isEmpty())
        QCOMPARE(rowsOf(console.window, list.constData()), rows);
}

void tst_Panels::modelWithoutCommands()
{
    ConsoleWindow console;
    DeviceModel invented = model({});
    invented.firmwareVersion = u"7"_s;
    choose(console, invented);
    QCOMPARE(shownPanels(console), serialPanelsWith());
    QVERIFY(console.text("label_Comments").contains(u"with firmware 7 or higher"_s));

    invented.maxPlayerId = 1;
    choose(console, invented);
    QCOMPARE(shownPanels(console),
             serialPanelsWith({u"frame_ID"_s, u"line_ID_and_Folder"_s, u"line_after_ID"_s}));

    choose(console, model({}, ProtocolKind::Classic, TransportKind::TcpIp));
    QCOMPARE(shownPanels(console), QStringList({u"checkBox_Auto_connection"_s, u"frame_IP"_s}));
    QCOMPARE(console.text("label_Comments"), QString());
    QVERIFY(console.find<QPushButton>("pushButton_Connect")->isEnabled());
}

void tst_Panels::playerIds_data()
{
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");

    QTest::newRow("0 to 127") << 0 << 127 << 128 << u"0"_s << u"127"_s;
    QTest::newRow("0 only, hidden") << 0 << 0 << 1 << u"0"_s << u"0"_s;
    QTest::newRow("5 only, hidden") << 5 << 5 << 1 << u"5"_s << u"5"_s;
    QTest::newRow("two") << 7 << 8 << 2 << u"7"_s << u"8"_s;
    QTest::newRow("up to the highest byte") << 250 << 255 << 6 << u"250"_s << u"255"_s;
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

    QTest::newRow("one, preset") << QList<qint32>{115200} << 115200 << QStringList{u"115200"_s}
                                 << 0;
    QTest::newRow("preset in the middle") << QList<qint32>{9600, 19200, 38400} << 19200
                                          << QStringList{u"9600"_s, u"19200"_s, u"38400"_s} << 1;
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

    QTest::newRow("read unsigned") << quint16(0xFE37) << u"( Port number: 65079 )"_s;
    QTest::newRow("highest") << quint16(0xFFFF) << u"( Port number: 65535 )"_s;
    QTest::newRow("small") << quint16(1234) << u"( Port number: 1234 )"_s;
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

void tst_Panels::autoConnection_data()
{
    QTest::addColumn<ProtocolKind>("protocol");
    QTest::addColumn<TransportKind>("transport");
    QTest::addColumn<bool>("shown");

    QTest::newRow("classic, serial") << ProtocolKind::Classic << TransportKind::Serial << true;
    QTest::newRow("classic, TCP/IP") << ProtocolKind::Classic << TransportKind::TcpIp << true;
    QTest::newRow("extended, serial") << ProtocolKind::Extended << TransportKind::Serial << true;
    QTest::newRow("extended, TCP/IP: connects on demand")
        << ProtocolKind::Extended << TransportKind::TcpIp << false;
}

void tst_Panels::autoConnection()
{
    QFETCH(const ProtocolKind, protocol);
    QFETCH(const TransportKind, transport);
    QFETCH(const bool, shown);

    ConsoleWindow console;
    auto *box = console.find<QWidget>("checkBox_Auto_connection");
    box->setVisible(!shown);
    choose(console, model({}, protocol, transport));
    QCOMPARE(box->isHidden(), !shown);
}

void tst_Panels::folders_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("banks");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("0 to 124, 8 banks: 1000 numbers") << 0 << 124 << 8 << paddedRun(0, 999);
    QTest::newRow("0 to 124, 2 banks") << 0 << 124 << 2 << paddedRun(0, 249);
    QTest::newRow("0 to 127, 8 banks: cut at 999") << 0 << 127 << 8 << paddedRun(0, 999);
    QTest::newRow("0 to 127, 2 banks") << 0 << 127 << 2 << paddedRun(0, 255);
    QTest::newRow("0 to 127, 1 bank") << 0 << 127 << 1 << paddedRun(0, 127);
    QTest::newRow("0 to 99, 10 banks") << 0 << 99 << 10 << paddedRun(0, 999);
    QTest::newRow("1 to 99, 2 banks: counted on") << 1 << 99 << 2 << paddedRun(1, 198);
    QTest::newRow("bytes are unsigned") << 200 << 255 << 1 << paddedRun(200, 255);
    QTest::newRow("0 to 255, 255 banks: cut at 999") << 0 << 255 << 255 << paddedRun(0, 999);
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
    QTest::newRow("classic") << classic << bytes({0}) << bytes({0x40}) << u"0..64 at 64"_s;
    QTest::newRow("classic, unsigned bytes")
        << classic << bytes({0x80}) << bytes({0xFF}) << u"128..255 at 255"_s;
    QTest::newRow("classic, more bytes: the first ones")
        << classic << bytes({1, 2}) << bytes({3, 4}) << u"1..3 at 3"_s;
    QTest::newRow("classic, above the range before")
        << classic << bytes({60}) << bytes({70}) << u"60..70 at 70"_s;
    QTest::newRow("classic, single value") << classic << bytes({9}) << bytes({9}) << u"9..9 at 9"_s;
    // The minimum is set first, so the maximum has the last word.
    QTest::newRow("classic, upside down")
        << classic << bytes({40}) << bytes({20}) << u"20..20 at 20"_s;
    QTest::newRow("classic, no data") << classic << QByteArray() << bytes({64}) << kept;
    QTest::newRow("classic, no dataMax") << classic << bytes({0}) << QByteArray() << kept;
    QTest::newRow("extended") << extended << bytes({0, 0}) << bytes({0, 100}) << u"0..100 at 100"_s;
    QTest::newRow("extended, two bytes wide, big-endian")
        << extended << bytes({0, 1}) << bytes({1, 2}) << u"1..258 at 258"_s;
    QTest::newRow("extended, highest")
        << extended << bytes({0xFF, 0xFE}) << bytes({0xFF, 0xFF}) << u"65534..65535 at 65535"_s;
    QTest::newRow("extended, three bytes: the first two")
        << extended << bytes({0, 0, 9}) << bytes({0, 64, 9}) << u"0..64 at 64"_s;
    QTest::newRow("extended, one byte of data") << extended << bytes({0}) << bytes({0, 64}) << kept;
    QTest::newRow("extended, one byte of dataMax")
        << extended << bytes({0, 0}) << bytes({64}) << kept;
    QTest::newRow("extended, no bytes") << extended << QByteArray() << QByteArray() << kept;
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
    QTest::newRow("serial, two") << serial << bytes({9}) << bytes({10})
                                 << QStringList{u"9"_s, u"10"_s};
    QTest::newRow("serial, unsigned bytes")
        << serial << bytes({254}) << bytes({255}) << QStringList{u"254"_s, u"255"_s};
    QTest::newRow("serial, upside down") << serial << bytes({2}) << bytes({1}) << QStringList();
    QTest::newRow("serial, no data") << serial << QByteArray() << bytes({1}) << QStringList();
    QTest::newRow("serial, no dataMax") << serial << bytes({1}) << QByteArray() << QStringList();
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
    console.selectModel(VistarShowSerial); // leaves values behind
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

    QTest::newRow("24: references and options") << Commands{command(24, spot, first, last)} << spot
                                                << paddedRun(1, 3) << paddedRun(1, 2) << none;
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
    QTest::newRow("24: unsigned option bytes")
        << Commands{command(24, spot, bytes({0, 1, 254}), bytes({0, 1, 255}))} << spot
        << paddedRun(1, 1) << paddedRun(254, 255) << none;
    QTest::newRow("23: references, big-endian")
        << Commands{command(23, spot, bytes({3, 0xE6, 0xFF}), bytes({3, 0xE9, 0xFF}))} << spot
        << QStringList{u"998"_s, u"999"_s, u"1000"_s, u"1001"_s} << none << none;
    // Two bytes are read, three are wanted all the same.
    QTest::newRow("23: two bytes offer nothing")
        << Commands{command(23, spot, bytes({0, 1}), bytes({0, 3}))} << spot << none << none
        << none;
    QTest::newRow("25: radios") << Commands{command(25, spot, first, last)} << spot << none << none
                                << paddedRun(1, 3);
    QTest::newRow("25: two bytes offer nothing")
        << Commands{command(25, spot, bytes({0, 1}), bytes({0, 3}))} << spot << none << none
        << none;
    QTest::newRow("26: nothing further")
        << Commands{command(26, spot, first, last)} << spot << none << none << none;
    QTest::newRow("label shared by two families: both")
        << Commands{command(23, spot, first, last),
                    command(25, spot, bytes({0, 7, 0}), bytes({0, 8, 0}))}
        << spot << paddedRun(1, 3) << none << paddedRun(7, 8);
    QTest::newRow("label twice in a family: one behind the other")
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
    console.selectModel(SonetASerial);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", u"SPOT folder (Random + Reset)"_s));
    console.window.on_comboBox_Source_Of_Playback_activated(0);
    choose(console, model(commands));
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", source));
    activate(console, "comboBox_Source_Of_Playback",
             console.find<QComboBox>("comboBox_Source_Of_Playback")->currentIndex());

    QCOMPARE(rowsOf(console.window, "comboBox_Ref_Of_Playback"), references);
    QCOMPARE(rowsOf(console.window, "comboBox_Option_Of_Playback"), options);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), radios);
    QCOMPARE(console.find<QWidget>("frame_Ref_Of_Playback")->isHidden(), references.isEmpty());
    QCOMPARE(console.find<QWidget>("frame_Option_Of_Playback")->isHidden(), options.isEmpty());
    QCOMPARE(console.find<QWidget>("frame_Webradio_Ref_Of_Playback")->isHidden(), radios.isEmpty());
    QVERIFY(!console.find<QWidget>("frame_Content_Playback")->isHidden());
}

// The row that is handed over is compared with the length of the list; the source itself is the
// current text.
void tst_Panels::sourceRowIsOnlyCounted()
{
    ConsoleWindow console;
    console.selectModel(SonetASerial);
    QVERIFY(console.selectText("comboBox_Source_Of_Playback", u"Webradio"_s));
    console.window.on_comboBox_Source_Of_Playback_activated(17);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), paddedRun(1, 10));

    console.window.on_comboBox_Source_Of_Playback_activated(18);
    QCOMPARE(rowsOf(console.window, "comboBox_Webradio_Ref_Of_Playback"), QStringList());
    QVERIFY(console.find<QWidget>("frame_Webradio_Ref_Of_Playback")->isHidden());

    console.selectModel(TempoDeck); // no source at all
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

    list->setCurrentIndex(SonetALiteTcp);
    console.window.on_comboBox_Player_activated(TempoDeck);
    QVERIFY(box->isHidden());
    // All the rest is of the row that is applied.
    QVERIFY(!console.find<QWidget>("frame_Port")->isHidden());
    QVERIFY(console.find<QWidget>("frame_IP")->isHidden());
    QCOMPARE(rowsOf(console.window, "comboBox_ID").size(), 128);

    list->setCurrentIndex(TempoDeck);
    console.window.on_comboBox_Player_activated(SonetALiteTcp);
    QVERIFY(!box->isHidden());
    QVERIFY(!console.find<QWidget>("frame_IP")->isHidden());
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 1234 )"_s);
    QCOMPARE(rowsOf(console.window, "comboBox_Request").size(), 23);
}

void tst_Panels::currentRowDecidesSources()
{
    ConsoleWindow console;
    console.find<QComboBox>("comboBox_Player")->setCurrentIndex(TempoDeck);
    console.window.on_comboBox_Player_activated(SonetASerial);
    QCOMPARE(rowsOf(console.window, "comboBox_Source_Of_Playback").size(), 18);
    QCOMPARE(rowsOf(console.window, "comboBox_Ref_Of_Playback"), QStringList());
    QVERIFY(console.find<QWidget>("frame_Ref_Of_Playback")->isHidden());
}

void tst_Panels::rowOutsideTheCatalogueRefreshesOnly_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("first one behind the catalogue") << modelCount;
    QTest::newRow("far away") << 1000;
    QTest::newRow("none") << -1;
}

void tst_Panels::rowOutsideTheCatalogueRefreshesOnly()
{
    QFETCH(const int, row);

    ConsoleWindow console;
    console.selectModel(SonetASerial);
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
    console.selectModel(VistarShowSerial);
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
    console.window.on_comboBox_Player_activated(SonetALiteTcp);
    QVERIFY(!console.find<QWidget>("frame_IP")->isHidden());
    QVERIFY(!console.find<QWidget>("checkBox_Auto_connection")->isHidden());
    QCOMPARE(rowsOf(console.window, "comboBox_Request").size(), 23);
    QCOMPARE(console.text("label_Comments"), QString());
}

void tst_Panels::firmwareNote_data()
{
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<QString>("note");

    QTest::newRow("with a version")
        << u"AP 1.11 / MCU 1.05"_s
        << u"All commands present in this model can be executed for devices with firmware AP 1.11 "
           "/ MCU 1.05 or higher. If the device embed a lower firmware version, some commands may "
           "not be executed. Refer to the release notes of this application for more information."_s;
    QTest::newRow("without one") << QString() << QString();
}

void tst_Panels::firmwareNote()
{
    QFETCH(const QString, firmware);
    QFETCH(const QString, note);

    ConsoleWindow console;
    DeviceModel invented = model({});
    invented.firmwareVersion = firmware;
    auto *label = console.find<QLabel>("label_Comments");
    auto *list = console.find<QComboBox>("comboBox_Player");
    label->setText(u"left behind"_s);
    choose(console, invented);
    QCOMPARE(label->text(), note);

    label->setText(u"left behind"_s);
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), note);

    list->addItem(u"not in the catalogue"_s);
    list->setCurrentIndex(list->count() - 1);
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), QString());

    label->setText(u"left behind"_s);
    list->setCurrentIndex(-1);
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), QString());

    label->setText(u"left behind"_s);
    list->setCurrentIndex(0);
    deviceCatalogue.clear();
    console.window.updateFirmwareNote();
    QCOMPARE(label->text(), QString());
}

void tst_Panels::textsAreTranslated()
{
    ConsoleWindow console;
    const BracingTranslator braces;
    console.selectModel(VistarShowTcp);
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
    for (const char *name : panels)
        console.find<QWidget>(name)->show();
    console.window.hideCommandPanels();
    // Not among the command panels.
    QCOMPARE(shownPanels(console), QStringList({u"checkBox_Auto_connection"_s}));
    QVERIFY(!console.find<QWidget>("frame_Launch_Playback")->isHidden());
    QVERIFY(!console.find<QWidget>("frame_Subtitles_Select")->isHidden());
}

void tst_Panels::sameModelTwiceGivesTheSameWindow_data()
{
    QTest::addColumn<int>("row");

    for (int row = 0; row < modelCount; ++row)
        QTest::newRow(goldenFiles[row]) << row;
}

void tst_Panels::sameModelTwiceGivesTheSameWindow()
{
    QFETCH(const int, row);

    ConsoleWindow console;
    console.selectModel(row);
    const QStringList before = windowState(console.window);

    for (const char *name : modelLists) {
        auto *list = console.find<QComboBox>(name);
        list->setCurrentIndex(list->count() - 1);
    }
    console.window.on_comboBox_Source_Of_Playback_activated(0);
    console.window.on_comboBox_Subtitles_Type_activated();
    auto *slider = console.find<QSlider>("horizontalSlider_Volume");
    const QSignalBlocker silent(slider);
    slider->setValue(slider->minimum());
    console.selectModel(row);

    const QByteArray differences = lineDifferences(windowState(console.window), before);
    QVERIFY2(differences.isEmpty(), differences.constData());
}

// The slider jumps to the new model's maximum without its slot being run.
void tst_Panels::choosingSendsNothing()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    QVERIFY(serialPort->isOpen());
    console.find<QLabel>("label_Volume_2")->setText(u"17"_s);

    for (int row = 14; row >= 0; --row) {
        console.selectModel(row);
        QCOMPARE(console.text("label_Volume_2"), u"17"_s);
        QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
        QVERIFY(!tcpSocket->isOpen());
    }
    // The bytes of the next command are the first ones to arrive.
    console.selectModel(TempoDeck);
    console.click("pushButton_Play");
    QTRY_COMPARE(peer.received().toHex(' '), QByteArray("80 02 01"));
}

void tst_Panels::choosingConnectsNothing()
{
    TcpPeer peer(1234);
    ConsoleWindow console;
    console.setAddress(TcpPeer::address().toString());
    for (int row = 0; row < modelCount; ++row) {
        console.selectModel(row);
        QCOMPARE(tcpSocket->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!tcpSocket->isOpen());
        QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    }
    QCOMPARE(peer.connectionCount(), 0);
}

void tst_Panels::serialLinkStaysOpen()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    for (int row = 0; row < modelCount; ++row) {
        console.selectModel(row);
        QVERIFY(serialPort->isOpen());
        QVERIFY(console.find<QWidget>("pushButton_Disconnect")->isEnabled());
        QVERIFY(!console.find<QWidget>("pushButton_Connect")->isEnabled());
        QVERIFY(console.find<QWidget>("frame_Commands")->isEnabled());
        QVERIFY(!console.find<QWidget>("frame_Settings")->isEnabled());
        // Enabled by its rates for a moment, then by the state of the link.
        QVERIFY(!console.find<QWidget>("frame_Baudrate")->isEnabled());
    }
}

void tst_Panels::tcpLinkStaysOpen()
{
    TcpPeer peer(65079);
    ConsoleWindow console;
    console.selectModel(VistarShowTcp);
    QVERIFY(console.connectTcp());
    for (int row = 14; row >= 0; --row) {
        console.selectModel(row);
        QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
        QVERIFY(console.find<QWidget>("pushButton_Disconnect")->isEnabled());
        QVERIFY(console.find<QWidget>("frame_Commands")->isEnabled());
    }
    QTRY_COMPARE(peer.connectionCount(), 1);
    QCOMPARE(peer.received().toHex(' '), QByteArray());
}

TESSALY_WINDOW_TEST(tst_Panels)
#include "tst_panels.moc"
