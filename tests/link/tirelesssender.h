// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <atomic>
#include <thread>

/// A device that sends without pause, from a thread of its own, so that the console's event loop
/// has nothing to do with it.
class TirelessSender
{
public:
    /// \a handle of a PtyPeer or a TcpPeer that outlives the sender
    TirelessSender(int handle, QByteArray bytes);
    /// Breaks off what is not sent yet.
    ~TirelessSender();
    Q_DISABLE_COPY_MOVE(TirelessSender)

    qsizetype sentCount() const { return m_sentCount; }
    bool isDone() const { return m_sentCount == m_bytes.size(); }

private:
    void send();

    const int m_handle;
    const QByteArray m_bytes;
    std::atomic<qsizetype> m_sentCount = 0;
    std::atomic<bool> m_isBrokenOff = false;
    std::thread m_thread;
};
