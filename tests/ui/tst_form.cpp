// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"
#include "goldenlines.h"
#include "tests/support/consolewindow.h"
#include "tests/support/testmain.h"
#include "ui_mainwindow.h"
#include "windowstate.h"

#include <QApplication>
#include <QDir>
#include <QMetaMethod>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Q_INIT_RESOURCE does not work inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(images);
}

namespace {

struct FormObject
{
    QString name;
    QString className;
    QString parent;
    QString text;

    QString line() const { return QStringList{name, className, parent, text}.join(" | "_L1); }
};

QList<FormObject> goldenForm()
{
    QList<FormObject> form;
    const QStringList lines = goldenLines(u"form.txt"_s);
    for (const QString &line : lines) {
        const QStringList columns = line.split(" | "_L1);
        if (columns.size() != 4)
            qFatal("not a line of the form: %s", qPrintable(line));
        form.append({columns.at(0), columns.at(1), columns.at(2), columns.at(3)});
    }
    return form;
}

QString textOf(const QObject *object)
{
    QString text;
    if (const auto *label = qobject_cast<const QLabel *>(object))
        text = label->text();
    else if (const auto *button = qobject_cast<const QAbstractButton *>(object))
        text = button->text();
    else if (const auto *menu = qobject_cast<const QMenu *>(object))
        text = menu->title();
    else if (const auto *action = qobject_cast<const QAction *>(object))
        text = action->text();
    else
        return u"-"_s;
    return u'"' + text + u'"';
}

QString classOf(const QObject *object)
{
    QString name = QString::fromLatin1(object->metaObject()->className());
    if (name == "MainWindow"_L1)
        return u"QMainWindow"_s;
    if (name != "QFrame"_L1)
        return name;
    const auto *frame = qobject_cast<const QFrame *>(object);
    if (frame->frameShape() == QFrame::HLine)
        return u"Line"_s;
    if (frame->frameShape() == QFrame::StyledPanel && frame->frameShadow() == QFrame::Raised)
        return u"Frame"_s;
    return u"QFrame of shape %1"_s.arg(frame->frameShape());
}

/// A line for each widget, menu and action that has a name and for each layout that `form` knows:
/// others may arrange the widgets inside their frames as they like.
QStringList treeOf(const QMainWindow &window, const QList<FormObject> &form)
{
    QObjectList objects;
    objects.append(const_cast<QMainWindow *>(&window));
    objects += window.findChildren<QObject *>();

    QStringList lines;
    for (const QObject *object : std::as_const(objects)) {
        const QString name = object->objectName();
        if (name.isEmpty() || name.startsWith("qt_"_L1))
            continue;
        const bool known = std::any_of(form.begin(), form.end(),
                                       [&](const FormObject &other) { return other.name == name; });
        const bool layout = qobject_cast<const QLayout *>(object);
        if (!object->isWidgetType() && !qobject_cast<const QAction *>(object) && !(layout && known))
            continue;
        lines.append(FormObject{name, classOf(object),
                                object->parent() ? object->parent()->objectName() : u"-"_s,
                                textOf(object)}
                         .line());
    }
    return lines;
}

QByteArray treeDifferences(const QMainWindow &window, const QList<FormObject> &form)
{
    QStringList actual = treeOf(window, form);
    QStringList expected;
    for (const FormObject &object : form)
        expected.append(object.line());
    // The order is another test's matter.
    actual.sort();
    expected.sort();
    return lineDifferences(actual, expected);
}

/// The objects of the layout in their order; unknown layouts are looked into, stretches are left
/// out.
QStringList layoutOrder(const QLayout *layout, const QStringList &knownLayouts)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *item = layout->itemAt(i);
        if (const QWidget *widget = item->widget())
            names.append(widget->objectName());
        else if (const QLayout *inner = const_cast<QLayoutItem *>(item)->layout())
            names += knownLayouts.contains(inner->objectName()) ? QStringList{inner->objectName()}
                                                                : layoutOrder(inner, knownLayouts);
    }
    return names;
}

/// The form on a window of no class of its own.
struct BareForm
{
    BareForm()
    {
        initResources();
        ui.setupUi(&window);
    }

    template<typename T>
    T *find(const QString &name)
    {
        T *object = window.findChild<T *>(name);
        if (!object)
            qFatal("no %s in the form", qPrintable(name));
        return object;
    }

    QMainWindow window;
    Ui_MainWindow ui;
};

/// A window's state as windowState() gives it, without the texts of labels that are captions.
QStringList withoutCaptions(QStringList state)
{
    for (QString &line : state) {
        if (line.startsWith("label_"_L1) && !line.startsWith("label_Bytes_Sended |"_L1)
            && !line.startsWith("label_Volume_2 |"_L1)) {
            line = line.section(" | "_L1, 0, 2);
        }
    }
    return state;
}

QIcon iconOf(const QObject *object)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(object))
        return button->icon();
    if (const auto *action = qobject_cast<const QAction *>(object))
        return action->icon();
    if (const auto *widget = qobject_cast<const QWidget *>(object))
        return widget->windowIcon();
    return {};
}

QHash<QString, QString> goldenIcons()
{
    QHash<QString, QString> icons;
    const QStringList lines = goldenLines(u"icons.txt"_s);
    for (const QString &line : lines)
        icons.insert(line.section(" | "_L1, 0, 0), line.section(" | "_L1, 1));
    return icons;
}

} // namespace

class tst_Form : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void bareFormTree();
    void consoleTree();
    void childrenAreInOrder();
    void layoutsAreInOrder_data();
    void layoutsAreInOrder();
    void rowsStandSideBySide_data();
    void rowsStandSideBySide();

    void window();
    void sizeSuitsEveryModel();
    void layoutsHaveStatedMargins();
    void menus();
    void actionsAreCheckable();
    void exitShortcut();

    void resources_data();
    void resources();
    void picturesDiffer();
    void icons();
    void iconsAreShared();
    void volumeIconsAreCrossed();

    void styleSheets();
    void addressBoxes();
    void narrowLists();
    void smallButtons();
    void noDefaultButton();
    void receivedTextIsReadOnly();

    void retranslateSetsEveryText();
    void retranslateTranslatesEveryText();
    void retranslateChangesTextsOnly();
    void languageActionsChangeTextsOnly_data();
    void languageActionsChangeTextsOnly();

    void slotsAreConnectedByName_data();
    void slotsAreConnectedByName();
    void everySlotOfTheListIsThere();
};

void tst_Form::initTestCase()
{
    // The translations are here.
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
}

void tst_Form::bareFormTree()
{
    BareForm form;
    const QByteArray differences = treeDifferences(form.window, goldenForm());
    QVERIFY2(differences.isEmpty(), differences.constData());
    // No model has been applied.
    QCOMPARE(form.ui.label_IP_Port->text(), u"( Port number: ...)"_s);
}

void tst_Form::consoleTree()
{
    const MainWindow window;
    QList<FormObject> expected = goldenForm();
    const QHash<QString, QString> changedAtStart{
        {u"action_About"_s, u"\"&About Tessaly\""_s},
        {u"label_Comments"_s,
         u"\"All commands present in this model can be executed for devices with firmware 1.2 or "
         "higher. If the device embed a lower firmware version, some commands may not be executed. "
         "Refer to the release notes of this application for more information.\""_s},
    };
    for (FormObject &object : expected)
        object.text = changedAtStart.value(object.name, object.text);
    const QByteArray differences = treeDifferences(window, expected);
    QVERIFY2(differences.isEmpty(), differences.constData());
}

void tst_Form::childrenAreInOrder()
{
    BareForm form;
    QMap<QString, QStringList> expected;
    const QList<FormObject> objects = goldenForm();
    for (const FormObject &object : objects) {
        if (!object.className.endsWith("Layout"_L1) && object.className != "QAction"_L1)
            expected[object.parent].append(object.name);
    }
    expected.remove(u"-"_s);
    QCOMPARE(expected.size(), 31);

    for (auto [parent, names] : expected.asKeyValueRange()) {
        const QObject *widget
            = parent == "MainWindow"_L1 ? &form.window : form.find<QWidget>(parent);
        QStringList actual;
        for (const QObject *child : widget->children()) {
            if (child->isWidgetType() && names.contains(child->objectName()))
                actual.append(child->objectName());
        }
        QVERIFY2(actual == names, qPrintable(parent + ": "_L1 + actual.join(u' ')
                                             + " instead of "_L1 + names.join(u' ')));
    }
}

void tst_Form::layoutsAreInOrder_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("window: settings, commands")
        << u"horizontalLayout"_s << QStringList{u"verticalLayout_Settings"_s, u"frame_Commands"_s};
    QTest::newRow("settings, from top to bottom")
        << u"verticalLayout_Settings"_s
        << QStringList{u"frame_Settings"_s, u"pushButton_Connect"_s, u"pushButton_Disconnect"_s,
                       u"label_Connection_Message"_s};
    QTest::newRow("address, from left to right")
        << u"horizontalLayout_IP"_s << QStringList{u"spinBox_IP_1"_s, u"label_IP_Separateur_1"_s,
                                                   u"spinBox_IP_2"_s, u"label_IP_Separateur_2"_s,
                                                   u"spinBox_IP_3"_s, u"label_IP_Separateur_3"_s,
                                                   u"spinBox_IP_4"_s};
    QTest::newRow("commands, from top to bottom")
        << u"verticalLayout_2"_s
        << QStringList{u"horizontalLayout_ID_and_Folder"_s,
                       u"line_ID_and_Folder"_s,
                       u"frame_Content_Playback"_s,
                       u"line_Content_Playback"_s,
                       u"frame_Playback_Command"_s,
                       u"frame_Other_Command"_s,
                       u"line_Other_Command"_s,
                       u"frame_Volume"_s,
                       u"line_Volume"_s,
                       u"frame_Request"_s,
                       u"line_Request"_s,
                       u"frame_Relay_Command"_s,
                       u"frame_Content_Subtitles"_s,
                       u"line_Subtitles"_s,
                       u"frame_Sent"_s,
                       u"line_Sended_Bytes"_s,
                       u"frame_Data"_s};
    QTest::newRow("ID and folder, from left to right")
        << u"horizontalLayout_ID_and_Folder"_s
        << QStringList{u"frame_ID"_s,
                       u"line_after_ID"_s,
                       u"frame_Change_ID"_s,
                       u"line_after_Change_ID"_s,
                       u"frame_Folder"_s,
                       u"line_after_Change_Before_Standby"_s,
                       u"frame_Standby_Wakeup"_s};

    // The order inside the frames is the order of the list of widgets.
    QMap<QString, QStringList> inFrames;
    const QList<FormObject> objects = goldenForm();
    for (const FormObject &object : objects) {
        if (object.parent.startsWith("frame_"_L1) && !object.className.endsWith("Layout"_L1))
            inFrames[object.parent].append(object.name);
    }
    for (auto [frame, names] : inFrames.asKeyValueRange()) {
        if (frame != "frame_Commands"_L1 && frame != "frame_IP_2"_L1)
            QTest::newRow(qPrintable(frame)) << frame << names;
    }
}

void tst_Form::layoutsAreInOrder()
{
    QFETCH(const QString, layout);
    QFETCH(const QStringList, expected);

    BareForm form;
    const auto *frame = form.window.findChild<QFrame *>(layout);
    const QLayout *found = frame ? frame->layout() : form.window.findChild<QLayout *>(layout);
    QVERIFY(found);
    const QStringList known{u"verticalLayout_Settings"_s, u"horizontalLayout_ID_and_Folder"_s};
    const QStringList actual = layoutOrder(found, known);
    QCOMPARE(actual, expected);
}

void tst_Form::rowsStandSideBySide_data()
{
    QTest::addColumn<QStringList>("names");

    QTest::newRow("playback buttons") << QStringList{u"pushButton_Previous_Folder"_s,
                                                     u"pushButton_Previous_File"_s,
                                                     u"pushButton_Play"_s,
                                                     u"pushButton_Stop"_s,
                                                     u"pushButton_Pause"_s,
                                                     u"pushButton_Next_File"_s,
                                                     u"pushButton_Next_Folder"_s};
    QTest::newRow("output contacts") << QStringList{
        u"checkBox_Relay_1"_s, u"checkBox_Relay_2"_s, u"checkBox_Relay_3"_s, u"checkBox_Relay_4"_s,
        u"checkBox_Relay_5"_s, u"checkBox_Relay_6"_s, u"checkBox_Relay_7"_s, u"checkBox_Relay_8"_s};
    QTest::newRow("address") << QStringList{u"spinBox_IP_1"_s, u"label_IP_Separateur_1"_s,
                                            u"spinBox_IP_2"_s, u"label_IP_Separateur_2"_s,
                                            u"spinBox_IP_3"_s, u"label_IP_Separateur_3"_s,
                                            u"spinBox_IP_4"_s};
    QTest::newRow("ID and folder") << QStringList{u"frame_ID"_s,
                                                  u"line_after_ID"_s,
                                                  u"frame_Change_ID"_s,
                                                  u"line_after_Change_ID"_s,
                                                  u"frame_Folder"_s,
                                                  u"line_after_Change_Before_Standby"_s,
                                                  u"frame_Standby_Wakeup"_s};
}

void tst_Form::rowsStandSideBySide()
{
    QFETCH(const QStringList, names);

    BareForm form; // every panel is shown
    form.window.show();
    QRect previous;
    for (const QString &name : names) {
        const QRect place = form.find<QWidget>(name)->geometry();
        if (!previous.isNull()) {
            QVERIFY2(place.left() > previous.right(), qPrintable(name));
            QVERIFY2(qAbs(place.center().y() - previous.center().y()) <= 1, qPrintable(name));
        }
        previous = place;
    }
}

void tst_Form::window()
{
    BareForm form;
    QCOMPARE(form.window.objectName(), u"MainWindow"_s);
    QCOMPARE(form.window.windowTitle(), u"Tessaly"_s);
    QCOMPARE(form.window.size(), QSize(640, 798));
    QCOMPARE(form.window.autoFillBackground(), false);
    QCOMPARE(form.window.centralWidget(), form.ui.centralWidget);
    QCOMPARE(form.window.menuBar(), form.ui.menuBar);
    QCOMPARE(form.window.statusBar(), form.ui.statusBar);
    QCOMPARE(form.ui.horizontalSlider_Volume->orientation(), Qt::Horizontal);
}

void tst_Form::sizeSuitsEveryModel()
{
    ConsoleWindow console;
    QCOMPARE(console.window.size(), QSize(640, 798));
    const int models = console.find<QComboBox>("comboBox_Player")->count();
    QCOMPARE(models, buildDeviceCatalogue().size());
    for (int row = 0; row < models; ++row) {
        console.selectModel(row);
        // Each layout tells only the one around it.
        for (int level = 0; level < 10; ++level)
            QCoreApplication::sendPostedEvents();
        // The window's own hint says nothing: it scrolls what does not fit.
        const QWidget *content = console.window.centralWidget();
        const QSize needed(content->layout()->minimumSize().width(),
                           content->layout()->totalMinimumHeightForWidth(content->width()));
        QVERIFY2(needed.width() <= content->width() && needed.height() <= content->height(),
                 qPrintable(u"row %1 needs %2 x %3 of %4 x %5"_s.arg(row)
                                .arg(needed.width())
                                .arg(needed.height())
                                .arg(content->width())
                                .arg(content->height())));
        QVERIFY(needed.width() > 500 && needed.height() > 400);
        QCOMPARE(console.window.size(), QSize(640, 798));
    }
}

void tst_Form::layoutsHaveStatedMargins()
{
    BareForm form;
    QCOMPARE(form.ui.centralWidget->layout(), form.ui.horizontalLayout);
    QCOMPARE(form.ui.horizontalLayout->spacing(), 6);
    QCOMPARE(form.ui.horizontalLayout->contentsMargins(), QMargins(11, 11, 11, 11));
    QCOMPARE(form.ui.verticalLayout_Settings->spacing(), 12);
    QCOMPARE(form.ui.verticalLayout_Settings->contentsMargins(), QMargins(6, 6, 6, 6));
    QCOMPARE(form.ui.frame_Commands->layout(), form.ui.verticalLayout_2);
    QCOMPARE(form.ui.frame_IP_2->layout(), form.ui.horizontalLayout_IP);
}

void tst_Form::menus()
{
    const auto entries = [](const QWidget *widget) {
        QStringList names;
        const QList<QAction *> actions = widget->actions();
        for (const QAction *action : actions) {
            names.append(action->isSeparator() ? u"separator"_s
                         : action->menu()      ? action->menu()->objectName()
                                               : action->objectName());
        }
        return names;
    };
    const MainWindow window;
    const auto menuEntries
        = [&](const QString &name) { return entries(window.findChild<QMenu *>(name)); };

    QCOMPARE(entries(window.findChild<QMenuBar *>(u"menuBar"_s)),
             QStringList({u"menu_File"_s, u"menu_Languages"_s, u"menu_Help"_s}));
    QCOMPARE(menuEntries(u"menu_File"_s), QStringList({u"action_Exit"_s}));
    QCOMPARE(menuEntries(u"menu_Languages"_s),
             QStringList(
                 {u"action_Default"_s, u"separator"_s, u"action_English"_s, u"action_French"_s}));
    QCOMPARE(menuEntries(u"menu_Help"_s),
             QStringList({u"action_Website"_s, u"action_Contact_Technical_Support"_s,
                          u"separator"_s, u"action_About"_s}));
}

void tst_Form::actionsAreCheckable()
{
    BareForm form;
    const QHash<QString, bool> expected{
        {u"action_Exit"_s, false},    {u"action_Default"_s, true},
        {u"action_English"_s, true},  {u"action_French"_s, true},
        {u"action_Website"_s, false}, {u"action_Contact_Technical_Support"_s, false},
        {u"action_About"_s, false},
    };
    for (auto [name, checkable] : expected.asKeyValueRange())
        QVERIFY2(form.find<QAction>(name)->isCheckable() == checkable, qPrintable(name));
}

void tst_Form::exitShortcut()
{
    BareForm form;
    const QList<QAction *> actions = form.window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        QCOMPARE(action->shortcut().toString(QKeySequence::PortableText),
                 action == form.ui.action_Exit ? u"Ctrl+Q"_s : QString());
    }
}

void tst_Form::resources_data()
{
    QTest::addColumn<QString>("path");

    const char *names[] = {"AppIcon.ico",         "Exit_A.png",         "Web_Site_B.png",
                           "Send_Mail.png",       "About.png",          "Change.png",
                           "Play_C.png",          "Standby_Wakeup.png", "Previous_Folder_C.png",
                           "Previous_File_C.png", "Stop_C.png",         "Pause_C.png",
                           "Next_File_C.png",     "Next_Folder_C.png",  "Send_Command.png",
                           "Volume_Max.png",      "Volume_Min.png",     "Unmute.png",
                           "Previous_Sub.png",    "Next_Sub.png",       "Previous_Sub_Loop.png",
                           "Next_Sub_Loop.png"};
    static_assert(std::size(names) == 22);
    for (const char *name : names)
        QTest::newRow(name) << ":/Images/"_L1 + QLatin1StringView(name);
}

void tst_Form::resources()
{
    QFETCH(const QString, path);

    const BareForm form;
    QImage picture(path);
    QVERIFY(!picture.isNull());
    // Something is to be seen.
    QVERIFY(picture.hasAlphaChannel());
    picture.convertTo(QImage::Format_ARGB32); // a picture with a palette has no blank one
    QImage blank(picture.size(), picture.format());
    blank.fill(Qt::transparent);
    QVERIFY(picture != blank);
}

void tst_Form::picturesDiffer()
{
    const BareForm form;
    const QHash<QString, QString> icons = goldenIcons();
    QSet<QString> paths(icons.begin(), icons.end());
    QCOMPARE(paths.size(), 22);
    const QStringList list(paths.begin(), paths.end());
    for (qsizetype i = 0; i < list.size(); ++i) {
        for (qsizetype j = i + 1; j < list.size(); ++j) {
            QVERIFY2(QImage(list.at(i)) != QImage(list.at(j)),
                     qPrintable(list.at(i) + " is "_L1 + list.at(j)));
        }
    }
}

void tst_Form::icons()
{
    BareForm form;
    const QHash<QString, QString> expected = goldenIcons();
    QObjectList objects{&form.window};
    objects += form.window.findChildren<QObject *>();
    int found = 0;
    for (const QObject *object : std::as_const(objects)) {
        const QString name = object->objectName();
        if (name.startsWith("qt_"_L1))
            continue;
        const bool isWindow = object == &form.window;
        if (!isWindow && !qobject_cast<const QAbstractButton *>(object)
            && !qobject_cast<const QAction *>(object)) {
            continue;
        }
        const QIcon icon = iconOf(object);
        if (!expected.contains(name)) {
            QVERIFY2(icon.isNull(), qPrintable(name));
            continue;
        }
        ++found;
        QVERIFY2(!icon.isNull(), qPrintable(name));
        const QSize size(32, 32);
        QVERIFY2(icon.pixmap(size).toImage() == QIcon(expected.value(name)).pixmap(size).toImage(),
                 qPrintable(name + " does not show "_L1 + expected.value(name)));
    }
    QCOMPARE(found, expected.size());
}

void tst_Form::iconsAreShared()
{
    BareForm form;
    const qint64 play = form.ui.pushButton_Play->icon().cacheKey();
    QCOMPARE(form.ui.pushButton_Folder->icon().cacheKey(), play);
    QCOMPARE(form.ui.pushButton_Launch_Playback->icon().cacheKey(), play);

    const qint64 send = form.ui.pushButton_Other_Command->icon().cacheKey();
    QCOMPARE(form.ui.pushButton_Request->icon().cacheKey(), send);
    QCOMPARE(form.ui.pushButton_Relay_Command->icon().cacheKey(), send);
    QVERIFY(play != send);
}

// The button that lowers the volume shows the loud picture and the other way round.
void tst_Form::volumeIconsAreCrossed()
{
    BareForm form;
    const QSize size(32, 32);
    QCOMPARE(form.ui.pushButton_Volume_Less->icon().pixmap(size).toImage(),
             QIcon(u":/Images/Volume_Max.png"_s).pixmap(size).toImage());
    QCOMPARE(form.ui.pushButton_Volume_More->icon().pixmap(size).toImage(),
             QIcon(u":/Images/Volume_Min.png"_s).pixmap(size).toImage());
}

void tst_Form::styleSheets()
{
    BareForm form;
    const QHash<QString, QString> expected{
        {u"frame_IP_2"_s,
         u"background-color: rgb(255, 255, 255);\nborder-color: rgb(255, 170, 0);\n"_s},
        {u"label_IP_Separateur_1"_s, u"border-color: rgb(170, 255, 255);"_s},
        {u"label_IP_Separateur_2"_s, u"border-color: rgb(170, 255, 255);"_s},
        {u"label_IP_Separateur_3"_s, u"border-color: rgb(170, 255, 255);"_s},
    };
    const QList<QWidget *> widgets = namedWidgets(form.window);
    for (const QWidget *widget : widgets) {
        if (expected.contains(widget->objectName()))
            QCOMPARE(widget->styleSheet(), expected.value(widget->objectName()));
    }
}

void tst_Form::addressBoxes()
{
    BareForm form;
    for (const QSpinBox *box :
         {form.ui.spinBox_IP_1, form.ui.spinBox_IP_2, form.ui.spinBox_IP_3, form.ui.spinBox_IP_4}) {
        QCOMPARE(box->minimum(), 0);
        QCOMPARE(box->maximum(), 255);
        QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QVERIFY(box->alignment().testFlag(Qt::AlignHCenter));
    }
}

void tst_Form::narrowLists()
{
    BareForm form;
    form.window.show();
    for (QComboBox *list :
         {form.ui.comboBox_ID, form.ui.comboBox_Change_ID, form.ui.comboBox_Folder}) {
        QCOMPARE(list->maximumWidth(), 64);
        list->addItem(u"a very long row that wants more room"_s);
        QCoreApplication::sendPostedEvents();
        QVERIFY(list->width() <= 64);
    }
}

void tst_Form::smallButtons()
{
    BareForm form;
    form.window.show();
    for (const QPushButton *button : {form.ui.pushButton_Change_ID, form.ui.pushButton_Folder,
                                      form.ui.pushButton_Standby_Wakeup}) {
        QCOMPARE(button->size(), QSize(32, 22));
    }
}

void tst_Form::noDefaultButton()
{
    const MainWindow window;
    const QList<QPushButton *> buttons = window.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 27);
    for (const QPushButton *button : buttons)
        QVERIFY2(!button->isDefault(), qPrintable(button->objectName()));
    QVERIFY(!window.findChild<QPushButton *>(u"pushButton_Previous_Folder"_s)->isDefault());
    QVERIFY(!window.findChild<QPushButton *>(u"pushButton_Subtitles_On"_s)->isDefault());
}

void tst_Form::receivedTextIsReadOnly()
{
    BareForm form;
    QVERIFY(form.ui.textEdit_Data->isReadOnly());
    QCOMPARE(form.ui.textEdit_Data->placeholderText(), QString());
    QCOMPARE(form.ui.radioButton_Sent_Hex->statusTip(), QString());
}

void tst_Form::retranslateSetsEveryText()
{
    BareForm form;
    const QString changed = u"changed"_s;
    const QList<QObject *> objects = form.window.findChildren<QObject *>();
    for (QObject *object : objects) {
        if (auto *label = qobject_cast<QLabel *>(object))
            label->setText(changed);
        else if (auto *button = qobject_cast<QAbstractButton *>(object))
            button->setText(changed);
        else if (auto *menu = qobject_cast<QMenu *>(object))
            menu->setTitle(changed);
        else if (auto *action = qobject_cast<QAction *>(object))
            action->setText(changed);
    }
    form.ui.radioButton_Sent_Hex->setStatusTip(changed);
    form.ui.textEdit_Data->setPlaceholderText(changed);
    form.window.setWindowTitle(changed);

    form.ui.retranslateUi(&form.window);

    QList<FormObject> expected = goldenForm();
    for (FormObject &object : expected) {
        // Written by the model that is applied.
        if (object.name == "label_IP_Port"_L1)
            object.text = u"\"changed\""_s;
    }
    const QByteArray differences = treeDifferences(form.window, expected);
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(form.ui.radioButton_Sent_Hex->statusTip(), QString());
    QCOMPARE(form.ui.textEdit_Data->placeholderText(), QString());
    QCOMPARE(form.window.windowTitle(), changed);
    QCOMPARE(form.ui.action_Exit->shortcut(), QKeySequence(u"Ctrl+Q"_s));
}

void tst_Form::retranslateTranslatesEveryText()
{
    BareForm form;
    const BracingTranslator translator;
    form.ui.retranslateUi(&form.window);

    QList<FormObject> expected = goldenForm();
    for (FormObject &object : expected) {
        if (object.text.size() > 2 && object.name != "label_IP_Port"_L1)
            object.text = "\"{"_L1 + object.text.sliced(1, object.text.size() - 2) + "}\""_L1;
    }
    const QByteArray differences = treeDifferences(form.window, expected);
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(form.window.windowTitle(), u"Tessaly"_s);
}

void tst_Form::retranslateChangesTextsOnly()
{
    BareForm form;
    form.window.setWindowTitle(u"Another title"_s);
    form.ui.label_IP_Port->setText(u"( Port number: 65079 )"_s);
    const QList<QComboBox *> lists = form.window.findChildren<QComboBox *>();
    QCOMPARE(lists.size(), 14);
    for (QComboBox *list : lists) {
        list->addItems({u"a"_s, u"b"_s, u"c"_s});
        list->setCurrentIndex(1);
    }
    bool hide = false;
    const QList<QWidget *> widgets = namedWidgets(form.window);
    for (QWidget *widget : widgets) {
        hide = !hide;
        widget->setEnabled(!hide);
        if (!widget->isWindow())
            widget->setHidden(hide);
    }
    form.ui.radioButton_Data_Dec->setChecked(true);
    form.ui.checkBox_Auto_connection->setChecked(true);
    form.ui.checkBox_Relay_3->setChecked(true);
    form.ui.action_French->setChecked(true);
    form.ui.horizontalSlider_Volume->setRange(3, 31);
    form.ui.horizontalSlider_Volume->setValue(17);
    form.ui.spinBox_IP_2->setValue(168);
    form.ui.textEdit_Data->setPlainText(u"received"_s);
    const QStringList before = windowState(form.window);

    form.ui.retranslateUi(&form.window);

    const QByteArray differences = lineDifferences(windowState(form.window), before);
    QVERIFY2(differences.isEmpty(), differences.constData());
    QVERIFY(form.ui.action_French->isChecked());
    QVERIFY(!form.ui.action_English->isChecked());
}

void tst_Form::languageActionsChangeTextsOnly_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("action");

    for (const char *action : {"action_Default", "action_English", "action_French"}) {
        for (const char *model :
             {"Tempo Deck", "Vistar Show - SV500 (Serial)", "Vistar Show - SV500 (TCP/IP)",
              "Sonet A (Serial)", "Sonet A Lite (TCP/IP)", "Card Deck HD (legacy)"}) {
            QTest::addRow("%s, %s", model, action)
                << QString::fromLatin1(model) << QString::fromLatin1(action);
        }
    }
}

void tst_Form::languageActionsChangeTextsOnly()
{
    QFETCH(const QString, model);
    QFETCH(const QString, action);

    ConsoleWindow console;
    console.selectModel(console.rowOfModel(model));
    const QList<QComboBox *> lists = console.window.findChildren<QComboBox *>();
    for (QComboBox *list : lists) {
        if (list->objectName() != "comboBox_Player"_L1)
            list->setCurrentIndex(list->count() - 1);
    }
    {
        auto *slider = console.find<QSlider>("horizontalSlider_Volume");
        const QSignalBlocker silent(slider);
        slider->setValue(slider->minimum());
    }
    const QStringList before = windowState(console.window);

    console.find<QAction>(action.toLatin1().constData())->trigger();

    const QStringList after = windowState(console.window);
    QCOMPARE(after != before, action == "action_French"_L1);
    const QByteArray differences = lineDifferences(withoutCaptions(after), withoutCaptions(before));
    QVERIFY2(differences.isEmpty(), differences.constData());
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
}

void tst_Form::slotsAreConnectedByName_data()
{
    QTest::addColumn<QByteArray>("object");
    QTest::addColumn<QByteArray>("signal");

    const struct
    {
        const char *signal;
        QByteArrayList objects;
    } groups[] = {
        {"triggered",
         {"action_Exit", "action_Default", "action_English", "action_French", "action_Website",
          "action_Contact_Technical_Support", "action_About"}},
        {"activated",
         {"comboBox_Player", "comboBox_Source_Of_Playback", "comboBox_Subtitles_Type"}},
        {"valueChanged", {"horizontalSlider_Volume"}},
        {"clicked",
         {"radioButton_Sent_Hex",
          "radioButton_Sent_Dec",
          "pushButton_Connect",
          "pushButton_Disconnect",
          "pushButton_Clear",
          "pushButton_Previous_Folder",
          "pushButton_Previous_File",
          "pushButton_Play",
          "pushButton_Stop",
          "pushButton_Pause",
          "pushButton_Next_File",
          "pushButton_Next_Folder",
          "pushButton_Standby_Wakeup",
          "pushButton_Volume_Mute_Unmute",
          "pushButton_Volume_Less",
          "pushButton_Volume_More",
          "pushButton_Change_ID",
          "pushButton_Folder",
          "pushButton_Request",
          "pushButton_Other_Command",
          "pushButton_Launch_Playback",
          "pushButton_Relay_Command",
          "pushButton_Subtitles_On",
          "pushButton_Subtitles_Off",
          "pushButton_Subtitles_Previous",
          "pushButton_Subtitles_Next",
          "pushButton_Subtitles_Previous_Loop",
          "pushButton_Subtitles_Next_Loop",
          "pushButton_Subtitles_Select"}},
    };
    for (const auto &group : groups) {
        for (const QByteArray &object : group.objects)
            QTest::newRow(object.constData()) << object << QByteArray(group.signal);
    }
}

// A connection that can be cut was there; nothing else tells from outside.
void tst_Form::slotsAreConnectedByName()
{
    QFETCH(const QByteArray, object);
    QFETCH(const QByteArray, signal);

    MainWindow window;
    const auto *sender = window.findChild<QObject *>(QString::fromLatin1(object));
    QVERIFY(sender);
    const QByteArray slotName = "on_" + object + '_' + signal;
    const QMetaObject *receiverClass = window.metaObject();
    int connections = 0;
    for (int i = 0; i < receiverClass->methodCount(); ++i) {
        const QMetaMethod slot = receiverClass->method(i);
        if (slot.name() != slotName)
            continue;
        for (int j = 0; j < sender->metaObject()->methodCount(); ++j) {
            const QMetaMethod candidate = sender->metaObject()->method(j);
            if (candidate.methodType() == QMetaMethod::Signal && candidate.name() == signal
                && QObject::disconnect(sender, candidate, &window, slot)) {
                ++connections;
            }
        }
    }
    QCOMPARE(connections, 1);
}

void tst_Form::everySlotOfTheListIsThere()
{
    int slotCount = 0;
    const QMetaObject &windowClass = MainWindow::staticMetaObject;
    for (int i = windowClass.methodOffset(); i < windowClass.methodCount(); ++i)
        slotCount += windowClass.method(i).name().startsWith("on_") ? 1 : 0;
    QCOMPARE(slotCount, 40);
}

TESSALY_WINDOW_TEST(tst_Form)
#include "tst_form.moc"
