// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/script.h"

#include "catalogue/listnumbers.h"
#include "sender/commandwords.h"
#include "sender/limits.h"

#include <QProcess>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostErrors = 10;

/// The words in front of a comment; nothing when a quote is not closed.
std::optional<QStringList> wordsOf(const QString &line)
{
    QStringList words = QProcess::splitCommand(line);
    qsizetype count = 0;
    while (count < words.size() && !words.at(count).startsWith(u'#'))
        ++count;
    const bool hasComment = count < words.size();
    words.resize(count);
    // What the author writes behind "#" is nobody's business.
    const QString code = hasComment ? line.section(u'#', 0, 0) : line;
    if (code.count(u'"') % 2 != 0)
        return std::nullopt;
    return words;
}

} // namespace

Script readScript(const DeviceModel &model, const QString &name, const QByteArray &text)
{
    Script script;
    bool hasCommand = false;
    int number = 0;
    const auto reject = [&](const QString &error) {
        script.errors.append(u"%1:%2: %3"_s.arg(name, QString::number(number), error));
    };
    for (const QString &line : QString::fromUtf8(text).split(u'\n')) {
        if (script.errors.size() == mostErrors) {
            script.errors.append(name + ": The rest is not looked at."_L1);
            break;
        }
        ++number;
        const std::optional<QStringList> words = wordsOf(line.trimmed());
        if (!words) {
            reject(u"A quote is not closed."_s);
        } else if (words->isEmpty()) {
            continue;
        } else if (words->constFirst().compare("wait"_L1, Qt::CaseInsensitive) == 0) {
            const auto pause = numberInRange(words->value(1), pauseLimits);
            if (words->size() == 2 && pause)
                script.steps.append(std::chrono::milliseconds(*pause));
            else
                reject(u"wait takes a number of milliseconds, %1."_s.arg(rangeText(pauseLimits)));
        } else if (const WordsMeaning meaning = readCommandWords(model, *words); meaning.command) {
            hasCommand = true;
            script.steps.append(*meaning.command);
        } else {
            reject(meaning.error);
        }
    }
    if (script.errors.isEmpty() && !hasCommand)
        script.errors.append(name + ": There is no command in it."_L1);
    if (!script.errors.isEmpty())
        script.steps.clear();
    return script;
}
