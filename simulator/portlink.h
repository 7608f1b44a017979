// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A symbolic link to a pseudo-terminal, under a name that stays the same. It is removed with the
/// object, unless somebody else has made something of it meanwhile.
class PortLink
{
public:
    PortLink() = default;
    ~PortLink();
    Q_DISABLE_COPY_MOVE(PortLink)

    /// Makes the link, or points it somewhere else. A link to a pseudo-terminal that is there
    /// already is replaced: an earlier run may have left it behind.
    /// \return what is wrong; empty when the link is made
    QString point(const QString &path, const QString &target);

private:
    QString m_path;
    QString m_target;
};
