// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/serialsettings.h"

#include <QSerialPort>
#include <QSerialPortInfo>
#include <QtGlobal>

#include <iterator>

qint32 acceptedBaudRate(qint32 baudRate)
{
    switch (baudRate) {
    case 1200:
    case 2400:
    case 4800:
    case 9600:
    case 19200:
    case 38400:
    case 57600:
    case 115200:
        return baudRate;
    default:
        return 9600;
    }
}

void applyLineSettings(const QString &name, qint32 baudRate, QSerialPort &port)
{
    port.setPortName(name);
    port.setBaudRate(baudRate);
    port.setDataBits(QSerialPort::Data8);
    port.setParity(QSerialPort::NoParity);
    port.setStopBits(QSerialPort::OneStop);
    port.setFlowControl(QSerialPort::NoFlowControl);
}

const char *serialErrorMessage(int error)
{
    static constexpr const char *messages[] = {
        QT_TRANSLATE_NOOP("MainWindow", "No error."),
        QT_TRANSLATE_NOOP("MainWindow", "Device not found error."),
        QT_TRANSLATE_NOOP("MainWindow", "Permission error."),
        QT_TRANSLATE_NOOP("MainWindow", "Open error."),
        QT_TRANSLATE_NOOP("MainWindow", "Write error."),
        QT_TRANSLATE_NOOP("MainWindow", "Read error."),
        QT_TRANSLATE_NOOP("MainWindow", "Resource error."),
        QT_TRANSLATE_NOOP("MainWindow", "Unsupported operation error."),
        QT_TRANSLATE_NOOP("MainWindow", "Unknown error."),
        QT_TRANSLATE_NOOP("MainWindow", "Timeout error."),
        QT_TRANSLATE_NOOP("MainWindow", "Not open error."),
    };
    if (error < 0 || error >= static_cast<int>(std::size(messages)))
        return QT_TRANSLATE_NOOP("MainWindow",
                                 "Unkown error."); // sic: not the "Unknown" of error 8
    return messages[error];
}

QStringList serialPortNames(const QString &extraPorts)
{
    QStringList names;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts())
        names.append(port.portName());
    return names + extraPorts.split(u':', Qt::SkipEmptyParts);
}
