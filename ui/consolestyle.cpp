// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/consolestyle.h"

#include "ui/disabledpalette.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFrame>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionSpinBox>

namespace {

/// The text edit keeps its frame.
bool isPanel(const QWidget *widget)
{
    return qobject_cast<const QFrame *>(widget)
           && !qobject_cast<const QAbstractScrollArea *>(widget);
}

/// For pictures; thin ones keep 3 : 1 on light and on dark buttons.
QColor grey(const QPalette &palette)
{
    return DisabledPalette::mixed(palette.color(QPalette::Active, QPalette::ButtonText),
                                  palette.color(QPalette::Active, QPalette::Button), 0.57F);
}

void drawFocus(QPainter *painter, const QRect &rectangle, const QPalette &palette)
{
    constexpr int dark = 128;
    const bool isDark = palette.color(QPalette::Window).lightness() < dark;
    const QColor highlight = palette.color(QPalette::Highlight);
    painter->save();
    painter->setPen(isDark ? highlight.lighter(150) : highlight); // in percent
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rectangle.adjusted(0, 0, -1, -1));
    painter->restore();
}

void drawIndicatorOutline(QPainter *painter, const QRect &rectangle, bool isRound,
                          const QPalette &palette)
{
    QColor colour = palette.color(QPalette::Active, QPalette::WindowText);
    colour.setAlphaF(0.5F); // more than 3 : 1 to the window, less than the text has
    painter->save();
    painter->setPen(colour);
    painter->setBrush(Qt::NoBrush);
    if (isRound) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QRectF(rectangle).adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        painter->drawRect(rectangle.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

} // namespace

ConsoleStyle::ConsoleStyle()
    : QProxyStyle(QApplication::style()->name())
{
}

void ConsoleStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButtonLabel && button && !button->state.testFlag(State_Enabled)
        && !button->icon.isNull()) {
        // The picture that a style makes by itself is hardly seen.
        QStyleOptionButton disabled(*button);
        disabled.icon = tinted(button->icon, button->iconSize,
                               painter->device()->devicePixelRatioF(), grey(button->palette));
        QProxyStyle::drawControl(element, &disabled, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ShapedFrame && option->state.testFlag(State_HasFocus))
        drawFocus(painter, option->rect, option->palette);
}

void ConsoleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(option)) {
        QStyleOptionSpinBox known(*box);
        known.palette = knownPalette(box->palette);
        QProxyStyle::drawComplexControl(control, &known, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_Slider && option->state.testFlag(State_HasFocus)) {
        const QRect handle = subControlRect(CC_Slider, option, SC_SliderHandle, widget);
        drawFocus(painter, handle, option->palette);
        drawFocus(painter, handle.adjusted(1, 1, -1, -1), option->palette);
    }
}

QPalette ConsoleStyle::knownPalette(const QPalette &palette) const
{
    constexpr qsizetype most = 16;
    qsizetype place = m_palettes.indexOf(palette);
    if (place < 0) {
        if (m_palettes.size() == most)
            m_palettes.clear();
        place = m_palettes.size();
        m_palettes.append(palette);
    }
    QPalette known = m_palettes.at(place);
    known.setCurrentColorGroup(palette.currentColorGroup());
    return known;
}

QIcon ConsoleStyle::tinted(const QIcon &icon, QSize size, qreal devicePixelRatio,
                           const QColor &colour) const
{
    constexpr qsizetype most = 128; // more than the window has buttons
    for (const TintedIcon &known : std::as_const(m_tintedIcons)) {
        if (known.shape == icon.cacheKey() && known.size == size
            && qFuzzyCompare(known.devicePixelRatio, devicePixelRatio) && known.colour == colour)
            return known.icon;
    }
    QPixmap pixmap = icon.pixmap(size, devicePixelRatio);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    painter.end();
    QIcon result;
    result.addPixmap(pixmap, QIcon::Disabled);
    if (m_tintedIcons.size() == most)
        m_tintedIcons.clear();
    m_tintedIcons.append({icon.cacheKey(), size, devicePixelRatio, colour, result});
    return result;
}

void ConsoleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    if (element != PE_Frame || !isPanel(widget))
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if (isRound || element == PE_IndicatorCheckBox)
        drawIndicatorOutline(painter, option->rect, isRound, option->palette);
    if (element == PE_FrameFocusRect)
        drawFocus(painter, option->rect, option->palette);
}

int ConsoleStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    if (metric == PM_DefaultFrameWidth && isPanel(widget))
        return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
}
