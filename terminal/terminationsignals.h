// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>

#include <memory>

/// Turns SIGINT, SIGTERM and SIGHUP into a Qt signal. One that was ignored when the program was
/// started stays so, for jobs in the background and those that outlive their terminal. One object
/// at a time.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

signals:
    /// \a signal SIGINT, SIGTERM or SIGHUP
    void raised(int signal);

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
