// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testmain.h"
#include "ui/textlist.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString longText
    = u"Triggering of the secondary volume (Volume 2) of the player in the hall"_s;

/// A list of its own window, 160 pixels wide.
struct ShownList
{
    explicit ShownList(const QStringList &texts)
    {
        list.addItems(texts);
        list.setToolTip(u"Pick <one>"_s);
        list.resize(160, list.sizeHint().height());
        list.show();
    }

    QString toolTip()
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, list.rect().center(),
                         list.mapToGlobal(list.rect().center()));
        QCoreApplication::sendEvent(&list, &event);
        return QToolTip::text();
    }

    TextList list;
};

} // namespace

class tst_TextList : public QObject
{
    Q_OBJECT

private slots:
    void toolTip_data();
    void toolTip();
    void longTextShowsItsEnds();
    void widthDoesNotDependOnTheRows();
    void widthFollowsTheMinimumContentsLength();
    void popupShowsEveryRow();
};

void tst_TextList::toolTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("has room") << u"Play"_s << u"Pick <one>"_s;
    QTest::newRow("has no room") << longText << longText + u"<br/>Pick &lt;one&gt;"_s;
    QTest::newRow("markup without room")
        << u"<b>/dev/serial/by-id/usb-adapter-if00-port0</b>"_s
        << u"&lt;b&gt;/dev/serial/by-id/usb-adapter-if00-port0&lt;/b&gt;<br/>Pick &lt;one&gt;"_s;
}

void tst_TextList::toolTip()
{
    QFETCH(const QString, text);
    QFETCH(const QString, toolTip);

    ShownList shown({text});
    QCOMPARE(shown.toolTip(), toolTip);
}

void tst_TextList::longTextShowsItsEnds()
{
    ShownList cut({longText});
    const auto picture = [&cut](const QString &text) {
        cut.list.setItemText(0, text);
        return cut.list.grab().toImage();
    };
    const QImage all = picture(longText);
    QVERIFY(all != picture(longText.left(longText.size() / 2)));
    // Other beginnings and other ends are visible, another middle is not.
    QVERIFY(all != picture(u"X"_s + longText.sliced(1)));
    QVERIFY(all != picture(longText.chopped(1) + u'X'));
    QString otherMiddle = longText;
    otherMiddle.replace(longText.size() / 2, 1, u'X');
    QCOMPARE(picture(otherMiddle), all);
}

void tst_TextList::widthDoesNotDependOnTheRows()
{
    TextList list;
    list.setMinimumContentsLength(8);
    const QSize empty = list.sizeHint();
    QCOMPARE(list.minimumSizeHint(), empty);
    list.addItem(longText);
    QCOMPARE(list.sizeHint(), empty);
    QCOMPARE(list.minimumSizeHint(), empty);
}

void tst_TextList::widthFollowsTheMinimumContentsLength()
{
    TextList list;
    list.setMinimumContentsLength(8);
    const int width = list.sizeHint().width();
    list.setMinimumContentsLength(18);
    QCOMPARE(list.sizeHint().width() - width, 10 * list.fontMetrics().horizontalAdvance(u'X'));
}

void tst_TextList::popupShowsEveryRow()
{
    ShownList shown({u"1"_s, longText, u"3"_s});
    shown.list.setCurrentIndex(2);
    shown.list.showPopup();
    const QAbstractItemView *popup = shown.list.view();
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->currentIndex().row(), 2);
    const QRect room = popup->viewport()->rect();
    for (int row = 0; row < shown.list.count(); ++row) {
        const QRect place = popup->visualRect(popup->model()->index(row, 0));
        QVERIFY(!place.isEmpty());
        QVERIFY(room.top() <= place.top() && place.bottom() <= room.bottom());
    }
    QVERIFY(room.width() >= popup->fontMetrics().horizontalAdvance(longText));

    // The user picks a row.
    const QPoint second = popup->visualRect(popup->model()->index(1, 0)).center();
    QTest::mouseMove(popup->viewport(), second);
    QTest::mouseClick(popup->viewport(), Qt::LeftButton, {}, second);
    QTRY_COMPARE(shown.list.currentText(), longText);
    QVERIFY(!popup->isVisible());
}

TESSALY_WINDOW_TEST(tst_TextList)

#include "tst_textlist.moc"
