// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"

#include "app/applicationobjects.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QComboBox>
#include <QHostAddress>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

ConsoleWindow::ConsoleWindow(std::chrono::milliseconds connectTimeLimit)
    : window((forgetSavedSettings(), nullptr), connectTimeLimit)
{
    window.show();
}

ConsoleWindow::~ConsoleWindow()
{
    window.on_pushButton_Disconnect_clicked();
    receivedText.clear();
}

void ConsoleWindow::selectModel(int row)
{
    auto *list = find<QComboBox>("comboBox_Player");
    list->setCurrentIndex(row);
    emit list->activated(row);
}

int ConsoleWindow::rowOfModel(const QString &name) const
{
    return find<QComboBox>("comboBox_Player")->findText(name);
}

bool ConsoleWindow::selectText(const char *comboBox, const QString &text)
{
    auto *list = find<QComboBox>(comboBox);
    const int row = list->findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (row >= 0)
        list->setCurrentIndex(row);
    return row >= 0;
}

void ConsoleWindow::click(const char *button)
{
    QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton);
}

QString ConsoleWindow::text(const char *label) const
{
    return find<QLabel>(label)->text();
}

void ConsoleWindow::connectSerial(const PtyPeer &peer)
{
    auto *ports = find<QComboBox>("comboBox_Port");
    ports->addItem(peer.portName());
    ports->setCurrentIndex(ports->count() - 1);
    click("pushButton_Connect");
}

void ConsoleWindow::setAddress(const QString &address)
{
    const QStringList numbers = address.split(u'.');
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        const QByteArray name = "spinBox_IP_" + QByteArray::number(i + 1);
        find<QSpinBox>(name.constData())->setValue(numbers.at(i).toInt());
    }
}

bool ConsoleWindow::connectTcp()
{
    setAddress(TcpPeer::address().toString());
    click("pushButton_Connect");
    return QTest::qWaitFor(
        [this] { return find<QPushButton>("pushButton_Disconnect")->isEnabled(); });
}
