// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/commandid.h"

#include <QByteArray>
#include <QString>

/// One command of a model. The ids 1, 9, 11, 22 to 25 and 40 are ranged: `data` and `dataMax` hold
/// the ends of the range of values that the user picks from.
struct CommandEntry
{
    CommandEntry() = default;
    /// Copies the bytes, so that those handed in may lie in memory that goes away.
    CommandEntry(const QString &entryLabel, quint32 id, quint8 codeByte,
                 const QByteArray &dataBytes, const QByteArray &dataMaxBytes);

    QString label;                        ///< text in the panel's lists; English, not translated
    quint32 commandId = CommandId::Other; ///< not unique within a model
    quint8 code = 0;                      ///< command code byte of the frame
    QByteArray data;                      ///< parameter bytes; lowest value of a range
    QByteArray dataMax;                   ///< highest value of a range, else the same as `data`

    bool operator==(const CommandEntry &) const = default;
};

/// The label, and in front of that of a request, the name of its list.
QString commandTitle(const CommandEntry &entry);
