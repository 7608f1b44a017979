// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// Everybody whom this process, the libraries that it uses included, has tried to reach since the
/// last call: "127.0.0.2:1234" for a connection, "unix:/path" for a local one, "name:device.local"
/// for a name to be looked up; each once. A test program with this file in it sees every attempt.
QStringList takeContacts();
