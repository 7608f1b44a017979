// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVarLengthArray>

#include <initializer_list>

class QWidget;

/// Which widgets are to be seen: decided step by step, carried out once. Whatever is shown in a
/// visible window has everything around it laid out at once, so a widget that is hidden and shown
/// again on the way is better left alone.
class VisibilityPlan
{
public:
    /// The last word on a widget counts.
    void hide(std::initializer_list<QWidget *> widgets) { decide(widgets, false); }
    void show(std::initializer_list<QWidget *> widgets) { decide(widgets, true); }

    /// Shows and hides the widgets that do not have the wanted state yet. The layouts follow when
    /// the event loop runs. The plan is empty afterwards.
    void carryOut();

private:
    void decide(std::initializer_list<QWidget *> widgets, bool visible);

    struct Decision
    {
        QWidget *widget;
        bool visible;
    };
    // A search through the few is quicker than a table of them.
    QVarLengthArray<Decision, 64> m_decisions; ///< one for each widget, in the order of their call
};
