// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>

/// A settings file in the order and words of its format. Each member is a value line; nothing is
/// chosen in a default one.
struct SettingsFile
{
    QByteArray language = "(default)";
    QByteArray model = "(default)";
    QByteArray port = "(default)";
    QByteArray baudRate = "(default)";
    QByteArrayList address = {"0", "0", "0", "0"};
    QByteArray autoConnection = "0";
    QByteArray playerId = "(default)";
    QByteArray sentForm = "(default)";
    QByteArray dataForm = "(default)";

    /// The 24 lines, without line ends.
    QByteArrayList lines() const
    {
        return QByteArrayList{"TSY11.00", "Tessaly (Configuration File)",
                              "Generate by: Tessaly 1.2.8.0"}
               + QByteArrayList{"*** Default Language:", language}
               + QByteArrayList{"*** Default Device:", model}
               + QByteArrayList{"*** Default Serial Port:", port}
               + QByteArrayList{"*** Default Baudrate:", baudRate}
               + QByteArrayList{"*** Default IP Address:"} + address
               + QByteArrayList{"*** Default Auto-connection:", autoConnection}
               + QByteArrayList{"*** Default Player ID:", playerId}
               + QByteArrayList{"*** Default Command Bytes Sent Setting:", sentForm}
               + QByteArrayList{"*** Default Data Received Setting:", dataForm};
    }

    /// Every line, the last one too, has a line end.
    QByteArray bytes(const QByteArray &lineEnd = "\n") const
    {
        return lines().join(lineEnd) + lineEnd;
    }
};
