// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"
#include "tests/support/testmain.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString sourceFolder = QStringLiteral(TESSALY_SOURCE_FOLDER);
const QString programFolder = QStringLiteral(TESSALY_PROGRAM_FOLDER);
const QString tsPath = u"translations/LanguageData_fr.ts"_s; ///< below the source folder

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
    void fileIsWellFormed();
    void everythingIsTranslated();
    void nothingButTheProgramsTexts();
    void updateChangesNothing();
    void noLocations();
    void translations_data();
    void translations();
    void accelerators_data();
    void accelerators();
    void frameworkTexts_data();
    void frameworkTexts();

private:
    QTemporaryDir m_copy;
    TsFile m_kept;    ///< the file as it is kept
    TsFile m_updated; ///< what the update command makes of it
};

void tst_Translations::initTestCase()
{
    // The command itself, on a copy of all that it reads and writes: no list of its options here
    // can fall behind it.
    for (const QString &folder : {u"app"_s, u"catalogue"_s, u"link"_s, u"protocol"_s, u"ui"_s,
                                  u"scripts"_s, u"translations"_s}) {
        copyFolder(sourceFolder + u'/' + folder, m_copy.filePath(folder));
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

    m_kept = readTs(sourceFolder + u'/' + tsPath);
    m_updated = readTs(m_copy.filePath(tsPath));
}

void tst_Translations::fileIsWellFormed()
{
    QCOMPARE(m_kept.error, QString());
    QCOMPARE(m_updated.error, QString());
    QCOMPARE(m_kept.language, u"fr_FR"_s);
    QVERIFY(m_kept.messages.size() > 70);
}

void tst_Translations::everythingIsTranslated()
{
    QStringList keys;
    for (const Message &message : std::as_const(m_kept.messages))
        keys.append(message.key());
    QStringList missing;
    for (const Message &message : std::as_const(m_updated.messages)) {
        if (!keys.contains(message.key()) || !message.state.isEmpty()
            || message.translation.isEmpty()) {
            missing.append(message.key());
        }
    }
    QCOMPARE(missing, QStringList());
}

void tst_Translations::nothingButTheProgramsTexts()
{
    QStringList keys;
    for (const Message &message : std::as_const(m_updated.messages))
        keys.append(message.key());
    QStringList surplus;
    for (const Message &message : std::as_const(m_kept.messages)) {
        if (!keys.contains(message.key()) || !message.state.isEmpty())
            surplus.append(message.key());
    }
    QCOMPARE(surplus, QStringList());
    QCOMPARE(m_kept.messages.size(), m_updated.messages.size());
}

void tst_Translations::updateChangesNothing()
{
    QFile kept(sourceFolder + u'/' + tsPath);
    QFile updated(m_copy.filePath(tsPath));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QVERIFY(updated.open(QIODevice::ReadOnly));
    QCOMPARE(updated.readAll().split('\n'), kept.readAll().split('\n'));
}

void tst_Translations::noLocations()
{
    QVERIFY(m_kept.elements.contains(u"message"_s));
    QVERIFY(!m_kept.elements.contains(u"location"_s));
    QVERIFY(!m_updated.elements.contains(u"location"_s));
}

void tst_Translations::translations_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    for (const Message &message : std::as_const(m_kept.messages))
        QTest::newRow(qPrintable(message.key()))
            << message.context << message.source << message.translation;
}

void tst_Translations::translations()
{
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, translation);

    QVERIFY(!translation.isEmpty());
    // Pieces are joined as they stand.
    QCOMPARE(match(u"^\\s*"_s, translation), match(u"^\\s*"_s, source));
    QCOMPARE(match(u"\\s*$"_s, translation), match(u"\\s*$"_s, source));
    QCOMPARE(match(u"[.:;!?)…]*$"_s, translation.trimmed()),
             match(u"[.:;!?)…]*$"_s, source.trimmed()));
    QCOMPARE(translation.count(u"..."_s), source.count(u"..."_s));
    QCOMPARE(accelerator(translation).isNull(), accelerator(source).isNull());
    QCOMPARE(translation.count(u'&'), source.count(u'&'));
    QCOMPARE(translation.count(u'%'), source.count(u'%'));
    QCOMPARE(translation.count(u'\n'), source.count(u'\n'));

    // French sets a no-break space before these signs, and writes the curved apostrophe.
    static const QRegularExpression bareSign(u"[^\u00A0][:;!?]"_s);
    QVERIFY(!bareSign.match(translation).hasMatch());
    QVERIFY(!translation.contains(u'\''));

    QTranslator compiled;
    QVERIFY(compiled.load(programFolder + u"/LanguageData_fr.qm"_s));
    QCOMPARE(compiled.translate(context.toUtf8().constData(), source.toUtf8().constData()),
             translation);
}

void tst_Translations::accelerators_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("menuBar");
    QTest::addColumn<QStringList>("menus");

    QTest::newRow("English") << "action_English"_ba << u"flh"_s
                             << QStringList{u"e"_s, u""_s, u"wca"_s};
    QTest::newRow("French") << "action_French"_ba << u"fla"_s
                            << QStringList{u"q"_s, u""_s, u"scp"_s};
}

void tst_Translations::accelerators()
{
    QFETCH(QByteArray, language);
    QFETCH(QString, menuBar);
    QFETCH(QStringList, menus);

    QVERIFY(QDir::setCurrent(programFolder));
    const ConsoleWindow console;
    console.find<QAction>(language.constData())->trigger();

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

void tst_Translations::frameworkTexts_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");

    const auto row = [](const char *context, const char *source, const QString &translation) {
        QTest::addRow("%s %s", context, source)
            << QByteArray(context) << QByteArray(source) << translation;
    };
    row("QPlatformTheme", "OK", u"OK"_s);
    row("QPlatformTheme", "Cancel", u"Annuler"_s);
    row("QWidgetTextControl", "&Copy", u"Cop&ier"_s);
    row("QWidgetTextControl", "Select All", u"Tout sélectionner"_s);
    row("QLineEdit", "&Paste", u"Co&ller"_s);
    row("QAbstractSpinBox", "&Select All", u"Tout &sélectionner"_s);
    row("QAbstractSocket", "Connection refused", u"Connexion refusée"_s);
}

void tst_Translations::frameworkTexts()
{
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QFETCH(QString, translation);

    QTranslator compiled;
    QVERIFY(compiled.load(programFolder + u"/LanguageData_fr.qm"_s));
    QCOMPARE(compiled.translate(context.constData(), source.constData()), translation);
}

TESSALY_TEST_MAIN(tst_Translations)
#include "tst_translations.moc"
