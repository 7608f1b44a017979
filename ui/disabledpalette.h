// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPalette>

/// What is disabled in a widget, and in its children, is paler than what is enabled, but can still
/// be read. The tones follow the desktop's when they change.
class DisabledPalette : public QObject
{
    Q_OBJECT

public:
    /// Lives as long as `widget`.
    explicit DisabledPalette(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The colour between two, opaque.
    /// \a share of the front, 0 to 1
    static QColor mixed(const QColor &front, const QColor &back, float share);
    /// Of the three roles for texts the disabled tones that belong to the active ones of `palette`,
    /// and nothing else.
    static QPalette tones(const QPalette &palette);

private:
    void update();

    QWidget *m_widget;
};
