// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/labelledcommands.h"

#include "protocol/clockbytes.h"
#include "protocol/textmessage.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Writes a 16-bit big-endian value over the first two bytes, which there must be.
void writeWord(int value, QByteArray &body)
{
    body[0] = static_cast<char>(value / 256);
    body[1] = static_cast<char>(value);
}

void writeChoice(quint32 commandId, const PlaybackChoice &choice, QByteArray &body)
{
    switch (commandId) {
    case CommandId::SourceFolder:
        if (body.size() >= 2)
            writeWord(choice.reference, body);
        break;
    case CommandId::SourceSpotReset:
        if (body.size() >= 3) {
            writeWord(choice.reference, body);
            body[2] = static_cast<char>(choice.option);
        }
        break;
    case CommandId::SourceWebradio:
        if (body.size() >= 2)
            writeWord(choice.webradio, body);
        break;
    default:
        break;
    }
}

/// First argument of a launch over TCP/IP. The SPOT reset variants get an empty one: the option
/// list plays no part on the network.
QByteArray firstArgument(quint32 commandId, const PlaybackChoice &choice)
{
    switch (commandId) {
    case CommandId::SourceFolder:
        return QByteArray::number(choice.reference);
    case CommandId::SourceWebradio:
        return QByteArray::number(choice.webradio);
    case CommandId::SourceAlternate:
        return "0"_ba;
    default:
        return {};
    }
}

} // namespace

void appendRequest(const DeviceModel &model, const QString &label, quint8 &code, QByteArray &body)
{
    for (const CommandEntry &entry : model.commands) {
        if (entry.commandId != CommandId::Request || entry.label != label)
            continue;
        code = entry.code;
        if (!model.connectsOnDemand())
            body += entry.data;
        else if (holdsTextName(entry))
            body += textMessage("get", textName(entry));
    }
}

void appendOtherCommand(const DeviceModel &model, const QString &label, const QDateTime &now,
                        quint8 &code, QByteArray &body)
{
    for (const CommandEntry &entry : model.commands) {
        if (entry.label != label)
            continue;
        code = entry.code;
        const QByteArray clock = clockBytes(entry.commandId, now);
        if (clock.isEmpty())
            body += entry.data;
        else
            body += clock;
    }
}

void appendPlaybackSource(const DeviceModel &model, const QString &label,
                          const PlaybackChoice &choice, quint8 &code, QByteArray &body)
{
    for (const CommandEntry &entry : model.commands) {
        if (entry.label != label)
            continue;
        code = entry.code;
        if (model.transport == TransportKind::Serial) {
            body += entry.data;
            writeChoice(entry.commandId, choice, body);
        } else if (holdsTextName(entry)) {
            body += textMessage("cmd", textName(entry));
            body += firstArgument(entry.commandId, choice);
            body += '\0';
            body += '0';
            body += '\0';
        }
    }
}
