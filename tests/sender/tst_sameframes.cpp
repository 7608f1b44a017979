// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "catalogue/commandvalues.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"
#include "tests/support/senderprogram.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A command with its values, as it is typed and as the window is operated.
struct Act
{
    CommandEntry entry;
    QString words;
    QStringList values;
};

/// The first, the last and a middle value; those on both sides of a bank for folders.
QList<int> valuesOf(const DeviceModel &model, const CommandEntry &entry)
{
    const NumberRange range = valueRange(model, entry);
    QList<int> values{range.first, (range.first + range.last) / 2, range.last};
    if (entry.commandId == CommandId::Folder && range.last > 200)
        values += {127, 128, 200};
    return values;
}

/// Every command of the model, with several values.
QList<Act> actsOf(const DeviceModel &model)
{
    QList<Act> acts;
    for (const CommandEntry &entry : model.commands) {
        const QString label = u'"' + entry.label + u'"';
        const bool isSource = entry.commandId >= CommandId::SourceFolder
                              && entry.commandId <= CommandId::SourceAlternate;
        const QString name = entry.commandId == CommandId::Request ? "request "_L1 + label
                             : isSource                            ? "source "_L1 + label
                                                                   : label;
        if (entry.commandId == CommandId::SubtitlesByLanguage) {
            // One of each list that the others lack, and one of all.
            for (const QString &code : {u"fre"_s, u"fra"_s, u"hbs"_s, u"zza"_s})
                acts.append({entry, "subtitles "_L1 + code, {code}});
        } else if (takesNumber(entry)) {
            for (const int value : valuesOf(model, entry)) {
                QStringList values{QString::number(value)};
                if (entry.commandId == CommandId::SourceSpotReset)
                    values.append(u"2"_s);
                acts.append({entry, name + u' ' + values.join(u' '), values});
            }
        } else {
            acts.append({entry, name, {}});
        }
    }
    return acts;
}

const QMap<quint32, const char *> buttons{
    {CommandId::PreviousFolder, "pushButton_Previous_Folder"},
    {CommandId::PreviousFile, "pushButton_Previous_File"},
    {CommandId::Play, "pushButton_Play"},
    {CommandId::Stop, "pushButton_Stop"},
    {CommandId::Pause, "pushButton_Pause"},
    {CommandId::NextFile, "pushButton_Next_File"},
    {CommandId::NextFolder, "pushButton_Next_Folder"},
    {CommandId::StandbyWakeup, "pushButton_Standby_Wakeup"},
    {CommandId::MuteToggle, "pushButton_Volume_Mute_Unmute"},
    {CommandId::SubtitlesOff, "pushButton_Subtitles_Off"},
    {CommandId::SubtitlesOn, "pushButton_Subtitles_On"},
    {CommandId::SubtitlesPrevious, "pushButton_Subtitles_Previous"},
    {CommandId::SubtitlesNext, "pushButton_Subtitles_Next"},
    {CommandId::SubtitlesPreviousLoop, "pushButton_Subtitles_Previous_Loop"},
    {CommandId::SubtitlesNextLoop, "pushButton_Subtitles_Next_Loop"},
};

QString padded(const QString &number)
{
    return number.rightJustified(3, u'0');
}

} // namespace

/// What tessaly-send would send is what the window sends.
class tst_SameFrames : public QObject
{
    Q_OBJECT

private slots:
    void everyCommand_data();
    void everyCommand();

private:
    static QString operate(ConsoleWindow &console, const DeviceModel &model, const Act &act);
    static QStringList sentByWindow(ConsoleWindow &console, const DeviceModel &model,
                                    const QList<Act> &acts);
};

void tst_SameFrames::everyCommand_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("playerId");

    const DeviceCatalogue catalogue = buildDeviceCatalogue();
    QCOMPARE(catalogue.size(), 15);
    for (int row = 0; row < catalogue.size(); ++row) {
        const DeviceModel &model = catalogue.at(row);
        QTest::addRow("%s", qPrintable(model.name)) << row << int{model.minPlayerId};
        if (model.maxPlayerId > model.minPlayerId)
            QTest::addRow("%s, another player", qPrintable(model.name)) << row << 100;
    }
}

/// Does with the window what the act says. \return why that is not possible; else nothing
QString tst_SameFrames::operate(ConsoleWindow &console, const DeviceModel &model, const Act &act)
{
    const auto choose = [&](const char *list, const QString &text, const char *button) {
        if (!console.selectText(list, text))
            return u"%1 has no %2"_s.arg(QLatin1StringView(list), text);
        console.click(button);
        return QString();
    };
    switch (act.entry.commandId) {
    case CommandId::Folder:
        return choose("comboBox_Folder", padded(act.values.constFirst()), "pushButton_Folder");
    case CommandId::Volume: {
        auto *slider = console.find<QSlider>("horizontalSlider_Volume");
        const int volume = act.values.constFirst().toInt();
        // Only a change of the value sends it.
        slider->setValue(volume == slider->minimum() ? slider->maximum() : slider->minimum());
        slider->setValue(volume);
        return {};
    }
    case CommandId::ChangeId:
        // The window does not offer it in the network, but has the bytes for it.
        if (model.transport == TransportKind::TcpIp) {
            auto *list = console.find<QComboBox>("comboBox_Change_ID");
            list->addItem(act.values.constFirst());
            list->setCurrentIndex(list->count() - 1);
            console.window.on_pushButton_Change_ID_clicked();
            return {};
        }
        return choose("comboBox_Change_ID", act.values.constFirst(), "pushButton_Change_ID");
    case CommandId::Request:
        return choose("comboBox_Request", act.entry.label, "pushButton_Request");
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate: {
        if (!console.selectText("comboBox_Source_Of_Playback", act.entry.label))
            return u"no such source"_s;
        auto *sources = console.find<QComboBox>("comboBox_Source_Of_Playback");
        emit sources->activated(sources->currentIndex());
        const char *list = act.entry.commandId == CommandId::SourceWebradio
                               ? "comboBox_Webradio_Ref_Of_Playback"
                               : "comboBox_Ref_Of_Playback";
        if (!act.values.isEmpty() && !console.selectText(list, padded(act.values.constFirst())))
            return u"no such reference"_s;
        if (act.values.size() > 1
            && !console.selectText("comboBox_Option_Of_Playback", padded(act.values.at(1)))) {
            return u"no such option"_s;
        }
        console.click("pushButton_Launch_Playback");
        return {};
    }
    case CommandId::SubtitlesByLanguage:
    case CommandId::SubtitlesByIndex:
        for (const QString &type :
             {u"ISO639-2 (B)"_s, u"ISO639-2 (T)"_s, u"ISO639-3"_s, u"Index"_s}) {
            if (!console.selectText("comboBox_Subtitles_Type", type))
                return u"no type "_s + type;
            console.window.on_comboBox_Subtitles_Type_activated();
            if (console.selectText("comboBox_Subtitles_Value", act.values.constFirst())) {
                console.click("pushButton_Subtitles_Select");
                return {};
            }
        }
        return u"no such subtitles"_s;
    default:
        break;
    }
    if (const char *button = buttons.value(act.entry.commandId)) {
        console.click(button);
        return {};
    }
    return choose("comboBox_Other_Command", act.entry.label, "pushButton_Other_Command");
}

QStringList tst_SameFrames::sentByWindow(ConsoleWindow &console, const DeviceModel &model,
                                         const QList<Act> &acts)
{
    QStringList sent;
    for (const Act &act : acts) {
        console.find<QLabel>("label_Bytes_Sended")->clear();
        const QString error = operate(console, model, act);
        sent.append(act.words + ": "_L1
                    + (error.isEmpty() ? console.text("label_Bytes_Sended") : error));
    }
    return sent;
}

void tst_SameFrames::everyCommand()
{
    QFETCH(const int, row);
    QFETCH(const int, playerId);

    const DeviceModel model = buildDeviceCatalogue().at(row);
    ConsoleWindow console;
    console.selectModel(row);
    PtyPeer pty;
    std::unique_ptr<TcpPeer> tcp;
    if (model.transport == TransportKind::TcpIp) {
        tcp = std::make_unique<TcpPeer>(model.tcpPort);
        console.setAddress(TcpPeer::address().toString());
        if (!model.connectsOnDemand())
            QVERIFY(console.connectTcp());
    } else {
        console.connectSerial(pty);
    }
    QVERIFY(console.selectText("comboBox_ID", QString::number(playerId)));

    const QList<Act> acts = actsOf(model);
    QVERIFY(acts.size() >= model.commands.size());
    QByteArray script;
    for (const Act &act : acts)
        script += act.words.toUtf8() + '\n';

    // The window's clock stands still; the program's is looked at in the middle of a second.
    QStringList sent;
    QStringList printed;
    SenderProgram sender;
    do {
        const QDateTime before = QDateTime::currentDateTime();
        const qint64 second = before.toSecsSinceEpoch();
        currentMoment = [second] { return QDateTime::fromSecsSinceEpoch(second); };
        sent = sentByWindow(console, model, acts);
        printed.clear();
        QCOMPARE(sender.run({u"--dry-run"_s, u"--model"_s, model.name, u"--id"_s,
                             QString::number(playerId), u"--script"_s, u"-"_s},
                            script),
                 0);
        const QStringList lines = QString::fromUtf8(sender.output()).split(u'\n');
        for (qsizetype i = 0; i < acts.size(); ++i)
            printed.append(acts.at(i).words + ": "_L1 + lines.value(i));
        QCOMPARE(lines.size(), acts.size() + 1);
        if (QDateTime::currentSecsSinceEpoch() == second)
            break;
    } while (true);
    currentMoment = [] { return QDateTime::currentDateTime(); };
    QCOMPARE(printed, sent);
    for (const QString &line : std::as_const(sent))
        QVERIFY2(!line.endsWith(u' '), qPrintable(line));
}

TESSALY_WINDOW_TEST(tst_SameFrames)
#include "tst_sameframes.moc"
