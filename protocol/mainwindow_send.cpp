// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "protocol/bytestext.h"
#include "protocol/frameencoder.h"
#include "ui_mainwindow.h"

void MainWindow::sendCommand(quint8 code, const QByteArray &body)
{
    if (!anyLinkIsOpen() && !selectedModel().connectsOnDemand())
        return;
    const quint8 idByte = playerIdByte();
    writeFrame(idByte, code, body);
    showSentBytes(idByte, code, body);
}

void MainWindow::showSentBytes(quint8 playerIdByte, quint8 code, const QByteArray &body)
{
    const QByteArray frame = wireFrame(selectedModel(), playerIdByte, code, body);
    const bool decimal = m_ui->radioButton_Sent_Dec->isChecked();
    m_ui->label_Bytes_Sended->setText(decimal ? decimalBytesText(frame) : hexBytesText(frame));
}

void MainWindow::on_radioButton_Sent_Hex_clicked()
{
    if (sentBytesShownInHex)
        return;
    m_ui->label_Bytes_Sended->setText(hexFromDecimalText(m_ui->label_Bytes_Sended->text()));
    sentBytesShownInHex = true;
}

void MainWindow::on_radioButton_Sent_Dec_clicked()
{
    if (!sentBytesShownInHex)
        return;
    m_ui->label_Bytes_Sended->setText(decimalFromHexText(m_ui->label_Bytes_Sended->text()));
    sentBytesShownInHex = false;
}
