// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consoleprogram.h"
#include "tests/support/programtestmain.h"
#include "tests/support/simulatorprogram.h"
#include "tests/support/tcppeer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QLabel>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// In ms.
constexpr int responseLimit = 5000; // what a user still takes for an answer to a click
constexpr int showLimit = 20'000;   // this one and the next are reached only by what fails
constexpr int floodLimit = 240'000; // below the five minutes that Qt gives a test
constexpr int outage = 3000;        // of a device that refuses
constexpr int tolerance = 500;

/// A move of the user and what becomes of it at the other end.
struct Step
{
    enum class Move { Choose, Click, Press };

    Move move;
    const char *widget;
    QString input;  ///< the text to choose or the key to press
    QString frame;  ///< "ID 0 | 80 02 01 | Play"; empty: nothing is sent
    QString answer; ///< empty: none
    QString volume; ///< what the volume's label reads from now on; empty: what it did before
};

Step choose(const char *list, const QString &text)
{
    return {Step::Move::Choose, list, text, {}, {}, {}};
}

Step click(const char *button, const QString &frame, const QString &answer,
           const QString &volume = {})
{
    return {Step::Move::Click, button, {}, frame, answer, volume};
}

Step press(const QString &key, const QString &frame, const QString &answer,
           const QString &volume = {})
{
    return {Step::Move::Press, nullptr, key, frame, answer, volume};
}

QString sentBytes(const QString &frame)
{
    return frame.section(" | "_L1, 1, 1);
}

enum class Link { Serial, Tcp, OnDemand };

/// The built console before a simulated device.
class Desk
{
public:
    explicit Desk(const QString &model)
        : m_model(model)
        , m_link(model == "Sonet A Lite (TCP/IP)"_L1 ? Link::OnDemand
                 : model.contains("TCP/IP"_L1)       ? Link::Tcp
                                                     : Link::Serial)
        , m_console(m_port)
    {
    }

    /// \a fault its name; empty: none
    bool startSimulator(const QString &fault = {});
    /// Leaves the console ready to connect.
    bool startConsole();
    bool start(const QString &fault = {}) { return startSimulator(fault) && startConsole(); }
    bool connectLink();
    bool disconnectLink();
    /// The look of a window that has no link, without doing anything for it.
    bool isDisconnected();
    bool take(const Step &step);
    /// Clicks on Play. \a frame what the device then understands
    bool plays(const QString &frame);
    /// Presses the Stop key. \a frame what the device then understands
    bool stops(const QString &frame);
    bool showsReceived(const QString &text, int limit = showLimit);
    bool showsSent(const QString &bytes);
    bool quit() { return m_console.press({u"ctrl+q"_s}) && m_console.endsWell(); }

    Link link() const { return m_link; }
    ConsoleProgram &console() { return m_console; }
    QStringList frames() { return m_simulator.frames(); }
    /// The lines for what the simulator has understood.
    QStringList lines(QStringList frames) const;
    void expectSent(const QString &frame);
    bool saveScreenshot();

private:
    const QTemporaryDir m_folder;
    const QString m_port = m_folder.filePath(u"port"_s);
    const QString m_model;
    const Link m_link;
    SimulatorProgram m_simulator;
    ConsoleProgram m_console;
};

bool Desk::startSimulator(const QString &fault)
{
    QStringList arguments{u"--model"_s, m_model};
    arguments += m_link == Link::Serial
                     ? QStringList{u"--link"_s, m_port}
                     : QStringList{u"--address"_s, TcpPeer::address().toString()};
    if (!fault.isEmpty())
        arguments += {u"--fault"_s, fault};
    if (m_simulator.start(arguments))
        return true;
    qWarning() << "the simulator did not start:" << m_simulator.errorOutput();
    return false;
}

bool Desk::startConsole()
{
    return m_console.start() && m_console.choose("comboBox_Player", m_model)
           && (m_link == Link::Serial ? m_console.choose("comboBox_Port", m_port)
                                      : m_console.typeAddress(TcpPeer::address().toString()));
}

bool Desk::connectLink()
{
    if (m_link == Link::OnDemand)
        return m_console.looksAsExpected();
    if (!m_console.click("pushButton_Connect"))
        return false;
    m_console.expectLink(true);
    return m_console.looksAsExpected();
}

bool Desk::disconnectLink()
{
    return m_link == Link::OnDemand
           || (m_console.click("pushButton_Disconnect") && isDisconnected());
}

bool Desk::isDisconnected()
{
    if (m_link != Link::OnDemand)
        m_console.expectLink(false);
    return m_console.looksAsExpected();
}

bool Desk::take(const Step &step)
{
    switch (step.move) {
    case Step::Move::Choose:
        return m_console.choose(step.widget, step.input);
    case Step::Move::Click:
        return m_console.click(step.widget);
    case Step::Move::Press:
        return m_console.looksAsExpected() && m_console.press({step.input});
    }
    return false;
}

bool Desk::plays(const QString &frame)
{
    const bool isClicked = m_console.click("pushButton_Play");
    expectSent(frame);
    return isClicked;
}

bool Desk::stops(const QString &frame)
{
    const bool isPressed = m_console.press({u"XF86AudioStop"_s});
    expectSent(frame);
    return isPressed;
}

bool Desk::showsReceived(const QString &text, int limit)
{
    return m_console.click("textEdit_Data") && m_console.copies(text, limit);
}

bool Desk::showsSent(const QString &bytes)
{
    return m_console.click("label_Bytes_Sended") && m_console.copies(bytes);
}

void Desk::expectSent(const QString &frame)
{
    m_console.twin<QLabel>("label_Bytes_Sended")->setText(sentBytes(frame));
}

QStringList Desk::lines(QStringList frames) const
{
    for (QString &frame : frames)
        frame.prepend(m_model + " | "_L1);
    return frames;
}

bool Desk::saveScreenshot()
{
    const QStringList name{QString::fromLatin1(QTest::currentTestFunction()),
                           QString::fromLatin1(QTest::currentDataTag())};
    return m_console.saveScreenshot(name.join(u'-').replace(u'/', u'-'));
}

} // namespace

class tst_Simulated : public QObject
{
    Q_OBJECT

private slots:
    void models_data();
    void models();
    void noAnswer_data() { addLinks(); }
    void noAnswer();
    void singleBytes_data() { addLinks(); }
    void singleBytes();
    void garbage_data() { addLinks(); }
    void garbage();
    void hangUp_data() { addLinks(); }
    void hangUp();
    void megabyte_data();
    void megabyte();
    void markup_data() { addLinks(); }
    void markup();
    void markupOpensNoFile();
    void deafSerialLine();
    void refusedConnection();
    void refusedCommand();

private:
    static void addLinks();
};

void tst_Simulated::models_data()
{
    QTest::addColumn<QList<Step>>("steps");

    QTest::newRow("Tempo Deck") << QList<Step>{
        click("pushButton_Play", u"ID 0 | 80 02 01 | Play"_s, u"OK Play"_s),
        choose("comboBox_Folder", u"200"_s),
        click("pushButton_Folder", u"ID 0 | 80 11 48 | Folder 200"_s, u"OK Folder 200"_s),
        press(u"ctrl+5"_s, u"ID 0 | 80 01 05 | Folder 5"_s, u"OK Folder 5"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 3F | Volume 63"_s, u"OK Volume 63"_s, u"63"_s),
        choose("comboBox_Other_Command", u"Volume -"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 02 0A | Volume -"_s, u"OK Volume -"_s),
        choose("comboBox_ID", u"3"_s),
        click("pushButton_Next_File",
              u"ID 3 | 83 02 03 | Next File (for another player, not obeyed)"_s, {}),
    };
    QTest::newRow("Show Deck (Gen 2)") << QList<Step>{
        press(u"XF86AudioStop"_s, u"ID 0 | 80 02 02 | Stop"_s, u"OK Stop"_s),
        choose("comboBox_Folder", u"999"_s),
        click("pushButton_Folder", u"ID 0 | 80 71 67 | Folder 999"_s, u"OK Folder 999"_s),
        press(u"ctrl+0"_s, u"ID 0 | 80 01 00 | Folder 0"_s, u"OK Folder 0"_s),
        click("pushButton_Volume_Less", u"ID 0 | 80 03 00 | Volume 0"_s, u"OK Volume 0"_s, u"0"_s),
        choose("comboBox_Other_Command", u"Volume +"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 02 09 | Volume +"_s, u"OK Volume +"_s),
        choose("comboBox_ID", u"127"_s),
        click("pushButton_Previous_Folder",
              u"ID 127 | FF 02 07 | Previous Folder (for another player, not obeyed)"_s, {}),
    };
    QTest::newRow("Vistar Show - SV500 (Serial)") << QList<Step>{
        click("pushButton_Play", u"ID 0 | 80 02 01 | Play"_s, u"OK Play"_s),
        choose("comboBox_Folder", u"300"_s),
        click("pushButton_Folder", u"ID 0 | 80 21 2C | Folder 300"_s, u"OK Folder 300"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 63 | Volume 99"_s, u"OK Volume 99"_s, u"99"_s),
        choose("comboBox_Request", u"Volume"_s),
        click("pushButton_Request", u"ID 0 | 80 04 0B | Request: Volume"_s, u"Volume: 99"_s),
        choose("comboBox_Other_Command", u"NTP on"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 5C 01 | NTP on"_s, u"OK NTP on"_s),
        choose("comboBox_Subtitles_Value", u"fre"_s),
        click("pushButton_Subtitles_Select",
              u"ID 0 | 80 1D 66 72 65 | Subtitles fre (ISO639-2 (B))"_s,
              u"OK Subtitles fre (ISO639-2 (B))"_s),
        choose("comboBox_ID", u"3"_s),
        click("pushButton_Standby_Wakeup",
              u"ID 3 | 83 02 08 | Standby/Wakeup (for another player, not obeyed)"_s, {}),
    };
    QTest::newRow("Vistar Show - SV500 (TCP/IP)") << QList<Step>{
        press(u"ctrl+7"_s, u"ID 0 | 80 01 07 | Folder 7"_s, u"OK Folder 7"_s),
        choose("comboBox_Request", u"Current folder number"_s),
        click("pushButton_Request", u"ID 0 | 80 04 06 | Request: Current folder number"_s,
              u"Current folder number: 007"_s),
        click("pushButton_Pause", u"ID 0 | 80 02 05 | Play/Pause"_s, u"OK Play/Pause"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 63 | Volume 99"_s, u"OK Volume 99"_s, u"99"_s),
        click("pushButton_Volume_Mute_Unmute", u"ID 0 | 80 02 10 | Mute/Demute"_s,
              u"OK Mute/Demute"_s),
        choose("comboBox_Request", u"Volume"_s),
        click("pushButton_Request", u"ID 0 | 80 04 0B | Request: Volume"_s,
              u"Volume: 99 (muted)"_s),
        choose("comboBox_Subtitles_Type", u"Index"_s),
        choose("comboBox_Subtitles_Value", u"5"_s),
        click("pushButton_Subtitles_Select", u"ID 0 | 80 2D 05 | Subtitles 5 (Index)"_s,
              u"OK Subtitles 5 (Index)"_s),
        choose("comboBox_Other_Command", u"PJLink Video Projector Power On"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 02 16 | PJLink Video Projector Power On"_s,
              u"OK PJLink Video Projector Power On"_s),
    };
    QTest::newRow("Ampra One") << QList<Step>{
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 37 | Volume 1 55"_s, u"OK Volume 1 55"_s, u"55"_s),
        click("pushButton_Request", u"ID 0 | 80 04 40 | Request: Information"_s,
              u"Information: simulated Ampra One, ID 0, volume 55"_s),
        choose("comboBox_Other_Command", u"Set baudrate = 9600"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 08 31 | Set baudrate = 9600"_s,
              u"OK Set baudrate = 9600"_s),
        choose("comboBox_Change_ID", u"127"_s),
        click("pushButton_Change_ID", u"ID 0 | 80 7F 7F | Change ID 127"_s, u"OK Change ID 127"_s),
        click("pushButton_Volume_Less",
              u"ID 0 | 80 03 00 | Volume 1 0 (for another player, not obeyed)"_s, {}, u"0"_s),
        choose("comboBox_ID", u"127"_s),
        click("pushButton_Request", u"ID 127 | FF 04 40 | Request: Information"_s,
              u"Information: simulated Ampra One, ID 127, volume 55"_s),
    };
    QTest::newRow("Pico Deck Gen 2/3") << QList<Step>{
        click("pushButton_Next_Folder", u"ID 0 | 80 02 06 | Next Folder"_s, u"OK Next Folder"_s),
        choose("comboBox_Folder", u"128"_s),
        click("pushButton_Folder", u"ID 0 | 80 11 00 | Folder 128"_s, u"OK Folder 128"_s),
        press(u"ctrl+9"_s, u"ID 0 | 80 01 09 | Folder 9"_s, u"OK Folder 9"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 3F | Volume 63"_s, u"OK Volume 63"_s, u"63"_s),
        press(u"ctrl+plus"_s, u"ID 0 | 80 03 40 | Volume 64"_s, u"OK Volume 64"_s, u"64"_s),
        choose("comboBox_ID", u"64"_s),
        click("pushButton_Play", u"ID 64 | C0 02 01 | Play (for another player, not obeyed)"_s, {}),
    };
    QTest::newRow("Sonet A (Serial)") << QList<Step>{
        click("pushButton_Play", u"no ID | 20 FF FF FF | Play"_s, u"OK Play"_s),
        press(u"ctrl+minus"_s, u"no ID | 30 00 3F 00 | Volume 63"_s, u"OK Volume 63"_s, u"63"_s),
        choose("comboBox_Source_Of_Playback", u"PLAYLIST folder (Random)"_s),
        choose("comboBox_Ref_Of_Playback", u"012"_s),
        click("pushButton_Launch_Playback", u"no ID | 08 00 0C FF | PLAYLIST folder (Random) 12"_s,
              u"OK PLAYLIST folder (Random) 12"_s),
        choose("comboBox_Source_Of_Playback", u"SPOT folder (Random + Reset)"_s),
        choose("comboBox_Ref_Of_Playback", u"300"_s),
        choose("comboBox_Option_Of_Playback", u"002"_s),
        click("pushButton_Launch_Playback",
              u"no ID | 12 01 2C 02 | SPOT folder (Random + Reset) 300, option 2"_s,
              u"OK SPOT folder (Random + Reset) 300, option 2"_s),
        choose("comboBox_Source_Of_Playback", u"Webradio"_s),
        choose("comboBox_Webradio_Ref_Of_Playback", u"003"_s),
        click("pushButton_Launch_Playback", u"no ID | 40 00 03 FF | Webradio 3"_s,
              u"OK Webradio 3"_s),
        choose("comboBox_Source_Of_Playback", u"Alternate: SD card"_s),
        click("pushButton_Launch_Playback", u"no ID | 51 FF FF FF | Alternate: SD card"_s,
              u"OK Alternate: SD card"_s),
        choose("comboBox_Other_Command", u"FTP update: preset 3"_s),
        click("pushButton_Other_Command", u"no ID | 41 00 03 FF | FTP update: preset 3"_s,
              u"OK FTP update: preset 3"_s),
    };
    QTest::newRow("Sonet A Lite (TCP/IP)") << QList<Step>{
        click("pushButton_Play",
              u"no ID | 04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00 | Play"_s,
              u"OK Play"_s),
        press(u"ctrl+minus"_s,
              u"no ID | 03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 "
              "00 2D 31 00 | Volume 63"_s,
              u"OK Volume 63"_s, u"63"_s),
        choose("comboBox_Source_Of_Playback", u"PLAYLIST folder (Random)"_s),
        choose("comboBox_Ref_Of_Playback", u"012"_s),
        click(
            "pushButton_Launch_Playback",
            u"no ID | 04 00 00 00 63 6D 64 00 38 00 31 32 00 30 00 | PLAYLIST folder (Random) 12"_s,
            u"OK PLAYLIST folder (Random) 12"_s),
        choose("comboBox_Request", u"Playlist ID"_s),
        click("pushButton_Request",
              u"no ID | 02 00 00 00 67 65 74 00 50 6C 61 79 6C 69 73 74 49 44 00 | "
              "Request: Playlist ID"_s,
              u"Playlist ID: 12"_s),
        press(u"XF86AudioStop"_s,
              u"no ID | 04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00 | Stop"_s,
              u"OK Stop"_s),
    };
    QTest::newRow("Vistar Home - HV4xx (Serial)") << QList<Step>{
        click("pushButton_Standby_Wakeup", u"ID 0 | 80 02 08 | Standby/Wakeup"_s,
              u"OK Standby/Wakeup"_s),
        press(u"ctrl+1"_s, u"ID 0 | 80 01 01 | Folder 1"_s, u"ERROR standby: Folder 1"_s),
        click("pushButton_Standby_Wakeup", u"ID 0 | 80 02 08 | Standby/Wakeup"_s,
              u"OK Standby/Wakeup"_s),
        click("pushButton_Subtitles_On", u"ID 0 | 80 0D 01 | Enable auto subtitles"_s,
              u"OK Enable auto subtitles"_s),
        choose("comboBox_Request", u"Get the list of subtitles"_s),
        click("pushButton_Request", u"ID 0 | 80 04 41 | Request: Get the list of subtitles"_s,
              u"Get the list of subtitles: 0 eng, 1 fre, 2 ger, 3 spa; selected: automatic"_s),
        choose("comboBox_Subtitles_Type", u"ISO639-2 (T)"_s),
        choose("comboBox_Subtitles_Value", u"deu"_s),
        click("pushButton_Subtitles_Select",
              u"ID 0 | 80 1D 64 65 75 | Subtitles deu (ISO639-2 (T), ISO639-3)"_s,
              u"OK Subtitles deu (ISO639-2 (T), ISO639-3)"_s),
        choose("comboBox_Other_Command", u"HDMI-CEC Standby"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 02 13 | HDMI-CEC Standby"_s,
              u"OK HDMI-CEC Standby"_s),
        choose("comboBox_ID", u"12"_s),
        click("pushButton_Play", u"ID 12 | 8C 02 01 | Play (for another player, not obeyed)"_s, {}),
    };
    QTest::newRow("Vistar Home - HV4xx (TCP/IP)") << QList<Step>{
        press(u"XF86AudioNext"_s, u"ID 0 | 80 02 03 | Next File"_s, u"OK Next File"_s),
        choose("comboBox_Request", u"Full path name"_s),
        click("pushButton_Request", u"ID 0 | 80 04 03 | Request: Full path name"_s,
              u"Full path name: /000/002"_s),
        click("pushButton_Volume_Less", u"ID 0 | 80 03 00 | Volume 0"_s, u"OK Volume 0"_s, u"0"_s),
        choose("comboBox_Other_Command", u"Volume +"_s),
        click("pushButton_Other_Command", u"ID 0 | 80 02 09 | Volume +"_s, u"OK Volume +"_s),
        choose("comboBox_Request", u"Volume"_s),
        click("pushButton_Request", u"ID 0 | 80 04 0B | Request: Volume"_s, u"Volume: 1"_s),
        click("pushButton_Subtitles_Next_Loop", u"ID 0 | 80 0D 05 | Next subtitles (with loop)"_s,
              u"OK Next subtitles (with loop)"_s),
    };
    QTest::newRow("HV1xx (Serial) (legacy)") << QList<Step>{
        choose("comboBox_Folder", u"255"_s),
        click("pushButton_Folder", u"ID 0 | 80 11 7F | Folder 255"_s, u"OK Folder 255"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 1E | Volume 30"_s, u"OK Volume 30"_s, u"30"_s),
        choose("comboBox_Request", u"Used storage media"_s),
        click("pushButton_Request", u"ID 0 | 80 04 04 | Request: Used storage media"_s,
              u"Used storage media: SD card"_s),
        choose("comboBox_Change_ID", u"5"_s),
        click("pushButton_Change_ID", u"ID 0 | 80 7F 05 | Change ID 5"_s, u"OK Change ID 5"_s),
        press(u"XF86AudioStop"_s, u"ID 0 | 80 02 02 | Stop (for another player, not obeyed)"_s, {}),
        choose("comboBox_ID", u"5"_s),
        click("pushButton_Pause", u"ID 5 | 85 02 05 | Pause"_s, u"OK Pause"_s),
    };
    QTest::newRow("HV1xx (TCP/IP) (legacy)") << QList<Step>{
        choose("comboBox_Folder", u"640"_s),
        click("pushButton_Folder", u"ID 0 | 80 51 00 | Folder 640"_s, u"OK Folder 640"_s),
        click("pushButton_Previous_File", u"ID 0 | 80 02 04 | Previous File"_s,
              u"OK Previous File"_s),
        choose("comboBox_Request", u"Current file"_s),
        click("pushButton_Request", u"ID 0 | 80 04 02 | Request: Current file"_s,
              u"Current file: 012"_s),
        press(u"ctrl+XF86AudioNext"_s, u"ID 0 | 80 02 06 | Next Folder"_s, u"OK Next Folder"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 1E | Volume 30"_s, u"OK Volume 30"_s, u"30"_s),
    };
    QTest::newRow("Pico Deck (legacy)") << QList<Step>{
        click("pushButton_Play", u"ID 0 | 80 02 01 | Play"_s, u"OK Play"_s),
        choose("comboBox_Folder", u"500"_s),
        click("pushButton_Folder", u"ID 0 | 80 31 74 | Folder 500"_s, u"OK Folder 500"_s),
        press(u"ctrl+2"_s, u"ID 0 | 80 01 02 | Folder 2"_s, u"OK Folder 2"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 1E | Volume 30"_s, u"OK Volume 30"_s, u"30"_s),
        choose("comboBox_ID", u"10"_s),
        click("pushButton_Previous_File",
              u"ID 10 | 8A 02 04 | Previous File (for another player, not obeyed)"_s, {}),
    };
    QTest::newRow("Card Deck HD (legacy)") << QList<Step>{
        choose("comboBox_Folder", u"127"_s),
        click("pushButton_Folder", u"ID 0 | 80 01 7F | Folder 127"_s, u"OK Folder 127"_s),
        click("pushButton_Pause", u"ID 0 | 80 02 05 | Pause"_s, u"OK Pause"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 1E | Volume 30"_s, u"OK Volume 30"_s, u"30"_s),
        choose("comboBox_Change_ID", u"12"_s),
        click("pushButton_Change_ID", u"ID 0 | 80 7F 0C | Change ID 12"_s, u"OK Change ID 12"_s),
        press(u"ctrl+3"_s, u"ID 0 | 80 01 03 | Folder 3 (for another player, not obeyed)"_s, {}),
        choose("comboBox_ID", u"12"_s),
        click("pushButton_Next_File", u"ID 12 | 8C 02 03 | Next File"_s, u"OK Next File"_s),
    };
    QTest::newRow("HV0xx (legacy)") << QList<Step>{
        click("pushButton_Play", u"ID 0 | 80 02 01 | Play"_s, u"OK Play"_s),
        choose("comboBox_Folder", u"100"_s),
        click("pushButton_Folder", u"ID 0 | 80 01 64 | Folder 100"_s, u"OK Folder 100"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 0C | Volume 12"_s, u"OK Volume 12"_s, u"12"_s),
        choose("comboBox_Change_ID", u"2"_s),
        click("pushButton_Change_ID", u"ID 0 | 80 7F 02 | Change ID 2"_s, u"OK Change ID 2"_s),
        press(u"XF86AudioPlay"_s, u"ID 0 | 80 02 01 | Play (for another player, not obeyed)"_s, {}),
        choose("comboBox_ID", u"2"_s),
        click("pushButton_Stop", u"ID 2 | 82 02 02 | Stop"_s, u"OK Stop"_s),
    };
}

void tst_Simulated::models()
{
    QFETCH(const QList<Step>, steps);
    const QString model = QString::fromLatin1(QTest::currentDataTag());
    Desk desk(model);
    QVERIFY(desk.start());
    QVERIFY(desk.connectLink());

    QStringList frames;
    QString received;
    for (const Step &step : steps) {
        QVERIFY(desk.take(step));
        if (step.frame.isEmpty())
            continue;
        frames.append(step.frame);
        QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines(frames), responseLimit);
        desk.expectSent(step.frame);
        if (!step.volume.isEmpty())
            desk.console().twin<QLabel>("label_Volume_2")->setText(step.volume);
        if (!step.answer.isEmpty())
            received += step.answer + u'\n';
        // Until the device has hung up, the next command would arrive twice.
        if (desk.link() == Link::OnDemand)
            QVERIFY(desk.showsReceived(received));
    }
    QVERIFY(desk.showsReceived(received));
    QVERIFY(desk.showsSent(sentBytes(frames.last())));
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines(frames));
}

/// A model of each kind of link, and what its device understands of Play and Stop.
void tst_Simulated::addLinks()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("play");
    QTest::addColumn<QString>("stop");

    QTest::newRow("serial") << u"Vistar Show - SV500 (Serial)"_s << u"ID 0 | 80 02 01 | Play"_s
                            << u"ID 0 | 80 02 02 | Stop"_s;
    QTest::newRow("TCP") << u"Vistar Show - SV500 (TCP/IP)"_s << u"ID 0 | 80 02 01 | Play"_s
                         << u"ID 0 | 80 02 02 | Stop"_s;
    QTest::newRow("on demand")
        << u"Sonet A Lite (TCP/IP)"_s
        << u"no ID | 04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00 | Play"_s
        << u"no ID | 04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00 | Stop"_s;
}

void tst_Simulated::noAnswer()
{
    QFETCH(const QString, model);
    QFETCH(const QString, play);
    QFETCH(const QString, stop);
    Desk desk(model);
    QVERIFY(desk.start(u"no-answer"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.plays(play));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play}), responseLimit);
    QVERIFY(desk.console().looksAsExpected());
    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play, stop}), responseLimit);
    QVERIFY(desk.showsSent(sentBytes(stop)));
    QVERIFY(desk.console().looksAsExpected("textEdit_Data"));
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({play, stop}));
}

void tst_Simulated::singleBytes()
{
    QFETCH(const QString, model);
    QFETCH(const QString, play);
    QFETCH(const QString, stop);
    Desk desk(model);
    QVERIFY(desk.start(u"single-bytes"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.plays(play));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play}), responseLimit);
    // Elsewhere the next command goes out while the first answer drips in.
    if (desk.link() == Link::OnDemand)
        QVERIFY(desk.showsReceived(u"OK Play\n"_s));
    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play, stop}), responseLimit);
    QVERIFY(desk.showsReceived(u"OK Play\nOK Stop\n"_s));
    QVERIFY(desk.showsSent(sentBytes(stop)));
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({play, stop}));
}

void tst_Simulated::garbage()
{
    QFETCH(const QString, model);
    QFETCH(const QString, play);
    QFETCH(const QString, stop);
    Desk desk(model);
    QVERIFY(desk.start(u"garbage"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.console().click("radioButton_Data_Hex"));
    QVERIFY(desk.plays(play));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play}), responseLimit);
    QVERIFY(desk.showsReceived(u" 00 80 FF FE 7F 4F 4B 20 50 6C 61 79 0D 0A"
                               " C3 28 F0 9F 1B 5B 32 4A E2 82"_s));
    QVERIFY(desk.console().click("pushButton_Clear"));

    QVERIFY(desk.console().click("radioButton_Data_ASCII"));
    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play, stop}), responseLimit);
    QVERIFY(desk.showsReceived(
        u'\0' + u"\uFFFD\uFFFD\uFFFD\u007FOK Stop\n\uFFFD(\uFFFD\uFFFD\u001B[2J\uFFFD\uFFFD"_s));
    QVERIFY(desk.showsSent(sentBytes(stop)));
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({play, stop}));
}

void tst_Simulated::hangUp()
{
    QFETCH(const QString, model);
    QFETCH(const QString, play);
    QFETCH(const QString, stop);
    Desk desk(model);
    QVERIFY(desk.start(u"hang-up"_s));
    QVERIFY(desk.connectLink());

    QVERIFY(desk.plays(play));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play}), responseLimit);
    QElapsedTimer sinceHangUp;
    sinceHangUp.start();
    QVERIFY(desk.isDisconnected());
    QCOMPARE_LT(sinceHangUp.elapsed(), responseLimit);
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.connectLink());
    QVERIFY(desk.showsReceived(u"OK P"_s));
    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play, stop}), responseLimit);
    QVERIFY(desk.isDisconnected());
    QVERIFY(desk.connectLink());
    QVERIFY(desk.showsReceived(u"OK POK S"_s));
    QVERIFY(desk.showsSent(sentBytes(stop)));

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({play, stop}));
}

void tst_Simulated::megabyte_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<Step>>("floods");
    QTest::addColumn<QList<Step>>("meanwhile");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("count");

    // Long lines: the time to show a text grows with their number.
    const QString subtitles
        = u"Get the list of subtitles: 0 eng, 1 fre, 2 ger, 3 spa; selected: off\n"_s;
    const Step request = click("pushButton_Request",
                               u"ID 0 | 80 04 41 | Request: Get the list of subtitles"_s, {});
    const Step list = choose("comboBox_Request", u"Get the list of subtitles"_s);
    QTest::newRow("serial") << u"Vistar Show - SV500 (Serial)"_s << QList<Step>{list, request}
                            << QList<Step>{
                                   choose("comboBox_ID", u"3"_s),
                                   click("pushButton_Stop",
                                         u"ID 3 | 83 02 02 | Stop (for another player, not "
                                         "obeyed)"_s,
                                         {}),
                               }
                            << subtitles << 1;
    QTest::newRow("TCP") << u"Vistar Show - SV500 (TCP/IP)"_s << QList<Step>{list, request}
                         << QList<Step>{request} << subtitles << 2;
    QTest::newRow("on demand")
        << u"Sonet A Lite (TCP/IP)"_s
        << QList<Step>{choose("comboBox_Source_Of_Playback",
                              u"PLAYLIST folder (Sequential + Reset)"_s),
                       click("pushButton_Launch_Playback",
                             u"no ID | 04 00 00 00 63 6D 64 00 31 31 00 31 00 30 00 | PLAYLIST "
                             "folder (Sequential + Reset) 1"_s,
                             {})}
        << QList<Step>{} << u"OK PLAYLIST folder (Sequential + Reset) 1\n"_s << 1;
}

void tst_Simulated::megabyte()
{
    QFETCH(const QString, model);
    QFETCH(const QList<Step>, floods);
    QFETCH(const QList<Step>, meanwhile);
    QFETCH(const QString, line);
    QFETCH(const int, count);
    Desk desk(model);
    QVERIFY(desk.start(u"megabyte"_s));
    QVERIFY(desk.connectLink());

    QStringList frames;
    for (const Step &step : floods + meanwhile) {
        QVERIFY(desk.take(step));
        if (step.frame.isEmpty())
            continue;
        frames.append(step.frame);
        QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines(frames), responseLimit);
    }

    // A megabyte on the link has one byte more for each line, and its last line is cut.
    constexpr qsizetype size = 1'048'576;
    const qsizetype lines = size / (line.size() + 1);
    const QString received = line.repeated(lines) + line.first(size % (line.size() + 1));
    QVERIFY(desk.showsReceived(received.repeated(count), floodLimit));
    QVERIFY(desk.showsSent(sentBytes(frames.last())));
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.console().click("pushButton_Clear"));
    QVERIFY(desk.console().looksAsExpected("textEdit_Data"));

    desk.expectSent(frames.last());
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines(frames));
}

void tst_Simulated::markup()
{
    QFETCH(const QString, model);
    QFETCH(const QString, play);
    QFETCH(const QString, stop);
    Desk desk(model);
    QVERIFY(desk.start(u"markup"_s));
    QVERIFY(desk.connectLink());

    // Shown as rich text, with a placeholder for each of the two pictures.
    QVERIFY(desk.plays(play));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play}), responseLimit);
    QVERIFY(desk.showsReceived(u"OK Play \uFFFC\uFFFCmore "_s));
    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play, stop}), responseLimit);
    QVERIFY(desk.showsReceived(u"OK Play \uFFFC\uFFFCmore OK Stop \uFFFC\uFFFCmore "_s));
    QVERIFY(desk.showsSent(sentBytes(stop)));
    QVERIFY(desk.saveScreenshot());

    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({play, stop}));
}

/// A picture that a device names may be anything on this computer: opening a pipe that nobody
/// writes to would never end.
void tst_Simulated::markupOpensNoFile()
{
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(u"pipe"_s));
    QCOMPARE(::mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    TcpPeer peer(65079);
    Desk desk(u"Vistar Show - SV500 (TCP/IP)"_s);
    QVERIFY(desk.startConsole());
    QVERIFY(desk.connectLink());
    QTRY_VERIFY(peer.isConnected());

    peer.send("<b>OK</b><img src=\"file://" + pipe + "\">");
    QVERIFY(desk.showsReceived(u"OK\uFFFC"_s));
    QVERIFY(desk.console().press({u"XF86AudioStop"_s}));
    QTRY_COMPARE_WITH_TIMEOUT(peer.received().toHex(' '), "80 02 02"_ba, responseLimit);
    QVERIFY(desk.quit());
}

/// A serial line opens whether or not the device listens; what was sent too early is lost.
void tst_Simulated::deafSerialLine()
{
    const QString play = u"ID 0 | 80 02 01 | Play"_s;
    const QString stop = u"ID 0 | 80 02 02 | Stop"_s;
    Desk desk(u"Vistar Show - SV500 (Serial)"_s);
    QVERIFY(desk.startConsole());
    QElapsedTimer sinceStart;
    QVERIFY(desk.startSimulator(u"refuse"_s));
    sinceStart.start();

    QVERIFY(desk.connectLink());
    QVERIFY(desk.plays(play));
    QVERIFY(desk.showsSent(sentBytes(play)));
    QCOMPARE_LT(sinceStart.elapsed(), outage);
    QTRY_VERIFY(sinceStart.hasExpired(outage + tolerance));
    QCOMPARE(desk.frames(), QStringList());

    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({stop}), responseLimit);
    QVERIFY(desk.showsReceived(u"OK Stop\n"_s));
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
}

void tst_Simulated::refusedConnection()
{
    const QString play = u"ID 0 | 80 02 01 | Play"_s;
    Desk desk(u"Vistar Show - SV500 (TCP/IP)"_s);
    QVERIFY(desk.startConsole());
    QVERIFY(desk.startSimulator(u"refuse"_s));

    // The refusal is silent, so that the window waits until the attempt's time is up.
    QElapsedTimer sinceClick;
    sinceClick.start();
    QVERIFY(desk.console().click("pushButton_Connect"));
    desk.console().expectConnecting();
    QVERIFY(desk.console().looksAsExpected());
    QVERIFY(desk.saveScreenshot());
    QVERIFY(desk.isDisconnected());
    QCOMPARE_GT(sinceClick.elapsed(), 9000);
    QCOMPARE_LT(sinceClick.elapsed(), 10'000 + responseLimit);

    QVERIFY(desk.connectLink());
    QVERIFY(desk.plays(play));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({play}), responseLimit);
    QVERIFY(desk.showsReceived(u"OK Play\n"_s));

    // The device is not reached again at once; the window can be closed meanwhile.
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.console().click("pushButton_Connect"));
    desk.console().expectConnecting();
    QVERIFY(desk.console().looksAsExpected());
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({play}));
}

/// What is sent to a device that refuses the connection is lost without a word.
void tst_Simulated::refusedCommand()
{
    const QString play
        = u"no ID | 04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00 | Play"_s;
    const QString stop
        = u"no ID | 04 00 00 00 63 6D 64 00 33 34 00 32 35 35 00 32 35 35 00 | Stop"_s;
    Desk desk(u"Sonet A Lite (TCP/IP)"_s);
    QVERIFY(desk.startConsole());
    QElapsedTimer sinceStart;
    QVERIFY(desk.startSimulator(u"refuse"_s));
    sinceStart.start();

    QVERIFY(desk.plays(play));
    QVERIFY(desk.showsSent(sentBytes(play)));
    QCOMPARE_LT(sinceStart.elapsed(), outage);
    QVERIFY(desk.saveScreenshot());
    QTRY_VERIFY(sinceStart.hasExpired(outage + tolerance));
    QCOMPARE(desk.frames(), QStringList());

    QVERIFY(desk.stops(stop));
    QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), desk.lines({stop}), responseLimit);
    QVERIFY(desk.showsReceived(u"OK Stop\n"_s));
    QVERIFY(desk.quit());
    QCOMPARE(desk.frames(), desk.lines({stop}));
}

TESSALY_PROGRAM_TEST(tst_Simulated)
#include "tst_simulated.moc"
