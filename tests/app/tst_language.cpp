// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/absentport.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/folders.h"
#include "tests/support/languagefiles.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testmain.h"

#include "app/applicationobjects.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum Language { English, French };

/// The folder of the French file, where the programs are started.
QString programFolder()
{
    return programPath(u"."_s);
}

QString frenchFile()
{
    return programPath(u"LanguageData_fr.qm"_s);
}

QString decoyFile()
{
    return buildPath(u"tests/app/decoy.qm"_s);
}

/// Set in a copy of this program that only says what it shows under the locale that it is given.
constexpr char childVariable[] = "TST_LANGUAGE_CHILD";

/// Of the window with a model that has a firmware note; the French texts are the example of how
/// another language is shown. tst_translations has all texts of all languages.
struct ShownText
{
    const char *name;
    QString texts[2]; ///< by Language
};

const QList<ShownText> &shownTexts()
{
    static const QList<ShownText> texts{
        {"menu_File", {u"&File"_s, u"&Fichier"_s}},
        {"action_Exit", {u"&Exit"_s, u"&Quitter"_s}},
        {"action_About", {u"&About Tessaly"_s, u"À &propos de Tessaly"_s}},
        {"label_Player", {u"Player:"_s, u"Lecteur\u00A0:"_s}},
        {"pushButton_Connect", {u"Connect"_s, u"Connecter"_s}},
        {"checkBox_Auto_connection", {u"Auto-connection"_s, u"Connexion automatique"_s}},
        {"label_Connection_Message",
         {u"Connecting to the player... Please wait."_s,
          u"Connexion au lecteur... Veuillez patienter."_s}},
        {"radioButton_Data_Dec", {u"Decimal"_s, u"Décimal"_s}},
        {"label_Data", {u"Data Received:"_s, u"Données reçues\u00A0:"_s}},
        {"label_Comments",
         {u"All commands present in this model can be executed for devices with firmware AP 1.11 / "
          u"MCU 1.05 or higher. If the device embed a lower firmware version, some commands may "
          u"not be executed. Refer to the release notes of this application for more "
          u"information."_s,
          u"Toutes les commandes présentes dans ce modèle peuvent être exécutées par les appareils "
          u"équipés du firmware AP 1.11 / MCU 1.05 ou d’une version ultérieure. Si l’appareil "
          u"embarque une version de firmware inférieure, certaines commandes pourront ne pas être "
          u"exécutées. Reportez-vous aux notes de version de cette application pour plus "
          u"d’informations."_s}},
    };
    return texts;
}

/// A model with the firmware of that note.
const QString noteModel = u"HV1xx (Serial) (legacy)"_s;
const QString modelWithoutNote = u"Ampra One"_s;

QString textOf(const ConsoleWindow &console, const char *name)
{
    const auto *object = console.find<QObject>(name);
    if (const auto *menu = qobject_cast<const QMenu *>(object))
        return menu->title();
    return object->property("text").toString();
}

/// What differs between the texts of the window and those of a language; empty when nothing does.
QString differences(const ConsoleWindow &console, Language language)
{
    QStringList lines;
    for (const ShownText &shown : shownTexts()) {
        const QString text = textOf(console, shown.name);
        if (text != shown.texts[language])
            lines.append(u"%1: \"%2\" instead of \"%3\""_s.arg(QLatin1StringView(shown.name), text,
                                                               shown.texts[language]));
    }
    return lines.join(u'\n');
}

/// The window with that model.
class NoteWindow : public ConsoleWindow
{
public:
    NoteWindow() { selectModel(rowOfModel(noteModel)); }
};

/// Everything of the window but its texts.
QStringList stateWithoutTexts(const ConsoleWindow &console)
{
    QStringList lines;
    for (const QWidget *widget : console.window.findChildren<QWidget *>()) {
        if (widget->objectName().isEmpty())
            continue;
        QStringList values;
        if (auto *list = qobject_cast<const QComboBox *>(widget)) {
            values.append(QString::number(list->currentIndex()));
            for (int row = 0; row < list->count(); ++row)
                values.append(list->itemText(row));
        } else if (auto *slider = qobject_cast<const QSlider *>(widget)) {
            values = {QString::number(slider->minimum()), QString::number(slider->maximum()),
                      QString::number(slider->value())};
        } else if (auto *box = qobject_cast<const QSpinBox *>(widget)) {
            values.append(QString::number(box->value()));
        } else if (auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            values.append(button->isChecked() ? u"checked"_s : u"not checked"_s);
        } else if (auto *edit = qobject_cast<const QTextEdit *>(widget)) {
            values.append(edit->toPlainText());
        }
        lines.append(widget->objectName() + (widget->isHidden() ? u" hidden "_s : u" shown "_s)
                     + (widget->isEnabled() ? u"enabled "_s : u"disabled "_s) + values.join(u'|'));
    }
    return lines;
}

/// The names of the language actions that are checked.
QByteArrayList checkedActions(const ConsoleWindow &console)
{
    QByteArrayList names;
    for (const char *name : {"action_Default", "action_English", "action_French"}) {
        if (console.find<QAction>(name)->isChecked())
            names.append(name);
    }
    return names;
}

void choose(const ConsoleWindow &console, const char *action)
{
    console.find<QAction>(action)->trigger();
}

/// Changes to a folder of its own for as long as it lives.
class FolderOfItsOwn
{
public:
    FolderOfItsOwn() { QDir::setCurrent(m_folder.path()); }
    ~FolderOfItsOwn() { QDir::setCurrent(programFolder()); }
    Q_DISABLE_COPY_MOVE(FolderOfItsOwn)

    QString filePath(const QString &name) const { return m_folder.filePath(name); }
    QString path() const { return m_folder.path(); }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
    }

private:
    QTemporaryDir m_folder;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

} // namespace

class tst_Language : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void switches_data();
    void switches();
    void windowIsLeftAlone_data() { addModelRows(); }
    void windowIsLeftAlone();
    void openLinkIsLeftAlone();
    void titleIsLeftAlone();
    void firmwareNoteFollows();
    void portNumberFollowsTheNextModel();
    void unusableFile_data();
    void unusableFile();
    void repairedFileIsReadAgain();
    void lookUp_data();
    void lookUp();
    void systemLanguage_data();
    void systemLanguage();
    void contextMenu();
    void messageBox();
};

void tst_Language::initTestCase()
{
    QVERIFY(QDir::setCurrent(programFolder()));
    QVERIFY2(QFile::exists(frenchFile()), qPrintable(frenchFile()));
    QVERIFY2(QFile::exists(decoyFile()), qPrintable(decoyFile()));
}

void tst_Language::cleanup()
{
    QCoreApplication::removeTranslator(translator);
    QVERIFY(QDir::setCurrent(programFolder()));
}

void tst_Language::switches_data()
{
    QTest::addColumn<QByteArrayList>("actions");
    QTest::addColumn<int>("language");

    const QByteArray byDefault = "action_Default"_ba;
    const QByteArray english = "action_English"_ba;
    const QByteArray french = "action_French"_ba;
    // The system's language is C here.
    QTest::newRow("French") << QByteArrayList{french} << int(French);
    QTest::newRow("English") << QByteArrayList{english} << int(English);
    QTest::newRow("default") << QByteArrayList{byDefault} << int(English);
    QTest::newRow("back to English") << QByteArrayList{french, english} << int(English);
    QTest::newRow("back to default") << QByteArrayList{french, byDefault} << int(English);
    QTest::newRow("French again") << QByteArrayList{french, english, french} << int(French);
    QTest::newRow("French after default")
        << QByteArrayList{french, byDefault, french} << int(French);
    QTest::newRow("French twice") << QByteArrayList{french, french} << int(French);
    QTest::newRow("English twice") << QByteArrayList{french, english, english} << int(English);
    QTest::newRow("default twice") << QByteArrayList{french, byDefault, byDefault} << int(English);
}

void tst_Language::switches()
{
    QFETCH(QByteArrayList, actions);
    QFETCH(int, language);

    const NoteWindow console;
    QCOMPARE(checkedActions(console), QByteArrayList{"action_Default"_ba});
    QCOMPARE(differences(console, English), QString());
    for (const QByteArray &action : actions) {
        choose(console, action.constData());
        QCOMPARE(checkedActions(console), QByteArrayList{action});
    }
    QCOMPARE(differences(console, Language(language)), QString());
}

void tst_Language::windowIsLeftAlone()
{
    QFETCH(const ModelSheet, sheet);

    ConsoleWindow console;
    auto *ports = console.find<QComboBox>("comboBox_Port");
    ports->addItems({u"first"_s, u"second"_s, u"third"_s});
    console.selectModel(console.rowOfModel(sheet.name));
    for (auto *list : console.window.findChildren<QComboBox *>()) {
        if (list->objectName() != "comboBox_Player"_L1)
            list->setCurrentIndex(list->count() - 1);
    }
    console.find<QSlider>("horizontalSlider_Volume")->setValue(7);
    console.setAddress(u"10.20.30.40"_s);
    console.find<QRadioButton>("radioButton_Sent_Dec")->click();
    console.find<QRadioButton>("radioButton_Data_Hex")->click();
    console.find<QAbstractButton>("checkBox_Auto_connection")->setChecked(true);
    console.find<QAbstractButton>("checkBox_Relay_3")->setChecked(true);
    console.find<QTextEdit>("textEdit_Data")->setPlainText(u"an answer"_s);
    const QStringList before = stateWithoutTexts(console);

    for (const char *action :
         {"action_French", "action_French", "action_English", "action_Default"}) {
        choose(console, action);
        QCOMPARE(stateWithoutTexts(console), before);
    }
    QCOMPARE(console.find<QComboBox>("comboBox_Player")->currentText(), sheet.name);
}

void tst_Language::openLinkIsLeftAlone()
{
    ConsoleWindow console;
    PtyPeer peer;
    console.connectSerial(peer);
    QVERIFY(console.find<QPushButton>("pushButton_Disconnect")->isEnabled());

    choose(console, "action_French");
    QVERIFY(console.find<QPushButton>("pushButton_Disconnect")->isEnabled());
    QVERIFY(!console.find<QPushButton>("pushButton_Connect")->isEnabled());
    console.click("pushButton_Play");
    QTRY_COMPARE(peer.received().toHex(' '), "80 02 01"_ba);
    QCOMPARE(console.text("label_Bytes_Sended"), u"80 02 01"_s);

    // The form's own texts take the places of what was shown last.
    choose(console, "action_English");
    QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
    QCOMPARE(console.text("label_Volume_2"), u"..."_s);
    QVERIFY(console.find<QPushButton>("pushButton_Disconnect")->isEnabled());
    QCOMPARE(peer.received().toHex(' '), "80 02 01"_ba);
}

void tst_Language::titleIsLeftAlone()
{
    ConsoleWindow console;
    QCOMPARE(console.window.windowTitle(), u"Tessaly 1.2.8.0"_s);
    for (const char *action : {"action_French", "action_English", "action_Default"}) {
        choose(console, action);
        QCOMPARE(console.window.windowTitle(), u"Tessaly 1.2.8.0"_s);
    }
    console.window.setWindowTitle(u"another title"_s);
    choose(console, "action_French");
    QCOMPARE(console.window.windowTitle(), u"another title"_s);
}

void tst_Language::firmwareNoteFollows()
{
    // Chosen in French, the note is in French. One that is missing stays so.
    ConsoleWindow console;
    choose(console, "action_French");
    console.selectModel(console.rowOfModel(modelWithoutNote));
    for (const char *action : {"action_French", "action_English", "action_French"}) {
        choose(console, action);
        QCOMPARE(console.text("label_Comments"), QString());
    }
    console.selectModel(console.rowOfModel(noteModel));
    QCOMPARE(differences(console, French), QString());
}

void tst_Language::portNumberFollowsTheNextModel()
{
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(tcpModel));
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 65079 )"_s);
    choose(console, "action_French");
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 65079 )"_s);
    console.selectModel(console.rowOfModel(onDemandModel));
    QCOMPARE(console.text("label_IP_Port"), u"( Numéro de port\u00A0: 1234 )"_s);
    choose(console, "action_English");
    QCOMPARE(console.text("label_IP_Port"), u"( Numéro de port\u00A0: 1234 )"_s);
    console.selectModel(console.rowOfModel(tcpModel));
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 65079 )"_s);
}

void tst_Language::unusableFile_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: there is no file
    QTest::addColumn<QByteArray>("earlier");

    // tst_translationfile and tst_hostilefiles have more ways to be unusable.
    const QByteArray cut = contents(frenchFile()).chopped(1);
    for (const char *earlier : {"action_English", "action_French"}) {
        QTest::addRow("missing, after %s", earlier) << QByteArray() << QByteArray(earlier);
        QTest::addRow("cut, after %s", earlier) << cut << QByteArray(earlier);
    }
}

void tst_Language::unusableFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, earlier);

    const NoteWindow console;
    const MessageBoxCatcher catcher;
    choose(console, earlier.constData());
    QCOMPARE(differences(console, earlier == "action_French" ? French : English), QString());

    const FolderOfItsOwn folder;
    if (!bytes.isNull())
        folder.write(u"LanguageData_fr.qm"_s, bytes);
    choose(console, "action_French");
    QCOMPARE(differences(console, English), QString());
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Cancel"_s);
    QCOMPARE(checkedActions(console), QByteArrayList{"action_French"_ba});
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(catcher.messages.size(), 0);
}

void tst_Language::repairedFileIsReadAgain()
{
    const NoteWindow console;
    const FolderOfItsOwn folder;
    choose(console, "action_French");
    QCOMPARE(differences(console, English), QString());
    folder.write(u"LanguageData_fr.qm"_s, contents(frenchFile()));
    choose(console, "action_French");
    QCOMPARE(differences(console, French), QString());
}

void tst_Language::lookUp_data()
{
    QTest::addColumn<QStringList>("frenchFiles");
    QTest::addColumn<QStringList>("decoyFiles");
    QTest::addColumn<QString>("connectText");

    const QString byCode = u"LanguageData_fr.qm"_s;
    const QString byTerritory = u"LanguageData_fr_FR.qm"_s;
    const QString withoutCode = u"LanguageData.qm"_s;
    QTest::newRow("language code alone")
        << QStringList{byCode} << QStringList{byTerritory} << u"Connecter"_s;
    QTest::newRow("never the territory's file")
        << QStringList() << QStringList{byTerritory} << u"Connect"_s;
    QTest::newRow("never the territory's file without suffix")
        << QStringList() << QStringList{u"LanguageData_fr_FR"_s} << u"Connect"_s;
    QTest::newRow("suffix before none")
        << QStringList{byCode} << QStringList{u"LanguageData_fr"_s} << u"Connecter"_s;
    QTest::newRow("without suffix")
        << QStringList{u"LanguageData_fr"_s} << QStringList{withoutCode} << u"Connecter"_s;
    QTest::newRow("without language code at last")
        << QStringList() << QStringList{withoutCode} << u"Decoy"_s;
    QTest::newRow("not another language")
        << QStringList() << QStringList{u"LanguageData_en.qm"_s, u"LanguageData_C.qm"_s}
        << u"Connect"_s;
    QTest::newRow("not in a folder below")
        << QStringList() << QStringList{u"translations/LanguageData_fr.qm"_s} << u"Connect"_s;
}

void tst_Language::lookUp()
{
    QFETCH(QStringList, frenchFiles);
    QFETCH(QStringList, decoyFiles);
    QFETCH(QString, connectText);

    const FolderOfItsOwn folder;
    QVERIFY(QDir(folder.path()).mkdir(u"translations"_s));
    for (const QString &name : std::as_const(frenchFiles))
        QVERIFY(QFile::copy(frenchFile(), folder.filePath(name)));
    for (const QString &name : std::as_const(decoyFiles))
        QVERIFY(QFile::copy(decoyFile(), folder.filePath(name)));

    const ConsoleWindow console;
    choose(console, "action_French");
    QCOMPARE(console.find<QPushButton>("pushButton_Connect")->text(), connectText);
}

void tst_Language::systemLanguage_data()
{
    QTest::addColumn<QByteArray>("lcAll");
    QTest::addColumn<QByteArray>("lang");
    QTest::addColumn<QString>("systemName");
    QTest::addColumn<QString>("code"); // of the language shown by default; empty: English

    const QByteArray none;
    QTest::newRow("C") << "C"_ba << none << u"C"_s << QString();
    QTest::newRow("English, which has no file")
        << "en_US.UTF-8"_ba << none << u"en_US"_s << QString();
    QTest::newRow("fr_BE") << "fr_BE.UTF-8"_ba << none << u"fr_BE"_s << u"fr"_s;
    QTest::newRow("fr_CA by LANG") << none << "fr_CA.UTF-8"_ba << u"fr_CA"_s << u"fr"_s;
    QTest::newRow("LC_ALL before LANG") << "en_GB.UTF-8"_ba
                                        << "fr_FR.UTF-8"_ba << u"en_GB"_s << QString();
    for (const QString &code : languageCodes()) {
        const QString language = languageFile(code).language;
        QTest::addRow("%s", qPrintable(code))
            << language.toLatin1() + ".UTF-8" << none << QLocale(language).name() << code;
    }
}

void tst_Language::systemLanguage()
{
    QFETCH(QByteArray, lcAll);
    QFETCH(QByteArray, lang);
    QFETCH(QString, systemName);
    QFETCH(QString, code);

    // A file of the territory is left alone.
    const FolderOfItsOwn folder;
    for (const QString &known : languageCodes()) {
        const QString name = u"LanguageData_%1.qm"_s.arg(known);
        QVERIFY(QFile::copy(programPath(name), folder.filePath(name)));
    }
    if (systemName.contains(u'_'))
        QVERIFY(QFile::copy(decoyFile(), folder.filePath(u"LanguageData_%1.qm"_s.arg(systemName))));

    // The framework reads the environment once, so that each locale needs a process of its own.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment.keys()) {
        if (variable.startsWith(u"LC_"_s) || variable.startsWith(u"LANG"_s))
            environment.remove(variable);
    }
    environment.insert(QLatin1StringView(childVariable), u"1"_s);
    if (!lcAll.isNull())
        environment.insert(u"LC_ALL"_s, QString::fromLatin1(lcAll));
    if (!lang.isNull())
        environment.insert(u"LANG"_s, QString::fromLatin1(lang));
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setWorkingDirectory(folder.path());
    child.start(QCoreApplication::applicationFilePath(), {runningTest()});
    QVERIFY2(child.waitForFinished(60'000), qPrintable(child.errorString()));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);

    QString connectText = u"Connect"_s;
    QString aboutText = u"&About"_s;
    if (!code.isEmpty()) {
        connectText = languageFile(code).translated(u"MainWindow"_s, connectText);
        aboutText = languageFile(code).translated(u"MainWindow"_s, aboutText);
    }
    const QStringList expected
        = {systemName,  u"action_Default"_s, connectText, aboutText + u" Tessaly"_s,
           connectText, u"Connecter"_s,      connectText};
    QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()).trimmed().split(u'\n'), expected);
}

/// The part of the child: the system's locale, the checked action, the texts of Connect and About
/// at the start, then that of Connect by default again, in French, and by default.
static int printTexts()
{
    const ConsoleWindow console;
    const auto *connectButton = console.find<QPushButton>("pushButton_Connect");
    QStringList lines
        = {QLocale::system().name(), QString::fromLatin1(checkedActions(console).join(',')),
           connectButton->text(), console.find<QAction>("action_About")->text()};
    for (const char *action : {"action_Default", "action_French", "action_Default"}) {
        choose(console, action);
        lines.append(connectButton->text());
    }
    std::puts(lines.join(u'\n').toUtf8().constData());
    return 0;
}

void tst_Language::contextMenu()
{
    const ConsoleWindow console;
    auto *edit = console.find<QTextEdit>("textEdit_Data");
    const auto texts = [edit] {
        const std::unique_ptr<QMenu> menu(edit->createStandardContextMenu());
        QStringList result;
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator())
                result.append(action->text());
        }
        return result;
    };
    // A read-only text offers nothing that would change it.
    const QStringList english = {u"&Copy\tCtrl+C"_s, u"Select All\tCtrl+A"_s};
    QCOMPARE(texts(), english);
    choose(console, "action_French");
    QCOMPARE(texts(), QStringList({u"Cop&ier\tCtrl+C"_s, u"Tout sélectionner\tCtrl+A"_s}));
    choose(console, "action_English");
    QCOMPARE(texts(), english);
}

void tst_Language::messageBox()
{
    ConsoleWindow console;
    auto *ports = console.find<QComboBox>("comboBox_Port");
    ports->addItem(absentPort());
    ports->setCurrentIndex(ports->count() - 1);

    QList<QStringList> said;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&said] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        QAbstractButton *ok = box->button(QMessageBox::Ok);
        said.append({box->windowTitle(), box->text(), ok->text()});
        ok->click();
    });
    timer.start(5ms);

    choose(console, "action_French");
    console.click("pushButton_Connect");
    choose(console, "action_English");
    console.click("pushButton_Connect");
    QCOMPARE(said.size(), 2);
    QCOMPARE(said.at(0), QStringList({u"Erreur de port série"_s,
                                      u"Une erreur s’est produite sur le port série\u00A0!\n"
                                      u"Erreur\u00A0: périphérique introuvable."_s,
                                      u"OK"_s}));
    QCOMPARE(said.at(1), QStringList({u"Serial port error"_s,
                                      u"An error on the serial port has occurred!\n"
                                      u"Device not found error."_s,
                                      u"OK"_s}));
}

namespace {

int runLanguageTest(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet(childVariable))
        return runWindowTest<tst_Language>(argc, argv);
    const QByteArray locale = qgetenv("LC_ALL");
    prepareTestEnvironment();
    qputenv("LC_ALL", locale);
    const QApplication application(argc, argv);
    return printTexts();
}

} // namespace

TESSALY_REGISTER_TEST(tst_Language, runLanguageTest)

#include "tst_language.moc"
