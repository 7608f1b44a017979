// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

/// A device that never answers: a listener on TcpPeer::address() whose queue is full, so that the
/// system drops every further attempt without a word.
class SilentPeer
{
public:
    explicit SilentPeer(quint16 port);
    ~SilentPeer();
    Q_DISABLE_COPY_MOVE(SilentPeer)

private:
    int m_listener = -1;
    QList<int> m_waiting; ///< connections that nobody takes
};
