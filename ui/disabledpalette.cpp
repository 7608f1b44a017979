// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/disabledpalette.h"

#include <QEvent>
#include <QWidget>

DisabledPalette::DisabledPalette(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
{
    widget->installEventFilter(this);
    update();
}

bool DisabledPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        update();
    return QObject::eventFilter(watched, event);
}

QColor DisabledPalette::mixed(const QColor &front, const QColor &back, float share)
{
    const auto between
        = [share](float one, float other) { return share * one + (1 - share) * other; };
    return QColor::fromRgbF(between(front.redF(), back.redF()),
                            between(front.greenF(), back.greenF()),
                            between(front.blueF(), back.blueF()));
}

QPalette DisabledPalette::tones(const QPalette &palette)
{
    // The thin strokes of letters keep 4.5 : 1 on usual light and dark windows.
    constexpr float share = 0.65F;
    QPalette result;
    for (const auto &[text, background] : {std::pair(QPalette::WindowText, QPalette::Window),
                                           std::pair(QPalette::Text, QPalette::Base),
                                           std::pair(QPalette::ButtonText, QPalette::Button)}) {
        result.setColor(QPalette::Disabled, text,
                        mixed(palette.color(QPalette::Active, text),
                              palette.color(QPalette::Active, background), share));
    }
    return result;
}

void DisabledPalette::update()
{
    const QPalette wanted = tones(m_widget->palette());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        if (m_widget->palette().color(QPalette::Disabled, role)
            != wanted.color(QPalette::Disabled, role)) {
            m_widget->setPalette(wanted);
            return;
        }
    }
}
