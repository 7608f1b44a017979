// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Where a test finds its files. CTest says where the sources are in the environment, so that the
// same object files serve every checkout. All of it needs an application object.

/// A file or folder of the project: sourcePath(u"docs/protocol.md"_s).
QString sourcePath(const QString &path);

/// A built program, or a file that lies beside them.
QString programPath(const QString &name);

/// A file or folder of the build.
QString buildPath(const QString &path);
