// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QTranslator>

/// The form's own widgets, the window among them, in the order of their creation; no parts that
/// Qt builds inside of them.
QList<QWidget *> namedWidgets(const QMainWindow &window);

/// The rows of a list; a row with an icon or with data says so.
QStringList rowsOf(const QMainWindow &window, const char *comboBox);

/// Everything that a user can see or has chosen: a line for each named widget and each row of its
/// list.
QStringList windowState(const QMainWindow &window);

/// Translates every text of the window's context to "{text}".
class BracingTranslator : public QTranslator
{
    Q_OBJECT

public:
    BracingTranslator();
    ~BracingTranslator() override;
    Q_DISABLE_COPY_MOVE(BracingTranslator)

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
};
