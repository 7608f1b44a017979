// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/listnumbers.h"
#include "protocol/chosencommand.h"

#include <QStringList>

#include <optional>

/// What words on a command line or in a script mean.
struct WordsMeaning
{
    std::optional<ChosenCommand> command;
    QString error; ///< in a sentence, when there is no command
};

/// Reads a command and its values: the catalogue's label, in any case and with hyphens for blanks,
/// in one word or in several; or the name of a list ("request", "source", "subtitles") and what is
/// picked from it. A label that several commands have means the one that is in no list.
WordsMeaning readCommandWords(const DeviceModel &model, const QStringList &words);

/// The command as these words are written: "Folder", "request \"Player Status\"". What contains a
/// blank is in quotes.
QString commandWords(const CommandEntry &entry);

/// The name of the list that the command is picked from; empty for what is in none.
QString pickListName(const CommandEntry &entry);

/// A value that a command takes behind its words.
struct CommandValue
{
    QString name;                     ///< "number", "option", "language", "contact"
    std::optional<NumberRange> range; ///< nothing for a language
    bool isRepeatable = false;        ///< may be left out or given several times
};

/// The values that the command takes, in their order.
QList<CommandValue> valuesOf(const DeviceModel &model, const CommandEntry &entry);
