// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/support/consolewindow.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QHostAddress>
#include <QLabel>
#include <QRadioButton>
#include <QSerialPort>
#include <QSlider>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray hex(const QByteArray &bytes)
{
    return bytes.toHex(' ').toUpper();
}

CommandEntry command(quint32 id, quint8 code, const QByteArray &data, const QByteArray &dataMax)
{
    return {u"Command"_s, id, code, QByteArray::fromHex(data), QByteArray::fromHex(dataMax)};
}

CommandEntry command(quint32 id, quint8 code, const QByteArray &data)
{
    return command(id, code, data, data);
}

DeviceModel serialModel(ProtocolKind protocol, const QList<CommandEntry> &commands)
{
    DeviceModel model(u"Serial test model"_s, protocol, TransportKind::Serial, 0, 127, 8, 19200, 0,
                      {});
    model.baudRates = {19200};
    model.commands = commands;
    return model;
}

DeviceModel onDemandModel(quint16 port, const QList<CommandEntry> &commands)
{
    DeviceModel model(u"On-demand test model"_s, ProtocolKind::Extended, TransportKind::TcpIp, 0, 0,
                      8, -1, port, {});
    model.commands = commands;
    return model;
}

/// Lists a model behind those of the catalogue and picks it.
void addModel(ConsoleWindow &console, const DeviceModel &model)
{
    deviceCatalogue.append(model);
    auto *list = console.find<QComboBox>("comboBox_Player");
    list->addItem(model.name);
    console.selectModel(list->count() - 1);
}

void pressRadio(const ConsoleWindow &console, const char *name)
{
    // The centre of a wide radio button lies outside of what can be pressed.
    auto *radio = console.find<QRadioButton>(name);
    QTest::mouseClick(radio, Qt::LeftButton, {}, QPoint(8, radio->height() / 2));
}

/// Nothing waits to be written, and nothing has arrived at the peer.
bool isSilent(PtyPeer &peer)
{
    return serialPort->bytesToWrite() == 0 && tcpSocket->bytesToWrite() == 0
           && peer.received().isEmpty();
}

QSlider *volumeSlider(const ConsoleWindow &console)
{
    return console.find<QSlider>("horizontalSlider_Volume");
}

const char *const commandSlots[] = {
    "on_pushButton_Previous_Folder_clicked",
    "on_pushButton_Previous_File_clicked",
    "on_pushButton_Play_clicked",
    "on_pushButton_Stop_clicked",
    "on_pushButton_Pause_clicked",
    "on_pushButton_Next_File_clicked",
    "on_pushButton_Next_Folder_clicked",
    "on_pushButton_Standby_Wakeup_clicked",
    "on_pushButton_Volume_Mute_Unmute_clicked",
    "on_pushButton_Change_ID_clicked",
    "on_pushButton_Folder_clicked",
    "Play_Folder_000",
    "Play_Folder_001",
    "Play_Folder_002",
    "Play_Folder_003",
    "Play_Folder_004",
    "Play_Folder_005",
    "Play_Folder_006",
    "Play_Folder_007",
    "Play_Folder_008",
    "Play_Folder_009",
    "on_pushButton_Volume_Less_clicked",
    "on_pushButton_Volume_More_clicked",
    "Decrease_Volume",
    "Increase_Volume",
};

} // namespace

class tst_Send : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    // Whether anything is sent
    void nothingWithoutLink();
    void onDemandModelWithoutLink();
    void onBothLinks();
    void writeThatFails_data();
    void writeThatFails();
    void noModel_data();
    void noModel();
    void modelWithoutCommands();

    // The display
    void convertsShownBytes_data();
    void convertsShownBytes();
    void showsTextsOfAnyKind_data();
    void showsTextsOfAnyKind();
    void baseOfNewCommandFollowsTheButtons();
    void shownBytesAreThoseOnTheWire_data();
    void shownBytesAreThoseOnTheWire();

    // The player ID
    void playerIdText_data();
    void playerIdText();
    void noPlayerId();

    // Values
    void changeIdText_data();
    void changeIdText();
    void changeIdOfEmptyList();
    void folderText_data();
    void folderText();
    void folderOfEmptyList();
    void folderShortcutIsLikeTheList();
    void volumeWithoutLink();
    void sliderMinimumCountsTwice_data();
    void sliderMinimumCountsTwice();
    void textVolumeWithMinimum();
    void volumeMovers();
    void unchangedVolumeSendsNothing();
    void volumeCommandWithoutData();

    // The connect-on-demand family
    void onDemandBodies_data();
    void onDemandBodies();

private:
    MessageBoxCatcher m_messageBoxes;
};

void tst_Send::cleanup()
{
    QVERIFY(m_messageBoxes.messages.isEmpty());
}

void tst_Send::nothingWithoutLink()
{
    ConsoleWindow console;
    for (const char *slot : commandSlots) {
        QVERIFY2(QMetaObject::invokeMethod(&console.window, slot), slot);
        QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    }
    console.window.sendCommand(2, "\x01"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());

    // A link that has been closed again is none either.
    PtyPeer peer;
    console.connectSerial(peer);
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(peer.received()), "80 02 01"_ba);
    peer.takeReceived();
    console.click("pushButton_Disconnect");
    console.window.on_pushButton_Stop_clicked();
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 01"_s);
    QVERIFY(isSilent(peer));
    QVERIFY(!tcpSocket->isOpen());

    // Neither does a model on TCP/IP connect by itself, nor the extended family on a serial port.
    for (const char *model : {"Vistar Show - SV500 (TCP/IP)", "Sonet A (Serial)"}) {
        console.selectModel(console.rowOfModel(QString::fromLatin1(model)));
        console.window.on_pushButton_Play_clicked();
        QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 01"_s);
        QVERIFY(!serialPort->isOpen());
        QVERIFY(!tcpSocket->isOpen());
    }
}

void tst_Send::onDemandModelWithoutLink()
{
    TcpPeer peer(1234);
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Sonet A Lite (TCP/IP)"_s));
    console.setAddress(TcpPeer::address().toString());
    QVERIFY(!tcpSocket->isOpen());
    console.click("pushButton_Play");
    QCOMPARE(console.text("label_Bytes_Sended"),
             u"04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_s);
    QTRY_COMPARE(hex(peer.received()),
                 "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba);
}

void tst_Send::onBothLinks()
{
    TcpPeer tcpPeer(0);
    PtyPeer ptyPeer;
    ConsoleWindow console;
    console.connectSerial(ptyPeer);
    console.window.connectTcpSocket(TcpPeer::address().toString(), tcpPeer.port());
    QTRY_VERIFY(tcpPeer.isConnected());
    QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);

    QVERIFY(console.selectText("comboBox_ID", u"5"_s));
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(tcpPeer.received()), "85 02 01"_ba);
    QTRY_COMPARE(hex(ptyPeer.received()), "85 02 01"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"85 02 01"_s);

    tcpPeer.takeReceived();
    ptyPeer.takeReceived();
    console.click("pushButton_Volume_Less");
    QTRY_COMPARE(hex(tcpPeer.received()), "85 03 00"_ba);
    QTRY_COMPARE(hex(ptyPeer.received()), "85 03 00"_ba);
}

void tst_Send::writeThatFails_data()
{
    QTest::addColumn<bool>("portIsReadOnly");

    QTest::newRow("the port takes no bytes") << true;
    QTest::newRow("the peer is gone") << false;
}

void tst_Send::writeThatFails()
{
    QFETCH(bool, portIsReadOnly);

    PtyPeer peer;
    ConsoleWindow console;
    if (portIsReadOnly) {
        serialPort->setPortName(peer.portName());
        QVERIFY(serialPort->open(QIODevice::ReadOnly));
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QSerialPort): ReadOnly device");
    } else {
        console.connectSerial(peer);
        QVERIFY(serialPort->isOpen());
        peer.hangUp();
    }
    // The result of the write is not asked for: the display says what was to be sent.
    console.window.on_pushButton_Play_clicked();
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 01"_s);
}

void tst_Send::noModel_data()
{
    QTest::addColumn<bool>("isInList");

    QTest::newRow("no row") << false;
    QTest::newRow("row behind the catalogue") << true;
}

void tst_Send::noModel()
{
    QFETCH(bool, isInList);

    PtyPeer peer;
    ConsoleWindow console;
    auto *list = console.find<QComboBox>("comboBox_Player");
    const auto chooseNoModel = [&] {
        if (isInList)
            list->addItem(u"Unknown"_s);
        list->setCurrentIndex(isInList ? list->count() - 1 : -1);
    };
    const auto actEverything = [&] {
        for (const char *slot : commandSlots)
            QMetaObject::invokeMethod(&console.window, slot);
        volumeSlider(console)->setValue(17);
        console.window.playFolder(200);
    };

    chooseNoModel();
    actEverything();
    console.window.sendCommand(2, "\x01"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());

    console.selectModel(0);
    console.connectSerial(peer);
    QVERIFY(serialPort->isOpen());
    chooseNoModel();
    actEverything();
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    QVERIFY(isSilent(peer));

    list->setCurrentIndex(0);
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(peer.received()), "80 02 01"_ba);
}

void tst_Send::modelWithoutCommands()
{
    PtyPeer peer;
    ConsoleWindow console;
    addModel(console, serialModel(ProtocolKind::Classic, {}));
    console.connectSerial(peer);
    for (const char *slot : commandSlots)
        QVERIFY2(QMetaObject::invokeMethod(&console.window, slot), slot);
    volumeSlider(console)->setValue(17);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    QVERIFY(isSilent(peer));
    console.window.sendCommand(2, "\x01"_ba);
    QTRY_COMPARE(hex(peer.received()), "80 02 01"_ba);
}

void tst_Send::convertsShownBytes_data()
{
    QTest::addColumn<bool>("startsInHex");

    QTest::newRow("sent in hexadecimal") << true;
    QTest::newRow("sent in decimal") << false;
}

void tst_Send::convertsShownBytes()
{
    QFETCH(bool, startsInHex);

    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    QVERIFY(console.selectText("comboBox_ID", u"5"_s));
    pressRadio(console, startsInHex ? "radioButton_Sent_Hex" : "radioButton_Sent_Dec");
    QVERIFY(
        console.find<QRadioButton>(startsInHex ? "radioButton_Sent_Hex" : "radioButton_Sent_Dec")
            ->isChecked());
    console.click("pushButton_Play");
    QCOMPARE(console.text("label_Bytes_Sended"), startsInHex ? u"85 02 01"_s : u"133 2 1"_s);
    QTRY_COMPARE(hex(peer.received()), "85 02 01"_ba);
    peer.takeReceived();

    // Pressing the same button again converts nothing a second time.
    for (int round = 0; round < 2; ++round) {
        for (int press = 0; press < 2; ++press) {
            pressRadio(console, "radioButton_Sent_Dec");
            QVERIFY(console.find<QRadioButton>("radioButton_Sent_Dec")->isChecked());
            QCOMPARE(console.text("label_Bytes_Sended"), u"133 2 1"_s);
            QVERIFY(!sentBytesShownInHex);
        }
        for (int press = 0; press < 2; ++press) {
            pressRadio(console, "radioButton_Sent_Hex");
            QVERIFY(console.find<QRadioButton>("radioButton_Sent_Hex")->isChecked());
            QCOMPARE(console.text("label_Bytes_Sended"), u"85 02 01"_s);
            QVERIFY(sentBytesShownInHex);
        }
    }
    QVERIFY(isSilent(peer));
}

void tst_Send::showsTextsOfAnyKind_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("decimal");
    QTest::addColumn<QString>("hexadecimal");

    // The text is all that is converted, a token at a time; an empty one counts as 0.
    QTest::newRow("empty") << u""_s << u"0"_s << u"00"_s;
    QTest::newRow("at the start") << u"0"_s << u"0"_s << u"00"_s;
    QTest::newRow("double blank") << u"85  01"_s << u"133 0 1"_s << u"85 00 01"_s;
    QTest::newRow("no numbers") << u"xyz 0A ..."_s << u"0 10 0"_s << u"00 0A 00"_s;
    QTest::newRow("above 32 bits") << u"80000000 01"_s << u"0 1"_s << u"00 01"_s;
    QTest::newRow("above a byte") << u"1FF"_s << u"511"_s << u"1FF"_s;
}

void tst_Send::showsTextsOfAnyKind()
{
    QFETCH(QString, text);

    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    console.find<QLabel>("label_Bytes_Sended")->setText(text);
    pressRadio(console, "radioButton_Sent_Dec");
    QTEST(console.text("label_Bytes_Sended"), "decimal");
    pressRadio(console, "radioButton_Sent_Hex");
    QTEST(console.text("label_Bytes_Sended"), "hexadecimal");
    QVERIFY(isSilent(peer));
}

void tst_Send::baseOfNewCommandFollowsTheButtons()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);

    // sentBytesShownInHex tells about the text that is shown, not about the next one.
    sentBytesShownInHex = false;
    console.click("pushButton_Play");
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 01"_s);

    console.find<QRadioButton>("radioButton_Sent_Dec")->setChecked(true);
    sentBytesShownInHex = true;
    console.click("pushButton_Play");
    QCOMPARE(console.text("label_Bytes_Sended"), u"128 2 1"_s);
}

void tst_Send::shownBytesAreThoseOnTheWire_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("playerId");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("wire");
    QTest::addColumn<QString>("decimal");

    const QString classic = u"Tempo Deck"_s;
    const QString extended = u"Sonet A (Serial)"_s;
    QTest::newRow("classic") << classic << u"5"_s << 2 << "01"_ba
                             << "85 02 01"_ba << u"133 2 1"_s;
    QTest::newRow("extended: the first token is the code") << extended << u"0"_s << 2 << "01"_ba
                                                           << "02 01"_ba << u"2 1"_s;
    QTest::newRow("classic, empty body") << classic << u"5"_s << 8 << ""_ba
                                         << "85 08"_ba << u"133 8"_s;
    QTest::newRow("extended, empty body: the code alone") << extended << u"0"_s << 4 << ""_ba
                                                          << "04"_ba << u"4"_s;
    QTest::newRow("classic, zeros") << classic << u"0"_s << 0 << "00 00"_ba
                                    << "80 00 00 00"_ba << u"128 0 0 0"_s;
    QTest::newRow("extended, zeros") << extended << u"0"_s << 0 << "00 00"_ba
                                     << "00 00 00"_ba << u"0 0 0"_s;
    QTest::newRow("classic, highest bytes") << classic << u"127"_s << 255 << "FF FE"_ba
                                            << "FF FF FF FE"_ba << u"255 255 255 254"_s;
    QTest::newRow("bytes that lines and terminals treat specially")
        << classic << u"0"_s << 3 << "03 04 0A 0D 11 13 1A 1C 7F"_ba
        << "80 03 03 04 0A 0D 11 13 1A 1C 7F"_ba << u"128 3 3 4 10 13 17 19 26 28 127"_s;
}

void tst_Send::shownBytesAreThoseOnTheWire()
{
    QFETCH(QString, model);
    QFETCH(QString, playerId);
    QFETCH(int, code);
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, wire);
    QFETCH(QString, decimal);

    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(model));
    console.connectSerial(peer);
    QVERIFY(console.selectText("comboBox_ID", playerId));
    console.window.sendCommand(static_cast<quint8>(code), QByteArray::fromHex(body));
    QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(wire));
    QTRY_COMPARE(hex(peer.received()), wire);
    peer.takeReceived();

    pressRadio(console, "radioButton_Sent_Dec");
    console.window.sendCommand(static_cast<quint8>(code), QByteArray::fromHex(body));
    QCOMPARE(console.text("label_Bytes_Sended"), decimal);
    QTRY_COMPARE(hex(peer.received()), wire);
    peer.takeReceived();
}

void tst_Send::playerIdText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("wire");

    QTest::newRow("letters") << u"abc"_s << "80 02 01"_ba;
    QTest::newRow("empty") << u""_s << "80 02 01"_ba;
    QTest::newRow("hexadecimal is none") << u"0x7F"_s << "80 02 01"_ba;
    QTest::newRow("above 32 bits") << u"2147483648"_s << "80 02 01"_ba;
    QTest::newRow("above 32 bits, with low bits set") << u"4294967301"_s << "80 02 01"_ba;
    QTest::newRow("200: no range check") << u"200"_s << "48 02 01"_ba;
    QTest::newRow("-1: no range check") << u"-1"_s << "7F 02 01"_ba;
    QTest::newRow("127") << u"127"_s << "FF 02 01"_ba;
}

void tst_Send::playerIdText()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, wire);

    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    auto *list = console.find<QComboBox>("comboBox_ID");
    list->setCurrentIndex(9);
    list->setItemText(9, text);
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(peer.received()), wire);
    QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(wire));
}

void tst_Send::noPlayerId()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    auto *list = console.find<QComboBox>("comboBox_ID");
    list->setCurrentIndex(5);
    list->setCurrentIndex(-1);
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(peer.received()), "80 02 01"_ba);
    peer.takeReceived();
    list->clear();
    console.click("pushButton_Stop");
    QTRY_COMPARE(hex(peer.received()), "80 02 02"_ba);
    peer.takeReceived();
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 02"_s);
}

void tst_Send::changeIdText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("wire");

    // The header goes on addressing the player by its present ID.
    QTest::newRow("12") << u"12"_s << "85 7F 0C"_ba;
    QTest::newRow("128: no range check") << u"128"_s << "85 7F 80"_ba;
    QTest::newRow("300: low 8 bits") << u"300"_s << "85 7F 2C"_ba;
    QTest::newRow("-1: low 8 bits") << u"-1"_s << "85 7F FF"_ba;
    QTest::newRow("letters count as 0") << u"abc"_s << "85 7F 00"_ba;
    QTest::newRow("empty counts as 0") << u""_s << "85 7F 00"_ba;
    QTest::newRow("above 32 bits counts as 0") << u"2147483649"_s << "85 7F 00"_ba;
}

void tst_Send::changeIdText()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, wire);

    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"HV1xx (Serial) (legacy)"_s));
    console.connectSerial(peer);
    QVERIFY(console.selectText("comboBox_ID", u"5"_s));
    console.find<QComboBox>("comboBox_Change_ID")->setItemText(0, text);
    console.click("pushButton_Change_ID");
    QTRY_COMPARE(hex(peer.received()), wire);
    QCOMPARE(console.find<QComboBox>("comboBox_ID")->currentText(), u"5"_s);
}

void tst_Send::changeIdOfEmptyList()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"HV1xx (Serial) (legacy)"_s));
    console.connectSerial(peer);
    console.find<QComboBox>("comboBox_Change_ID")->clear();
    console.click("pushButton_Change_ID");
    QTRY_COMPARE(hex(peer.received()), "80 7F 00"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 7F 00"_s);
}

void tst_Send::folderText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("wire");

    QTest::newRow("007") << u"007"_s << "80 01 07"_ba;
    QTest::newRow("127: the last of the first bank") << u"127"_s << "80 01 7F"_ba;
    QTest::newRow("128: the first of the second bank") << u"128"_s << "80 11 00"_ba;
    QTest::newRow("200") << u"200"_s << "80 11 48"_ba;
    QTest::newRow("999: bank 7") << u"999"_s << "80 71 67"_ba;
    QTest::newRow("letters count as 0") << u"abc"_s << "80 01 00"_ba;
    QTest::newRow("empty counts as 0") << u""_s << "80 01 00"_ba;
    QTest::newRow("hexadecimal counts as 0") << u"0x10"_s << "80 01 00"_ba;
    QTest::newRow("above 32 bits counts as 0") << u"2147483648"_s << "80 01 00"_ba;
}

void tst_Send::folderText()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, wire);

    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    auto *list = console.find<QComboBox>("comboBox_Folder");
    list->setCurrentIndex(3);
    list->setItemText(3, text);
    console.click("pushButton_Folder");
    QTRY_COMPARE(hex(peer.received()), wire);
    QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(wire));
}

void tst_Send::folderOfEmptyList()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    console.find<QComboBox>("comboBox_Folder")->clear();
    console.click("pushButton_Folder");
    QTRY_COMPARE(hex(peer.received()), "80 01 00"_ba);
}

void tst_Send::folderShortcutIsLikeTheList()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    QVERIFY(console.selectText("comboBox_Folder", u"003"_s));
    console.click("pushButton_Folder");
    QTRY_COMPARE(hex(peer.received()), "80 01 03"_ba);
    peer.takeReceived();
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 01 03"_s);
    QVERIFY(console.selectText("comboBox_Folder", u"200"_s));
    console.window.Play_Folder_003();
    QTRY_COMPARE(hex(peer.received()), "80 01 03"_ba);
    peer.takeReceived();
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 01 03"_s);
    QCOMPARE(console.find<QComboBox>("comboBox_Folder")->currentText(), u"200"_s);
}

void tst_Send::volumeWithoutLink()
{
    // The number follows the slider whether or not the command went out.
    ConsoleWindow console;
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    volumeSlider(console)->setValue(10);
    QCOMPARE(console.text("label_Volume_2"), u"10"_s);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    console.window.Increase_Volume();
    QCOMPARE(console.text("label_Volume_2"), u"11"_s);
    console.window.on_pushButton_Volume_Less_clicked();
    QCOMPARE(console.text("label_Volume_2"), u"0"_s);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
}

void tst_Send::sliderMinimumCountsTwice_data()
{
    QTest::addColumn<DeviceModel>("model");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("wire");

    // The minimum counts twice: it is added to a value that already lies above it. Kept as it is.
    const DeviceModel from5To10 = serialModel(ProtocolKind::Classic, {command(9, 3, "05", "0A")});
    QTest::newRow("5 to 10: 5") << from5To10 << 5 << "80 03 0A"_ba;
    QTest::newRow("5 to 10: 7") << from5To10 << 7 << "80 03 0C"_ba;
    QTest::newRow("5 to 10: 9") << from5To10 << 9 << "80 03 0E"_ba;
    const DeviceModel from100To255
        = serialModel(ProtocolKind::Classic, {command(9, 3, "64", "FF")});
    QTest::newRow("100 to 255: 155") << from100To255 << 155 << "80 03 FF"_ba;
    QTest::newRow("100 to 255: 156 is cut to 8 bits") << from100To255 << 156 << "80 03 00"_ba;
    QTest::newRow("100 to 255: 200 is cut to 8 bits") << from100To255 << 200 << "80 03 2C"_ba;
    QTest::newRow("0 to 255: 254")
        << serialModel(ProtocolKind::Classic, {command(9, 3, "00", "FF")}) << 254 << "80 03 FE"_ba;
    QTest::newRow("extended, 5 to 10: 7")
        << serialModel(ProtocolKind::Extended, {command(9, 48, "00 05 00", "00 0A 00")}) << 7
        << "30 00 0C 00"_ba;
    QTest::newRow("extended, 0 to 1000: 513 is cut to 8 bits")
        << serialModel(ProtocolKind::Extended, {command(9, 48, "00 00 00", "03 E8 00")}) << 513
        << "30 00 01 00"_ba;
}

void tst_Send::sliderMinimumCountsTwice()
{
    QFETCH(DeviceModel, model);
    QFETCH(int, value);
    QFETCH(QByteArray, wire);

    PtyPeer peer;
    ConsoleWindow console;
    addModel(console, model);
    console.connectSerial(peer);
    volumeSlider(console)->setValue(value);
    QTRY_COMPARE(hex(peer.received()), wire);
    QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(wire));
    QCOMPARE(console.text("label_Volume_2"), QString::number(value));
}

void tst_Send::textVolumeWithMinimum()
{
    TcpPeer peer(0);
    ConsoleWindow console;
    addModel(console, onDemandModel(peer.port(), {command(9, 3, "00 05 00", "00 0A 00")}));
    console.setAddress(TcpPeer::address().toString());
    volumeSlider(console)->setValue(7);
    // 12 less 64: "-52"
    QTRY_COMPARE(hex(peer.received()),
                 "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 35 "
                 "32 00"_ba);
    QCOMPARE(console.text("label_Volume_2"), u"7"_s);
}

void tst_Send::volumeMovers()
{
    PtyPeer peer;
    ConsoleWindow console;
    addModel(console, serialModel(ProtocolKind::Classic, {command(9, 3, "05", "0A")}));
    console.connectSerial(peer);
    QCOMPARE(volumeSlider(console)->value(), 10);

    console.window.Increase_Volume();
    console.click("pushButton_Volume_More");
    QVERIFY(isSilent(peer));
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);

    console.window.Decrease_Volume();
    QTRY_COMPARE(hex(peer.received()), "80 03 0E"_ba);
    peer.takeReceived();
    QCOMPARE(console.text("label_Volume_2"), u"9"_s);
    console.window.Increase_Volume();
    QTRY_COMPARE(hex(peer.received()), "80 03 0F"_ba);
    peer.takeReceived();
    QCOMPARE(console.text("label_Volume_2"), u"10"_s);

    // One press goes all the way down.
    console.click("pushButton_Volume_Less");
    QTRY_COMPARE(hex(peer.received()), "80 03 0A"_ba);
    peer.takeReceived();
    QCOMPARE(volumeSlider(console)->value(), 5);
    console.click("pushButton_Volume_Less");
    console.window.Decrease_Volume();
    QVERIFY(isSilent(peer));
    QCOMPARE(volumeSlider(console)->value(), 5);

    console.window.Increase_Volume();
    QTRY_COMPARE(hex(peer.received()), "80 03 0B"_ba);
    peer.takeReceived();
    console.window.Decrease_Volume();
    QTRY_COMPARE(hex(peer.received()), "80 03 0A"_ba);
    peer.takeReceived();
    QCOMPARE(console.text("label_Volume_2"), u"5"_s);

    console.click("pushButton_Volume_More");
    QTRY_COMPARE(hex(peer.received()), "80 03 0F"_ba);
    peer.takeReceived();
    QCOMPARE(volumeSlider(console)->value(), 10);
}

void tst_Send::unchangedVolumeSendsNothing()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    QCOMPARE(volumeSlider(console)->value(), 64);
    volumeSlider(console)->setValue(64);
    volumeSlider(console)->setValue(1000);
    QVERIFY(isSilent(peer));
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);

    volumeSlider(console)->setValue(20);
    QTRY_COMPARE(hex(peer.received()), "80 03 14"_ba);
    peer.takeReceived();
    volumeSlider(console)->setValue(20);
    QVERIFY(isSilent(peer));
}

void tst_Send::volumeCommandWithoutData()
{
    PtyPeer peer;
    ConsoleWindow console;
    addModel(console, serialModel(ProtocolKind::Classic, {command(9, 3, "")}));
    console.connectSerial(peer);
    // Its range is unknown, so the slider keeps that of the model before: 0 to 64.
    volumeSlider(console)->setValue(20);
    QTRY_COMPARE(hex(peer.received()), "80 03"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 03"_s);
    QCOMPARE(console.text("label_Volume_2"), u"20"_s);
}

void tst_Send::onDemandBodies_data()
{
    QTest::addColumn<CommandEntry>("entry");
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QByteArray>("wire");

    QTest::newRow("play: with arguments")
        << command(4, 4, "FF FF 33 32") << u"on_pushButton_Play_clicked"_s
        << "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba;
    QTest::newRow("pause: without arguments")
        << command(6, 4, "FF FF 33 33") << u"on_pushButton_Pause_clicked"_s
        << "04 00 00 00 63 6D 64 00 33 33 00"_ba;
    QTest::newRow("previous folder: without arguments")
        << command(2, 4, "FF FF 33 37") << u"on_pushButton_Previous_Folder_clicked"_s
        << "04 00 00 00 63 6D 64 00 33 37 00"_ba;
    QTest::newRow("next folder: without arguments")
        << command(8, 4, "FF FF 33 38") << u"on_pushButton_Next_Folder_clicked"_s
        << "04 00 00 00 63 6D 64 00 33 38 00"_ba;
    QTest::newRow("standby: without arguments")
        << command(12, 4, "FF FF 34 30") << u"on_pushButton_Standby_Wakeup_clicked"_s
        << "04 00 00 00 63 6D 64 00 34 30 00"_ba;
    QTest::newRow("mute: without arguments")
        << command(19, 4, "FF FF 35 31") << u"on_pushButton_Volume_Mute_Unmute_clicked"_s
        << "04 00 00 00 63 6D 64 00 35 31 00"_ba;
    // No text command: the code byte goes out alone.
    QTest::newRow("data of two bytes: the code alone")
        << command(6, 4, "FF FF") << u"on_pushButton_Pause_clicked"_s << "04"_ba;
    QTest::newRow("another code: the code alone")
        << command(6, 2, "FF FF 33 33") << u"on_pushButton_Pause_clicked"_s << "02"_ba;
    QTest::newRow("volume with another code: the code alone")
        << command(9, 5, "00 00 00", "00 40 00") << u"on_pushButton_Volume_Less_clicked"_s
        << "05"_ba;
}

void tst_Send::onDemandBodies()
{
    QFETCH(CommandEntry, entry);
    QFETCH(QString, slot);
    QFETCH(QByteArray, wire);

    TcpPeer peer(0);
    ConsoleWindow console;
    addModel(console, onDemandModel(peer.port(), {entry}));
    console.setAddress(TcpPeer::address().toString());
    QVERIFY(QMetaObject::invokeMethod(&console.window, slot.toLatin1().constData()));
    QCOMPARE(console.text("label_Bytes_Sended"), QString::fromLatin1(wire));
    QTRY_COMPARE(hex(peer.received()), wire);
}

TESSALY_WINDOW_TEST(tst_Send)

#include "tst_send.moc"
