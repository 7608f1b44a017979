// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

/// A network device on TcpPeer::address() that does nothing by itself: it takes one connection and
/// does not read what is sent to it, unless it is told to.
class PassivePeer
{
public:
    explicit PassivePeer(quint16 port);
    ~PassivePeer();
    Q_DISABLE_COPY_MOVE(PassivePeer)

    /// From here on, every further attempt to connect stays unanswered, as that to a device which
    /// is switched off.
    void stopAnswering();
    /// Takes the connection that waits, with the minimum of room for unread bytes.
    /// \return false when none comes within five seconds
    bool accept();
    void send(const QByteArray &bytes) const;
    /// What has come since the last call and fits into the system's room for unread bytes.
    QByteArray read() const;
    /// Says that it sends nothing more; the other direction stays open.
    void stopSending() const;
    /// Breaks the connection, as a device that does not know it any more.
    void reset();
    /// From here on it does not even acknowledge, as a device whose cable is cut.
    void ignoreEverything() const;

private:
    int m_listener = -1;
    int m_connection = -1;
    QList<int> m_waiting; ///< connections that nobody takes
};
