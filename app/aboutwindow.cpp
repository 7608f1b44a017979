// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/aboutwindow.h"

#include "ui_aboutwindow.h"

#include <QIcon>
#include <QSysInfo>

using namespace Qt::Literals::StringLiterals;

aboutwindow::aboutwindow(QWidget *parent)
    : QDialog(parent)
    , m_ui(new Ui_aboutwindow)
{
    m_ui->setupUi(this);
    // A pixmap by itself is the picture for unscaled screens.
    const QIcon logo(u":/Images/Help_Panel_New_Logo.png"_s);
    m_ui->label->setPixmap(logo.pixmap(m_ui->label->pixmap().size(), devicePixelRatio()));
}

aboutwindow::~aboutwindow()
{
    delete m_ui;
}

void aboutwindow::fillAboutText()
{
    m_ui->retranslateUi(this);

    const QString website = QCoreApplication::organizationDomain();
    m_ui->label_Infos->setText(
        "<p>"_L1 + QCoreApplication::applicationName() + u' '
        + QCoreApplication::applicationVersion() + "</p><p>"_L1 + tr("Copyright © 2021")
        + "</p><p>"_L1 + QCoreApplication::organizationName() + "</p><p><a href=\""_L1 + website
        + "\">"_L1 + website + "</a></p><p>"_L1 + operatingSystemText() + "</p>"_L1);
    setWindowTitle(windowTitle() + u' ' + QCoreApplication::applicationName());
}

QString aboutwindow::operatingSystemText() const
{
#ifdef Q_OS_WIN
    return tr("Microsoft") + u' ' + QSysInfo::productType() + u' ' + QSysInfo::productVersion();
#else
    // Where Qt knows nothing, it says "unknown"; the spelling of ours is deliberate.
    const QString product = QSysInfo::prettyProductName();
    return product.isEmpty() || product == "unknown"_L1 ? tr("Unkown OS") : product;
#endif
}
