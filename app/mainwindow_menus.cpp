// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "ui_mainwindow.h"

#include <QCoreApplication>
#include <QTranslator>

void MainWindow::applyLanguage()
{
    QString name = QLocale::system().name();
    if (m_ui->action_English->isChecked())
        name = englishLocale.name();
    if (m_ui->action_French->isChecked())
        name = frenchLocale.name();
    const QString languageCode = name.section(u'_', 0, 0);

    QCoreApplication::removeTranslator(translator);
    if (translator->load(languageFilePrefix + languageCode))
        QCoreApplication::installTranslator(translator);

    m_ui->retranslateUi(this);
    m_ui->action_About->setText(m_ui->action_About->text() + u' '
                                + QCoreApplication::applicationName());
    updateFirmwareNote();
}

void MainWindow::uncheckLanguageActions()
{
    m_ui->action_Default->setChecked(false);
    m_ui->action_English->setChecked(false);
    m_ui->action_French->setChecked(false);
}

void MainWindow::on_action_Default_triggered()
{
    uncheckLanguageActions();
    m_ui->action_Default->setChecked(true);
    applyLanguage();
}

void MainWindow::on_action_English_triggered()
{
    uncheckLanguageActions();
    m_ui->action_English->setChecked(true);
    applyLanguage();
}

void MainWindow::on_action_French_triggered()
{
    uncheckLanguageActions();
    m_ui->action_French->setChecked(true);
    applyLanguage();
}

void MainWindow::on_action_Website_triggered() {}

void MainWindow::on_action_Contact_Technical_Support_triggered() {}

void MainWindow::on_action_About_triggered() {}
