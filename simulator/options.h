// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "simulator/endpoints.h"

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct SimulatorOptions
{
    enum class Action {
        Play,  ///< play the models of `endpoints`
        Print, ///< print `text` and end
        Fail,  ///< print `text` as an error and end with exit status 2
    };

    Action action = Action::Play;
    QString text;
    QList<Endpoint> endpoints;
    QString linkPath;  ///< empty: no link
    QString logPath;   ///< empty: no file
    QString faultName; ///< empty: no fault
    int playerId = 0;
};

/// Reads the command line. Needs the application object, as the help text names the program.
/// \a arguments the program's name first
SimulatorOptions parseOptions(const QStringList &arguments);
