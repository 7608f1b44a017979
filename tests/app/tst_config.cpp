// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QRadioButton>
#include <QRandomGenerator>
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

constexpr qsizetype mebibyte = 1 << 20;

template<typename T>
T *widget(const MainWindow &window, const char *name)
{
    T *object = window.findChild<T *>(QString::fromLatin1(name));
    if (!object)
        qFatal("no %s in the window", name);
    return object;
}

void select(const MainWindow &window, const char *list, int row)
{
    widget<QComboBox>(window, list)->setCurrentIndex(row);
}

QString current(const MainWindow &window, const char *list)
{
    return widget<QComboBox>(window, list)->currentText();
}

template<typename Button>
void setChecked(const MainWindow &window, const char *name, bool checked = true)
{
    widget<Button>(window, name)->setChecked(checked);
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

QString folder()
{
    return home() + u"/Ambrette/Tessaly"_s;
}

QString path()
{
    return folder() + u"/Tessaly.cfg"_s;
}

/// Beside this program, that is beside the console's own one.
QString pathBesideProgram()
{
    return QCoreApplication::applicationDirPath() + u"/Tessaly.cfg"_s;
}

bool write(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    return QDir().mkpath(QFileInfo(name).path()) && file.open(QIODevice::WriteOnly)
           && file.write(bytes) == bytes.size() && file.flush();
}

QByteArray read(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(no file)"_ba;
}

/// The lines of a file and what stands behind its last line end, so that a difference names its
/// line.
QByteArrayList linesOf(const QString &name)
{
    return read(name).split('\n');
}

/// The current row of the port list when nobody chose one.
QString firstPort()
{
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    return ports.isEmpty() ? u"/dev/ttyTest1"_s : ports.first().portName();
}

/// Every setting differs from the one that a new user has, but the player ID.
const QByteArrayList changedLines{
    "TSY11.00",
    "Tessaly (Configuration File)",
    "Generate by: Tessaly 1.2.8.0",
    "*** Default Language:",
    "English",
    "*** Default Device:",
    "Vistar Show - SV500 (Serial)",
    "*** Default Serial Port:",
    "/dev/ttyTest2",
    "*** Default Baudrate:",
    "57600",
    "*** Default IP Address:",
    "10",
    "20",
    "30",
    "40",
    "*** Default Auto-connection:",
    "0",
    "*** Default Player ID:",
    "0",
    "*** Default Command Bytes Sent Setting:",
    "3",
    "*** Default Data Received Setting:",
    "2",
};

QByteArray fileOf(const QByteArrayList &lines, const QByteArray &lineEnd = "\n")
{
    QByteArray bytes;
    for (const QByteArray &line : lines)
        bytes += line + lineEnd;
    return bytes;
}

/// changedLines with other content of some lines, counted from 1.
QByteArrayList changedLinesWith(std::initializer_list<std::pair<int, QByteArray>> changes)
{
    QByteArrayList lines = changedLines;
    for (const auto &[number, line] : changes)
        lines[number - 1] = line;
    return lines;
}

QByteArray changedFileWith(std::initializer_list<std::pair<int, QByteArray>> changes)
{
    return fileOf(changedLinesWith(changes));
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
    return {u"Default"_s, u"Tempo Deck"_s, firstPort(),           u"19200"_s, u"0.0.0.0"_s,
            u"off"_s,     u"0"_s,          u"Hex shown in hex"_s, u"ASCII"_s};
}

QStringList changedSettings()
{
    return {u"English"_s,
            u"Vistar Show - SV500 (Serial)"_s,
            u"/dev/ttyTest2"_s,
            u"57600"_s,
            u"10.20.30.40"_s,
            u"off"_s,
            u"0"_s,
            u"Dec shown in decimal"_s,
            u"Hex"_s};
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
    void writtenLine_data();
    void writtenLine();
    void foreignFileIsReplaced();

    void roundTrip();
    void playerIdIsNotRestored();
    void restored_data();
    void restored();
    void unusableLinesChangeNothing_data();
    void unusableLinesChangeNothing();
    void addressOverAnother();
    void cutAfterLine_data();
    void cutAfterLine();
    void cutInsideLine_data();
    void cutInsideLine();

    void modelWithItsPanels_data();
    void modelWithItsPanels();
    void modelNameAsPlayerId();
    void baudRateOfAnotherModel();
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
    QVERIFY(QDir().mkpath(folder()));
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
    QVERIFY(QDir(home() + u"/Ambrette"_s).removeRecursively());
    configFilePath.clear();
    {
        const MainWindow window;
        QCOMPARE(configFilePath, path());
        QVERIFY(QFileInfo(folder()).isDir());
        QVERIFY(!QFile::exists(path()));
    }
    QVERIFY(QFile::exists(path()));
}

void tst_config::folderThatCannotBeMade()
{
    QVERIFY(QDir(home() + u"/Ambrette"_s).removeRecursively());
    QVERIFY(write(home() + u"/Ambrette"_s, "a file"));
    {
        const MainWindow window;
        QCOMPARE(configFilePath, path());
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    QCOMPARE(read(home() + u"/Ambrette"_s), "a file"_ba);
    QVERIFY(QFile::remove(home() + u"/Ambrette"_s));
}

void tst_config::untouchedRun()
{
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    const QByteArray expected = "TSY11.00\n"
                                "Tessaly (Configuration File)\n"
                                "Generate by: Tessaly 1.2.8.0\n"
                                "*** Default Language:\n"
                                "(default)\n"
                                "*** Default Device:\n"
                                "Tempo Deck\n"
                                "*** Default Serial Port:\n"
                                + firstPort().toUtf8()
                                + "\n"
                                  "*** Default Baudrate:\n"
                                  "19200\n"
                                  "*** Default IP Address:\n"
                                  "0\n"
                                  "0\n"
                                  "0\n"
                                  "0\n"
                                  "*** Default Auto-connection:\n"
                                  "0\n"
                                  "*** Default Player ID:\n"
                                  "0\n"
                                  "*** Default Command Bytes Sent Setting:\n"
                                  "2\n"
                                  "*** Default Data Received Setting:\n"
                                  "1\n";
    QCOMPARE(linesOf(path()), expected.split('\n'));
}

void tst_config::allChangedByTheUser()
{
    {
        MainWindow window;
        widget<QAction>(window, "action_French")->trigger();
        select(window, "comboBox_Player", 4);
        window.on_comboBox_Player_activated(4);
        widget<QComboBox>(window, "comboBox_Port")->setCurrentText(u"/dev/ttyTest2"_s);
        select(window, "comboBox_Baudrate", 1);
        widget<QSpinBox>(window, "spinBox_IP_1")->setValue(192);
        widget<QSpinBox>(window, "spinBox_IP_2")->setValue(168);
        widget<QSpinBox>(window, "spinBox_IP_3")->setValue(5);
        widget<QSpinBox>(window, "spinBox_IP_4")->setValue(255);
        setChecked<QCheckBox>(window, "checkBox_Auto_connection");
        select(window, "comboBox_ID", 127);
        setChecked<QRadioButton>(window, "radioButton_Sent_Dec");
        setChecked<QRadioButton>(window, "radioButton_Data_Dec");
    }
    const QByteArray expected = "TSY11.00\n"
                                "Tessaly (Configuration File)\n"
                                "Generate by: Tessaly 1.2.8.0\n"
                                "*** Default Language:\n"
                                "French\n"
                                "*** Default Device:\n"
                                "Ampra One\n"
                                "*** Default Serial Port:\n"
                                "/dev/ttyTest2\n"
                                "*** Default Baudrate:\n"
                                "9600\n"
                                "*** Default IP Address:\n"
                                "192\n"
                                "168\n"
                                "5\n"
                                "255\n"
                                "*** Default Auto-connection:\n"
                                "1\n"
                                "*** Default Player ID:\n"
                                "127\n"
                                "*** Default Command Bytes Sent Setting:\n"
                                "3\n"
                                "*** Default Data Received Setting:\n"
                                "3\n"_ba;
    QCOMPARE(linesOf(path()), expected.split('\n'));
}

void tst_config::writtenOnlyAtTheEnd()
{
    QVERIFY(write(path(), fileOf(changedLines)));
    {
        MainWindow window;
        window.show();
        widget<QSpinBox>(window, "spinBox_IP_1")->setValue(77);
        window.close();
        QCOMPARE(linesOf(path()), fileOf(changedLines).split('\n'));
    }
    QCOMPARE(linesOf(path()), changedFileWith({{13, "77"}}).split('\n'));
}

void tst_config::writtenLine_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *name, int number, const char *line, Change change) {
        QTest::newRow(name) << change << number << QByteArray(line);
    };

    row("language default", 5, "(default)", [](MainWindow &) {});
    row("language English", 5, "English",
        [](MainWindow &window) { widget<QAction>(window, "action_English")->trigger(); });
    row("language French", 5, "French",
        [](MainWindow &window) { widget<QAction>(window, "action_French")->trigger(); });
    row("no language checked", 5, "(default)",
        [](MainWindow &window) { window.uncheckLanguageActions(); });
    row("English before French", 5, "English", [](MainWindow &window) {
        setChecked<QAction>(window, "action_English");
        setChecked<QAction>(window, "action_French");
    });
    row("first model", 7, "Tempo Deck", [](MainWindow &) {});
    row("last model", 7, "HV0xx (legacy)",
        [](MainWindow &window) { select(window, "comboBox_Player", 14); });
    row("no model", 7, "(default)",
        [](MainWindow &window) { select(window, "comboBox_Player", -1); });
    row("port", 9, "/dev/ttyTest2", [](MainWindow &window) {
        widget<QComboBox>(window, "comboBox_Port")->setCurrentText(u"/dev/ttyTest2"_s);
    });
    row("port beyond ASCII", 9, "p\xC3\xB6rt", [](MainWindow &window) {
        widget<QComboBox>(window, "comboBox_Port")->addItem(u"pört"_s);
        widget<QComboBox>(window, "comboBox_Port")->setCurrentText(u"pört"_s);
    });
    row("no port chosen", 9, "(default)",
        [](MainWindow &window) { select(window, "comboBox_Port", -1); });
    row("no port present", 9, "(default)",
        [](MainWindow &window) { widget<QComboBox>(window, "comboBox_Port")->clear(); });
    row("baud rate", 11, "9600",
        [](MainWindow &window) { select(window, "comboBox_Baudrate", 0); });
    row("no baud rate chosen", 11, "(default)",
        [](MainWindow &window) { select(window, "comboBox_Baudrate", -1); });
    row("TCP model without baud rates", 11, "(default)",
        [](MainWindow &window) { window.on_comboBox_Player_activated(3); });
    for (int i = 0; i < 4; ++i) {
        static constexpr Change changes[] = {
            [](MainWindow &window) { widget<QSpinBox>(window, "spinBox_IP_1")->setValue(255); },
            [](MainWindow &window) { widget<QSpinBox>(window, "spinBox_IP_2")->setValue(255); },
            [](MainWindow &window) { widget<QSpinBox>(window, "spinBox_IP_3")->setValue(255); },
            [](MainWindow &window) { widget<QSpinBox>(window, "spinBox_IP_4")->setValue(255); },
        };
        QTest::addRow("address %d", i + 1) << changes[i] << 13 + i << "255"_ba;
    }
    row("auto-connection", 18, "1",
        [](MainWindow &window) { setChecked<QCheckBox>(window, "checkBox_Auto_connection"); });
    row("auto-connection that the model hides", 18, "1", [](MainWindow &window) {
        setChecked<QCheckBox>(window, "checkBox_Auto_connection");
        select(window, "comboBox_Player", 7);
        window.on_comboBox_Player_activated(7);
    });
    row("player ID", 20, "12", [](MainWindow &window) { select(window, "comboBox_ID", 12); });
    row("the one ID of a TCP model", 20, "0", [](MainWindow &window) {
        select(window, "comboBox_ID", 12);
        window.on_comboBox_Player_activated(3);
    });
    row("no player ID", 20, "(default)",
        [](MainWindow &window) { widget<QComboBox>(window, "comboBox_ID")->clear(); });
    row("sent hexadecimal", 22, "2", [](MainWindow &) {});
    row("sent decimal", 22, "3",
        [](MainWindow &window) { setChecked<QRadioButton>(window, "radioButton_Sent_Dec"); });
    row("sent neither", 22, "(default)", [](MainWindow &window) {
        widget<QRadioButton>(window, "radioButton_Sent_Hex")->setAutoExclusive(false);
        setChecked<QRadioButton>(window, "radioButton_Sent_Hex", false);
    });
    row("sent both: hexadecimal wins", 22, "2", [](MainWindow &window) {
        widget<QRadioButton>(window, "radioButton_Sent_Hex")->setAutoExclusive(false);
        widget<QRadioButton>(window, "radioButton_Sent_Dec")->setAutoExclusive(false);
        setChecked<QRadioButton>(window, "radioButton_Sent_Dec");
    });
    row("data ASCII", 24, "1", [](MainWindow &) {});
    row("data hexadecimal", 24, "2",
        [](MainWindow &window) { setChecked<QRadioButton>(window, "radioButton_Data_Hex"); });
    row("data decimal", 24, "3",
        [](MainWindow &window) { setChecked<QRadioButton>(window, "radioButton_Data_Dec"); });
    row("data none", 24, "(default)", [](MainWindow &window) {
        widget<QRadioButton>(window, "radioButton_Data_ASCII")->setAutoExclusive(false);
        setChecked<QRadioButton>(window, "radioButton_Data_ASCII", false);
    });
    row("data ASCII and hexadecimal: the last wins", 24, "2", [](MainWindow &window) {
        widget<QRadioButton>(window, "radioButton_Data_ASCII")->setAutoExclusive(false);
        widget<QRadioButton>(window, "radioButton_Data_Hex")->setAutoExclusive(false);
        setChecked<QRadioButton>(window, "radioButton_Data_Hex");
    });
    row("data all three: the last wins", 24, "3", [](MainWindow &window) {
        for (const char *name :
             {"radioButton_Data_ASCII", "radioButton_Data_Hex", "radioButton_Data_Dec"}) {
            widget<QRadioButton>(window, name)->setAutoExclusive(false);
            setChecked<QRadioButton>(window, name);
        }
    });
}

void tst_config::writtenLine()
{
    QFETCH(Change, change);
    QFETCH(int, number);
    QFETCH(QByteArray, line);

    {
        MainWindow window;
        change(window);
    }
    const QByteArrayList lines = linesOf(path());
    QCOMPARE(lines.size(), 25); // nothing behind the last line end
    QCOMPARE(lines.last(), ""_ba);
    QCOMPARE(lines.at(number - 1), line);
    for (const int label : {1, 2, 3, 4, 6, 8, 10, 12, 17, 19, 21, 23})
        QCOMPARE(lines.at(label - 1), changedLines.at(label - 1));
}

void tst_config::foreignFileIsReplaced()
{
    QVERIFY(write(path(), QByteArray(10'000, 'x')));
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    QCOMPARE(read(path()).left(9), "TSY11.00\n"_ba);
    QCOMPARE(linesOf(path()).mid(22),
             QByteArrayList({"*** Default Data Received Setting:", "1", ""}));
    QCOMPARE(read(path()).count('x'), 0);
}

void tst_config::roundTrip()
{
    QVERIFY(write(path(), fileOf(changedLines)));
    for (int start = 0; start < 2; ++start) {
        {
            const MainWindow window;
            QCOMPARE(settingsOf(window), changedSettings());
        }
        QCOMPARE(linesOf(path()), fileOf(changedLines).split('\n'));
    }
}

void tst_config::playerIdIsNotRestored()
{
    // The line is looked up among the models.
    QVERIFY(write(path(), changedFileWith({{20, "12"}})));
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), changedSettings());
    }
    QCOMPARE(linesOf(path()), changedFileWith({{20, "0"}}).split('\n'));
}

void tst_config::restored_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("settings");

    const QStringList initial = newUsersSettings();
    const QStringList changed = changedSettings();
    const auto row = [](const char *name, const QByteArray &file, const QStringList &settings) {
        QTest::newRow(name) << file << settings;
    };
    const auto changedWith = [&changed](const Setting setting, const QString &value) {
        return with(changed, {{setting, value}});
    };

    row("as written", fileOf(changedLines), changed);

    row("head inside other characters", changedFileWith({{1, "XTSY11.00Y"}}), changed);
    row("head in the other order", changedFileWith({{1, "1.00TSY1"}}), changed);
    row("head sharing the 1", changedFileWith({{1, "TSY1.00"}}), changed);
    row("head behind 1 MiB", changedFileWith({{1, QByteArray(mebibyte, 'A') + "TSY11.00"}}),
        changed);
    row("head behind invalid UTF-8", changedFileWith({{1, "\xFF\xC0TSY11.00"}}), changed);
    row("head of version 2.00", changedFileWith({{1, "TSY12.00"}}), initial);
    row("head in lower case", changedFileWith({{1, "tsy11.00"}}), initial);
    row("head without magic", changedFileWith({{1, "1.00"}}), initial);
    row("head without version", changedFileWith({{1, "TSY1"}}), initial);
    row("head empty", changedFileWith({{1, ""}}), initial);
    row("head on the second line", "\n" + fileOf(changedLines), initial);
    row("head cut in two by an invalid byte",
        changedFileWith({{1, "TSY\xFF"
                             "11.00"}}),
        initial);

    row("labels are not looked at",
        changedFileWith({{2, "a"},
                         {3, ""},
                         {4, "b"},
                         {6, "French"},
                         {8, "c"},
                         {10, "9600"},
                         {12, "1"},
                         {17, "1"},
                         {19, "Ampra One"},
                         {21, "2"},
                         {23, "1"}}),
        changed);
    row("lines behind the last", fileOf(changedLines) + "French\nAmpra One\n1\n", changed);
    row("no line end at the end", fileOf(changedLines).chopped(1), changed);
    row("CR LF", fileOf(changedLines, "\r\n"), changed);
    row("CR LF, none at the end", fileOf(changedLines, "\r\n").chopped(2), changed);
    row("one line missing moves the others", fileOf(changedLines.mid(0, 6) + changedLines.mid(7)),
        with(initial, {{Language, u"English"_s}, {Address, u"20.30.40.0"_s}}));

    row("language default", changedFileWith({{5, "(default)"}}),
        changedWith(Language, u"Default"_s));
    row("language French", changedFileWith({{5, "French"}}), changedWith(Language, u"French"_s));
    row("language in lower case", changedFileWith({{5, "english"}}),
        changedWith(Language, u"Default"_s));
    row("language with a blank", changedFileWith({{5, "English "}}),
        changedWith(Language, u"Default"_s));
    row("language with a nul", changedFileWith({{5, QByteArray("English\0", 8)}}),
        changedWith(Language, u"Default"_s));
    row("language not offered", changedFileWith({{5, "German"}}),
        changedWith(Language, u"Default"_s));
    row("language empty", changedFileWith({{5, ""}}), changedWith(Language, u"Default"_s));

    // Without its model the file's baud rate is none of the list.
    const QStringList otherModel
        = with(changed, {{Model, u"Tempo Deck"_s}, {BaudRate, u"19200"_s}});
    row("model default", changedFileWith({{7, "(default)"}}), otherModel);
    row("model empty", changedFileWith({{7, ""}}), otherModel);
    row("model in lower case", changedFileWith({{7, "vistar show - sv500 (serial)"}}), otherModel);
    row("model with a blank", changedFileWith({{7, "Vistar Show - SV500 (Serial) "}}), otherModel);
    row("beginning of a model", changedFileWith({{7, "Vistar Show - SV500"}}), otherModel);
    row("model by wildcard", changedFileWith({{7, "Vistar Show*"}}), otherModel);
    row("model by number", changedFileWith({{7, "2"}}), otherModel);
    row("model with invalid UTF-8", changedFileWith({{7, "Vistar Show - SV500 (Serial)\xFF"}}),
        otherModel);
    row("model that is not offered", changedFileWith({{7, "Lumo Bridge"}}), otherModel);

    const QStringList otherPort = with(changed, {{Port, firstPort()}});
    row("port default", changedFileWith({{9, "(default)"}}), otherPort);
    row("port empty", changedFileWith({{9, ""}}), otherPort);
    row("port that is not present", changedFileWith({{9, "COM99"}}), otherPort);
    row("port in upper case", changedFileWith({{9, "/DEV/TTYTEST2"}}), otherPort);
    row("beginning of a port", changedFileWith({{9, "/dev/ttyTest"}}), otherPort);
    row("other port", changedFileWith({{9, "/dev/ttyTest1"}}),
        changedWith(Port, u"/dev/ttyTest1"_s));

    row("lowest baud rate", changedFileWith({{11, "1200"}}), changedWith(BaudRate, u"1200"_s));
    const QStringList otherBaudRate = with(changed, {{BaudRate, u"115200"_s}});
    row("baud rate default", changedFileWith({{11, "(default)"}}), otherBaudRate);
    row("baud rate empty", changedFileWith({{11, ""}}), otherBaudRate);
    row("baud rate that is not offered", changedFileWith({{11, "14400"}}), otherBaudRate);
    row("baud rate is text, not a number", changedFileWith({{11, "057600"}}), otherBaudRate);
    row("baud rate with a blank", changedFileWith({{11, " 57600"}}), otherBaudRate);

    row("address of zeros", changedFileWith({{13, "0"}, {14, "0"}, {15, "0"}, {16, "0"}}),
        changedWith(Address, u"0.0.0.0"_s));
    row("highest address", changedFileWith({{13, "255"}, {14, "255"}, {15, "255"}, {16, "255"}}),
        changedWith(Address, u"255.255.255.255"_s));
    row("address 256 at 1", changedFileWith({{13, "256"}}), changedWith(Address, u"0.20.30.40"_s));
    row("address -1 at 2", changedFileWith({{14, "-1"}}), changedWith(Address, u"10.0.30.40"_s));
    row("address above 32 bits at 3", changedFileWith({{15, "2147483648"}}),
        changedWith(Address, u"10.20.0.40"_s));
    row("address empty at 4", changedFileWith({{16, ""}}), changedWith(Address, u"10.20.30.0"_s));
    row("address as it may be typed",
        changedFileWith({{13, "+5"}, {14, "05"}, {15, " 6"}, {16, "7 "}}),
        changedWith(Address, u"5.5.6.7"_s));
    row("address garbage", changedFileWith({{13, "x"}, {14, "0x1"}, {15, "1.5"}, {16, "\xFF"}}),
        changedWith(Address, u"0.0.0.0"_s));
    row("address of invalid UTF-8",
        changedFileWith({{13, "\xFF"
                              "5"}}),
        changedWith(Address, u"0.20.30.40"_s));

    row("auto-connection garbage", changedFileWith({{18, "yes"}}), changed);
    row("auto-connection empty", changedFileWith({{18, ""}}), changed);
    row("auto-connection above 32 bits", changedFileWith({{18, "4294967297"}}), changed);

    const QStringList otherSent = with(changed, {{Sent, u"Hex shown in hex"_s}});
    row("sent 2", changedFileWith({{22, "2"}}), otherSent);
    row("sent 1, no ASCII form", changedFileWith({{22, "1"}}), otherSent);
    row("sent 4", changedFileWith({{22, "4"}}), otherSent);
    row("sent default", changedFileWith({{22, "(default)"}}), otherSent);
    row("sent empty", changedFileWith({{22, ""}}), otherSent);
    row("sent +3", changedFileWith({{22, "+3"}}), changed);
    row("sent 03 with blanks", changedFileWith({{22, " 03 "}}), changed);

    row("data 1", changedFileWith({{24, "1"}}), changedWith(Data, u"ASCII"_s));
    row("data 3", changedFileWith({{24, "3"}}), changedWith(Data, u"Dec"_s));
    row("data 0", changedFileWith({{24, "0"}}), changedWith(Data, u"ASCII"_s));
    row("data 4", changedFileWith({{24, "4"}}), changedWith(Data, u"ASCII"_s));
    row("data default", changedFileWith({{24, "(default)"}}), changedWith(Data, u"ASCII"_s));
    row("data empty", changedFileWith({{24, ""}}), changedWith(Data, u"ASCII"_s));
    row("data +2", changedFileWith({{24, "+2"}}), changed);

    row("empty file", "", initial);
    row("one line end", "\n", initial);
    row("24 empty lines", QByteArray(24, '\n'), initial);
    row("head and 23 empty lines", "TSY11.00" + QByteArray(24, '\n'), initial);
    // A line ends with LF: all is in the first one.
    row("CR alone", fileOf(changedLines, "\r"), initial);
    row("nuls", QByteArray(4096, '\0'), initial);
    row("1 MiB without a line end", QByteArray(mebibyte, 'A'), initial);

    QRandomGenerator generator(20261121);
    QByteArray random(mebibyte, Qt::Uninitialized);
    for (char &byte : random)
        byte = static_cast<char>(generator.bounded(256));
    row("1 MiB of random bytes", random, initial);
    row("1 MiB of random bytes behind the head", "TSY11.00\n" + random, initial);

    QByteArrayList longLines{"TSY11.00"};
    QByteArrayList digitLines{"TSY11.00"};
    QByteArrayList randomLines{"TSY11.00"};
    random.replace('\n', ' ');
    for (int i = 1; i < 24; ++i) {
        longLines.append(QByteArray(mebibyte, 'A'));
        digitLines.append(QByteArray(mebibyte, '1'));
        randomLines.append(random);
    }
    row("lines of 1 MiB", fileOf(longLines), initial);
    row("lines of 1 MiB of digits", fileOf(digitLines), initial);
    row("lines of 1 MiB of random bytes", fileOf(randomLines), initial);
    row("labels of 1 MiB",
        changedFileWith({{2, longLines[1]}, {4, longLines[1]}, {23, longLines[1]}}), changed);

    row("invalid UTF-8 in every line",
        fileOf(QByteArrayList(24, "TSY11.00 \xC3\x28 \xE2\x82 \xF0\x28\x8C\xBC \xFE")), initial);

    const QString text = QString::fromLatin1(fileOf(changedLines));
    row("UTF-8 with byte order mark", "\xEF\xBB\xBF" + text.toUtf8(), changed);
    row("UTF-16 byte order mark before UTF-8", "\xFF\xFE" + text.toUtf8(), initial);
    const QByteArray littleEndian(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    row("UTF-16 without byte order mark", littleEndian, initial);
    // The text stream recognizes it and reads on in it.
    row("UTF-16 with byte order mark", "\xFF\xFE" + littleEndian, changed);
}

void tst_config::restored()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, settings);

    QVERIFY(write(path(), file));
    const MainWindow window;
    QCOMPARE(settingsOf(window), settings);
    QVERIFY(widget<QTextEdit>(window, "textEdit_Data")->toPlainText().isEmpty());
}

void tst_config::unusableLinesChangeNothing_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("empty") << ""_ba;
    QTest::newRow("placeholder") << "(default)"_ba;
    QTest::newRow("word") << "garbage"_ba;
    QTest::newRow("-1, of which auto-connection alone makes sense") << "-1"_ba;
    QTest::newRow("above 32 bits") << "2147483648"_ba;
    QTest::newRow("invalid UTF-8") << "\xFF\xFF"_ba;
}

void tst_config::unusableLinesChangeNothing()
{
    QFETCH(QByteArray, line);

    QVERIFY(write(path(), changedFileWith({{5, "French"}})));
    MainWindow window;
    setChecked<QCheckBox>(window, "checkBox_Auto_connection");
    const QStringList before
        = with(changedSettings(), {{Language, u"French"_s}, {AutoConnection, u"on"_s}});
    QCOMPARE(settingsOf(window), before);

    QVERIFY(write(path(), fileOf(QByteArrayList{"TSY11.00"} + QByteArrayList(23, line))));
    window.loadConfig(path());
    // The language alone falls back to its default.
    QCOMPARE(settingsOf(window), with(before, {{Language, u"Default"_s}}));
    QCOMPARE(widget<QComboBox>(window, "comboBox_Baudrate")->count(), 8);
}

void tst_config::addressOverAnother()
{
    QVERIFY(write(path(), changedFileWith({{13, "10"}, {14, "20"}, {15, "30"}, {16, "40"}})));
    MainWindow window;
    QCOMPARE(settingsOf(window).at(Address), u"10.20.30.40"_s);

    QVERIFY(write(path(), changedFileWith({{13, "0"}, {14, "256"}, {15, "-1"}, {16, "255"}})));
    window.loadConfig(path());
    QCOMPARE(settingsOf(window).at(Address), u"0.20.30.255"_s);
}

void tst_config::cutAfterLine_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("settings");

    QStringList settings = newUsersSettings();
    for (int count = 0; count <= 24; ++count) {
        switch (count) {
        case 5:
            settings[Language] = u"English"_s;
            break;
        case 7:
            settings[Model] = u"Vistar Show - SV500 (Serial)"_s;
            settings[BaudRate] = u"115200"_s; // the model's own default
            break;
        case 9:
            settings[Port] = u"/dev/ttyTest2"_s;
            break;
        case 11:
            settings[BaudRate] = u"57600"_s;
            break;
        case 13:
            settings[Address] = u"10.0.0.0"_s;
            break;
        case 14:
            settings[Address] = u"10.20.0.0"_s;
            break;
        case 15:
            settings[Address] = u"10.20.30.0"_s;
            break;
        case 16:
            settings[Address] = u"10.20.30.40"_s;
            break;
        case 22:
            settings[Sent] = u"Dec shown in decimal"_s;
            break;
        case 24:
            settings[Data] = u"Hex"_s;
            break;
        default:
            break;
        }
        QTest::addRow("after line %d", count) << count << settings;
    }
}

void tst_config::cutAfterLine()
{
    QFETCH(int, count);
    QFETCH(QStringList, settings);

    // With and without the end of the last line.
    const QByteArray file = fileOf(changedLines.mid(0, count));
    for (const QByteArray &bytes : {file, file.chopped(count > 0 ? 1 : 0)}) {
        QVERIFY(write(path(), bytes));
        const MainWindow window;
        QCOMPARE(settingsOf(window), settings);
    }
}

void tst_config::cutInsideLine_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("length");
    QTest::addColumn<QStringList>("settings");

    const auto row = [](int number, int length, const QStringList &settings) {
        QTest::addRow("in line %d behind \"%s\"", number,
                      changedLines.at(number - 1).left(length).constData())
            << number << length << settings;
    };

    QStringList settings = newUsersSettings();
    row(1, 1, settings);
    row(1, 4, settings);
    row(1, 7, settings);
    row(2, 10, settings);
    row(3, 10, settings);
    row(4, 10, settings);
    row(5, 6, settings);
    settings[Language] = u"English"_s;
    row(6, 10, settings);
    row(7, 19, settings);
    row(7, 27, settings);
    settings[Model] = u"Vistar Show - SV500 (Serial)"_s;
    settings[BaudRate] = u"115200"_s;
    row(8, 10, settings);
    row(9, 12, settings);
    settings[Port] = u"/dev/ttyTest2"_s;
    row(10, 10, settings);
    row(11, 4, settings);
    settings[BaudRate] = u"57600"_s;
    row(12, 10, settings);
    // The rest of a number is a number.
    settings[Address] = u"1.0.0.0"_s;
    row(13, 1, settings);
    settings[Address] = u"10.2.0.0"_s;
    row(14, 1, settings);
    settings[Address] = u"10.20.3.0"_s;
    row(15, 1, settings);
    settings[Address] = u"10.20.30.4"_s;
    row(16, 1, settings);
    settings[Address] = u"10.20.30.40"_s;
    row(17, 10, settings);
    row(19, 10, settings);
    row(21, 10, settings);
    settings[Sent] = u"Dec shown in decimal"_s;
    row(23, 10, settings);
}

void tst_config::cutInsideLine()
{
    QFETCH(int, number);
    QFETCH(int, length);
    QFETCH(QStringList, settings);

    QVERIFY(length < changedLines.at(number - 1).size());
    QVERIFY(write(path(), fileOf(changedLines.mid(0, number - 1))
                              + changedLines.at(number - 1).left(length)));
    const MainWindow window;
    QCOMPARE(settingsOf(window), settings);
}

void tst_config::modelWithItsPanels_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("baudRates");
    QTest::addColumn<QString>("baudRate");
    QTest::addColumn<int>("idCount");
    QTest::addColumn<QString>("port"); // text behind the address; empty on a serial model
    QTest::addColumn<bool>("autoConnectionOffered");

    const QString low = u"9600 19200 38400"_s;
    const QString all = u"1200 2400 4800 9600 19200 38400 57600 115200"_s;
    const QString none;
    const QString video = u"( Port number: 65079 )"_s;
    QTest::newRow("Tempo Deck") << 0 << low << u"19200"_s << 128 << none << true;
    QTest::newRow("Show Deck (Gen 2)") << 1 << low << u"19200"_s << 128 << none << true;
    QTest::newRow("Vistar Show - SV500 (Serial)") << 2 << all << u"115200"_s << 128 << none << true;
    QTest::newRow("Vistar Show - SV500 (TCP/IP)") << 3 << none << none << 1 << video << true;
    QTest::newRow("Ampra One") << 4 << u"4800 9600 19200"_s << u"19200"_s << 128 << none << true;
    QTest::newRow("Pico Deck Gen 2/3") << 5 << low << u"19200"_s << 128 << none << true;
    QTest::newRow("Sonet A (Serial)") << 6 << u"115200"_s << u"115200"_s << 1 << none << true;
    QTest::newRow("Sonet A Lite (TCP/IP)")
        << 7 << none << none << 1 << u"( Port number: 1234 )"_s << false;
    QTest::newRow("Vistar Home - HV4xx (Serial)") << 8 << all << u"115200"_s << 128 << none << true;
    QTest::newRow("Vistar Home - HV4xx (TCP/IP)") << 9 << none << none << 1 << video << true;
    QTest::newRow("HV1xx (Serial) (legacy)")
        << 10 << u"19200"_s << u"19200"_s << 128 << none << true;
    QTest::newRow("HV1xx (TCP/IP) (legacy)") << 11 << none << none << 1 << video << true;
    QTest::newRow("Pico Deck (legacy)") << 12 << u"19200"_s << u"19200"_s << 128 << none << true;
    QTest::newRow("Card Deck HD (legacy)") << 13 << u"9600"_s << u"9600"_s << 128 << none << true;
    QTest::newRow("HV0xx (legacy)") << 14 << u"19200"_s << u"19200"_s << 128 << none << true;
}

void tst_config::modelWithItsPanels()
{
    QFETCH(int, row);
    QFETCH(QString, baudRates);
    QFETCH(QString, port);
    QFETCH(bool, autoConnectionOffered);

    QVERIFY(write(path(), changedFileWith({{7, QTest::currentDataTag()}, {11, "(default)"}})));
    const MainWindow window;
    QCOMPARE(widget<QComboBox>(window, "comboBox_Player")->currentIndex(), row);
    QCOMPARE(current(window, "comboBox_Player"), QLatin1StringView(QTest::currentDataTag()));

    const auto *list = widget<QComboBox>(window, "comboBox_Baudrate");
    QStringList offered;
    for (int i = 0; i < list->count(); ++i)
        offered.append(list->itemText(i));
    QCOMPARE(offered.join(u' '), baudRates);
    QTEST(list->currentText(), "baudRate");
    QTEST(widget<QComboBox>(window, "comboBox_ID")->count(), "idCount");

    const bool tcp = !port.isEmpty();
    QCOMPARE(widget<QWidget>(window, "frame_IP")->isHidden(), !tcp);
    QCOMPARE(widget<QWidget>(window, "frame_Port")->isHidden(), tcp);
    QCOMPARE(widget<QWidget>(window, "frame_Baudrate")->isHidden(), tcp);
    QCOMPARE(widget<QWidget>(window, "checkBox_Auto_connection")->isHidden(),
             !autoConnectionOffered);
    if (tcp)
        QCOMPARE(widget<QLabel>(window, "label_IP_Port")->text(), port);
    // The on-demand model has neither of the two.
    QCOMPARE(widget<QWidget>(window, "pushButton_Connect")->isEnabled(), autoConnectionOffered);
    QCOMPARE(widget<QWidget>(window, "frame_Commands")->isEnabled(), !autoConnectionOffered);
}

void tst_config::modelNameAsPlayerId()
{
    // The row of the list moves, the panels stay those of line 7.
    const QByteArray file = changedFileWith({{20, "Ampra One"}});
    const QStringList settings = with(changedSettings(), {{Model, u"Ampra One"_s}});
    QVERIFY(write(path(), file));
    {
        const MainWindow window;
        QCOMPARE(settingsOf(window), settings);
        QCOMPARE(widget<QComboBox>(window, "comboBox_Baudrate")->count(), 8);
        // This amplifier has no requests and no firmware version; the video player has requests.
        QVERIFY(widget<QComboBox>(window, "comboBox_Request")->count() > 0);
        QVERIFY(!widget<QWidget>(window, "frame_Request")->isHidden());
        // The language comes last, and the note with it.
        QCOMPARE(widget<QLabel>(window, "label_Comments")->text(), QString());
    }
    QCOMPARE(linesOf(path()), changedFileWith({{7, "Ampra One"}}).split('\n'));

    QFile::remove(path());
    MainWindow window;
    QVERIFY(write(path(), file));
    window.loadConfig(path());
    QCOMPARE(settingsOf(window), settings);
    QCOMPARE(widget<QComboBox>(window, "comboBox_Baudrate")->count(), 8);
    QVERIFY(
        widget<QLabel>(window, "label_Comments")->text().contains(u"firmware 1.11 or higher"_s));

    // A name on that line moves the row also when line 7 names no model.
    QVERIFY(write(path(), changedFileWith({{7, "none"}, {20, "Sonet A Lite (TCP/IP)"}})));
    window.loadConfig(path());
    QCOMPARE(current(window, "comboBox_Player"), u"Sonet A Lite (TCP/IP)"_s);
    QVERIFY(widget<QWidget>(window, "frame_IP")->isHidden());
}

void tst_config::baudRateOfAnotherModel()
{
    // Looked up in the list of the file's model, which is applied first.
    QVERIFY(write(path(), changedFileWith({{7, "Tempo Deck"}, {11, "38400"}})));
    {
        const MainWindow window;
        QCOMPARE(current(window, "comboBox_Baudrate"), u"38400"_s);
    }
    QVERIFY(write(path(), changedFileWith({{7, "Tempo Deck"}, {11, "57600"}})));
    {
        const MainWindow window;
        QCOMPARE(current(window, "comboBox_Baudrate"), u"19200"_s);
    }
    QVERIFY(write(path(), changedFileWith({{11, "38400"}})));
    {
        const MainWindow window;
        QCOMPARE(current(window, "comboBox_Baudrate"), u"38400"_s);
        QCOMPARE(widget<QComboBox>(window, "comboBox_Baudrate")->currentIndex(), 5);
    }
    QVERIFY(write(path(), changedFileWith({{7, "Vistar Show - SV500 (TCP/IP)"}})));
    {
        const MainWindow window;
        QCOMPARE(current(window, "comboBox_Baudrate"), QString());
    }
    QCOMPARE(linesOf(path()).at(10), "(default)"_ba);
}

void tst_config::languageIsAppliedByTheConstructor()
{
    const QString english = u"Player:"_s;
    const QString french = u"Lecteur\u00A0:"_s;
    {
        MainWindow window;
        QCOMPARE(widget<QLabel>(window, "label_Player")->text(), english);
        QVERIFY(write(path(), changedFileWith({{5, "French"}})));
        window.loadConfig(path());
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
    QCOMPARE(linesOf(path()).at(4), "English"_ba);
}

void tst_config::sentBytesInTheRestoredForm()
{
    QVERIFY(write(path(), fileOf(changedLines)));
    {
        MainWindow window;
        window.showSentBytes(0x85, 0x02, "\x01"_ba);
        QCOMPARE(widget<QLabel>(window, "label_Bytes_Sended")->text().trimmed(), u"133 2 1"_s);
        window.on_radioButton_Sent_Dec_clicked(); // shown so already
        QCOMPARE(widget<QLabel>(window, "label_Bytes_Sended")->text().trimmed(), u"133 2 1"_s);
    }
    // A file that says nothing of it leaves the hexadecimal form of every start.
    QVERIFY(write(path(), changedFileWith({{22, "(default)"}})));
    const MainWindow window;
    QVERIFY(sentBytesShownInHex);
}

void tst_config::emptyPath()
{
    const auto removal = qScopeGuard([] { QFile::remove(pathBesideProgram()); });
    QVERIFY(write(pathBesideProgram(), fileOf(changedLines)));
    {
        MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
        window.loadConfig(QString());
        QCOMPARE(settingsOf(window), changedSettings());
        widget<QSpinBox>(window, "spinBox_IP_4")->setValue(99);
        window.saveConfig(QString());
        QCOMPARE(read(pathBesideProgram()), changedFileWith({{16, "99"}}));
        QCOMPARE(widget<QTextEdit>(window, "textEdit_Data")->toPlainText(),
                 pathBesideProgram() + u"(before save)\n"_s + pathBesideProgram()
                     + u"(after save)"_s);
        QVERIFY(!QFile::exists(path()));

        widget<QSpinBox>(window, "spinBox_IP_4")->setValue(98);
        configFilePath.clear();
    }
    QCOMPARE(read(pathBesideProgram()), changedFileWith({{16, "98"}}));
    QVERIFY(!QFile::exists(path()));

    QVERIFY(QFile::remove(pathBesideProgram()));
    MainWindow window;
    window.loadConfig(QString());
    QCOMPARE(settingsOf(window), newUsersSettings());
}

void tst_config::traceOfSaving()
{
    const QString good = folder() + u"/Other.cfg"_s;
    const QString bad = folder() + u"/missing/Other.cfg"_s;

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
    QVERIFY(!QFile::exists(path()));
}

void tst_config::traceInTheDestructor()
{
    auto window = std::make_unique<MainWindow>();
    widget<QTextEdit>(*window, "textEdit_Data")->setPlainText(u"received"_s);
    QCOMPARE(lastWords(std::move(window)),
             u"received\n"_s + path() + u"(before save)\n"_s + path() + u"(after save)"_s);
}

void tst_config::readOnlyFolder()
{
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions::fromInt(0x5555)));
    {
        const NobodysFiles restriction;
        QVERIFY2(!write(path(), {}), "the folder is writable");
        auto window = std::make_unique<MainWindow>();
        QCOMPARE(settingsOf(*window), newUsersSettings());
        QCOMPARE(lastWords(std::move(window)), path() + u"(before save)"_s);
    }
    QVERIFY(!QFile::exists(path()));
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions::fromInt(0x7755)));
}

void tst_config::readOnlyFolderWithFile()
{
    QVERIFY(write(path(), fileOf(changedLines)));
    QVERIFY(QFile::setPermissions(path(), QFile::Permissions::fromInt(0x4444)));
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions::fromInt(0x5555)));
    {
        const NobodysFiles restriction;
        auto window = std::make_unique<MainWindow>();
        QCOMPARE(settingsOf(*window), changedSettings());
        widget<QSpinBox>(*window, "spinBox_IP_1")->setValue(77);
        QCOMPARE(lastWords(std::move(window)), path() + u"(before save)"_s);
    }
    QCOMPARE(linesOf(path()), fileOf(changedLines).split('\n'));
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions::fromInt(0x7755)));
}

void tst_config::unreadableFile()
{
    QVERIFY(write(path(), fileOf(changedLines)));
    QVERIFY(QFile::setPermissions(path(), {}));
    {
        const NobodysFiles restriction;
        QVERIFY2(read(path()) == "(no file)", "the file is readable");
        const MainWindow window;
        QCOMPARE(settingsOf(window), newUsersSettings());
    }
    QVERIFY(QFile::setPermissions(path(), QFile::Permissions::fromInt(0x6644)));
    QCOMPARE(linesOf(path()), fileOf(changedLines).split('\n'));
}

void tst_config::folderInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(path()));
    auto window = std::make_unique<MainWindow>();
    QCOMPARE(settingsOf(*window), newUsersSettings());
    QCOMPARE(lastWords(std::move(window)), path() + u"(before save)"_s);
    QVERIFY(QFileInfo(path()).isDir());
    QVERIFY(QDir(path()).isEmpty());
}

void tst_config::fullDisk()
{
    auto window = std::make_unique<MainWindow>();
    QVERIFY(QFile::link(u"/dev/full"_s, path()));
    // The file can be opened; what fails is the writing.
    QCOMPARE(lastWords(std::move(window)),
             path() + u"(before save)\n"_s + path() + u"(after save)"_s);
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(QFile::remove(path()));

    const MainWindow next;
    QCOMPARE(settingsOf(next), newUsersSettings());
}

TESSALY_WINDOW_TEST(tst_config)
#include "tst_config.moc"
