// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/modelsheets.h"

#include <QMap>
#include <QSet>
#include <QStringList>

class ConsoleWindow;

/// The rows beside a source of playback.
struct SourceLists
{
    QStringList references;
    QStringList options;
    QStringList radios;
};

/// Everything in the window that depends on the selected model.
struct ModelPanel
{
    QString model;
    QSet<QString> hidden;               ///< of all widgets that have a name
    QMap<QByteArray, QStringList> rows; ///< of each list
    QMap<QByteArray, int> current;      ///< row of each list; -1: it is empty
    QString volume;                     ///< as sliderState() writes it
    QString port;
    QString note;

    /// To compare two of them with lineDifferences().
    QStringList lines() const;
};

/// What the window shows now.
ModelPanel shownPanel(const ConsoleWindow &console);

/// What it has to show after the model of a sheet was chosen.
/// \a volume the slider before: a model without a volume leaves it alone
/// \a port   the text of the port number before: only a TCP/IP model writes it
ModelPanel expectedPanel(const ModelSheet &sheet, const QString &volume, const QString &port);

/// A source of each kind that a model has: all of a kind have the same lists beside them.
QStringList kindsOfSources(const ModelSheet &sheet);

/// What has to stand beside a source of playback of a sheet.
SourceLists sourceLists(const SheetCommand &source);

/// The panels of these lists, by the command id of the source.
QStringList sourcePanels(quint32 id);

/// The widgets that a model can hide.
const QSet<QString> &modelWidgets();

/// The lists that a model fills.
const QByteArrayList &modelLists();

/// Numbers from \a first to \a last as the window shows folders: "007".
QStringList paddedRun(int first, int last);

/// The note about a model in English; empty where its sheet names no firmware.
QString firmwareNote(const QString &firmware);

/// The slider of the volume: "0..64 at 64".
QString sliderState(const ConsoleWindow &console);
