// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "link/receivedtextdisplay.h"
#include "ui/consolestyle.h"
#include "ui/contentscroller.h"
#include "ui/disabledpalette.h"
#include "ui_mainwindow.h"

#include <QFontDatabase>

// What Designer's file cannot say.
void MainWindow::completeForm()
{
    auto *style = new ConsoleStyle;
    style->setParent(this);
    const QList<QFrame *> frames = m_ui->centralWidget->findChildren<QFrame *>();
    for (QFrame *frame : frames) {
        // The settings and the address keep their outline.
        if (frame->frameShape() == QFrame::StyledPanel && frame != m_ui->frame_Settings
            && frame != m_ui->frame_IP_2 && frame != m_ui->textEdit_Data) {
            frame->setStyle(style);
        }
    }
    const QList<QAbstractButton *> buttons = m_ui->centralWidget->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        button->setStyle(style);
    for (QSpinBox *box : addressBoxes())
        box->setStyle(style);
    m_ui->horizontalSlider_Volume->setStyle(style);
    m_ui->label_Bytes_Sended->setStyle(style);
    m_ui->textEdit_Data->setStyle(style);

    const QFont fixedWidth = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_ui->label_Bytes_Sended->setFont(fixedWidth);
    m_ui->textEdit_Data->setFont(fixedWidth);
    new ReceivedTextDisplay(m_ui->textEdit_Data, &receivedText, m_ui->textEdit_Data);

    // Nothing below moves when another model has the other kind of link, or no check box.
    m_ui->frame_IP->setMinimumHeight(m_ui->frame_Port->sizeHint().height()
                                     + m_ui->frame_Settings->layout()->spacing()
                                     + m_ui->frame_Baudrate->sizeHint().height());
    QSizePolicy keepsRoom = m_ui->checkBox_Auto_connection->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    m_ui->checkBox_Auto_connection->setSizePolicy(keepsRoom);

    new DisabledPalette(m_ui->centralWidget);
    new ContentScroller(m_ui->centralWidget);
}
