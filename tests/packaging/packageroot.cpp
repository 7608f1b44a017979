// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/packaging/packageroot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int timeLimit = 120'000; // in ms; reached only by what fails

QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(timeLimit);
    return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

} // namespace

PackageRoot::PackageRoot()
{
    for (const QString &folder : {u"info"_s, u"updates"_s, u"triggers"_s})
        QDir().mkpath(path("/var/lib/dpkg/"_L1 + folder));
    QFile::copy(u"/var/lib/dpkg/status"_s, path(u"/var/lib/dpkg/status"_s));
}

QStringList PackageRoot::arguments() const
{
    return {"--root="_L1 + m_folder.path(), u"--log=/dev/null"_s};
}

bool PackageRoot::run(const QStringList &action) const
{
    QProcess process;
    // A user who is not root owns what is unpacked, and lacks the folders of root's commands.
    process.start(u"dpkg"_s, arguments() + QStringList{u"--force-not-root,bad-path"_s} + action);
    const bool isDone = process.waitForFinished(timeLimit) && process.exitCode() == 0;
    if (!isDone) {
        for (const QString &line : QString::fromUtf8(process.readAllStandardError()).split(u'\n')) {
            // The system's packages have no files here.
            if (!line.contains("files list file for package"_L1))
                qWarning().noquote() << line;
        }
    }
    return isDone;
}

bool PackageRoot::install(const QStringList &packageFiles)
{
    return run(QStringList{u"--install"_s} + packageFiles);
}

bool PackageRoot::purge(const QStringList &packages)
{
    return run(QStringList{u"--purge"_s} + packages);
}

QString PackageRoot::status(const QString &package) const
{
    return output(u"dpkg-query"_s, {"--root="_L1 + m_folder.path(), u"--show"_s,
                                    u"--showformat=${Status}"_s, package});
}

QStringList PackageRoot::files(const QString &package) const
{
    QStringList files
        = output(u"dpkg-query"_s, {"--root="_L1 + m_folder.path(), u"--listfiles"_s, package})
              .split(u'\n', Qt::SkipEmptyParts);
    files.removeAll(u"/."_s);
    return files;
}

QStringList PackageRoot::leftovers() const
{
    const QStringList own{u"/var"_s, u"/var/lib"_s};
    const QString database = u"/var/lib/dpkg"_s;
    QStringList files;
    QDirIterator all(m_folder.path(),
                     QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString file = all.next().sliced(m_folder.path().size());
        const bool isDatabase = file == database || file.startsWith(database + u'/');
        if (!own.contains(file) && (!isDatabase || file.contains("tessaly"_L1)))
            files.append(file);
    }
    files.sort();
    return files;
}
