// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/chosencommand.h"

#include "catalogue/commandvalues.h"
#include "protocol/frameencoder.h"
#include "protocol/labelledcommands.h"

using namespace Qt::Literals::StringLiterals;

void appendChosenCommand(const DeviceModel &model, const ChosenCommand &command,
                         const QDateTime &now, quint8 &code, QByteArray &body)
{
    const quint32 id = command.entry.commandId;
    switch (id) {
    case CommandId::Folder:
        appendCommand(model, id, code, body);
        applyFolderNumber(command.number, code, body);
        break;
    case CommandId::Volume: {
        const int minimum = valueRange(model, command.entry).first;
        appendVolumeCommand(model, sliderVolumeByte(minimum, command.number), code, body);
        break;
    }
    case CommandId::ChangeId:
        appendCommand(model, id, code, body);
        applyFirstByte(command.number, body);
        break;
    case CommandId::Relay:
        appendCommand(model, id, code, body);
        applyContacts(command.closed, body);
        break;
    case CommandId::SubtitlesByLanguage:
        appendCommand(model, id, code, body);
        body = languageCodeBytes(command.language);
        break;
    case CommandId::SubtitlesByIndex:
        appendCommand(model, id, code, body);
        body = subtitleIndexBytes(command.number);
        break;
    case CommandId::Request:
        appendRequest(model, command.entry.label, code, body);
        break;
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate:
        appendPlaybackSource(
            model, command.entry.label,
            {.reference = command.number, .option = command.option, .webradio = command.number},
            code, body);
        break;
    case CommandId::PreviousFolder:
    case CommandId::PreviousFile:
    case CommandId::Play:
    case CommandId::Stop:
    case CommandId::Pause:
    case CommandId::NextFile:
    case CommandId::NextFolder:
    case CommandId::StandbyWakeup:
    case CommandId::MuteToggle:
    case CommandId::SubtitlesOff:
    case CommandId::SubtitlesOn:
    case CommandId::SubtitlesPrevious:
    case CommandId::SubtitlesNext:
    case CommandId::SubtitlesPreviousLoop:
    case CommandId::SubtitlesNextLoop:
        appendCommand(model, id, code, body);
        appendPlaybackArguments(model, id, body);
        break;
    default:
        appendOtherCommand(model, command.entry.label, now, code, body);
        break;
    }
}

QByteArray frameOf(const DeviceModel &model, int playerId, const ChosenCommand &command,
                   const QDateTime &now)
{
    quint8 code = 0;
    QByteArray body;
    appendChosenCommand(model, command, now, code, body);
    return wireFrame(model, playerIdByteFromText(QString::number(playerId)), code, body);
}

QString commandText(const ChosenCommand &command)
{
    const CommandEntry &entry = command.entry;
    QString text = commandTitle(entry);
    if (takesNumber(entry))
        text += u' ' + QString::number(command.number);
    if (entry.commandId == CommandId::SourceSpotReset)
        text += u' ' + QString::number(command.option);
    if (entry.commandId == CommandId::SubtitlesByLanguage)
        text += u' ' + command.language;
    for (size_t i = 0; entry.commandId == CommandId::Relay && i < command.closed.size(); ++i) {
        if (command.closed.test(i))
            text += u' ' + QString::number(i + 1);
    }
    return text;
}
