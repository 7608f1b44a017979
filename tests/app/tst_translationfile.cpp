// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/translationfile.h"
#include "tests/support/folders.h"
#include "tests/support/languagefiles.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

QString frenchPath()
{
    return programPath(u"LanguageData_fr.qm"_s);
}

QByteArray frenchFile()
{
    QFile file(frenchPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray head = QByteArray::fromHex("3CB86418CAEF9C95CD211CBF60A1BDDD");

/// One message: "Play" of the context "MainWindow" is "Lire".
const QByteArray message = "\x03\x00\x00\x00\x08\x00L\x00i\x00r\x00e"
                           "\x08\x00\x00\x00\x00"
                           "\x06\x00\x00\x00\x04Play"
                           "\x07\x00\x00\x00\x0AMainWindow"
                           "\x01"_ba;

/// A section of less than 256 bytes.
QByteArray section(char tag, const QByteArray &content)
{
    return tag + QByteArray(3, '\0') + static_cast<char>(content.size()) + content;
}

QByteArray hashes(const QByteArray &entries)
{
    return section('\x42', entries);
}

QByteArray messages(const QByteArray &content)
{
    return section('\x69', content);
}

QByteArray dependencies(const QByteArray &names)
{
    return section('\x96', names);
}

QByteArray contexts(const QByteArray &content)
{
    return section('\x2F', content);
}

/// Of one message, at that offset.
const QByteArray entryAt0 = "HASH\0\0\0\0"_ba;

} // namespace

class tst_TranslationFile : public QObject
{
    Q_OBJECT

private slots:
    void crafted_data();
    void crafted();
    void shipped();
    void cut();
    void damaged();
    void path();
    void foundAsQtFindsIt_data();
    void foundAsQtFindsIt();
};

void tst_TranslationFile::crafted_data()
{
    QTest::addColumn<QByteArray>("sections");
    QTest::addColumn<bool>("sound");

    const auto row = [](const char *name, bool sound, const QByteArray &sections) {
        QTest::newRow(name) << sections << sound;
    };
    row("one message", true, hashes(entryAt0) + messages(message));
    row("messages first", true, messages(message) + hashes(entryAt0));
    row("two hashes of one message", true, hashes(entryAt0 + entryAt0) + messages(message));
    row("unknown section", true, section('\x77', "?") + hashes(entryAt0) + messages(message));
    row("no section", true, {});
    row("message without an end", true, hashes(entryAt0) + messages(message.chopped(1)));
    row("message with an unknown field", true, hashes(entryAt0) + messages("\x7F"));
    row("message with an obsolete field", true, hashes(entryAt0) + messages("\x05HASH" + message));

    row("empty translation", true,
        hashes(entryAt0) + messages("\x03\xFF\xFF\xFF\xFF"_ba + message));

    row("hash without messages", false, hashes(entryAt0));
    row("offset at the end", false,
        hashes("HASH\0\0\0"_ba + static_cast<char>(message.size())) + messages(message));
    row("offset before the end", true,
        hashes("HASH\0\0\0"_ba + static_cast<char>(message.size() - 1)) + messages(message));
    row("offset far after the end", false, hashes("HASH\x7F\0\0\0"_ba) + messages(message));
    row("negative offset", false, hashes("HASH\xFF\xFF\xFF\xFF"_ba) + messages(message));
    row("second offset after the end", false,
        hashes(entryAt0 + "HASH\0\0\1\0"_ba) + messages(message));
    row("hash cut", false, hashes(entryAt0.chopped(1)) + messages(message));
    row("hash without offset", false, hashes(entryAt0.chopped(4)) + messages(message));
    row("text longer than the rest", false, hashes(entryAt0) + messages("\x03\0\0\0\x02\0"_ba));
    row("text of negative length", false,
        hashes(entryAt0) + messages("\x03\xFF\xFF\xFF\xFE\0a"_ba));
    row("length cut", false, hashes(entryAt0) + messages("\x06\0\0\0"_ba));
    row("obsolete field cut", false, hashes(entryAt0) + messages("\x05\0\0"_ba));
    row("source text longer than the rest", false,
        hashes(entryAt0) + messages("\x06\0\0\0\x05Play"_ba));
    row("context longer than the rest", false,
        hashes(entryAt0) + messages("\x07\x01\0\0\x04Main"_ba));
    row("comment longer than the rest", false, hashes(entryAt0) + messages("\x08\0\0\0\x01"_ba));
    row("section longer than the file", false, (hashes(entryAt0) + messages(message)).chopped(1));

    row("another translation", false,
        hashes(entryAt0) + messages(message) + dependencies("\0\0\0\2\0a"_ba));
    row("another translation, named first", false,
        dependencies("\0\0\0\2\0a"_ba) + hashes(entryAt0) + messages(message));
    row("another translation after the end", true,
        hashes(entryAt0) + messages(message) + "\0\0\0\0\0"_ba + dependencies("\0\0\0\2\0a"_ba));

    row("contexts", true, contexts("\0\2\0\0\0\1\0\0\4Main\0"_ba));
    row("contexts without a table", false, contexts("\0\0"_ba));
    row("contexts with a cut table", false, contexts("\0\2\0\0\0"_ba));
    row("contexts of one byte", false, contexts("\0"_ba));
    row("contexts with an offset at the end", false, contexts("\0\1\0\1\0\0"_ba));
    row("context longer than the rest", false, contexts("\0\1\0\1\0\0\5Main"_ba));
    row("contexts without an end", false, contexts("\0\1\0\1\0\0\4Main"_ba));
}

void tst_TranslationFile::crafted()
{
    QFETCH(QByteArray, sections);
    QTEST(isSoundTranslation(head + sections), "sound");
}

void tst_TranslationFile::shipped()
{
    for (const QString &code : languageCodes())
        QVERIFY2(isSoundTranslationFile(programPath(u"LanguageData_%1.qm"_s.arg(code))),
                 qPrintable(code));
}

void tst_TranslationFile::cut()
{
    const QByteArray french = frenchFile();
    QVERIFY(!isSoundTranslation({}));
    QVERIFY(!isSoundTranslation(french.first(15)));
    for (qsizetype length = 32; length < french.size(); length += 997)
        QVERIFY2(!isSoundTranslation(french.first(length)), qPrintable(QString::number(length)));
}

/// What is called sound can be asked for every text. A wrong answer of the check ends the test.
void tst_TranslationFile::damaged()
{
    const QByteArray french = frenchFile();
    QRandomGenerator generator(20261121);
    int soundCount = 0;
    int translatedCount = 0;
    for (int round = 0; round < 1000; ++round) {
        QByteArray file = french;
        for (int i = 0; i < 1 + round % 20; ++i) {
            const auto place = generator.bounded(head.size(), file.size());
            file[place] = static_cast<char>(generator.bounded(256));
        }
        if (!isSoundTranslation(file))
            continue;
        ++soundCount;
        QTranslator damagedTranslator;
        if (!damagedTranslator.load(reinterpret_cast<const uchar *>(file.constData()),
                                    static_cast<int>(file.size())))
            continue;
        for (const char *text : {"Player:", "Connect", "Disconnect", "Play", "Folder:", "Volume:",
                                 "Data Received:", "Languages", "Clear", "Send", "Request:"}) {
            for (const char *context : {"MainWindow", "aboutwindow", "QFileDialog"})
                translatedCount += damagedTranslator.translate(context, text).isEmpty() ? 0 : 1;
        }
    }
    QVERIFY2(soundCount > 100 && soundCount < 900, qPrintable(QString::number(soundCount)));
    QVERIFY2(translatedCount > soundCount, qPrintable(QString::number(translatedCount)));
}

void tst_TranslationFile::path()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s)); // nothing is said of a missing file
    QVERIFY(!isSoundTranslationFile({}));
    QVERIFY(isSoundTranslationFile(frenchPath()));
    QVERIFY(!isSoundTranslationFile(frenchPath() + u".missing"_s));
    QVERIFY(!isSoundTranslationFile(QDir::tempPath()));
    QVERIFY(!isSoundTranslationFile(u"/dev/null"_s));
}

void tst_TranslationFile::foundAsQtFindsIt_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("found");

    const auto row = [](const char *name, const QStringList &files, const QString &found) {
        QTest::newRow(name) << files << found;
    };
    row("none", {}, {});
    row("the usual one", {u"Data_fr.qm"_s, u"Data_de.qm"_s}, u"Data_fr.qm"_s);
    row("without a suffix", {u"Data_fr"_s, u"Data.qm"_s}, u"Data_fr"_s);
    row("both", {u"Data_fr"_s, u"Data_fr.qm"_s}, u"Data_fr.qm"_s);
    row("without the language", {u"Data.qm"_s, u"Data"_s}, u"Data.qm"_s);
    row("without anything", {u"Data"_s}, u"Data"_s);
    row("of another language", {u"Data_de.qm"_s}, {});
    row("of a longer name", {u"Data_fr_FR.qm"_s}, {});
    row("a folder first", {u"Data_fr.qm/"_s, u"Data.qm"_s}, u"Data.qm"_s);
    row("folders only", {u"Data_fr.qm/"_s, u"Data/"_s}, {});
}

void tst_TranslationFile::foundAsQtFindsIt()
{
    QFETCH(const QStringList, files);
    QFETCH(const QString, found);
    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    const auto comeBack = qScopeGuard([&] { QDir::setCurrent(before); });
    for (const QString &name : files)
        QVERIFY(name.endsWith(u'/') ? QDir().mkpath(name) : QFile::copy(frenchPath(), name));

    QCOMPARE(translationFilePath(u"Data_fr"_s), found);
    QTranslator translator;
    QCOMPARE(translator.load(u"Data_fr"_s), !found.isEmpty());
    QCOMPARE(translator.filePath(), found);
}

TESSALY_TEST(tst_TranslationFile)
#include "tst_translationfile.moc"
