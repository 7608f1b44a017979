// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/configlines.h"
#include "catalogue/devicemodel.h"
#include "sender/byteform.h"
#include "sender/step.h"

#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

/// What the command line asks for.
struct SenderOptions
{
    enum class Action {
        Send,   ///< send the steps over the link
        DryRun, ///< print the frames of the steps
        Print,  ///< print `text` and end
        Fail,   ///< print `text` as an error and end with exit status 2
    };

    Action action = Action::Send;
    QString text;
    QString note; ///< to be told to the user before anything else; may be empty

    DeviceModel model;
    int playerId = 0;
    QString port;        ///< of a serial model
    qint32 baudRate = 0; ///< of a serial model
    QString host;        ///< of a TCP/IP model

    QList<Step> steps;
    int repetitions = 1; ///< of all the steps
    std::chrono::milliseconds gap{50};
    std::chrono::milliseconds timeout{10'000};
    std::optional<std::chrono::milliseconds> wait; ///< for answers; nothing: they are not wanted
    ByteForm answerForm = ByteForm::Text;
    ByteForm frameForm = ByteForm::Hex;
    QString logPath; ///< empty: no file
};

/// What a script file holds, or why it cannot be read.
struct FileContent
{
    QByteArray bytes;
    QString error; ///< empty when it was read
};

/// What lies outside of the command line. Each is asked only when it is needed.
struct Surroundings
{
    std::function<std::optional<SavedSettings>()> savedSettings; ///< the console's
    std::function<FileContent(const QString &path)> readFile;    ///< "-": the standard input
};

/// Reads the command line, and the script if there is one. Needs the application object, as the
/// help text names the program. \a arguments the program's name first
SenderOptions parseSenderOptions(const QStringList &arguments, const Surroundings &surroundings);
