// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/commandcontrols.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using List = CommandControl::List;

CommandControl playback(quint32 id, const QByteArray &button, const QString &shortcut)
{
    return {{id},   {"frame_Playback_Command", "line_Playback_Command", button},
            {},     List::None,
            button, {shortcut}};
}

CommandControl subtitles(quint32 id, const QByteArray &button)
{
    return {{id}, {"frame_Content_Subtitles", "line_Subtitles", button}, {}, List::None, button,
            {}};
}

QList<CommandControl> makeControls()
{
    QStringList folderShortcuts;
    for (int folder = 0; folder <= 9; ++folder)
        folderShortcuts.append(u"Ctrl+%1"_s.arg(folder));
    return {
        {{1},
         {"frame_Folder", "line_ID_and_Folder"},
         "comboBox_Folder",
         List::Values,
         "pushButton_Folder",
         folderShortcuts},
        playback(2, "pushButton_Previous_Folder", u"Ctrl+Media Previous"_s),
        playback(3, "pushButton_Previous_File", u"Media Previous"_s),
        playback(4, "pushButton_Play", u"Media Play"_s),
        playback(5, "pushButton_Stop", u"Media Stop"_s),
        playback(6, "pushButton_Pause", u"Media Pause"_s),
        playback(7, "pushButton_Next_File", u"Media Next"_s),
        playback(8, "pushButton_Next_Folder", u"Ctrl+Media Next"_s),
        {{9},
         {"frame_Volume", "pushButton_Volume_Less", "pushButton_Volume_More", "line_Volume"},
         {},
         List::None,
         {},
         {u"Ctrl++"_s, u"Ctrl+-"_s}},
        {{10},
         {"frame_Request", "line_Request"},
         "comboBox_Request",
         List::Labels,
         "pushButton_Request",
         {}},
        // Of a model with a serial line.
        {{11},
         {"frame_Change_ID", "line_after_Change_ID"},
         "comboBox_Change_ID",
         List::Values,
         "pushButton_Change_ID",
         {}},
        {{12},
         {"frame_Standby_Wakeup", "line_after_Change_Before_Standby", "line_Playback_Command"},
         {},
         List::None,
         "pushButton_Standby_Wakeup",
         {}},
        {{13, 14, 15, 16, 17, 18, 20, 21, 27, 28, 29, 30, 31, 32, 41, 42, 43, 44, 45, 99},
         {"frame_Other_Command", "line_Other_Command"},
         "comboBox_Other_Command",
         List::Labels,
         "pushButton_Other_Command",
         {}},
        {{19},
         {"frame_Volume", "line_Volume", "pushButton_Volume_Mute_Unmute",
          "line_before_Mute_Unmute"},
         {},
         List::None,
         "pushButton_Volume_Mute_Unmute",
         {u"Volume Mute"_s}},
        {{22},
         {"frame_Relay_Command", "line_Relay"},
         {},
         List::None,
         "pushButton_Relay_Command",
         {}},
        {{23, 24, 25, 26},
         {"frame_Content_Playback", "line_Content_Playback"},
         "comboBox_Source_Of_Playback",
         List::Labels,
         "pushButton_Launch_Playback",
         {}},
        subtitles(33, "pushButton_Subtitles_Off"),
        subtitles(34, "pushButton_Subtitles_On"),
        subtitles(35, "pushButton_Subtitles_Previous"),
        subtitles(36, "pushButton_Subtitles_Next"),
        subtitles(37, "pushButton_Subtitles_Previous_Loop"),
        subtitles(38, "pushButton_Subtitles_Next_Loop"),
        {{39, 40},
         {"frame_Content_Subtitles", "line_Subtitles", "frame_Subtitles_Value",
          "frame_Subtitles_Type", "pushButton_Subtitles_Select"},
         "comboBox_Subtitles_Value",
         List::Values,
         "pushButton_Subtitles_Select",
         {}},
    };
}

} // namespace

const QList<CommandControl> &commandControls()
{
    static const QList<CommandControl> controls = makeControls();
    return controls;
}

const CommandControl &controlOf(quint32 id)
{
    const auto found = std::ranges::find_if(commandControls(), [id](const CommandControl &control) {
        return control.ids.contains(id);
    });
    if (found == commandControls().cend())
        qFatal("no control of the window has the id %u", id);
    return *found;
}
