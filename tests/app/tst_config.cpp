// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "tests/app/windowfiles.h"
#include "tests/support/examplemodels.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/settingsfile.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testmain.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QSpinBox>
#include <QTcpSocket>
#include <QTextEdit>
#include <QTranslator>

#include <memory>
#include <utility>

#include <sys/fsuid.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void selectRow(const MainWindow &window, const char *list, int row)
{
    widget<QComboBox>(window, list)->setCurrentIndex(row);
}

/// Chooses a model as the user does.
void chooseModel(MainWindow &window, const QString &name)
{
    auto *models = widget<QComboBox>(window, "comboBox_Player");
    models->setCurrentText(name);
    window.on_comboBox_Player_activated(models->currentIndex());
}

QString current(const MainWindow &window, const char *list)
{
    return widget<QComboBox>(window, list)->currentText();
}

QStringList itemTexts(const MainWindow &window, const char *list)
{
    const auto *comboBox = widget<QComboBox>(window, list);
    QStringList texts;
    for (int row = 0; row < comboBox->count(); ++row)
        texts.append(comboBox->itemText(row));
    return texts;
}

template<typename Button>
void setChecked(const MainWindow &window, const char *name, bool checked = true)
{
    widget<Button>(window, name)->setChecked(checked);
}

void uncheck(const MainWindow &window, const char *radioButton)
{
    widget<QRadioButton>(window, radioButton)->setAutoExclusive(false);
    setChecked<QRadioButton>(window, radioButton, false);
}

/// Also when another button of the group is checked.
void checkBesides(const MainWindow &window, const char *radioButton)
{
    for (auto *button : window.findChildren<QRadioButton *>())
        button->setAutoExclusive(false);
    setChecked<QRadioButton>(window, radioButton);
}

/// The file system as someone sees it who owns nothing in it, for as long as the object lives.
/// Permissions do not hold for root.
class NobodysFiles
{
public:
    NobodysFiles()
        : m_user(::setfsuid(65534))
    {
    }
    ~NobodysFiles() { ::setfsuid(static_cast<uid_t>(m_user)); }
    Q_DISABLE_COPY_MOVE(NobodysFiles)

private:
    int m_user;
};

QString home()
{
    return qEnvironmentVariable("XDG_DATA_HOME");
}

/// Beside this program, which lies beside the console's own one.
QString pathBesideProgram()
{
    return QCoreApplication::applicationDirPath() + u"/Tessaly.cfg"_s;
}

/// A difference then names its line.
QByteArrayList savedLines()
{
    return readFile(settingsPath()).split('\n');
}

QByteArrayList linesOf(const SettingsFile &file)
{
    return file.bytes().split('\n');
}

bool writeSettings(const SettingsFile &file)
{
    return writeFile(settingsPath(), file.bytes());
}

/// The current row of the port list when nobody chose one.
QString firstPort()
{
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    return ports.isEmpty() ? u"/dev/ttyTest1"_s : ports.first().portName();
}

/// What a new user has, who changes nothing.
SettingsFile newUsersFile()
{
    const ModelSheet &sheet = modelSheets().constFirst();
    return {.model = sheet.name.toUtf8(),
            .port = firstPort().toUtf8(),
            .baudRate = QByteArray::number(sheet.defaultBaudRate),
            .playerId = QByteArray::number(sheet.lowestPlayerId),
            .sentForm = "2",
            .dataForm = "1"};
}

/// Every setting differs from a new user's, but auto-connection and player ID.
const SettingsFile changedFile{.language = "English",
                               .model = serialModel.toUtf8(),
                               .port = "/dev/ttyTest2",
                               .baudRate = "57600",
                               .address = {"10", "20", "30", "40"},
                               .playerId = "0",
                               .sentForm = "3",
                               .dataForm = "2"};

/// changedFile with one other value.
template<typename T>
SettingsFile changedFileWith(T SettingsFile::*member, const T &value)
{
    SettingsFile file = changedFile;
    file.*member = value;
    return file;
}

enum Setting { Language, Model, Port, BaudRate, Address, AutoConnection, PlayerId, Sent, Data };

/// The settings that the window shows, in the order of Setting.
QStringList settingsOf(const MainWindow &window)
{
    QStringList languages;
    for (const char *action : {"action_Default", "action_English", "action_French"}) {
        if (widget<QAction>(window, action)->isChecked())
            languages.append(QLatin1StringView(action + qstrlen("action_")));
    }
    QStringList address;
    for (const char *box : {"spinBox_IP_1", "spinBox_IP_2", "spinBox_IP_3", "spinBox_IP_4"})
        address.append(QString::number(widget<QSpinBox>(window, box)->value()));
    QStringList sent;
    for (const char *button : {"radioButton_Sent_Hex", "radioButton_Sent_Dec"}) {
        if (widget<QRadioButton>(window, button)->isChecked())
            sent.append(QLatin1StringView(button + qstrlen("radioButton_Sent_")));
    }
    QStringList data;
    for (const char *button :
         {"radioButton_Data_ASCII", "radioButton_Data_Hex", "radioButton_Data_Dec"}) {
        if (widget<QRadioButton>(window, button)->isChecked())
            data.append(QLatin1StringView(button + qstrlen("radioButton_Data_")));
    }
    return {
        languages.join(u'+'),
        current(window, "comboBox_Player"),
        current(window, "comboBox_Port"),
        current(window, "comboBox_Baudrate"),
        address.join(u'.'),
        widget<QCheckBox>(window, "checkBox_Auto_connection")->isChecked() ? u"on"_s : u"off"_s,
        current(window, "comboBox_ID"),
        sent.join(u'+') + (sentBytesShownInHex ? u" shown in hex"_s : u" shown in decimal"_s),
        data.join(u'+'),
    };
}

QStringList newUsersSettings()
{
    const SettingsFile file = newUsersFile();
    return {u"Default"_s,
            QString::fromUtf8(file.model),
            firstPort(),
            QString::fromUtf8(file.baudRate),
            u"0.0.0.0"_s,
            u"off"_s,
            QString::fromUtf8(file.playerId),
            u"Hex shown in hex"_s,
            u"ASCII"_s};
}

QStringList changedSettings()
{
    return {u"English"_s, serialModel, u"/dev/ttyTest2"_s,        u"57600"_s, u"10.20.30.40"_s,
            u"off"_s,     u"0"_s,      u"Dec shown in decimal"_s, u"Hex"_s};
}

QStringList with(QStringList settings, std::initializer_list<std::pair<Setting, QString>> changes)
{
    for (const auto &[setting, value] : changes)
        settings[setting] = value;
    return settings;
}

/// What has been written into the received-data field by the end of the window's life.
QString lastWords(std::unique_ptr<MainWindow> window)
{
    QString text;
    const auto *field = widget<QTextEdit>(*window, "textEdit_Data");
    QObject::connect(field, &QTextEdit::textChanged, field,
                     [field, &text] { text = field->toPlainText(); });
    window.reset();
    return text;
}

using Change = void (*)(MainWindow &);

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(SettingsFile)

/// What the window does with its settings file. What a line means is the business of
/// tst_configlines.
class tst_config : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void fileName();
    void folderThatCannotBeMade();

    void untouchedRun();
    void allChangedByTheUser();
    void writtenOnlyAtTheEnd();
    void written_data();
    void written();
    void foreignFileIsReplaced();
    void foreignFileChangesNothing();

    void roundTrip();
    void playerIdIsNotRestored();
    void restored_data();
    void restored();
    void unusableLinesChangeNothing();
    void addressOverAnother();

    void everyModel_data() { addModelRows(); }
    void everyModel();
    void modelThatIsNotOffered();
    void modelNameAsPlayerId();
    void languageIsAppliedByTheConstructor();
    void sentBytesInTheRestoredForm();

    void emptyPath();
    void traceOfSaving();
    void traceInTheDestructor();

    void readOnlyFolder();
    void readOnlyFolderWithFile();
    void unreadableFile();
    void folderInPlaceOfTheFile();
    void fullDisk();

private:
    MessageBoxCatcher m_catcher;
};

void tst_config::initTestCase()
{
    // Nobody has to be able to walk to the settings folder.
    QVERIFY(QFile::setPermissions(home(), QFile::Permissions::fromInt(0x7755)));
    // French is found in the working directory.
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
    QVERIFY2(!QFile::exists(pathBesideProgram()), qPrintable(pathBesideProgram()));
}

void tst_config::init()
{
    qputenv("TESSALY_EXTRA_PORTS", "/dev/ttyTest1:/dev/ttyTest2");
    QVERIFY(QDir(home() + u"/Ambrette"_s).removeRecursively());
    QVERIFY(QDir().mkpath(settingsFolder()));
}

void tst_config::cleanup()
{
    QCoreApplication::removeTranslator(translator);
    serialPort->close();
    tcpSocket->abort();
    QVERIFY(m_catcher.messages.isEmpty());
}

void tst_config::fileName()
{
    // The folder is created with all its parents, and used when it is there.
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    const auto comeBack = qScopeGuard([&] { qputenv("XDG_DATA_HOME", before); });
    const QString parent = home() + u"/not/there"_s;
    qputenv("XDG_DATA_HOME", parent.toLocal8Bit());
    for (int start = 0; start < 2; ++start) {
        configFilePath.clear();
        {
            const MainWindow window;
            QCOMPARE(configFilePath, parent + u"/Ambrette/Tessaly/Tessaly.cfg"_s);
            QVERIFY(QFileInfo(parent + u"/Ambrette/Tessaly"_s).isDir());
            QCOMPARE(QFile::exists(configFilePath), start > 0);
        }
        QVERIFY(QFile::exists(parent + u"/Ambrette/Tessaly/Tessaly.cfg"_s));
    }
}

void tst_config::folderThatCannotBeMade()
{
    QTest::failOnWarning(QRegularExpression(u"Ambrette"_s));
    QVERIFY(QDir(home() + u"/Ambrette"_s).removeRecursively());
    QVERIFY(writeFile(home() + u"/Ambrette"_s, "a file"));
    {
        const MainWindow window;
        QCOMPARE(configFilePath, settingsPath());
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    QCOMPARE(readFile(home() + u"/Ambrette"_s), "a file"_ba);
    QVERIFY(QFile::remove(home() + u"/Ambrette"_s));
}

void tst_config::untouchedRun()
{
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    QCOMPARE(savedLines(), linesOf(newUsersFile()));
}

void tst_config::allChangedByTheUser()
{
    {
        MainWindow window;
        widget<QAction>(window, "action_French")->trigger();
        chooseModel(window, u"Ampra One"_s);
        widget<QComboBox>(window, "comboBox_Port")->setCurrentText(u"/dev/ttyTest2"_s);
        widget<QComboBox>(window, "comboBox_Baudrate")->setCurrentText(u"9600"_s);
        widget<QSpinBox>(window, "spinBox_IP_1")->setValue(192);
        widget<QSpinBox>(window, "spinBox_IP_2")->setValue(168);
        widget<QSpinBox>(window, "spinBox_IP_3")->setValue(5);
        widget<QSpinBox>(window, "spinBox_IP_4")->setValue(255);
        setChecked<QCheckBox>(window, "checkBox_Auto_connection");
        widget<QComboBox>(window, "comboBox_ID")->setCurrentText(u"127"_s);
        setChecked<QRadioButton>(window, "radioButton_Sent_Dec");
        setChecked<QRadioButton>(window, "radioButton_Data_Dec");
    }
    const SettingsFile expected{.language = "French",
                                .model = "Ampra One",
                                .port = "/dev/ttyTest2",
                                .baudRate = "9600",
                                .address = {"192", "168", "5", "255"},
                                .autoConnection = "1",
                                .playerId = "127",
                                .sentForm = "3",
                                .dataForm = "3"};
    QCOMPARE(savedLines(), linesOf(expected));
}

void tst_config::writtenOnlyAtTheEnd()
{
    QVERIFY(writeSettings(changedFile));
    {
        MainWindow window;
        window.show();
        widget<QSpinBox>(window, "spinBox_IP_1")->setValue(77);
        window.close();
        QCOMPARE(savedLines(), linesOf(changedFile));
    }
    QCOMPARE(savedLines(),
             linesOf(changedFileWith(&SettingsFile::address, {"77", "20", "30", "40"})));
}

void tst_config::written_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<SettingsFile>("file");

    using Value = QByteArray SettingsFile::*;
    const auto row = [](const char *name, Value member, const QByteArray &value, Change change) {
        SettingsFile file = newUsersFile();
        file.*member = value;
        QTest::newRow(name) << change << file;
    };

    const Value language = &SettingsFile::language;
    row("language English", language, "English",
        [](MainWindow &window) { widget<QAction>(window, "action_English")->trigger(); });
    row("no language checked", language, "(default)",
        [](MainWindow &window) { window.uncheckLanguageActions(); });
    row("English before French", language, "English", [](MainWindow &window) {
        setChecked<QAction>(window, "action_English");
        setChecked<QAction>(window, "action_French");
    });
    row("no model", &SettingsFile::model, "(default)",
        [](MainWindow &window) { selectRow(window, "comboBox_Player", -1); });
    const Value port = &SettingsFile::port;
    row("port beyond ASCII", port, "p\xC3\xB6rt", [](MainWindow &window) {
        widget<QComboBox>(window, "comboBox_Port")->addItem(u"pört"_s);
        widget<QComboBox>(window, "comboBox_Port")->setCurrentText(u"pört"_s);
    });
    row("no port chosen", port, "(default)",
        [](MainWindow &window) { selectRow(window, "comboBox_Port", -1); });
    row("no port present", port, "(default)",
        [](MainWindow &window) { widget<QComboBox>(window, "comboBox_Port")->clear(); });
    row("no baud rate chosen", &SettingsFile::baudRate, "(default)",
        [](MainWindow &window) { selectRow(window, "comboBox_Baudrate", -1); });
    row("no player ID", &SettingsFile::playerId, "(default)",
        [](MainWindow &window) { widget<QComboBox>(window, "comboBox_ID")->clear(); });
    const Value sent = &SettingsFile::sentForm;
    row("sent neither", sent, "(default)",
        [](MainWindow &window) { uncheck(window, "radioButton_Sent_Hex"); });
    row("sent both: hexadecimal wins", sent, "2",
        [](MainWindow &window) { checkBesides(window, "radioButton_Sent_Dec"); });
    const Value data = &SettingsFile::dataForm;
    row("data none", data, "(default)",
        [](MainWindow &window) { uncheck(window, "radioButton_Data_ASCII"); });
    row("data ASCII and hexadecimal: the last wins", data, "2",
        [](MainWindow &window) { checkBesides(window, "radioButton_Data_Hex"); });
    row("data all three: the last wins", data, "3", [](MainWindow &window) {
        checkBesides(window, "radioButton_Data_Hex");
        checkBesides(window, "radioButton_Data_Dec");
    });

    // Its model hides the box.
    SettingsFile hidden = newUsersFile();
    hidden.model = onDemandModel.toUtf8();
    hidden.baudRate = "(default)";
    hidden.autoConnection = "1";
    const Change hide = [](MainWindow &window) {
        setChecked<QCheckBox>(window, "checkBox_Auto_connection");
        chooseModel(window, onDemandModel);
    };
    QTest::newRow("auto-connection that is hidden") << hide << hidden;
}

void tst_config::written()
{
    QFETCH(const Change, change);
    QFETCH(const SettingsFile, file);
    {
        MainWindow window;
        change(window);
    }
    QCOMPARE(savedLines(), linesOf(file));
}

void tst_config::foreignFileIsReplaced()
{
    QVERIFY(writeFile(settingsPath(), QByteArray(10'000, 'x')));
    {
        const MainWindow window;
    }
    QCOMPARE(savedLines(), linesOf(newUsersFile()));
}

void tst_config::foreignFileChangesNothing()
{
    QVERIFY(writeSettings(changedFile));
    MainWindow window;
    const QByteArray foreign = newUsersFile().bytes().replace("TSY11.00", "TSY12.00");
    QVERIFY(writeFile(settingsPath(), foreign));
    window.loadConfig(settingsPath());
    QCOMPARE(settingsOf(window), changedSettings());
}

void tst_config::roundTrip()
{
    QVERIFY(writeSettings(changedFile));
    for (int start = 0; start < 2; ++start) {
        {
            const MainWindow window;
            QCOMPARE(settingsOf(window), changedSettings());
            QVERIFY(widget<QTextEdit>(window, "textEdit_Data")->toPlainText().isEmpty());
        }
        QCOMPARE(savedLines(), linesOf(changedFile));
    }
}

void tst_config::playerIdIsNotRestored()
{
    // The line is looked up among the models.
    QVERIFY(writeSettings(changedFileWith(&SettingsFile::playerId, "12"_ba)));
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), changedSettings());
    }
    QCOMPARE(savedLines(), linesOf(changedFile));
}

void tst_config::restored_data()
{
    QTest::addColumn<SettingsFile>("file");
    QTest::addColumn<QStringList>("settings");

    using Value = QByteArray SettingsFile::*;
    const auto row = [](const char *name, Value member, const QByteArray &value,
                        std::initializer_list<std::pair<Setting, QString>> changes) {
        QTest::newRow(name) << changedFileWith(member, value) << with(changedSettings(), changes);
    };

    row("language French", &SettingsFile::language, "French", {{Language, u"French"_s}});
    row("language that is not offered", &SettingsFile::language, "German",
        {{Language, u"Default"_s}});

    // Without its model, the file's baud rate is not in the list.
    const std::pair<Setting, QString> otherModel{Model, newUsersSettings().at(Model)};
    const std::pair<Setting, QString> otherModelsRate{BaudRate, newUsersSettings().at(BaudRate)};
    for (const char *name :
         {"(default)", "vistar show - sv500 (serial)", "Vistar Show - SV500 (Serial) ",
          "Vistar Show - SV500", "Vistar Show*", "2", "Vistar Show - SV500 (Serial)\xFF"}) {
        QTest::addRow("model \"%s\"", name)
            << changedFileWith(&SettingsFile::model, QByteArray(name))
            << with(changedSettings(), {otherModel, otherModelsRate});
    }

    const Value port = &SettingsFile::port;
    const std::pair<Setting, QString> otherPort{Port, firstPort()};
    row("port default", port, "(default)", {otherPort});
    row("port that is not present", port, "COM99", {otherPort});
    row("port in upper case", port, "/DEV/TTYTEST2", {otherPort});
    row("beginning of a port", port, "/dev/ttyTest", {otherPort});
    row("first port", port, "/dev/ttyTest1", {{Port, u"/dev/ttyTest1"_s}});

    const Value baudRate = &SettingsFile::baudRate;
    const std::pair<Setting, QString> presetRate{BaudRate, u"115200"_s};
    row("baud rate default", baudRate, "(default)", {presetRate});
    row("baud rate that is not offered", baudRate, "14400", {presetRate});
    row("baud rate is text, not a number", baudRate, "057600", {presetRate});
    row("baud rate with a space", baudRate, " 57600", {presetRate});

    row("sent hexadecimal", &SettingsFile::sentForm, "2", {{Sent, u"Hex shown in hex"_s}});
    row("data ASCII", &SettingsFile::dataForm, "1", {{Data, u"ASCII"_s}});
    row("data decimal", &SettingsFile::dataForm, "3", {{Data, u"Dec"_s}});
}

void tst_config::restored()
{
    QFETCH(const SettingsFile, file);
    QFETCH(const QStringList, settings);

    QVERIFY(writeSettings(file));
    const MainWindow window;
    QCOMPARE(settingsOf(window), settings);
}

void tst_config::unusableLinesChangeNothing()
{
    QVERIFY(writeSettings(changedFileWith(&SettingsFile::language, "French"_ba)));
    MainWindow window;
    setChecked<QCheckBox>(window, "checkBox_Auto_connection");
    const QStringList before
        = with(changedSettings(), {{Language, u"French"_s}, {AutoConnection, u"on"_s}});
    QCOMPARE(settingsOf(window), before);

    QVERIFY(writeFile(settingsPath(), "TSY11.00\n" + "garbage\n"_ba.repeated(23)));
    window.loadConfig(settingsPath());
    // The language alone falls back to its default. What switches auto-connection on does not
    // switch it off.
    QCOMPARE(settingsOf(window), with(before, {{Language, u"Default"_s}}));
    QVERIFY(itemTexts(window, "comboBox_Baudrate").contains(u"57600"_s));
}

void tst_config::addressOverAnother()
{
    QVERIFY(writeSettings(changedFile));
    MainWindow window;
    QVERIFY(writeSettings(changedFileWith(&SettingsFile::address, {"0", "256", "-1", "255"})));
    window.loadConfig(settingsPath());
    QCOMPARE(settingsOf(window).at(Address), u"0.20.30.255"_s);
}

/// By its name, with its own lists and panels.
void tst_config::everyModel()
{
    QFETCH(const ModelSheet, sheet);

    QStringList baudRates;
    for (const qint32 rate : sheet.baudRates)
        baudRates.append(QString::number(rate));
    QStringList playerIds;
    for (int id = sheet.lowestPlayerId; id <= sheet.highestPlayerId; ++id)
        playerIds.append(QString::number(id));

    SettingsFile file = changedFile;
    file.model = sheet.name.toUtf8();
    file.baudRate = "(default)";
    QVERIFY(writeSettings(file));
    {
        const MainWindow window;
        QCOMPARE(current(window, "comboBox_Player"), sheet.name);
        QCOMPARE(itemTexts(window, "comboBox_Baudrate"), baudRates);
        QCOMPARE(current(window, "comboBox_Baudrate"),
                 sheet.isTcp ? QString() : QString::number(sheet.defaultBaudRate));
        QCOMPARE(itemTexts(window, "comboBox_ID"), playerIds);

        const auto isHidden
            = [&](const char *name) { return widget<QWidget>(window, name)->isHidden(); };
        QCOMPARE(isHidden("frame_IP"), !sheet.isTcp);
        QCOMPARE(isHidden("frame_Port"), sheet.isTcp);
        QCOMPARE(isHidden("frame_Baudrate"), sheet.isTcp);
        QCOMPARE(isHidden("checkBox_Auto_connection"), sheet.connectsOnDemand());
        QCOMPARE(isHidden("pushButton_Play"), !sheet.has(4));
        QCOMPARE(isHidden("frame_Request"), !sheet.has(10));
        if (sheet.isTcp)
            QCOMPARE(widget<QLabel>(window, "label_IP_Port")->text(),
                     u"( Port number: %1 )"_s.arg(sheet.tcpPort));
        QCOMPARE(widget<QWidget>(window, "pushButton_Connect")->isEnabled(),
                 !sheet.connectsOnDemand());
        QCOMPARE(widget<QWidget>(window, "frame_Commands")->isEnabled(), sheet.connectsOnDemand());
    }
    if (!sheet.isTcp)
        file.baudRate = QByteArray::number(sheet.defaultBaudRate);
    file.playerId = QByteArray::number(sheet.lowestPlayerId);
    QCOMPARE(savedLines(), linesOf(file));

    // The rate is looked for in the list of the file's model, which is applied first.
    for (const QString &rate : std::as_const(baudRates)) {
        file.baudRate = rate.toUtf8();
        QVERIFY(writeSettings(file));
        const MainWindow window;
        QCOMPARE(current(window, "comboBox_Baudrate"), rate);
    }
}

void tst_config::modelThatIsNotOffered()
{
    QVERIFY(!unofferedSheets().isEmpty());
    for (const ModelSheet &sheet : unofferedSheets()) {
        QVERIFY(writeSettings(changedFileWith(&SettingsFile::model, sheet.name.toUtf8())));
        const MainWindow window;
        QCOMPARE(settingsOf(window).at(Model), newUsersSettings().at(Model));
    }
}

void tst_config::modelNameAsPlayerId()
{
    // The row of the list moves; the panels stay those of the model's own line.
    const QStringList rates = [] {
        MainWindow window;
        chooseModel(window, serialModel);
        return itemTexts(window, "comboBox_Baudrate");
    }();
    const SettingsFile file = changedFileWith(&SettingsFile::playerId, "Ampra One"_ba);
    const QStringList settings = with(changedSettings(), {{Model, u"Ampra One"_s}});
    QVERIFY(writeSettings(file));
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), settings);
        QCOMPARE(itemTexts(window, "comboBox_Baudrate"), rates);
        // This amplifier has no requests and no firmware version; the video player has requests.
        QVERIFY(widget<QComboBox>(window, "comboBox_Request")->count() > 0);
        QVERIFY(!widget<QWidget>(window, "frame_Request")->isHidden());
        // The language comes last, and the note with it.
        QCOMPARE(widget<QLabel>(window, "label_Comments")->text(), QString());
    }
    QCOMPARE(savedLines(), linesOf(changedFileWith(&SettingsFile::model, "Ampra One"_ba)));

    QFile::remove(settingsPath());
    MainWindow window;
    QVERIFY(writeSettings(file));
    window.loadConfig(settingsPath());
    QCOMPARE(settingsOf(window), settings);
    QCOMPARE(itemTexts(window, "comboBox_Baudrate"), rates);
    QVERIFY(
        widget<QLabel>(window, "label_Comments")->text().contains(u"firmware 1.11 or higher"_s));

    // A name on that line moves the row also when the model's own line names no model.
    SettingsFile noModel = changedFileWith(&SettingsFile::model, "none"_ba);
    noModel.playerId = onDemandModel.toUtf8();
    QVERIFY(writeSettings(noModel));
    window.loadConfig(settingsPath());
    QCOMPARE(current(window, "comboBox_Player"), onDemandModel);
    QVERIFY(widget<QWidget>(window, "frame_IP")->isHidden());
}

void tst_config::languageIsAppliedByTheConstructor()
{
    const QString english = u"Player:"_s;
    const QString french = u"Lecteur\u00A0:"_s;
    {
        MainWindow window;
        QCOMPARE(widget<QLabel>(window, "label_Player")->text(), english);
        QVERIFY(writeSettings(changedFileWith(&SettingsFile::language, "French"_ba)));
        window.loadConfig(settingsPath());
        QVERIFY(widget<QAction>(window, "action_French")->isChecked());
        QCOMPARE(widget<QLabel>(window, "label_Player")->text(), english);
        QCOMPARE(widget<QLabel>(window, "label_Comments")->text().left(12), u"All commands"_s);
    }
    {
        MainWindow window;
        QCOMPARE(widget<QLabel>(window, "label_Player")->text(), french);
        QCOMPARE(widget<QLabel>(window, "label_Comments")->text().left(19),
                 u"Toutes les commande"_s);
        // Set once: no language touches it.
        QCOMPARE(window.windowTitle(), u"Tessaly 1.2.8.0"_s);
        window.on_action_English_triggered();
        QCOMPARE(widget<QLabel>(window, "label_Player")->text(), english);
        QCOMPARE(window.windowTitle(), u"Tessaly 1.2.8.0"_s);
    }
    QCOMPARE(savedLines().at(4), "English"_ba);
}

void tst_config::sentBytesInTheRestoredForm()
{
    QVERIFY(writeSettings(changedFile));
    {
        MainWindow window;
        window.showSentBytes(0x85, 0x02, "\x01"_ba);
        QCOMPARE(widget<QLabel>(window, "label_Bytes_Sended")->text().trimmed(), u"133 2 1"_s);
        window.on_radioButton_Sent_Dec_clicked(); // shown so already
        QCOMPARE(widget<QLabel>(window, "label_Bytes_Sended")->text().trimmed(), u"133 2 1"_s);
    }
    // A file that says nothing of it leaves the hexadecimal form of every start.
    QVERIFY(writeSettings(changedFileWith(&SettingsFile::sentForm, "(default)"_ba)));
    const MainWindow window;
    QVERIFY(sentBytesShownInHex);
}

void tst_config::emptyPath()
{
    const auto removal = qScopeGuard([] { QFile::remove(pathBesideProgram()); });
    QVERIFY(writeFile(pathBesideProgram(), changedFile.bytes()));
    {
        MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
        window.loadConfig(QString());
        QCOMPARE(settingsOf(window), changedSettings());
        widget<QSpinBox>(window, "spinBox_IP_4")->setValue(99);
        window.saveConfig(QString());
        QCOMPARE(readFile(pathBesideProgram()),
                 changedFileWith(&SettingsFile::address, {"10", "20", "30", "99"}).bytes());
        QCOMPARE(widget<QTextEdit>(window, "textEdit_Data")->toPlainText(),
                 pathBesideProgram() + u"(before save)\n"_s + pathBesideProgram()
                     + u"(after save)"_s);
        QVERIFY(!QFile::exists(settingsPath()));

        widget<QSpinBox>(window, "spinBox_IP_4")->setValue(98);
        configFilePath.clear();
    }
    QCOMPARE(readFile(pathBesideProgram()),
             changedFileWith(&SettingsFile::address, {"10", "20", "30", "98"}).bytes());
    QVERIFY(!QFile::exists(settingsPath()));

    QVERIFY(QFile::remove(pathBesideProgram()));
    MainWindow window;
    window.loadConfig(QString());
    QCOMPARE(settingsOf(window), newUsersSettings());
}

void tst_config::traceOfSaving()
{
    const QString good = settingsFolder() + u"/Other.cfg"_s;
    const QString bad = settingsFolder() + u"/missing/Other.cfg"_s;

    MainWindow window;
    const auto *field = widget<QTextEdit>(window, "textEdit_Data");
    window.saveConfig(good);
    QCOMPARE(field->toPlainText(), good + u"(before save)\n"_s + good + u"(after save)"_s);
    QVERIFY(QFile::exists(good));
    window.saveConfig(bad);
    QCOMPARE(field->toPlainText(),
             good + u"(before save)\n"_s + good + u"(after save)\n"_s + bad + u"(before save)"_s);
    QVERIFY(!QFile::exists(bad));
    window.loadConfig(good);
    window.loadConfig(bad);
    QCOMPARE(field->toPlainText(),
             good + u"(before save)\n"_s + good + u"(after save)\n"_s + bad + u"(before save)"_s);
    // The file named is the one written, the window's own stays alone.
    QVERIFY(!QFile::exists(settingsPath()));
}

void tst_config::traceInTheDestructor()
{
    auto window = std::make_unique<MainWindow>();
    widget<QTextEdit>(*window, "textEdit_Data")->setPlainText(u"received"_s);
    QCOMPARE(lastWords(std::move(window)), u"received\n"_s + settingsPath() + u"(before save)\n"_s
                                               + settingsPath() + u"(after save)"_s);
}

void tst_config::readOnlyFolder()
{
    QVERIFY(QFile::setPermissions(settingsFolder(), QFile::Permissions::fromInt(0x5555)));
    {
        const NobodysFiles restriction;
        QVERIFY2(!writeFile(settingsPath(), {}), "the folder is writable");
        auto window = std::make_unique<MainWindow>();
        QCOMPARE(settingsOf(*window), newUsersSettings());
        QCOMPARE(lastWords(std::move(window)), settingsPath() + u"(before save)"_s);
    }
    QVERIFY(!QFile::exists(settingsPath()));
    QVERIFY(QFile::setPermissions(settingsFolder(), QFile::Permissions::fromInt(0x7755)));
}

void tst_config::readOnlyFolderWithFile()
{
    QVERIFY(writeSettings(changedFile));
    QVERIFY(QFile::setPermissions(settingsPath(), QFile::Permissions::fromInt(0x4444)));
    QVERIFY(QFile::setPermissions(settingsFolder(), QFile::Permissions::fromInt(0x5555)));
    {
        const NobodysFiles restriction;
        auto window = std::make_unique<MainWindow>();
        QCOMPARE(settingsOf(*window), changedSettings());
        widget<QSpinBox>(*window, "spinBox_IP_1")->setValue(77);
        QCOMPARE(lastWords(std::move(window)), settingsPath() + u"(before save)"_s);
    }
    QCOMPARE(savedLines(), linesOf(changedFile));
    QVERIFY(QFile::setPermissions(settingsFolder(), QFile::Permissions::fromInt(0x7755)));
}

void tst_config::unreadableFile()
{
    QVERIFY(writeSettings(changedFile));
    QVERIFY(QFile::setPermissions(settingsPath(), {}));
    {
        const NobodysFiles restriction;
        QVERIFY2(readFile(settingsPath()) == "(no file)", "the file is readable");
        const MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    QVERIFY(QFile::setPermissions(settingsPath(), QFile::Permissions::fromInt(0x6644)));
    QCOMPARE(savedLines(), linesOf(changedFile));
}

void tst_config::folderInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(settingsPath()));
    auto window = std::make_unique<MainWindow>();
    QCOMPARE(settingsOf(*window), newUsersSettings());
    QCOMPARE(lastWords(std::move(window)), settingsPath() + u"(before save)"_s);
    QVERIFY(QFileInfo(settingsPath()).isDir());
    QVERIFY(QDir(settingsPath()).isEmpty());
}

void tst_config::fullDisk()
{
    auto window = std::make_unique<MainWindow>();
    QVERIFY(QFile::link(u"/dev/full"_s, settingsPath()));
    // The file can be opened; what fails is the writing.
    QCOMPARE(lastWords(std::move(window)),
             settingsPath() + u"(before save)\n"_s + settingsPath() + u"(after save)"_s);
    QVERIFY(QFileInfo(settingsPath()).isSymLink());
    QVERIFY(QFile::remove(settingsPath()));

    const MainWindow next;
    QCOMPARE(settingsOf(next), newUsersSettings());
}

TESSALY_WINDOW_TEST(tst_config)
#include "tst_config.moc"
