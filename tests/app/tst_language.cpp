// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/ptypeer.h"
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

struct GoldenText
{
    QByteArray widget; ///< "-" for a text that no widget of the form shows
    QString texts[2];  ///< by Language
};

QList<GoldenText> goldenTexts()
{
    QFile file(sourcePath(u"tests/app/golden/languages.txt"_s));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    const auto unquoted = [](QStringView cell) {
        return cell.trimmed().sliced(1).chopped(1).toString().replace(u'~', QChar::Nbsp);
    };
    QList<GoldenText> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QList<QStringView> cells = QStringView(line).split(u'|');
        if (!line.startsWith(u'#') && cells.size() == 3)
            rows.append({cells[0].trimmed().toLatin1(), {unquoted(cells[1]), unquoted(cells[2])}});
    }
    return rows;
}

/// Texts of all labels, buttons, actions and menus of the form that have one, by object name.
QMap<QByteArray, QString> shownTexts(const ConsoleWindow &console)
{
    QMap<QByteArray, QString> texts;
    for (const QObject *object : console.window.findChildren<QObject *>()) {
        QString text;
        if (auto *label = qobject_cast<const QLabel *>(object))
            text = label->text();
        else if (auto *button = qobject_cast<const QAbstractButton *>(object))
            text = button->text();
        else if (auto *action = qobject_cast<const QAction *>(object))
            text = action->text();
        else if (auto *menu = qobject_cast<const QMenu *>(object))
            text = menu->title();
        const QByteArray name = object->objectName().toLatin1();
        if (!text.isEmpty() && !name.isEmpty() && !name.startsWith("qt_"))
            texts.insert(name, text);
    }
    return texts;
}

/// What differs between the window with its first model and the golden texts; empty when nothing
/// does. The port number is left out: it is written when a model is chosen, not with the language.
QString differences(const ConsoleWindow &console, Language language)
{
    QStringList lines;
    QMap<QByteArray, QString> shown = shownTexts(console);
    shown.remove("label_IP_Port"_ba);
    for (const GoldenText &golden : goldenTexts()) {
        const bool ofForm = golden.widget != "-";
        const QString actual = ofForm ? shown.take(golden.widget)
                                      : QCoreApplication::translate(
                                          "MainWindow", golden.texts[English].toUtf8().constData());
        if (actual != golden.texts[language])
            lines.append(u"%1: \"%2\" instead of \"%3\""_s.arg(QString::fromLatin1(golden.widget),
                                                               actual, golden.texts[language]));
    }
    for (const auto &[name, text] : shown.asKeyValueRange())
        lines.append(u"%1: \"%2\" instead of no text"_s.arg(QString::fromLatin1(name), text));
    return lines.join(u'\n');
}

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

QByteArray damaged(QByteArray bytes, qsizetype from, qsizetype step)
{
    for (qsizetype i = from; i < bytes.size(); i += step)
        bytes[i] = static_cast<char>(~bytes.at(i));
    return bytes;
}

constexpr char16_t noteEnglish[]
    = u"All commands present in this model can be executed for devices with firmware AP 1.11 / MCU "
      u"1.05 or higher. If the device embed a lower firmware version, some commands may not be "
      u"executed. Refer to the release notes of this application for more information.";
constexpr char16_t noteFrench[]
    = u"Toutes les commandes présentes dans ce modèle peuvent être exécutées par les appareils "
      u"équipés du firmware AP 1.11 / MCU 1.05 ou d’une version ultérieure. Si l’appareil embarque "
      u"une version de "
      u"firmware inférieure, certaines commandes pourront ne pas être exécutées. Reportez-vous aux "
      u"notes de version de cette application pour plus d’informations.";

} // namespace

class tst_Language : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void formTexts();
    void switches_data();
    void switches();
    void aboutTextIsExtendedOnceAfterEachSwitch();
    void triggeringTheCheckedLanguageChangesNothing_data();
    void triggeringTheCheckedLanguageChangesNothing();
    void windowIsLeftAlone_data();
    void windowIsLeftAlone();
    void openLinkIsLeftAlone();
    void titleIsLeftAlone();
    void firmwareNoteFollows();
    void missingFirmwareNoteStaysMissing();
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
    void standardButtons();
};

void tst_Language::initTestCase()
{
    QVERIFY(QDir::setCurrent(programFolder()));
    QVERIFY2(QFile::exists(frenchFile()), qPrintable(frenchFile()));
    QVERIFY2(QFile::exists(decoyFile()), qPrintable(decoyFile()));
    QVERIFY(goldenTexts().size() > 70);
}

void tst_Language::cleanup()
{
    QCoreApplication::removeTranslator(translator);
    QVERIFY(QDir::setCurrent(programFolder()));
}

void tst_Language::formTexts()
{
    const ConsoleWindow console;
    QCOMPARE(differences(console, English), QString());
    choose(console, "action_French");
    QCOMPARE(differences(console, French), QString());
    choose(console, "action_English");
    QCOMPARE(differences(console, English), QString());
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

    const ConsoleWindow console;
    QCOMPARE(checkedActions(console), QByteArrayList{"action_Default"_ba});
    for (const QByteArray &action : actions) {
        choose(console, action.constData());
        QCOMPARE(checkedActions(console), QByteArrayList{action});
    }
    QCOMPARE(differences(console, Language(language)), QString());
}

void tst_Language::aboutTextIsExtendedOnceAfterEachSwitch()
{
    const ConsoleWindow console;
    const auto *about = console.find<QAction>("action_About");
    QCOMPARE(about->text(), u"&About Tessaly"_s);
    for (int round = 0; round < 3; ++round) {
        choose(console, "action_French");
        QCOMPARE(about->text(), u"À &propos de Tessaly"_s);
        choose(console, "action_French");
        QCOMPARE(about->text(), u"À &propos de Tessaly"_s);
        choose(console, "action_English");
        QCOMPARE(about->text(), u"&About Tessaly"_s);
        choose(console, "action_Default");
        QCOMPARE(about->text(), u"&About Tessaly"_s);
    }
}

void tst_Language::triggeringTheCheckedLanguageChangesNothing_data()
{
    QTest::addColumn<QByteArray>("action");
    for (const char *action : {"action_Default", "action_English", "action_French"})
        QTest::newRow(action) << QByteArray(action);
}

void tst_Language::triggeringTheCheckedLanguageChangesNothing()
{
    QFETCH(QByteArray, action);

    const ConsoleWindow console;
    choose(console, action.constData());
    const QStringList state = stateWithoutTexts(console);
    const QMap<QByteArray, QString> texts = shownTexts(console);
    choose(console, action.constData());
    QCOMPARE(checkedActions(console), QByteArrayList{action});
    QCOMPARE(stateWithoutTexts(console), state);
    QCOMPARE(shownTexts(console), texts);
}

void tst_Language::windowIsLeftAlone_data()
{
    QTest::addColumn<int>("row");
    const ConsoleWindow console;
    const auto *models = console.find<QComboBox>("comboBox_Player");
    QCOMPARE(models->count(), deviceCatalogue.size());
    for (int row = 0; row < models->count(); ++row)
        QTest::newRow(qPrintable(models->itemText(row))) << row;
}

void tst_Language::windowIsLeftAlone()
{
    QFETCH(int, row);

    ConsoleWindow console;
    auto *ports = console.find<QComboBox>("comboBox_Port");
    ports->addItems({u"first"_s, u"second"_s, u"third"_s});
    console.selectModel(row);
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
         {"action_French", "action_English", "action_French", "action_Default"}) {
        choose(console, action);
        QCOMPARE(stateWithoutTexts(console), before);
    }
    QCOMPARE(console.find<QComboBox>("comboBox_Player")->currentIndex(), row);
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
    ConsoleWindow console;
    console.selectModel(10); // HV1xx (Serial) (legacy)
    QCOMPARE(console.text("label_Comments"), QString::fromUtf16(noteEnglish));
    choose(console, "action_French");
    QCOMPARE(console.text("label_Comments"), QString::fromUtf16(noteFrench));
    choose(console, "action_English");
    QCOMPARE(console.text("label_Comments"), QString::fromUtf16(noteEnglish));

    choose(console, "action_French");
    console.selectModel(0);
    console.selectModel(11); // HV1xx (TCP/IP) (legacy)
    QCOMPARE(console.text("label_Comments"), QString::fromUtf16(noteFrench));
}

void tst_Language::missingFirmwareNoteStaysMissing()
{
    ConsoleWindow console;
    console.selectModel(4); // Ampra One names no firmware version
    for (const char *action : {"action_French", "action_English"}) {
        choose(console, action);
        QCOMPARE(console.text("label_Comments"), QString());
    }
}

void tst_Language::portNumberFollowsTheNextModel()
{
    ConsoleWindow console;
    const int sv500 = 3;
    const int sonet = 7;
    console.selectModel(sv500);
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 65079 )"_s);
    choose(console, "action_French");
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 65079 )"_s);
    console.selectModel(sonet);
    QCOMPARE(console.text("label_IP_Port"), u"( Numéro de port\u00A0: 1234 )"_s);
    choose(console, "action_English");
    QCOMPARE(console.text("label_IP_Port"), u"( Numéro de port\u00A0: 1234 )"_s);
    console.selectModel(sv500);
    QCOMPARE(console.text("label_IP_Port"), u"( Port number: 65079 )"_s);
}

void tst_Language::unusableFile_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: there is no file
    QTest::addColumn<QByteArray>("earlier");

    const QByteArray whole = contents(frenchFile());
    const QList<std::pair<const char *, QByteArray>> files = {
        {"missing", QByteArray()},
        {"empty", ""_ba},
        {"one byte", whole.first(1)},
        {"file head alone", whole.first(16)},
        {"cut in the middle", whole.first(whole.size() / 2)},
        {"without the last byte", whole.chopped(1)},
        {"wrong head", damaged(whole.first(16), 0, 1) + whole.sliced(16)},
        {"nothing right behind the head", whole.first(16) + damaged(whole.sliced(16), 0, 1)},
        {"text", "<?xml version=\"1.0\"?><TS></TS>\n"_ba},
    };
    for (const auto &[name, bytes] : files) {
        QTest::addRow("%s, after English", name) << bytes << "action_English"_ba;
        QTest::addRow("%s, after French", name) << bytes << "action_French"_ba;
    }
}

void tst_Language::unusableFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, earlier);

    const ConsoleWindow console;
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
    const ConsoleWindow console;
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
    QTest::addColumn<QString>("connectText");
    QTest::addColumn<QString>("aboutText");

    const QString about = u"&About Tessaly"_s;
    const QString aPropos = u"À &propos de Tessaly"_s;
    const QByteArray none;
    QTest::newRow("C") << "C"_ba << none << u"C"_s << u"Connect"_s << about;
    QTest::newRow("C.UTF-8") << "C.UTF-8"_ba << none << u"C"_s << u"Connect"_s << about;
    QTest::newRow("fr_FR") << "fr_FR.UTF-8"_ba << none << u"fr_FR"_s << u"Connecter"_s << aPropos;
    QTest::newRow("fr_BE") << "fr_BE.UTF-8"_ba << none << u"fr_BE"_s << u"Connecter"_s << aPropos;
    QTest::newRow("fr_CA by LANG")
        << none << "fr_CA.UTF-8"_ba << u"fr_CA"_s << u"Connecter"_s << aPropos;
    QTest::newRow("LC_ALL before LANG") << "en_GB.UTF-8"_ba
                                        << "fr_FR.UTF-8"_ba << u"en_GB"_s << u"Connect"_s << about;
    QTest::newRow("de_DE") << "de_DE.UTF-8"_ba << none << u"de_DE"_s << u"Verbinden"_s
                           << u"Ü&ber Tessaly"_s;
    QTest::newRow("de_AT") << "de_AT.UTF-8"_ba << none << u"de_AT"_s << u"Verbinden"_s
                           << u"Ü&ber Tessaly"_s;
    QTest::newRow("es_MX") << "es_MX.UTF-8"_ba << none << u"es_MX"_s << u"Conectar"_s
                           << u"&Acerca de Tessaly"_s;
    QTest::newRow("it_CH") << "it_CH.UTF-8"_ba << none << u"it_CH"_s << u"Connetti"_s
                           << u"&Informazioni su Tessaly"_s;
    QTest::newRow("nl_BE") << "nl_BE.UTF-8"_ba << none << u"nl_BE"_s << u"Verbinden"_s
                           << u"&Over Tessaly"_s;
    QTest::newRow("pt_BR") << "pt_BR.UTF-8"_ba << none << u"pt_BR"_s << u"Conectar"_s
                           << u"S&obre Tessaly"_s;
    QTest::newRow("pt_PT by LANG")
        << none << "pt_PT.UTF-8"_ba << u"pt_PT"_s << u"Conectar"_s << u"S&obre Tessaly"_s;
    QTest::newRow("no file: sv_SE")
        << "sv_SE.UTF-8"_ba << none << u"sv_SE"_s << u"Connect"_s << about;
    QTest::newRow("English file: en_US")
        << "en_US.UTF-8"_ba << none << u"en_US"_s << u"Connect"_s << about;
}

void tst_Language::systemLanguage()
{
    QFETCH(QByteArray, lcAll);
    QFETCH(QByteArray, lang);
    QFETCH(QString, systemName);
    QFETCH(QString, connectText);
    QFETCH(QString, aboutText);

    const FolderOfItsOwn folder;
    for (const char *code : {"de", "es", "fr", "it", "nl", "pt"}) {
        const QString name = u"LanguageData_"_s + QString::fromLatin1(code) + u".qm"_s;
        QVERIFY(QFile::copy(programFolder() + u'/' + name, folder.filePath(name)));
    }
    for (const char *territory : {"de_AT", "de_DE", "en_GB", "en_US", "es_MX", "fr_BE", "fr_CA",
                                  "fr_FR", "it_CH", "nl_BE", "pt_BR", "pt_PT", "sv_SE"}) {
        QVERIFY(QFile::copy(
            decoyFile(),
            folder.filePath(u"LanguageData_"_s + QString::fromLatin1(territory) + u".qm"_s)));
    }

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
    QVERIFY2(child.waitForFinished(), qPrintable(child.errorString()));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);

    const QStringList expected = {systemName,  u"action_Default"_s, connectText, aboutText,
                                  connectText, u"Connecter"_s,      connectText};
    QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()).trimmed().split(u'\n'), expected);
}

/// The child's part: the system's locale, the checked action, the texts of Connect and About at the
/// start, then that of Connect by default again, in French, and by default.
static int sayTexts()
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
    ports->addItem(u"/dev/no-such-port"_s);
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

void tst_Language::standardButtons()
{
    // OK reads the same in both languages; its neighbours show whose texts are in effect.
    const ConsoleWindow console;
    const auto texts = [] {
        const QMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                              QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::Yes
                                  | QMessageBox::Close);
        return QStringList{
            box.button(QMessageBox::Ok)->text(), box.button(QMessageBox::Cancel)->text(),
            box.button(QMessageBox::Yes)->text(), box.button(QMessageBox::Close)->text()};
    };
    const QStringList english = {u"OK"_s, u"Cancel"_s, u"&Yes"_s, u"Close"_s};
    QCOMPARE(texts(), english);
    choose(console, "action_French");
    QCOMPARE(texts(), QStringList({u"OK"_s, u"Annuler"_s, u"&Oui"_s, u"Fermer"_s}));
    choose(console, "action_English");
    QCOMPARE(texts(), english);
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
    return sayTexts();
}

} // namespace

TESSALY_REGISTER_TEST(tst_Language, runLanguageTest)

#include "tst_language.moc"
