// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/nearesttexts.h"

#include <QList>

#include <algorithm>
#include <numeric>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostTexts = 3;

/// By how many letters more than the most similar text another one may differ.
constexpr int similarity = 2;

/// The number of letters to insert, remove or replace (Levenshtein) until `left` is the beginning
/// of `right`.
int distanceFromBeginning(const QString &left, const QString &right)
{
    std::vector<int> row(static_cast<size_t>(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : left) {
        int diagonal = row[0]++;
        for (qsizetype j = 0; j < right.size(); ++j) {
            const auto place = static_cast<size_t>(j);
            const int replaced = diagonal + (letter == right.at(j) ? 0 : 1);
            diagonal = row[place + 1];
            row[place + 1] = std::min({replaced, row[place] + 1, row[place + 1] + 1});
        }
    }
    return std::ranges::min(row);
}

} // namespace

QStringList nearestTexts(const QString &text, const QStringList &texts)
{
    const QString wanted = text.simplified().toLower();
    QList<std::pair<int, QString>> ranked;
    for (const QString &candidate : texts) {
        const QString lower = candidate.toLower();
        const bool isPart = !wanted.isEmpty() && lower.contains(wanted);
        ranked.append({isPart ? 0 : distanceFromBeginning(wanted, lower), candidate});
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<int, QString>::first);

    QStringList nearest;
    for (const auto &[distance, candidate] : ranked) {
        if (nearest.size() < mostTexts && distance <= ranked.front().first + similarity)
            nearest.append(candidate);
    }
    return nearest;
}

QString didYouMean(const QString &text, const QStringList &texts)
{
    return u"\"%1\". Did you mean \"%2\"?"_s.arg(text,
                                                 nearestTexts(text, texts).join(u"\" or \""_s));
}
