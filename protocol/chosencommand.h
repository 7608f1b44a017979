// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <bitset>

/// A command of a model with the values that the user chose for it, all of them checked.
struct ChosenCommand
{
    CommandEntry entry;
    int number = 0;            ///< where the command takes one
    int option = 0;            ///< of a SPOT folder with reset
    QString language = {};     ///< three letters, of a subtitle language
    std::bitset<8> closed = 0; ///< output contacts, the first one at index 0
};

/// Appends what the console's slots append for the same choice, and writes the code.
/// \a now the moment that clock commands carry
/// \a body is handed in empty
void appendChosenCommand(const DeviceModel &model, const ChosenCommand &command,
                         const QDateTime &now, quint8 &code, QByteArray &body);

/// The bytes on the wire: those that the console sends for the same choice.
/// \a playerId 0 to 127
/// \a now the moment that clock commands carry
QByteArray frameOf(const DeviceModel &model, int playerId, const ChosenCommand &command,
                   const QDateTime &now);

/// Label and values for a log: "Folder 200", "Request: Player Status".
QString commandText(const ChosenCommand &command);
