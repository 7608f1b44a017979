// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QPushButton>
#include <QSerialPort>
#include <QSet>
#include <QSlider>
#include <QTcpSocket>
#include <QTest>

#include <array>
#include <memory>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

// Every line of golden/commands is one act of the user, in order, in one window per model and
// player ID:
//
//   model | player ID | control or key | bytes on the wire, "-" for none | volume shown
//
// The control is the name of a button to click, "list = text" or "slider = value" to choose it
// (and to press the button beside the list), a shortcut, or, for a control that the model does not
// show, the name of the button's slot. The slider stands at its maximum at first. Without a volume
// in the line the window goes on showing the one before.

namespace {

QString goldenFolder()
{
    return sourcePath(u"tests/protocol/golden/commands/"_s);
}

const QString onDemandModel = u"Sonet A Lite (TCP/IP)"_s;

QByteArray hex(const QByteArray &bytes)
{
    return bytes.toHex(' ').toUpper();
}

struct Line
{
    int number = 0; ///< in its file
    QString model;
    QString playerId;
    QString control;
    QString bytes;
    QString volume;
};

/// All the lines of a golden file. `error` names the line that cannot be read.
QList<Line> readLines(const QString &fileName, QString &error)
{
    QFile file(goldenFolder() + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        error = fileName + ": "_L1 + file.errorString();
        return {};
    }
    QList<Line> lines;
    for (int number = 1; !file.atEnd(); ++number) {
        const QString text = QString::fromUtf8(file.readLine()).trimmed();
        if (text.isEmpty() || text.startsWith(u'#'))
            continue;
        QStringList columns = text.split(u" | "_s);
        for (QString &column : columns)
            column = column.trimmed();
        const bool isComplete
            = columns.size() == 4 || (columns.size() == 5 && columns.at(3) != "-"_L1);
        if (!isComplete) {
            error = u"%1:%2: not four or five columns"_s.arg(fileName).arg(number);
            return {};
        }
        lines.append(
            {number, columns.at(0), columns.at(1), columns.at(2), columns.at(3), columns.value(4)});
    }
    return lines;
}

/// The far end of whichever link the model has.
class Device
{
public:
    explicit Device(const QString &model)
    {
        if (model.contains("(TCP/IP)"_L1))
            m_tcp = std::make_unique<TcpPeer>(model == onDemandModel ? 1234 : 65079);
        else
            m_pty = std::make_unique<PtyPeer>();
    }

    TcpPeer *tcp() const { return m_tcp.get(); }
    PtyPeer *pty() const { return m_pty.get(); }
    QByteArray received() const { return m_tcp ? m_tcp->received() : m_pty->received(); }
    QByteArray takeReceived() const
    {
        return m_tcp ? m_tcp->takeReceived() : m_pty->takeReceived();
    }

private:
    std::unique_ptr<PtyPeer> m_pty;
    std::unique_ptr<TcpPeer> m_tcp;
};

/// A device that answers no connection attempt until it is told to: the queue of its listening
/// socket is full. The attempt that came too early is repeated by the system a second later.
class BusyDevice
{
public:
    explicit BusyDevice(quint16 port)
        : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0))
        , m_queued(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(TcpPeer::address().toIPv4Address());
        const auto *where = reinterpret_cast<const sockaddr *>(&address);
        const int on = 1;
        ::setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        if (::bind(m_listener, where, sizeof address) != 0 || ::listen(m_listener, 0) != 0
            || ::connect(m_queued, where, sizeof address) != 0) {
            qFatal("no listening socket to be had");
        }
    }
    ~BusyDevice()
    {
        for (const int socket : {m_listener, m_queued, m_accepted, m_served}) {
            if (socket >= 0)
                ::close(socket);
        }
    }
    Q_DISABLE_COPY_MOVE(BusyDevice)

    /// Makes room in the queue, so that the next attempt is answered.
    void answer() { m_accepted = ::accept(m_listener, nullptr, nullptr); }

    QByteArray received()
    {
        if (m_served < 0)
            m_served = ::accept4(m_listener, nullptr, nullptr, SOCK_NONBLOCK);
        std::array<char, 4096> buffer;
        ssize_t count = 0;
        while (m_served >= 0 && (count = ::read(m_served, buffer.data(), buffer.size())) > 0)
            m_received.append(buffer.data(), count);
        return m_received;
    }

private:
    int m_listener = -1;
    int m_queued = -1;
    int m_accepted = -1;
    int m_served = -1;
    QByteArray m_received;
};

/// Does what the third column of a line says. Returns why that was not possible, else nothing.
QString operate(const ConsoleWindow &console, MainWindow &window, const QString &control)
{
    const QStringList choice = control.split(u" = "_s);
    if (choice.size() == 2) {
        if (choice.first() == "horizontalSlider_Volume"_L1) {
            auto *slider = console.find<QSlider>("horizontalSlider_Volume");
            if (!slider->isVisible() || !slider->isEnabled())
                return u"not to be moved"_s;
            slider->setValue(choice.last().toInt());
            return {};
        }
        const QByteArray list = choice.first().toLatin1();
        auto *box = console.find<QComboBox>(list.constData());
        const int row = box->findText(choice.last(), Qt::MatchFixedString | Qt::MatchCaseSensitive);
        if (row < 0)
            return u"not in the list"_s;
        box->setCurrentIndex(row);
        return operate(console, window, u"pushButton"_s + choice.first().mid(8));
    }

    if (control.startsWith("pushButton_"_L1)) {
        auto *button = console.find<QPushButton>(control.toLatin1().constData());
        if (!button->isVisible() || !button->isEnabled())
            return u"not to be clicked"_s;
        QTest::mouseClick(button, Qt::LeftButton);
        return {};
    }

    if (control.startsWith("on_"_L1)) {
        const QByteArray slot = control.toLatin1();
        if (console.find<QPushButton>(slot.sliced(3).chopped(8).constData())->isVisible())
            return u"has a button to click"_s;
        return QMetaObject::invokeMethod(&window, slot.constData()) ? QString() : u"no slot"_s;
    }

    const QKeySequence keys = QKeySequence::fromString(control, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        return u"no key"_s;
    // QTest::keyClick() knows no Key_MediaPause.
    for (const bool press : {true, false})
        QTest::simulateEvent(&window, press, keys[0].key(), keys[0].keyboardModifiers(), {}, false);
    return {};
}

} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void goldenFilesNameEveryControl_data();
    void goldenFilesNameEveryControl();
    void controlsAndShortcuts_data();
    void controlsAndShortcuts();
    void onDemandModelNeedsNoConnect();
    void onDemandModelWritesTwiceToAnOpenSocket();
    void onDemandModelWhileConnecting();
    void onDemandModelWithSerialPortOpen();

private:
    void sendLines(const QString &fileName, const QList<Line> &lines);

    MessageBoxCatcher m_messageBoxes;
};

void tst_Commands::goldenFilesNameEveryControl_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QStringList>("playerIds");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QStringList>("volumes");
    QTest::addColumn<QStringList>("newIds");

    const QStringList fiveIds{u"0"_s, u"1"_s, u"5"_s, u"64"_s, u"127"_s};
    const QStringList oneId{u"0"_s};
    const QStringList noFolders;
    const QStringList oneBank{u"000"_s, u"127"_s};
    const QStringList twoBanks{u"000"_s, u"127"_s, u"128"_s, u"200"_s, u"255"_s};
    const QStringList eightBanks = twoBanks + QStringList{u"256"_s, u"999"_s};
    const QStringList to64{u"0"_s, u"32"_s, u"64"_s};
    const QStringList to31{u"0"_s, u"15"_s, u"31"_s};
    const QStringList to100{u"0"_s, u"50"_s, u"100"_s};
    const QStringList to56{u"0"_s, u"28"_s, u"56"_s};
    const QStringList to13{u"0"_s, u"6"_s, u"13"_s};
    const QStringList fixedId;
    const QStringList newIds{u"1"_s, u"12"_s, u"127"_s};

    const auto addModel = [](const char *model, const char *fileName, const QStringList &playerIds,
                             const QStringList &folders, const QStringList &volumes,
                             const QStringList &newPlayerIds) {
        QTest::newRow(model) << QString::fromLatin1(model) << QString::fromLatin1(fileName)
                             << playerIds << folders << volumes << newPlayerIds;
    };
    addModel("Tempo Deck", "00_tempo_deck.txt", fiveIds, eightBanks, to64, fixedId);
    addModel("Show Deck (Gen 2)", "01_show_deck_gen_2.txt", fiveIds, eightBanks, to64, fixedId);
    addModel("Vistar Show - SV500 (Serial)", "02_vistar_show_sv500_serial.txt", fiveIds, eightBanks,
             to100, fixedId);
    addModel("Vistar Show - SV500 (TCP/IP)", "03_vistar_show_sv500_tcp_ip.txt", oneId, eightBanks,
             to100, fixedId);
    addModel("Ampra One", "04_ampra_one.txt", fiveIds, noFolders, to56, newIds);
    addModel("Pico Deck Gen 2/3", "05_pico_deck_gen_2_3.txt", fiveIds, eightBanks, to64, fixedId);
    addModel("Sonet A (Serial)", "06_sonet_a_serial.txt", oneId, noFolders, to64, fixedId);
    addModel("Sonet A Lite (TCP/IP)", "07_sonet_a_lite_tcp_ip.txt", oneId, noFolders, to64,
             fixedId);
    addModel("Vistar Home - HV4xx (Serial)", "08_vistar_home_hv4xx_serial.txt", fiveIds, eightBanks,
             to100, fixedId);
    addModel("Vistar Home - HV4xx (TCP/IP)", "09_vistar_home_hv4xx_tcp_ip.txt", oneId, eightBanks,
             to100, fixedId);
    addModel("HV1xx (Serial) (legacy)", "10_hv1xx_serial_legacy.txt", fiveIds, twoBanks, to31,
             newIds);
    addModel("HV1xx (TCP/IP) (legacy)", "11_hv1xx_tcp_ip_legacy.txt", oneId, eightBanks, to31,
             fixedId);
    addModel("Pico Deck (legacy)", "12_pico_deck_legacy.txt", fiveIds, eightBanks, to31, fixedId);
    addModel("Card Deck HD (legacy)", "13_card_deck_hd_legacy.txt", fiveIds, oneBank, to31, newIds);
    addModel("HV0xx (legacy)", "14_hv0xx_legacy.txt", fiveIds, oneBank, to13, newIds);
}

void tst_Commands::goldenFilesNameEveryControl()
{
    QFETCH(QString, model);
    QFETCH(QString, fileName);
    QFETCH(QStringList, playerIds);
    QFETCH(QStringList, folders);
    QFETCH(QStringList, volumes);
    QFETCH(QStringList, newIds);

    // A button stands for its slot as well.
    QStringList expected;
    for (const char *button :
         {"Previous_Folder", "Previous_File", "Play", "Stop", "Pause", "Next_File", "Next_Folder",
          "Standby_Wakeup", "Volume_Mute_Unmute", "Volume_Less", "Volume_More"}) {
        expected.append("pushButton_"_L1 + QLatin1String(button));
    }
    for (const char *key : {"Ctrl+0",
                            "Ctrl+1",
                            "Ctrl+2",
                            "Ctrl+3",
                            "Ctrl+4",
                            "Ctrl+5",
                            "Ctrl+6",
                            "Ctrl+7",
                            "Ctrl+8",
                            "Ctrl+9",
                            "Ctrl++",
                            "Ctrl+-",
                            "Media Play",
                            "Media Stop",
                            "Media Next",
                            "Media Previous",
                            "Media Pause",
                            "Ctrl+Media Next",
                            "Ctrl+Media Previous",
                            "Volume Mute"}) {
        expected.append(QString::fromLatin1(key));
    }
    for (const QString &folder : folders)
        expected.append("comboBox_Folder = "_L1 + folder);
    if (folders.isEmpty())
        expected.append(u"pushButton_Folder"_s);
    for (const QString &volume : volumes)
        expected.append("horizontalSlider_Volume = "_L1 + volume);
    for (const QString &newId : newIds)
        expected.append("comboBox_Change_ID = "_L1 + newId);
    if (newIds.isEmpty())
        expected.append(u"pushButton_Change_ID"_s);
    expected.sort();

    QString error;
    const QList<Line> lines = readLines(fileName, error);
    QCOMPARE(error, QString());
    QStringList idsOfFile;
    QMap<QString, QSet<QString>> controlsOfId;
    for (const Line &line : lines) {
        QCOMPARE(line.model, model);
        if (!idsOfFile.contains(line.playerId))
            idsOfFile.append(line.playerId);
        const QString control
            = line.control.startsWith("on_"_L1) ? line.control.sliced(3).chopped(8) : line.control;
        controlsOfId[line.playerId].insert(control);
    }
    QCOMPARE(idsOfFile, playerIds);
    for (const QString &playerId : playerIds) {
        QStringList controls = controlsOfId.value(playerId).values();
        controls.sort();
        QCOMPARE(controls, expected);
    }
}

void tst_Commands::controlsAndShortcuts_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("playerId");

    const QStringList fileNames = QDir(goldenFolder()).entryList(QDir::Files, QDir::Name);
    QCOMPARE(fileNames.size(), buildDeviceCatalogue().size());
    for (const QString &fileName : fileNames) {
        QString error;
        QStringList playerIds;
        for (const Line &line : readLines(fileName, error)) {
            if (!playerIds.contains(line.playerId))
                playerIds.append(line.playerId);
        }
        for (const QString &playerId : std::as_const(playerIds)) {
            QTest::addRow("%s, player %s", qPrintable(fileName.chopped(4)), qPrintable(playerId))
                << fileName << playerId;
        }
    }
}

void tst_Commands::controlsAndShortcuts()
{
    QFETCH(QString, fileName);
    QFETCH(QString, playerId);

    QString error;
    QList<Line> lines = readLines(fileName, error);
    QCOMPARE(error, QString());
    lines.removeIf([&](const Line &line) { return line.playerId != playerId; });
    sendLines(fileName, lines);
    QVERIFY(m_messageBoxes.messages.isEmpty());
}

void tst_Commands::sendLines(const QString &fileName, const QList<Line> &lines)
{
    const QString model = lines.first().model;
    const bool onDemand = model == onDemandModel;
    const Device device(model);
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(model));
    if (onDemand) {
        console.setAddress(TcpPeer::address().toString());
        QVERIFY(!console.find<QPushButton>("pushButton_Connect")->isEnabled());
    } else if (device.tcp()) {
        QVERIFY(console.connectTcp());
        QTRY_VERIFY(device.tcp()->isConnected());
    } else {
        console.connectSerial(*device.pty());
    }
    QCOMPARE(serialPort->isOpen() || tcpSocket->isOpen(), !onDemand);
    QVERIFY(console.selectText("comboBox_ID", lines.first().playerId));
    console.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&console.window));

    // Such a device hangs up after each command.
    const auto endOnDemandConnection = [&] {
        if (!onDemand || !tcpSocket->isOpen())
            return true;
        device.tcp()->hangUp();
        return QTest::qWaitFor([] { return !tcpSocket->isOpen(); });
    };

    QString shownBytes = u"0"_s;
    QString shownVolume = u"..."_s;
    for (const Line &line : lines) {
        const auto place = u"%1:%2: %3: "_s.arg(fileName).arg(line.number).arg(line.control);
        if (line.bytes != "-"_L1)
            shownBytes = line.bytes;
        if (!line.volume.isEmpty())
            shownVolume = line.volume;

        QCOMPARE(place + operate(console, console.window, line.control), place);
        if (line.bytes == "-"_L1) {
            QCOMPARE(place + QString::fromLatin1(hex(device.received())), place);
            QCOMPARE(serialPort->bytesToWrite() + tcpSocket->bytesToWrite(), 0);
            QVERIFY2(!onDemand || !tcpSocket->isOpen(), qPrintable(place));
        } else {
            const qsizetype size = (line.bytes.size() + 1) / 3;
            QCoreApplication::processEvents(); // mostly enough: qWaitFor() sleeps 10 ms a turn
            const bool allArrived
                = QTest::qWaitFor([&] { return device.received().size() >= size; });
            QCOMPARE(place + QString::fromLatin1(hex(device.takeReceived())), place + line.bytes);
            QVERIFY(allArrived);
            QVERIFY2(endOnDemandConnection(), qPrintable(place));
        }
        QCOMPARE(place + console.text("label_Bytes_Sended"), place + shownBytes);
        QCOMPARE(place + console.text("label_Volume_2"), place + shownVolume);
    }

    // What a silent control had sent all the same would arrive before this frame.
    QVERIFY(device.received().isEmpty());
    console.window.sendCommand(0x7E, {});
    const bool isExtended = model.startsWith("Sonet"_L1);
    QTRY_VERIFY(device.received().endsWith('\x7E'));
    QCOMPARE(device.takeReceived().size(), isExtended ? 1 : 2);
    QVERIFY(endOnDemandConnection());
}

void tst_Commands::onDemandModelNeedsNoConnect()
{
    TcpPeer device(1234);
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(onDemandModel));
    console.setAddress(TcpPeer::address().toString());
    QVERIFY(!console.find<QPushButton>("pushButton_Connect")->isEnabled());
    QVERIFY(!console.find<QPushButton>("pushButton_Disconnect")->isEnabled());

    for (int connections = 1; connections <= 3; ++connections) {
        console.click("pushButton_Play");
        QTRY_COMPARE(hex(device.received()),
                     "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba);
        QCOMPARE(device.connectionCount(), connections);
        QCOMPARE(tcpSocket->bytesToWrite(), 0);
        device.hangUp();
        QTRY_VERIFY(!tcpSocket->isOpen());
        // Nothing was left over that came after the command.
        QCOMPARE(device.takeReceived().size(), 19);
    }
    QVERIFY(m_messageBoxes.messages.isEmpty());
}

void tst_Commands::onDemandModelWritesTwiceToAnOpenSocket()
{
    TcpPeer device(1234);
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(onDemandModel));
    console.setAddress(TcpPeer::address().toString());
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(device.received()),
                 "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba);
    QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);
    device.takeReceived();

    // On a socket that is open already the device gets the frame a second time, which is kept
    // deliberately; the window shows it once.
    console.click("pushButton_Stop");
    QTRY_COMPARE(hex(device.received()),
                 "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00 "
                 "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"),
             u"04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_s);
    device.takeReceived();

    console.click("pushButton_Volume_Less");
    QTRY_COMPARE(hex(device.received()),
                 "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 36 "
                 "34 00 "
                 "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 36 "
                 "34 00"_ba);
    QCOMPARE(device.connectionCount(), 1);
}

void tst_Commands::onDemandModelWhileConnecting()
{
    BusyDevice device(1234);
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(onDemandModel));
    console.setAddress(TcpPeer::address().toString());

    // The socket counts as open from the moment of the attempt, so that only the first command is
    // written once.
    console.click("pushButton_Play");
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectingState);
    console.click("pushButton_Stop");
    QCOMPARE(tcpSocket->state(), QAbstractSocket::ConnectingState);

    device.answer();
    QTRY_COMPARE(hex(device.received()),
                 "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00 "
                 "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00 "
                 "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_ba);
}

void tst_Commands::onDemandModelWithSerialPortOpen()
{
    TcpPeer device(1234);
    PtyPeer pty;
    ConsoleWindow console;
    console.connectSerial(pty);
    QVERIFY(serialPort->isOpen());
    console.selectModel(console.rowOfModel(onDemandModel));
    console.setAddress(TcpPeer::address().toString());

    const auto play = "04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_ba;
    console.click("pushButton_Play");
    QTRY_COMPARE(hex(pty.received()), play);
    QTRY_COMPARE(hex(device.received()), play);
    pty.takeReceived();
    device.takeReceived();

    const auto stop = "04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00"_ba;
    console.click("pushButton_Stop");
    QTRY_COMPARE(hex(device.received()), stop + ' ' + stop);
    QTRY_COMPARE(hex(pty.received()), stop);
}

TESSALY_WINDOW_TEST(tst_Commands)

#include "tst_commands.moc"
