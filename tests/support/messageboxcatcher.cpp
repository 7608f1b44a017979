// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/messageboxcatcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

using namespace std::chrono_literals;

MessageBoxCatcher::MessageBoxCatcher()
{
    connect(&m_timer, &QTimer::timeout, this, &MessageBoxCatcher::answer);
    m_timer.start(5ms);
}

void MessageBoxCatcher::answer()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    messages.append({box->windowTitle(), box->text(), box->icon(),
                     static_cast<int>(box->standardButtons()), box->defaultButton() != nullptr,
                     box->parentWidget()});
    box->button(QMessageBox::Ok)->click();
}
