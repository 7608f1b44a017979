// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"
#include "tests/support/testmain.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

QString sourceFolder()
{
    return sourcePath(u"."_s);
}

QString programFolder()
{
    return programPath(u"."_s);
}
const QStringList languageCodes = {u"de"_s, u"es"_s, u"fr"_s, u"it"_s, u"nl"_s, u"pt"_s};

/// Below the source folder.
QString tsPath(const QString &code)
{
    return u"translations/LanguageData_"_s + code + u".ts"_s;
}

QString qmPath(const QString &code)
{
    return programFolder() + u"/LanguageData_"_s + code + u".qm"_s;
}

struct Message
{
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString state; ///< "unfinished", "vanished", "obsolete"; empty when all is well

    QString key() const
    {
        return context + u": "_s + source + (comment.isEmpty() ? u""_s : u" ["_s + comment + u']');
    }
};

struct TsFile
{
    QList<Message> messages;
    QStringList elements; ///< names of all elements, in order
    QString language;
    QString error;
};

TsFile readTs(const QString &path)
{
    TsFile ts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ts.error = file.errorString();
        return ts;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString element = xml.name().toString();
        ts.elements.append(element);
        if (element == "TS"_L1) {
            ts.language = xml.attributes().value("language"_L1).toString();
        } else if (element == "name"_L1) {
            context = xml.readElementText();
        } else if (element == "message"_L1) {
            ts.messages.append({context, {}, {}, {}, {}});
        } else if (element == "source"_L1) {
            ts.messages.last().source = xml.readElementText();
        } else if (element == "comment"_L1) {
            ts.messages.last().comment = xml.readElementText();
        } else if (element == "translation"_L1) {
            ts.messages.last().state = xml.attributes().value("type"_L1).toString();
            ts.messages.last().translation
                = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    if (xml.hasError())
        ts.error = xml.errorString();
    return ts;
}

void copyFolder(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    for (const QFileInfo &entry :
         QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString target = to + u'/' + entry.fileName();
        if (entry.isDir())
            copyFolder(entry.filePath(), target);
        else if (!QFile::copy(entry.filePath(), target))
            qFatal("cannot copy %s", qPrintable(entry.filePath()));
    }
}

QString match(const QString &pattern, const QString &text)
{
    return QRegularExpression(pattern).match(text).captured();
}

/// The real window in any language: the menu names French alone, so the language's file takes the
/// place of the French one for as long as this lives. Empty: the built-in texts.
class TranslatedWindow
{
public:
    explicit TranslatedWindow(const QString &code)
    {
        if (!code.isEmpty()
            && !QFile::copy(qmPath(code), m_folder.filePath(u"LanguageData_fr.qm"_s)))
            qFatal("cannot copy %s", qPrintable(qmPath(code)));
        QDir::setCurrent(m_folder.path());
        console.find<QAction>("action_French")->trigger();
    }
    ~TranslatedWindow()
    {
        console.find<QAction>("action_English")->trigger();
        QDir::setCurrent(programFolder());
    }
    Q_DISABLE_COPY_MOVE(TranslatedWindow)

    ConsoleWindow console;

private:
    QTemporaryDir m_folder;
};

void addLanguageRows()
{
    QTest::addColumn<QString>("code");
    for (const QString &code : languageCodes)
        QTest::newRow(qPrintable(code)) << code;
}

QChar accelerator(const QString &text)
{
    static const QRegularExpression marked(u"&([^&])"_s);
    const QString letter = marked.match(QString(text).remove(u"&&"_s)).captured(1);
    return letter.isEmpty() ? QChar() : letter.front().toLower();
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyLanguageIsBuilt();
    void fileIsWellFormed_data();
    void fileIsWellFormed();
    void everythingIsTranslated_data();
    void everythingIsTranslated();
    void nothingButTheProgramsTexts_data();
    void nothingButTheProgramsTexts();
    void updateChangesNothing_data();
    void updateChangesNothing();
    void noLocations_data();
    void noLocations();
    void translations_data();
    void translations();
    void accelerators_data();
    void accelerators();
    void windowTexts_data();
    void windowTexts();
    void firmwareNote_data();
    void firmwareNote();
    void windowFits_data();
    void windowFits();
    void frameworkTexts_data();
    void frameworkTexts();
    void frameworkTextsAreThere_data();
    void frameworkTextsAreThere();

private:
    QTemporaryDir m_copy;
    QMap<QString, TsFile> m_kept;    ///< by language code: the file as it is kept
    QMap<QString, TsFile> m_updated; ///< what the update command makes of it
};

void tst_Translations::initTestCase()
{
    // The command itself, on a copy of all that it reads and writes: no list of its options here
    // can fall behind it.
    for (const QString &folder : {u"app"_s, u"catalogue"_s, u"link"_s, u"protocol"_s, u"ui"_s,
                                  u"scripts"_s, u"translations"_s}) {
        copyFolder(sourceFolder() + u'/' + folder, m_copy.filePath(folder));
    }
    // Only the installation of packages is left out: a test installs nothing.
    QFile setup(m_copy.filePath(u"scripts/setup"_s));
    QVERIFY(setup.open(QIODevice::WriteOnly | QIODevice::Truncate));
    setup.write("#!/bin/sh\n");
    setup.close();

    QProcess update;
    update.setProcessChannelMode(QProcess::MergedChannels);
    update.start(m_copy.filePath(u"scripts/translate"_s), QStringList());
    QVERIFY2(update.waitForFinished(), qPrintable(update.errorString()));
    const QByteArray output = update.readAll();
    QVERIFY2(update.exitStatus() == QProcess::NormalExit && update.exitCode() == 0,
             output.constData());

    for (const QString &code : languageCodes) {
        m_kept.insert(code, readTs(sourceFolder() + u'/' + tsPath(code)));
        m_updated.insert(code, readTs(m_copy.filePath(tsPath(code))));
    }
}

void tst_Translations::everyLanguageIsBuilt()
{
    const auto codes = [](const QString &folder, const QString &suffix) {
        QStringList found;
        const QStringList names
            = QDir(folder).entryList({u"LanguageData_*"_s + suffix}, QDir::Files, QDir::Name);
        for (const QString &name : names)
            found.append(name.chopped(suffix.size()).section(u'_', 1));
        return found;
    };
    QCOMPARE(codes(sourceFolder() + u"/translations"_s, u".ts"_s), languageCodes);
    QCOMPARE(codes(programFolder(), u".qm"_s), languageCodes);
}

void tst_Translations::fileIsWellFormed_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << u"de"_s << u"de_DE"_s;
    QTest::newRow("Spanish") << u"es"_s << u"es_ES"_s;
    QTest::newRow("French") << u"fr"_s << u"fr_FR"_s;
    QTest::newRow("Italian") << u"it"_s << u"it_IT"_s;
    QTest::newRow("Dutch") << u"nl"_s << u"nl_NL"_s;
    QTest::newRow("Portuguese") << u"pt"_s << u"pt_BR"_s;
}

void tst_Translations::fileIsWellFormed()
{
    QFETCH(QString, code);
    QFETCH(QString, language);

    QCOMPARE(m_kept[code].error, QString());
    QCOMPARE(m_updated[code].error, QString());
    QCOMPARE(m_kept[code].language, language);
    QVERIFY(m_kept[code].messages.size() > 70);
}

void tst_Translations::everythingIsTranslated_data()
{
    addLanguageRows();
}

void tst_Translations::everythingIsTranslated()
{
    QFETCH(QString, code);

    QStringList keys;
    for (const Message &message : std::as_const(m_kept[code].messages))
        keys.append(message.key());
    QStringList missing;
    for (const Message &message : std::as_const(m_updated[code].messages)) {
        if (!keys.contains(message.key()) || !message.state.isEmpty()
            || message.translation.isEmpty()) {
            missing.append(message.key());
        }
    }
    QCOMPARE(missing, QStringList());
}

void tst_Translations::nothingButTheProgramsTexts_data()
{
    addLanguageRows();
}

void tst_Translations::nothingButTheProgramsTexts()
{
    QFETCH(QString, code);

    QStringList keys;
    for (const Message &message : std::as_const(m_updated[code].messages))
        keys.append(message.key());
    QStringList surplus;
    for (const Message &message : std::as_const(m_kept[code].messages)) {
        if (!keys.contains(message.key()) || !message.state.isEmpty())
            surplus.append(message.key());
    }
    QCOMPARE(surplus, QStringList());
    QCOMPARE(m_kept[code].messages.size(), m_updated[code].messages.size());
}

void tst_Translations::updateChangesNothing_data()
{
    addLanguageRows();
}

void tst_Translations::updateChangesNothing()
{
    QFETCH(QString, code);

    QFile kept(sourceFolder() + u'/' + tsPath(code));
    QFile updated(m_copy.filePath(tsPath(code)));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QVERIFY(updated.open(QIODevice::ReadOnly));
    QCOMPARE(updated.readAll().split('\n'), kept.readAll().split('\n'));
}

void tst_Translations::noLocations_data()
{
    addLanguageRows();
}

void tst_Translations::noLocations()
{
    QFETCH(QString, code);

    QVERIFY(m_kept[code].elements.contains(u"message"_s));
    QVERIFY(!m_kept[code].elements.contains(u"location"_s));
    QVERIFY(!m_updated[code].elements.contains(u"location"_s));
}

void tst_Translations::translations_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    for (const auto &[code, file] : m_kept.asKeyValueRange()) {
        for (const Message &message : file.messages) {
            QTest::newRow(qPrintable(code + u", "_s + message.key()))
                << code << message.context << message.source << message.translation;
        }
    }
}

void tst_Translations::translations()
{
    QFETCH(QString, code);
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, translation);

    QVERIFY(!translation.isEmpty());
    // Pieces are joined as they stand.
    QCOMPARE(match(u"^\\s*"_s, translation), match(u"^\\s*"_s, source));
    QCOMPARE(match(u"\\s*$"_s, translation), match(u"\\s*$"_s, source));
    // The last sign alone: an abbreviation may stand before it.
    QCOMPARE(match(u"[.:;!?)…]?$"_s, translation.trimmed()),
             match(u"[.:;!?)…]?$"_s, source.trimmed()));
    QCOMPARE(translation.count(u"..."_s), source.count(u"..."_s));
    QCOMPARE(accelerator(translation).isNull(), accelerator(source).isNull());
    QCOMPARE(translation.count(u'&'), source.count(u'&'));
    QCOMPARE(translation.count(u'%'), source.count(u'%'));
    QCOMPARE(translation.count(u'\n'), source.count(u'\n'));

    // French sets a no-break space before these signs, the others none; Spanish opens a sentence
    // with them. All write the curved apostrophe.
    static const QRegularExpression bareSign(u"[^\u00A0][:;!?]"_s);
    static const QRegularExpression blankBeforeSign(u"[\\s\u00A0][:;!?]"_s);
    if (code == u"fr"_s)
        QVERIFY(!bareSign.match(translation).hasMatch());
    else
        QVERIFY(!blankBeforeSign.match(translation).hasMatch());
    QCOMPARE(translation.count(u'¡'), code == u"es"_s ? translation.count(u'!') : 0);
    QCOMPARE(translation.count(u'¿'), code == u"es"_s ? translation.count(u'?') : 0);
    QVERIFY(!translation.contains(u'\''));

    QTranslator compiled;
    QVERIFY(compiled.load(qmPath(code)));
    QCOMPARE(compiled.translate(context.toUtf8().constData(), source.toUtf8().constData()),
             translation);
}

void tst_Translations::accelerators_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("menuBar");
    QTest::addColumn<QStringList>("menus");

    QTest::newRow("English") << QString() << u"flh"_s << QStringList{u"e"_s, u""_s, u"wca"_s};
    QTest::newRow("German") << u"de"_s << u"dsh"_s << QStringList{u"b"_s, u""_s, u"wkb"_s};
    QTest::newRow("Spanish") << u"es"_s << u"aiu"_s << QStringList{u"s"_s, u""_s, u"wca"_s};
    QTest::newRow("French") << u"fr"_s << u"fla"_s << QStringList{u"q"_s, u""_s, u"scp"_s};
    QTest::newRow("Italian") << u"it"_s << u"fla"_s << QStringList{u"e"_s, u""_s, u"wci"_s};
    QTest::newRow("Dutch") << u"nl"_s << u"bth"_s << QStringList{u"a"_s, u""_s, u"wco"_s};
    QTest::newRow("Portuguese") << u"pt"_s << u"aiu"_s << QStringList{u"s"_s, u""_s, u"sco"_s};
}

void tst_Translations::accelerators()
{
    QFETCH(QString, code);
    QFETCH(QString, menuBar);
    QFETCH(QStringList, menus);

    const TranslatedWindow translated(code);
    const ConsoleWindow &console = translated.console;

    const auto letters = [](const QList<QAction *> &actions) {
        QString result;
        for (const QAction *action : actions) {
            const QChar letter = accelerator(action->text());
            if (!letter.isNull())
                result += letter;
        }
        return result;
    };
    const auto isUnique = [](const QString &text) {
        return QSet<QChar>(text.cbegin(), text.cend()).size() == text.size();
    };

    const QList<QAction *> titles = console.find<QMenuBar>("menuBar")->actions();
    QCOMPARE(letters(titles), menuBar);
    QVERIFY(isUnique(letters(titles)));
    QStringList found;
    for (const QAction *title : titles) {
        found.append(letters(title->menu()->actions()));
        QVERIFY2(isUnique(found.constLast()), qPrintable(title->text()));
    }
    QCOMPARE(found, menus);

    // Alt with a letter of the menu bar must reach the menu bar alone.
    for (const auto *button : console.window.findChildren<QAbstractButton *>())
        QVERIFY2(accelerator(button->text()).isNull(), qPrintable(button->objectName()));
}

void tst_Translations::windowTexts_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("German") << u"de"_s
                            << QStringList{u"Verbinden"_s,        u"Trennen"_s,
                                           u"Gesendete Bytes:"_s, u"Weitere Befehle:"_s,
                                           u"Ordner-Nr.:"_s,      u"Ü&ber Tessaly"_s,
                                           u"Strg+Q"_s,           u"( Portnummer: 1234 )"_s};
    QTest::newRow("Spanish") << u"es"_s
                             << QStringList{u"Conectar"_s,        u"Desconectar"_s,
                                            u"Bytes enviados:"_s, u"Otros comandos:"_s,
                                            u"Carpeta n.º:"_s,    u"&Acerca de Tessaly"_s,
                                            u"Control+Q"_s,       u"( Número de puerto: 1234 )"_s};
    QTest::newRow("French") << u"fr"_s
                            << QStringList{u"Connecter"_s,
                                           u"Déconnecter"_s,
                                           u"Octets envoyés\u00A0:"_s,
                                           u"Autres commandes\u00A0:"_s,
                                           u"Dossier n°\u00A0:"_s,
                                           u"À &propos de Tessaly"_s,
                                           u"Ctrl+Q"_s,
                                           u"( Numéro de port\u00A0: 1234 )"_s};
    QTest::newRow("Italian") << u"it"_s
                             << QStringList{u"Connetti"_s,      u"Disconnetti"_s,
                                            u"Byte inviati:"_s, u"Altri comandi:"_s,
                                            u"Cartella n°:"_s,  u"&Informazioni su Tessaly"_s,
                                            u"Ctrl+Q"_s,        u"( Numero di porta: 1234 )"_s};
    QTest::newRow("Dutch") << u"nl"_s
                           << QStringList{u"Verbinden"_s,        u"Verbinding verbreken"_s,
                                          u"Verzonden bytes:"_s, u"Overige opdrachten:"_s,
                                          u"Map nr.:"_s,         u"&Over Tessaly"_s,
                                          u"Ctrl+Q"_s,           u"( Poortnummer: 1234 )"_s};
    QTest::newRow("Portuguese") << u"pt"_s
                                << QStringList{
                                       u"Conectar"_s,        u"Desconectar"_s,
                                       u"Bytes enviados:"_s, u"Outros comandos:"_s,
                                       u"Pasta n.º:"_s,      u"S&obre Tessaly"_s,
                                       u"Ctrl+Q"_s,          u"( Número da porta: 1234 )"_s};
}

void tst_Translations::windowTexts()
{
    QFETCH(QString, code);
    QFETCH(QStringList, texts);

    TranslatedWindow translated(code);
    ConsoleWindow &console = translated.console;
    console.selectModel(7); // the port number is written when a model is chosen
    QCOMPARE(
        QStringList(
            {console.find<QAbstractButton>("pushButton_Connect")->text(),
             console.find<QAbstractButton>("pushButton_Disconnect")->text(),
             console.text("label_Sent"), console.text("label_Other_Command"),
             console.text("label_Folder"), console.find<QAction>("action_About")->text(),
             console.find<QAction>("action_Exit")->shortcut().toString(QKeySequence::NativeText),
             console.text("label_IP_Port")}),
        texts);
}

void tst_Translations::firmwareNote_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("note");

    QTest::newRow("German")
        << u"de"_s
        << u"Alle Befehle dieses Modells können von Geräten mit der Firmware AP 1.11 / MCU "
           u"1.05 oder höher ausgeführt werden. Hat das Gerät eine ältere Firmware, werden "
           u"manche Befehle möglicherweise nicht ausgeführt. Weitere Informationen finden "
           u"Sie in den Versionshinweisen dieser Anwendung."_s;
    QTest::newRow("Spanish")
        << u"es"_s
        << u"Todos los comandos de este modelo pueden ejecutarse en equipos con el firmware"
           u" AP 1.11 / MCU 1.05 o superior. Si el equipo tiene una versión de firmware "
           u"anterior, es posible que algunos comandos no se ejecuten. Para más "
           u"información, consulte las notas de la versión de esta aplicación."_s;
    QTest::newRow("French")
        << u"fr"_s
        << u"Toutes les commandes présentes dans ce modèle peuvent être exécutées par les "
           u"appareils équipés du firmware AP 1.11 / MCU 1.05 ou d’une version ultérieure. "
           u"Si l’appareil embarque une version de firmware inférieure, certaines commandes"
           u" pourront ne pas être exécutées. Reportez-vous aux notes de version de cette "
           u"application pour plus d’informations."_s;
    QTest::newRow("Italian")
        << u"it"_s
        << u"Tutti i comandi di questo modello possono essere eseguiti dai dispositivi con "
           u"firmware AP 1.11 / MCU 1.05 o superiore. Se il dispositivo ha una versione del"
           u" firmware precedente, alcuni comandi potrebbero non essere eseguiti. Per "
           u"ulteriori informazioni, consultare le note di rilascio di questa applicazione."_s;
    QTest::newRow("Dutch")
        << u"nl"_s
        << u"Alle opdrachten van dit model kunnen worden uitgevoerd door apparaten met "
           u"firmware AP 1.11 / MCU 1.05 of hoger. Als het apparaat een lagere "
           u"firmwareversie heeft, worden sommige opdrachten mogelijk niet uitgevoerd. "
           u"Raadpleeg de release-informatie van deze toepassing voor meer informatie."_s;
    QTest::newRow("Portuguese")
        << u"pt"_s
        << u"Todos os comandos deste modelo podem ser executados por equipamentos com o "
           u"firmware AP 1.11 / MCU 1.05 ou superior. Se o equipamento tiver uma versão de "
           u"firmware inferior, alguns comandos poderão não ser executados. Para mais "
           u"informações, consulte as notas de versão deste aplicativo."_s;
}

void tst_Translations::firmwareNote()
{
    QFETCH(QString, code);
    QFETCH(QString, note);

    TranslatedWindow translated(code);
    translated.console.selectModel(10); // HV1xx (Serial) (legacy)
    QCOMPARE(translated.console.text("label_Comments"), note);
}

void tst_Translations::windowFits_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("model");
    QStringList models;
    {
        const ConsoleWindow console;
        const auto *list = console.find<QComboBox>("comboBox_Player");
        for (int row = 0; row < list->count(); ++row)
            models.append(list->itemText(row));
    }
    QCOMPARE(models.size(), 15);
    for (const QString &code : languageCodes) {
        for (const QString &model : std::as_const(models))
            QTest::newRow(qPrintable(code + u", "_s + model)) << code << model;
    }
}

void tst_Translations::windowFits()
{
    QFETCH(QString, code);
    QFETCH(QString, model);

    TranslatedWindow translated(code);
    ConsoleWindow &console = translated.console;
    console.selectModel(console.rowOfModel(model));
    // Nothing else is as long as what is said while connecting.
    console.find<QLabel>("label_Connection_Message")->show();
    const auto *content = console.find<QWidget>("centralWidget");
    auto *sources = console.find<QComboBox>("comboBox_Source_Of_Playback");
    // Each source has lists of its own; a model without sources is measured once.
    for (int row = 0; row < qMax(1, sources->count()); ++row) {
        sources->setCurrentIndex(row);
        emit sources->activated(row);
        // A change of size reaches one panel around at each turn; they are nested less deep.
        for (int turn = 0; turn < 10; ++turn)
            QCoreApplication::processEvents();

        // The window's own hint says nothing: it scrolls what does not fit.
        const QLayout *layout = content->layout();
        const QSize needed(layout->minimumSize().width(),
                           layout->hasHeightForWidth()
                               ? layout->minimumHeightForWidth(content->width())
                               : layout->minimumSize().height());
        QVERIFY2(needed.width() <= content->width() && needed.height() <= content->height(),
                 qPrintable(u"%1 needs %2 x %3 of %4 x %5"_s.arg(sources->currentText())
                                .arg(needed.width())
                                .arg(needed.height())
                                .arg(content->width())
                                .arg(content->height())));
        QCOMPARE(console.window.size(), QSize(640, 798));
    }
}

void tst_Translations::frameworkTexts_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");

    const QList<std::pair<const char *, const char *>> sources = {
        {"QPlatformTheme", "OK"},
        {"QPlatformTheme", "Cancel"},
        {"QWidgetTextControl", "&Copy"},
        {"QWidgetTextControl", "Select All"},
        {"QLineEdit", "&Paste"},
        {"QAbstractSpinBox", "&Select All"},
        {"QAbstractSocket", "Connection refused"},
    };
    const auto row = [&sources](const char *code, const QStringList &translations) {
        for (qsizetype i = 0; i < sources.size(); ++i) {
            const auto &[context, source] = sources.at(i);
            QTest::addRow("%s, %s %s", code, context, source)
                << QString::fromLatin1(code) << QByteArray(context) << QByteArray(source)
                << translations.at(i);
        }
    };
    row("de", {u"OK"_s, u"Abbrechen"_s, u"&Kopieren"_s, u"Alles auswählen"_s, u"Einf&ügen"_s,
               u"&Alles auswählen"_s, u"Verbindung verweigert"_s});
    row("es", {u"Aceptar"_s, u"Cancelar"_s, u"&Copiar"_s, u"Seleccionar todo"_s, u"&Pegar"_s,
               u"&Seleccionar todo"_s, u"Conexión rechazada"_s});
    row("fr", {u"OK"_s, u"Annuler"_s, u"Cop&ier"_s, u"Tout sélectionner"_s, u"Co&ller"_s,
               u"Tout &sélectionner"_s, u"Connexion refusée"_s});
    row("it", {u"OK"_s, u"Annulla"_s, u"&Copia"_s, u"Seleziona tutto"_s, u"&Incolla"_s,
               u"&Seleziona tutto"_s, u"Connessione rifiutata"_s});
    row("nl", {u"OK"_s, u"Annuleren"_s, u"&Kopiëren"_s, u"Alles selecteren"_s, u"P&lakken"_s,
               u"Alles &selecteren"_s, u"Verbinding is geweigerd"_s});
    row("pt", {u"OK"_s, u"Cancelar"_s, u"&Copiar"_s, u"Selecionar tudo"_s, u"C&olar"_s,
               u"&Selecionar tudo"_s, u"Conexão recusada"_s});
}

void tst_Translations::frameworkTexts()
{
    QFETCH(QString, code);
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QFETCH(QString, translation);

    QTranslator compiled;
    QVERIFY(compiled.load(qmPath(code)));
    QCOMPARE(compiled.translate(context.constData(), source.constData()), translation);
}

void tst_Translations::frameworkTextsAreThere_data()
{
    addLanguageRows();
}

void tst_Translations::frameworkTextsAreThere()
{
    QFETCH(QString, code);

    // What a user of this program can see: message boxes, context menus of texts, boxes and scroll
    // bars, keys in menus, and what a link reports.
    const QList<std::pair<const char *, const char *>> seen = {
        {"QPlatformTheme", "OK"},
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
    QStringList missing;
    for (const auto &[context, source] : seen) {
        if (compiled.translate(context, source).isEmpty())
            missing.append(QString::fromLatin1(context) + u": "_s + QString::fromLatin1(source));
    }
    QCOMPARE(missing, QStringList());
}

TESSALY_WINDOW_TEST(tst_Translations)
#include "tst_translations.moc"
