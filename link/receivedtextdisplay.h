// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QTextOption>
#include <QTimer>

#include <chrono>

class QTextEdit;

/// Puts the received text into its editor, always the whole of it, and scrolls to its end.
///
/// An editor lays a line out anew whenever it grows, and a long one takes it seconds. So an arrival
/// is shown at once while that is cheap. When it was not, the arrivals of the time that follows are
/// shown together at its end, and most of the time is left to the window's user.
///
/// To break a line within a word, an editor looks for the word's end, once for each line of it:
/// bytes that are no text, and one word, would take it minutes. So a text with a word of thousands
/// of characters is wrapped wherever a line is full.
class ReceivedTextDisplay : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds defaultCheapTime{50};

    /// \a editor and \a text have to live as long as arrivals are reported and the event loop runs
    /// \a cheapTime what showing the text may take before later arrivals have to wait
    ReceivedTextDisplay(QTextEdit *editor, const QString *text, QObject *parent = nullptr,
                        std::chrono::milliseconds cheapTime = defaultCheapTime);

    /// To be called whenever the text has grown.
    void handleArrival();
    /// Empties the editor. To be called when the text has been emptied.
    void clear();

private:
    void handlePauseEnd();
    void setWrapMode(QTextOption::WrapMode mode);
    void showText();

    QTextEdit *m_editor;
    const QString *m_text;
    std::chrono::milliseconds m_cheapTime;
    QTimer m_pause;
    bool m_isBehind = false; ///< the text has grown in the pause
};
