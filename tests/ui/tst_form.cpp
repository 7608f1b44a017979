// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"
#include "goldenlines.h"
#include "modelpanel.h"
#include "tests/support/testmain.h"
#include "ui_mainwindow.h"
#include "windowstate.h"

#include <QApplication>
#include <QMetaMethod>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Q_INIT_RESOURCE does not work inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(images);
}

namespace {

// From left to right.
const QStringList addressRow{
    u"spinBox_IP_1"_s, u"label_IP_Separateur_1"_s, u"spinBox_IP_2"_s, u"label_IP_Separateur_2"_s,
    u"spinBox_IP_3"_s, u"label_IP_Separateur_3"_s, u"spinBox_IP_4"_s};
const QStringList idAndFolderRow{u"frame_ID"_s,
                                 u"line_after_ID"_s,
                                 u"frame_Change_ID"_s,
                                 u"line_after_Change_ID"_s,
                                 u"frame_Folder"_s,
                                 u"line_after_Change_Before_Standby"_s,
                                 u"frame_Standby_Wakeup"_s};

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

/// How many connections there were: what can be cut was there, and nothing else tells from outside.
int cutConnections(const MainWindow &window, const QMetaMethod &slot)
{
    const QByteArray name = slot.name(); // on_<object>_<signal>
    const qsizetype end = name.lastIndexOf('_');
    const QByteArray signalName = name.sliced(end + 1);
    const auto *sender
        = window.findChild<QObject *>(QString::fromLatin1(name.first(end).sliced(3)));
    if (!sender)
        return 0;
    int connections = 0;
    for (int i = 0; i < sender->metaObject()->methodCount(); ++i) {
        const QMetaMethod signal = sender->metaObject()->method(i);
        if (signal.methodType() == QMetaMethod::Signal && signal.name() == signalName
            && QObject::disconnect(sender, signal, &window, slot)) {
            ++connections;
        }
    }
    return connections;
}

} // namespace

class tst_Form : public QObject
{
    Q_OBJECT

private slots:
    void bareFormTree();
    void consoleTree();
    void layoutsAreInOrder_data();
    void layoutsAreInOrder();
    void rowsStandSideBySide_data();
    void rowsStandSideBySide();

    void window();
    void layoutsHaveStatedMargins();
    void menus();
    void actionsAreCheckable();
    void exitShortcut();
    void icons();

    void styleSheets();
    void addressBoxes();
    void narrowLists();
    void smallButtons();
    void noDefaultButton();
    void receivedTextIsReadOnly();

    void retranslateSetsEveryText();
    void retranslateTranslatesEveryText();
    void retranslateChangesTextsOnly();

    void everyControlIsConnected();
};

void tst_Form::bareFormTree()
{
    BareForm form;
    const QByteArray differences = treeDifferences(form.window, goldenForm());
    QVERIFY2(differences.isEmpty(), differences.constData());
}

void tst_Form::consoleTree()
{
    const MainWindow window;
    QList<FormObject> expected = goldenForm();
    const QHash<QString, QString> changedAtStart{
        {u"action_About"_s, u"\"&About Tessaly\""_s},
        {u"label_Comments"_s, u"\"%1\""_s.arg(firmwareNote(modelSheets().constFirst().firmware))},
    };
    for (FormObject &object : expected)
        object.text = changedAtStart.value(object.name, object.text);
    const QByteArray differences = treeDifferences(window, expected);
    QVERIFY2(differences.isEmpty(), differences.constData());
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
    QTest::newRow("address") << u"horizontalLayout_IP"_s << addressRow;
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
    QTest::newRow("ID and folder") << u"horizontalLayout_ID_and_Folder"_s << idAndFolderRow;

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

    QStringList playback;
    QStringList contacts;
    for (const FormObject &object : goldenForm()) {
        if (object.parent == "frame_Playback_Command"_L1 && object.className == "QPushButton"_L1)
            playback.append(object.name);
        if (object.parent == "frame_Relay_Command"_L1 && object.className == "QCheckBox"_L1)
            contacts.append(object.name);
    }
    QTest::newRow("playback buttons") << playback;
    QTest::newRow("output contacts") << contacts;
    QTest::newRow("address") << addressRow;
    QTest::newRow("ID and folder") << idAndFolderRow;
}

void tst_Form::rowsStandSideBySide()
{
    QFETCH(const QStringList, names);

    QVERIFY(names.size() > 1);
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

void tst_Form::icons()
{
    BareForm form;
    QHash<QString, QString> paths;
    for (const QString &line : goldenLines(u"icons.txt"_s))
        paths.insert(line.section(" | "_L1, 0, 0), line.section(" | "_L1, 1));

    QObjectList objects{&form.window};
    for (auto *button : form.window.findChildren<QAbstractButton *>())
        objects.append(button);
    for (auto *action : form.window.findChildren<QAction *>())
        objects.append(action);
    const QSize size(32, 32);
    for (const QObject *object : std::as_const(objects)) {
        const QString name = object->objectName();
        if (name.startsWith("qt_"_L1))
            continue;
        const QString path = paths.take(name);
        const QIcon icon = iconOf(object);
        QVERIFY2(icon.isNull() == path.isEmpty(), qPrintable(name));
        const QImage image = icon.pixmap(size).toImage();
        QVERIFY2(image.isNull() == path.isEmpty(), qPrintable(name));
        QVERIFY2(image == QIcon(path).pixmap(size).toImage(),
                 qPrintable(name + " does not show "_L1 + path));
    }
    QCOMPARE(paths.keys(), QStringList());
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
    for (const QPushButton *button : buttons)
        QVERIFY2(!button->isDefault(), qPrintable(button->objectName()));
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

void tst_Form::everyControlIsConnected()
{
    QByteArrayList controls{
        "on_comboBox_Player_activated",         "on_comboBox_Source_Of_Playback_activated",
        "on_comboBox_Subtitles_Type_activated", "on_horizontalSlider_Volume_valueChanged",
        "on_radioButton_Sent_Hex_clicked",      "on_radioButton_Sent_Dec_clicked"};
    for (const FormObject &object : goldenForm()) {
        if (object.className == "QPushButton"_L1)
            controls += "on_" + object.name.toLatin1() + "_clicked";
        else if (object.className == "QAction"_L1)
            controls += "on_" + object.name.toLatin1() + "_triggered";
    }

    const MainWindow window;
    const QMetaObject &windowClass = MainWindow::staticMetaObject;
    for (int i = windowClass.methodOffset(); i < windowClass.methodCount(); ++i) {
        const QMetaMethod slot = windowClass.method(i);
        if (!slot.name().startsWith("on_"))
            continue;
        QVERIFY2(controls.removeOne(slot.name()), slot.name().constData());
        const int connections = cutConnections(window, slot);
        QVERIFY2(connections == 1, slot.name() + ": " + QByteArray::number(connections));
    }
    QVERIFY2(controls.isEmpty(), controls.join(' ').constData());
}

TESSALY_WINDOW_TEST(tst_Form)
#include "tst_form.moc"
