// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/protocolpage.h"

#include "catalogue/commandvalues.h"
#include "protocol/bytestext.h"
#include "protocol/chosencommand.h"
#include "protocol/frameencoder.h"
#include "ui/subtitlecodes.h"

#include <QDateTime>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString introduction
    = uR"(<!-- Made from the catalogue by "tessaly-simulator --protocol". Changes here would be lost. -->

# The bytes on the wire

What Tessaly sends to each model, for those who program a control system. All bytes are
hexadecimal. What the devices answer is not described here: it is not known to this project.

A serial line has 8 data bits, no parity, one stop bit and no flow control. A device in the network
is a TCP server; its port stands at the model.

## Frames of the classic family

```text
 +---------+------+--------------
 | 80 + ID | code | body ...
 +---------+------+--------------
   1 byte   1 byte  0 bytes or more
```

The first byte addresses the player: 80 is player 0, 85 player 5, FF player 127. Only that byte has
to be changed in the tables below for another player. Devices in the network are player 0. "Play"
is `80 02 01` for player 0 and `85 02 01` for player 5.

| Value | How it goes in |
| --- | --- |
| Folder | 10 is added to the code for every full 128 folders; the body is the rest, 00 to 7F. Folder 200 of player 0: `80 11 48` |
| Volume, Change ID, Index | the body is the number, as one byte. The frame of "Change ID" goes to the present ID |
| ISO639 | the body is the three letters of the language, in ASCII |
| Clock | the numbers of the label, a byte each: the year without its century, month and day; hour, minute and second. The time is the local one where the label does not say UTC/GMT |
| Clock, epoch version | the seconds since 1970-01-01 00:00:00 UTC in five groups of 7 bits, the highest first |

## Frames of the extended family

```text
            +------+---------------+--------
 RS-232     | code | value, 2 bytes | 1 byte
            +------+---------------+--------

            +------+----------+------+----+------+----+-------------------+
 TCP/IP     | code | 00 00 00 | verb | 00 | name | 00 | argument | 00 ... |
            +------+----------+------+----+------+----+-------------------+
```

These frames carry no player ID. Over RS-232, folders, web radios and volumes are the value, with
its high byte first. The last byte is an option for the SPOT folders with reset, and fixed for all
other commands; FF stands for nothing.

Over TCP/IP, the parts of the message are ASCII text, each with a 00 behind it. The verb is `cmd`
(code 04), `get` (code 02) or `set` (code 03). The name of a command is the code that it has over
RS-232, as a decimal number. Play, stop and the file steps have two arguments `255`; a source has
its folder or web radio, without leading zeros, and `0`. The volume is sent less 64: 64 is `0`, 0 is
`-64`. The device hangs up after every message. A message that Tessaly sends while the connection is
still open reaches the device twice.

## Models

)"_s;

const QString conventions = uR"(
A command with a range is shown with its first and its last value. The clock commands are shown for
2026-03-07, 14:05:09; those with UTC/GMT in their label for that time in UTC.

Tessaly shows "Change ID" for serial models alone.
)"_s;

struct Example
{
    QString value; ///< for people
    QByteArray frame;
    QByteArray body;
};

bool isUtc(quint32 commandId)
{
    return commandId == CommandId::SetUtcEpoch || commandId == CommandId::SetUtcFull;
}

/// The moment of the examples. Its fields are the same in every time zone.
QDateTime exampleMoment(quint32 commandId)
{
    const QDate date(2026, 3, 7);
    const QTime time(14, 5, 9);
    return isUtc(commandId) ? QDateTime(date, time, QTimeZone::utc()) : QDateTime(date, time);
}

Example example(const DeviceModel &model, const ChosenCommand &command, const QString &value)
{
    quint8 code = 0;
    QByteArray body;
    appendChosenCommand(model, command, exampleMoment(command.entry.commandId), code, body);
    return {value, wireFrame(model, playerIdByteFromText(u"0"_s), code, body), body};
}

/// One for a command without a value; else those of the first and of the last one.
QList<Example> examples(const DeviceModel &model, const CommandEntry &entry)
{
    if (takesNumber(entry)) {
        const NumberRange numbers = valueRange(model, entry);
        // Over TCP/IP the option is not sent.
        const bool hasOption = entry.commandId == CommandId::SourceSpotReset
                               && model.transport == TransportKind::Serial;
        const NumberRange options = hasOption ? byteRange(entry, 2) : NumberRange{0, 0};
        QList<Example> all;
        for (const ChosenCommand &command :
             {ChosenCommand{.entry = entry, .number = numbers.first, .option = options.first},
              ChosenCommand{.entry = entry, .number = numbers.last, .option = options.last}}) {
            QString value = QString::number(command.number);
            if (hasOption)
                value += u", option %1"_s.arg(command.option);
            all.append(example(model, command, value));
        }
        return all;
    }
    switch (entry.commandId) {
    case CommandId::SubtitlesByLanguage: {
        QList<Example> all;
        const QStringList languages = subtitleValues(subtitleTypeIso6392B);
        for (const QString &language : {languages.first(), languages.last()})
            all.append(example(model, {.entry = entry, .language = language}, language));
        return all;
    }
    case CommandId::Relay:
        return {example(model, {.entry = entry}, u"none"_s),
                example(model, {.entry = entry, .closed = 0xFF}, u"1 to 8"_s)};
    default:
        return {example(model, {.entry = entry}, {})};
    }
}

QString row(const QStringList &cells)
{
    return "| "_L1 + cells.join(u" | "_s) + " |\n"_L1;
}

QString ruledRow(const QStringList &titles)
{
    return row(titles) + row(QStringList(titles.size(), u"---"_s));
}

/// A text message as its parts: "cmd 32 255 255".
QString messageText(const QByteArray &body)
{
    return QString::fromLatin1(body).remove(0, 3).split(u'\0').join(u' ').trimmed();
}

QString commandTable(const DeviceModel &model)
{
    QStringList titles{u"Command"_s, u"Value"_s, u"Bytes"_s};
    if (model.connectsOnDemand())
        titles.append(u"Message"_s);
    QString table = ruledRow(titles);
    for (const CommandEntry &entry : model.commands) {
        QStringList values;
        QStringList frames;
        QStringList messages;
        for (const Example &shown : examples(model, entry)) {
            values.append(shown.value);
            frames.append(u'`' + hexBytesText(shown.frame) + u'`');
            messages.append(u'`' + messageText(shown.body) + u'`');
        }
        QStringList cells{commandTitle(entry), values.join(" ... "_L1), frames.join(" ... "_L1)};
        if (model.connectsOnDemand())
            cells.append(messages.join(" ... "_L1));
        table += row(cells);
    }
    return table;
}

QString linkText(const DeviceModel &model)
{
    if (model.transport == TransportKind::TcpIp)
        return u"TCP/IP, port %1"_s.arg(model.tcpPort);
    QStringList rates;
    for (const qint32 rate : model.baudRates) {
        const QString text = QString::number(rate);
        rates.append(rate == model.defaultBaudRate && model.baudRates.size() > 1
                         ? u"**%1**"_s.arg(text)
                         : text);
    }
    return u"RS-232, %1 baud"_s.arg(rates.join(u", "_s));
}

QString modelTable(const DeviceCatalogue &catalogue)
{
    QString table = ruledRow(
        {u"Model"_s, u"Family"_s, u"Link (**preset**)"_s, u"Player ID"_s, u"From firmware"_s});
    for (const DeviceModel &model : catalogue) {
        const bool isClassic = model.protocol == ProtocolKind::Classic;
        QString ids = u"none"_s;
        if (isClassic && model.minPlayerId == model.maxPlayerId)
            ids = QString::number(model.minPlayerId);
        else if (isClassic)
            ids = u"%1 to %2"_s.arg(model.minPlayerId).arg(model.maxPlayerId);
        table += row({model.name, isClassic ? u"classic"_s : u"extended"_s, linkText(model), ids,
                      model.firmwareVersion.isEmpty() ? u"any"_s : model.firmwareVersion});
    }
    return table;
}

/// A table, and the models that it holds for.
struct Section
{
    QStringList models;
    QString table;
};

QList<Section> sections(const DeviceCatalogue &catalogue)
{
    QList<Section> all;
    for (const DeviceModel &model : catalogue) {
        const QString table = commandTable(model);
        const auto same = std::ranges::find(all, table, &Section::table);
        if (same == all.end())
            all.append({{model.name}, table});
        else
            same->models.append(model.name);
    }
    return all;
}

} // namespace

QString protocolPage(const DeviceCatalogue &catalogue)
{
    QString page = introduction + modelTable(catalogue) + conventions;
    for (const Section &section : sections(catalogue))
        page += u"\n### %1\n\n%2"_s.arg(section.models.join(u", "_s), section.table);
    return page;
}
