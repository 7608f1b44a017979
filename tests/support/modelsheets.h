// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// What each model is to be, typed from the maker's documents: one file per model in tests/models.
// Nothing here comes from the product, and none of it is linked.
//
// A sheet begins with a head, a line "key: value" for each of:
//
//     model          as the console lists it
//     after          the model before it in the list; "none": it is the first; "not offered"
//     family         Classic, Extended
//     link           serial, TCP/IP
//     baud rates     serial alone: in the order of the list, the one preset marked "(default)"
//     TCP port       TCP/IP alone
//     player IDs     "0 to 127", or one number
//     folder banks   of 128 folders
//     firmware       "none" where there is no note about it
//
// A line for each command follows, in the model's order:
//
//     label | id | frame | values | frame, highest | in the catalogue
//
// The frame is that to player 0, with the lowest of the values where one is chosen. Bytes are
// hexadecimal, or text in double quotes. The last column tells what the frames do not show:
// "data 00", "dataMax 7F", or both with a comma.
//
// When two sheets name the same model as the one before, the one that fewer others follow stands
// first: a new model needs no change of another one's sheet.

struct SheetCommand
{
    QString label;
    quint32 id = 0;
    QByteArray frame;        ///< to player 0, with the lowest value
    QString lowest;          ///< the value in the words of the logs; empty where none is chosen
    QString highest;         ///< empty where there is only one, as for a moment
    QByteArray highestFrame; ///< to player 0; empty where `highest` is
    quint8 code = 0;         ///< with the next two, what the catalogue holds
    QByteArray data;
    QByteArray dataMax;

    bool hasRange() const { return !highest.isEmpty(); }
    int lowestNumber() const { return lowest.section(u',', 0, 0).toInt(); }
    int highestNumber() const { return highest.section(u',', 0, 0).toInt(); }
    /// How a log names the command with one of its values: "Folder 999", "Request: Volume".
    QString meaning(const QString &value) const;
};

struct ModelSheet
{
    QString fileName;
    QString name;
    bool isOffered = true;
    bool isExtended = false;
    bool isTcp = false;
    QList<qint32> baudRates;
    qint32 defaultBaudRate = -1;
    quint16 tcpPort = 0;
    int lowestPlayerId = 0;
    int highestPlayerId = 0;
    int folderBanks = 0;
    QString firmware; ///< empty: none
    QList<SheetCommand> commands;

    /// Such a device is connected to for each command.
    bool connectsOnDemand() const { return isExtended && isTcp; }
    bool hasPlayerIds() const { return highestPlayerId > lowestPlayerId; }
    /// The only ID, or the lowest, 1, 5, 64 and the highest: of most models, 0 and 127.
    QList<int> playerIdSamples() const;
    /// A frame of the sheet as another player gets it. One of a model without IDs stays as it is.
    QByteArray addressed(const QByteArray &frame, int playerId) const;

    QList<SheetCommand> commandsOf(quint32 id) const;
    bool has(quint32 id) const { return !commandsOf(id).isEmpty(); }
};

/// Those that the console offers, in the order of its list. A slip in any sheet ends the program,
/// with its file and line.
const QList<ModelSheet> &modelSheets();

/// Those that are defined and not offered.
const QList<ModelSheet> &unofferedSheets();

/// \a name of a model, offered or not; there has to be a sheet
const ModelSheet &sheetOf(const QString &name);
