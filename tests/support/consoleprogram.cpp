// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consoleprogram.h"

#include "tests/support/folders.h"
#include "tests/support/testedprocess.h"
#include "tests/support/testmain.h"

#include <QClipboard>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>

#include <chrono>
#include <cstdlib>

#include <xcb/xcb.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int deepestLayout = 10;
constexpr int longList = 30;      // in rows; from here on typing is faster than walking
constexpr int timeLimit = 20'000; // in ms; reached only by what fails

/// Its output, and nothing when it fails: looking for a window that is not there is such a failure.
QString xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(u"xdotool"_s, arguments);
    if (!process.waitForFinished(timeLimit) || process.exitCode() != 0)
        return {};
    return QString::fromLatin1(process.readAllStandardOutput());
}

bool runXdotool(const QStringList &arguments)
{
    const int exitCode = QProcess::execute(u"xdotool"_s, arguments);
    if (exitCode != 0)
        qWarning() << "xdotool" << arguments << "gave" << exitCode;
    return exitCode == 0;
}

/// Looks less and less often, as each look takes the processor's time from what is waited for.
template<typename Condition>
bool poll(Condition condition, int limit = timeLimit)
{
    constexpr int longestPause = 200; // in ms
    const QDeadlineTimer deadline(limit);
    for (int pause = 5; !condition(); pause = std::min(2 * pause, longestPause)) {
        if (deadline.hasExpired())
            return false;
        QTest::qWait(pause);
    }
    return true;
}

template<typename Condition>
bool waitFor(const char *what, Condition condition)
{
    const bool done = poll(condition);
    if (!done)
        qWarning("waited in vain: %s", what);
    return done;
}

/// Both ends of a text that may be very long.
QString excerpt(const QString &text)
{
    constexpr qsizetype length = 200;
    return text.size() <= 2 * length ? text : text.first(length) + u"..."_s + text.last(length);
}

/// Where the pictures of this test are; made when it is not there.
QDir pictureFolder()
{
    QDir folder(buildPath("screenshots/"_L1 + runningTest()));
    folder.mkpath(u"."_s);
    return folder;
}

QImage screenshot(const QRect &area)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie
        = xcb_intern_atom(connection, false, static_cast<uint16_t>(name.size()), name.constData());
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(connection, cookie, nullptr);
    const xcb_atom_t result = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

} // namespace

ConsoleProgram::ConsoleProgram(const QString &extraPorts, const QString &command,
                               const QString &folder)
{
    const QString path = command.isEmpty() ? programPath(u"tessaly"_s) : command;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_home.path());
    environment.insert(u"XDG_DATA_HOME"_s, m_home.path());
    environment.insert(u"TESSALY_EXTRA_PORTS"_s, extraPorts);
    m_process.setProcessEnvironment(environment);
    m_process.setProgram(path);
    m_process.setWorkingDirectory(folder.isEmpty() ? QFileInfo(path).path() : folder);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    bindToTest(m_process);

    qputenv("TESSALY_EXTRA_PORTS", extraPorts.toLocal8Bit());
    forgetSavedSettings();
    m_twin = std::make_unique<MainWindow>();
    m_twin->setAttribute(Qt::WA_DontShowOnScreen);
    m_twin->show();
}

ConsoleProgram::~ConsoleProgram()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    } else if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0) {
        // It has crashed, or a sanitizer has ended it, where the test did not look. Not every
        // program with a console is a test.
        qWarning("the console did not end well");
        if (QTest::currentTestFunction())
            QTest::qFail("the console did not end well", __FILE__, __LINE__);
    }
}

bool ConsoleProgram::start()
{
    m_process.start();
    return waitFor("the main window", [this] { return hasWindow(title()); }) && focus(title());
}

bool ConsoleProgram::endsWell()
{
    if (!waitFor("the program's end", [this] { return !isRunning(); }))
        return false;
    if (m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0)
        return true;
    qWarning() << "ended with" << m_process.exitStatus() << m_process.exitCode();
    return false;
}

void ConsoleProgram::expectLink(bool open)
{
    for (const char *name :
         {"frame_Player", "frame_Port", "frame_Baudrate", "frame_Settings", "pushButton_Connect"}) {
        twin<QWidget>(name)->setEnabled(!open);
    }
    for (const char *name : {"pushButton_Disconnect", "frame_Commands"})
        twin<QWidget>(name)->setEnabled(open);
    twin<QLabel>("label_Connection_Message")->hide();
}

void ConsoleProgram::expectConnecting()
{
    expectLink(true);
    for (const char *name : {"pushButton_Disconnect", "frame_Commands"})
        twin<QWidget>(name)->setEnabled(false);
    twin<QLabel>("label_Connection_Message")->show();
}

bool ConsoleProgram::looksAsExpected() const
{
    return looksLike(m_twin.get(), title());
}

bool ConsoleProgram::looksAsExpected(const char *widget) const
{
    const auto *expected = twin<QWidget>(widget);
    const bool alike = poll([&] {
        const QPoint corner = geometry(title()).topLeft();
        const QRect place(expected->mapTo(m_twin.get(), QPoint()), expected->size());
        return screenshot(place.translated(corner))
               == m_twin->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
    });
    if (!alike) {
        qWarning("%s does not look as expected", widget);
        saveScreenshot(u"unexpected"_s);
    }
    return alike;
}

bool ConsoleProgram::looksLike(const QWidget *twin, const QString &title) const
{
    QString found;
    const bool alike = poll([&] {
        found = difference(twin, title);
        return found.isEmpty();
    });
    if (!alike) {
        qWarning() << "the window does not look as expected:" << found;
        saveScreenshot(u"unexpected"_s, title);
        const_cast<QWidget *>(twin)->grab().save(pictureFolder().filePath(u"expected.png"_s));
    }
    return alike;
}

/// Labels only: their look depends neither on the keyboard's focus nor on where the mouse is.
QString ConsoleProgram::difference(const QWidget *twin, const QString &title) const
{
    const QRect area = geometry(title);
    if (area.size() != twin->size()) {
        return u"window of %1 x %2 pixels"_s.arg(QString::number(area.width()),
                                                 QString::number(area.height()));
    }
    // A text that the twin got just now may still have the size of the former one, and each layout
    // tells only the one around it.
    for (int level = 0; level < deepestLayout; ++level)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QImage shown = screenshot(area);
    const QImage expected
        = const_cast<QWidget *>(twin)->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (const QLabel *label : twin->findChildren<QLabel *>()) {
        // With an open link the sent bytes can be selected; there copies() reads them.
        const bool selectable
            = label->isEnabled() && label->objectName() == "label_Bytes_Sended"_L1;
        if (!label->isVisible() || selectable)
            continue;
        const QRect place(label->mapTo(twin, QPoint()), label->size());
        if (shown.copy(place) != expected.copy(place))
            return label->objectName() + " \""_L1 + label->text() + u'"';
    }
    return {};
}

bool ConsoleProgram::click(const char *widget)
{
    return twin<QWidget>(widget) && perform({QString::fromLatin1(widget)});
}

bool ConsoleProgram::press(const QStringList &keys) const
{
    return runXdotool(QStringList{u"key"_s} + keys);
}

bool ConsoleProgram::perform(const QStringList &moves) const
{
    if (!looksAsExpected())
        return false;
    const QPoint corner = geometry(title()).topLeft();
    QStringList arguments;
    for (const QString &move : moves) {
        const auto *target = m_twin->findChild<QWidget *>(move);
        if (!target) {
            arguments += {u"key"_s, move};
            continue;
        }
        if (!target->isVisible() || !target->isEnabled()) {
            qWarning() << move << "is not to be clicked";
            return false;
        }
        const QPoint point = corner + target->mapTo(m_twin.get(), target->rect().center());
        arguments += {u"mousemove"_s,
                      QString::number(point.x()),
                      QString::number(point.y()),
                      u"click"_s,
                      u"--delay"_s,
                      u"0"_s,
                      u"1"_s};
    }
    return runXdotool(arguments);
}

bool ConsoleProgram::choose(const char *comboBox, const QStringList &keys, int expectedRow)
{
    if (!click(comboBox) || !waitFor("the opened list", [this] { return windowCount() == 2; })
        || !press(keys + QStringList{u"Return"_s})
        || !waitFor("the closed list", [this] { return windowCount() == 1; })) {
        return false;
    }
    auto *list = twin<QComboBox>(comboBox);
    list->setCurrentIndex(expectedRow);
    emit list->activated(expectedRow);
    return true;
}

bool ConsoleProgram::choose(const char *comboBox, const QString &text)
{
    const auto *list = twin<QComboBox>(comboBox);
    const int row = list->findText(text);
    if (row < 0) {
        qWarning() << text << "is not in" << comboBox;
        return false;
    }
    const int rowsBelow = list->count() - 1 - row;
    if (row < longList)
        return choose(comboBox, QStringList{u"Home"_s} + QStringList(row, u"Down"_s), row);
    if (rowsBelow < longList)
        return choose(comboBox, QStringList{u"End"_s} + QStringList(rowsBelow, u"Up"_s), row);

    QStringList keys{u"Home"_s};
    for (const QChar key : text)
        keys.append(key);
    // What was typed just before would belong to the same word.
    const bool isApart = waitFor("the end of a word", [this] {
        return !m_sinceTyping.isValid()
               || m_sinceTyping.hasExpired(QApplication::keyboardInputInterval());
    });
    const bool isChosen = isApart && choose(comboBox, keys, row);
    m_sinceTyping.start();
    return isChosen;
}

bool ConsoleProgram::typeAddress(const QString &address)
{
    const QStringList numbers = address.split(u'.');
    for (int i = 0; i < numbers.size(); ++i) {
        QStringList keys{u"ctrl+a"_s};
        for (const QChar digit : numbers.at(i))
            keys.append(digit);
        const QByteArray box = "spinBox_IP_" + QByteArray::number(i + 1);
        if (!click(box.constData()) || !press(keys + QStringList{u"Tab"_s}))
            return false;
    }
    return true;
}

bool ConsoleProgram::copies(const QString &text, int limit) const
{
    return copies([&text](const QString &copied) { return copied == text; }, text, limit);
}

bool ConsoleProgram::copiesMatch(const QString &pattern) const
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    return copies(
        [&expression](const QString &copied) { return expression.match(copied).hasMatch(); },
        pattern, timeLimit);
}

bool ConsoleProgram::copies(const std::function<bool(const QString &)> &isExpected,
                            const QString &expected, int limit) const
{
    QString copied;
    // Until the owner's announcement is here, the owner refuses the test as one that comes too
    // late.
    QSignalSpy announced(QGuiApplication::clipboard(), &QClipboard::dataChanged);
    const bool done = poll(
        [&] {
            announced.clear();
            if (!press({u"ctrl+a"_s, u"ctrl+c"_s}) || !announced.wait(1000))
                return false;
            copied = QGuiApplication::clipboard()->text();
            return isExpected(copied);
        },
        limit);
    if (!done) {
        qWarning() << "copied" << copied.size() << "characters:" << excerpt(copied) << "instead of"
                   << expected.size() << "characters:" << excerpt(expected);
        saveScreenshot(u"unexpected"_s);
    }
    return done;
}

QStringList ConsoleProgram::search(const QString &title) const
{
    QStringList arguments{u"search"_s, u"--all"_s, u"--onlyvisible"_s, u"--pid"_s,
                          QString::number(m_process.processId())};
    if (!title.isEmpty())
        arguments += {u"--name"_s, u'^' + title + u'$'};
    return arguments;
}

qsizetype ConsoleProgram::windowCount() const
{
    return xdotool(search()).count(u'\n');
}

bool ConsoleProgram::hasWindow(const QString &title) const
{
    return !xdotool(search(title)).isEmpty();
}

QRect ConsoleProgram::geometry(const QString &title) const
{
    const QString text = xdotool(search(title) + QStringList{u"getwindowgeometry"_s, u"--shell"_s});
    const auto value = [&text](const char *name) {
        const QRegularExpression line(u"^%1=(-?\\d+)$"_s.arg(QLatin1StringView(name)),
                                      QRegularExpression::MultilineOption);
        return line.match(text).captured(1).toInt();
    };
    return {value("X"), value("Y"), value("WIDTH"), value("HEIGHT")};
}

bool ConsoleProgram::focus(const QString &title) const
{
    return waitFor("the keyboard's focus", [&] {
        const QString window = xdotool(search(title)).trimmed();
        if (window.isEmpty())
            return false;
        xdotool({u"windowfocus"_s, window});
        return xdotool({u"getwindowfocus"_s, u"-f"_s}).trimmed() == window;
    });
}

bool ConsoleProgram::requestClose(const QString &title) const
{
    const auto window = xdotool(search(title)).trimmed().toUInt();
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (window == 0 || !x11)
        return false;

    xcb_connection_t *connection = x11->connection();
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(connection, "WM_PROTOCOLS");
    event.data.data32[0] = atom(connection, "WM_DELETE_WINDOW");
    xcb_send_event(connection, false, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
    return xcb_flush(connection) > 0;
}

QString ConsoleProgram::title()
{
    return u"Tessaly 1.2.8.0"_s;
}

bool ConsoleProgram::saveScreenshot(const QString &name, const QString &windowTitle) const
{
    return screenshot(geometry(windowTitle)).save(pictureFolder().filePath(name + ".png"_L1));
}
