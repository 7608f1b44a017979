// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/mainwindow.h"

#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

/// The built program on the test's X display, with the moves of its user: real clicks and keys.
///
/// A window of the test's own, the twin, tells where the program's widgets are and what they
/// should look like. It is never shown and opens no link; the moves below keep its lists in step,
/// and the test sets what else it expects to see. Before a click the program has to show every
/// label of the twin, in its place and state, so that no click comes too early.
///
/// What returns a bool waits until it is done, and warns and returns false when it is not done in
/// time.
class ConsoleProgram
{
public:
    /// \a extraPorts serial ports to offer besides the platform's, separated by ':'
    /// \a command, \a folder what is started, and where; the built program in its own folder, which
    /// holds the translations, if nothing else is given. The command has to end up as the process
    /// that was started.
    explicit ConsoleProgram(const QString &extraPorts, const QString &command = {},
                            const QString &folder = {});
    /// Ends the program if it still runs. Fails the test if it has not ended well by itself.
    ~ConsoleProgram();
    Q_DISABLE_COPY_MOVE(ConsoleProgram)

    /// Returns when the main window is shown and has the keyboard.
    bool start();
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    qint64 processId() const { return m_process.processId(); }
    /// Waits until the program has ended by itself with exit code 0.
    bool endsWell();

    template<typename T>
    T *twin(const char *name) const
    {
        T *object = m_twin->findChild<T *>(QString::fromLatin1(name));
        if (!object)
            qFatal("no %s in the window", name);
        return object;
    }
    /// Gives the twin the look of a window with or without an open link.
    void expectLink(bool open);
    /// Gives the twin the look of a window that waits for a TCP connection.
    void expectConnecting();
    bool looksAsExpected() const;
    /// Like looksAsExpected(), for one widget, whatever it is. It must not have the keyboard.
    bool looksAsExpected(const char *widget) const;
    /// Like looksAsExpected(), for another window of the program and a twin of that.
    bool looksLike(const QWidget *twin, const QString &title) const;

    bool click(const char *widget);
    /// Presses one key after the other, named as xdotool names them: {"ctrl+5", "Return"}.
    bool press(const QStringList &keys) const;
    /// Clicks on the widgets of those names and presses the keys of all other ones, without looking
    /// in between. None of the moves may change where the widgets of the later ones are.
    bool perform(const QStringList &moves) const;
    /// Opens a list with the mouse, presses the keys and takes the row with Return.
    bool choose(const char *comboBox, const QStringList &keys, int expectedRow);
    /// Opens a list with the mouse and goes from its top or its end to the row of that text, or
    /// types the text where both are far away. There, the text is of letters and digits.
    bool choose(const char *comboBox, const QString &text);
    /// Types an IPv4 address into its four boxes, which the model has to show.
    bool typeAddress(const QString &address);
    /// Waits until "select all" and "copy" in the widget clicked last give that text.
    /// \a limit in ms; reached only by what fails
    bool copies(const QString &text, int limit = 20'000) const;
    /// Like copies(), for a text that matches from its beginning to its end.
    bool copiesMatch(const QString &pattern) const;

    bool hasWindow(const QString &title) const;
    /// Gives a window the keyboard, which nobody does without a window manager.
    bool focus(const QString &title) const;
    /// Asks a window to close, as a window manager does for a click on the title bar's cross.
    bool requestClose(const QString &title) const;

    static QString title();
    /// The place of a window on the screen, without what a window manager adds.
    QRect geometry(const QString &windowTitle = title()) const;
    /// Writes what a window shows, as a picture of that name in the build's "screenshots/<test>".
    bool saveScreenshot(const QString &name, const QString &windowTitle = title()) const;

private:
    /// What xdotool finds the program's shown windows with: all, or those of a title.
    QStringList search(const QString &title = {}) const;
    qsizetype windowCount() const;
    QString difference(const QWidget *twin, const QString &title) const;
    bool copies(const std::function<bool(const QString &)> &isExpected, const QString &expected,
                int limit) const;

    QTemporaryDir m_home;
    QProcess m_process;
    QElapsedTimer m_sinceTyping; ///< of a row's text
    std::unique_ptr<MainWindow> m_twin;
};
