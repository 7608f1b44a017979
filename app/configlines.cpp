// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/configlines.h"

#include "app/applicationobjects.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Sent bytes have no ASCII form, so their codes begin with 2.
constexpr int sentHexCode = 2;
constexpr int sentDecCode = 3;

constexpr int dataAsciiCode = 1;
constexpr int dataHexCode = 2;
constexpr int dataDecCode = 3;

/// "English" or "French": the framework's own names, not typed in here.
QString languageWord(const QLocale &locale)
{
    return QLocale::languageToString(locale.language());
}

QString languageLine(LanguageChoice language)
{
    switch (language) {
    case LanguageChoice::English:
        return languageWord(englishLocale);
    case LanguageChoice::French:
        return languageWord(frenchLocale);
    case LanguageChoice::Default:
        break;
    }
    return configPlaceholder;
}

QString sentFormLine(std::optional<SentForm> form)
{
    if (!form)
        return configPlaceholder;
    return QString::number(*form == SentForm::Hex ? sentHexCode : sentDecCode);
}

QString dataFormLine(std::optional<DataForm> form)
{
    if (!form)
        return configPlaceholder;
    switch (*form) {
    case DataForm::Ascii:
        return QString::number(dataAsciiCode);
    case DataForm::Hex:
        return QString::number(dataHexCode);
    case DataForm::Dec:
        break;
    }
    return QString::number(dataDecCode);
}

QString addressLine(std::optional<int> part)
{
    return QString::number(part.value_or(0));
}

QString orPlaceholder(const QString &text)
{
    return text.isEmpty() ? configPlaceholder : text;
}

} // namespace

QStringList configLines(const SavedSettings &settings)
{
    const QString name = QCoreApplication::applicationName();
    return {
        configMagic + configFormatVersion,
        name + u' ' + configTitleSuffix,
        "Generate by: "_L1 + name + u' ' + QCoreApplication::applicationVersion(),
        u"*** Default Language:"_s,
        languageLine(settings.language),
        u"*** Default Device:"_s,
        orPlaceholder(settings.model),
        u"*** Default Serial Port:"_s,
        orPlaceholder(settings.port),
        u"*** Default Baudrate:"_s,
        orPlaceholder(settings.baudRate),
        u"*** Default IP Address:"_s,
        addressLine(settings.address[0]),
        addressLine(settings.address[1]),
        addressLine(settings.address[2]),
        addressLine(settings.address[3]),
        u"*** Default Auto-connection:"_s,
        settings.autoConnection ? u"1"_s : u"0"_s,
        u"*** Default Player ID:"_s,
        orPlaceholder(settings.playerId),
        u"*** Default Command Bytes Sent Setting:"_s,
        sentFormLine(settings.sentForm),
        u"*** Default Data Received Setting:"_s,
        dataFormLine(settings.dataForm),
    };
}

bool isConfigHead(const QString &line)
{
    return line.contains(configMagic) && line.contains(configFormatVersion);
}

LanguageChoice languageFromLine(const QString &line)
{
    if (line == languageWord(englishLocale))
        return LanguageChoice::English;
    if (line == languageWord(frenchLocale))
        return LanguageChoice::French;
    return LanguageChoice::Default;
}

std::optional<int> addressPartFromLine(const QString &line)
{
    bool isNumber = false;
    const int value = line.toInt(&isNumber);
    if (!isNumber || value < 0 || value > 255)
        return std::nullopt;
    return value;
}

bool autoConnectionFromLine(const QString &line)
{
    return line.toInt() != 0;
}

std::optional<SentForm> sentFormFromLine(const QString &line)
{
    switch (line.toInt()) {
    case sentHexCode:
        return SentForm::Hex;
    case sentDecCode:
        return SentForm::Dec;
    default:
        return std::nullopt;
    }
}

std::optional<DataForm> dataFormFromLine(const QString &line)
{
    switch (line.toInt()) {
    case dataAsciiCode:
        return DataForm::Ascii;
    case dataHexCode:
        return DataForm::Hex;
    case dataDecCode:
        return DataForm::Dec;
    default:
        return std::nullopt;
    }
}

std::optional<SavedSettings> settingsFromConfig(const QByteArray &bytes)
{
    QTextStream stream(bytes);
    if (!isConfigHead(stream.readLine()))
        return std::nullopt;
    stream.readLine(); // title
    stream.readLine(); // program that wrote the file

    // A value stands below its label; behind the end of a cut file all lines are empty.
    const auto labelledLine = [&stream] {
        stream.readLine();
        return stream.readLine();
    };

    SavedSettings settings;
    settings.language = languageFromLine(labelledLine());
    settings.model = labelledLine();
    settings.port = labelledLine();
    settings.baudRate = labelledLine();
    stream.readLine(); // label of the four address lines
    std::ranges::generate(settings.address,
                          [&stream] { return addressPartFromLine(stream.readLine()); });
    settings.autoConnection = autoConnectionFromLine(labelledLine());
    settings.playerId = labelledLine();
    settings.sentForm = sentFormFromLine(labelledLine());
    settings.dataForm = dataFormFromLine(labelledLine());
    return settings;
}
