// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextEdit>

/// Shows what a device has sent. Markup in it is shown as such, but nothing that it names is ever
/// loaded: neither from the network nor from a file, which might be a pipe and hold the window up.
class ReceivedTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    using QTextEdit::QTextEdit;

    /// \return an empty picture, or no bytes, for every name
    QVariant loadResource(int type, const QUrl &name) override;

protected:
    /// \return the selected text alone: rich text, too, would load what it names
    QMimeData *createMimeDataFromSelection() const override;
};
