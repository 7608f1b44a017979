// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QTimeZone>

// The values of the sheets of models that are neither a number nor a word.

/// The moment that a clock command carries: "01:02:03", "2004-05-06", "2007-08-09 10:11:12", or one
/// that ends with " UTC"; the others are local. A local moment is returned as UTC and the other way
/// round, so that a missing conversion is noticed.
inline QDateTime momentOf(const QString &value)
{
    using namespace Qt::Literals::StringLiterals;
    const QString text = value.section(u" UTC"_s, 0, 0);
    // Early in the day: in zones ahead of UTC, local time and UTC differ in the date, too.
    const QDate date
        = text.contains(u'-') ? QDate::fromString(text.first(10), Qt::ISODate) : QDate(2026, 3, 7);
    const QTime time
        = text.contains(u':') ? QTime::fromString(text.last(8), Qt::ISODate) : QTime(0, 30);
    return text == value ? QDateTime(date, time).toUTC()
                         : QDateTime(date, time, QTimeZone::utc()).toLocalTime();
}

/// The output contacts that are closed: "none", or "1, 2, 8".
inline QList<int> contactsOf(const QString &value)
{
    using namespace Qt::Literals::StringLiterals;
    QList<int> contacts;
    if (value != "none"_L1) {
        for (const QString &contact : value.split(u", "_s))
            contacts.append(contact.toInt());
    }
    return contacts;
}

/// The option of a source of playback: 255 of "999, option 255".
inline int optionOf(const QString &value)
{
    using namespace Qt::Literals::StringLiterals;
    return value.section(u", option "_s, 1, 1).toInt();
}
