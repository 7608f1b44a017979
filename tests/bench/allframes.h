// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"
#include "protocol/frameencoder.h"
#include "protocol/labelledcommands.h"

#include <QByteArrayList>

/// Builds the frame of every command of every model, in the way in which the window does.
/// \a take gets each frame, a QByteArray
template<typename Take>
void forEachFrame(const DeviceCatalogue &models, Take take)
{
    constexpr quint8 playerIdByte = 0x85;
    const QDateTime now(QDate(2026, 3, 7), QTime(14, 5, 9));
    for (const DeviceModel &model : models) {
        for (const CommandEntry &entry : model.commands) {
            quint8 code = 0;
            QByteArray body;
            switch (entry.commandId) {
            case CommandId::Volume:
                appendVolumeCommand(model, 40, code, body);
                break;
            case CommandId::Request:
                appendRequest(model, entry.label, code, body);
                break;
            case CommandId::SourceFolder:
            case CommandId::SourceSpotReset:
            case CommandId::SourceWebradio:
            case CommandId::SourceAlternate:
                appendPlaybackSource(model, entry.label, {1, 2, 3}, code, body);
                break;
            case CommandId::Folder:
                appendCommand(model, entry.commandId, code, body);
                applyFolderNumber(200, code, body);
                break;
            case CommandId::PreviousFolder:
            case CommandId::PreviousFile:
            case CommandId::Play:
            case CommandId::Stop:
            case CommandId::Pause:
            case CommandId::NextFile:
            case CommandId::NextFolder:
            case CommandId::ChangeId:
            case CommandId::StandbyWakeup:
            case CommandId::MuteToggle:
            case CommandId::Relay:
            case CommandId::SubtitlesOff:
            case CommandId::SubtitlesOn:
            case CommandId::SubtitlesPrevious:
            case CommandId::SubtitlesNext:
            case CommandId::SubtitlesPreviousLoop:
            case CommandId::SubtitlesNextLoop:
            case CommandId::SubtitlesByLanguage:
            case CommandId::SubtitlesByIndex:
                appendCommand(model, entry.commandId, code, body);
                appendPlaybackArguments(model, entry.commandId, body);
                break;
            default:
                appendOtherCommand(model, entry.label, now, code, body);
                break;
            }
            take(wireFrame(model, playerIdByte, code, body));
        }
    }
}

inline QByteArrayList allFrames(const DeviceCatalogue &models)
{
    QByteArrayList frames;
    forEachFrame(models, [&frames](const QByteArray &frame) { frames.append(frame); });
    return frames;
}
