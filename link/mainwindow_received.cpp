// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "link/receivedbytestext.h"
#include "link/receivedtextdisplay.h"
#include "ui_mainwindow.h"

#include <QSerialPort>
#include <QTcpSocket>

void MainWindow::readSerialData(QByteArray &out)
{
    if (serialPort->isOpen())
        out = serialPort->readAll();
}

void MainWindow::readTcpData(QByteArray &out)
{
    if (tcpSocket->isOpen())
        out = tcpSocket->readAll();
}

void MainWindow::update_Serial_Read_Data()
{
    QByteArray bytes;
    readSerialData(bytes);
    showReceivedData(bytes);
}

void MainWindow::update_TCP_Read_Data()
{
    QByteArray bytes;
    readTcpData(bytes);
    showReceivedData(bytes);
}

void MainWindow::showReceivedData(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    appendReceivedData(bytes, receivedText);
    receivedTextDisplay()->handleArrival();
}

void MainWindow::appendReceivedData(const QByteArray &bytes, QString &text)
{
    if (m_ui->radioButton_Data_ASCII->isChecked())
        text += asciiReceivedText(bytes);
    if (m_ui->radioButton_Data_Hex->isChecked())
        text += hexReceivedText(bytes);
    if (m_ui->radioButton_Data_Dec->isChecked())
        text += decimalReceivedText(bytes);
}

void MainWindow::on_pushButton_Clear_clicked()
{
    receivedText.clear();
    receivedTextDisplay()->clear();
}

ReceivedTextDisplay *MainWindow::receivedTextDisplay() const
{
    return m_ui->textEdit_Data->findChild<ReceivedTextDisplay *>();
}
