// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"

#include <QByteArray>

#include <bitset>

// The bytes of a command, from a model and plain values. What appends takes a `body` that the
// caller hands in empty, and writes `code` only when the model has the command.

/// Appends the data of every command of the id and reports the last one's code: a model that lists
/// an id twice sends both bodies in one frame. A command of the connect-on-demand family that is
/// no text command (code 4, at least three bytes in `data` and `dataMax`) gets an empty body.
/// \return whether the model has such a command
bool appendCommand(const DeviceModel &model, quint32 commandId, quint8 &code, QByteArray &body);

/// Appends the volume command with `volumeByte` written into it. The text form of the
/// connect-on-demand family carries the volume less 64, as signed decimal text; there, a volume
/// command of another code than 3 gets an empty body.
/// \return whether the model has a volume command
bool appendVolumeCommand(const DeviceModel &model, quint8 volumeByte, quint8 &code,
                         QByteArray &body);

/// The byte that a volume slider at `value` sends, modulo 256. The slider's minimum counts twice,
/// as the value already lies above it.
quint8 sliderVolumeByte(int minimum, int value);

/// Appends the two arguments that the connect-on-demand family expects behind play, stop and the
/// file steps; leaves the body of every other model and command as it is.
void appendPlaybackArguments(const DeviceModel &model, quint32 commandId, QByteArray &body);

/// Writes the folder number into a folder command: each bank of 128 folders adds 16 to the code,
/// the place within the bank is the first body byte.
/// \a folder any number; below zero the bank is cut towards zero
void applyFolderNumber(int folder, quint8 &code, QByteArray &body);

/// Overwrites the first body byte with the low 8 bits of `value`; an empty body stays empty.
void applyFirstByte(int value, QByteArray &body);

/// Adds to the first body byte, modulo 256; an empty body stays empty.
void addToFirstByte(int value, QByteArray &body);

/// Adds the output contacts that are to be closed to the first body byte: contact 1 is bit 0.
/// \a closed each of the eight contacts, the first one at index 0
void applyContacts(const std::bitset<8> &closed, QByteArray &body);

/// A subtitle track as the device reads it: its number, modulo 256.
QByteArray subtitleIndexBytes(int index);

/// A subtitle language as the device reads it: one byte per character, 0 for those above 255.
QByteArray languageCodeBytes(const QString &languageCode);

/// First byte of a classic frame for the text of the player ID list: 128 + ID, modulo 256. A text
/// that is no 32-bit number, the empty one included, addresses player 0.
quint8 playerIdByteFromText(const QString &playerId);

/// The bytes on the wire: the header of the model's family, then the body.
QByteArray wireFrame(const DeviceModel &model, quint8 playerIdByte, quint8 code,
                     const QByteArray &body);
