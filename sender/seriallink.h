// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sender/devicelink.h"

#include <QSerialPort>
#include <QTimer>

/// A device at a serial port.
class SerialLink : public DeviceLink
{
    Q_OBJECT

public:
    /// \a port as the platform lists it, or a path
    SerialLink(const QString &port, qint32 baudRate, QObject *parent = nullptr);

    void open() override;
    bool isOpen() const override { return m_port.isOpen(); }
    void write(const QByteArray &frame) override;
    void close() override;
    QString name() const override { return m_name; }

private:
    QString openError() const;
    void handleError(QSerialPort::SerialPortError error);
    void handleBytesWritten();
    void drain();

    QString m_name;
    QSerialPort m_port;
    QTimer m_drainTimer;
    bool m_isOpening = false;
    bool m_isWriting = false;
};
