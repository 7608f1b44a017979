// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/listnumbers.h"

#include <QByteArrayView>

/// Walks along bytes that may be a frame, step by step. It stops at the first byte that does not
/// fit or is not there yet; the steps behind that do nothing and give 0.
class FrameCursor
{
public:
    enum class State {
        Fits,  ///< all steps so far found their bytes
        Short, ///< the bytes end within a step
        Wrong, ///< a byte does not fit
    };

    explicit FrameCursor(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    State state() const { return m_state; }
    /// The number of bytes that the steps have taken.
    qsizetype position() const { return m_position; }

    /// Takes these very bytes.
    void expect(QByteArrayView expected);
    /// Takes a byte of the range.
    int takeByte(NumberRange range);
    /// Takes a 16-bit big-endian value of the range.
    int takeWord(NumberRange range);
    /// Takes a decimal text of at most four digits, which a minus sign may precede, and the zero
    /// byte behind it. The empty text counts as 0.
    int takeNumberText();

    /// For what only the caller can see to be wrong.
    void reject() { m_state = State::Wrong; }

private:
    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    State m_state = State::Fits;
};
