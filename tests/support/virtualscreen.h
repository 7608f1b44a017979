// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <sys/types.h>

struct xcb_connection_t;

/// An X server without a screen, at a display number of its own, for as long as the object lives.
/// It needs no application object, so that the test's own one can be created on it. When the test
/// is killed, it ends together with its last client.
class VirtualScreen
{
public:
    VirtualScreen() = default;
    ~VirtualScreen();
    Q_DISABLE_COPY_MOVE(VirtualScreen)

    /// Returns when the server accepts clients.
    /// \a size "WIDTHxHEIGHT" of the screen in pixels
    /// \return false when there is no such program, or it ends or says nothing for 30 seconds
    bool start(const char *size = "1280x1024");

    /// For the environment variable DISPLAY: ":99".
    QByteArray displayName() const { return m_displayName; }

    /// Lets this process and the programs that it starts use the screen, without any part of the
    /// user's desktop session. To be called after start(), before the application object is
    /// created.
    void useForPrograms() const;

private:
    pid_t m_process = -1;
    QByteArray m_displayName;
    xcb_connection_t *m_connection = nullptr; ///< the server stays as long as it has a client
};
