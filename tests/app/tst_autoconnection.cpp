// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "tests/app/windowfiles.h"
#include "tests/support/absentport.h"
#include "tests/support/examplemodels.h"
#include "tests/support/hexbytes.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/settingsfile.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHostAddress>
#include <QLabel>
#include <QMessageBox>
#include <QSerialPort>
#include <QTcpSocket>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

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
bool writeConfig(const QString &model, const QString &port, const QByteArray &autoConnection)
{
    const SettingsFile file{.model = model.toUtf8(),
                            .port = port.toLocal8Bit(),
                            .address = TcpPeer::address().toString().toLatin1().split('.'),
                            .autoConnection = autoConnection};
    return writeFile(settingsPath(), file.bytes());
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
    void serialPortMissing();
    void noPortChosen();
    void tcp();
    void tcpRefused();
    void modelConnectedForEachCommand();
    void switchedOff();

private:
    MessageBoxCatcher m_catcher;
};

void tst_autoconnection::init()
{
    m_catcher.messages.clear();
    qunsetenv("TESSALY_EXTRA_PORTS");
    QFile::remove(settingsPath());
}

void tst_autoconnection::cleanup()
{
    serialPort->close();
    tcpSocket->abort();
    receivedText.clear();
}

void tst_autoconnection::serial_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("frame");

    QTest::newRow("classic") << serialModel << "1"_ba
                             << "80 02 01"_ba;
    QTest::newRow("classic, switched on by another number") << serialModel << "2"_ba
                                                            << "80 02 01"_ba;
    QTest::newRow("extended") << extendedSerialModel << "1"_ba
                              << "02 01"_ba;
}

void tst_autoconnection::serial()
{
    QFETCH(const QString, model);
    QFETCH(const QByteArray, line);
    QFETCH(const QByteArray, frame);

    const PtyPeer other;
    PtyPeer peer;
    qputenv("TESSALY_EXTRA_PORTS", (other.portName() + u':' + peer.portName()).toLocal8Bit());
    QVERIFY(writeConfig(model, peer.portName(), line));
    {
        MainWindow window;
        QVERIFY(!window.isVisible());
        QVERIFY(serialPort->isOpen());
        QCOMPARE(serialPort->portName(), peer.portName());
        QCOMPARE(serialPort->baudRate(), sheetOf(model).defaultBaudRate);
        QVERIFY(widget<QCheckBox>(window, "checkBox_Auto_connection")->isChecked());
        QCOMPARE(stateOf(window), connectedState);

        window.show();
        QCOMPARE(stateOf(window), connectedState);
        // The link was wired up before it was opened.
        QVERIFY(peer.send("hello"));
        QTRY_COMPARE(receivedText, u"hello"_s);
        window.sendCommand(0x02, "\x01"_ba);
        QTRY_COMPARE(hexBytes(peer.received()), frame);
    }
    // Whatever number switched it on, it is saved as 1.
    QCOMPARE(readFile(settingsPath()).split('\n').value(17), "1"_ba);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::serialPortMissing()
{
    qputenv("TESSALY_EXTRA_PORTS", absentPort().toLocal8Bit());
    QVERIFY(writeConfig(serialModel, absentPort(), "1"));
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
    QVERIFY(writeConfig(serialModel, {}, "0"));
    MainWindow window;
    widget<QComboBox>(window, "comboBox_Port")->clear();
    widget<QCheckBox>(window, "checkBox_Auto_connection")->setChecked(true);
    window.on_pushButton_Connect_clicked();
    QCOMPARE(stateOf(window), disconnectedState);
    QVERIFY(!serialPort->isOpen());
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::tcp()
{
    TcpPeer peer(portOf(tcpModel));
    QVERIFY(writeConfig(tcpModel, {}, "1"));
    MainWindow window;
    QVERIFY(!window.isVisible());
    QCOMPARE(stateOf(window), connectingState);
    QTRY_COMPARE(stateOf(window), connectedState);
    QTRY_COMPARE(peer.connectionCount(), 1);
    window.sendCommand(0x02, "\x01"_ba);
    QTRY_COMPARE(hexBytes(peer.received()), "80 02 01"_ba);
    peer.send("hello");
    QTRY_COMPARE(receivedText, u"hello"_s);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::tcpRefused()
{
    // Nobody listens: the attempt ends silently.
    QVERIFY(writeConfig(tcpModel, {}, "1"));
    const MainWindow window(nullptr, 200ms);
    QCOMPARE(stateOf(window), connectingState);
    QTRY_COMPARE(stateOf(window), disconnectedState);
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_autoconnection::modelConnectedForEachCommand()
{
    // The box is hidden for this model, but what another one has saved still holds.
    TcpPeer peer(portOf(onDemandModel));
    QVERIFY(writeConfig(onDemandModel, {}, "1"));
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

void tst_autoconnection::switchedOff()
{
    const PtyPeer peer;
    qputenv("TESSALY_EXTRA_PORTS", peer.portName().toLocal8Bit());
    QVERIFY(writeConfig(serialModel, peer.portName(), "0"));
    const MainWindow window;
    QCOMPARE(widget<QComboBox>(window, "comboBox_Port")->currentText(), peer.portName());
    QVERIFY(!widget<QCheckBox>(window, "checkBox_Auto_connection")->isChecked());
    QVERIFY(!serialPort->isOpen());
    QCOMPARE(stateOf(window), disconnectedState);
    QVERIFY(m_catcher.messages.isEmpty());
}

TESSALY_WINDOW_TEST(tst_autoconnection)
#include "tst_autoconnection.moc"
