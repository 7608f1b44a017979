// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "goldenlines.h"
#include "tests/support/folders.h"

#include <QFile>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QStringList goldenLines(const QString &fileName)
{
    QFile file(sourcePath("tests/ui/golden/"_L1 + fileName));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(file.fileName()));

    QStringList lines;
    const QStringList all = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : all) {
        if (!line.isEmpty() && !line.startsWith(u'#'))
            lines.append(line);
    }
    if (lines.isEmpty())
        qFatal("nothing in %s", qPrintable(file.fileName()));
    return lines;
}

QStringList goldenCodes(const QString &fileName)
{
    return goldenLines(fileName).join(u' ').split(u' ');
}

QByteArray lineDifferences(const QStringList &actual, const QStringList &expected)
{
    if (actual == expected)
        return {};

    const auto [actualBegin, expectedBegin]
        = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    const auto [actualEnd, expectedEnd]
        = std::mismatch(actual.rbegin(), std::make_reverse_iterator(actualBegin), expected.rbegin(),
                        std::make_reverse_iterator(expectedBegin));

    QStringList missing(expectedBegin, expectedEnd.base());
    QStringList added(actualBegin, actualEnd.base());
    // Lines of both sides are noise, unless the order is all that differs.
    const QSet<QString> missingSet(missing.begin(), missing.end());
    const QSet<QString> addedSet(added.begin(), added.end());
    if (missingSet != addedSet) {
        missing.removeIf([&](const QString &line) { return addedSet.contains(line); });
        added.removeIf([&](const QString &line) { return missingSet.contains(line); });
    }

    QStringList report{u"from line %1 on:"_s.arg(expectedBegin - expected.begin() + 1)};
    constexpr qsizetype longestReport = 10;
    const QStringList firstMissing = missing.first(qMin(missing.size(), longestReport));
    for (const QString &line : firstMissing)
        report.append("- expected: "_L1 + line);
    const QStringList firstAdded = added.first(qMin(added.size(), longestReport));
    for (const QString &line : firstAdded)
        report.append("+ actual:   "_L1 + line);
    return '\n' + report.join(u'\n').toLocal8Bit();
}
