// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "modelpanel.h"
#include "tests/support/consolewindow.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testmain.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>

#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// A command in text form of 40 bytes.
const QString longCommand
    = u"53 45 54 20 56 4F 4C 55 4D 45 20 31 30 30 20 53 45 54 20 56 4F 4C 55 4D 45 20 31 30 30 20 "
      "53 45 54 20 56 4F 4C 55 4D 45"_s;

/// QFontInfo does not say so of every font that has one, of Noto Sans Mono for example.
bool hasFixedPitch(const QWidget *widget)
{
    const QFontMetrics metrics = widget->fontMetrics();
    return metrics.horizontalAdvance(u"iii"_s) == metrics.horizontalAdvance(u"WWW"_s)
           && metrics.horizontalAdvance(u"..."_s) == metrics.horizontalAdvance(u"000"_s);
}

bool isControl(const QWidget *widget)
{
    if (const auto *radio = qobject_cast<const QRadioButton *>(widget))
        return radio->isChecked(); // the arrow keys reach the others
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget)
           || qobject_cast<const QSpinBox *>(widget) || qobject_cast<const QSlider *>(widget)
           || qobject_cast<const QTextEdit *>(widget)
           || widget->objectName() == "label_Bytes_Sended"_L1;
}

/// What the user can operate now.
QList<QWidget *> shownControls(const ConsoleWindow &console)
{
    QList<QWidget *> controls;
    const QList<QWidget *> widgets = console.window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && !name.startsWith("qt_"_L1) && isControl(widget)
            && widget->isVisible() && widget->isEnabled()) {
            controls.append(widget);
        }
    }
    return controls;
}

/// As if it were connected and not: every control of the model can be used.
void enableAll(const ConsoleWindow &console)
{
    auto *ports = console.find<QComboBox>("comboBox_Port");
    if (ports->count() == 0)
        ports->addItem(u"/dev/ttyS0"_s);
    for (const char *name : {"frame_Settings", "frame_Player", "frame_Port", "frame_Baudrate",
                             "frame_Commands", "pushButton_Connect", "pushButton_Disconnect"}) {
        console.find<QWidget>(name)->setEnabled(true);
    }
    QCoreApplication::sendPostedEvents();
}

QList<QWidget *> tabRound(ConsoleWindow &console)
{
    QWidget *first = console.find<QComboBox>("comboBox_Player");
    first->setFocus();
    QList<QWidget *> round;
    do {
        round.append(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && round.size() < 100);
    return round;
}

QRect placeOf(const ConsoleWindow &console, const QWidget *widget)
{
    return {widget->mapTo(&console.window, QPoint()), widget->size()};
}

QStringList namesOf(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets)
        names.append(widget->objectName());
    return names;
}

/// The Tab key reaches everything that the user can operate now, from left to right and from top to
/// bottom, the settings first.
void compareTabOrder(ConsoleWindow &console)
{
    enableAll(console);
    // The layouts follow a chosen model when the event loop runs.
    QCoreApplication::processEvents();
    const QList<QWidget *> round = tabRound(console);

    QStringList reached = namesOf(round);
    QStringList shown = namesOf(shownControls(console));
    reached.sort();
    shown.sort();
    QCOMPARE(reached, shown);

    const int commands = placeOf(console, console.find<QFrame>("frame_Commands")).left();
    for (qsizetype i = 1; i < round.size(); ++i) {
        const QRect before = placeOf(console, round.at(i - 1));
        const QRect after = placeOf(console, round.at(i));
        const bool nextColumn = before.left() < commands && after.left() >= commands;
        const bool sameColumn = (before.left() < commands) == (after.left() < commands);
        const bool below = after.top() > before.bottom();
        const bool toTheRight = after.left() > before.right() && after.bottom() >= before.top();
        QVERIFY2(
            nextColumn || (sameColumn && (below || toTheRight)),
            qPrintable(round.at(i - 1)->objectName() + " before "_L1 + round.at(i)->objectName()));
    }
}

} // namespace

class tst_Controls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyControlIsExplained();
    void toolTips_data();
    void toolTips();
    void buddies_data();
    void buddies();

    void tabOrderIsReadingOrder_data() { addModelRows(); }
    void tabOrderIsReadingOrder();
    void smallWindowKeepsEveryControl_data() { addModelRows(); }
    void smallWindowKeepsEveryControl();
    void wheelScrollsSmallWindow();
    void largeWindowHasNoBars();

    void captionsShareOneEdge_data() { addModelRows(); }
    void captionsShareOneEdge();
    void sentBytes();
    void receivedTextTakesTheHeight();

    void drawingKeepsNothing();
};

void tst_Controls::initTestCase()
{
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
}

void tst_Controls::everyControlIsExplained()
{
    const ConsoleWindow console;
    int icons = 0;
    int fields = 0;
    const QList<QWidget *> widgets = console.window.centralWidget()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"_L1))
            continue;
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool isIcon = button && button->text().isEmpty();
        const bool isField
            = qobject_cast<const QComboBox *>(widget) || qobject_cast<const QSpinBox *>(widget)
              || qobject_cast<const QSlider *>(widget) || qobject_cast<const QTextEdit *>(widget);
        if (!isIcon && !isField)
            continue;
        if (isIcon)
            QVERIFY2(!button->icon().isNull(), qPrintable(widget->objectName()));
        icons += isIcon ? 1 : 0;
        fields += isField ? 1 : 0;
        QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    QVERIFY(icons > 0);
    QVERIFY(fields > 0);
}

void tst_Controls::toolTips_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("accessibleName");

    const auto row = [](const char *name, const QString &toolTip, const QString &accessibleName) {
        QTest::newRow(name) << toolTip << accessibleName;
    };
    // The icons of these two are crossed; their words are not.
    row("pushButton_Volume_Less", u"Volume to minimum"_s, u"Volume to minimum"_s);
    row("pushButton_Volume_More", u"Volume to maximum"_s, u"Volume to maximum"_s);
    row("horizontalSlider_Volume", u"Volume (Ctrl++ louder, Ctrl+- softer)"_s, u"Volume"_s);
    row("comboBox_Folder", u"Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)"_s,
        u"Folder number"_s);
    row("pushButton_Folder", u"Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)"_s,
        u"Play the folder"_s);
    row("pushButton_Previous_Folder", u"Previous folder (Ctrl+Media Previous)"_s,
        u"Previous folder"_s);
    row("pushButton_Previous_File", u"Previous file (Media Previous)"_s, u"Previous file"_s);
    row("pushButton_Play", u"Play (Media Play)"_s, u"Play"_s);
    row("pushButton_Stop", u"Stop (Media Stop)"_s, u"Stop"_s);
    row("pushButton_Pause", u"Pause (Media Pause)"_s, u"Pause"_s);
    row("pushButton_Next_File", u"Next file (Media Next)"_s, u"Next file"_s);
    row("pushButton_Next_Folder", u"Next folder (Ctrl+Media Next)"_s, u"Next folder"_s);
    row("pushButton_Volume_Mute_Unmute", u"Mute or unmute (Volume Mute)"_s, u"Mute or unmute"_s);
    row("checkBox_Relay_8", u"Output contact 8"_s, u"Output contact 8"_s);
    row("pushButton_Subtitles_Select", u"Select the subtitles"_s, u"Select the subtitles"_s);
}

void tst_Controls::toolTips()
{
    QFETCH(const QString, toolTip);
    QFETCH(const QString, accessibleName);

    const ConsoleWindow console;
    const auto *widget = console.find<QWidget>(QTest::currentDataTag());
    QCOMPARE(widget->toolTip(), toolTip);
    QCOMPARE(widget->accessibleName(), accessibleName);
    console.find<QAction>("action_French")->trigger();
    QVERIFY(widget->toolTip() != toolTip);
    QVERIFY(widget->accessibleName() != accessibleName || accessibleName == "Pause"_L1
            || accessibleName == "Volume"_L1);
}

void tst_Controls::buddies_data()
{
    QTest::addColumn<QString>("field");
    const char *pairs[][2]
        = {{"label_Player", "comboBox_Player"},
           {"label_Port", "comboBox_Port"},
           {"label_Baudrate", "comboBox_Baudrate"},
           {"label_IP", "spinBox_IP_1"},
           {"label_ID", "comboBox_ID"},
           {"label_Change_ID", "comboBox_Change_ID"},
           {"label_Folder", "comboBox_Folder"},
           {"label_Source_Of_Playback", "comboBox_Source_Of_Playback"},
           {"label_Ref_Of_Playback", "comboBox_Ref_Of_Playback"},
           {"label_Option_Of_Playback", "comboBox_Option_Of_Playback"},
           {"label_Webradio_Ref_Of_Playback", "comboBox_Webradio_Ref_Of_Playback"},
           {"label_Other_Command", "comboBox_Other_Command"},
           {"label_Volume", "horizontalSlider_Volume"},
           {"label_Request", "comboBox_Request"},
           {"label_Relay_Command", "checkBox_Relay_1"},
           {"label_Subtitles_Type", "comboBox_Subtitles_Type"},
           {"label_Subtitles_Value", "comboBox_Subtitles_Value"},
           {"label_Sent", "label_Bytes_Sended"},
           {"label_Data", "textEdit_Data"}};
    for (const auto &pair : pairs)
        QTest::newRow(pair[0]) << QString::fromLatin1(pair[1]);
}

void tst_Controls::buddies()
{
    QFETCH(const QString, field);

    const ConsoleWindow console;
    const QWidget *buddy = console.find<QLabel>(QTest::currentDataTag())->buddy();
    QVERIFY(buddy);
    QCOMPARE(buddy->objectName(), field);
}

void tst_Controls::tabOrderIsReadingOrder()
{
    QFETCH(const ModelSheet, sheet);

    ConsoleWindow console;
    QVERIFY(QTest::qWaitForWindowActive(&console.window));
    console.selectModel(console.rowOfModel(sheet.name));
    compareTabOrder(console);
    auto *sources = console.find<QComboBox>("comboBox_Source_Of_Playback");
    for (const QString &source : kindsOfSources(sheet)) {
        QVERIFY(console.selectText("comboBox_Source_Of_Playback", source));
        emit sources->activated(sources->currentIndex());
        compareTabOrder(console);
    }
}

void tst_Controls::smallWindowKeepsEveryControl()
{
    QFETCH(const ModelSheet, sheet);

    ConsoleWindow console;
    QVERIFY(QTest::qWaitForWindowActive(&console.window));
    console.selectModel(console.rowOfModel(sheet.name));
    enableAll(console);
    console.find<QLabel>("label_Bytes_Sended")->setText(longCommand);
    // What is left of 1366 x 768 at scale 2, without title bar and panel.
    const QSize small(660, 300);
    QCOMPARE(console.window.minimumSizeHint().boundedTo(small), console.window.minimumSizeHint());
    console.window.resize(small);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(console.window.size(), small);

    const QWidget *view = console.window.centralWidget();
    const QList<QWidget *> round = tabRound(console);
    QCOMPARE(round.size(), shownControls(console).size());
    for (QWidget *control : round) {
        control->setFocus();
        const QRect place(control->mapTo(view, QPoint()), control->size());
        const QByteArray name = control->objectName().toLatin1();
        QVERIFY2(view->rect().contains(place), name.constData());
        const int least = control->minimumHeight() > 0 ? control->minimumHeight()
                                                       : control->minimumSizeHint().height();
        QVERIFY2(control->height() >= least, name.constData());
    }
}

void tst_Controls::wheelScrollsSmallWindow()
{
    ConsoleWindow console;
    QWidget *view = console.window.centralWidget();
    console.window.resize(660, 300);
    QCoreApplication::sendPostedEvents();
    const auto *frame = console.find<QFrame>("frame_Commands");
    const int before = frame->y();
    const auto turn = [view](int angle) {
        QWheelEvent event(QPointF(5, 5), view->mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view, &event);
    };
    turn(-120);
    QVERIFY(frame->y() < before);
    // Also at the end, where the bar has nothing left to do.
    turn(120);
    turn(120);
    QCOMPARE(frame->y(), before);
}

void tst_Controls::largeWindowHasNoBars()
{
    ConsoleWindow console;
    console.window.resize(660, 300);
    QCoreApplication::sendPostedEvents();
    const auto bars = [&] {
        int shown = 0;
        const QList<QScrollBar *> all = console.window.centralWidget()->findChildren<QScrollBar *>(
            QString(), Qt::FindDirectChildrenOnly);
        for (const QScrollBar *bar : all)
            shown += bar->isVisible() ? 1 : 0;
        return shown;
    };
    QCOMPARE(bars(), 1);
    console.window.resize(640, 798);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(bars(), 0);
    QCOMPARE(console.find<QFrame>("frame_Commands")->y(), 11);
}

void tst_Controls::captionsShareOneEdge()
{
    QFETCH(const ModelSheet, sheet);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(sheet.name));
    QCoreApplication::sendPostedEvents();
    const int edge = placeOf(console, console.find<QLabel>("label_Data")).left();
    for (const char *name :
         {"label_Content_Playback", "label_Source_Of_Playback", "label_Playback_Command",
          "label_Other_Command", "label_Volume", "label_Request", "label_Relay_Command",
          "label_Subtitles", "label_Subtitles_Type", "label_Sent", "label_Bytes_Sended",
          "textEdit_Data", "line_Sended_Bytes", "line_Volume"}) {
        const auto *widget = console.find<QWidget>(name);
        if (widget->isVisible())
            QVERIFY2(placeOf(console, widget).left() == edge, name);
    }
}

void tst_Controls::sentBytes()
{
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
    auto *label = console.find<QLabel>("label_Bytes_Sended");
    QVERIFY(hasFixedPitch(label));
    QVERIFY(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    QVERIFY(label->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    QCOMPARE(label->focusPolicy(), Qt::StrongFocus);

    QCoreApplication::sendPostedEvents();
    const int width = label->width();
    const int oneLine = label->height();
    label->setText(longCommand);
    QTRY_VERIFY(label->height() >= label->heightForWidth(width));
    QCOMPARE(console.window.size(), QSize(640, 798));
    QCOMPARE(label->width(), width);
    QVERIFY(label->height() >= oneLine + label->fontMetrics().lineSpacing());
}

void tst_Controls::receivedTextTakesTheHeight()
{
    ConsoleWindow console;
    const auto *edit = console.find<QTextEdit>("textEdit_Data");
    QVERIFY(hasFixedPitch(edit));
    QVERIFY(edit->tabChangesFocus());
    QCoreApplication::sendPostedEvents();
    const int before = edit->height();
    console.window.resize(640, 898);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(edit->height(), before + 100);
}

void tst_Controls::drawingKeepsNothing()
{
    ConsoleWindow console;
    // Disabled buttons, shown lists and the boxes of the address are drawn again.
    const auto drawAllModels = [&] {
        for (const ModelSheet &sheet : modelSheets()) {
            console.selectModel(console.rowOfModel(sheet.name));
            QCoreApplication::processEvents();
            console.window.repaint();
        }
    };
    const auto usedMemory = [] {
        const struct mallinfo2 info = ::mallinfo2();
        return qint64(info.uordblks) + qint64(info.hblkhd);
    };
    for (int round = 0; round < 2; ++round)
        drawAllModels();
    const qint64 before = usedMemory();
    for (int round = 0; round < 10; ++round)
        drawAllModels();
    const qint64 grown = usedMemory() - before;
    QVERIFY2(grown < 262'144, qPrintable(QString::number(grown)));
}

TESSALY_WINDOW_TEST(tst_Controls)
#include "tst_controls.moc"
