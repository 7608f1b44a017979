// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"

#include <QByteArray>
#include <QDateTime>

// Commands that the user picks from a list by their label. Every entry of the exact label adds to
// `body`, and `code` is that of the last one; an empty body means that there is nothing to send.

/// Appends the request of that label: its data, or a text message of the verb "get" to the
/// connect-on-demand family.
void appendRequest(const DeviceModel &model, const QString &label, quint8 &code, QByteArray &body);

/// Appends the data of the command of that label, of whatever id; the clock commands carry the
/// moment `now` in place of their data.
void appendOtherCommand(const DeviceModel &model, const QString &label, const QDateTime &now,
                        quint8 &code, QByteArray &body);

/// The numbers chosen beside a source of playback.
struct PlaybackChoice
{
    int reference = 0;
    int option = 0;
    int webradio = 0;
};

/// Appends the launch of the source of that label. Over a serial line the numbers are written into
/// its data; over TCP/IP they follow the text message as arguments, without the option.
void appendPlaybackSource(const DeviceModel &model, const QString &label,
                          const PlaybackChoice &choice, quint8 &code, QByteArray &body);
