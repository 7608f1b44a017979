// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sender/step.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

/// What a script asks for, or what is wrong with it.
struct Script
{
    QList<Step> steps;  ///< empty when there are errors
    QStringList errors; ///< "name:3: ...", a line each; no more than eleven
};

/// Reads the lines of a script in UTF-8: a command as on the command line; "wait MS"; a comment,
/// from a word that begins with "#" to the end of the line; or nothing. Values with blanks stand in
/// double quotes. A script without any command is an error. \a name what the errors call it
Script readScript(const DeviceModel &model, const QString &name, const QByteArray &text);
