// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framemeaning.h"

#include "catalogue/commandvalues.h"
#include "protocol/bytestext.h"
#include "ui/subtitlecodes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString languageMeaning(const QString &language)
{
    QStringList lists;
    for (const QString &type : {subtitleTypeIso6392B, subtitleTypeIso6392T, subtitleTypeIso6393}) {
        if (subtitleValues(type).contains(language))
            lists.append(type);
    }
    return u"Subtitles %1 (%2)"_s.arg(language, lists.isEmpty() ? u"ISO639, unknown language"_s
                                                                : lists.join(u", "_s));
}

QString contactsText(int contacts)
{
    QStringList numbers;
    for (int contact = 1; contact <= 8; ++contact) {
        if (contacts & (1 << (contact - 1)))
            numbers.append(QString::number(contact));
    }
    return numbers.isEmpty() ? u"none"_s : numbers.join(u", "_s);
}

QString numberMeaning(const DeviceModel &model, const DecodedCommand &command)
{
    QString text = u"%1 %2"_s.arg(command.entry.label).arg(command.number);
    if (!command.inRange) {
        const NumberRange range = valueRange(model, command.entry);
        text += u" (out of range %1 to %2)"_s.arg(range.first).arg(range.last);
    }
    return text;
}

QString clockMeaning(const DecodedCommand &command)
{
    const QString &label = command.entry.label;
    if (!command.inRange)
        return label + " (no such date or time)"_L1;
    const QString date = command.date.toString(Qt::ISODate);
    const QString time = command.time.toString(Qt::ISODate);
    switch (command.entry.commandId) {
    case CommandId::SetTime:
        return label + u' ' + time;
    case CommandId::SetDate:
        return label + u' ' + date;
    case CommandId::SetDateTime:
        return label + u' ' + date + u' ' + time;
    default:
        return label + u' ' + date + u' ' + time + " UTC"_L1;
    }
}

} // namespace

QString commandMeaning(const DeviceModel &model, const DecodedCommand &command)
{
    const QString &label = command.entry.label;
    switch (command.entry.commandId) {
    case CommandId::Folder:
    case CommandId::Volume:
    case CommandId::ChangeId:
    case CommandId::SourceFolder:
    case CommandId::SourceWebradio:
        return numberMeaning(model, command);
    case CommandId::SourceSpotReset:
        return numberMeaning(model, command) + u", option %1"_s.arg(command.option);
    case CommandId::SubtitlesByLanguage:
        return languageMeaning(command.language);
    case CommandId::SubtitlesByIndex:
        return u"Subtitles %1 (%2)"_s.arg(command.number).arg(label);
    case CommandId::Relay:
        return label + u' ' + contactsText(command.number);
    case CommandId::SetTime:
    case CommandId::SetDate:
    case CommandId::SetDateTime:
    case CommandId::SetUtcEpoch:
    case CommandId::SetUtcFull:
        return clockMeaning(command);
    default:
        return commandTitle(command.entry);
    }
}

QString frameLine(const QDateTime &time, const DeviceModel &model, int playerId,
                  const DecodedFrame &frame)
{
    QString addressee = u"no ID"_s;
    QString meaning = u"no frame"_s;
    if (frame.command) {
        meaning = commandMeaning(model, *frame.command);
        if (frame.command->playerId >= 0) {
            addressee = u"ID %1"_s.arg(frame.command->playerId);
            if (frame.command->playerId != playerId)
                meaning += " (for another player, not obeyed)"_L1;
        }
    }
    return QStringList{time.toString(Qt::ISODateWithMs), model.name, addressee,
                       hexBytesText(frame.bytes), meaning}
        .join(u" | "_s);
}
