// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/commandreader.h"

#include "catalogue/commandvalues.h"
#include "protocol/frameencoder.h"
#include "protocol/textmessage.h"
#include "ui/subtitlecodes.h"

#include <QTimeZone>

using namespace Qt::Literals::StringLiterals;

namespace {

/// In the classic family, a byte with the top bit set begins a frame.
constexpr NumberRange sevenBits{0, 127};
constexpr NumberRange playerIdBytes{128, 255};
constexpr NumberRange anyByte{0, 255};

constexpr int bankCodeStep = 16;
constexpr int highestBank = 7;

/// The two-digit years of the clock commands.
constexpr int firstYear = 2000;

bool contains(NumberRange range, int number)
{
    return number >= range.first && number <= range.last;
}

bool takesCode(const CommandEntry &entry, FrameCursor &cursor)
{
    cursor.takeByte({entry.code, entry.code});
    return cursor.state() == FrameCursor::State::Fits;
}

bool isKnownLanguage(const QString &code)
{
    return subtitleValues(subtitleTypeIso6392B).contains(code)
           || subtitleValues(subtitleTypeIso6392T).contains(code)
           || subtitleValues(subtitleTypeIso6393).contains(code);
}

void readFolder(const CommandEntry &entry, FrameCursor &cursor, DecodedCommand &command)
{
    const int code = cursor.takeByte({entry.code, entry.code + bankCodeStep * highestBank});
    const int bank = (code - entry.code) / bankCodeStep;
    if (cursor.state() == FrameCursor::State::Fits && entry.code + bankCodeStep * bank != code)
        cursor.reject();
    command.number = 128 * bank + cursor.takeByte(sevenBits);
}

void readTime(FrameCursor &cursor, DecodedCommand &command)
{
    const int hour = cursor.takeByte(sevenBits);
    const int minute = cursor.takeByte(sevenBits);
    const int second = cursor.takeByte(sevenBits);
    command.time = QTime(hour, minute, second);
    command.inRange = command.inRange && command.time.isValid();
}

void readDate(FrameCursor &cursor, DecodedCommand &command)
{
    const int year = firstYear + cursor.takeByte(sevenBits);
    const int month = cursor.takeByte(sevenBits);
    const int day = cursor.takeByte(sevenBits);
    command.date = QDate(year, month, day);
    command.inRange = command.inRange && command.date.isValid();
}

void readEpoch(FrameCursor &cursor, DecodedCommand &command)
{
    qint64 seconds = 0;
    for (int group = 0; group < 5; ++group)
        seconds = seconds * 128 + cursor.takeByte(sevenBits);
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc());
    command.date = moment.date();
    command.time = moment.time();
}

void readLanguage(FrameCursor &cursor, DecodedCommand &command)
{
    for (int i = 0; i < 3; ++i)
        command.language += QChar(cursor.takeByte({'a', 'z'}));
    command.inRange
        = cursor.state() == FrameCursor::State::Fits && isKnownLanguage(command.language);
}

/// Code and body of the classic family.
void readClassic(const CommandEntry &entry, FrameCursor &cursor, DecodedCommand &command)
{
    if (entry.commandId == CommandId::Folder) {
        readFolder(entry, cursor, command);
        return;
    }
    if (!takesCode(entry, cursor))
        return;
    switch (entry.commandId) {
    case CommandId::Volume:
    case CommandId::ChangeId:
    case CommandId::SubtitlesByIndex:
        command.number = cursor.takeByte(sevenBits);
        break;
    case CommandId::SetTime:
        readTime(cursor, command);
        break;
    case CommandId::SetDate:
        readDate(cursor, command);
        break;
    case CommandId::SetDateTime:
    case CommandId::SetUtcFull:
        readDate(cursor, command);
        readTime(cursor, command);
        break;
    case CommandId::SetUtcEpoch:
        readEpoch(cursor, command);
        break;
    case CommandId::SubtitlesByLanguage:
        readLanguage(cursor, command);
        break;
    case CommandId::Relay:
        command.number = cursor.takeByte(anyByte);
        cursor.expect(QByteArrayView(entry.data).sliced(1));
        break;
    default:
        cursor.expect(entry.data);
        break;
    }
}

/// Code and body of the extended family over a serial line. Nothing marks where a frame begins, so
/// that only values of the model count; the volume's byte is the exception.
void readExtended(const CommandEntry &entry, FrameCursor &cursor, DecodedCommand &command)
{
    if (!takesCode(entry, cursor))
        return;
    switch (entry.commandId) {
    case CommandId::Volume:
        command.number = cursor.takeWord(anyByte);
        cursor.expect(QByteArrayView(entry.data).sliced(2));
        break;
    case CommandId::SourceFolder:
    case CommandId::SourceWebradio:
        command.number = cursor.takeWord(wordRange(entry));
        cursor.expect(QByteArrayView(entry.data).sliced(2));
        break;
    case CommandId::SourceSpotReset:
        command.number = cursor.takeWord(wordRange(entry));
        command.option = cursor.takeByte(byteRange(entry, 2));
        break;
    default:
        cursor.expect(entry.data);
        break;
    }
}

void readTextMessage(const DeviceModel &model, const CommandEntry &entry, FrameCursor &cursor,
                     DecodedCommand &command)
{
    if (!takesCode(entry, cursor))
        return;
    if (entry.commandId == CommandId::Volume) {
        cursor.expect(textMessage("set", volumeTextName));
        command.number = cursor.takeNumberText() + loudestTextVolume;
        return;
    }
    if (!holdsTextName(entry)) {
        cursor.reject();
        return;
    }
    const bool isRequest = entry.commandId == CommandId::Request;
    cursor.expect(textMessage(isRequest ? "get" : "cmd", textName(entry)));
    switch (entry.commandId) {
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate:
        command.number = cursor.takeNumberText();
        cursor.expect("0\0"_ba);
        break;
    default: {
        QByteArray arguments;
        appendPlaybackArguments(model, entry.commandId, arguments);
        cursor.expect(arguments);
        break;
    }
    }
}

} // namespace

CommandReading readCommand(const DeviceModel &model, const CommandEntry &entry,
                           QByteArrayView bytes)
{
    FrameCursor cursor(bytes);
    CommandReading reading;
    DecodedCommand &command = reading.command;
    if (model.protocol == ProtocolKind::Classic) {
        command.playerId = cursor.takeByte(playerIdBytes) - playerIdBytes.first;
        readClassic(entry, cursor, command);
    } else if (model.transport == TransportKind::Serial) {
        readExtended(entry, cursor, command);
    } else {
        readTextMessage(model, entry, cursor, command);
    }

    reading.state = cursor.state();
    if (reading.state != FrameCursor::State::Fits)
        return reading;
    reading.length = cursor.position();
    command.entry = entry;
    if (takesNumber(entry))
        command.inRange = contains(valueRange(model, entry), command.number);
    return reading;
}
