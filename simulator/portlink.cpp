// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/portlink.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

PortLink::~PortLink()
{
    if (!m_path.isEmpty() && QFile::symLinkTarget(m_path) == m_target)
        QFile::remove(m_path);
}

QString PortLink::point(const QString &path, const QString &target)
{
    const QFileInfo present(path);
    if (present.isSymbolicLink() ? !present.symLinkTarget().startsWith("/dev/pts/"_L1)
                                 : present.exists())
        return u"%1 exists already and is no link to a pseudo-terminal"_s.arg(path);

    // Renamed into its place, so that the name never stands for nothing.
    const QByteArray name = QFile::encodeName(path);
    const QByteArray draft = name + '.' + QByteArray::number(::getpid());
    if (::symlink(QFile::encodeName(target).constData(), draft.constData()) != 0
        || std::rename(draft.constData(), name.constData()) != 0) {
        const QString error = QString::fromLocal8Bit(std::strerror(errno));
        ::unlink(draft.constData());
        return u"cannot link %1: %2"_s.arg(path, error);
    }
    m_path = path;
    m_target = target;
    return {};
}
