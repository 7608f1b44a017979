// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/deviceconnection.h"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

/// A serial line: the master of a pseudo-terminal, whose other end a console opens as its port.
///
/// The line is there whether or not a console is on it, like a cable. Bytes that nobody reads for
/// half a minute are lost.
class PtyConnection : public DeviceConnection
{
    Q_OBJECT

public:
    explicit PtyConnection(QObject *parent);
    ~PtyConnection() override;

    /// \return false when the system has no pseudo-terminal left
    bool open();
    /// What the console opens; another one after hangUp().
    QString path() const { return m_path; }

    void send(const QByteArray &bytes) override;
    /// Pulls the plug and puts it into a new pseudo-terminal.
    void hangUp() override;

signals:
    void pathChanged(const QString &path);

private:
    void close();
    void readMaster();
    void writeMaster();
    /// The bytes that the console has not read yet.
    int unreadBytes() const;
    void dropUnread();
    void pullPlugWhenRead();

    int m_master = -1;
    int m_slave = -1;
    QString m_path;
    QByteArray m_unsent;
    std::unique_ptr<QSocketNotifier> m_readNotifier;
    std::unique_ptr<QSocketNotifier> m_writeNotifier;
    QTimer m_unreadTimer;
    QTimer m_plugTimer;
    QElapsedTimer m_hangingUp;
    QElapsedTimer m_quiet; ///< since when nothing unread was seen
};
