// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/configfile.h"
#include "app/mainwindow.h"
#include "ui_mainwindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the file lies when nobody says where: beside the program.
QString pathBesideProgram()
{
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(QCoreApplication::applicationName() + configFileSuffix);
}

/// Opening such a file for writing waits for a reader, for ever if there is none.
bool isNamedPipe(const QString &path)
{
    std::error_code error; // a file that is not there is none
    return std::filesystem::is_fifo(QFileInfo(path).filesystemFilePath(), error);
}

/// Makes the row of exactly that text current, if the list has one.
/// \return the row, or -1
int selectText(QComboBox *list, const QString &text)
{
    const int row = list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0)
        list->setCurrentIndex(row);
    return row;
}

} // namespace

void MainWindow::saveConfig(QString path)
{
    if (path.isEmpty())
        path = pathBesideProgram();

    // The two traces are deliberate. At the program's end, nobody sees them any more.
    m_ui->textEdit_Data->append(path + "(before save)"_L1);
    if (isNamedPipe(path))
        return;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    m_ui->textEdit_Data->append(path + "(after save)"_L1);

    SavedSettings settings;
    if (m_ui->action_English->isChecked())
        settings.language = LanguageChoice::English;
    else if (m_ui->action_French->isChecked())
        settings.language = LanguageChoice::French;
    settings.model = m_ui->comboBox_Player->currentText();
    settings.port = m_ui->comboBox_Port->currentText();
    settings.baudRate = m_ui->comboBox_Baudrate->currentText();
    const auto boxes = addressBoxes();
    std::transform(boxes.begin(), boxes.end(), settings.address.begin(),
                   [](const QSpinBox *box) { return box->value(); });
    settings.autoConnection = m_ui->checkBox_Auto_connection->isChecked();
    settings.playerId = m_ui->comboBox_ID->currentText();
    if (m_ui->radioButton_Sent_Dec->isChecked())
        settings.sentForm = SentForm::Dec;
    if (m_ui->radioButton_Sent_Hex->isChecked())
        settings.sentForm = SentForm::Hex;
    if (m_ui->radioButton_Data_ASCII->isChecked())
        settings.dataForm = DataForm::Ascii;
    if (m_ui->radioButton_Data_Hex->isChecked())
        settings.dataForm = DataForm::Hex;
    if (m_ui->radioButton_Data_Dec->isChecked())
        settings.dataForm = DataForm::Dec;

    QTextStream stream(&file);
    for (const QString &line : configLines(settings))
        stream << line << '\n';
}

void MainWindow::loadConfig(QString path)
{
    if (path.isEmpty())
        path = pathBesideProgram();

    const std::optional<SavedSettings> settings = readConfigFile(path);
    if (!settings)
        return;

    m_ui->action_Default->setChecked(settings->language == LanguageChoice::Default);
    m_ui->action_English->setChecked(settings->language == LanguageChoice::English);
    m_ui->action_French->setChecked(settings->language == LanguageChoice::French);

    const int modelRow = selectText(m_ui->comboBox_Player, settings->model);
    if (modelRow >= 0) {
        hideCommandPanels();
        on_comboBox_Player_activated(modelRow);
    }
    selectText(m_ui->comboBox_Port, settings->port);
    selectText(m_ui->comboBox_Baudrate, settings->baudRate);

    const auto boxes = addressBoxes();
    for (size_t i = 0; i < boxes.size(); ++i) {
        if (const auto part = settings->address.at(i))
            boxes.at(i)->setValue(*part);
    }

    if (settings->autoConnection)
        m_ui->checkBox_Auto_connection->setChecked(true);

    // The player ID is looked up among the models, deliberately: it is in effect never restored.
    selectText(m_ui->comboBox_Player, settings->playerId);

    if (settings->sentForm) {
        const bool hex = *settings->sentForm == SentForm::Hex;
        (hex ? m_ui->radioButton_Sent_Hex : m_ui->radioButton_Sent_Dec)->setChecked(true);
        sentBytesShownInHex = hex;
    }

    if (settings->dataForm) {
        switch (*settings->dataForm) {
        case DataForm::Ascii:
            m_ui->radioButton_Data_ASCII->setChecked(true);
            break;
        case DataForm::Hex:
            m_ui->radioButton_Data_Hex->setChecked(true);
            break;
        case DataForm::Dec:
            m_ui->radioButton_Data_Dec->setChecked(true);
            break;
        }
    }
}
