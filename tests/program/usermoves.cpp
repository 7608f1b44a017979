// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/program/usermoves.h"

#include "tests/support/commandcontrols.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 folder = 1;
constexpr quint32 volume = 9;
constexpr quint32 changeId = 11;
constexpr quint32 outputContacts = 22;

/// As xdotool names what QKeySequence writes.
QString keyName(const QString &shortcut)
{
    static const QHash<QString, QString> names{
        {u"Ctrl++"_s, u"ctrl+plus"_s},
        {u"Ctrl+-"_s, u"ctrl+minus"_s},
        {u"Media Play"_s, u"XF86AudioPlay"_s},
        {u"Media Stop"_s, u"XF86AudioStop"_s},
        {u"Media Pause"_s, u"XF86AudioPause"_s},
        {u"Media Next"_s, u"XF86AudioNext"_s},
        {u"Media Previous"_s, u"XF86AudioPrev"_s},
        {u"Ctrl+Media Next"_s, u"ctrl+XF86AudioNext"_s},
        {u"Ctrl+Media Previous"_s, u"ctrl+XF86AudioPrev"_s},
        {u"Volume Mute"_s, u"XF86AudioMute"_s},
    };
    return names.value(shortcut, shortcut.toLower());
}

QString padded(const QString &number)
{
    return number.rightJustified(3, u'0');
}

/// What is chosen besides the command's label, or instead of it.
QList<UserMove::Choice> valueChoices(const SheetFrame &frame)
{
    const QString number = frame.value.section(u", option "_s, 0, 0);
    switch (frame.command.id) {
    case folder:
        return {{"comboBox_Folder", padded(number)}};
    case changeId:
        return {{"comboBox_Change_ID", number}};
    case 23:
        return {{"comboBox_Ref_Of_Playback", padded(number)}};
    case 24:
        return {{"comboBox_Ref_Of_Playback", padded(number)},
                {"comboBox_Option_Of_Playback", padded(frame.value.section(u", option "_s, 1, 1))}};
    case 25:
        return {{"comboBox_Webradio_Ref_Of_Playback", padded(number)}};
    case 39:
        return {{"comboBox_Subtitles_Type", u"ISO639-2 (B)"_s},
                {"comboBox_Subtitles_Value", frame.value}};
    case 40:
        return {{"comboBox_Subtitles_Type", frame.command.label},
                {"comboBox_Subtitles_Value", frame.value}};
    default:
        return {};
    }
}

bool isOffered(const ModelSheet &sheet, const SheetFrame &frame)
{
    // The output contacts are check boxes, which are neither lists nor keys.
    return !frame.carriesTime() && frame.command.id != outputContacts
           && !(frame.command.id == changeId && sheet.isTcp);
}

} // namespace

QList<UserMove> plainMoves(const ModelSheet &sheet)
{
    QList<UserMove> moves;
    QList<UserMove> volumeMoves;
    for (const SheetFrame &frame : framesOf(sheet)) {
        if (!isOffered(sheet, frame))
            continue;
        const CommandControl &control = controlOf(frame.command.id);
        if (frame.command.id == volume) {
            const bool isLowest = frame.value == frame.command.lowest;
            volumeMoves.append(
                {frame, {}, isLowest ? u"pushButton_Volume_Less"_s : u"pushButton_Volume_More"_s});
        } else if (frame.command.id == folder && frame.value == "0"_L1) {
            moves.append({frame, {}, keyName(control.shortcuts.constFirst())});
        } else if (control.listHolds == CommandControl::List::None) {
            moves.append({frame, {}, QString::fromLatin1(control.button)});
            for (const QString &shortcut : control.shortcuts)
                moves.append({frame, {}, keyName(shortcut)});
        }
    }
    return moves + volumeMoves;
}

QList<UserMove> choosingMoves(const ModelSheet &sheet)
{
    QList<UserMove> moves;
    for (const SheetFrame &frame : framesOf(sheet)) {
        const CommandControl &control = controlOf(frame.command.id);
        if (control.listHolds == CommandControl::List::None || !isOffered(sheet, frame))
            continue;
        QList<UserMove::Choice> choices;
        if (control.listHolds == CommandControl::List::Labels)
            choices.append({control.list, frame.command.label});
        choices += valueChoices(frame);
        moves.append({frame, choices, QString::fromLatin1(control.button)});
    }
    return moves;
}
