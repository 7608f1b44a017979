// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QWidget>

// The files that the next window starts with, and the widgets of one that has started.

/// Where this process keeps its settings.
inline QString settingsFolder()
{
    return qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/Ambrette/Tessaly");
}

inline QString settingsPath()
{
    return settingsFolder() + QStringLiteral("/Tessaly.cfg");
}

/// Creates the folder, too.
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
           && file.write(bytes) == bytes.size() && file.flush();
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// The widget or action of that name; the test fails when there is none.
template<typename T>
T *widget(const QWidget &window, const char *name)
{
    T *object = window.findChild<T *>(QString::fromLatin1(name));
    if (!object)
        qFatal("no %s in the window", name);
    return object;
}
