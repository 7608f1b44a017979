// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/commandentry.h"

#include <QByteArray>
#include <QByteArrayView>

// Text messages of the extended family over TCP/IP, behind the code byte:
//
//     00 00 00 | verb | 00 | name | 00 [ | argument | 00 ... ]
//
// All parts are ASCII; the verb is "cmd", "get" or "set".

/// Name of the volume in a "set" message. Its argument is the volume less `loudestTextVolume`: 64
/// is sent as 0, 0 as -64.
inline constexpr char volumeTextName[] = "VolumeLocalMusic";
inline constexpr int loudestTextVolume = 64;

/// The message up to the zero behind the name; arguments follow it.
QByteArray textMessage(QByteArrayView verb, QByteArrayView name);

/// Whether the entry has a name for a text message: it stands behind the two range or filler bytes
/// of `data`, and `dataMax` has to be as long as three bytes, too.
bool holdsTextName(const CommandEntry &entry);

/// The name; only for an entry that holds one, and for as long as it does.
QByteArrayView textName(const CommandEntry &entry);
