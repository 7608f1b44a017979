// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/seriallink.h"

#include "link/serialhandle.h"
#include "link/serialsettings.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto drainCheckInterval = 1ms;

} // namespace

SerialLink::SerialLink(const QString &port, qint32 baudRate, QObject *parent)
    : DeviceLink(parent)
    , m_name(port)
{
    applyLineSettings(port, acceptedBaudRate(baudRate), m_port);
    m_drainTimer.setInterval(drainCheckInterval);
    m_drainTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_drainTimer, &QTimer::timeout, this, &SerialLink::drain);
    connect(&m_port, &QSerialPort::readyRead, this, [this] { emit received(m_port.readAll()); });
    connect(&m_port, &QSerialPort::bytesWritten, this, &SerialLink::handleBytesWritten);
    connect(&m_port, &QSerialPort::errorOccurred, this, &SerialLink::handleError);
}

void SerialLink::open()
{
    m_isOpening = true;
    const bool isOpen = m_port.open(QIODevice::ReadWrite);
    // What came before is no answer to what is sent now.
    if (isOpen)
        m_port.clear(QSerialPort::Input);
    m_isOpening = false;
    if (isOpen)
        emit opened();
    else
        emit failed(openError());
}

QString SerialLink::openError() const
{
    if (m_port.error() != QSerialPort::PermissionError)
        return m_port.errorString();
    // Qt, too, takes names below /dev, but for those that begin like a path.
    const bool isPath = m_name.startsWith(u'/') || m_name.startsWith(u'.');
    const QFileInfo device(isPath ? m_name : "/dev/"_L1 + m_name);
    if (device.isReadable() && device.isWritable())
        return m_port.errorString() + ": another program has it open"_L1;
    return m_port.errorString()
           + ": you may have to join the group dialout (sudo usermod --append --groups dialout "
             "$USER), and log in anew"_L1;
}

void SerialLink::write(const QByteArray &frame)
{
    m_isWriting = true;
    m_port.write(frame);
}

void SerialLink::close()
{
    m_drainTimer.stop();
    m_isWriting = false;
    m_port.close();
    emit closed();
}

/// A device that vanishes makes an open port report errors without end, so it is closed first.
void SerialLink::handleError(QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::NoError || m_isOpening || !m_port.isOpen())
        return;
    const QString reason = m_port.errorString();
    m_drainTimer.stop();
    m_isWriting = false;
    m_port.close();
    emit lost(reason);
}

void SerialLink::handleBytesWritten()
{
    if (m_isWriting && m_port.bytesToWrite() == 0)
        drain();
}

/// What the system has is not on the line yet, and closing the port changes the line's settings.
void SerialLink::drain()
{
    if (!isDrained(m_port)) {
        m_drainTimer.start();
        return;
    }
    m_drainTimer.stop();
    m_isWriting = false;
    emit written();
}
