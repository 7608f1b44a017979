// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QList>
#include <QPalette>
#include <QProxyStyle>
#include <QSize>

/// The application's style with what this window's parts want otherwise. It is set on single
/// widgets: children do not take it over.
class ConsoleStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ConsoleStyle();

    /// A disabled button's picture is grey and can still be made out. It is made once: Qt keeps a
    /// picture for each icon that it meets, and its name for longer.
    /// A text that takes the keyboard focus shows it.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    /// The handle of a slider shows the keyboard focus. A spin box looks as ever, but is drawn with
    /// a palette of which there is one only. Qt keeps a picture for each palette that it meets, and
    /// below a style sheet it meets another one, with the same colours, each time.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    /// A panel has no outline: separator lines divide the groups, and captions share one edge. What
    /// has the keyboard focus has one, and so have check boxes and radio buttons, also on a dark
    /// palette.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;

private:
    /// The first palette of these colours; it and its copies share their identity.
    QPalette knownPalette(const QPalette &palette) const;

    /// The shape of an icon in one colour, for a disabled button.
    QIcon tinted(const QIcon &icon, QSize size, qreal devicePixelRatio, const QColor &colour) const;

    struct TintedIcon
    {
        qint64 shape; ///< cache key of the icon
        QSize size;
        qreal devicePixelRatio;
        QColor colour;
        QIcon icon;
    };

    mutable QList<QPalette> m_palettes;
    mutable QList<TintedIcon> m_tintedIcons;
};
