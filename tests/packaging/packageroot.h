// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A file system of its own that Debian packages are installed into, by dpkg and with a database of
/// its own. It takes no root, and leaves the system alone. The packages of the system count as
/// installed, so that dependencies have to be met.
class PackageRoot
{
public:
    PackageRoot();

    /// Where a file of the packages is: "/usr/bin/tessaly" as it would be in the system.
    QString path(const QString &file) const { return m_folder.path() + file; }

    /// \return whether dpkg did so without complaint; what it said is a warning otherwise
    bool install(const QStringList &packageFiles);
    bool purge(const QStringList &packages);

    /// "install ok installed"; empty for a package that is not known.
    QString status(const QString &package) const;
    /// What a package has brought along, folders as well: "/usr/bin", "/usr/bin/tessaly"...
    QStringList files(const QString &package) const;
    /// Everything that is there besides dpkg's database, and what the database keeps of packages
    /// that are not the system's.
    QStringList leftovers() const;

private:
    QStringList arguments() const;
    bool run(const QStringList &action) const;

    QTemporaryDir m_folder;
};
