// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// The way to a device. A signal may be emitted while the call that asks for it is still running,
/// so whoever calls again from a slot connects it queued.
class DeviceLink : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Ends with opened() or failed(). May be called again once the link is closed.
    virtual void open() = 0;
    virtual bool isOpen() const = 0;
    /// Ends with written() when every byte has been handed to the system and, over a serial line,
    /// is on the line. To be called on an open link, with no other frame on its way.
    virtual void write(const QByteArray &frame) = 0;
    /// Lets the device have what was written, then ends with closed(). A link that is not open yet
    /// is given up.
    virtual void close() = 0;
    /// What errors call the device: "/dev/ttyUSB0", "192.168.1.20 port 1234".
    virtual QString name() const = 0;

signals:
    void opened();
    /// \a reason why the link cannot be opened, in one line
    void failed(const QString &reason);
    void written();
    void received(const QByteArray &bytes);
    /// The device has ended the connection in good order; the link is closed.
    void hungUp();
    /// The link broke and is closed.
    void lost(const QString &reason);
    void closed();
};
