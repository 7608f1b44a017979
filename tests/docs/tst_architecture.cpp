// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using Names = QSet<QString>;

QString textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// The names of a cell, which stand between commas.
Names namesOf(const QString &cell)
{
    Names names;
    for (const QString &name : cell.split(u',', Qt::SkipEmptyParts))
        names.insert(name.trimmed());
    names.remove(QString());
    return names;
}

/// The rows of the page's table with that title row, without the marks of code; none when there is
/// no such table.
QList<QStringList> tableOf(const QString &page, const QString &titles)
{
    QList<QStringList> rows;
    bool isInside = false;
    for (const QString &line : page.split(u'\n')) {
        if (line == titles) {
            isInside = true;
        } else if (isInside && !line.startsWith(u'|')) {
            break;
        } else if (isInside && !line.startsWith("| ---"_L1)) {
            QStringList cells = line.sliced(1).split(u'|');
            for (QString &cell : cells)
                cell = cell.remove(u'`').trimmed();
            rows.append(cells);
        }
    }
    return rows;
}

/// A part of the product as the page names it.
struct Part
{
    QString name;
    QList<QRegularExpression> patterns; ///< of its files' paths
    Names mayInclude;
};

QString sorted(const Names &names)
{
    QStringList list = names.values();
    list.sort();
    return list.join(u", "_s);
}

} // namespace

/// What docs/architecture.md says on links and includes, against the build and the sources.
class tst_Architecture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void links();
    void includes();
    void permissionsAreUsed();
    void noCircle();
    void sheetsKnowNothingOfTheProduct();

private:
    /// The part of a file, or of an included header; empty when no row fits.
    QString partOf(const QString &path) const;
    QStringList mayInclude(const QString &part) const;

    QString m_page;
    QList<Part> m_parts;
    QStringList m_files;               ///< all sources of the product
    QMap<QString, Names> m_inclusions; ///< of each part, the other parts that it includes
    QStringList m_forbidden;
};

void tst_Architecture::initTestCase()
{
    m_page = textOf(sourcePath(u"docs/architecture.md"_s));
    for (const QStringList &row : tableOf(m_page, u"| Part | Files | May include |"_s)) {
        Part part{row.value(0), {}, namesOf(row.value(2))};
        const Names patterns = namesOf(row.value(1));
        for (const QString &pattern : patterns) {
            part.patterns.append(
                QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern)));
        }
        m_parts.append(part);
    }
    QVERIFY(m_parts.size() > 1);

    for (const QFileInfo &folder :
         QDir(sourcePath(u"."_s)).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString name = folder.fileName();
        if (name == "tests"_L1 || name.startsWith("build"_L1))
            continue;
        QDirIterator files(folder.filePath(), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            m_files.append(QDir(sourcePath(u"."_s)).relativeFilePath(files.next()));
    }
    m_files.sort();
    QVERIFY(m_files.size() > 100);

    // The form's own header is generated and has no folder.
    static const QRegularExpression include(u"^\\s*#\\s*include\\s*\"([^\"]+)\""_s,
                                            QRegularExpression::MultilineOption);
    static const QRegularExpression formHeader(u"^ui_\\w+\\.h$"_s);
    for (const QString &file : std::as_const(m_files)) {
        const QString part = partOf(file);
        for (const QRegularExpressionMatch &match : include.globalMatch(textOf(sourcePath(file)))) {
            const QString header = match.captured(1);
            if (formHeader.match(header).hasMatch() && (part == "window"_L1 || part == "app"_L1))
                continue;
            const QString included = QDir(sourcePath(u"."_s)).exists(header)
                                         ? partOf(header)
                                         : u"(no file of the product)"_s;
            if (included == part)
                continue;
            m_inclusions[part].insert(included);
            if (!mayInclude(part).contains(included))
                m_forbidden.append(u"%1 (%2) includes %3 (%4)"_s.arg(file, part, header, included));
        }
    }
}

QString tst_Architecture::partOf(const QString &path) const
{
    for (const Part &part : m_parts) {
        for (const QRegularExpression &pattern : part.patterns) {
            if (pattern.match(path).hasMatch())
                return part.name;
        }
    }
    return {};
}

QStringList tst_Architecture::mayInclude(const QString &part) const
{
    for (const Part &candidate : m_parts) {
        if (candidate.name == part)
            return candidate.mayInclude.values();
    }
    return {};
}

void tst_Architecture::links()
{
    const auto lineOf = [](const QString &target, const QString &libraries) {
        return QString(target + ": "_L1 + sorted(namesOf(libraries)));
    };
    QStringList stated;
    for (const QStringList &row : tableOf(m_page, u"| Target | Holds | Links |"_s))
        stated.append(lineOf(row.value(0), row.value(2)));
    stated.sort();

    QStringList built;
    for (const QString &line :
         textOf(buildPath(u"tests/docs/linklines.txt"_s)).split(u'\n', Qt::SkipEmptyParts)) {
        const qsizetype end = line.indexOf(u": "_s);
        built.append(lineOf(line.first(end), line.sliced(end + 2)));
    }
    built.sort();
    QCOMPARE(built, stated);
}

void tst_Architecture::includes()
{
    for (const QString &file : std::as_const(m_files))
        QVERIFY2(!partOf(file).isEmpty(), qPrintable(file + " belongs to no part"_L1));
    QVERIFY2(m_forbidden.isEmpty(), qPrintable(m_forbidden.join(u'\n')));
}

void tst_Architecture::permissionsAreUsed()
{
    for (const Part &part : std::as_const(m_parts))
        QCOMPARE(part.name + ": "_L1 + sorted(m_inclusions.value(part.name)),
                 part.name + ": "_L1 + sorted(part.mayInclude));
}

void tst_Architecture::noCircle()
{
    // Parts are taken away when nothing is left that they include; what stays goes in circles.
    QList<Part> left = m_parts;
    const auto isLeft = [&left](const QString &name) {
        return std::ranges::any_of(left, [&](const Part &part) { return part.name == name; });
    };
    const auto isDone
        = [&](const Part &part) { return std::ranges::none_of(part.mayInclude, isLeft); };
    for (qsizetype i = 0; i < left.size();) {
        if (isDone(left.at(i))) {
            left.removeAt(i);
            i = 0;
        } else {
            ++i;
        }
    }

    QStringList names;
    for (const Part &part : std::as_const(left))
        names.append(part.name);
    QCOMPARE(names, QStringList());
}

/// The linker knows functions only; a header may hold constants.
void tst_Architecture::sheetsKnowNothingOfTheProduct()
{
    static const QRegularExpression library(
        u"add_library\\(tessaly_test_sheets SHARED([^)]+)\\)"_s);
    static const QRegularExpression include(u"^#include \"([^\"]+)\""_s,
                                            QRegularExpression::MultilineOption);
    const QString build = textOf(sourcePath(u"tests/support/CMakeLists.txt"_s));
    const QStringList sources = library.match(build).captured(1).simplified().split(u' ');
    QVERIFY(sources.contains(u"modelsheets.cpp"_s));
    for (const QString &source : sources) {
        for (const QString &suffix : {u"cpp"_s, u"h"_s}) {
            const QString file = source.section(u'.', 0, 0) + u'.' + suffix;
            const QString text = textOf(sourcePath("tests/support/"_L1 + file));
            for (const QRegularExpressionMatch &match : include.globalMatch(text)) {
                const QString header = match.captured(1);
                QVERIFY2(sources.contains(QFileInfo(header).baseName() + ".cpp"_L1),
                         qPrintable(file + " includes "_L1 + header));
            }
        }
    }
}

TESSALY_TEST(tst_Architecture)
#include "tst_architecture.moc"
