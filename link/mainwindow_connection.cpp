// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "link/serialhandle.h"
#include "link/serialsettings.h"
#include "protocol/frameencoder.h"
#include "ui_mainwindow.h"

#include <QMessageBox>
#include <QSerialPort>
#include <QTcpSocket>

bool MainWindow::anyLinkIsOpen() const
{
    return serialPort->isOpen() || tcpSocket->isOpen();
}

void MainWindow::on_pushButton_Connect_clicked()
{
    if (openSerialLink())
        onSocketConnected();
    else if (openTcpLink())
        showConnectingState();
}

bool MainWindow::openSerialLink()
{
    const DeviceModel &model = selectedModel();
    const int portRow = m_ui->comboBox_Port->currentIndex();
    const int baudRow = m_ui->comboBox_Baudrate->currentIndex();
    if (m_ui->comboBox_Player->currentIndex() < 0 || model.transport != TransportKind::Serial
        || portRow < 0 || baudRow < 0 || baudRow >= model.baudRates.size()) {
        return false;
    }
    return openSerialPort(acceptedBaudRate(model.baudRates.at(baudRow)),
                          m_ui->comboBox_Port->currentText());
}

bool MainWindow::openSerialPort(int baudRate, const QString &portName)
{
    if (serialPort->isOpen())
        return false;

    applyLineSettings(portName, baudRate, *serialPort);
    if (serialPort->open(QIODevice::ReadWrite))
        return true;

    QMessageBox::critical(this, tr("Serial port error"),
                          tr("An error on the serial port has occurred!") + u'\n'
                              + serialErrorText(),
                          QMessageBox::Ok, QMessageBox::NoButton);
    return false;
}

QString MainWindow::serialErrorText() const
{
    return tr(serialErrorMessage(serialPort->error()));
}

bool MainWindow::openTcpLink()
{
    const DeviceModel &model = selectedModel();
    if (m_ui->comboBox_Player->currentIndex() < 0 || model.transport != TransportKind::TcpIp)
        return false;

    QStringList numbers;
    for (const QSpinBox *box : addressBoxes())
        numbers.append(QString::number(box->value()));
    connectTcpSocket(numbers.join(u'.'), model.tcpPort);
    return true;
}

void MainWindow::connectTcpSocket(const QString &host, quint16 port)
{
    if (!tcpSocket->isOpen())
        tcpSocket->connectToHost(host, port);
}

void MainWindow::closeSerialPort()
{
    if (serialPort->isOpen())
        serialPort->close();
}

void MainWindow::closeTcpSocket()
{
    if (!tcpSocket->isOpen())
        return;
    tcpSocket->disconnectFromHost();
    tcpSocket->close();
    tcpSocket->abort();
}

void MainWindow::showConnectingState()
{
    m_ui->frame_Player->setEnabled(false);
    m_ui->frame_Port->setEnabled(false);
    m_ui->frame_Baudrate->setEnabled(false);
    m_ui->frame_Settings->setEnabled(false);
    m_ui->pushButton_Connect->setEnabled(false);
    m_ui->pushButton_Disconnect->setEnabled(false);
    m_ui->frame_Commands->setEnabled(false);
    m_ui->label_Connection_Message->show();
}

void MainWindow::onSocketConnected()
{
    m_ui->label_Connection_Message->hide();

    if (anyLinkIsOpen()) {
        m_ui->frame_Player->setEnabled(false);
        m_ui->frame_Port->setEnabled(false);
        m_ui->frame_Baudrate->setEnabled(false);
        m_ui->frame_Settings->setEnabled(false);
        m_ui->pushButton_Connect->setEnabled(false);
        m_ui->pushButton_Disconnect->setEnabled(true);
        m_ui->frame_Commands->setEnabled(true);
        return;
    }

    const bool onDemand = selectedModel().connectsOnDemand();
    // Without a model the player list keeps the state that it has.
    if (m_ui->comboBox_Player->count() > 0)
        m_ui->frame_Player->setEnabled(true);
    m_ui->frame_Port->setEnabled(m_ui->comboBox_Port->count() > 0);
    m_ui->frame_Baudrate->setEnabled(m_ui->comboBox_Baudrate->count() > 0);
    m_ui->frame_Settings->setEnabled(true);
    m_ui->pushButton_Connect->setEnabled(!onDemand);
    m_ui->pushButton_Disconnect->setEnabled(false);
    m_ui->frame_Commands->setEnabled(onDemand);
}

void MainWindow::on_pushButton_Disconnect_clicked()
{
    closeSerialPort();
    closeTcpSocket();
    onSocketConnected();
}

void MainWindow::onSocketDisconnected()
{
    on_pushButton_Disconnect_clicked();
}

void MainWindow::onSocketError(QAbstractSocket::SocketError error)
{
    // Devices of the extended family hang up after each command.
    if (error == QAbstractSocket::RemoteHostClosedError
        && selectedModel().protocol == ProtocolKind::Extended) {
        onSocketDisconnected();
        return;
    }
    QMessageBox::critical(this, tr("TCP/IP error"),
                          tr("An TCP/IP error has occurred!") + u'\n' + tcpSocket->errorString(),
                          QMessageBox::Ok, QMessageBox::NoButton);
    onSocketDisconnected();
}

void MainWindow::writeFrame(quint8 playerIdByte, quint8 code, const QByteArray &body)
{
    const DeviceModel &model = selectedModel();
    const QByteArray frame = wireFrame(model, playerIdByte, code, body);

    if (serialPort->isOpen()) {
        serialPort->write(frame);
        // The device need not wait until the window has drawn what was sent.
        if (takesBytes(*serialPort))
            serialPort->flush();
    }
    if (tcpSocket->isOpen())
        tcpSocket->write(frame);
    // Queued on the connection that this starts. On one that is open already the device gets the
    // frame a second time: a known trait, kept deliberately.
    if (model.connectsOnDemand() && openTcpLink())
        tcpSocket->write(frame);
}
