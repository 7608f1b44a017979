// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The baud rate to open a port with: itself when the devices know it, else 9600.
qint32 acceptedBaudRate(qint32 baudRate);

/// Message for a QSerialPort::SerialPortError, to be translated in the context MainWindow.
const char *serialErrorMessage(int error);

/// The ports to offer: those that the platform lists, in its order, then the extra ones.
/// \a extraPorts paths of ports that the platform does not list, such as pseudo-terminals and
/// serial bridges, separated by ':'; empty parts are left out
QStringList serialPortNames(const QString &extraPorts);
