// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString version = QStringLiteral(TESSALY_BUILD_VERSION);

QString textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// The newest release of the metainfo, and the project's website.
struct Metainfo
{
    QString version;
    QString type;
    QString date;
    QString homepage;
};

Metainfo metainfo()
{
    Metainfo found;
    QXmlStreamReader xml(textOf(buildPath(u"packaging/com.example.tessaly.metainfo.xml"_s)));
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "release"_L1 && found.version.isEmpty()) {
            found.version = attributes.value("version"_L1).toString();
            found.type = attributes.value("type"_L1).toString();
            found.date = attributes.value("date"_L1).toString();
        } else if (xml.name() == "url"_L1 && attributes.value("type"_L1) == "homepage"_L1) {
            found.homepage = xml.readElementText();
        }
    }
    if (xml.hasError())
        qWarning().noquote() << xml.errorString();
    return found;
}

} // namespace

/// The version stands in one place, and wherever users read one, it is that.
class tst_Versions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setApplicationIdentity(); }

    void program();
    void simulator();
    void newestRelease();
    void manualPages();
    void website();
};

void tst_Versions::program()
{
    QCOMPARE(QCoreApplication::applicationVersion(), version);
}

void tst_Versions::simulator()
{
    QProcess process;
    process.start(programPath(u"tessaly-simulator"_s), {u"--version"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()),
             "tessaly-simulator "_L1 + version + u'\n');
}

/// In CHANGELOG.md, in the packages' changelog and in the metainfo, with the same date, too.
void tst_Versions::newestRelease()
{
    static const QRegularExpression heading(u"^## (.*) - (.*)$"_s,
                                            QRegularExpression::MultilineOption);
    const auto newest = heading.match(textOf(sourcePath(u"CHANGELOG.md"_s)));
    QVERIFY(newest.hasMatch());
    QCOMPARE(newest.captured(1), version);

    const QString changelog = textOf(buildPath(u"packaging/changelog"_s));
    QVERIFY2(changelog.startsWith("tessaly ("_L1 + version + ") "_L1), qPrintable(changelog));

    const Metainfo found = metainfo();
    QCOMPARE(found.version, version);
    if (newest.captured(2) == "unreleased"_L1) {
        QCOMPARE(found.type, u"development"_s);
    } else {
        QCOMPARE(found.type, QString());
        QCOMPARE(found.date, newest.captured(2));
    }
}

void tst_Versions::manualPages()
{
    static const QRegularExpression title(
        u"^\\.TH \\S+ 1 \\S+ \"Tessaly (.*)\" \"User Commands\"$"_s,
        QRegularExpression::MultilineOption);
    const QStringList pages = QDir(buildPath(u"packaging"_s)).entryList({u"*.1"_s});
    QVERIFY(pages.size() >= 2);
    for (const QString &page : pages) {
        const auto match = title.match(textOf(buildPath("packaging/"_L1 + page)));
        QVERIFY2(match.hasMatch(), qPrintable(page));
        QCOMPARE(page + u' ' + match.captured(1), page + u' ' + version);
    }
}

void tst_Versions::website()
{
    QCOMPARE(metainfo().homepage, QCoreApplication::organizationDomain());
}

TESSALY_TEST(tst_Versions)
#include "tst_versions.moc"
