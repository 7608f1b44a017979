// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framecursor.h"

namespace {

constexpr qsizetype longestNumberText = 4;

} // namespace

void FrameCursor::expect(QByteArrayView expected)
{
    for (const char byte : expected) {
        const int value = static_cast<quint8>(byte);
        takeByte({value, value});
    }
}

int FrameCursor::takeByte(NumberRange range)
{
    if (m_state != State::Fits)
        return 0;
    if (m_position == m_bytes.size()) {
        m_state = State::Short;
        return 0;
    }
    const int value = static_cast<quint8>(m_bytes.at(m_position));
    if (value < range.first || value > range.last) {
        m_state = State::Wrong;
        return 0;
    }
    ++m_position;
    return value;
}

int FrameCursor::takeWord(NumberRange range)
{
    const int high = takeByte({range.first / 256, range.last / 256});
    const int low = takeByte({0, 255});
    const int value = 256 * high + low;
    if (m_state == State::Fits && (value < range.first || value > range.last))
        m_state = State::Wrong;
    return value;
}

int FrameCursor::takeNumberText()
{
    QByteArray text;
    while (m_state == State::Fits) {
        const int byte = takeByte({0, 127});
        if (byte == 0)
            break;
        const bool isSign = byte == '-' && text.isEmpty();
        const bool isDigit = byte >= '0' && byte <= '9';
        text += static_cast<char>(byte);
        const qsizetype digits = text.size() - (text.startsWith('-') ? 1 : 0);
        if (!(isSign || isDigit) || digits > longestNumberText)
            reject();
    }
    return m_state == State::Fits ? text.toInt() : 0;
}
