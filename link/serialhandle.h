// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

class QSerialPort;

/// Whether an open port would take bytes right now. To QSerialPort, a write into a full line is an
/// error. Always false where the handle cannot be asked: there, bytes wait for the event loop.
bool takesBytes(const QSerialPort &port);

/// Whether all that was handed to the system is on the line. Where the handle cannot be asked, or
/// the device is gone, there is nothing to wait for.
bool isDrained(const QSerialPort &port);
