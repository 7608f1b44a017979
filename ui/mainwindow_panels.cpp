// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "catalogue/listnumbers.h"
#include "ui/subtitlecodes.h"
#include "ui/visibilityplan.h"
#include "ui_mainwindow.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QStringListModel>

#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Adds rows all at once.
void appendRows(QComboBox *list, const QStringList &texts)
{
    auto *model = qobject_cast<QStringListModel *>(list->model());
    model->setStringList(model->stringList() + texts);
}

/// Shows the panel of a list that has something to choose.
void showIfFilled(const QComboBox *list, std::initializer_list<QWidget *> widgets,
                  VisibilityPlan &plan)
{
    if (list->count() > 0)
        plan.show(widgets);
}

} // namespace

void MainWindow::hideCommandPanels()
{
    VisibilityPlan plan;
    hideCommandPanels(plan);
    plan.carryOut();
}

void MainWindow::hideCommandPanels(VisibilityPlan &plan)
{
    plan.hide({
        m_ui->frame_Port,
        m_ui->frame_Baudrate,
        m_ui->frame_IP,
        m_ui->frame_ID,
        m_ui->frame_Change_ID,
        m_ui->line_after_Change_ID,
        m_ui->line_after_ID,
        m_ui->frame_Folder,
        m_ui->line_ID_and_Folder,
        m_ui->frame_Playback_Command,
        m_ui->pushButton_Previous_Folder,
        m_ui->pushButton_Previous_File,
        m_ui->pushButton_Play,
        m_ui->pushButton_Stop,
        m_ui->pushButton_Pause,
        m_ui->pushButton_Next_Folder,
        m_ui->pushButton_Next_File,
        m_ui->line_Playback_Command,
        m_ui->frame_Volume,
        m_ui->pushButton_Volume_Less,
        m_ui->pushButton_Volume_More,
        m_ui->line_Volume,
        m_ui->frame_Request,
        m_ui->line_Request,
        m_ui->frame_Standby_Wakeup,
        m_ui->line_after_Change_Before_Standby,
        m_ui->frame_Other_Command,
        m_ui->line_Other_Command,
        m_ui->pushButton_Volume_Mute_Unmute,
        m_ui->line_before_Mute_Unmute,
        m_ui->frame_Relay_Command,
        m_ui->line_Relay,
        m_ui->line_Content_Playback,
        m_ui->frame_Content_Playback,
        m_ui->frame_Ref_Of_Playback,
        m_ui->frame_Option_Of_Playback,
        m_ui->frame_Webradio_Ref_Of_Playback,
        m_ui->frame_Content_Subtitles,
        m_ui->line_Subtitles,
        m_ui->pushButton_Subtitles_On,
        m_ui->pushButton_Subtitles_Off,
        m_ui->pushButton_Subtitles_Next,
        m_ui->pushButton_Subtitles_Next_Loop,
        m_ui->pushButton_Subtitles_Previous,
        m_ui->pushButton_Subtitles_Previous_Loop,
        m_ui->frame_Subtitles_Value,
        m_ui->frame_Subtitles_Type,
        m_ui->pushButton_Subtitles_Select,
    });
}

void MainWindow::on_comboBox_Player_activated(int index)
{
    if (index < 0 || index >= deviceCatalogue.size()) {
        onSocketConnected();
        on_comboBox_Source_Of_Playback_activated(0);
        return;
    }

    for (QComboBox *list :
         {m_ui->comboBox_Baudrate, m_ui->comboBox_ID, m_ui->comboBox_Change_ID,
          m_ui->comboBox_Folder, m_ui->comboBox_Request, m_ui->comboBox_Other_Command,
          m_ui->comboBox_Source_Of_Playback, m_ui->comboBox_Ref_Of_Playback,
          m_ui->comboBox_Option_Of_Playback, m_ui->comboBox_Webradio_Ref_Of_Playback,
          m_ui->comboBox_Subtitles_Type, m_ui->comboBox_Subtitles_Value}) {
        list->clear();
    }
    VisibilityPlan plan;
    hideCommandPanels(plan);

    const DeviceModel &model = deviceCatalogue.at(index);
    if (selectedModel().connectsOnDemand())
        plan.hide({m_ui->checkBox_Auto_connection});
    else
        plan.show({m_ui->checkBox_Auto_connection});
    showConnectionPanel(model, plan);
    updateFirmwareNote();

    appendRows(m_ui->comboBox_ID, numberTexts({model.minPlayerId, model.maxPlayerId}));
    if (m_ui->comboBox_ID->count() > 1)
        plan.show({m_ui->frame_ID, m_ui->line_ID_and_Folder, m_ui->line_after_ID});

    for (const CommandEntry &entry : model.commands)
        showCommand(entry, model, plan);

    onSocketConnected();
    showSourceOfPlayback(0, plan);
    plan.carryOut();
}

void MainWindow::showConnectionPanel(const DeviceModel &model, VisibilityPlan &plan)
{
    if (model.transport == TransportKind::TcpIp) {
        m_ui->label_IP_Port->setText("( "_L1 + tr("Port number: ") + QString::number(model.tcpPort)
                                     + " )"_L1);
        plan.show({m_ui->frame_IP});
        return;
    }

    plan.show({m_ui->frame_Port, m_ui->frame_Baudrate});
    QComboBox *list = m_ui->comboBox_Baudrate;
    for (const qint32 baudRate : model.baudRates) {
        list->addItem(QString::number(baudRate));
        if (baudRate == model.defaultBaudRate)
            list->setCurrentIndex(list->count() - 1);
    }
    if (list->count() > 0)
        m_ui->frame_Baudrate->setEnabled(true);
}

void MainWindow::showCommand(const CommandEntry &entry, const DeviceModel &model,
                             VisibilityPlan &plan)
{
    switch (entry.commandId) {
    case CommandId::Folder:
        appendRows(m_ui->comboBox_Folder, folderTexts(entry, model.folderBankCount));
        showIfFilled(m_ui->comboBox_Folder, {m_ui->line_ID_and_Folder, m_ui->frame_Folder}, plan);
        break;
    case CommandId::PreviousFolder:
        showPlaybackButton(m_ui->pushButton_Previous_Folder, plan);
        break;
    case CommandId::PreviousFile:
        showPlaybackButton(m_ui->pushButton_Previous_File, plan);
        break;
    case CommandId::Play:
        showPlaybackButton(m_ui->pushButton_Play, plan);
        break;
    case CommandId::Stop:
        showPlaybackButton(m_ui->pushButton_Stop, plan);
        break;
    case CommandId::Pause:
        showPlaybackButton(m_ui->pushButton_Pause, plan);
        break;
    case CommandId::NextFile:
        showPlaybackButton(m_ui->pushButton_Next_File, plan);
        break;
    case CommandId::NextFolder:
        showPlaybackButton(m_ui->pushButton_Next_Folder, plan);
        break;
    case CommandId::Volume:
        showVolume(entry, plan);
        break;
    case CommandId::Request:
        m_ui->comboBox_Request->addItem(entry.label);
        plan.show({m_ui->frame_Request, m_ui->line_Request});
        break;
    case CommandId::ChangeId:
        if (model.transport == TransportKind::TcpIp)
            break;
        appendRows(m_ui->comboBox_Change_ID, numberTexts(byteRange(entry)));
        if (m_ui->comboBox_Change_ID->count() > 1)
            plan.show({m_ui->frame_Change_ID, m_ui->line_after_Change_ID});
        break;
    case CommandId::StandbyWakeup:
        plan.show({m_ui->frame_Standby_Wakeup, m_ui->line_after_Change_Before_Standby,
                   m_ui->line_Playback_Command});
        break;
    case CommandId::VolumeUp:
    case CommandId::VolumeDown:
    case CommandId::Standby:
    case CommandId::Wakeup:
    case CommandId::PauseOnly:
    case CommandId::Resume:
    case CommandId::Mute:
    case CommandId::Unmute:
    case CommandId::SetTime:
    case CommandId::SetDate:
    case CommandId::SetDateTime:
    case CommandId::SetUtcEpoch:
    case CommandId::SetUtcFull:
    case CommandId::Ntp:
    case CommandId::HdmiCecStandby:
    case CommandId::HdmiCecWakeup:
    case CommandId::HdmiCecToggle:
    case CommandId::ProjectorPower:
    case CommandId::Reserved45:
    case CommandId::Other:
        addOtherCommand(entry.label, plan);
        break;
    case CommandId::MuteToggle:
        plan.show({m_ui->frame_Volume, m_ui->pushButton_Volume_Mute_Unmute, m_ui->line_Volume,
                   m_ui->line_before_Mute_Unmute});
        break;
    case CommandId::Relay:
        plan.show({m_ui->frame_Relay_Command, m_ui->line_Relay});
        break;
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate:
        m_ui->comboBox_Source_Of_Playback->addItem(entry.label);
        plan.show({m_ui->frame_Content_Playback, m_ui->line_Content_Playback});
        plan.hide({m_ui->frame_Ref_Of_Playback, m_ui->frame_Option_Of_Playback,
                   m_ui->frame_Webradio_Ref_Of_Playback});
        break;
    case CommandId::SubtitlesOff:
        showSubtitleButton(m_ui->pushButton_Subtitles_Off, plan);
        break;
    case CommandId::SubtitlesOn:
        showSubtitleButton(m_ui->pushButton_Subtitles_On, plan);
        break;
    case CommandId::SubtitlesPrevious:
        showSubtitleButton(m_ui->pushButton_Subtitles_Previous, plan);
        break;
    case CommandId::SubtitlesNext:
        showSubtitleButton(m_ui->pushButton_Subtitles_Next, plan);
        break;
    case CommandId::SubtitlesPreviousLoop:
        showSubtitleButton(m_ui->pushButton_Subtitles_Previous_Loop, plan);
        break;
    case CommandId::SubtitlesNextLoop:
        showSubtitleButton(m_ui->pushButton_Subtitles_Next_Loop, plan);
        break;
    case CommandId::SubtitlesByLanguage:
        showSubtitleSelection({subtitleTypeIso6392B, subtitleTypeIso6392T, subtitleTypeIso6393},
                              plan);
        on_comboBox_Subtitles_Type_activated();
        break;
    case CommandId::SubtitlesByIndex:
        // The values stay empty until the user touches the type list.
        showSubtitleSelection({subtitleTypeIndex}, plan);
        break;
    default:
        break;
    }
}

void MainWindow::showPlaybackButton(QWidget *button, VisibilityPlan &plan)
{
    plan.show({m_ui->frame_Playback_Command, button, m_ui->line_Playback_Command});
}

void MainWindow::showSubtitleButton(QWidget *button, VisibilityPlan &plan)
{
    plan.show({m_ui->frame_Content_Subtitles, m_ui->line_Subtitles, button});
}

void MainWindow::showSubtitleSelection(const QStringList &types, VisibilityPlan &plan)
{
    plan.show({m_ui->frame_Content_Subtitles, m_ui->line_Subtitles, m_ui->frame_Subtitles_Value,
               m_ui->frame_Subtitles_Type, m_ui->pushButton_Subtitles_Select});
    appendRows(m_ui->comboBox_Subtitles_Type, types);
}

void MainWindow::showVolume(const CommandEntry &entry, VisibilityPlan &plan)
{
    const NumberRange range
        = selectedModel().protocol == ProtocolKind::Classic ? byteRange(entry) : wordRange(entry);
    if (range != NumberRange{}) {
        QSlider *slider = m_ui->horizontalSlider_Volume;
        // Choosing a model sends nothing.
        const QSignalBlocker blocker(slider);
        slider->setMinimum(range.first);
        slider->setMaximum(range.last);
        slider->setValue(range.last);
    }
    plan.show({m_ui->frame_Volume, m_ui->pushButton_Volume_Less, m_ui->pushButton_Volume_More,
               m_ui->line_Volume});
}

void MainWindow::addOtherCommand(const QString &label)
{
    VisibilityPlan plan;
    addOtherCommand(label, plan);
    plan.carryOut();
}

void MainWindow::addOtherCommand(const QString &label, VisibilityPlan &plan)
{
    m_ui->comboBox_Other_Command->addItem(label);
    plan.show({m_ui->frame_Other_Command, m_ui->line_Other_Command});
}

void MainWindow::updateFirmwareNote()
{
    const QString firmware = selectedModel().firmwareVersion;
    if (firmware.isEmpty()) {
        m_ui->label_Comments->clear();
        return;
    }
    m_ui->label_Comments->setText(firmwareNote(firmware));
}

QString MainWindow::firmwareNote(const QString &firmware)
{
    return tr("All commands present in this model can be executed for devices with firmware ")
           + firmware
           + tr(
               " or higher. If the device embed a lower firmware version, some commands may not be "
               "executed. Refer to the release notes of this application for more information.");
}

void MainWindow::reserveFirmwareNoteRoom()
{
    // Panels that another model shows count, too: the column has one width for all.
    int width = 0;
    for (const QWidget *widget :
         std::initializer_list<QWidget *>{m_ui->frame_Port, m_ui->frame_Baudrate, m_ui->frame_IP,
                                          m_ui->checkBox_Auto_connection}) {
        width = qMax(width, widget->minimumSizeHint().width());
    }
    m_ui->frame_Player->setMinimumWidth(width);
    width = qMax(width, m_ui->frame_Player->minimumSizeHint().width());
    const QFrame *frame = m_ui->frame_Settings;
    const QMargins margins = frame->layout()->contentsMargins();
    width = qMax(width, frame->minimumWidth() - 2 * frame->frameWidth() - margins.left()
                            - margins.right());

    // The notes differ in the version alone: the widest takes the most lines.
    const QFontMetrics metrics = m_ui->label_Comments->fontMetrics();
    QString widest;
    for (const DeviceModel &model : std::as_const(deviceCatalogue)) {
        if (metrics.horizontalAdvance(model.firmwareVersion) > metrics.horizontalAdvance(widest))
            widest = model.firmwareVersion;
    }
    const QRect room
        = metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, firmwareNote(widest));
    m_ui->label_Comments->setMinimumHeight(room.height());
}

void MainWindow::on_comboBox_Source_Of_Playback_activated(int index)
{
    VisibilityPlan plan;
    showSourceOfPlayback(index, plan);
    plan.carryOut();
}

void MainWindow::showSourceOfPlayback(int index, VisibilityPlan &plan)
{
    plan.hide({m_ui->frame_Ref_Of_Playback, m_ui->frame_Option_Of_Playback,
               m_ui->frame_Webradio_Ref_Of_Playback});
    m_ui->comboBox_Ref_Of_Playback->clear();
    m_ui->comboBox_Option_Of_Playback->clear();
    m_ui->comboBox_Webradio_Ref_Of_Playback->clear();

    if (m_ui->comboBox_Source_Of_Playback->count() <= index)
        return;

    const QString source = m_ui->comboBox_Source_Of_Playback->currentText();
    for (const CommandEntry &entry : selectedModel().commands) {
        if (entry.label != source)
            continue;
        // All three families want three bytes, also those that read two.
        const bool complete = entry.data.size() >= 3 && entry.dataMax.size() >= 3;
        const QStringList references
            = complete ? paddedNumberTexts(wordRange(entry)) : QStringList();
        switch (entry.commandId) {
        case CommandId::SourceSpotReset:
            appendRows(m_ui->comboBox_Ref_Of_Playback, references);
            appendRows(m_ui->comboBox_Option_Of_Playback, paddedNumberTexts(byteRange(entry, 2)));
            showIfFilled(m_ui->comboBox_Ref_Of_Playback, {m_ui->frame_Ref_Of_Playback}, plan);
            showIfFilled(m_ui->comboBox_Option_Of_Playback, {m_ui->frame_Option_Of_Playback}, plan);
            break;
        case CommandId::SourceWebradio:
            appendRows(m_ui->comboBox_Webradio_Ref_Of_Playback, references);
            showIfFilled(m_ui->comboBox_Webradio_Ref_Of_Playback,
                         {m_ui->frame_Webradio_Ref_Of_Playback}, plan);
            break;
        case CommandId::SourceFolder:
            appendRows(m_ui->comboBox_Ref_Of_Playback, references);
            showIfFilled(m_ui->comboBox_Ref_Of_Playback, {m_ui->frame_Ref_Of_Playback}, plan);
            break;
        default:
            break;
        }
    }
}

void MainWindow::on_comboBox_Subtitles_Type_activated()
{
    m_ui->comboBox_Subtitles_Value->clear();
    appendRows(m_ui->comboBox_Subtitles_Value,
               subtitleValues(m_ui->comboBox_Subtitles_Type->currentText()));
}
