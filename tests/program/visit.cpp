// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consoleprogram.h"
#include "tests/support/programtestmain.h"
#include "tests/support/simulatorprogram.h"

#include <QApplication>
#include <QLabel>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

void say(const QString &line)
{
    QTextStream(stdout) << line << '\n';
}

/// A walk through several models with real clicks and keys. Every step waits for its effect.
class Visit
{
public:
    Visit(SimulatorProgram &simulator, ConsoleProgram &console)
        : m_simulator(simulator)
        , m_console(console)
    {
    }

    bool videoPlayerOnSerialLine();
    bool videoPlayerInNetwork();
    bool audioPlayerWithSources();
    bool audioPlayerOnDemand();
    bool amplifier();

private:
    bool connectSerial(const QString &model);
    bool disconnect(const QString &lastBytes);
    bool understands(const QStringList &meanings);
    bool shows(const QString &answer);
    bool photograph(const QString &name);

    SimulatorProgram &m_simulator;
    ConsoleProgram &m_console;
    QString m_model;
};

bool Visit::connectSerial(const QString &model)
{
    m_model = model;
    const bool isChosen = m_console.choose("comboBox_Player", model)
                          && m_console.choose("comboBox_Port", m_simulator.endpoint(model))
                          && m_console.click("pushButton_Connect");
    m_console.expectLink(true);
    return isChosen && m_console.looksAsExpected();
}

bool Visit::disconnect(const QString &lastBytes)
{
    const bool isPressed = m_console.click("pushButton_Disconnect");
    m_console.expectLink(false);
    m_console.twin<QLabel>("label_Bytes_Sended")->setText(lastBytes);
    return isPressed && m_console.looksAsExpected();
}

/// Waits until the simulator has understood these commands of the model, and no others.
bool Visit::understands(const QStringList &meanings)
{
    QStringList understood;
    const bool isRight = QTest::qWaitFor([&] {
        understood.clear();
        for (const QString &frame : m_simulator.frames())
            understood.append(frame.section(u'|', 3).trimmed());
        return understood == meanings;
    });
    for (const QString &frame : m_simulator.frames())
        say("  "_L1 + frame);
    if (!isRight)
        say("  That should have been: "_L1 + meanings.join(u", "_s));
    m_simulator.forgetFrames();
    return isRight;
}

bool Visit::shows(const QString &answer)
{
    if (!m_console.click("textEdit_Data") || !m_console.copies(answer))
        return false;
    say("  answer: "_L1 + answer.trimmed().replace(u'\n', u", "_s));
    return m_console.click("pushButton_Clear");
}

bool Visit::photograph(const QString &name)
{
    return m_console.looksAsExpected() && m_console.saveScreenshot(name);
}

bool Visit::videoPlayerOnSerialLine()
{
    if (!connectSerial(u"Vistar Show - SV500 (Serial)"_s) || !m_console.click("pushButton_Play")
        || !understands({u"Play"_s}) || !shows(u"OK Play\n"_s)
        || !m_console.press({u"ctrl+5"_s, u"ctrl+minus"_s})
        || !understands({u"Folder 5"_s, u"Volume 99"_s})) {
        return false;
    }
    m_console.twin<QLabel>("label_Volume_2")->setText(u"99"_s);
    return shows(u"OK Folder 5\nOK Volume 99\n"_s)
           && m_console.choose("comboBox_Request", u"Volume"_s)
           && m_console.click("pushButton_Request") && understands({u"Request: Volume"_s})
           && photograph(u"video-player-serial"_s) && shows(u"Volume: 99\n"_s)
           && disconnect(u"80 04 0B"_s);
}

bool Visit::videoPlayerInNetwork()
{
    m_model = u"Vistar Home - HV4xx (TCP/IP)"_s;
    const QString address = m_simulator.endpoint(m_model).section(u' ', 0, 0);
    if (!m_console.choose("comboBox_Player", m_model) || !m_console.typeAddress(address)
        || !m_console.click("pushButton_Connect")) {
        return false;
    }
    m_console.expectLink(true);
    return m_console.click("pushButton_Standby_Wakeup") && understands({u"Standby/Wakeup"_s})
           && shows(u"OK Standby/Wakeup\n"_s)
           && m_console.choose("comboBox_Subtitles_Value", u"fre"_s)
           && m_console.click("pushButton_Subtitles_Select")
           && understands({u"Subtitles fre (ISO639-2 (B))"_s})
           && photograph(u"video-player-network"_s)
           && shows(u"ERROR standby: Subtitles fre (ISO639-2 (B))\n"_s)
           && disconnect(u"80 1D 66 72 65"_s);
}

bool Visit::audioPlayerWithSources()
{
    return connectSerial(u"Sonet A (Serial)"_s)
           && m_console.choose("comboBox_Source_Of_Playback", u"PLAYLIST folder (Random)"_s)
           && m_console.choose("comboBox_Ref_Of_Playback", u"012"_s)
           && m_console.click("pushButton_Launch_Playback")
           && understands({u"PLAYLIST folder (Random) 12"_s})
           && photograph(u"audio-player-sources"_s) && shows(u"OK PLAYLIST folder (Random) 12\n"_s)
           && disconnect(u"08 00 0C FF"_s);
}

bool Visit::audioPlayerOnDemand()
{
    m_model = u"Sonet A Lite (TCP/IP)"_s;
    const QString address = m_simulator.endpoint(m_model).section(u' ', 0, 0);
    if (!m_console.choose("comboBox_Player", m_model) || !m_console.typeAddress(address)
        || !m_console.press({u"XF86AudioPlay"_s}) || !understands({u"Play"_s})) {
        return false;
    }
    // The only bytes of the visit that take more than one line, and so move what is below them.
    m_console.twin<QLabel>("label_Bytes_Sended")
        ->setText(u"04 00 00 00 63 6D 64 00 33 32 00 32 35 35 00 32 35 35 00"_s);
    return photograph(u"audio-player-on-demand"_s) && shows(u"OK Play\n"_s);
}

bool Visit::amplifier()
{
    return connectSerial(u"Ampra One"_s) && m_console.click("pushButton_Request")
           && understands({u"Request: Information"_s}) && photograph(u"amplifier"_s)
           && shows(u"Information: simulated Ampra One, ID 0, volume 56\n"_s)
           && disconnect(u"80 04 40"_s);
}

/// \return whether all went as planned
bool play(const QString &linkFolder)
{
    SimulatorProgram simulator;
    if (!simulator.start({u"--all"_s, u"--link"_s, linkFolder, u"--address"_s,
                          SimulatorProgram::firstAddress().toString()})) {
        say("The simulator does not start: "_L1 + QString::fromUtf8(simulator.errorOutput()));
        return false;
    }
    ConsoleProgram console(simulator.serialPorts().join(u':'));
    if (!console.start())
        return false;

    Visit visit(simulator, console);
    const struct
    {
        QString title;
        bool (Visit::*walk)();
    } stops[] = {
        {u"A video player on a serial line"_s, &Visit::videoPlayerOnSerialLine},
        {u"A video player in the network"_s, &Visit::videoPlayerInNetwork},
        {u"An audio player with sources"_s, &Visit::audioPlayerWithSources},
        {u"The amplifier"_s, &Visit::amplifier},
        {u"An audio player that is connected for each command"_s, &Visit::audioPlayerOnDemand},
    };
    for (const auto &[title, walk] : stops) {
        say(title);
        if (!(visit.*walk)())
            return false;
    }
    return console.press({u"ctrl+q"_s}) && console.endsWell() && simulator.stop()
           && simulator.exitCode() == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    VirtualScreen screen;
    if (!prepareProgramTest(screen))
        return EXIT_FAILURE;
    const QTemporaryDir folder;
    // What Qt would remark on otherwise is no part of the story that is told here.
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("QT_LOGGING_RULES", "qt.core.qobject.connect=false");
    const QApplication application(argc, argv);
    const bool isAsPlanned = play(folder.filePath(u"ports"_s));
    say(isAsPlanned ? u"All went as planned."_s : u"This did not go as planned."_s);
    return isAsPlanned ? EXIT_SUCCESS : EXIT_FAILURE;
}
