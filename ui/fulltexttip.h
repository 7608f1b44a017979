// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// Puts the current text of a list that has no room for it in front of the list's tool tip. It is
/// an event filter of lists; the tool tips themselves stay as the form and the language set them.
class FullTextTip : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};
