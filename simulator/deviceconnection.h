// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// The device's end of one link.
class DeviceConnection : public QObject
{
    Q_OBJECT

public:
    /// What waits to be sent to a console that does not read; what exceeds it is lost.
    static constexpr qint64 mostQueuedBytes = 4'194'304;

    using QObject::QObject;

    /// Queues the bytes, unless that would be too many.
    virtual void send(const QByteArray &bytes) = 0;

    /// Cuts the link when the bytes sent so far are out. What is sent meanwhile is lost.
    virtual void hangUp() = 0;

signals:
    void received(const QByteArray &bytes);
    /// The console is gone; no more will be received.
    void closed();
};
