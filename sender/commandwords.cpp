// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/commandwords.h"

#include "catalogue/commandvalues.h"
#include "catalogue/nearesttexts.h"
#include "ui/subtitlecodes.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr NumberRange contacts{1, 8};

/// More than any label has.
constexpr qsizetype mostLabelWords = 16;

/// The lists that the console's panels offer by their names.
enum class PickList { None, Request, Source, Subtitles };

struct ListName
{
    PickList list;
    QLatin1StringView name;
    QLatin1StringView entries; ///< for "Tempo Deck has no ..."
};

constexpr std::array listNames{
    ListName{PickList::Request, "request"_L1, "requests"_L1},
    ListName{PickList::Source, "source"_L1, "sources"_L1},
    ListName{PickList::Subtitles, "subtitles"_L1, "choice of subtitles"_L1},
};

PickList listOf(const CommandEntry &entry)
{
    switch (entry.commandId) {
    case CommandId::Request:
        return PickList::Request;
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate:
        return PickList::Source;
    case CommandId::SubtitlesByLanguage:
    case CommandId::SubtitlesByIndex:
        return PickList::Subtitles;
    default:
        return PickList::None;
    }
}

/// Letter by letter, as hyphens are parts of labels, too: "Volume -" is not "Volume".
bool isWritten(const QString &text, const QString &label)
{
    return std::ranges::equal(text, label, [](QChar typed, QChar letter) {
        return typed.toCaseFolded() == letter.toCaseFolded() || (typed == u'-' && letter == u' ');
    });
}

WordsMeaning failure(const QString &text)
{
    return {std::nullopt, text};
}

/// What the user typed, as far as it is worth repeating: a file that is no script has long lines.
QString shown(const QString &typed)
{
    constexpr qsizetype mostLetters = 60;
    return typed.size() > mostLetters ? typed.first(mostLetters) + "..."_L1 : typed;
}

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

/// What the user took for a name: all words but the numbers at their end.
QString nameOf(QStringList words)
{
    bool isNumber = true;
    while (words.size() > 1) {
        words.constLast().toInt(&isNumber);
        if (!isNumber)
            break;
        words.removeLast();
    }
    return words.join(u' ');
}

/// "a number from 0 to 999"
QString valueText(const CommandValue &value)
{
    if (!value.range)
        return u"a language code of three letters"_s;
    return u"%1 %2 from %3"_s.arg(value.name.startsWith(u'o') ? u"an"_s : u"a"_s, value.name,
                                  rangeText(*value.range));
}

QString valuesText(const QList<CommandValue> &values)
{
    QStringList texts;
    for (const CommandValue &value : values)
        texts.append(valueText(value));
    return texts.isEmpty() ? u"no value"_s : texts.join(" and "_L1);
}

QStringList languageCodes()
{
    QStringList codes = subtitleValues(subtitleTypeIso6392B) + subtitleValues(subtitleTypeIso6392T)
                        + subtitleValues(subtitleTypeIso6393);
    codes.removeDuplicates();
    return codes;
}

WordsMeaning withContacts(ChosenCommand command, const QStringList &words)
{
    for (const QString &word : words) {
        const std::optional<int> contact = numberInRange(word, contacts);
        if (!contact)
            return failure(u"\"%1\" is no contact, %2."_s.arg(shown(word), rangeText(contacts)));
        command.closed.set(static_cast<size_t>(*contact - contacts.first));
    }
    return {command, {}};
}

WordsMeaning withValues(const DeviceModel &model, const CommandEntry &entry,
                        const QStringList &words)
{
    ChosenCommand command;
    command.entry = entry;
    if (entry.commandId == CommandId::Relay)
        return withContacts(command, words);

    const QList<CommandValue> values = valuesOf(model, entry);
    if (words.size() != values.size()) {
        const QString given
            = words.isEmpty() ? u"none is given"_s : u"not \"%1\""_s.arg(shown(words.join(u' ')));
        return failure(u"%1 takes %2%3."_s.arg(
            commandWords(entry), valuesText(values),
            values.isEmpty() || !words.isEmpty() ? ", "_L1 + given : "; "_L1 + given));
    }
    std::array<int *, 2> numbers{&command.number, &command.option};
    for (qsizetype i = 0; i < values.size(); ++i) {
        if (!values.at(i).range) {
            command.language = words.at(i).toLower();
            const QStringList codes = languageCodes();
            if (!codes.contains(command.language))
                return failure("There is no subtitle language "_L1
                               + didYouMean(shown(words.at(i)), codes));
            continue;
        }
        const std::optional<int> number = numberInRange(words.at(i), *values.at(i).range);
        if (!number) {
            return failure(u"%1 takes %2, not \"%3\"."_s.arg(
                commandWords(entry), valueText(values.at(i)), shown(words.at(i))));
        }
        *numbers.at(static_cast<size_t>(i)) = *number;
    }
    return {command, {}};
}

/// Language or track, whichever the value looks like, unless it is named.
WordsMeaning readSubtitles(const DeviceModel &model, const QList<CommandEntry> &entries,
                           const QStringList &words)
{
    if (words.isEmpty()) {
        QStringList choices;
        for (const CommandEntry &entry : entries)
            choices.append(valuesText(valuesOf(model, entry)));
        return failure(u"subtitles takes %1; none is given."_s.arg(choices.join(" or "_L1)));
    }
    for (const CommandEntry &entry : entries) {
        if (isWritten(words.constFirst(), entry.label))
            return withValues(model, entry, words.sliced(1));
    }
    const bool isTrack = std::ranges::all_of(
        words.constFirst(), [](QChar c) { return c.isDigit() || c == u'-' || c == u'+'; });
    const quint32 wanted = isTrack ? CommandId::SubtitlesByIndex : CommandId::SubtitlesByLanguage;
    const auto found = std::ranges::find(entries, wanted, &CommandEntry::commandId);
    return withValues(model, found == entries.cend() ? entries.constFirst() : *found, words);
}

/// Looks among the entries for the one whose label the first words are, as many of them as
/// possible.
WordsMeaning readLabel(const DeviceModel &model, const QList<CommandEntry> &entries,
                       const QStringList &words, const QString &what)
{
    for (qsizetype count = std::min(words.size(), mostLabelWords); count > 0; --count) {
        const QString text = words.first(count).join(u' ').simplified();
        for (const CommandEntry &entry : entries) {
            if (isWritten(text, entry.label))
                return withValues(model, entry, words.sliced(count));
        }
    }
    QStringList labels;
    for (const CommandEntry &entry : entries)
        labels.append(entry.label);
    return failure(u"%1 has no %2 "_s.arg(model.name, what)
                   + didYouMean(shown(nameOf(words)), labels));
}

} // namespace

QList<CommandValue> valuesOf(const DeviceModel &model, const CommandEntry &entry)
{
    QList<CommandValue> values;
    if (takesNumber(entry))
        values.append({u"number"_s, valueRange(model, entry)});
    if (entry.commandId == CommandId::SourceSpotReset)
        values.append({u"option"_s, byteRange(entry, 2)});
    if (entry.commandId == CommandId::SubtitlesByLanguage)
        values.append({u"language"_s, std::nullopt});
    if (entry.commandId == CommandId::Relay)
        values.append({u"contact"_s, contacts, true});
    return values;
}

QString commandWords(const CommandEntry &entry)
{
    QString label = entry.label.contains(u' ') ? quoted(entry.label) : entry.label;
    const QString list = pickListName(entry);
    if (list.isEmpty())
        return label;
    // What is picked from the list of subtitles is a value, and the label is not needed.
    return listOf(entry) == PickList::Subtitles ? list : list + u' ' + label;
}

QString pickListName(const CommandEntry &entry)
{
    for (const ListName &name : listNames) {
        if (name.list == listOf(entry))
            return name.name;
    }
    return {};
}

WordsMeaning readCommandWords(const DeviceModel &model, const QStringList &words)
{
    if (words.isEmpty())
        return failure(u"Which command?"_s);

    for (const ListName &name : listNames) {
        if (words.constFirst().compare(name.name, Qt::CaseInsensitive) != 0)
            continue;
        QList<CommandEntry> entries;
        std::ranges::copy_if(model.commands, std::back_inserter(entries),
                             [&](const CommandEntry &entry) { return listOf(entry) == name.list; });
        const QStringList rest = words.sliced(1);
        if (entries.isEmpty())
            return failure(u"%1 has no %2."_s.arg(model.name, name.entries));
        if (name.list == PickList::Subtitles)
            return readSubtitles(model, entries, rest);
        if (rest.isEmpty())
            return failure(u"Which %1?"_s.arg(name.name));
        return readLabel(model, entries, rest, name.name);
    }

    // What is in no list comes first, so that it is found before its namesake in a list.
    QList<CommandEntry> entries = model.commands;
    std::stable_partition(entries.begin(), entries.end(), [](const CommandEntry &entry) {
        return listOf(entry) == PickList::None;
    });
    return readLabel(model, entries, words, u"command"_s);
}
