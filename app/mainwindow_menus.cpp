// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/aboutwindow.h"
#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "app/translationfile.h"
#include "ui_mainwindow.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QTranslator>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView supportAddress(TESSALY_SUPPORT_ADDRESS);

} // namespace

void MainWindow::applyLanguage()
{
    QString name = QLocale::system().name();
    if (m_ui->action_English->isChecked())
        name = englishLocale.name();
    if (m_ui->action_French->isChecked())
        name = frenchLocale.name();
    const QString languageCode = name.section(u'_', 0, 0);

    QCoreApplication::removeTranslator(translator);
    const QString fileName = languageFilePrefix + languageCode;
    if (isSoundTranslationFile(translationFilePath(fileName)) && translator->load(fileName))
        QCoreApplication::installTranslator(translator);

    m_ui->retranslateUi(this);
    m_ui->action_About->setText(m_ui->action_About->text() + u' '
                                + QCoreApplication::applicationName());
    updateFirmwareNote();
    reserveFirmwareNoteRoom();
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

void MainWindow::on_action_Website_triggered()
{
    QDesktopServices::openUrl(QUrl(QCoreApplication::organizationDomain(), QUrl::TolerantMode));
}

void MainWindow::on_action_Contact_Technical_Support_triggered()
{
    const QString message
        = "mailto:"_L1 + supportAddress + "?subject="_L1 + tr("Support request (from:") + u' '
          + QCoreApplication::applicationName() + " - "_L1 + QCoreApplication::applicationVersion()
          + ")&body="_L1 + tr("( write here your question... )");
    QDesktopServices::openUrl(QUrl(message, QUrl::TolerantMode));
}

void MainWindow::on_action_About_triggered()
{
    // Not deleted when it is closed: each trigger makes a dialog of its own.
    auto *dialog = new aboutwindow;
    dialog->fillAboutText();
    dialog->setWindowFlags(Qt::WindowCloseButtonHint);
    dialog->show();
}
