// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// Bytes as they are written in a command table: two hexadecimal digits a byte, text between
/// single quotes, blanks between them: "FF FF '32'" is FF FF 33 32. A slip of the pen does not
/// compile.
class ByteText
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): the tables are written in plain literals
    consteval ByteText(const char *text)
        : m_text(text)
    {
        while (*text != '\0') {
            if (*text == ' ') {
                ++text;
            } else if (*text == '\'') {
                do {
                    ++text;
                    if (*text == '\0')
                        throw "text without a closing quote";
                } while (*text != '\'');
                ++text;
            } else if (isHexDigit(text[0]) && isHexDigit(text[1])) {
                text += 2;
            } else {
                throw "neither a byte nor quoted text";
            }
        }
    }

    QByteArray bytes() const;

private:
    static consteval bool isHexDigit(char c)
    {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F');
    }

    const char *m_text;
};
