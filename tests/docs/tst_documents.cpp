// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

QString textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QStringList documents()
{
    QStringList paths;
    for (const QString &folder : {u"."_s, u"docs"_s}) {
        const QDir directory(sourcePath(folder));
        for (const QString &name : directory.entryList({u"*.md"_s}, QDir::Files, QDir::Name))
            paths.append(QDir::cleanPath(folder + u'/' + name));
    }
    return paths;
}

/// The document without its blocks of code.
QString proseOf(const QString &text)
{
    static const QRegularExpression block(u"^```.*?^```$"_s,
                                          QRegularExpression::MultilineOption
                                              | QRegularExpression::DotMatchesEverythingOption);
    return QString(text).remove(block);
}

/// The names under which links find the headings: lower case, "-" for blanks, no punctuation.
QStringList anchorsOf(const QString &text)
{
    static const QRegularExpression heading(u"^#+ (.*)$"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression dropped(u"[^\\w\\- ]"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    QStringList anchors;
    for (const QRegularExpressionMatch &match : heading.globalMatch(proseOf(text)))
        anchors.append(match.captured(1).toLower().remove(dropped).replace(u' ', u'-'));
    return anchors;
}

} // namespace

/// What the documents name is there.
class tst_Documents : public QObject
{
    Q_OBJECT

private slots:
    void links_data() { addDocuments(); }
    void links();
    void paths_data() { addDocuments(); }
    void paths();
    void picturesAreUsed();

private:
    static void addDocuments();
};

void tst_Documents::addDocuments()
{
    QTest::addColumn<QString>("document");
    for (const QString &document : documents())
        QTest::addRow("%s", qPrintable(document)) << document;
}

void tst_Documents::links()
{
    QFETCH(QString, document);

    static const QRegularExpression link(u"\\]\\(([^)\\s]+)\\)"_s);
    const QDir folder = QFileInfo(sourcePath(document)).dir();
    for (const QRegularExpressionMatch &match :
         link.globalMatch(proseOf(textOf(sourcePath(document))))) {
        const QString target = match.captured(1);
        if (target.contains("://"_L1))
            continue;
        const QString path = target.section(u'#', 0, 0);
        const QString anchor = target.section(u'#', 1);
        const QString file = path.isEmpty() ? sourcePath(document) : folder.filePath(path);
        QVERIFY2(QFileInfo::exists(file), qPrintable(target));
        if (!anchor.isEmpty())
            QVERIFY2(anchorsOf(textOf(file)).contains(anchor), qPrintable(target));
    }
}

/// A path between backticks that begins with a folder of the project.
void tst_Documents::paths()
{
    QFETCH(QString, document);

    static const QRegularExpression code(u"`([^`\\n]+)`"_s);
    static const QRegularExpression path(
        u"^(\\.ci|app|catalogue|docs|link|packaging|protocol|"
        "scripts|sender|simulator|terminal|tests|translations|ui)/[\\w./-]*$"_s);
    for (const QRegularExpressionMatch &match :
         code.globalMatch(proseOf(textOf(sourcePath(document))))) {
        const QString text = match.captured(1);
        if (path.match(text).hasMatch())
            QVERIFY2(QFile::exists(sourcePath(text)), qPrintable(text));
    }
}

void tst_Documents::picturesAreUsed()
{
    QString all;
    for (const QString &document : documents())
        all += textOf(sourcePath(document));
    const QStringList pictures
        = QDir(sourcePath(u"docs/images"_s)).entryList(QDir::Files, QDir::Name);
    QVERIFY(!pictures.isEmpty());
    for (const QString &picture : pictures)
        QVERIFY2(all.contains("images/"_L1 + picture), qPrintable(picture));
}

TESSALY_TEST(tst_Documents)
#include "tst_documents.moc"
