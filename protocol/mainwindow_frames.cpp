// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"
#include "protocol/frameencoder.h"
#include "ui_mainwindow.h"

bool MainWindow::buildCommandFrame(quint32 commandId, quint8 &code, QByteArray &frame)
{
    return appendCommand(selectedModel(), commandId, code, frame);
}

bool MainWindow::buildVolumeFrame(quint8 &code, QByteArray &frame, quint8 volumeByte)
{
    return appendVolumeCommand(selectedModel(), volumeByte, code, frame);
}

void MainWindow::appendPlaybackArguments(int commandId, QByteArray &frame)
{
    ::appendPlaybackArguments(selectedModel(), static_cast<quint32>(commandId), frame);
}

quint8 MainWindow::playerIdByte() const
{
    return playerIdByteFromText(m_ui->comboBox_ID->currentText());
}
