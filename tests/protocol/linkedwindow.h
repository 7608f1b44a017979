// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"
#include "tests/support/consolewindow.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"

#include <QComboBox>

#include <functional>
#include <memory>

/// How long a failing test waits, in milliseconds: long enough for a machine with other work.
inline constexpr int patience = 20'000;

/// What an act of the user has put on the wire, and the text that shows it.
struct Sent
{
    QByteArray bytes; ///< as the console shows bytes, "85 02 01"; or why nothing can be said
    QString shown;
};

/// The window at a model, linked to a device over the model's own link: a pseudo-terminal, or a
/// server on the model's port. A model that connects on demand gets its link with each command,
/// and loses it after each act.
class LinkedWindow : public ConsoleWindow
{
public:
    /// \a model the name of one that is offered, or defined without being offered
    explicit LinkedWindow(const QString &model);
    /// Offers the model in place of the one of the same name, or after all others.
    explicit LinkedWindow(const DeviceModel &model);
    ~LinkedWindow();
    Q_DISABLE_COPY_MOVE(LinkedWindow)

    /// Picks a row of a list by its text, as the user does; false when there is none.
    bool choose(const char *list, const QString &text);
    /// Puts any text into a list and picks it.
    void setListText(const char *list, const QString &text);
    /// Picks the player that the frames are addressed to.
    bool choosePlayer(int playerId);

    /// What the act sends. A frame of an unknown code follows it, so that neither a frame too many
    /// nor a missing one goes unseen. A message box is reported in place of the bytes.
    Sent sentBy(const std::function<void()> &act);
    /// Clicks a button. One that cannot be clicked is reported in place of the bytes.
    Sent press(const char *button);
    /// Presses the keys of a shortcut, as QKeySequence writes them.
    Sent type(const QString &shortcut);
    /// Calls a slot of the window, as one without a visible widget has to be.
    Sent call(const char *slot);

    TcpPeer *tcp() const { return m_tcp.get(); }
    PtyPeer &pty() { return m_pty; }
    QByteArray takeReceived();

private:
    void link(const QString &name);
    bool hangUp() const;
    QByteArray messageText() const;

    MessageBoxCatcher m_messageBoxes;
    DeviceModel m_model;
    PtyPeer m_pty;
    std::unique_ptr<TcpPeer> m_tcp;
    bool m_isLinked = true;
};
