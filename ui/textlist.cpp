// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/textlist.h"

#include <QHelpEvent>
#include <QStringListModel>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

TextList::TextList(QWidget *parent)
    : QComboBox(parent)
{
    // A list has a model for more than texts by itself, which takes ten times as long to fill.
    setModel(new QStringListModel(this));
}

QSize TextList::sizeHint() const
{
    constexpr int frame = 1; // in pixels, above and below
    const QFontMetrics metrics = fontMetrics();
    const QSize contents(minimumContentsLength() * metrics.horizontalAdvance(u'X'),
                         qMax(metrics.height(), iconSize().height()) + 2 * frame);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

QSize TextList::minimumSizeHint() const
{
    return sizeHint();
}

bool TextList::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip
        || fontMetrics().horizontalAdvance(currentText()) <= textRoom())
        return QComboBox::event(event);
    // Nothing in the name of a port is markup.
    const QString text = currentText().toHtmlEscaped() + "<br/>"_L1 + toolTip().toHtmlEscaped();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text, this);
    return true;
}

void TextList::paintEvent(QPaintEvent *)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, textRoom());
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

int TextList::textRoom() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // The styles leave a pixel free on both sides of the text.
    return field.width() - 2;
}
