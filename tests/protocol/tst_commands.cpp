// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "catalogue/commandid.h"
#include "tests/protocol/linkedwindow.h"
#include "tests/support/commandcontrols.h"
#include "tests/support/hexbytes.h"
#include "tests/support/sheetrows.h"
#include "tests/support/sheetvalues.h"
#include "tests/support/testmain.h"

#include <QCheckBox>
#include <QSlider>

#include <algorithm>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

// What a frame family does with other values than the sheets hold is in the files beside this one.

namespace {

constexpr const char *typeList = "comboBox_Subtitles_Type";
constexpr const char *valueList = "comboBox_Subtitles_Value";
const QStringList languageTypes{u"ISO639-2 (B)"_s, u"ISO639-2 (T)"_s, u"ISO639-3"_s};
const QString indexType = u"Index"_s;

/// A number as most lists show it.
QString padded(int number)
{
    return QString::number(number).rightJustified(3, u'0');
}

QByteArray slotOf(const QByteArray &button)
{
    return "on_" + button + "_clicked";
}

QByteArrayList buttonsOf(const CommandControl &control)
{
    if (!control.button.isEmpty())
        return {control.button};
    return {"pushButton_Volume_Less", "pushButton_Volume_More"};
}

/// Operates the window at a model, and collects where it does otherwise than the sheet.
class Operator
{
public:
    explicit Operator(const ModelSheet &sheet)
        : m_sheet(sheet)
        , m_window(sheet.name)
    {
    }

    void choosePlayer(int playerId);
    /// All that sends the command, with its lowest and its highest value.
    void send(const SheetCommand &command);
    /// All that would send a command which the model lacks.
    void sendNothing(const CommandControl &control);

    QStringList differences;

private:
    void sendFolders(const SheetCommand &command, const CommandControl &control);
    void sendVolumes(const SheetCommand &command, const CommandControl &control);
    void sendPlayerIds(const SheetCommand &command, const CommandControl &control);
    void sendContacts(const SheetCommand &command, const CommandControl &control);
    void sendSources(const SheetCommand &command, const CommandControl &control);
    void sendSubtitles(const SheetCommand &command, const CommandControl &control);
    void chooseEnd(const QByteArray &list, bool isHighest, int number);

    void choose(const QByteArray &list, const QString &text);
    void press(const QByteArray &button, const QByteArray &frame);
    void type(const QString &shortcut, const QByteArray &frame);
    void moveSlider(int volume, const QByteArray &frame);
    void compareVolume(int volume);
    void compare(const QString &control, const Sent &sent, const QByteArray &frame);
    void compareNothing(const QString &control, const std::function<Sent()> &act);
    void report(const QString &what);

    const ModelSheet &m_sheet;
    LinkedWindow m_window;
    int m_playerId = 0;
    QString m_command; ///< the one that is sent, with its value
};

void Operator::choosePlayer(int playerId)
{
    m_playerId = playerId;
    m_command.clear();
    if (!m_window.choosePlayer(playerId))
        report(u"not in the list"_s);
}

void Operator::send(const SheetCommand &command)
{
    const CommandControl &control = controlOf(command.id);
    m_command = command.meaning(command.lowest);
    switch (command.id) {
    case CommandId::Folder:
        return sendFolders(command, control);
    case CommandId::Volume:
        return sendVolumes(command, control);
    case CommandId::ChangeId:
        return sendPlayerIds(command, control);
    case CommandId::Relay:
        return sendContacts(command, control);
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate:
        return sendSources(command, control);
    case CommandId::SubtitlesByLanguage:
    case CommandId::SubtitlesByIndex:
        return sendSubtitles(command, control);
    case CommandId::SetTime:
    case CommandId::SetDate:
    case CommandId::SetDateTime:
    case CommandId::SetUtcEpoch:
    case CommandId::SetUtcFull:
        currentMoment = [&command] { return momentOf(command.lowest); };
        break;
    default:
        break;
    }
    if (!control.list.isEmpty())
        choose(control.list, command.label);
    press(control.button, command.frame);
    for (const QString &shortcut : control.shortcuts)
        type(shortcut, command.frame);
}

void Operator::sendFolders(const SheetCommand &command, const CommandControl &control)
{
    choose(control.list, padded(command.lowestNumber()));
    press(control.button, command.frame);
    choose(control.list, padded(command.highestNumber()));
    press(control.button, command.highestFrame);
    for (int folder = 0; folder < control.shortcuts.size(); ++folder) {
        QByteArray frame = command.frame;
        frame[m_sheet.isExtended ? 1 : 2] = static_cast<char>(folder);
        type(control.shortcuts.at(folder), frame);
    }
}

/// The slider stands at its highest value, as after the choice of the model.
void Operator::sendVolumes(const SheetCommand &command, const CommandControl &control)
{
    const QByteArrayList buttons = buttonsOf(control);
    press(buttons.first(), command.frame);
    compareVolume(command.lowestNumber());
    press(buttons.last(), command.highestFrame);
    compareVolume(command.highestNumber());
    moveSlider(command.lowestNumber(), command.frame);
    // A step upwards and back again; what is sent in between is not in the sheet.
    m_window.type(control.shortcuts.first());
    compareVolume(command.lowestNumber() + 1);
    type(control.shortcuts.last(), command.frame);
    moveSlider(command.highestNumber(), command.highestFrame);
    m_window.type(control.shortcuts.last());
    compareVolume(command.highestNumber() - 1);
    type(control.shortcuts.first(), command.highestFrame);
    compareVolume(command.highestNumber());
}

void Operator::sendPlayerIds(const SheetCommand &command, const CommandControl &control)
{
    const std::pair<int, QByteArray> ends[] = {{command.lowestNumber(), command.frame},
                                               {command.highestNumber(), command.highestFrame}};
    for (const auto &[playerId, frame] : ends) {
        m_command = command.meaning(QString::number(playerId));
        if (!m_sheet.isTcp) {
            choose(control.list, QString::number(playerId));
            press(control.button, frame);
            continue;
        }
        // Not shown for a model in the network, which has the bytes for it all the same.
        if (m_window.find<QWidget>(control.button.constData())->isVisible())
            report(u"is shown"_s);
        m_window.setListText(control.list.constData(), QString::number(playerId));
        const QByteArray slot = slotOf(control.button);
        compare(QString::fromLatin1(slot), m_window.call(slot.constData()), frame);
    }
}

void Operator::sendContacts(const SheetCommand &command, const CommandControl &control)
{
    const std::pair<QString, QByteArray> ends[]
        = {{command.lowest, command.frame}, {command.highest, command.highestFrame}};
    for (const auto &[value, frame] : ends) {
        m_command = command.meaning(value);
        const QList<int> closed = contactsOf(value);
        for (int contact = 1; contact <= 8; ++contact) {
            auto *box = m_window.find<QCheckBox>("checkBox_Relay_" + QByteArray::number(contact));
            if (!box->isVisible() || !box->isEnabled())
                report(u"%1 cannot be clicked"_s.arg(box->objectName()));
            if (box->isChecked() != closed.contains(contact))
                box->click();
        }
        press(control.button, frame);
    }
}

void Operator::sendSources(const SheetCommand &command, const CommandControl &control)
{
    QList<std::pair<QString, QByteArray>> ends{{command.lowest, command.frame}};
    if (command.hasRange())
        ends.append({command.highest, command.highestFrame});
    choose(control.list, command.label);
    for (const auto &[value, frame] : std::as_const(ends)) {
        m_command = command.meaning(value);
        const bool isHighest = value == command.highest && command.hasRange();
        const int number = value.section(u',', 0, 0).toInt();
        if (command.id == CommandId::SourceFolder || command.id == CommandId::SourceSpotReset)
            chooseEnd("comboBox_Ref_Of_Playback", isHighest, number);
        if (command.id == CommandId::SourceSpotReset)
            chooseEnd("comboBox_Option_Of_Playback", isHighest, optionOf(value));
        if (command.id == CommandId::SourceWebradio)
            chooseEnd("comboBox_Webradio_Ref_Of_Playback", isHighest, number);
        press(control.button, frame);
    }
}

void Operator::chooseEnd(const QByteArray &list, bool isHighest, int number)
{
    auto *box = m_window.find<QComboBox>(list.constData());
    box->setCurrentIndex(isHighest ? box->count() - 1 : 0);
    if (!box->isVisible() || box->currentText() != padded(number))
        report(u"%1 offers \"%2\""_s.arg(box->objectName(), box->currentText()));
}

void Operator::sendSubtitles(const SheetCommand &command, const CommandControl &control)
{
    const bool isIndex = command.id == CommandId::SubtitlesByIndex;
    for (const QString &subtitleType : isIndex ? QStringList{indexType} : languageTypes) {
        choose(typeList, subtitleType);
        choose(valueList, command.lowest);
        press(control.button, command.frame);
        choose(valueList, command.highest);
        press(control.button, command.highestFrame);
    }
}

void Operator::sendNothing(const CommandControl &control)
{
    m_command = u"no such command"_s;
    const QString volume = m_window.text("label_Volume_2");
    for (const QByteArray &button : buttonsOf(control)) {
        if (m_window.find<QWidget>(button.constData())->isVisible())
            report(QString::fromLatin1(button) + " is shown"_L1);
        const QByteArray slot = slotOf(button);
        compareNothing(QString::fromLatin1(slot), [&] { return m_window.call(slot.constData()); });
    }
    for (const QString &shortcut : control.shortcuts)
        compareNothing(shortcut, [&] { return m_window.type(shortcut); });

    if (control.ids.contains(CommandId::Volume)) {
        auto *slider = m_window.find<QSlider>("horizontalSlider_Volume");
        const int other
            = slider->value() > slider->minimum() ? slider->minimum() : slider->maximum();
        compareNothing(slider->objectName(),
                       [&] { return m_window.sentBy([&] { slider->setValue(other); }); });
    }
    // Nor where the lists hold something that such a command would send.
    if (control.ids.contains(CommandId::SubtitlesByIndex)) {
        for (const QString &subtitleType : languageTypes + QStringList{indexType}) {
            m_window.setListText(typeList, subtitleType);
            m_window.setListText(valueList, u"1"_s);
            const QByteArray slot = slotOf(control.button);
            compareNothing(subtitleType, [&] { return m_window.call(slot.constData()); });
        }
    }
    if (m_window.text("label_Volume_2") != volume)
        report("the volume shown becomes "_L1 + m_window.text("label_Volume_2"));
}

void Operator::choose(const QByteArray &list, const QString &text)
{
    if (!m_window.choose(list.constData(), text))
        report(u"%1 has no %2"_s.arg(QString::fromLatin1(list), text));
}

void Operator::press(const QByteArray &button, const QByteArray &frame)
{
    compare(QString::fromLatin1(button), m_window.press(button.constData()), frame);
}

void Operator::type(const QString &shortcut, const QByteArray &frame)
{
    compare(shortcut, m_window.type(shortcut), frame);
}

void Operator::moveSlider(int volume, const QByteArray &frame)
{
    auto *slider = m_window.find<QSlider>("horizontalSlider_Volume");
    if (!slider->isVisible() || !slider->isEnabled())
        report(u"the slider cannot be moved"_s);
    compare(slider->objectName(), m_window.sentBy([&] { slider->setValue(volume); }), frame);
    compareVolume(volume);
}

void Operator::compareVolume(int volume)
{
    if (m_window.text("label_Volume_2") != QString::number(volume)) {
        report(
            u"the volume shown is %1, not %2"_s.arg(m_window.text("label_Volume_2")).arg(volume));
    }
}

void Operator::compare(const QString &control, const Sent &sent, const QByteArray &frame)
{
    const QByteArray expected = hexBytes(m_sheet.addressed(frame, m_playerId));
    if (sent.bytes != expected) {
        report(u"%1 sends \"%2\", not \"%3\""_s.arg(control, QLatin1String(sent.bytes),
                                                    QLatin1String(expected)));
    } else if (sent.shown != QLatin1String(expected)) {
        report(u"%1 shows \"%2\", not \"%3\""_s.arg(control, sent.shown, QLatin1String(expected)));
    }
}

void Operator::compareNothing(const QString &control, const std::function<Sent()> &act)
{
    const QString before = m_window.text("label_Bytes_Sended");
    const Sent sent = act();
    if (!sent.bytes.isEmpty())
        report(u"%1 sends \"%2\""_s.arg(control, QLatin1String(sent.bytes)));
    else if (sent.shown != before)
        report(u"%1 shows \"%2\""_s.arg(control, sent.shown));
}

void Operator::report(const QString &what)
{
    differences.append(u"player %1, %2: %3"_s.arg(m_playerId).arg(m_command, what));
}

} // namespace

/// What every control of the window sends, for all models, against their sheets.
class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { currentMoment = m_computerClock; }

    void everyCommand_data() { addAllModelRows(); }
    void everyCommand();
    void lackedCommands_data() { addAllModelRows(); }
    void lackedCommands();

private:
    std::function<QDateTime()> m_computerClock = currentMoment;
};

void tst_Commands::initTestCase()
{
    // Ten hours ahead of UTC, and none of the zones that machines usually stand in.
    qputenv("TZ", "EST-10");
    ::tzset();
}

void tst_Commands::everyCommand()
{
    QFETCH(const ModelSheet, sheet);
    Operator user(sheet);
    for (const int playerId : sheet.playerIdSamples()) {
        user.choosePlayer(playerId);
        for (const SheetCommand &command : sheet.commands)
            user.send(command);
    }
    QVERIFY2(user.differences.isEmpty(), qPrintable(user.differences.join(u'\n')));
}

void tst_Commands::lackedCommands()
{
    QFETCH(const ModelSheet, sheet);
    Operator user(sheet);
    for (const CommandControl &control : commandControls()) {
        const auto isPresent = [&sheet](quint32 id) { return sheet.has(id); };
        if (std::ranges::none_of(control.ids, isPresent))
            user.sendNothing(control);
    }
    QVERIFY2(user.differences.isEmpty(), qPrintable(user.differences.join(u'\n')));
}

TESSALY_WINDOW_TEST(tst_Commands)
#include "tst_commands.moc"
