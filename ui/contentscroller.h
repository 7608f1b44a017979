// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>

class QScrollBar;
class QWidget;

/// Scrolls the content of a widget that is smaller than its layout needs, by scroll bars, the wheel
/// and the keyboard focus. Unlike QScrollArea it leaves the content where it is in the tree of
/// widgets: the layout is given more room than its widget has.
class ContentScroller : public QObject
{
    Q_OBJECT

public:
    /// \a view a widget with a layout and a small minimum size; owns the scroller
    explicit ContentScroller(QWidget *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void arrange();
    void placeBar(QScrollBar *&bar, Qt::Orientation orientation, int page, int content);
    void moveContent();
    /// At least the room; more where the layout needs more.
    QSize contentSize(QSize room) const;
    void showFocus(const QWidget *focus);

    QWidget *m_view;
    QSize m_content;
    QPoint m_moved; ///< how far the content is scrolled already
    // Made when they are needed for the first time.
    QScrollBar *m_horizontal = nullptr;
    QScrollBar *m_vertical = nullptr;
};
