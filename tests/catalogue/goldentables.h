// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// The expected catalogue, written by hand in the text files of golden/. A line is a row of columns
// separated by " | "; lines that begin with '#' and empty lines are skipped. The readers refuse
// whatever they do not understand, so that a slip in a file cannot hide an entry from the tests.

struct GoldenCommand
{
    QString label;
    int commandId = 0;
    int code = 0;
    QByteArray data; ///< as written: two upper-case hexadecimal digits a byte, one blank between
    QByteArray dataMax;
};

struct GoldenModel
{
    bool offered = false; ///< whether the console lists the model
    QString name;
    int protocol = 0;  ///< 0: Classic, 1: Extended
    int transport = 0; ///< 0: Serial, 1: TcpIp
    int minPlayerId = 0;
    int maxPlayerId = 0;
    int folderBankCount = 0;
    QList<int> baudRates;
    int defaultBaudRate = 0;
    int tcpPort = 0;
    QString firmwareVersion;
    QString commandFile;
    QList<GoldenCommand> commands; ///< filled by loadGoldenModels() only
};

/// Reads a command list. On a malformed line the result is empty and `error` is
/// "<fileName>:<line>: <reason>".
QList<GoldenCommand> parseGoldenCommands(const QString &fileName, const QByteArray &text,
                                         QString &error);

/// Reads the list of models, without their commands; errors as above.
QList<GoldenModel> parseGoldenModels(const QString &fileName, const QByteArray &text,
                                     QString &error);

/// Reads models.txt of the folder and every command list that it names. The result is empty and
/// `error` says why when a file cannot be read, is malformed or is named by no model.
QList<GoldenModel> loadGoldenModels(const QString &folder, QString &error);
