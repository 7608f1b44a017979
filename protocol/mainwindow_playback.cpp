// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"
#include "catalogue/commandid.h"
#include "catalogue/listnumbers.h"
#include "protocol/frameencoder.h"
#include "ui_mainwindow.h"

#include <QSlider>

void MainWindow::sendFixedCommand(quint32 commandId)
{
    quint8 code = 0;
    QByteArray body;
    if (!buildCommandFrame(commandId, code, body))
        return;
    appendPlaybackArguments(static_cast<int>(commandId), body);
    sendCommand(code, body);
}

void MainWindow::on_pushButton_Previous_Folder_clicked()
{
    sendFixedCommand(CommandId::PreviousFolder);
}

void MainWindow::on_pushButton_Previous_File_clicked()
{
    sendFixedCommand(CommandId::PreviousFile);
}

void MainWindow::on_pushButton_Play_clicked()
{
    sendFixedCommand(CommandId::Play);
}

void MainWindow::on_pushButton_Stop_clicked()
{
    sendFixedCommand(CommandId::Stop);
}

void MainWindow::on_pushButton_Pause_clicked()
{
    sendFixedCommand(CommandId::Pause);
}

void MainWindow::on_pushButton_Next_File_clicked()
{
    sendFixedCommand(CommandId::NextFile);
}

void MainWindow::on_pushButton_Next_Folder_clicked()
{
    sendFixedCommand(CommandId::NextFolder);
}

void MainWindow::on_pushButton_Standby_Wakeup_clicked()
{
    sendFixedCommand(CommandId::StandbyWakeup);
}

void MainWindow::on_pushButton_Volume_Mute_Unmute_clicked()
{
    sendFixedCommand(CommandId::MuteToggle);
}

void MainWindow::on_pushButton_Change_ID_clicked()
{
    quint8 code = 0;
    QByteArray body;
    if (!buildCommandFrame(CommandId::ChangeId, code, body))
        return;
    // The header still addresses the player by its present ID; the new one travels as it is.
    applyFirstByte(numberFromText(m_ui->comboBox_Change_ID->currentText()), body);
    sendCommand(code, body);
}

void MainWindow::on_pushButton_Folder_clicked()
{
    playFolder(numberFromText(m_ui->comboBox_Folder->currentText()));
}

void MainWindow::playFolder(int folder)
{
    quint8 code = 0;
    QByteArray body;
    if (!buildCommandFrame(CommandId::Folder, code, body))
        return;
    applyFolderNumber(folder, code, body);
    sendCommand(code, body);
}

void MainWindow::Play_Folder_000()
{
    playFolder(0);
}

void MainWindow::Play_Folder_001()
{
    playFolder(1);
}

void MainWindow::Play_Folder_002()
{
    playFolder(2);
}

void MainWindow::Play_Folder_003()
{
    playFolder(3);
}

void MainWindow::Play_Folder_004()
{
    playFolder(4);
}

void MainWindow::Play_Folder_005()
{
    playFolder(5);
}

void MainWindow::Play_Folder_006()
{
    playFolder(6);
}

void MainWindow::Play_Folder_007()
{
    playFolder(7);
}

void MainWindow::Play_Folder_008()
{
    playFolder(8);
}

void MainWindow::Play_Folder_009()
{
    playFolder(9);
}

void MainWindow::on_horizontalSlider_Volume_valueChanged(int value)
{
    const QSlider *slider = m_ui->horizontalSlider_Volume;
    quint8 code = 0;
    QByteArray body;
    if (!buildVolumeFrame(code, body, sliderVolumeByte(slider->minimum(), value)))
        return;
    sendCommand(code, body);
    m_ui->label_Volume_2->setText(QString::number(slider->value()));
}

void MainWindow::on_pushButton_Volume_Less_clicked()
{
    m_ui->horizontalSlider_Volume->setValue(m_ui->horizontalSlider_Volume->minimum());
}

void MainWindow::on_pushButton_Volume_More_clicked()
{
    m_ui->horizontalSlider_Volume->setValue(m_ui->horizontalSlider_Volume->maximum());
}

void MainWindow::Increase_Volume()
{
    QSlider *slider = m_ui->horizontalSlider_Volume;
    if (slider->value() < slider->maximum())
        slider->setSliderPosition(slider->value() + 1);
}

void MainWindow::Decrease_Volume()
{
    QSlider *slider = m_ui->horizontalSlider_Volume;
    if (slider->value() > slider->minimum())
        slider->setSliderPosition(slider->value() - 1);
}
