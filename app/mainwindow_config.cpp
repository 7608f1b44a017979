// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/configlines.h"
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

    // The start waits for nobody who may or may not write into a pipe or a terminal.
    if (!QFileInfo(path).isFile())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QByteArray bytes = file.read(configSizeLimit);
    QTextStream stream(bytes);
    if (!isConfigHead(stream.readLine()))
        return;
    stream.readLine(); // title
    stream.readLine(); // program that wrote the file

    // A value stands below its label; behind the end of a cut file all lines are empty.
    const auto labelledLine = [&stream] {
        stream.readLine();
        return stream.readLine();
    };

    const LanguageChoice language = languageFromLine(labelledLine());
    m_ui->action_Default->setChecked(language == LanguageChoice::Default);
    m_ui->action_English->setChecked(language == LanguageChoice::English);
    m_ui->action_French->setChecked(language == LanguageChoice::French);

    const int modelRow = selectText(m_ui->comboBox_Player, labelledLine());
    if (modelRow >= 0) {
        hideCommandPanels();
        on_comboBox_Player_activated(modelRow);
    }
    selectText(m_ui->comboBox_Port, labelledLine());
    selectText(m_ui->comboBox_Baudrate, labelledLine());

    stream.readLine(); // label of the four address lines
    for (QSpinBox *box : addressBoxes()) {
        if (const auto part = addressPartFromLine(stream.readLine()))
            box->setValue(*part);
    }

    if (autoConnectionFromLine(labelledLine()))
        m_ui->checkBox_Auto_connection->setChecked(true);

    // The player ID is looked up among the models, deliberately: it is in effect never restored.
    selectText(m_ui->comboBox_Player, labelledLine());

    if (const auto form = sentFormFromLine(labelledLine())) {
        const bool hex = *form == SentForm::Hex;
        (hex ? m_ui->radioButton_Sent_Hex : m_ui->radioButton_Sent_Dec)->setChecked(true);
        sentBytesShownInHex = hex;
    }

    if (const auto form = dataFormFromLine(labelledLine())) {
        switch (*form) {
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
