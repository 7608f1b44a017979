// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/protocol/linkedwindow.h"
#include "tests/support/commandcontrols.h"
#include "tests/support/hexbytes.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/testmain.h"

#include <QHostAddress>
#include <QLabel>
#include <QRadioButton>
#include <QSerialPort>
#include <QSlider>
#include <QTcpSocket>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString classicModel = u"Tempo Deck"_s;
const QString extendedModel = u"Sonet A (Serial)"_s;

/// The slots of all buttons that send something, and of the shortcuts that have no button.
QByteArrayList commandSlots()
{
    QByteArrayList names{"on_pushButton_Volume_Less_clicked", "on_pushButton_Volume_More_clicked",
                         "Decrease_Volume", "Increase_Volume"};
    for (const CommandControl &control : commandControls()) {
        if (!control.button.isEmpty())
            names.append("on_" + control.button + "_clicked");
    }
    for (int folder = 0; folder <= 9; ++folder)
        names.append("Play_Folder_00" + QByteArray::number(folder));
    return names;
}

/// Calls them all, and moves the slider.
void actEverything(ConsoleWindow &console)
{
    for (const QByteArray &slot : commandSlots())
        QVERIFY2(QMetaObject::invokeMethod(&console.window, slot.constData()), slot.constData());
    console.find<QSlider>("horizontalSlider_Volume")->setValue(7);
    console.window.playFolder(200);
}

void pressRadio(const ConsoleWindow &console, const char *name)
{
    // The centre of a wide radio button lies outside of what can be pressed.
    auto *radio = console.find<QRadioButton>(name);
    QTest::mouseClick(radio, Qt::LeftButton, {}, QPoint(8, radio->height() / 2));
    QVERIFY(radio->isChecked());
}

/// Nothing waits to be written, and nothing has arrived at the peer.
bool isSilent(PtyPeer &peer)
{
    return serialPort->bytesToWrite() == 0 && tcpSocket->bytesToWrite() == 0
           && peer.received().isEmpty();
}

} // namespace

/// Whether anything is sent, to which player, and how the window shows it.
class tst_Send : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(std::exchange(m_messageBoxes.messages, {}).size(), 0); }

    // Whether anything is sent
    void nothingWithoutLink_data();
    void nothingWithoutLink();
    void nothingAfterDisconnect();
    void onBothLinks();
    void writeThatFails_data();
    void writeThatFails();
    void noModel_data();
    void noModel();
    void modelWithoutCommands();

    // The display
    void convertsShownBytes_data();
    void convertsShownBytes();
    void convertsAnyText_data();
    void convertsAnyText();
    void baseOfNewCommandFollowsTheButtons();
    void shownBytesAreThoseOnTheWire_data();
    void shownBytesAreThoseOnTheWire();

    // The player ID
    void playerIdText_data();
    void playerIdText();
    void noPlayerId();

private:
    MessageBoxCatcher m_messageBoxes;
};

void tst_Send::nothingWithoutLink_data()
{
    QTest::addColumn<QString>("model");

    QTest::newRow("classic, serial") << u"Vistar Show - SV500 (Serial)"_s;
    QTest::newRow("classic, TCP/IP") << u"Vistar Show - SV500 (TCP/IP)"_s;
    QTest::newRow("extended, serial") << extendedModel;
    QTest::newRow("folders") << classicModel;
}

void tst_Send::nothingWithoutLink()
{
    QFETCH(const QString, model);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(model));
    actEverything(console);
    console.window.sendCommand(2, "\x01"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
}

void tst_Send::nothingAfterDisconnect()
{
    LinkedWindow window(classicModel);
    window.click("pushButton_Play");
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(window.pty().received()), "80 02 01"_ba, patience);
    window.takeReceived();
    window.click("pushButton_Disconnect");
    window.window.on_pushButton_Stop_clicked();
    QCOMPARE(window.text("label_Bytes_Sended"), u"80 02 01"_s);
    QVERIFY(isSilent(window.pty()));
    QVERIFY(!tcpSocket->isOpen());
}

void tst_Send::onBothLinks()
{
    TcpPeer tcpPeer(0);
    LinkedWindow window(classicModel);
    window.window.connectTcpSocket(TcpPeer::address().toString(), tcpPeer.port());
    QTRY_VERIFY_WITH_TIMEOUT(tcpPeer.isConnected(), patience);
    QTRY_COMPARE_WITH_TIMEOUT(tcpSocket->state(), QAbstractSocket::ConnectedState, patience);

    QVERIFY(window.choosePlayer(5));
    const std::pair<const char *, QByteArray> commands[] = {
        {"pushButton_Play", "85 02 01"},
        {"pushButton_Volume_Less", "85 03 00"},
    };
    for (const auto &[button, bytes] : commands) {
        window.click(button);
        QTRY_COMPARE_WITH_TIMEOUT(hexBytes(tcpPeer.received()), bytes, patience);
        QTRY_COMPARE_WITH_TIMEOUT(hexBytes(window.pty().received()), bytes, patience);
        QCOMPARE(window.text("label_Bytes_Sended"), QString::fromLatin1(bytes));
        tcpPeer.takeReceived();
        window.takeReceived();
    }
}

void tst_Send::writeThatFails_data()
{
    QTest::addColumn<bool>("portIsReadOnly");

    QTest::newRow("the port takes no bytes") << true;
    QTest::newRow("the peer is gone") << false;
}

void tst_Send::writeThatFails()
{
    QFETCH(const bool, portIsReadOnly);

    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(classicModel));
    if (portIsReadOnly) {
        serialPort->setPortName(peer.portName());
        QVERIFY(serialPort->open(QIODevice::ReadOnly));
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QSerialPort): ReadOnly device");
    } else {
        console.connectSerial(peer);
        QVERIFY(serialPort->isOpen());
        peer.hangUp();
    }
    // The result of the write is not asked for: the display shows what was to be sent.
    console.window.on_pushButton_Play_clicked();
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 01"_s);
}

void tst_Send::noModel_data()
{
    QTest::addColumn<bool>("isInList");

    QTest::newRow("no row") << false;
    QTest::newRow("row after the catalogue") << true;
}

void tst_Send::noModel()
{
    QFETCH(const bool, isInList);

    PtyPeer peer;
    ConsoleWindow console;
    auto *list = console.find<QComboBox>("comboBox_Player");
    const auto chooseNoModel = [&] {
        if (isInList)
            list->addItem(u"Unknown"_s);
        list->setCurrentIndex(isInList ? list->count() - 1 : -1);
    };

    chooseNoModel();
    actEverything(console);
    console.window.sendCommand(2, "\x01"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());

    const int row = console.rowOfModel(classicModel);
    console.selectModel(row);
    console.connectSerial(peer);
    QVERIFY(serialPort->isOpen());
    chooseNoModel();
    actEverything(console);
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    QVERIFY(isSilent(peer));

    list->setCurrentIndex(row);
    console.click("pushButton_Play");
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(peer.received()), "80 02 01"_ba, patience);
}

void tst_Send::modelWithoutCommands()
{
    DeviceModel model(u"Model without commands"_s, ProtocolKind::Classic, TransportKind::Serial, 0,
                      127, 8, 19200, 0, {});
    model.baudRates = {19200};
    LinkedWindow window(model);
    QCOMPARE(window.sentBy([&] { actEverything(window); }).bytes, ""_ba);
    QCOMPARE(window.text("label_Volume_2"), u"..."_s);
}

void tst_Send::convertsShownBytes_data()
{
    QTest::addColumn<bool>("startsInHex");

    QTest::newRow("sent in hexadecimal") << true;
    QTest::newRow("sent in decimal") << false;
}

void tst_Send::convertsShownBytes()
{
    QFETCH(const bool, startsInHex);

    LinkedWindow window(classicModel);
    QVERIFY(window.choosePlayer(5));
    pressRadio(window, startsInHex ? "radioButton_Sent_Hex" : "radioButton_Sent_Dec");
    window.click("pushButton_Play");
    QCOMPARE(window.text("label_Bytes_Sended"), startsInHex ? u"85 02 01"_s : u"133 2 1"_s);
    QTRY_COMPARE_WITH_TIMEOUT(hexBytes(window.pty().received()), "85 02 01"_ba, patience);
    window.takeReceived();

    // Pressing the same button again converts nothing a second time.
    for (int round = 0; round < 2; ++round) {
        for (int press = 0; press < 2; ++press) {
            pressRadio(window, "radioButton_Sent_Dec");
            QCOMPARE(window.text("label_Bytes_Sended"), u"133 2 1"_s);
            QVERIFY(!sentBytesShownInHex);
        }
        for (int press = 0; press < 2; ++press) {
            pressRadio(window, "radioButton_Sent_Hex");
            QCOMPARE(window.text("label_Bytes_Sended"), u"85 02 01"_s);
            QVERIFY(sentBytesShownInHex);
        }
    }
    QVERIFY(isSilent(window.pty()));
}

void tst_Send::convertsAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("decimal");
    QTest::addColumn<QString>("hexadecimal");

    // The text is all that is converted, a token at a time; an empty one counts as 0.
    QTest::newRow("empty") << u""_s << u"0"_s << u"00"_s;
    QTest::newRow("at the start") << u"0"_s << u"0"_s << u"00"_s;
    QTest::newRow("no numbers") << u"xyz 0A ..."_s << u"0 10 0"_s << u"00 0A 00"_s;
}

void tst_Send::convertsAnyText()
{
    QFETCH(const QString, text);

    LinkedWindow window(classicModel);
    window.find<QLabel>("label_Bytes_Sended")->setText(text);
    pressRadio(window, "radioButton_Sent_Dec");
    QTEST(window.text("label_Bytes_Sended"), "decimal");
    pressRadio(window, "radioButton_Sent_Hex");
    QTEST(window.text("label_Bytes_Sended"), "hexadecimal");
    QVERIFY(isSilent(window.pty()));
}

void tst_Send::baseOfNewCommandFollowsTheButtons()
{
    LinkedWindow window(classicModel);
    // sentBytesShownInHex is about the text that is shown, not about the next one.
    sentBytesShownInHex = false;
    window.click("pushButton_Play");
    QCOMPARE(window.text("label_Bytes_Sended"), u"80 02 01"_s);

    window.find<QRadioButton>("radioButton_Sent_Dec")->setChecked(true);
    sentBytesShownInHex = true;
    window.click("pushButton_Play");
    QCOMPARE(window.text("label_Bytes_Sended"), u"128 2 1"_s);
}

void tst_Send::shownBytesAreThoseOnTheWire_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("playerId");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("wire");
    QTest::addColumn<QString>("decimal");

    QTest::newRow("classic") << classicModel << 5 << 2 << "01"_ba
                             << "85 02 01"_ba << u"133 2 1"_s;
    QTest::newRow("extended: the first token is the code") << extendedModel << 0 << 2 << "01"_ba
                                                           << "02 01"_ba << u"2 1"_s;
    QTest::newRow("classic, empty body") << classicModel << 5 << 8 << ""_ba
                                         << "85 08"_ba << u"133 8"_s;
    QTest::newRow("extended, empty body: the code alone") << extendedModel << 0 << 4 << ""_ba
                                                          << "04"_ba << u"4"_s;
    QTest::newRow("classic, zeros") << classicModel << 0 << 0 << "00 00"_ba
                                    << "80 00 00 00"_ba << u"128 0 0 0"_s;
    QTest::newRow("extended, zeros") << extendedModel << 0 << 0 << "00 00"_ba
                                     << "00 00 00"_ba << u"0 0 0"_s;
    QTest::newRow("classic, highest bytes") << classicModel << 127 << 255 << "FF FE"_ba
                                            << "FF FF FF FE"_ba << u"255 255 255 254"_s;
    QTest::newRow("bytes that lines and terminals treat specially")
        << classicModel << 0 << 3 << "03 04 0A 0D 11 13 1A 1C 7F"_ba
        << "80 03 03 04 0A 0D 11 13 1A 1C 7F"_ba << u"128 3 3 4 10 13 17 19 26 28 127"_s;
}

void tst_Send::shownBytesAreThoseOnTheWire()
{
    QFETCH(const QString, model);
    QFETCH(const int, playerId);
    QFETCH(const int, code);
    QFETCH(const QByteArray, body);
    QFETCH(const QByteArray, wire);
    QFETCH(const QString, decimal);

    LinkedWindow window(model);
    QVERIFY(window.choosePlayer(playerId));
    const auto send
        = [&] { window.window.sendCommand(static_cast<quint8>(code), QByteArray::fromHex(body)); };
    const Sent sent = window.sentBy(send);
    QCOMPARE(sent.bytes, wire);
    QCOMPARE(sent.shown, QString::fromLatin1(wire));

    pressRadio(window, "radioButton_Sent_Dec");
    const Sent sentInDecimal = window.sentBy(send);
    QCOMPARE(sentInDecimal.bytes, wire);
    QCOMPARE(sentInDecimal.shown, decimal);
}

void tst_Send::playerIdText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("wire");

    QTest::newRow("letters") << u"abc"_s << "80 02 01"_ba;
    QTest::newRow("empty") << u""_s << "80 02 01"_ba;
    QTest::newRow("above 32 bits, with low bits set") << u"4294967301"_s << "80 02 01"_ba;
    QTest::newRow("200: no range check") << u"200"_s << "48 02 01"_ba;
}

void tst_Send::playerIdText()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, wire);

    LinkedWindow window(classicModel);
    window.setListText("comboBox_ID", text);
    const Sent sent = window.press("pushButton_Play");
    QCOMPARE(sent.bytes, wire);
    QCOMPARE(sent.shown, QString::fromLatin1(wire));
}

void tst_Send::noPlayerId()
{
    LinkedWindow window(classicModel);
    auto *list = window.find<QComboBox>("comboBox_ID");
    list->setCurrentIndex(5);
    list->setCurrentIndex(-1);
    QCOMPARE(window.press("pushButton_Play").bytes, "80 02 01"_ba);
    list->clear();
    const Sent sent = window.press("pushButton_Stop");
    QCOMPARE(sent.bytes, "80 02 02"_ba);
    QCOMPARE(sent.shown, u"80 02 02"_s);
}

TESSALY_WINDOW_TEST(tst_Send)
#include "tst_send.moc"
