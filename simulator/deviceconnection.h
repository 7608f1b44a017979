// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// The device's end of one link.
class DeviceConnection : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Queues the bytes. When the console does not read, what exceeds four megabytes is lost.
    virtual void send(const QByteArray &bytes) = 0;

    /// Cuts the link when the bytes sent so far are out.
    virtual void hangUp() = 0;

signals:
    void received(const QByteArray &bytes);
};
