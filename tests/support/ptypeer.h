// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// The device's end of a serial link: the master of a pseudo-terminal.
class PtyPeer
{
public:
    PtyPeer();
    ~PtyPeer();
    Q_DISABLE_COPY_MOVE(PtyPeer)

    int handle() const { return m_master; }
    /// What the console opens as its serial port.
    QString portName() const { return m_portName; }

    /// Everything that the console has sent since the last takeReceived().
    QByteArray received();
    QByteArray takeReceived();

    /// Sends all the bytes, running the event loop while the console has to catch up.
    /// \return false when the console did not take them within five seconds
    bool send(const QByteArray &bytes);

    /// Pulls the plug.
    void hangUp();

private:
    int m_master = -1;
    QString m_portName;
    QByteArray m_received;
};
