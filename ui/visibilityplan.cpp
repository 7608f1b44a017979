// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/visibilityplan.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QSet>
#include <QWidget>

#include <algorithm>

namespace {

/// Whether the widget was told so already. One that was told nothing goes with its parent.
bool is(const QWidget *widget, bool visible)
{
    return widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->isHidden() != visible;
}

/// Keeps the layouts around a widget, in turn, from following what happens in them.
void stopLayouts(const QWidget *widget, QSet<QLayout *> &stopped)
{
    for (const QWidget *around = widget->parentWidget(); around; around = around->parentWidget()) {
        QLayout *layout = around->layout();
        if (!layout || !layout->isEnabled())
            continue;
        layout->setEnabled(false);
        stopped.insert(layout);
    }
}

} // namespace

void VisibilityPlan::decide(std::initializer_list<QWidget *> widgets, bool visible)
{
    for (QWidget *widget : widgets) {
        const auto known = std::find_if(
            m_decisions.begin(), m_decisions.end(),
            [widget](const Decision &decision) { return decision.widget == widget; });
        if (known == m_decisions.end())
            m_decisions.append({widget, visible});
        else
            known->visible = visible;
    }
}

void VisibilityPlan::carryOut()
{
    // Each of the layouts around would be carried out once for every widget that is shown in it.
    QSet<QLayout *> stopped;
    for (const auto &[widget, visible] : m_decisions) {
        if (is(widget, visible))
            continue;
        stopLayouts(widget, stopped);
        widget->setVisible(visible);
    }
    for (QLayout *layout : std::as_const(stopped)) {
        layout->setEnabled(true);
        // A panel that was shown meanwhile has missed its turn, and asks for no other one.
        QCoreApplication::postEvent(layout->parentWidget(), new QEvent(QEvent::LayoutRequest));
    }
    m_decisions.clear();
}
