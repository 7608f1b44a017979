// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/app/creationorder.h"
#include "tests/app/windowfiles.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/hexbytes.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/settingsfile.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QSignalBlocker>
#include <QSlider>
#include <QTcpSocket>
#include <QTextEdit>
#include <QTranslator>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What main() found before it had done anything.
struct BeforeMain
{
    bool objectsExist = false;
    bool linksClosed = false;
    bool textsEmpty = false;
    bool catalogueEmpty = false;
    bool sentBytesInHex = false;
};
BeforeMain beforeMain;

QStringList warnings;

void keepWarnings(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                  const QString &message)
{
    warnings.append(message);
}

QStringList itemTexts(const QComboBox *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->itemText(row));
    return texts;
}

QStringList platformPorts()
{
    QStringList names;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports)
        names.append(port.portName());
    return names;
}

bool isChecked(const ConsoleWindow &console, const char *radioButton)
{
    return console.find<QRadioButton>(radioButton)->isChecked();
}

struct Shortcut
{
    const char *name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char *frame; ///< what reaches player 0 of a video model
};
constexpr Shortcut shortcuts[] = {
    {"Ctrl+0", Qt::Key_0, Qt::ControlModifier, "80 01 00"},
    {"Ctrl+1", Qt::Key_1, Qt::ControlModifier, "80 01 01"},
    {"Ctrl+2", Qt::Key_2, Qt::ControlModifier, "80 01 02"},
    {"Ctrl+3", Qt::Key_3, Qt::ControlModifier, "80 01 03"},
    {"Ctrl+4", Qt::Key_4, Qt::ControlModifier, "80 01 04"},
    {"Ctrl+5", Qt::Key_5, Qt::ControlModifier, "80 01 05"},
    {"Ctrl+6", Qt::Key_6, Qt::ControlModifier, "80 01 06"},
    {"Ctrl+7", Qt::Key_7, Qt::ControlModifier, "80 01 07"},
    {"Ctrl+8", Qt::Key_8, Qt::ControlModifier, "80 01 08"},
    {"Ctrl+9", Qt::Key_9, Qt::ControlModifier, "80 01 09"},
    {"Ctrl+Plus", Qt::Key_Plus, Qt::ControlModifier, "80 03 33"},
    {"Ctrl+Minus", Qt::Key_Minus, Qt::ControlModifier, "80 03 31"},
    {"media play", Qt::Key_MediaPlay, Qt::NoModifier, "80 02 01"},
    {"media stop", Qt::Key_MediaStop, Qt::NoModifier, "80 02 02"},
    {"media next", Qt::Key_MediaNext, Qt::NoModifier, "80 02 03"},
    {"media previous", Qt::Key_MediaPrevious, Qt::NoModifier, "80 02 04"},
    {"media pause", Qt::Key_MediaPause, Qt::NoModifier, "80 02 05"},
    {"Ctrl+media next", Qt::Key_MediaNext, Qt::ControlModifier, "80 02 06"},
    {"Ctrl+media previous", Qt::Key_MediaPrevious, Qt::ControlModifier, "80 02 07"},
    {"mute", Qt::Key_VolumeMute, Qt::NoModifier, "80 02 10"},
};

} // namespace

Q_DECLARE_METATYPE(Shortcut)

class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void objectsExistBeforeMain();
    void objectsAreCreatedInOrder();
    void identity();

    void modelList();
    void firstModelIsApplied();
    void defaults();
    void linkWidgetsAfterStart();
    void textsAfterStart();
    void parentIsKept();
    void parentlessWindowIsNotYetShown();

    void portList();
    void extraPorts();
    void portListIsFilledOnce();
    void portListStepReplaces();

    void emptyCatalogue();
    void defaultsStepRestores();

    void serialArrivalsReachTheWindow();
    void socketSignalsReachTheWindow();
    void oldErrorSignalIsNotThere();

    void shortcutList();
    void shortcutsTriggerTheirSlots_data();
    void shortcutsTriggerTheirSlots();

    void exitClosesTheWindow();
    void goneWindowLeavesTheLinksOpen();
};

void tst_Startup::objectsExistBeforeMain()
{
    QVERIFY(beforeMain.objectsExist);
    QVERIFY(beforeMain.linksClosed);
    QVERIFY(beforeMain.textsEmpty);
    QVERIFY(beforeMain.catalogueEmpty);
    QVERIFY(beforeMain.sentBytesInHex);
    QCOMPARE(translator->parent(), nullptr);
    QCOMPARE(serialPort->parent(), nullptr);
    QCOMPARE(tcpSocket->parent(), nullptr);
}

void tst_Startup::objectsAreCreatedInOrder()
{
    QVERIFY(creationPlace(translator) >= 0);
    QVERIFY(creationPlace(serialPort) > creationPlace(translator));
    QVERIFY(creationPlace(tcpSocket) > creationPlace(serialPort));
}

void tst_Startup::identity()
{
    QCOMPARE(QCoreApplication::applicationName(), u"Tessaly"_s);
    QCOMPARE(QCoreApplication::applicationVersion(), u"1.2.8.0"_s);
    QCOMPARE(QCoreApplication::organizationName(), u"Ambrette"_s);
    QCOMPARE(QCoreApplication::organizationDomain(), u"https://www.ambrette.example/"_s);
}

void tst_Startup::modelList()
{
    QStringList models;
    for (const ModelSheet &sheet : modelSheets())
        models.append(sheet.name);
    // A second window fills a list of its own; nothing of the first one is in it.
    for (int i = 0; i < 2; ++i) {
        const ConsoleWindow console;
        const auto *list = console.find<QComboBox>("comboBox_Player");
        QCOMPARE(itemTexts(list), models);
        QCOMPARE(list->currentIndex(), 0);
        QCOMPARE(deviceCatalogue.size(), models.size());
    }
}

void tst_Startup::firstModelIsApplied()
{
    const ConsoleWindow console;
    QVERIFY(!console.find<QWidget>("frame_Port")->isHidden());
    QVERIFY(!console.find<QWidget>("frame_Baudrate")->isHidden());
    QVERIFY(console.find<QWidget>("frame_IP")->isHidden());
    const ModelSheet &first = modelSheets().constFirst();
    QStringList baudRates;
    for (const qint32 rate : first.baudRates)
        baudRates.append(QString::number(rate));
    QCOMPARE(itemTexts(console.find<QComboBox>("comboBox_Baudrate")), baudRates);
    QCOMPARE(console.find<QComboBox>("comboBox_Baudrate")->currentText(),
             QString::number(first.defaultBaudRate));
    QCOMPARE(console.find<QComboBox>("comboBox_ID")->count(),
             first.highestPlayerId - first.lowestPlayerId + 1);
    QVERIFY(!console.find<QWidget>("pushButton_Play")->isHidden());
    // What this model lacks has been hidden.
    QVERIFY(console.find<QWidget>("pushButton_Pause")->isHidden());
    QVERIFY(console.find<QWidget>("frame_Request")->isHidden());
    QVERIFY(console.find<QWidget>("frame_Relay_Command")->isHidden());
}

void tst_Startup::defaults()
{
    const ConsoleWindow console;
    QVERIFY(console.find<QAction>("action_Default")->isChecked());
    QVERIFY(!console.find<QAction>("action_English")->isChecked());
    QVERIFY(!console.find<QAction>("action_French")->isChecked());
    QVERIFY(isChecked(console, "radioButton_Sent_Hex"));
    QVERIFY(!isChecked(console, "radioButton_Sent_Dec"));
    QVERIFY(sentBytesShownInHex);
    QVERIFY(isChecked(console, "radioButton_Data_ASCII"));
    QVERIFY(!isChecked(console, "radioButton_Data_Hex"));
    QVERIFY(!isChecked(console, "radioButton_Data_Dec"));
    QVERIFY(!console.find<QCheckBox>("checkBox_Auto_connection")->isChecked());
    QCOMPARE(console.find<QTextEdit>("textEdit_Data")->toPlainText(), QString());
}

void tst_Startup::linkWidgetsAfterStart()
{
    const MessageBoxCatcher boxes;
    const ConsoleWindow console;
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
    QVERIFY(console.find<QWidget>("frame_Player")->isEnabled());
    QCOMPARE(console.find<QWidget>("frame_Port")->isEnabled(), !platformPorts().isEmpty());
    QVERIFY(console.find<QWidget>("frame_Baudrate")->isEnabled());
    QVERIFY(console.find<QWidget>("frame_Settings")->isEnabled());
    QVERIFY(console.find<QWidget>("pushButton_Connect")->isEnabled());
    QVERIFY(!console.find<QWidget>("pushButton_Disconnect")->isEnabled());
    QVERIFY(!console.find<QWidget>("frame_Commands")->isEnabled());
    QVERIFY(console.find<QWidget>("label_Connection_Message")->isHidden());
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Startup::textsAfterStart()
{
    const ConsoleWindow console;
    QCOMPARE(console.window.windowTitle(), u"Tessaly 1.2.8.0"_s);
    // The form's texts are set again after the defaults, which leave the first of these empty.
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
}

void tst_Startup::parentIsKept()
{
    QWidget parent;
    const MainWindow window(&parent);
    QCOMPARE(window.parentWidget(), &parent);
    QVERIFY(window.isWindow());
}

void tst_Startup::parentlessWindowIsNotYetShown()
{
    const MainWindow window;
    QCOMPARE(window.parentWidget(), nullptr);
    QVERIFY(!window.isVisible());
    QCOMPARE(window.windowTitle(), u"Tessaly 1.2.8.0"_s);
}

void tst_Startup::portList()
{
    const ConsoleWindow console;
    const auto *list = console.find<QComboBox>("comboBox_Port");
    QCOMPARE(itemTexts(list), platformPorts());
    for (int row = 0; row < list->count(); ++row) {
        QVERIFY(list->itemIcon(row).isNull());
        QVERIFY(!list->itemData(row).isValid());
    }
}

void tst_Startup::extraPorts()
{
    qputenv("TESSALY_EXTRA_PORTS", "/tmp/second:/tmp/first");
    const ConsoleWindow console;
    qunsetenv("TESSALY_EXTRA_PORTS");
    QCOMPARE(itemTexts(console.find<QComboBox>("comboBox_Port")),
             platformPorts() + QStringList({u"/tmp/second"_s, u"/tmp/first"_s}));
    QVERIFY(console.find<QWidget>("frame_Port")->isEnabled());
}

void tst_Startup::portListIsFilledOnce()
{
    const PtyPeer peer;
    ConsoleWindow console;
    auto *list = console.find<QComboBox>("comboBox_Port");
    list->clear();
    qputenv("TESSALY_EXTRA_PORTS", peer.portName().toLocal8Bit());
    for (int row = 0; row < deviceCatalogue.size(); ++row)
        console.selectModel(row);
    console.window.on_pushButton_Connect_clicked();
    console.window.on_pushButton_Disconnect_clicked();
    console.find<QAction>("action_English")->trigger();
    qunsetenv("TESSALY_EXTRA_PORTS");
    QCOMPARE(itemTexts(list), QStringList());
}

void tst_Startup::portListStepReplaces()
{
    ConsoleWindow console;
    auto *list = console.find<QComboBox>("comboBox_Port");
    list->addItem(u"/tmp/old"_s);
    qputenv("TESSALY_EXTRA_PORTS", "/tmp/new");
    QVERIFY(QMetaObject::invokeMethod(&console.window, "fillSerialPortList"));
    qunsetenv("TESSALY_EXTRA_PORTS");
    QCOMPARE(itemTexts(list), platformPorts() + QStringList({u"/tmp/new"_s}));
}

void tst_Startup::emptyCatalogue()
{
    ConsoleWindow console;
    auto *list = console.find<QComboBox>("comboBox_Player");
    list->clear();
    deviceCatalogue.clear();
    QVERIFY(QMetaObject::invokeMethod(&console.window, "applyStartupDefaults"));
    QCOMPARE(list->currentIndex(), -1);
    QCOMPARE(list->count(), 0);
    // The constructor's next steps hold with no model, too.
    console.window.hideCommandPanels();
    console.window.on_comboBox_Player_activated(0);
    QVERIFY(writeFile(configFilePath, SettingsFile{.model = serialModel.toUtf8()}.bytes()));
    console.window.loadConfig(configFilePath);
    console.window.applyLanguage();
    console.window.onSocketConnected();
    console.window.on_pushButton_Connect_clicked();
    QCOMPARE(list->currentIndex(), -1);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
}

void tst_Startup::defaultsStepRestores()
{
    ConsoleWindow console;
    console.find<QAction>("action_Default")->setChecked(false);
    console.find<QRadioButton>("radioButton_Sent_Dec")->setChecked(true);
    sentBytesShownInHex = false;
    console.find<QRadioButton>("radioButton_Data_Dec")->setChecked(true);
    console.find<QLabel>("label_Bytes_Sended")->setText(u"83 02 01"_s);
    console.find<QComboBox>("comboBox_Player")->setCurrentText(tcpModel);

    QVERIFY(QMetaObject::invokeMethod(&console.window, "applyStartupDefaults"));
    QVERIFY(console.find<QAction>("action_Default")->isChecked());
    QVERIFY(isChecked(console, "radioButton_Sent_Hex"));
    QVERIFY(sentBytesShownInHex);
    QVERIFY(isChecked(console, "radioButton_Data_ASCII"));
    QCOMPARE(console.text("label_Bytes_Sended"), QString());
    QCOMPARE(console.find<QComboBox>("comboBox_Player")->currentIndex(), 0);
}

void tst_Startup::serialArrivalsReachTheWindow()
{
    PtyPeer peer;
    ConsoleWindow console;
    console.connectSerial(peer);
    QVERIFY(peer.send("OK"_ba));
    QTRY_COMPARE(receivedText, u"OK"_s);
    // Connected once: what is taken twice would be missing or doubled.
    QVERIFY(peer.send("!"_ba));
    QTRY_COMPARE(receivedText, u"OK!"_s);
}

void tst_Startup::socketSignalsReachTheWindow()
{
    TcpPeer peer(portOf(tcpModel));
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(tcpModel));
    QVERIFY(console.find<QWidget>("label_Connection_Message")->isHidden());
    console.setAddress(TcpPeer::address().toString());
    console.click("pushButton_Connect");
    QVERIFY(!console.find<QWidget>("label_Connection_Message")->isHidden());

    // connected()
    QTRY_VERIFY(console.find<QWidget>("label_Connection_Message")->isHidden());
    QVERIFY(console.find<QWidget>("pushButton_Disconnect")->isEnabled());
    // readyRead()
    QTRY_VERIFY(peer.isConnected());
    peer.send("OK"_ba);
    QTRY_COMPARE(receivedText, u"OK"_s);
    // disconnected()
    emit tcpSocket->disconnected();
    QVERIFY(!tcpSocket->isOpen());
    QVERIFY(!console.find<QWidget>("pushButton_Disconnect")->isEnabled());
}

// Socket errors open no dialog: the signal is named as it was called before Qt 6, on purpose, and
// all that comes of it is one warning.
void tst_Startup::oldErrorSignalIsNotThere()
{
    warnings.clear();
    const auto previous = qInstallMessageHandler(keepWarnings);
    const auto console = std::make_unique<ConsoleWindow>();
    qInstallMessageHandler(previous);
    const QStringList missing = warnings.filter(u"No such"_s);
    QCOMPARE(missing.size(), 1);
    QVERIFY2(missing.first().startsWith(u"QObject::connect: No such signal "
                                        "QTcpSocket::error(QAbstractSocket::SocketError)"_s),
             qPrintable(missing.first()));
    // The connections by name are all made.
    QCOMPARE(warnings.filter(u"connectSlotsByName"_s), QStringList());

    const MessageBoxCatcher boxes;
    emit tcpSocket->errorOccurred(QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(boxes.messages.size(), 0);
}

void tst_Startup::shortcutList()
{
    const ConsoleWindow console;
    QStringList present;
    const QList<QAction *> actions = console.window.actions();
    for (const QAction *action : actions) {
        QCOMPARE(action->parent(), &console.window);
        QCOMPARE(action->shortcuts().size(), 1);
        QCOMPARE(action->shortcut().count(), 1);
        present.append(action->shortcut().toString());
    }
    QStringList expected;
    for (const Shortcut &shortcut : shortcuts)
        expected.append(QKeySequence(shortcut.modifiers | shortcut.key).toString());
    QCOMPARE(present, expected);
}

void tst_Startup::shortcutsTriggerTheirSlots_data()
{
    QTest::addColumn<Shortcut>("shortcut");
    for (const Shortcut &shortcut : shortcuts)
        QTest::newRow(shortcut.name) << shortcut;
}

void tst_Startup::shortcutsTriggerTheirSlots()
{
    QFETCH(const Shortcut, shortcut);
    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(serialModel));
    console.connectSerial(peer);
    console.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&console.window));

    // Hidden panels do not stop a shortcut.
    for (const bool panelsAreHidden : {false, true}) {
        {
            auto *slider = console.find<QSlider>("horizontalSlider_Volume");
            const QSignalBlocker blocker(slider);
            slider->setValue(50);
        }
        if (panelsAreHidden)
            console.window.hideCommandPanels();
        peer.takeReceived();
        receivedText.clear();
        // keyClick() does not know all of these keys.
        QTest::sendKeyEvent(QTest::Click, &console.window, shortcut.key, QString(),
                            shortcut.modifiers);
        QTRY_COMPARE(hexBytes(peer.received()), QByteArray(shortcut.frame));
        QVERIFY(peer.send("x"_ba));
        QTRY_COMPARE(receivedText, u"x"_s);
        // Nothing has followed in the meantime.
        QCOMPARE(hexBytes(peer.received()), QByteArray(shortcut.frame));
    }
}

void tst_Startup::exitClosesTheWindow()
{
    const ConsoleWindow console;
    QVERIFY(console.window.isVisible());
    console.find<QAction>("action_Exit")->trigger();
    QVERIFY(!console.window.isVisible());
}

void tst_Startup::goneWindowLeavesTheLinksOpen()
{
    const PtyPeer serialPeer;
    const TcpPeer tcpPeer(portOf(tcpModel));
    {
        MainWindow window;
        QVERIFY(window.openSerialPort(9600, serialPeer.portName()));
        window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
        QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
    }
    QVERIFY(serialPort->isOpen());
    QVERIFY(tcpSocket->isOpen());
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);

    // The next window finds them as they are.
    ConsoleWindow console;
    QVERIFY(console.find<QWidget>("pushButton_Disconnect")->isEnabled());
    console.click("pushButton_Disconnect");
    QVERIFY(!serialPort->isOpen());
    QVERIFY(!tcpSocket->isOpen());
}

namespace {

/// Nothing of the product has run before but what is made before main().
int runStartupTest(int argc, char *argv[])
{
    stopRecordingCreations();
    beforeMain.objectsExist = translator && serialPort && tcpSocket;
    beforeMain.linksClosed
        = beforeMain.objectsExist && !serialPort->isOpen() && !tcpSocket->isOpen();
    beforeMain.textsEmpty = receivedText.isEmpty() && configFilePath.isEmpty();
    beforeMain.catalogueEmpty = deviceCatalogue.isEmpty();
    beforeMain.sentBytesInHex = sentBytesShownInHex;
    return runWindowTest<tst_Startup>(argc, argv);
}

} // namespace

TESSALY_REGISTER_TEST(tst_Startup, runStartupTest)

#include "tst_startup.moc"
