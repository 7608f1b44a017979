// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"
#include "tests/support/testmain.h"

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
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTemporaryDir>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QToolTip>

#include <cmath>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize windowSize(640, 798);
constexpr int deepestLayout = 12;
constexpr double leastTextContrast = 4.5;
constexpr double leastPictureContrast = 3;
constexpr double clearDifference = 1.5;
constexpr double enabledTextContrast = 8; // what is disabled stays clearly below
constexpr int leastSpots = 40;            // an outline of 10 x 10 pixels; a cursor is less

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

/// Those that are beside the program; empty for the built-in texts.
QStringList languages()
{
    QStringList codes{QString()};
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const QString &file : programs.entryList({u"LanguageData_*.qm"_s}))
        codes.append(file.section(u'_', 1).section(u'.', 0, 0));
    return codes;
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

/// The real window in any language: the menu names French alone, so the language's file takes the
/// place of the French one.
class TranslatedWindow
{
public:
    TranslatedWindow(const QString &code, bool isDark)
    {
        QApplication::setPalette(palette(isDark));
        console = std::make_unique<ConsoleWindow>();
        // A name longer than its list, as stable names of ports are.
        auto *ports = console->find<QComboBox>("comboBox_Port");
        ports->clear();
        ports->addItem(u"/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A9087-if00"_s);
        if (!code.isEmpty()) {
            const QString file = u"/LanguageData_%1.qm"_s;
            if (!QFile::copy(QCoreApplication::applicationDirPath() + file.arg(code),
                             m_folder.path() + file.arg(u"fr"_s)))
                qFatal("cannot copy the texts of %s", qPrintable(code));
            QDir::setCurrent(m_folder.path());
            console->find<QAction>("action_French")->trigger();
        }
    }
    ~TranslatedWindow()
    {
        console->find<QAction>("action_English")->trigger();
        console.reset();
        QDir::setCurrent(QCoreApplication::applicationDirPath());
        QApplication::setPalette(palette(false));
    }
    Q_DISABLE_COPY_MOVE(TranslatedWindow)

    std::unique_ptr<ConsoleWindow> console;

private:
    QTemporaryDir m_folder;
};

/// Relative luminance by WCAG 2.1, 0 to 1.
double luminance(QRgb colour)
{
    static const auto table = [] {
        std::array<double, 256> values{};
        for (size_t i = 0; i < values.size(); ++i) {
            const double value = static_cast<double>(i) / 255;
            values[i] = value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    const auto linear = [](int channel) { return table[static_cast<size_t>(channel)]; };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
           + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QRgb mostFrequent(const QMap<QRgb, int> &counts)
{
    QRgb found = 0;
    int most = 0;
    for (auto it = counts.begin(); it != counts.end(); ++it) {
        if (it.value() > most) {
            most = it.value();
            found = it.key();
        }
    }
    return found;
}

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

/// What a walker sees in the window at one moment. Colours are those of the painted pixels.
class Sight
{
public:
    explicit Sight(const ConsoleWindow &console);

    void lookAtTexts();
    void lookAtLists();
    void lookAtPlaces();
    void lookAtNames();
    void lookAtTabOrder();
    void lookAtTextColours();
    void lookAtPictures();

    QStringList findings() const { return m_findings; }

private:
    bool isControl(const QWidget *widget) const;
    QRect placeOf(const QWidget *widget) const;
    void report(const QWidget *widget, const QString &text);

    const QMainWindow &m_window;
    QImage m_picture;
    QList<QWidget *> m_widgets; ///< the visible ones in the content, those inside others left out
    QList<ShownText> m_texts;
    QStringList m_findings;
};

Sight::Sight(const ConsoleWindow &console)
    : m_window(console.window)
    , m_picture(const_cast<MainWindow &>(console.window)
                    .grab()
                    .toImage()
                    .convertToFormat(QImage::Format_RGB32))
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

bool Sight::isControl(const QWidget *widget) const
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget)
           || qobject_cast<const QSpinBox *>(widget) || qobject_cast<const QSlider *>(widget)
           || qobject_cast<const QTextEdit *>(widget)
           || widget->objectName() == "label_Bytes_Sended"_L1;
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
    const auto compare
        = [this](const QWidget *widget, const QString &text, QSize needed, QSize room) {
              if (needed.width() > room.width() || needed.height() > room.height()) {
                  report(widget, u"\"%1\" needs %2 x %3, has %4 x %5"_s.arg(text)
                                     .arg(needed.width())
                                     .arg(needed.height())
                                     .arg(room.width())
                                     .arg(room.height()));
              }
          };
    for (const ShownText &shown : std::as_const(m_texts)) {
        if (qobject_cast<const QComboBox *>(shown.widget))
            continue; // lists have a way to show long texts
        const QFontMetrics metrics = shown.widget->fontMetrics();
        const QString text = qobject_cast<const QSpinBox *>(shown.widget) ? u"255"_s : shown.text;
        const QSize needed = shown.wraps
                                 ? metrics.boundingRect(shown.room, Qt::TextWordWrap, text).size()
                                 : metrics.size(Qt::TextShowMnemonic, text);
        compare(shown.widget, text, needed, shown.room.size());
    }
    // All menus stand beside each other, none behind an arrow.
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
        QSize least = QWidgetItem(const_cast<QWidget *>(widget)).minimumSize();
        if (widget->hasHeightForWidth()) {
            const int height = widget->layout()
                                   ? widget->layout()->totalMinimumHeightForWidth(widget->width())
                                   : widget->heightForWidth(widget->width());
            least.setHeight(qMax(widget->minimumHeight(), height));
        }
        if (widget->width() < least.width() || widget->height() < least.height()) {
            report(widget, u"squeezed to %1 x %2 from %3 x %4"_s.arg(widget->width())
                               .arg(widget->height())
                               .arg(least.width())
                               .arg(least.height()));
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

void Sight::lookAtNames()
{
    for (const QWidget *widget : std::as_const(m_widgets)) {
        if (!isControl(widget))
            continue;
        // What a button or a label reads is its name.
        const QString name = widget->accessibleName().isEmpty()
                                 ? widget->property("text").toString()
                                 : widget->accessibleName();
        if (name.isEmpty())
            report(widget, u"no accessible name"_s);
    }
}

void Sight::lookAtTabOrder()
{
    // The chain that the Tab key follows.
    QList<const QWidget *> chain;
    const QWidget *first = m_window.findChild<QWidget *>(u"comboBox_Player"_s);
    const QWidget *next = first;
    do {
        if (m_widgets.contains(next) && next->isEnabled() && isControl(next)) {
            if (next->focusPolicy() & Qt::TabFocus)
                chain.append(next);
            else
                report(next, u"not reached by the Tab key"_s);
        }
        next = next->nextInFocusChain();
    } while (next != first);

    const int commands = placeOf(m_window.findChild<QWidget *>(u"frame_Commands"_s)).left();
    for (qsizetype i = 1; i < chain.size(); ++i) {
        const QRect before = placeOf(chain.at(i - 1));
        const QRect after = placeOf(chain.at(i));
        const bool nextColumn = before.left() < commands && after.left() >= commands;
        const bool sameColumn = (before.left() < commands) == (after.left() < commands);
        const bool below = after.top() > before.bottom();
        const bool toTheRight = after.left() > before.right() && after.bottom() >= before.top();
        if (!nextColumn && !(sameColumn && (below || toTheRight)))
            report(chain.at(i), u"comes after "_s + chain.at(i - 1)->objectName());
    }
}

void Sight::lookAtTextColours()
{
    for (const ShownText &shown : std::as_const(m_texts)) {
        const QRect place = shown.room.translated(placeOf(shown.widget).topLeft());
        QMap<QRgb, int> counts;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x)
                ++counts[m_picture.pixel(x, y)];
        }
        const QRgb background = mostFrequent(counts);
        // The edges of letters are paler than their strokes.
        double best = 1;
        for (auto it = counts.begin(); it != counts.end(); ++it)
            best = qMax(best, contrast(it.key(), background));
        if (best < leastTextContrast)
            report(shown.widget, u"text with contrast %1"_s.arg(best));
        // Captions and the note are to be read at any time, and so is the address on its field.
        const bool looksEnabled = best >= enabledTextContrast;
        if (isControl(shown.widget) && !qobject_cast<const QSpinBox *>(shown.widget)
            && looksEnabled != shown.widget->isEnabled()) {
            report(shown.widget,
                   u"enabled: %1, but contrast %2"_s.arg(shown.widget->isEnabled()).arg(best));
        }
    }
}

void Sight::lookAtPictures()
{
    for (const QWidget *widget : std::as_const(m_widgets)) {
        const auto *checkable = qobject_cast<const QAbstractButton *>(widget);
        if (checkable && checkable->isCheckable()) {
            QStyleOptionButton option;
            option.initFrom(checkable);
            const auto element = qobject_cast<const QRadioButton *>(checkable)
                                     ? QStyle::SE_RadioButtonIndicator
                                     : QStyle::SE_CheckBoxIndicator;
            const QRect place = checkable->style()
                                    ->subElementRect(element, &option, checkable)
                                    .translated(placeOf(checkable).topLeft());
            // The outline is met in the middle of the left side.
            const int y = place.center().y();
            double found = 1;
            for (int x = place.left(); x < place.left() + 2; ++x) {
                found = qMax(found,
                             contrast(m_picture.pixel(x, y), m_picture.pixel(place.left() - 2, y)));
            }
            if (found < leastPictureContrast)
                report(checkable, u"outline with contrast %1"_s.arg(found));
        }
        const auto *button = qobject_cast<const QPushButton *>(widget);
        if (!button || button->icon().isNull())
            continue;
        const QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                                button->iconSize(), placeOf(button));
        if (!placeOf(button).contains(place.adjusted(-2, -1, 2, 1)))
            report(button, u"no room for its picture"_s);
        // The background may change from row to row, not within one.
        QMap<QRgb, int> glyph;
        QMap<QRgb, int> behind;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            const QRgb background = m_picture.pixel(place.left() - 1, y);
            ++behind[background];
            for (int x = place.left(); x <= place.right(); ++x) {
                const QRgb pixel = m_picture.pixel(x, y);
                if (contrast(pixel, background) > 1.2)
                    ++glyph[pixel];
            }
        }
        const QRgb tone = mostFrequent(glyph);
        double sum = 0;
        for (auto it = behind.begin(); it != behind.end(); ++it)
            sum += it.value() * contrast(it.key(), tone);
        const double found = glyph.isEmpty() ? 1 : sum / place.height();
        if (found < leastPictureContrast)
            report(button, u"picture with contrast %1"_s.arg(found));
    }
}

/// How many spots of a control tell clearly whether it has the focus.
int spotsThatTellFocus(const QImage &with, const QImage &without, const QRect &place)
{
    int spots = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            if (contrast(with.pixel(x, y), without.pixel(x, y)) >= clearDifference)
                ++spots;
        }
    }
    return spots;
}

} // namespace

class tst_Walk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everythingIsInOrder_data();
    void everythingIsInOrder();
    void leftColumnStays_data();
    void leftColumnStays();
    void focusIsSeen_data();
    void focusIsSeen();
    void cleanupTestCase();

private:
    void enter(const QString &language, bool isDark, Link link);

    std::unique_ptr<TranslatedWindow> m_translated; ///< kept while the rows want the same
    QString m_language;
    bool m_isDark = false;
    PtyPeer m_device;
};

void tst_Walk::initTestCase()
{
    QApplication::setStyle(u"Fusion"_s);
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
    QVERIFY(languages().size() >= 7);
}

void tst_Walk::cleanupTestCase()
{
    m_translated.reset();
}

/// Makes the window of that look, unless it is the one at hand.
void tst_Walk::enter(const QString &language, bool isDark, Link link)
{
    if (!m_translated || m_language != language || m_isDark != isDark) {
        m_translated.reset();
        m_translated = std::make_unique<TranslatedWindow>(language, isDark);
        m_language = language;
        m_isDark = isDark;
    }
    ConsoleWindow &console = *m_translated->console;
    const auto *disconnect = console.find<QPushButton>("pushButton_Disconnect");
    if (link == Link::Open && !disconnect->isEnabled()) {
        console.selectModel(console.rowOfModel(u"Vistar Show - SV500 (Serial)"_s));
        console.connectSerial(m_device);
    } else if (link != Link::Open) {
        console.window.on_pushButton_Disconnect_clicked();
    }
    QCOMPARE(disconnect->isEnabled(), link == Link::Open);
}

void tst_Walk::everythingIsInOrder_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<Link>("link");
    QTest::addColumn<int>("model");

    QStringList models;
    {
        const ConsoleWindow console;
        const auto *list = console.find<QComboBox>("comboBox_Player");
        for (int row = 0; row < list->count(); ++row)
            models.append(list->itemText(row));
    }
    QCOMPARE(models.size(), deviceCatalogue.size());
    const QMap<Link, QByteArray> links{{Link::Closed, "not connected"_ba},
                                       {Link::Connecting, "connecting"_ba},
                                       {Link::Open, "connected"_ba}};
    for (const QString &language : languages()) {
        for (const bool isDark : {false, true}) {
            for (auto link = links.begin(); link != links.end(); ++link) {
                for (int row = 0; row < models.size(); ++row) {
                    QTest::addRow("%s, %s, %s, %s", nameOf(language).constData(),
                                  isDark ? "dark" : "light", link.value().constData(),
                                  qPrintable(models.at(row)))
                        << language << isDark << link.key() << row;
                }
            }
        }
    }
}

void tst_Walk::everythingIsInOrder()
{
    QFETCH(const QString, language);
    QFETCH(const bool, isDark);
    QFETCH(const Link, link);
    QFETCH(const int, model);

    enter(language, isDark, link);
    ConsoleWindow &console = *m_translated->console;
    console.selectModel(model);
    if (link == Link::Connecting)
        console.window.showConnectingState();

    // Each source of playback, and each type of subtitles, has lists of its own.
    auto *sources = console.find<QComboBox>("comboBox_Source_Of_Playback");
    auto *types = console.find<QComboBox>("comboBox_Subtitles_Type");
    QStringList findings;
    for (int turn = 0; turn < qMax(1, qMax(sources->count(), types->count())); ++turn) {
        for (QComboBox *list : {sources, types}) {
            if (turn < list->count()) {
                list->setCurrentIndex(turn);
                emit list->activated(turn);
            }
        }
        settle();
        Sight sight(console);
        sight.lookAtTexts();
        sight.lookAtLists();
        sight.lookAtPlaces();
        sight.lookAtNames();
        sight.lookAtTabOrder();
        sight.lookAtTextColours();
        sight.lookAtPictures();
        findings.append(sight.findings());
    }
    findings.removeDuplicates();
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

    m_translated.reset();
    TranslatedWindow translated(language, false);
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
    for (const char *model : {"Vistar Show - SV500 (Serial)", "Vistar Show - SV500 (TCP/IP)",
                              "Sonet A (Serial)", "Ampra One"}) {
        QTest::addRow("%s, light", model) << QString::fromLatin1(model) << false;
        QTest::addRow("%s, dark", model) << QString::fromLatin1(model) << true;
    }
}

void tst_Walk::focusIsSeen()
{
    QFETCH(const QString, model);
    QFETCH(const bool, isDark);

    m_translated.reset();
    TranslatedWindow translated(QString(), isDark);
    ConsoleWindow &console = *translated.console;
    QVERIFY(QTest::qWaitForWindowActive(&console.window));
    QVERIFY(console.rowOfModel(model) >= 0);
    console.selectModel(console.rowOfModel(model));
    // Everything can be used at once.
    for (const char *name : {"frame_Settings", "frame_Player", "frame_Port", "frame_Baudrate",
                             "frame_Commands", "pushButton_Connect", "pushButton_Disconnect"}) {
        console.find<QWidget>(name)->setEnabled(true);
    }
    settle();

    const auto picture = [&console] {
        return console.window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    QWidget *first = console.find<QComboBox>("comboBox_Player");
    // The styles show the focus from the first Tab on.
    QTest::keyClick(&console.window, Qt::Key_Tab);
    first->setFocus(Qt::TabFocusReason);
    QStringList findings;
    QImage with = picture();
    int controls = 0;
    do {
        QWidget *focus = QApplication::focusWidget();
        const QRect place(focus->mapTo(&console.window, QPoint()), focus->size());
        QTest::keyClick(focus, Qt::Key_Tab);
        const QImage next = picture();
        const int spots = spotsThatTellFocus(with, next, place);
        if (spots < leastSpots)
            findings.append(u"%1: %2 spots"_s.arg(focus->objectName()).arg(spots));
        with = next;
        ++controls;
    } while (QApplication::focusWidget() != first && controls < 100);
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(u'\n')));
    QVERIFY(controls > 15);
}

TESSALY_WINDOW_TEST(tst_Walk)
#include "tst_walk.moc"
