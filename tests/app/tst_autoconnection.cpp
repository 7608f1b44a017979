// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QTcpSocket>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

template<typename T>
T *widget(const MainWindow &window, const char *name)
{
    T *object = window.findChild<T *>(QString::fromLatin1(name));
    if (!object)
        qFatal("no %s in the window", name);
    return object;
}

/// The enabled widgets of the connection, and the message while one is made.
QString stateOf(const MainWindow &window)
{
    QStringList state;
    for (const char *name :
         {"frame_Settings", "pushButton_Connect", "pushButton_Disconnect", "frame_Commands"}) {
        if (widget<QWidget>(window, name)->isEnabled())
            state.append(QLatin1StringView(name));
    }
    if (!widget<QLabel>(window, "label_Connection_Message")->isHidden())
        state.append(u"message"_s);
    return state.join(u' ');
}

const QString disconnectedState = u"frame_Settings pushButton_Connect"_s;
const QString connectingState = u"message"_s;
const QString connectedState = u"pushButton_Disconnect frame_Commands"_s;

/// Writes the file with which the next window starts.
bool writeConfig(const QByteArray &model, const QString &port, const QByteArray &autoConnection)
{
    const QString folder = qEnvironmentVariable("XDG_DATA_HOME") + u"/Ambrette/Tessaly"_s;
    QByteArray address = TcpPeer::address().toString().toLatin1();
    const QByteArray bytes = "TSY11.00\n\n\n\n(default)\n\n" + model + "\n\n" + port.toLocal8Bit()
                             + "\n\n(default)\n\n" + address.replace('.', '\n') + "\n\n"
                             + autoConnection + "\n";
    QFile file(folder + u"/Tessaly.cfg"_s);
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly)
           && file.write(bytes) == bytes.size();
}

/// Looks around whenever a message box comes up.
class BoxWatcher : public QObject
{
public:
    BoxWatcher() { QCoreApplication::instance()->installEventFilter(this); }

    int windows = 0;        ///< main windows that existed when the last box came up
    int visibleWindows = 0; ///< those of them that could be seen
    bool serialPortWasOpen = false;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(object)) {
            windows = 0;
            visibleWindows = 0;
            const QWidgetList topLevels = QApplication::topLevelWidgets();
            for (const QWidget *topLevel : topLevels) {
                if (!qobject_cast<const MainWindow *>(topLevel))
                    continue;
                ++windows;
                visibleWindows += topLevel->isVisible() ? 1 : 0;
            }
            serialPortWasOpen = serialPort->isOpen();
        }
        return QObject::eventFilter(object, event);
    }
};

} // namespace

class tst_autoconnection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void serial_data();
    void serial();
    void serialPortMissing_data();
    void serialPortMissing();
    void noPortChosen();
    void tcp_data();
    void tcp();
    void tcpRefused();
    void onDemandModel();
    void switchedOff_data();
    void switchedOff();
    void shortcutOfHiddenPanels();
    void portListIsReadOnce();
    void emptyCatalogue();

private:
    MessageBoxCatcher m_catcher;
};

void tst_autoconnection::init()
{
    m_catcher.messages.clear();
    qunsetenv("TESSALY_EXTRA_PORTS");
    QFile::remove(configFilePath);
}

void tst_autoconnection::cleanup()
{
    serialPort->close();
    tcpSocket->abort();
    receivedText.clear();
}

void tst_autoconnection::serial_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("baudRate");

    QTest::newRow("1") << "Ampra One"_ba
                       << "1"_ba << 19200;
    QTest::newRow("2") << "Ampra One"_ba
                       << "2"_ba << 19200;
    QTest::newRow("-1") << "Ampra One"_ba
                        << "-1"_ba << 19200;
    QTest::newRow("first model") << "Tempo Deck"_ba
                                 << "1"_ba << 19200;
    QTest::newRow("video player") << "Vistar Show - SV500 (Serial)"_ba
                                  << "1"_ba << 115200;
    QTest::newRow("extended model") << "Sonet A (Serial)"_ba
                                    << "1"_ba << 115200;
}

void tst_autoconnection::serial()
{
    QFETCH(QByteArray, model);
    QFETCH(QByteArray, line);
    QFETCH(int, baudRate);

    const PtyPeer other;
    PtyPeer peer;
    qputenv("TESSALY_EXTRA_PORTS", (other.portName() + u':' + peer.portName()).toLocal8Bit());
    QVERIFY(writeConfig(model, peer.portName(), line));
    {
        MainWindow window;
        QVERIFY(!window.isVisible());
        QVERIFY(serialPort->isOpen());
        QCOMPARE(u"/dev/"_s + serialPort->portName(), peer.portName());
        QCOMPARE(serialPort->baudRate(), baudRate);
        QVERIFY(widget<QCheckBox>(window, "checkBox_Auto_connection")->isChecked());
        QCOMPARE(stateOf(window), connectedState);

        window.show();
        QCOMPARE(stateOf(window), connectedState);
        // The link was wired up before it was opened.
        QVERIFY(peer.send("hello"));
        QTRY_COMPARE(receivedText, u"hello"_s);
        window.sendCommand(0x02, "\x01"_ba);
        const QByteArray frame = model == "Sonet A (Serial)" ? "\x02\x01"_ba : "\x80\x02\x01"_ba;
        QTRY_COMPARE(peer.received().toHex(' '), frame.toHex(' '));
    }
    // Whatever number switched it on, it is saved as 1.
    QFile file(configFilePath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().split('\n').at(17), "1"_ba);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::serialPortMissing_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("1") << "1"_ba;
    QTest::newRow("2") << "2"_ba;
}

void tst_autoconnection::serialPortMissing()
{
    QFETCH(QByteArray, line);

    qputenv("TESSALY_EXTRA_PORTS", "/dev/ttyTestMissing");
    QVERIFY(writeConfig("Ampra One", u"/dev/ttyTestMissing"_s, line));
    const BoxWatcher watcher;

    MainWindow window;
    // The constructor has waited for the user's OK.
    QCOMPARE(m_catcher.messages.size(), 1);
    QCOMPARE(m_catcher.messages.first().title, u"Serial port error"_s);
    QCOMPARE(m_catcher.messages.first().text,
             u"An error on the serial port has occurred!\nDevice not found error."_s);
    QCOMPARE(m_catcher.messages.first().icon, static_cast<int>(QMessageBox::Critical));
    QCOMPARE(m_catcher.messages.first().parent, static_cast<QWidget *>(&window));
    QCOMPARE(watcher.windows, 1);
    QCOMPARE(watcher.visibleWindows, 0);
    QVERIFY(!watcher.serialPortWasOpen);

    QVERIFY(!serialPort->isOpen());
    QVERIFY(!window.isVisible());
    QCOMPARE(stateOf(window), disconnectedState);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(stateOf(window), disconnectedState);
    QCOMPARE(m_catcher.messages.size(), 1);
}

void tst_autoconnection::noPortChosen()
{
    // Without a port there is nothing to connect to, and nothing to say.
    QVERIFY(writeConfig("Ampra One", {}, "0"));
    MainWindow window;
    widget<QComboBox>(window, "comboBox_Port")->clear();
    widget<QCheckBox>(window, "checkBox_Auto_connection")->setChecked(true);
    window.on_pushButton_Connect_clicked();
    QCOMPARE(stateOf(window), disconnectedState);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::tcp_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("1") << "Vistar Show - SV500 (TCP/IP)"_ba
                       << "1"_ba;
    QTest::newRow("2") << "Vistar Home - HV4xx (TCP/IP)"_ba
                       << "2"_ba;
    QTest::newRow("legacy") << "HV1xx (TCP/IP) (legacy)"_ba
                            << "1"_ba;
}

void tst_autoconnection::tcp()
{
    QFETCH(QByteArray, model);
    QFETCH(QByteArray, line);

    TcpPeer peer(65079);
    QVERIFY(writeConfig(model, {}, line));
    MainWindow window;
    QVERIFY(!window.isVisible());
    QCOMPARE(stateOf(window), connectingState);
    QTRY_COMPARE(stateOf(window), connectedState);
    QTRY_COMPARE(peer.connectionCount(), 1);
    window.sendCommand(0x02, "\x01"_ba);
    QTRY_COMPARE(peer.received().toHex(' '), "80 02 01"_ba);
    peer.send("hello");
    QTRY_COMPARE(receivedText, u"hello"_s);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::tcpRefused()
{
    // Nobody listens: the attempt ends without a word.
    QVERIFY(writeConfig("Vistar Show - SV500 (TCP/IP)", {}, "1"));
    const MainWindow window(nullptr, 200ms);
    QCOMPARE(stateOf(window), connectingState);
    QTRY_COMPARE(stateOf(window), disconnectedState);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::onDemandModel()
{
    // The box is hidden for this model, but what another one has saved still holds.
    TcpPeer peer(1234);
    QVERIFY(writeConfig("Sonet A Lite (TCP/IP)", {}, "1"));
    MainWindow window;
    QVERIFY(widget<QCheckBox>(window, "checkBox_Auto_connection")->isHidden());
    QVERIFY(widget<QCheckBox>(window, "checkBox_Auto_connection")->isChecked());
    QCOMPARE(stateOf(window), connectingState);
    QTRY_COMPARE(stateOf(window), connectedState);
    QTRY_COMPARE(peer.connectionCount(), 1);
    QVERIFY(peer.received().isEmpty());
    peer.hangUp();
    QTRY_COMPARE(stateOf(window), u"frame_Settings frame_Commands"_s);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::switchedOff_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("0") << "0"_ba;
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("garbage") << "yes"_ba;
    QTest::newRow("fraction") << "1.5"_ba;
    QTest::newRow("above 32 bits") << "2147483648"_ba;
}

void tst_autoconnection::switchedOff()
{
    QFETCH(QByteArray, line);

    const PtyPeer peer;
    qputenv("TESSALY_EXTRA_PORTS", peer.portName().toLocal8Bit());
    QVERIFY(writeConfig("Ampra One", peer.portName(), line));
    const MainWindow window;
    QCOMPARE(widget<QComboBox>(window, "comboBox_Port")->currentText(), peer.portName());
    QVERIFY(!widget<QCheckBox>(window, "checkBox_Auto_connection")->isChecked());
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(stateOf(window), disconnectedState);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::shortcutOfHiddenPanels()
{
    PtyPeer peer;
    qputenv("TESSALY_EXTRA_PORTS", peer.portName().toLocal8Bit());
    QVERIFY(writeConfig("Tempo Deck", peer.portName(), "1"));
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_5, Qt::ControlModifier);
    QTRY_COMPARE(peer.received().toHex(' '), "80 01 05"_ba);
    peer.takeReceived();
    window.hideCommandPanels();
    QVERIFY(!widget<QWidget>(window, "frame_Folder")->isVisible());
    QTest::keyClick(&window, Qt::Key_5, Qt::ControlModifier);
    QTRY_COMPARE(peer.received().toHex(' '), "80 01 05"_ba);
}

void tst_autoconnection::portListIsReadOnce()
{
    QStringList machinePorts;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts())
        machinePorts.append(port.portName());
    const auto listOf = [](const MainWindow &window) {
        const auto *list = widget<QComboBox>(window, "comboBox_Port");
        QStringList ports;
        for (int i = 0; i < list->count(); ++i)
            ports.append(list->itemText(i));
        return ports;
    };
    {
        MainWindow window;
        QCOMPARE(listOf(window), machinePorts);
        qputenv("TESSALY_EXTRA_PORTS", "/dev/ttyTest1");
        window.show();
        window.on_comboBox_Player_activated(1);
        window.on_pushButton_Disconnect_clicked();
        QCOMPARE(listOf(window), machinePorts);
    }
    const MainWindow window;
    QCOMPARE(listOf(window), machinePorts + QStringList{u"/dev/ttyTest1"_s});
}

void tst_autoconnection::emptyCatalogue()
{
    MainWindow window;
    auto *models = widget<QComboBox>(window, "comboBox_Player");
    models->clear();
    deviceCatalogue.clear();
    QVERIFY(QMetaObject::invokeMethod(&window, "applyStartupDefaults"));
    QCOMPARE(models->currentIndex(), -1);
    window.on_comboBox_Player_activated(0);
    QCOMPARE(models->currentIndex(), -1);
    window.loadConfig(configFilePath);
    QVERIFY(writeConfig("Tempo Deck", {}, "1"));
    window.loadConfig(configFilePath);
    QCOMPARE(models->currentIndex(), -1);
    window.on_pushButton_Connect_clicked();
    QCOMPARE(stateOf(window), disconnectedState);
    QVERIFY(m_catcher.messages.isEmpty());
}

TESSALY_WINDOW_TEST(tst_autoconnection)
#include "tst_autoconnection.moc"
