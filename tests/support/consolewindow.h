// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/mainwindow.h"

#include <QTest>

#include <chrono>

class PtyPeer;

/// The real window with the moves of its user. Both links are closed and the received text is
/// empty when it goes, so that tests do not see each other.
class ConsoleWindow
{
public:
    explicit ConsoleWindow(std::chrono::milliseconds connectTimeLimit
                           = MainWindow::defaultConnectTimeLimit);
    ~ConsoleWindow();
    Q_DISABLE_COPY_MOVE(ConsoleWindow)

    MainWindow window;

    /// The widget, action or layout of that name; the test fails when there is none.
    template<typename T>
    T *find(const char *name) const
    {
        T *object = window.findChild<T *>(QString::fromLatin1(name));
        if (!object)
            qFatal("no %s in the window", name);
        return object;
    }

    /// Picks a row of the model list, as the user does.
    void selectModel(int row);
    /// The row of the model of that name; -1 when there is none.
    int rowOfModel(const QString &name) const;
    /// Picks a row of a list by its text without telling the window; false when there is none.
    bool selectText(const char *comboBox, const QString &text);
    /// Presses a button with the left mouse button.
    void click(const char *button);
    QString text(const char *label) const;

    /// Offers the peer's port in the port list, picks it and presses Connect.
    void connectSerial(const PtyPeer &peer);
    /// Sets the address boxes.
    void setAddress(const QString &address);
    /// Sets the address of TcpPeer, presses Connect and waits until the window is connected.
    bool connectTcp();
};
