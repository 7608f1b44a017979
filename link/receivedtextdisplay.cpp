// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/receivedtextdisplay.h"

#include "link/wordlength.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextOption>

namespace {

constexpr qsizetype longWord = 4096; // in UTF-16 units

} // namespace

ReceivedTextDisplay::ReceivedTextDisplay(QTextEdit *editor, const QString *text, QObject *parent,
                                         std::chrono::milliseconds cheapTime)
    : QObject(parent)
    , m_editor(editor)
    , m_text(text)
    , m_cheapTime(cheapTime)
{
    m_pause.setSingleShot(true);
    m_pause.setTimerType(Qt::PreciseTimer);
    connect(&m_pause, &QTimer::timeout, this, &ReceivedTextDisplay::handlePauseEnd);
}

void ReceivedTextDisplay::handleArrival()
{
    if (m_pause.isActive())
        m_isBehind = true;
    else
        showText();
}

void ReceivedTextDisplay::clear()
{
    m_pause.stop();
    m_isBehind = false;
    m_editor->clear();
}

void ReceivedTextDisplay::handlePauseEnd()
{
    if (m_isBehind)
        showText();
}

void ReceivedTextDisplay::setWrapMode(QTextOption::WrapMode mode)
{
    if (m_editor->wordWrapMode() == mode)
        return;
    // What was shown would be laid out again, in vain.
    m_editor->clear();
    m_editor->setWordWrapMode(mode);
}

void ReceivedTextDisplay::showText()
{
    QElapsedTimer time;
    time.start();
    m_isBehind = false;
    setWrapMode(longestWord(*m_text) > longWord ? QTextOption::WrapAnywhere
                                                : QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_editor->setText(*m_text);
    // Many lines are laid out bit by bit, by timers and when they are painted. Where they end, and
    // what they cost, is known when all of them are, and told to the scroll bar later still.
    QAbstractTextDocumentLayout *layout = m_editor->document()->documentLayout();
    emit layout->documentSizeChanged(layout->documentSize());
    QScrollBar *scrollBar = m_editor->verticalScrollBar();
    scrollBar->setValue(scrollBar->maximum());

    const std::chrono::milliseconds spent(time.elapsed());
    // Half as much again, for what else an arrival costs: reading, converting and painting it.
    if (spent > m_cheapTime)
        m_pause.start(spent * 3 / 2);
}
