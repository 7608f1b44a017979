// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "catalogue/listnumbers.h"
#include "protocol/frameencoder.h"
#include "protocol/labelledcommands.h"
#include "ui/subtitlecodes.h"
#include "ui_mainwindow.h"

void MainWindow::sendUnlessEmpty(quint8 code, const QByteArray &body)
{
    if (!body.isEmpty())
        sendCommand(code, body);
}

void MainWindow::on_pushButton_Request_clicked()
{
    quint8 code = 0;
    QByteArray body;
    appendRequest(selectedModel(), m_ui->comboBox_Request->currentText(), code, body);
    sendUnlessEmpty(code, body);
}

void MainWindow::on_pushButton_Other_Command_clicked()
{
    quint8 code = 0;
    QByteArray body;
    appendOtherCommand(selectedModel(), m_ui->comboBox_Other_Command->currentText(),
                       currentMoment(), code, body);
    sendUnlessEmpty(code, body);
}

void MainWindow::on_pushButton_Launch_Playback_clicked()
{
    const PlaybackChoice choice{
        .reference = numberFromText(m_ui->comboBox_Ref_Of_Playback->currentText()),
        .option = numberFromText(m_ui->comboBox_Option_Of_Playback->currentText()),
        .webradio = numberFromText(m_ui->comboBox_Webradio_Ref_Of_Playback->currentText()),
    };
    quint8 code = 0;
    QByteArray body;
    appendPlaybackSource(selectedModel(), m_ui->comboBox_Source_Of_Playback->currentText(), choice,
                         code, body);
    sendUnlessEmpty(code, body);
}

void MainWindow::on_pushButton_Relay_Command_clicked()
{
    quint8 code = 0;
    QByteArray body;
    if (!buildCommandFrame(CommandId::Relay, code, body))
        return;
    const QCheckBox *const relays[] = {
        m_ui->checkBox_Relay_1, m_ui->checkBox_Relay_2, m_ui->checkBox_Relay_3,
        m_ui->checkBox_Relay_4, m_ui->checkBox_Relay_5, m_ui->checkBox_Relay_6,
        m_ui->checkBox_Relay_7, m_ui->checkBox_Relay_8,
    };
    std::bitset<std::size(relays)> closed;
    for (size_t i = 0; i < closed.size(); ++i)
        closed.set(i, relays[i]->isChecked());
    applyContacts(closed, body);
    sendCommand(code, body);
}

void MainWindow::on_pushButton_Subtitles_On_clicked()
{
    sendFixedCommand(CommandId::SubtitlesOn);
}

void MainWindow::on_pushButton_Subtitles_Off_clicked()
{
    sendFixedCommand(CommandId::SubtitlesOff);
}

void MainWindow::on_pushButton_Subtitles_Previous_clicked()
{
    sendFixedCommand(CommandId::SubtitlesPrevious);
}

void MainWindow::on_pushButton_Subtitles_Next_clicked()
{
    sendFixedCommand(CommandId::SubtitlesNext);
}

void MainWindow::on_pushButton_Subtitles_Previous_Loop_clicked()
{
    sendFixedCommand(CommandId::SubtitlesPreviousLoop);
}

void MainWindow::on_pushButton_Subtitles_Next_Loop_clicked()
{
    sendFixedCommand(CommandId::SubtitlesNextLoop);
}

void MainWindow::on_pushButton_Subtitles_Select_clicked()
{
    const QString type = m_ui->comboBox_Subtitles_Type->currentText();
    const QString value = m_ui->comboBox_Subtitles_Value->currentText();
    quint8 code = 0;
    QByteArray body;
    const bool byLanguage = type == subtitleTypeIso6392B || type == subtitleTypeIso6392T
                            || type == subtitleTypeIso6393;

    // What the commands carry is a placeholder of the table: the choice replaces it.
    if (byLanguage && buildCommandFrame(CommandId::SubtitlesByLanguage, code, body))
        sendCommand(code, languageCodeBytes(value));
    else if (type == subtitleTypeIndex
             && buildCommandFrame(CommandId::SubtitlesByIndex, code, body))
        sendCommand(code, subtitleIndexBytes(numberFromText(value)));
}
