// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/protocol/linkedwindow.h"
#include "tests/support/testmain.h"

#include <QSlider>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString classicModel = u"Tempo Deck"_s;
const QString changeIdModel = u"HV1xx (Serial) (legacy)"_s;

CommandEntry volumeCommand(quint8 code, const QByteArray &data, const QByteArray &dataMax)
{
    return {u"Volume"_s, 9, code, QByteArray::fromHex(data), QByteArray::fromHex(dataMax)};
}

DeviceModel serialModel(ProtocolKind protocol, const CommandEntry &command)
{
    DeviceModel model(u"Serial test model"_s, protocol, TransportKind::Serial, 0, 127, 8, 19200, 0,
                      {});
    model.baudRates = {19200};
    model.commands = {command};
    return model;
}

QSlider *volumeSlider(const LinkedWindow &window)
{
    return window.find<QSlider>("horizontalSlider_Volume");
}

Sent moveSlider(LinkedWindow &window, int volume)
{
    return window.sentBy([&] { volumeSlider(window)->setValue(volume); });
}

} // namespace

/// Folders, volume and player ID: what each family of frames does with any value.
class tst_Playback : public QObject
{
    Q_OBJECT

private slots:
    void folders_data();
    void folders();
    void folderText_data();
    void folderText();
    void folderOfEmptyList();
    void folderShortcutIsLikeTheList();
    void shortcutsOfHiddenPanels();

    void volume_data();
    void volume();
    void volumeWithoutLink();
    void sliderMinimumCountsTwice_data();
    void sliderMinimumCountsTwice();
    void volumeMoversBetweenTheEnds();
    void volumeCommandWithoutData();

    void changeIdText_data();
    void changeIdText();
    void changeIdOfEmptyList();
};

void tst_Playback::folders_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QByteArray>("bytes"); // empty: not offered

    struct
    {
        const char *name;
        QString model;
        int folderCount;
    } const models[] = {
        {"8 banks", classicModel, 1000},
        {"2 banks", changeIdModel, 256},
        {"1 bank", u"Card Deck HD (legacy)"_s, 128},
    };
    const std::pair<QString, QByteArray> folders[] = {
        {u"000"_s, "85 01 00"_ba}, {u"127"_s, "85 01 7F"_ba}, {u"128"_s, "85 11 00"_ba},
        {u"200"_s, "85 11 48"_ba}, {u"255"_s, "85 11 7F"_ba}, {u"256"_s, "85 21 00"_ba},
        {u"999"_s, "85 71 67"_ba},
    };
    for (const auto &model : models) {
        for (const auto &[folder, bytes] : folders) {
            QTest::addRow("%s: %s", model.name, qPrintable(folder))
                << model.model << folder
                << (folder.toInt() < model.folderCount ? bytes : QByteArray());
        }
    }
}

void tst_Playback::folders()
{
    QFETCH(const QString, model);
    QFETCH(const QString, folder);
    QFETCH(const QByteArray, bytes);

    LinkedWindow window(model);
    QVERIFY(window.choosePlayer(5));
    QCOMPARE(window.choose("comboBox_Folder", folder), !bytes.isEmpty());
    if (bytes.isEmpty())
        return;
    const Sent sent = window.press("pushButton_Folder");
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QString::fromLatin1(bytes));
}

void tst_Playback::folderText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("letters count as 0") << u"abc"_s << "80 01 00"_ba;
    QTest::newRow("empty counts as 0") << u""_s << "80 01 00"_ba;
    QTest::newRow("hexadecimal counts as 0") << u"0x10"_s << "80 01 00"_ba;
    QTest::newRow("above 32 bits counts as 0") << u"2147483648"_s << "80 01 00"_ba;
    QTest::newRow("010 is ten, not eight") << u"010"_s << "80 01 0A"_ba;
    QTest::newRow("no range check") << u"1024"_s << "80 81 00"_ba;
}

void tst_Playback::folderText()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, bytes);

    LinkedWindow window(classicModel);
    window.setListText("comboBox_Folder", text);
    QCOMPARE(window.press("pushButton_Folder").bytes, bytes);
}

void tst_Playback::folderOfEmptyList()
{
    LinkedWindow window(classicModel);
    window.find<QComboBox>("comboBox_Folder")->clear();
    QCOMPARE(window.press("pushButton_Folder").bytes, "80 01 00"_ba);
}

void tst_Playback::folderShortcutIsLikeTheList()
{
    LinkedWindow window(classicModel);
    QVERIFY(window.choose("comboBox_Folder", u"003"_s));
    QCOMPARE(window.press("pushButton_Folder").bytes, "80 01 03"_ba);
    QVERIFY(window.choose("comboBox_Folder", u"200"_s));
    const Sent sent = window.type(u"Ctrl+3"_s);
    QCOMPARE(sent.bytes, "80 01 03"_ba);
    QCOMPARE(sent.shown, u"80 01 03"_s);
    QCOMPARE(window.find<QComboBox>("comboBox_Folder")->currentText(), u"200"_s);
}

void tst_Playback::shortcutsOfHiddenPanels()
{
    LinkedWindow window(classicModel);
    QCOMPARE(window.type(u"Ctrl+5"_s).bytes, "80 01 05"_ba);
    window.window.hideCommandPanels();
    QVERIFY(window.find<QWidget>("frame_Folder")->isHidden());
    QCOMPARE(window.type(u"Ctrl+5"_s).bytes, "80 01 05"_ba);
    QCOMPARE(window.type(u"Media Play"_s).bytes, "80 02 01"_ba);
}

void tst_Playback::volume_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArrayList>("bytes"); // of the volumes 0, 1, 32, 33, 40, 63 and 64

    const QByteArray set = "03 00 00 00 73 65 74 00 "
                           "56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 "_ba;
    QTest::newRow("classic") << classicModel
                             << QByteArrayList{"85 03 00", "85 03 01", "85 03 20", "85 03 21",
                                               "85 03 28", "85 03 3F", "85 03 40"};
    QTest::newRow("extended, serial")
        << u"Sonet A (Serial)"_s
        << QByteArrayList{"30 00 00 00", "30 00 01 00", "30 00 20 00", "30 00 21 00",
                          "30 00 28 00", "30 00 3F 00", "30 00 40 00"};
    // The text counts downwards from 64: "-64" to "0".
    QTest::newRow("extended, TCP/IP")
        << u"Sonet A Lite (TCP/IP)"_s
        << QByteArrayList{set + "2D 36 34 00", set + "2D 36 33 00", set + "2D 33 32 00",
                          set + "2D 33 31 00", set + "2D 32 34 00", set + "2D 31 00",
                          set + "30 00"};
}

void tst_Playback::volume()
{
    QFETCH(const QString, model);
    QFETCH(const QByteArrayList, bytes);

    LinkedWindow window(model);
    window.choosePlayer(5);
    QString number = u"..."_s;
    QCOMPARE(window.text("label_Volume_2"), number);

    struct
    {
        QString control;
        int slider; // where it is moved to, when that is the control
        int volume; // that is sent; -1: nothing is
        int row;    // of the bytes
    } const acts[] = {
        {u"pushButton_Volume_More"_s, 0, -1, 0},
        {u"Ctrl++"_s, 0, -1, 0},
        {{}, 64, -1, 0},
        {{}, 1000, -1, 0},
        {u"Ctrl+-"_s, 0, 63, 5},
        {u"Ctrl++"_s, 0, 64, 6},
        {{}, 40, 40, 4},
        {{}, 32, 32, 2},
        {{}, 32, -1, 0},
        {u"Ctrl++"_s, 0, 33, 3},
        {u"Ctrl+-"_s, 0, 32, 2},
        {u"pushButton_Volume_Less"_s, 0, 0, 0},
        {u"pushButton_Volume_Less"_s, 0, -1, 0},
        {u"Ctrl+-"_s, 0, -1, 0},
        {u"Ctrl++"_s, 0, 1, 1},
        {u"Ctrl+-"_s, 0, 0, 0},
        {u"pushButton_Volume_More"_s, 0, 64, 6},
        {{}, 0, 0, 0},
        {{}, 64, 64, 6},
    };
    for (const auto &act : acts) {
        const QString before = window.text("label_Bytes_Sended");
        const Sent sent = act.control.isEmpty() ? moveSlider(window, act.slider)
                          : act.control.startsWith("pushButton"_L1)
                              ? window.press(act.control.toLatin1().constData())
                              : window.type(act.control);
        if (act.volume >= 0)
            number = QString::number(act.volume);
        const QByteArray expected = act.volume < 0 ? QByteArray() : bytes.at(act.row);
        QCOMPARE(sent.bytes, expected);
        QCOMPARE(sent.shown, act.volume < 0 ? before : QString::fromLatin1(expected));
        QCOMPARE(window.text("label_Volume_2"), number);
    }
}

void tst_Playback::volumeWithoutLink()
{
    // The number follows the slider whether or not the command went out.
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(classicModel));
    console.find<QSlider>("horizontalSlider_Volume")->setValue(10);
    QCOMPARE(console.text("label_Volume_2"), u"10"_s);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    console.window.Increase_Volume();
    QCOMPARE(console.text("label_Volume_2"), u"11"_s);
    console.window.on_pushButton_Volume_Less_clicked();
    QCOMPARE(console.text("label_Volume_2"), u"0"_s);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
}

void tst_Playback::sliderMinimumCountsTwice_data()
{
    QTest::addColumn<DeviceModel>("model");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("bytes");

    // The minimum counts twice: it is added to a value that already lies above it. Kept as it is.
    const auto classic = [](const QByteArray &lowest, const QByteArray &highest) {
        return serialModel(ProtocolKind::Classic, volumeCommand(3, lowest, highest));
    };
    const auto extended = [](const QByteArray &lowest, const QByteArray &highest) {
        return serialModel(ProtocolKind::Extended, volumeCommand(48, lowest, highest));
    };
    DeviceModel onDemand = extended("00 05 00", "00 0A 00");
    onDemand.transport = TransportKind::TcpIp;
    onDemand.tcpPort = 1234;
    onDemand.commands = {volumeCommand(3, "00 05 00", "00 0A 00")};

    QTest::newRow("5 to 10: 5") << classic("05", "0A") << 5 << "80 03 0A"_ba;
    QTest::newRow("5 to 10: 7") << classic("05", "0A") << 7 << "80 03 0C"_ba;
    QTest::newRow("100 to 255: 155") << classic("64", "FF") << 155 << "80 03 FF"_ba;
    QTest::newRow("100 to 255: 156 is cut to 8 bits")
        << classic("64", "FF") << 156 << "80 03 00"_ba;
    QTest::newRow("0 to 255: 254") << classic("00", "FF") << 254 << "80 03 FE"_ba;
    QTest::newRow("extended, 5 to 10: 7")
        << extended("00 05 00", "00 0A 00") << 7 << "30 00 0C 00"_ba;
    QTest::newRow("extended, 0 to 1000: 513 is cut to 8 bits")
        << extended("00 00 00", "03 E8 00") << 513 << "30 00 01 00"_ba;
    // 12 less 64: "-52"
    QTest::newRow("connect on demand, 5 to 10: 7")
        << onDemand << 7
        << "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 35 32 00"_ba;
}

void tst_Playback::sliderMinimumCountsTwice()
{
    QFETCH(const DeviceModel, model);
    QFETCH(const int, value);
    QFETCH(const QByteArray, bytes);

    LinkedWindow window(model);
    const Sent sent = moveSlider(window, value);
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QString::fromLatin1(bytes));
    QCOMPARE(window.text("label_Volume_2"), QString::number(value));
}

void tst_Playback::volumeMoversBetweenTheEnds()
{
    LinkedWindow window(serialModel(ProtocolKind::Classic, volumeCommand(3, "05", "0A")));
    QCOMPARE(volumeSlider(window)->value(), 10);
    QCOMPARE(window.type(u"Ctrl++"_s).bytes, ""_ba);
    // One press goes all the way.
    QCOMPARE(window.press("pushButton_Volume_Less").bytes, "80 03 0A"_ba);
    QCOMPARE(volumeSlider(window)->value(), 5);
    QCOMPARE(window.type(u"Ctrl+-"_s).bytes, ""_ba);
    QCOMPARE(window.type(u"Ctrl++"_s).bytes, "80 03 0B"_ba);
    QCOMPARE(window.type(u"Ctrl+-"_s).bytes, "80 03 0A"_ba);
    QCOMPARE(window.press("pushButton_Volume_More").bytes, "80 03 0F"_ba);
    QCOMPARE(volumeSlider(window)->value(), 10);
}

void tst_Playback::volumeCommandWithoutData()
{
    LinkedWindow window(serialModel(ProtocolKind::Classic, volumeCommand(3, "", "")));
    // Its range is unknown, so the slider keeps that of the model before.
    const int volume = volumeSlider(window)->maximum() - 1;
    const Sent sent = moveSlider(window, volume);
    QCOMPARE(sent.bytes, "80 03"_ba);
    QCOMPARE(sent.shown, u"80 03"_s);
    QCOMPARE(window.text("label_Volume_2"), QString::number(volume));
}

void tst_Playback::changeIdText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    // The header goes on addressing the player by its present ID.
    QTest::newRow("12") << u"12"_s << "85 7F 0C"_ba;
    QTest::newRow("128: no range check") << u"128"_s << "85 7F 80"_ba;
    QTest::newRow("300: low 8 bits") << u"300"_s << "85 7F 2C"_ba;
    QTest::newRow("-1: low 8 bits") << u"-1"_s << "85 7F FF"_ba;
    QTest::newRow("letters count as 0") << u"abc"_s << "85 7F 00"_ba;
    QTest::newRow("empty counts as 0") << u""_s << "85 7F 00"_ba;
    QTest::newRow("above 32 bits counts as 0") << u"2147483649"_s << "85 7F 00"_ba;
}

void tst_Playback::changeIdText()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, bytes);

    LinkedWindow window(changeIdModel);
    QVERIFY(window.choosePlayer(5));
    window.setListText("comboBox_Change_ID", text);
    const Sent sent = window.press("pushButton_Change_ID");
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QString::fromLatin1(bytes));
    QCOMPARE(window.find<QComboBox>("comboBox_ID")->currentText(), u"5"_s);
    QCOMPARE(window.press("pushButton_Play").bytes, "85 02 01"_ba);
}

void tst_Playback::changeIdOfEmptyList()
{
    // In the network the list stays empty; the slot sends all the same, as the model has the bytes.
    LinkedWindow network(u"HV1xx (TCP/IP) (legacy)"_s);
    QCOMPARE(network.call("on_pushButton_Change_ID_clicked").bytes, "80 7F 00"_ba);
}

TESSALY_WINDOW_TEST(tst_Playback)
#include "tst_playback.moc"
