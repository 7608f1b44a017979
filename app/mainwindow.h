// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSocket>
#include <QMainWindow>

#include <array>
#include <chrono>

struct CommandEntry;
struct DeviceModel;
class QSpinBox;
class ReceivedTextDisplay;
class Ui_MainWindow;
class VisibilityPlan;

/// The console's only window. It holds every slot and hands the widgets' values to the functions
/// of catalogue/, protocol/, link/ and ui/; the members live in the folder of their subject, in
/// the files mainwindow_*.cpp. All state is in the widgets and in the application-wide objects.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds defaultConnectTimeLimit{10'000};

    /// \a connectTimeLimit time after which a TCP attempt that has not connected is given up
    explicit MainWindow(QWidget *parent = nullptr,
                        std::chrono::milliseconds connectTimeLimit = defaultConnectTimeLimit);
    ~MainWindow() override;
    Q_DISABLE_COPY_MOVE(MainWindow)

    // Configuration file and language (app/)
    /// Takes over what the file holds and the window offers; says nothing of what it cannot use.
    /// \a path the file; an empty one stands for the file beside the program, for saving too
    void loadConfig(QString path);
    /// Writes the file, silently also when it cannot, and a trace of it into the received text.
    void saveConfig(QString path);
    void applyLanguage();
    void uncheckLanguageActions();

    // Frames of the selected model (protocol/)
    bool buildCommandFrame(quint32 commandId, quint8 &code, QByteArray &frame);
    bool buildVolumeFrame(quint8 &code, QByteArray &frame, quint8 volumeByte);
    void appendPlaybackArguments(int commandId, QByteArray &frame);
    /// First byte of a classic frame to the player chosen in the ID list.
    quint8 playerIdByte() const;
    void playFolder(int folder);

    /// Writes a command to the open link and shows its bytes. Without an open link only the
    /// connect-on-demand model is written to; for every other one this does nothing.
    void sendCommand(quint8 code, const QByteArray &body);
    void showSentBytes(quint8 playerIdByte, quint8 code, const QByteArray &body);

    // Connection (link/)
    bool openSerialLink();
    bool openSerialPort(int baudRate, const QString &portName);
    QString serialErrorText() const;
    bool openTcpLink();
    void connectTcpSocket(const QString &host, quint16 port);
    void closeSerialPort();
    void closeTcpSocket();
    void showConnectingState();
    void writeFrame(quint8 playerIdByte, quint8 code, const QByteArray &body);

    // Received data (link/)
    /// Replaces `out` by all pending bytes; leaves it alone when the port is not open.
    void readSerialData(QByteArray &out);
    /// The same for the socket.
    void readTcpData(QByteArray &out);
    /// Appends the bytes in the chosen form.
    void appendReceivedData(const QByteArray &bytes, QString &text);

    // Panels (ui/)
    void hideCommandPanels();
    void addOtherCommand(const QString &label);
    void updateFirmwareNote();

public slots:
    // Menus (app/)
    void on_action_Exit_triggered();
    void on_action_Default_triggered();
    void on_action_English_triggered();
    void on_action_French_triggered();
    void on_action_Website_triggered();
    void on_action_Contact_Technical_Support_triggered();
    void on_action_About_triggered();

    // Sent bytes (protocol/)
    void on_radioButton_Sent_Hex_clicked();
    void on_radioButton_Sent_Dec_clicked();

    // Playback, folders, volume, standby, player ID (protocol/)
    void on_pushButton_Previous_Folder_clicked();
    void on_pushButton_Previous_File_clicked();
    void on_pushButton_Play_clicked();
    void on_pushButton_Stop_clicked();
    void on_pushButton_Pause_clicked();
    void on_pushButton_Next_File_clicked();
    void on_pushButton_Next_Folder_clicked();
    void on_pushButton_Standby_Wakeup_clicked();
    void on_pushButton_Volume_Mute_Unmute_clicked();
    void on_pushButton_Change_ID_clicked();
    void on_pushButton_Folder_clicked();
    void Play_Folder_000();
    void Play_Folder_001();
    void Play_Folder_002();
    void Play_Folder_003();
    void Play_Folder_004();
    void Play_Folder_005();
    void Play_Folder_006();
    void Play_Folder_007();
    void Play_Folder_008();
    void Play_Folder_009();
    void on_horizontalSlider_Volume_valueChanged(int value);
    void on_pushButton_Volume_Less_clicked();
    void on_pushButton_Volume_More_clicked();
    void Increase_Volume();
    void Decrease_Volume();

    // Requests, other commands, output contacts, subtitles, playback sources (protocol/)
    void on_pushButton_Request_clicked();
    void on_pushButton_Other_Command_clicked();
    void on_pushButton_Launch_Playback_clicked();
    void on_pushButton_Relay_Command_clicked();
    void on_pushButton_Subtitles_On_clicked();
    void on_pushButton_Subtitles_Off_clicked();
    void on_pushButton_Subtitles_Previous_clicked();
    void on_pushButton_Subtitles_Next_clicked();
    void on_pushButton_Subtitles_Previous_Loop_clicked();
    void on_pushButton_Subtitles_Next_Loop_clicked();
    void on_pushButton_Subtitles_Select_clicked();

    // Connection (link/)
    void on_pushButton_Connect_clicked();
    void on_pushButton_Disconnect_clicked();
    /// Besides the socket's `connected()`: sets the connection widgets for the state of the links.
    void onSocketConnected();
    void onSocketDisconnected();
    void onSocketError(QAbstractSocket::SocketError error);

    // Received data (link/)
    void update_Serial_Read_Data();
    void update_TCP_Read_Data();
    void on_pushButton_Clear_clicked();

    // Panels (ui/)
    /// Rebuilds the panels for a row of the model list. A row outside the catalogue refreshes no
    /// more than the connection widgets and the lists beside the source of playback.
    void on_comboBox_Player_activated(int index);
    void on_comboBox_Source_Of_Playback_activated(int index);
    void on_comboBox_Subtitles_Type_activated();

private:
    /// Adds to the form what its file cannot hold (ui/).
    void completeForm();

    // Steps of the constructor; invokable, so that a test can repeat one on a changed window.
    void fillPlayerList();
    Q_INVOKABLE void fillSerialPortList();
    Q_INVOKABLE void applyStartupDefaults();
    void setConfigFilePath();
    void connectLinkSignals();
    void watchLinks(std::chrono::milliseconds connectTimeLimit);
    void createShortcuts();

    /// The model at the current row of the model list; one without commands when there is none.
    const DeviceModel &selectedModel() const;
    /// The four boxes of the IP address, first number first.
    std::array<QSpinBox *, 4> addressBoxes() const;
    bool anyLinkIsOpen() const;
    void sendFixedCommand(quint32 commandId);
    void sendUnlessEmpty(quint8 code, const QByteArray &body);
    void showReceivedData(const QByteArray &bytes);
    ReceivedTextDisplay *receivedTextDisplay() const;

    static QString firmwareNote(const QString &firmware);
    /// Makes room for the longest note, so that nothing below it moves with the model.
    void reserveFirmwareNoteRoom();
    // Parts of the change of panels: they fill lists and plan what is to be seen.
    void hideCommandPanels(VisibilityPlan &plan);
    void showConnectionPanel(const DeviceModel &model, VisibilityPlan &plan);
    void showCommand(const CommandEntry &entry, const DeviceModel &model, VisibilityPlan &plan);
    void showVolume(const CommandEntry &entry, VisibilityPlan &plan);
    void showPlaybackButton(QWidget *button, VisibilityPlan &plan);
    void addOtherCommand(const QString &label, VisibilityPlan &plan);
    void showSubtitleButton(QWidget *button, VisibilityPlan &plan);
    void showSubtitleSelection(const QStringList &types, VisibilityPlan &plan);
    void showSourceOfPlayback(int index, VisibilityPlan &plan);

    Ui_MainWindow *m_ui;
};
