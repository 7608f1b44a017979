// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QSerialPort;

/// The baud rate to open a port with: itself when the devices know it, else 9600.
qint32 acceptedBaudRate(qint32 baudRate);

/// Sets what a port is opened with: its name, the baud rate for both directions, 8 data bits,
/// no parity, one stop bit and no flow control.
/// \a name as the platform lists it, or a path
/// \a baudRate as acceptedBaudRate() gives it
void applyLineSettings(const QString &name, qint32 baudRate, QSerialPort &port);

/// Message for a QSerialPort::SerialPortError, to be translated in the context MainWindow.
const char *serialErrorMessage(int error);

/// The ports to offer: those that the platform lists, in its order, then the extra ones.
/// \a extraPorts paths of ports that the platform does not list, such as pseudo-terminals and
/// serial bridges, separated by ':'; empty parts are left out
QStringList serialPortNames(const QString &extraPorts);
