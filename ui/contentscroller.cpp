// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/contentscroller.h"

#include <QApplication>
#include <QLayout>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

namespace {

bool isShown(const QScrollBar *bar)
{
    return bar && !bar->isHidden();
}

int offset(const QScrollBar *bar)
{
    return isShown(bar) ? bar->value() : 0;
}

/// Scrolls as little as needed to bring what stands from `from` to `to` into view; its beginning,
/// if there is not enough room for all of it.
void showRange(QScrollBar *bar, int from, int to)
{
    if (!isShown(bar))
        return;
    if (from < 0)
        bar->setValue(bar->value() + from);
    else if (to > bar->pageStep())
        bar->setValue(bar->value() + qMin(from, to - bar->pageStep()));
}

} // namespace

ContentScroller::ContentScroller(QWidget *view)
    : QObject(view)
    , m_view(view)
{
    view->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { showFocus(now); });
}

bool ContentScroller::eventFilter(QObject *watched, QEvent *event)
{
    // The layout has just squeezed its content into the view: it saw the event first.
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        arrange();
    } else if (event->type() == QEvent::Wheel) {
        const QPoint turn = static_cast<QWheelEvent *>(event)->angleDelta();
        QScrollBar *bar = qAbs(turn.x()) > qAbs(turn.y()) ? m_horizontal : m_vertical;
        if (isShown(bar))
            return QCoreApplication::sendEvent(bar, event);
    }
    return QObject::eventFilter(watched, event);
}

void ContentScroller::arrange()
{
    const QSize room = m_view->size();
    const int thickness = m_view->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_view);
    QSize page = room;
    m_content = contentSize(page);
    // A bar takes room away, and may make the other one necessary.
    for (int pass = 0; pass < 2; ++pass) {
        page = room
               - QSize(m_content.height() > page.height() ? thickness : 0,
                       m_content.width() > page.width() ? thickness : 0);
        m_content = contentSize(page);
    }

    placeBar(m_vertical, Qt::Vertical, page.height(), m_content.height());
    placeBar(m_horizontal, Qt::Horizontal, page.width(), m_content.width());
    if (isShown(m_vertical))
        m_vertical->setGeometry(room.width() - thickness, 0, thickness, room.height());
    if (isShown(m_horizontal))
        m_horizontal->setGeometry(0, room.height() - thickness, page.width(), thickness);

    if (m_content == room && m_moved.isNull())
        return;
    // A layout places nothing when its rectangle is the same as before.
    m_view->layout()->setGeometry(QRect(QPoint(), m_content + QSize(0, 1)));
    m_view->layout()->setGeometry(QRect(QPoint(), m_content));
    m_moved = {};
    moveContent();
}

void ContentScroller::placeBar(QScrollBar *&bar, Qt::Orientation orientation, int page, int content)
{
    const bool needed = content > page;
    if (!bar && needed) {
        bar = new QScrollBar(orientation, m_view);
        // A wheel turn that the bar does not take must not come back to it by way of the view.
        bar->setAttribute(Qt::WA_NoMousePropagation);
        connect(bar, &QScrollBar::valueChanged, this, &ContentScroller::moveContent);
    }
    if (!bar)
        return;
    bar->setVisible(needed);
    bar->raise();
    bar->setRange(0, content - page);
    bar->setPageStep(page);
    bar->setSingleStep(m_view->fontMetrics().lineSpacing() * 2);
}

void ContentScroller::moveContent()
{
    const QPoint scrolled(offset(m_horizontal), offset(m_vertical));
    const QPoint step = m_moved - scrolled;
    m_moved = scrolled;
    // The bars stay.
    const QList<QWidget *> children
        = m_view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child != m_horizontal && child != m_vertical && !child->isWindow())
            child->move(child->pos() + step);
    }
}

QSize ContentScroller::contentSize(QSize room) const
{
    const QLayout *layout = m_view->layout();
    const QSize least = layout->minimumSize();
    const int width = qMax(room.width(), least.width());
    // Texts that wrap make the height depend on the width.
    const int height
        = layout->hasHeightForWidth() ? layout->minimumHeightForWidth(width) : least.height();
    return {width, qMax(room.height(), height)};
}

void ContentScroller::showFocus(const QWidget *focus)
{
    if (!focus || !m_view->isAncestorOf(focus))
        return;
    // The caption above a field shall be seen, too.
    const int above = m_view->fontMetrics().lineSpacing() * 2;
    const int around = m_view->fontMetrics().lineSpacing() / 2;
    const QRect place = QRect(focus->mapTo(m_view, QPoint()), focus->size())
                            .adjusted(-around, -above, around, around);
    showRange(m_vertical, place.top(), place.bottom());
    showRange(m_horizontal, place.left(), place.right());
}
