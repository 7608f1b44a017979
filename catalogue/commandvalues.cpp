// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandvalues.h"

bool takesNumber(const CommandEntry &entry)
{
    switch (entry.commandId) {
    case CommandId::Folder:
    case CommandId::Volume:
    case CommandId::ChangeId:
    case CommandId::SubtitlesByIndex:
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
        return true;
    default:
        return false;
    }
}

NumberRange valueRange(const DeviceModel &model, const CommandEntry &entry)
{
    if (entry.commandId == CommandId::Folder)
        return folderRange(entry, model.folderBankCount);
    return model.protocol == ProtocolKind::Classic ? byteRange(entry) : wordRange(entry);
}
