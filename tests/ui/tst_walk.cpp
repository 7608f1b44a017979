// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "modelpanel.h"
#include "tests/support/commandcontrols.h"
#include "tests/support/consolewindow.h"
#include "tests/support/languagefiles.h"
#include "tests/support/modelsheets.h"
#include "tests/support/ptypeer.h"
#include "tests/support/testmain.h"
#include "tests/support/translatedwindow.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHelpEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMap>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTemporaryDir>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize windowSize(640, 798);
constexpr int deepestLayout = 12;
constexpr double minTextContrast = 4.5;
constexpr double minIconContrast = 3;
constexpr double clearDifference = 1.5;
constexpr double enabledTextContrast = 8; // what is disabled stays clearly below
constexpr int minFocusPixels = 40;        // an outline of 10 x 10 pixels; a cursor is less

enum class Link { Closed, Connecting, Open };

/// Light is what the style has by itself; dark what a dark desktop gives.
QPalette palette(bool isDark)
{
    static const QPalette light = QApplication::palette();
    if (!isDark)
        return light;
    QPalette dark(QColor(0x2b, 0x2b, 0x2b), QColor(0x2b, 0x2b, 0x2b));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(role, QColor(0xef, 0xef, 0xef));
        dark.setColor(QPalette::Disabled, role, QColor(0x56, 0x56, 0x56));
    }
    dark.setColor(QPalette::Highlight, QColor(42, 110, 165));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

/// Empty for the built-in texts.
QStringList languages()
{
    return QStringList{QString()} + languageCodes();
}

QByteArray nameOf(const QString &code)
{
    return code.isEmpty() ? "English"_ba : code.toLatin1();
}

void settle()
{
    // Each layout tells only the one around it.
    for (int level = 0; level < deepestLayout; ++level)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

/// A translated window in light or dark colours.
class ColouredWindow
{
public:
    ColouredWindow(const QString &code, bool isDark)
    {
        QApplication::setPalette(palette(isDark));
        m_translated = std::make_unique<TranslatedWindow>(code);
        console = &m_translated->console;
        // A name longer than its list, as stable names of ports are.
        auto *ports = console->find<QComboBox>("comboBox_Port");
        ports->clear();
        ports->addItem(u"/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A9087-if00"_s);
    }
    ~ColouredWindow()
    {
        m_translated.reset();
        QApplication::setPalette(palette(false));
    }
    Q_DISABLE_COPY_MOVE(ColouredWindow)

    ConsoleWindow *console = nullptr;

private:
    std::unique_ptr<TranslatedWindow> m_translated;
};

/// A text on the screen, and the room that it has.
struct ShownText
{
    const QWidget *widget;
    QString text;
    QRect room; ///< in the widget
    bool wraps = false;
};

QRect fieldOf(const QComboBox *list)
{
    QStyleOptionComboBox option;
    option.initFrom(list);
    option.editable = false;
    option.frame = true;
    option.subControls = QStyle::SC_All;
    // The styles leave a pixel free on both sides of the text.
    return list->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
        .adjusted(1, 0, -1, 0);
}

QRect contentsOf(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    const auto element = qobject_cast<const QCheckBox *>(button) ? QStyle::SE_CheckBoxContents
                         : qobject_cast<const QRadioButton *>(button)
                             ? QStyle::SE_RadioButtonContents
                             : QStyle::SE_PushButtonContents;
    return button->style()->subElementRect(element, &option, button);
}

QImage pictureOf(QWidget &window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QRect iconPlace(const QPushButton *button)
{
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, button->iconSize(),
                               button->rect());
}

/// What a user sees in the window at one moment. Colours are those of the painted pixels.
class Sight
{
public:
    explicit Sight(const ConsoleWindow &console);

    void lookAtTexts();
    void lookAtLists();
    void lookAtPlaces();
    void lookAtColours();

    QStringList findings() const { return m_findings; }

private:
    void lookAtText(const ShownText &shown, const QImage &picture);
    void lookAtIndicator(const QAbstractButton *button, const QImage &picture);
    void lookAtIcon(const QPushButton *button, const QImage &picture);
    QRect placeOf(const QWidget *widget) const;
    void report(const QWidget *widget, const QString &text);

    MainWindow &m_window;
    QList<QWidget *> m_widgets; ///< the visible ones in the content, those inside others left out
    QList<ShownText> m_texts;
    QStringList m_findings;
};

Sight::Sight(const ConsoleWindow &console)
    : m_window(const_cast<MainWindow &>(console.window))
{
    const QList<QWidget *> widgets = m_window.centralWidget()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isBar = qobject_cast<const QScrollBar *>(widget);
        if (!widget->isVisible() || widget->window() != &m_window)
            continue;
        if (!isBar && (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"_L1)))
            continue;
        m_widgets.append(widget);
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            const int margin = label->margin();
            m_texts.append({label, label->text(),
                            label->contentsRect().adjusted(margin, margin, -margin, -margin),
                            label->wordWrap()});
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            m_texts.append({button, button->text(), contentsOf(button)});
        } else if (const auto *box = qobject_cast<const QSpinBox *>(widget)) {
            const auto *edit = box->findChild<const QLineEdit *>();
            // A line edit keeps two pixels free on both sides.
            m_texts.append({box, box->text(), edit->geometry().adjusted(2, 0, -2, 0)});
        } else if (const auto *list = qobject_cast<const QComboBox *>(widget)) {
            m_texts.append({list, list->currentText(), fieldOf(list)});
        }
    }
    m_texts.removeIf([](const ShownText &shown) { return shown.text.isEmpty(); });
}

QRect Sight::placeOf(const QWidget *widget) const
{
    return {widget->mapTo(&m_window, QPoint()), widget->size()};
}

void Sight::report(const QWidget *widget, const QString &text)
{
    m_findings.append(widget->objectName() + u": "_s + text);
}

void Sight::lookAtTexts()
{
    for (const ShownText &shown : std::as_const(m_texts)) {
        if (qobject_cast<const QComboBox *>(shown.widget))
            continue; // lists have a way to show long texts
        const QFontMetrics metrics = shown.widget->fontMetrics();
        const QString text = qobject_cast<const QSpinBox *>(shown.widget) ? u"255"_s : shown.text;
        const QSize needed = shown.wraps
                                 ? metrics.boundingRect(shown.room, Qt::TextWordWrap, text).size()
                                 : metrics.size(Qt::TextShowMnemonic, text);
        if (needed.width() > shown.room.width() || needed.height() > shown.room.height())
            report(shown.widget, u"\"%1\" needs %2 x %3, has %4 x %5"_s.arg(text)
                                     .arg(needed.width())
                                     .arg(needed.height())
                                     .arg(shown.room.width())
                                     .arg(shown.room.height()));
    }
    // All menus are beside each other, none hidden by an arrow.
    const QMenuBar *bar = m_window.menuBar();
    const QList<QAction *> menus = bar->actions();
    for (QAction *menu : menus) {
        const QRect place = bar->actionGeometry(menu);
        if (place.isEmpty() || !bar->rect().contains(place))
            report(bar, u"no room for "_s + menu->text());
    }
}

void Sight::lookAtLists()
{
    for (QWidget *widget : std::as_const(m_widgets)) {
        auto *list = qobject_cast<QComboBox *>(widget);
        if (!list)
            continue;
        const QFontMetrics metrics = list->fontMetrics();
        if (fieldOf(list).height() < metrics.height())
            report(list, u"too low for its text"_s);
        const int room = fieldOf(list).width();
        const int current = list->currentIndex();
        int widest = 0;
        for (int row = 0; row < list->count(); ++row) {
            const int needed = metrics.horizontalAdvance(list->itemText(row));
            if (needed <= room)
                continue;
            widest = qMax(widest, needed);
            list->setCurrentIndex(row);
            QHelpEvent pause(QEvent::ToolTip, QPoint(5, 5), list->mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(list, &pause);
            const QString tip = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
            if (!tip.contains(list->itemText(row)))
                report(list, u"\"%1\" is cut and nowhere else"_s.arg(list->itemText(row)));
            if (!tip.contains(list->toolTip()))
                report(list, u"\"%1\" takes the explanation's place"_s.arg(list->itemText(row)));
            QToolTip::hideText();
        }
        list->setCurrentIndex(current);
        if (widest == 0)
            continue;
        list->showPopup();
        // The rows have margins besides, and room for a mark.
        const int popup = list->view()->viewport()->width();
        if (widest > popup)
            report(list, u"its rows need %1, the popup has %2"_s.arg(widest).arg(popup));
        list->hidePopup();
    }
}

void Sight::lookAtPlaces()
{
    if (m_window.size() != windowSize)
        report(&m_window, u"has changed its size"_s);
    const QRect content = placeOf(m_window.centralWidget());
    for (const QWidget *widget : std::as_const(m_widgets)) {
        if (qobject_cast<const QScrollBar *>(widget)) {
            report(widget, u"a scroll bar of "_s + widget->parentWidget()->objectName());
            continue;
        }
        if (!content.contains(placeOf(widget)))
            report(widget, u"outside the window"_s);
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            report(widget, u"outside its panel"_s);
        QSize minimum = QWidgetItem(const_cast<QWidget *>(widget)).minimumSize();
        if (widget->hasHeightForWidth()) {
            const int height = widget->layout()
                                   ? widget->layout()->totalMinimumHeightForWidth(widget->width())
                                   : widget->heightForWidth(widget->width());
            minimum.setHeight(qMax(widget->minimumHeight(), height));
        }
        if (widget->width() < minimum.width() || widget->height() < minimum.height()) {
            report(widget, u"squeezed to %1 x %2 from %3 x %4"_s.arg(widget->width())
                               .arg(widget->height())
                               .arg(minimum.width())
                               .arg(minimum.height()));
        }
        const auto *button = qobject_cast<const QPushButton *>(widget);
        if (button && !button->icon().isNull()
            && !button->rect().contains(iconPlace(button).adjusted(-2, -1, 2, 1))) {
            report(button, u"no room for its icon"_s);
        }
        for (const QWidget *other : std::as_const(m_widgets)) {
            if (other == widget)
                break; // each pair once
            if (other->parentWidget() == widget->parentWidget()
                && other->geometry().intersects(widget->geometry())) {
                report(widget, u"overlaps "_s + other->objectName());
            }
        }
    }
}

void Sight::lookAtColours()
{
    const QImage picture = pictureOf(m_window);
    for (const ShownText &shown : std::as_const(m_texts))
        lookAtText(shown, picture);
    for (const QWidget *widget : std::as_const(m_widgets)) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        if (button && button->isCheckable())
            lookAtIndicator(button, picture);
        const auto *pushButton = qobject_cast<const QPushButton *>(widget);
        if (pushButton && !pushButton->icon().isNull())
            lookAtIcon(pushButton, picture);
    }
}

void Sight::lookAtText(const ShownText &shown, const QImage &picture)
{
    ColourCounts colours;
    colours.add(picture, shown.room.translated(placeOf(shown.widget).topLeft()));
    const QRgb background = colours.mostFrequent();
    // The edges of letters are paler than their strokes.
    double best = 1;
    for (auto it = colours.counts().begin(); it != colours.counts().end(); ++it)
        best = qMax(best, contrast(it.key(), background));
    if (best < minTextContrast)
        report(shown.widget, u"text with contrast %1"_s.arg(best));
    // Captions and the note can be read at any time, and so can the address on its field.
    const bool showsState = qobject_cast<const QAbstractButton *>(shown.widget)
                            || qobject_cast<const QComboBox *>(shown.widget)
                            || shown.widget->objectName() == "label_Bytes_Sended"_L1;
    if (showsState && (best >= enabledTextContrast) != shown.widget->isEnabled())
        report(shown.widget,
               u"enabled: %1, but contrast %2"_s.arg(shown.widget->isEnabled()).arg(best));
}

void Sight::lookAtIndicator(const QAbstractButton *button, const QImage &picture)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const auto element = qobject_cast<const QRadioButton *>(button)
                             ? QStyle::SE_RadioButtonIndicator
                             : QStyle::SE_CheckBoxIndicator;
    const QRect place = button->style()
                            ->subElementRect(element, &option, button)
                            .translated(placeOf(button).topLeft());
    // The outline is met in the middle of the left side.
    const int y = place.center().y();
    const QRgb background = picture.pixel(place.left() - 2, y);
    const double found = qMax(contrast(picture.pixel(place.left(), y), background),
                              contrast(picture.pixel(place.left() + 1, y), background));
    if (found < minIconContrast)
        report(button, u"outline with contrast %1"_s.arg(found));
}

void Sight::lookAtIcon(const QPushButton *button, const QImage &picture)
{
    const QRect place = iconPlace(button).translated(placeOf(button).topLeft());
    // The background may change from row to row, not within one.
    ColourCounts glyph;
    ColourCounts backgrounds;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const QRgb background = picture.pixel(place.left() - 1, y);
        backgrounds.add(background, 1);
        ColourCounts row;
        row.add(picture, {place.left(), y, place.width(), 1});
        for (auto it = row.counts().begin(); it != row.counts().end(); ++it) {
            if (contrast(it.key(), background) > 1.2)
                glyph.add(it.key(), it.value());
        }
    }
    const QRgb tone = glyph.mostFrequent();
    double sum = 0;
    for (auto it = backgrounds.counts().begin(); it != backgrounds.counts().end(); ++it)
        sum += it.value() * contrast(it.key(), tone);
    const double found = glyph.isEmpty() ? 1 : sum / place.height();
    if (found < minIconContrast)
        report(button, u"icon with contrast %1"_s.arg(found));
}

/// How many pixels of a control show clearly whether it has the focus.
int focusPixels(const QImage &with, const QImage &without, const QRect &place)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const auto *one = reinterpret_cast<const QRgb *>(with.constScanLine(y));
        const auto *other = reinterpret_cast<const QRgb *>(without.constScanLine(y));
        for (int x = place.left(); x <= place.right(); ++x) {
            if (one[x] != other[x] && contrast(one[x], other[x]) >= clearDifference)
                ++count;
        }
    }
    return count;
}

void activate(QComboBox *list, int row)
{
    list->setCurrentIndex(row);
    emit list->activated(row);
}

/// Looks at the selected model once for each kind of source and each type of subtitles.
QStringList findingsOf(const ConsoleWindow &console, const ModelSheet &sheet,
                       const std::function<void(Sight &)> &look)
{
    auto *sources = console.find<QComboBox>("comboBox_Source_Of_Playback");
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    const QStringList kinds = kindsOfSources(sheet);
    const qsizetype turns = std::max({qsizetype(1), kinds.size(), qsizetype(types->count())});
    QStringList findings;
    for (int turn = 0; turn < turns; ++turn) {
        if (turn < kinds.size())
            activate(sources, sources->findText(kinds.at(turn)));
        if (turn < types->count())
            activate(types, turn);
        settle();
        Sight sight(console);
        look(sight);
        findings.append(sight.findings());
    }
    findings.removeDuplicates();
    return findings;
}

/// Models that together have every control that any model has, on each kind of link.
QStringList modelsWithEveryControl()
{
    QSet<QByteArray> seen;
    QStringList names;
    for (const ModelSheet &sheet : modelSheets()) {
        QSet<QByteArray> controls{sheet.isTcp ? "TCP/IP"_ba : "serial"_ba};
        if (sheet.hasPlayerIds())
            controls.insert("comboBox_ID"_ba);
        for (const SheetCommand &command : sheet.commands) {
            for (const QByteArray &panel : controlOf(command.id).panels)
                controls.insert(panel);
        }
        if (!seen.contains(controls))
            names.append(sheet.name);
        seen += controls;
    }
    return names;
}

} // namespace

// What a window looks like follows from its language, the model, the link and the palette. Each
// test takes those that what it looks at can depend on:
//
// - Texts and places: language and model. A palette only changes colours, and an open link only
//   what is enabled; a connection in progress has a text of its own.
// - Texts of lists: the same, without the link. The language decides about the room.
// - Colours: palette, link and model. A text in another language has the same colour.
class tst_Walk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void everythingHasRoom_data() { addLanguageAndModelRows(); }
    void everythingHasRoom();
    void longListTextsAreShown_data() { addLanguageAndModelRows(); }
    void longListTextsAreShown();
    void coloursAreClear_data();
    void coloursAreClear();
    void coloursFollowThePalette_data();
    void coloursFollowThePalette();
    void leftColumnStays_data();
    void leftColumnStays();
    void focusIsSeen_data();
    void focusIsSeen();

private:
    static void addLanguageAndModelRows();
    void enter(const QString &language, bool isDark = false);
    void setLink(Link link);

    std::unique_ptr<ColouredWindow> m_window; ///< kept while the rows want the same
    QString m_language;
    bool m_isDark = false;
    PtyPeer m_device;
};

void tst_Walk::initTestCase()
{
    QApplication::setStyle(u"Fusion"_s);
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
    QVERIFY(languages().contains(u"fr"_s));
}

void tst_Walk::cleanupTestCase()
{
    m_window.reset();
}

void tst_Walk::addLanguageAndModelRows()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<ModelSheet>("sheet");
    for (const QString &language : languages()) {
        for (const ModelSheet &sheet : modelSheets()) {
            QTest::addRow("%s, %s", nameOf(language).constData(), qPrintable(sheet.name))
                << language << sheet;
        }
    }
}

/// Makes the window of that look, unless it is the one at hand.
void tst_Walk::enter(const QString &language, bool isDark)
{
    if (m_window && m_language == language && m_isDark == isDark)
        return;
    m_window.reset();
    m_window = std::make_unique<ColouredWindow>(language, isDark);
    m_language = language;
    m_isDark = isDark;
}

/// An open link stays open while the model changes; a connection in progress is shown only.
void tst_Walk::setLink(Link link)
{
    ConsoleWindow &console = *m_window->console;
    const auto *disconnect = console.find<QPushButton>("pushButton_Disconnect");
    if (link == Link::Open && !disconnect->isEnabled()) {
        console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
        console.connectSerial(m_device);
    } else if (link != Link::Open) {
        console.window.on_pushButton_Disconnect_clicked();
    }
    QCOMPARE(disconnect->isEnabled(), link == Link::Open);
}

void tst_Walk::everythingHasRoom()
{
    QFETCH(const QString, language);
    QFETCH(const ModelSheet, sheet);

    enter(language);
    ConsoleWindow &console = *m_window->console;
    const auto look = [](Sight &sight) {
        sight.lookAtTexts();
        sight.lookAtPlaces();
    };
    console.selectModel(console.rowOfModel(sheet.name));
    QStringList findings = findingsOf(console, sheet, look);
    console.window.showConnectingState();
    findings += findingsOf(console, sheet, look);
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
}

void tst_Walk::longListTextsAreShown()
{
    QFETCH(const QString, language);
    QFETCH(const ModelSheet, sheet);

    enter(language);
    ConsoleWindow &console = *m_window->console;
    console.selectModel(console.rowOfModel(sheet.name));
    const QStringList findings
        = findingsOf(console, sheet, [](Sight &sight) { sight.lookAtLists(); });
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
}

void tst_Walk::coloursAreClear_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<Link>("link");
    QTest::addColumn<ModelSheet>("sheet");
    const QMap<Link, QByteArray> links{{Link::Closed, "not connected"_ba},
                                       {Link::Connecting, "connecting"_ba},
                                       {Link::Open, "connected"_ba}};
    for (const bool isDark : {false, true}) {
        for (auto link = links.begin(); link != links.end(); ++link) {
            for (const ModelSheet &sheet : modelSheets()) {
                QTest::addRow("%s, %s, %s", isDark ? "dark" : "light", link.value().constData(),
                              qPrintable(sheet.name))
                    << isDark << link.key() << sheet;
            }
        }
    }
}

void tst_Walk::coloursAreClear()
{
    QFETCH(const bool, isDark);
    QFETCH(const Link, link);
    QFETCH(const ModelSheet, sheet);

    enter(QString(), isDark);
    ConsoleWindow &console = *m_window->console;
    setLink(link);
    console.selectModel(console.rowOfModel(sheet.name));
    if (link == Link::Connecting)
        console.window.showConnectingState();
    const QStringList findings
        = findingsOf(console, sheet, [](Sight &sight) { sight.lookAtColours(); });
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
}

void tst_Walk::coloursFollowThePalette_data()
{
    QTest::addColumn<QString>("model");
    for (const QString &model : modelsWithEveryControl())
        QTest::newRow(qPrintable(model)) << model;
}

// The desktop may change its palette while the window is open.
void tst_Walk::coloursFollowThePalette()
{
    QFETCH(const QString, model);

    m_window.reset();
    const ColouredWindow translated(QString(), false);
    ConsoleWindow &console = *translated.console;
    console.selectModel(console.rowOfModel(model));
    QStringList findings;
    for (const bool isDark : {true, false}) {
        QApplication::setPalette(palette(isDark));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(console.window.palette().color(QPalette::Window),
                 palette(isDark).color(QPalette::Window));
        findings
            += findingsOf(console, sheetOf(model), [](Sight &sight) { sight.lookAtColours(); });
    }
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
}

void tst_Walk::leftColumnStays_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    for (const QString &language : languages()) {
        QTest::newRow(nameOf(language).constData()) << language << windowSize;
        QTest::addRow("%s, large", nameOf(language).constData()) << language << windowSize * 1.5;
    }
}

void tst_Walk::leftColumnStays()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);

    m_window.reset();
    ColouredWindow translated(language, false);
    ConsoleWindow &console = *translated.console;
    console.window.resize(size);
    const auto places = [&console] {
        settle();
        QMap<QString, QRect> result;
        for (const char *name :
             {"frame_Settings", "comboBox_Player", "line_Comments", "label_Comments",
              "pushButton_Connect", "pushButton_Disconnect", "frame_Commands"}) {
            const auto *widget = console.find<QWidget>(name);
            result.insert(QString::fromLatin1(name),
                          {widget->mapTo(&console.window, QPoint()), widget->size()});
        }
        return result;
    };
    const auto differences = [](const QMap<QString, QRect> &found,
                                const QMap<QString, QRect> &kept) {
        QStringList texts;
        for (auto it = kept.begin(); it != kept.end(); ++it) {
            if (found.value(it.key()) != it.value()) {
                QString text;
                QDebug(&text) << it.key() << found.value(it.key()) << "instead of" << it.value();
                texts.append(text);
            }
        }
        return texts.join(u'\n');
    };

    const int models = console.find<QComboBox>("comboBox_Player")->count();
    const QMap<QString, QRect> first = places();
    for (int row = 0; row < models; ++row) {
        console.selectModel(row);
        QCOMPARE(differences(places(), first), QString());
    }
    // The model stays while the language changes, there and back.
    const char *other = language.isEmpty() ? "action_French" : "action_English";
    const char *own = language.isEmpty() ? "action_English" : "action_French";
    for (int row = 0; row < models; ++row) {
        console.selectModel(row);
        console.find<QAction>(other)->trigger();
        console.find<QAction>(own)->trigger();
        QCOMPARE(differences(places(), first), QString());
    }
}

void tst_Walk::focusIsSeen_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("isDark");
    for (const QString &model : modelsWithEveryControl()) {
        QTest::addRow("%s, light", qPrintable(model)) << model << false;
        QTest::addRow("%s, dark", qPrintable(model)) << model << true;
    }
}

void tst_Walk::focusIsSeen()
{
    QFETCH(const QString, model);
    QFETCH(const bool, isDark);

    m_window.reset();
    ColouredWindow translated(QString(), isDark);
    ConsoleWindow &console = *translated.console;
    QVERIFY(QTest::qWaitForWindowActive(&console.window));
    console.selectModel(console.rowOfModel(model));
    // Everything can be used at once.
    for (const char *name : {"frame_Settings", "frame_Player", "frame_Port", "frame_Baudrate",
                             "frame_Commands", "pushButton_Connect", "pushButton_Disconnect"}) {
        console.find<QWidget>(name)->setEnabled(true);
    }
    settle();

    QWidget *first = console.find<QComboBox>("comboBox_Player");
    // The styles show the focus from the first Tab on.
    QTest::keyClick(&console.window, Qt::Key_Tab);
    first->setFocus(Qt::TabFocusReason);
    QStringList findings;
    QImage with = pictureOf(console.window);
    int controls = 0;
    do {
        QWidget *focus = QApplication::focusWidget();
        const QRect place(focus->mapTo(&console.window, QPoint()), focus->size());
        QTest::keyClick(focus, Qt::Key_Tab);
        const QImage next = pictureOf(console.window);
        const int pixels = focusPixels(with, next, place);
        if (pixels < minFocusPixels)
            findings.append(u"%1: %2 pixels"_s.arg(focus->objectName()).arg(pixels));
        with = next;
        ++controls;
    } while (QApplication::focusWidget() != first && controls < 100);
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
    QVERIFY(QApplication::focusWidget() == first);
}

TESSALY_WINDOW_TEST(tst_Walk)
#include "tst_walk.moc"
