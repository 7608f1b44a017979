// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QTimer>

/// Answers message boxes as a user who presses OK, and keeps what they said.
class MessageBoxCatcher : public QObject
{
    Q_OBJECT

public:
    struct Message
    {
        QString title;
        QString text;
        int icon;              ///< QMessageBox::Icon
        int buttons;           ///< QMessageBox::StandardButtons
        bool hasDefaultButton; ///< one that was set, not the one that the box picks by itself
        QWidget *parent;
    };

    MessageBoxCatcher();

    QList<Message> messages;

private:
    void answer();

    QTimer m_timer;
};
