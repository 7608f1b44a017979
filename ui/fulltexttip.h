// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

class QComboBox;

/// Puts the current text of a list that has no room for it in front of the list's tool tip. The
/// tool tips themselves stay as the form and the language set them.
class FullTextTip : public QObject
{
    Q_OBJECT

public:
    FullTextTip(const QList<QComboBox *> &lists, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
