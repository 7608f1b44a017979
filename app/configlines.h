// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// The configuration file as plain text: three head lines, then labels, each followed by its value
// lines; 24 lines in all. Readers check the first line and go by the order alone from there.

enum class LanguageChoice { Default, English, French };
enum class SentForm { Hex, Dec };
enum class DataForm { Ascii, Hex, Dec };

/// Bytes of a configuration file that are read; what stands behind them counts as missing. The
/// files that the program writes have less than 1 KiB, and this much is still read in no time.
constexpr qint64 configSizeLimit = 4 << 20;

/// What the window saves. An empty text or option is written as the placeholder "(default)", and a
/// missing part of the address as 0. Read back, a placeholder is a text like any other.
struct SavedSettings
{
    LanguageChoice language = LanguageChoice::Default;
    QString model;
    QString port;
    QString baudRate;
    std::array<std::optional<int>, 4> address = {0, 0, 0, 0}; ///< each 0 to 255
    bool autoConnection = false;
    QString playerId;
    std::optional<SentForm> sentForm;
    std::optional<DataForm> dataForm;
};

/// The 24 lines, without line ends.
QStringList configLines(const SavedSettings &settings);

/// Whether a file that begins with this line is one of ours: it contains magic and format version,
/// anywhere.
bool isConfigHead(const QString &line);

/// What a file of these bytes says; nothing when it is none of ours. Of a cut file, the lines that
/// are missing count as empty.
std::optional<SavedSettings> settingsFromConfig(const QByteArray &bytes);

/// \name What a value line means
/// A line that means nothing, the empty line of a cut file included, gives the default or no value.
/// @{
LanguageChoice languageFromLine(const QString &line);
/// One number of the IP address, 0 to 255.
std::optional<int> addressPartFromLine(const QString &line);
/// Any 32-bit number but 0 switches it on.
bool autoConnectionFromLine(const QString &line);
std::optional<SentForm> sentFormFromLine(const QString &line);
std::optional<DataForm> dataFormFromLine(const QString &line);
/// @}
