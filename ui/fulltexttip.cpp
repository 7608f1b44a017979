// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/fulltexttip.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isCut(const QComboBox *list)
{
    QStyleOptionComboBox option;
    option.initFrom(list);
    option.editable = false;
    option.subControls = QStyle::SC_All;
    const QRect field = list->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, list);
    // The styles leave a pixel free on both sides of the text.
    return list->fontMetrics().horizontalAdvance(list->currentText()) > field.width() - 2;
}

} // namespace

FullTextTip::FullTextTip(const QList<QComboBox *> &lists, QObject *parent)
    : QObject(parent)
{
    for (QComboBox *list : lists)
        list->installEventFilter(this);
}

bool FullTextTip::eventFilter(QObject *watched, QEvent *event)
{
    auto *list = qobject_cast<QComboBox *>(watched);
    if (event->type() != QEvent::ToolTip || !list || !isCut(list))
        return QObject::eventFilter(watched, event);
    // Nothing in the name of a port is markup.
    const QString text
        = list->currentText().toHtmlEscaped() + "<br/>"_L1 + list->toolTip().toHtmlEscaped();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text, list);
    return true;
}
