// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <functional>

class QSerialPort;
class QTcpSocket;
class QTranslator;

// The objects of which the program has exactly one. They are created before main() in the order
// below and live until the process ends; translator, port and socket are never deleted. Whether a
// link is open is always asked of the port and the socket themselves.

extern QTranslator *const translator;

extern const QString languageFilePrefix; ///< followed by a language code: "LanguageData_fr"
extern const QLocale englishLocale;
extern const QLocale frenchLocale;

extern QSerialPort *const serialPort;
extern QTcpSocket *const tcpSocket;

extern QString receivedText; ///< everything received since the last Clear, as displayed

extern const QString configFileSuffix;
extern const QString configFormatVersion;
extern const QString configMagic;
extern const QString configTitleSuffix;
extern const QString configPlaceholder; ///< stands for "no choice" in the configuration file

extern QString configFilePath; ///< full path; empty until the window's constructor sets it

extern DeviceCatalogue deviceCatalogue; ///< filled once by the window's constructor

/// Base of the tokens that the sent-bytes display shows now; new commands follow the buttons.
extern bool sentBytesShownInHex;

/// The moment that the clock commands send: the computer's clock, unless a test sets another.
extern std::function<QDateTime()> currentMoment;

/// Name, version and maker of the console, for the settings folder and the texts that show them.
/// To be called before the application object is created.
void setApplicationIdentity();
