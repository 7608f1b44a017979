// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/folders.h"
#include "tests/support/languagefiles.h"
#include "tests/support/testmain.h"
#include "tests/support/translatedwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The built file of a language.
QString qmPath(const QString &code)
{
    return programPath(u"LanguageData_%1.qm"_s.arg(code));
}

QString match(const QString &pattern, const QString &text)
{
    return QRegularExpression(pattern).match(text).captured();
}

/// Every text of the window by the name of its object and its kind: "label_Port text". Menus and
/// actions have none of the other kinds; what they show as a tip is their text.
QMap<QString, QString> textsOf(const ConsoleWindow &console)
{
    QMap<QString, QString> texts;
    for (const QObject *object : console.window.findChildren<QObject *>()) {
        const QString name = object->objectName();
        if (name.isEmpty() || name.startsWith("qt_"_L1))
            continue;
        const auto insert = [&](const QString &kind, const QString &text) {
            if (!text.isEmpty())
                texts.insert(name + u' ' + kind, text);
        };
        if (const auto *widget = qobject_cast<const QWidget *>(object)) {
            insert(u"tip"_s, widget->toolTip());
            insert(u"accessible name"_s, widget->accessibleName());
            insert(u"accessible description"_s, widget->accessibleDescription());
        }
        if (const auto *label = qobject_cast<const QLabel *>(object))
            insert(u"text"_s, label->text());
        else if (const auto *button = qobject_cast<const QAbstractButton *>(object))
            insert(u"text"_s, button->text());
        else if (const auto *action = qobject_cast<const QAction *>(object))
            insert(u"text"_s, action->text());
        else if (const auto *menu = qobject_cast<const QMenu *>(object))
            insert(u"text"_s, menu->title());
    }
    return texts;
}

/// The text as the window shows it in a language. Pieces that are joined with other texts are
/// translated one by one.
QString translated(QString text, const LanguageFile &file)
{
    QString whole = file.translated(u"MainWindow"_s, text);
    if (!whole.isEmpty())
        return whole;
    for (const QString &piece :
         {u"&About"_s, u"Port number: "_s,
          u"All commands present in this model can be executed for devices with firmware "_s,
          u" or higher. If the device embed a lower firmware version, some commands may not be "
          u"executed. Refer to the release notes of this application for more information."_s}) {
        text.replace(piece, file.translated(u"MainWindow"_s, piece));
    }
    return text;
}

void addLanguageRows()
{
    QTest::addColumn<QString>("code");
    for (const QString &code : languageCodes())
        QTest::newRow(qPrintable(code)) << code;
}

QChar accelerator(const QString &text)
{
    static const QRegularExpression marked(u"&([^&])"_s);
    const QString letter = marked.match(QString(text).remove(u"&&"_s)).captured(1);
    return letter.isEmpty() ? QChar() : letter.front().toLower();
}

bool endsWithSign(const QString &text)
{
    const QString trimmed = text.trimmed();
    return !trimmed.isEmpty() && trimmed.back().isPunct();
}

/// What is wrong with a translation; empty when nothing is.
QString flawOf(const TranslatedText &text, const QString &code)
{
    const QString &source = text.source;
    const QString &translation = text.translation;
    // Pieces are joined as they stand.
    if (match(u"^\\s*"_s, translation) != match(u"^\\s*"_s, source))
        return u"begins with other spaces"_s;
    if (match(u"\\s*$"_s, translation) != match(u"\\s*$"_s, source))
        return u"ends with other spaces"_s;
    if (endsWithSign(translation) != endsWithSign(source))
        return u"ends with a sign, or the other text does"_s;
    for (const QString &part : {u"..."_s, u"&"_s, u"%"_s, u"\n"_s, u"<"_s, u">"_s}) {
        if (translation.count(part) != source.count(part))
            return u"has another number of \"%1\""_s.arg(part);
    }
    if (accelerator(translation).isNull() != accelerator(source).isNull())
        return u"marks a letter, or the other text does"_s;

    // French sets a no-break space before these signs, the others none; Spanish opens a sentence
    // with them.
    static const QRegularExpression bareSign(u"[^\u00A0][:;!?]"_s);
    static const QRegularExpression spaceBeforeSign(u"[\\s\u00A0][:;!?]"_s);
    if ((code == u"fr"_s ? bareSign : spaceBeforeSign).match(translation).hasMatch())
        return u"has the wrong space before a sign"_s;
    if (translation.count(u'¡') != (code == u"es"_s ? translation.count(u'!') : 0)
        || translation.count(u'¿') != (code == u"es"_s ? translation.count(u'?') : 0))
        return u"opens a sentence wrongly"_s;
    if (translation.contains(u'\''))
        return u"has a straight apostrophe"_s;
    return {};
}

} // namespace

/// What holds for every language, whichever there are.
class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void head_data() { addLanguageRows(); }
    void head();
    void complete_data() { addLanguageRows(); }
    void complete();
    void updateChangesNothing_data() { addLanguageRows(); }
    void updateChangesNothing();
    void texts_data() { addLanguageRows(); }
    void texts();
    void built_data() { addLanguageRows(); }
    void built();
    void accelerators_data();
    void accelerators();
    void windowTexts_data() { addLanguageRows(); }
    void windowTexts();
    void frameworkTexts_data() { addLanguageRows(); }
    void frameworkTexts();
    void french();

private:
    QTemporaryDir m_copy; ///< of the sources, with the languages as the update command leaves them
};

void tst_Translations::initTestCase()
{
    QVERIFY(languageCodes().contains(u"fr"_s));
    // The command itself, on a copy of all that it reads and writes: no list of its options here
    // can differ from it.
    for (const QString &folder : {u"app"_s, u"catalogue"_s, u"link"_s, u"protocol"_s, u"ui"_s,
                                  u"scripts"_s, u"translations"_s}) {
        std::filesystem::copy(sourcePath(folder).toStdString(),
                              m_copy.filePath(folder).toStdString(),
                              std::filesystem::copy_options::recursive);
    }
    // Only the installation of packages is left out: a test installs nothing.
    QFile setup(m_copy.filePath(u"scripts/setup"_s));
    QVERIFY(setup.open(QIODevice::WriteOnly | QIODevice::Truncate));
    setup.write("#!/bin/sh\n");
    setup.close();

    QProcess update;
    update.setProcessChannelMode(QProcess::MergedChannels);
    update.start(m_copy.filePath(u"scripts/translate"_s), QStringList());
    QVERIFY2(update.waitForFinished(120'000), qPrintable(update.errorString()));
    const QByteArray output = update.readAll();
    QVERIFY2(update.exitStatus() == QProcess::NormalExit && update.exitCode() == 0,
             output.constData());
}

/// By it, the build finds Qt's own texts.
void tst_Translations::head()
{
    QFETCH(const QString, code);
    QCOMPARE(languageFile(code).language.section(u'_', 0, 0), code);
}

void tst_Translations::complete()
{
    QFETCH(const QString, code);
    QStringList missing;
    for (const TranslatedText &text :
         readLanguageFile(m_copy.filePath(languageFileName(code))).texts) {
        if (!text.state.isEmpty() || text.translation.isEmpty())
            missing.append(text.key());
    }
    QCOMPARE(missing, QStringList());
}

/// So there are no texts that the program does not have, and no line numbers.
void tst_Translations::updateChangesNothing()
{
    QFETCH(const QString, code);
    QFile kept(sourcePath(languageFileName(code)));
    QFile updated(m_copy.filePath(languageFileName(code)));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QVERIFY(updated.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll().split('\n'), updated.readAll().split('\n'));
}

void tst_Translations::texts()
{
    QFETCH(const QString, code);
    QStringList flaws;
    for (const TranslatedText &text : languageFile(code).texts) {
        const QString flaw = flawOf(text, code);
        if (!flaw.isEmpty())
            flaws.append(u"\"%1\" for \"%2\": %3"_s.arg(text.translation, text.source, flaw));
    }
    QVERIFY2(flaws.isEmpty(), qPrintable(flaws.join(u'\n')));
}

void tst_Translations::built()
{
    QFETCH(const QString, code);
    QTranslator compiled;
    QVERIFY(compiled.load(qmPath(code)));
    for (const TranslatedText &text : languageFile(code).texts) {
        QCOMPARE(
            compiled.translate(text.context.toUtf8().constData(), text.source.toUtf8().constData()),
            text.translation);
    }
}

void tst_Translations::accelerators_data()
{
    addLanguageRows();
    QTest::newRow("English") << QString();
}

/// No letter is marked twice in the menu bar or in a menu.
void tst_Translations::accelerators()
{
    QFETCH(const QString, code);
    const TranslatedWindow translated(code);
    const ConsoleWindow &console = translated.console;

    const auto isUnique = [](const QList<QAction *> &actions) {
        QSet<QChar> letters;
        for (const QAction *action : actions) {
            const QChar letter = accelerator(action->text());
            if (!letter.isNull() && letters.contains(letter))
                return false;
            letters.insert(letter);
        }
        return true;
    };
    const QList<QAction *> titles = console.find<QMenuBar>("menuBar")->actions();
    QVERIFY(isUnique(titles));
    for (const QAction *title : titles) {
        QVERIFY2(!accelerator(title->text()).isNull(), qPrintable(title->text()));
        QVERIFY2(isUnique(title->menu()->actions()), qPrintable(title->text()));
    }
    // Alt with a letter of the menu bar must reach the menu bar alone.
    for (const auto *button : console.window.findChildren<QAbstractButton *>())
        QVERIFY2(accelerator(button->text()).isNull(), qPrintable(button->objectName()));
}

/// The window shows each of its texts in the language, the parts of the firmware note and of the
/// port number, too.
void tst_Translations::windowTexts()
{
    QFETCH(const QString, code);
    const LanguageFile file = languageFile(code);
    const auto select = [](ConsoleWindow &console) {
        console.selectModel(console.rowOfModel(tcpModel));
        return textsOf(console);
    };
    QMap<QString, QString> english;
    {
        TranslatedWindow builtIn{QString()};
        english = select(builtIn.console);
    }
    QVERIFY(english.value(u"label_Comments text"_s).contains(u"firmware"_s));
    TranslatedWindow window(code);
    const QMap<QString, QString> shown = select(window.console);

    QCOMPARE(shown.keys(), english.keys());
    QStringList differences;
    for (const auto &[name, text] : english.asKeyValueRange()) {
        const QString expected = translated(text, file);
        if (shown.value(name) != expected)
            differences.append(
                u"%1: \"%2\" instead of \"%3\""_s.arg(name, shown.value(name), expected));
    }
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join(u'\n')));
    // The key of the shortcut is Qt's own text.
    QTranslator compiled;
    QVERIFY(compiled.load(qmPath(code)));
    QCOMPARE(
        window.console.find<QAction>("action_Exit")->shortcut().toString(QKeySequence::NativeText),
        compiled.translate("QShortcut", "Ctrl") + u"+Q"_s);
}

/// What a user of this program can see of Qt: message boxes, context menus of texts, boxes and
/// scroll bars, keys in menus, and what a link reports.
void tst_Translations::frameworkTexts()
{
    QFETCH(const QString, code);
    const QList<std::pair<const char *, const char *>> seen = {
        {"QPlatformTheme", "OK"},
        {"QPlatformTheme", "Cancel"},
        {"QWidgetTextControl", "&Copy"},
        {"QWidgetTextControl", "Copy &Link Location"},
        {"QWidgetTextControl", "Select All"},
        {"QLineEdit", "&Undo"},
        {"QLineEdit", "&Redo"},
        {"QLineEdit", "Cu&t"},
        {"QLineEdit", "&Copy"},
        {"QLineEdit", "&Paste"},
        {"QLineEdit", "Delete"},
        {"QLineEdit", "Select All"},
        {"QAbstractSpinBox", "&Select All"},
        {"QAbstractSpinBox", "&Step up"},
        {"QAbstractSpinBox", "Step &down"},
        {"QScrollBar", "Scroll here"},
        {"QScrollBar", "Top"},
        {"QScrollBar", "Bottom"},
        {"QScrollBar", "Page up"},
        {"QScrollBar", "Page down"},
        {"QScrollBar", "Scroll up"},
        {"QScrollBar", "Scroll down"},
        {"QShortcut", "Ctrl"},
        {"QAbstractSocket", "Host not found"},
        {"QAbstractSocket", "Connection refused"},
        {"QAbstractSocket", "Connection timed out"},
        {"QAbstractSocket", "Socket operation timed out"},
        {"QAbstractSocket", "Network unreachable"},
        {"QNativeSocketEngine", "Network operation timed out"},
        {"QNativeSocketEngine", "Host unreachable"},
        {"QNativeSocketEngine", "Network unreachable"},
        {"QNativeSocketEngine", "Permission denied"},
        {"QNativeSocketEngine", "Connection timed out"},
        {"QNativeSocketEngine", "Connection refused"},
        {"QNativeSocketEngine", "The remote host closed the connection"},
        {"QNativeSocketEngine", "Network error"},
        {"QNativeSocketEngine", "Unknown error"},
    };
    QTranslator compiled;
    QVERIFY(compiled.load(qmPath(code)));
    // By itself, QTranslator leaves the country out when there is no file of it.
    QTranslator qt;
    QVERIFY(qt.load(u"qtbase_"_s + languageFile(code).language,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    for (const auto &[context, source] : seen) {
        const QString text = compiled.translate(context, source);
        QVERIFY2(!text.isEmpty(), source);
        QCOMPARE(text, qt.translate(context, source));
    }
    QVERIFY(compiled.translate("QPlatformTheme", "Cancel") != u"Cancel"_s);
}

/// One language as its users read it.
void tst_Translations::french()
{
    TranslatedWindow translated(u"fr"_s);
    ConsoleWindow &console = translated.console;
    console.selectModel(console.rowOfModel(onDemandModel));
    QCOMPARE(
        QStringList({console.find<QMenu>("menu_File")->title(),
                     console.find<QMenu>("menu_Help")->title(),
                     console.find<QAction>("action_Exit")->text(),
                     console.find<QAction>("action_About")->text(),
                     console.find<QAbstractButton>("pushButton_Connect")->text(),
                     console.find<QAbstractButton>("pushButton_Disconnect")->text(),
                     console.find<QAbstractButton>("radioButton_Data_Dec")->text(),
                     console.text("label_Sent"), console.text("label_Folder"),
                     console.text("label_Connection_Message"), console.text("label_IP_Port")}),
        QStringList({u"&Fichier"_s, u"&Aide"_s, u"&Quitter"_s, u"À &propos de Tessaly"_s,
                     u"Connecter"_s, u"Déconnecter"_s, u"Décimal"_s, u"Octets envoyés\u00A0:"_s,
                     u"Dossier n°\u00A0:"_s, u"Connexion au lecteur... Veuillez patienter."_s,
                     u"( Numéro de port\u00A0: 1234 )"_s}));

    const QList<std::pair<const char *, QString>> qtTexts = {
        {"QPlatformTheme/OK", u"OK"_s},
        {"QPlatformTheme/Cancel", u"Annuler"_s},
        {"QWidgetTextControl/&Copy", u"Cop&ier"_s},
        {"QAbstractSpinBox/&Select All", u"Tout &sélectionner"_s},
        {"QAbstractSocket/Connection refused", u"Connexion refusée"_s},
    };
    for (const auto &[key, text] : qtTexts) {
        const QByteArrayList parts = QByteArray(key).split('/');
        QCOMPARE(QCoreApplication::translate(parts.at(0).constData(), parts.at(1).constData()),
                 text);
    }
}

TESSALY_WINDOW_TEST(tst_Translations)
#include "tst_translations.moc"
