// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sender/byteform.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QStringDecoder>

/// Writes what a device answers to the standard output, whenever its reader has room: a reader that
/// stands still holds up nothing else.
class AnswerPrinter : public QObject
{
    Q_OBJECT

public:
    explicit AnswerPrinter(ByteForm form, QObject *parent = nullptr);

    void print(const QByteArray &bytes);
    /// Ends the line that has been begun, if one has.
    void endLine();

    bool isDone() const { return m_unwritten.isEmpty(); }
    /// Why something could not be written; empty when all could.
    QString errorString() const { return m_error; }

signals:
    /// Nothing is left to be written.
    void done();

private:
    void add(const QByteArray &text);
    void writeSome();
    void fail(const QString &reason);

    ByteForm m_form;
    QStringDecoder m_decoder; ///< keeps a character that an arrival has cut in two
    bool m_isInLine = false;
    QByteArray m_unwritten;
    QString m_error;
    QSocketNotifier m_notifier;
};
