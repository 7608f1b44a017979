// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "modelpanel.h"

#include "goldenlines.h"
#include "tests/support/commandcontrols.h"
#include "tests/support/consolewindow.h"
#include "windowstate.h"

#include <QComboBox>
#include <QSlider>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Id : quint32 {
    Folder = 1,
    Volume = 9,
    ChangeId = 11,
    SourceFolder = 23,
    SourceSpotReset = 24,
    SourceWebradio = 25,
    SubtitlesByLanguage = 39,
    SubtitlesByIndex = 40,
};

QStringList run(int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number)
        texts.append(QString::number(number));
    return texts;
}

/// The second number of "1, option 255".
int optionNumber(const QString &value)
{
    return value.section("option "_L1, 1).toInt();
}

/// The window offers a change of the ID where the bus can have several players.
bool isOffered(const SheetCommand &command, const ModelSheet &sheet)
{
    return command.id != ChangeId
           || (!sheet.isTcp && command.lowestNumber() < command.highestNumber());
}

QSet<QString> shownWidgets(const ModelSheet &sheet)
{
    QStringList shown;
    if (!sheet.connectsOnDemand())
        shown += u"checkBox_Auto_connection"_s;
    if (sheet.isTcp)
        shown += u"frame_IP"_s;
    else
        shown += {u"frame_Port"_s, u"frame_Baudrate"_s};
    if (sheet.hasPlayerIds())
        shown += {u"frame_ID"_s, u"line_after_ID"_s, u"line_ID_and_Folder"_s};
    bool hasSource = false;
    for (const SheetCommand &command : sheet.commands) {
        if (!isOffered(command, sheet))
            continue;
        const CommandControl &control = controlOf(command.id);
        for (const QByteArray &panel : control.panels)
            shown += QString::fromLatin1(panel);
        // The first source is the current one.
        if (control.list == "comboBox_Source_Of_Playback" && !hasSource) {
            shown += sourcePanels(command.id);
            hasSource = true;
        }
    }
    return {shown.begin(), shown.end()};
}

void addRows(const SheetCommand &command, ModelPanel &panel)
{
    const CommandControl &control = controlOf(command.id);
    if (control.listHolds == CommandControl::List::Labels)
        panel.rows[control.list] += command.label;

    QStringList &types = panel.rows["comboBox_Subtitles_Type"];
    switch (command.id) {
    case Folder:
        panel.rows["comboBox_Folder"] = paddedRun(command.lowestNumber(), command.highestNumber());
        break;
    case Volume:
        panel.volume = u"%1..%2 at %2"_s.arg(command.lowestNumber()).arg(command.highestNumber());
        break;
    case ChangeId:
        panel.rows["comboBox_Change_ID"] = run(command.lowestNumber(), command.highestNumber());
        break;
    case SubtitlesByLanguage:
        types += {u"ISO639-2 (B)"_s, u"ISO639-2 (T)"_s, u"ISO639-3"_s};
        panel.rows["comboBox_Subtitles_Value"]
            = types.constFirst() == "Index"_L1 ? run(0, 127) : goldenCodes(u"iso639_2b.txt"_s);
        break;
    case SubtitlesByIndex:
        // The window fills the values when the user activates the type.
        types += u"Index"_s;
        break;
    default:
        break;
    }
}

} // namespace

QStringList ModelPanel::lines() const
{
    QStringList lines{"model: "_L1 + model};
    QStringList names(hidden.begin(), hidden.end());
    names.sort();
    for (const QString &name : std::as_const(names))
        lines.append("hidden: "_L1 + name);
    for (const QByteArray &list : modelLists()) {
        lines.append(u"%1, current row %2"_s.arg(QLatin1StringView(list)).arg(current.value(list)));
        for (const QString &row : rows.value(list))
            lines.append(QLatin1StringView(list) + ": "_L1 + row);
    }
    return lines << "volume: "_L1 + volume << "port: "_L1 + port << "note: "_L1 + note;
}

ModelPanel shownPanel(const ConsoleWindow &console)
{
    ModelPanel panel;
    panel.model = console.find<QComboBox>("comboBox_Player")->currentText();
    for (const QWidget *widget : namedWidgets(console.window)) {
        if (widget->isHidden() && !widget->isWindow())
            panel.hidden.insert(widget->objectName());
    }
    for (const QByteArray &list : modelLists()) {
        panel.rows[list] = rowsOf(console.window, list.constData());
        panel.current[list] = console.find<QComboBox>(list.constData())->currentIndex();
    }
    panel.volume = sliderState(console);
    panel.port = console.text("label_IP_Port");
    panel.note = console.text("label_Comments");
    return panel;
}

ModelPanel expectedPanel(const ModelSheet &sheet, const QString &volume, const QString &port)
{
    ModelPanel panel;
    panel.model = sheet.name;
    panel.hidden = modelWidgets() - shownWidgets(sheet);
    panel.hidden.insert(u"label_Connection_Message"_s);
    for (const qint32 rate : sheet.baudRates)
        panel.rows["comboBox_Baudrate"] += QString::number(rate);
    panel.rows["comboBox_ID"] = run(sheet.lowestPlayerId, sheet.highestPlayerId);
    panel.volume = volume;
    for (const SheetCommand &command : sheet.commands) {
        if (isOffered(command, sheet))
            addRows(command, panel);
    }
    const auto source = std::ranges::find_if(sheet.commands, [](const SheetCommand &command) {
        return controlOf(command.id).list == "comboBox_Source_Of_Playback";
    });
    if (source != sheet.commands.cend()) {
        const SourceLists lists = sourceLists(*source);
        panel.rows["comboBox_Ref_Of_Playback"] = lists.references;
        panel.rows["comboBox_Option_Of_Playback"] = lists.options;
        panel.rows["comboBox_Webradio_Ref_Of_Playback"] = lists.radios;
    }
    for (const QByteArray &list : modelLists())
        panel.current[list] = panel.rows.value(list).isEmpty() ? -1 : 0;
    if (!sheet.isTcp) {
        panel.current["comboBox_Baudrate"]
            = static_cast<int>(sheet.baudRates.indexOf(sheet.defaultBaudRate));
    }
    panel.port = sheet.isTcp ? u"( Port number: %1 )"_s.arg(sheet.tcpPort) : port;
    panel.note = firmwareNote(sheet.firmware);
    return panel;
}

QStringList kindsOfSources(const ModelSheet &sheet)
{
    QSet<quint32> ids;
    QStringList labels;
    for (const SheetCommand &command : sheet.commands) {
        if (controlOf(command.id).list != "comboBox_Source_Of_Playback"
            || ids.contains(command.id)) {
            continue;
        }
        ids.insert(command.id);
        labels.append(command.label);
    }
    return labels;
}

SourceLists sourceLists(const SheetCommand &source)
{
    const QStringList numbers = paddedRun(source.lowestNumber(), source.highestNumber());
    switch (source.id) {
    case SourceFolder:
        return {numbers, {}, {}};
    case SourceSpotReset:
        return {numbers, paddedRun(optionNumber(source.lowest), optionNumber(source.highest)), {}};
    case SourceWebradio:
        return {{}, {}, numbers};
    default:
        return {};
    }
}

QStringList sourcePanels(quint32 id)
{
    switch (id) {
    case SourceFolder:
        return {u"frame_Ref_Of_Playback"_s};
    case SourceSpotReset:
        return {u"frame_Ref_Of_Playback"_s, u"frame_Option_Of_Playback"_s};
    case SourceWebradio:
        return {u"frame_Webradio_Ref_Of_Playback"_s};
    default:
        return {};
    }
}

const QSet<QString> &modelWidgets()
{
    static const QSet<QString> widgets = [] {
        QSet<QString> names{u"checkBox_Auto_connection"_s,
                            u"frame_Port"_s,
                            u"frame_Baudrate"_s,
                            u"frame_IP"_s,
                            u"frame_ID"_s,
                            u"line_after_ID"_s,
                            u"line_ID_and_Folder"_s,
                            u"frame_Ref_Of_Playback"_s,
                            u"frame_Option_Of_Playback"_s,
                            u"frame_Webradio_Ref_Of_Playback"_s};
        for (const CommandControl &control : commandControls()) {
            for (const QByteArray &panel : control.panels)
                names.insert(QString::fromLatin1(panel));
        }
        return names;
    }();
    return widgets;
}

const QByteArrayList &modelLists()
{
    static const QByteArrayList names{"comboBox_Baudrate",
                                      "comboBox_ID",
                                      "comboBox_Change_ID",
                                      "comboBox_Folder",
                                      "comboBox_Request",
                                      "comboBox_Other_Command",
                                      "comboBox_Source_Of_Playback",
                                      "comboBox_Ref_Of_Playback",
                                      "comboBox_Option_Of_Playback",
                                      "comboBox_Webradio_Ref_Of_Playback",
                                      "comboBox_Subtitles_Type",
                                      "comboBox_Subtitles_Value"};
    return names;
}

QStringList paddedRun(int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number)
        texts.append(u"%1"_s.arg(number, 3, 10, QChar(u'0')));
    return texts;
}

QString firmwareNote(const QString &firmware)
{
    if (firmware.isEmpty())
        return {};
    return u"All commands present in this model can be executed for devices with firmware %1 or "
           "higher. If the device embed a lower firmware version, some commands may not be "
           "executed. Refer to the release notes of this application for more information."_s.arg(
               firmware);
}

QString sliderState(const ConsoleWindow &console)
{
    const auto *slider = console.find<QSlider>("horizontalSlider_Volume");
    return u"%1..%2 at %3"_s.arg(slider->minimum()).arg(slider->maximum()).arg(slider->value());
}
