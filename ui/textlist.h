// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

/// A list of texts to choose from, up to a thousand, that is quickly made and filled. Its width
/// depends on the minimum contents length, never on its rows.
///
/// A current text that has no room shows its beginning and its end, and stands whole in front of
/// the tool tip. The tool tip itself stays as the form and the language set it.
class TextList : public QComboBox
{
    Q_OBJECT

public:
    explicit TextList(QWidget *parent = nullptr);

    // A size adjust policy would do, but setting one makes the popup at once, long before it is
    // shown: a third of the time that the whole form takes.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// \return the room for the current text, in pixels
    int textRoom() const;
};
