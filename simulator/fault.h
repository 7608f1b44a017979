// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <chrono>
#include <memory>

/// A step of what goes out to the console.
struct AnswerStep
{
    std::chrono::milliseconds pause{0}; ///< before the step
    QByteArray bytes;
    bool hangsUp = false; ///< the link is cut behind the bytes

    bool operator==(const AnswerStep &) const = default;
};

/// A way in which a device or its link may fail. The commands are obeyed all the same.
class Fault
{
public:
    Fault() = default;
    virtual ~Fault() = default;
    Q_DISABLE_COPY_MOVE(Fault)

    /// What becomes of an answer on its way to the console.
    virtual QList<AnswerStep> steps(const QByteArray &answer) const = 0;

    /// How long nobody is reached after the start and, over TCP/IP, after each connection.
    virtual std::chrono::milliseconds outage() const { return {}; }
};

/// The names of the faults, as makeFault() takes them.
QStringList faultNames();

/// One line per fault: name and what it does.
QString faultDescriptions();

/// \return the fault of that name, nullptr when there is none
std::unique_ptr<Fault> makeFault(const QString &name);
