// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/receivedtextdisplay.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>

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

void ReceivedTextDisplay::showText()
{
    QElapsedTimer time;
    time.start();
    m_isBehind = false;
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
