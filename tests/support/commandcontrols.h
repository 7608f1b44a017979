// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>
#include <QList>
#include <QStringList>

/// How the window offers the commands of some ids, by the names of its widgets.
struct CommandControl
{
    enum class List {
        None,
        Labels, ///< holds the labels of the model's commands of these ids
        Values, ///< holds the values that the command can have
    };

    QList<quint32> ids;
    QByteArrayList panels; ///< seen where a model has such a command; hidden where it has none
    QByteArray list;       ///< where the command or its value is chosen; empty: nowhere
    List listHolds = List::None;
    QByteArray button;     ///< sends the command; empty: the slider does
    QStringList shortcuts; ///< as QKeySequence writes them; those of folders stand for 0 to 9
};

/// One for each id that the window knows.
const QList<CommandControl> &commandControls();

/// \a id one that the window knows
const CommandControl &controlOf(quint32 id);
