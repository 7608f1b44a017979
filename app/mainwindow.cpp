// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"

#include "app/applicationobjects.h"
#include "app/configfile.h"
#include "link/linkwatcher.h"
#include "link/serialsettings.h"
#include "ui_mainwindow.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

MainWindow::MainWindow(QWidget *parent, std::chrono::milliseconds connectTimeLimit)
    : QMainWindow(parent)
    , m_ui(new Ui_MainWindow)
{
    Q_INIT_RESOURCE(images); // a static library's resources do not register themselves
    m_ui->setupUi(this);
    completeForm();
    fillPlayerList();
    fillSerialPortList();
    applyStartupDefaults();
    setWindowTitle(QCoreApplication::applicationName() + u' '
                   + QCoreApplication::applicationVersion());
    hideCommandPanels();
    on_comboBox_Player_activated(0);
    setConfigFilePath();
    loadConfig(configFilePath);
    applyLanguage();
    onSocketConnected();
    connectLinkSignals();
    watchLinks(connectTimeLimit);
    createShortcuts();
    if (m_ui->checkBox_Auto_connection->isChecked())
        on_pushButton_Connect_clicked();
}

MainWindow::~MainWindow()
{
    saveConfig(configFilePath);
    delete m_ui;
}

void MainWindow::on_action_Exit_triggered()
{
    close();
}

void MainWindow::fillPlayerList()
{
    deviceCatalogue = buildDeviceCatalogue();
    for (const DeviceModel &model : std::as_const(deviceCatalogue))
        m_ui->comboBox_Player->addItem(model.name);
}

void MainWindow::fillSerialPortList()
{
    m_ui->comboBox_Port->clear();
    m_ui->comboBox_Port->addItems(serialPortNames(qEnvironmentVariable("TESSALY_EXTRA_PORTS")));
}

void MainWindow::applyStartupDefaults()
{
    m_ui->action_Default->setChecked(true);
    m_ui->radioButton_Sent_Hex->setChecked(true);
    sentBytesShownInHex = true;
    m_ui->radioButton_Data_ASCII->setChecked(true);
    m_ui->label_Bytes_Sended->setText({});
    if (m_ui->comboBox_Player->count() > 0)
        m_ui->comboBox_Player->setCurrentIndex(0);
}

void MainWindow::setConfigFilePath()
{
    configFilePath = usualConfigFilePath();
    QFileInfo(configFilePath).dir().mkpath(u"."_s);
}

void MainWindow::connectLinkSignals()
{
    connect(serialPort, SIGNAL(readyRead()), this, SLOT(update_Serial_Read_Data()));
    connect(tcpSocket, SIGNAL(connected()), this, SLOT(onSocketConnected()));
    connect(tcpSocket, SIGNAL(readyRead()), this, SLOT(update_TCP_Read_Data()));
    connect(tcpSocket, SIGNAL(disconnected()), this, SLOT(onSocketDisconnected()));
    // No signal of this name exists in Qt 6, so socket errors open no dialog: an attempt that fails
    // ends quietly, by LinkWatcher. Naming the present signal would change what the user sees.
    connect(tcpSocket, SIGNAL(error(QAbstractSocket::SocketError)), this,
            SLOT(onSocketError(QAbstractSocket::SocketError)));
}

void MainWindow::watchLinks(std::chrono::milliseconds connectTimeLimit)
{
    // Arrivals stay small: a device in the network can fill the system's buffers with megabytes
    // before the window's turn comes, and converting them takes a second.
    constexpr qint64 arrivalSize = 65'536; // in bytes
    tcpSocket->setReadBufferSize(arrivalSize);
    auto *watcher = new LinkWatcher(serialPort, tcpSocket, connectTimeLimit, this);
    connect(watcher, &LinkWatcher::linkLost, this, &MainWindow::onSocketDisconnected);
}

void MainWindow::createShortcuts()
{
    struct Shortcut
    {
        QKeyCombination keys;
        const char *slot;
    };
    static const Shortcut shortcuts[] = {
        {Qt::CTRL | Qt::Key_0, SLOT(Play_Folder_000())},
        {Qt::CTRL | Qt::Key_1, SLOT(Play_Folder_001())},
        {Qt::CTRL | Qt::Key_2, SLOT(Play_Folder_002())},
        {Qt::CTRL | Qt::Key_3, SLOT(Play_Folder_003())},
        {Qt::CTRL | Qt::Key_4, SLOT(Play_Folder_004())},
        {Qt::CTRL | Qt::Key_5, SLOT(Play_Folder_005())},
        {Qt::CTRL | Qt::Key_6, SLOT(Play_Folder_006())},
        {Qt::CTRL | Qt::Key_7, SLOT(Play_Folder_007())},
        {Qt::CTRL | Qt::Key_8, SLOT(Play_Folder_008())},
        {Qt::CTRL | Qt::Key_9, SLOT(Play_Folder_009())},
        {Qt::CTRL | Qt::Key_Plus, SLOT(Increase_Volume())},
        {Qt::CTRL | Qt::Key_Minus, SLOT(Decrease_Volume())},
        {Qt::Key_MediaPlay, SLOT(on_pushButton_Play_clicked())},
        {Qt::Key_MediaStop, SLOT(on_pushButton_Stop_clicked())},
        {Qt::Key_MediaNext, SLOT(on_pushButton_Next_File_clicked())},
        {Qt::Key_MediaPrevious, SLOT(on_pushButton_Previous_File_clicked())},
        {Qt::Key_MediaPause, SLOT(on_pushButton_Pause_clicked())},
        {Qt::CTRL | Qt::Key_MediaNext, SLOT(on_pushButton_Next_Folder_clicked())},
        {Qt::CTRL | Qt::Key_MediaPrevious, SLOT(on_pushButton_Previous_Folder_clicked())},
        {Qt::Key_VolumeMute, SLOT(on_pushButton_Volume_Mute_Unmute_clicked())},
    };
    for (const Shortcut &shortcut : shortcuts) {
        auto *action = new QAction(this);
        addAction(action);
        action->setShortcut(shortcut.keys);
        connect(action, SIGNAL(triggered()), this, shortcut.slot);
    }
}

std::array<QSpinBox *, 4> MainWindow::addressBoxes() const
{
    return {m_ui->spinBox_IP_1, m_ui->spinBox_IP_2, m_ui->spinBox_IP_3, m_ui->spinBox_IP_4};
}

const DeviceModel &MainWindow::selectedModel() const
{
    static const DeviceModel none;
    const int row = m_ui->comboBox_Player->currentIndex();
    return row >= 0 && row < deviceCatalogue.size() ? deviceCatalogue.at(row) : none;
}
