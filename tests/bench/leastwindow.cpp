// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QTcpSocket>

/// What the start of the console cannot do without: a text, for which the fonts are looked for, the
/// libraries of both links, and the system's list of serial ports.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QSerialPort port;
    const QTcpSocket socket;
    QMainWindow window;
    window.setCentralWidget(
        new QLabel(QString::number(QSerialPortInfo::availablePorts().size()), &window));
    window.resize(640, 798);
    window.show();
    return QApplication::exec();
}
