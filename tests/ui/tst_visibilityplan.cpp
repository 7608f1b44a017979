// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testmain.h"
#include "ui/visibilityplan.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

/// Counts how often it is shown and hidden.
class CountingLabel : public QLabel
{
public:
    using QLabel::QLabel;

    int changes = 0;

protected:
    void showEvent(QShowEvent *event) override
    {
        ++changes;
        QLabel::showEvent(event);
    }
    void hideEvent(QHideEvent *event) override
    {
        ++changes;
        QLabel::hideEvent(event);
    }
};

/// A window with a panel of two labels.
struct Panel
{
    Panel()
    {
        outer.addWidget(&panel);
        inner.addWidget(&first);
        inner.addWidget(&second);
    }

    QWidget window;
    QVBoxLayout outer{&window};
    QWidget panel;
    QVBoxLayout inner{&panel};
    CountingLabel first{QStringLiteral("first")};
    CountingLabel second{QStringLiteral("second")};
};

} // namespace

class tst_VisibilityPlan : public QObject
{
    Q_OBJECT

private slots:
    void lastWordCounts();
    void whatStaysIsLeftAlone();
    void hiddenBeforeTheWindowIsShown();
    void layoutsFollow();
    void panelComesWithItsContent();
    void planIsEmptyAfterwards();
};

void tst_VisibilityPlan::lastWordCounts()
{
    Panel panel;
    panel.window.show();
    VisibilityPlan plan;
    plan.hide({&panel.first, &panel.second});
    plan.show({&panel.first});
    plan.hide({&panel.first});
    plan.show({&panel.second});
    // Nothing happens before.
    QVERIFY(panel.first.isVisible());
    plan.carryOut();
    QVERIFY(!panel.first.isVisible());
    QVERIFY(panel.second.isVisible());
}

void tst_VisibilityPlan::whatStaysIsLeftAlone()
{
    Panel panel;
    panel.first.show();
    panel.second.hide();
    panel.window.show();
    panel.first.changes = 0;
    panel.second.changes = 0;
    VisibilityPlan plan;
    plan.hide({&panel.first, &panel.second});
    plan.show({&panel.first});
    plan.carryOut();
    QCOMPARE(panel.first.changes, 0);
    QCOMPARE(panel.second.changes, 0);
}

// A widget that nobody has hidden comes with its window, although it is not visible before.
void tst_VisibilityPlan::hiddenBeforeTheWindowIsShown()
{
    Panel panel;
    VisibilityPlan plan;
    plan.hide({&panel.first});
    plan.show({&panel.second});
    plan.carryOut();
    panel.window.show();
    QVERIFY(!panel.first.isVisible());
    QVERIFY(panel.second.isVisible());
}

void tst_VisibilityPlan::layoutsFollow()
{
    Panel panel;
    panel.first.hide();
    panel.window.show();
    QTRY_COMPARE(panel.second.y(), panel.inner.contentsMargins().top());
    VisibilityPlan plan;
    plan.show({&panel.first});
    plan.carryOut();
    QTRY_VERIFY(panel.second.y() > panel.first.y() + panel.first.height());

    plan.hide({&panel.first});
    plan.carryOut();
    QTRY_COMPARE(panel.second.y(), panel.inner.contentsMargins().top());
}

// The panel keeps its size, so nothing but its own layout tells it that its content is another one.
void tst_VisibilityPlan::panelComesWithItsContent()
{
    Panel panel;
    panel.panel.setFixedHeight(100);
    panel.window.show();
    QTRY_VERIFY(panel.second.y() > panel.first.y());
    VisibilityPlan plan;
    plan.hide({&panel.panel});
    plan.carryOut();
    panel.first.setText(QStringLiteral("another"));
    QCoreApplication::sendPostedEvents(); // not laid out, as it is hidden, and not asked for again
    plan.hide({&panel.first});
    plan.show({&panel.panel});
    plan.carryOut();
    QTRY_COMPARE(panel.second.y(), panel.inner.contentsMargins().top());
}

void tst_VisibilityPlan::planIsEmptyAfterwards()
{
    Panel panel;
    panel.window.show();
    VisibilityPlan plan;
    plan.hide({&panel.first});
    plan.carryOut();
    panel.first.show();
    plan.carryOut();
    QVERIFY(panel.first.isVisible());
}

TESSALY_WINDOW_TEST(tst_VisibilityPlan)

#include "tst_visibilityplan.moc"
