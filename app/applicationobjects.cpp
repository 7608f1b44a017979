// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"

#include <QCoreApplication>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

QTranslator *const translator = new QTranslator;

const QString languageFilePrefix = u"LanguageData_"_s;
const QLocale englishLocale(QLocale::English);
const QLocale frenchLocale(QLocale::French);

QSerialPort *const serialPort = new QSerialPort;
QTcpSocket *const tcpSocket = new QTcpSocket;

QString receivedText;

const QString configFileSuffix = u".cfg"_s;
const QString configFormatVersion = u"1.00"_s;
const QString configMagic = u"TSY1"_s;
const QString configTitleSuffix = u"(Configuration File)"_s;
const QString configPlaceholder = u"(default)"_s;

QString configFilePath;

DeviceCatalogue deviceCatalogue;

bool sentBytesShownInHex = true;

std::function<QDateTime()> currentMoment = [] { return QDateTime::currentDateTime(); };

void setApplicationIdentity()
{
    QCoreApplication::setApplicationName(u"Tessaly"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSALY_VERSION));
    QCoreApplication::setOrganizationName(u"Ambrette"_s);
    QCoreApplication::setOrganizationDomain(QStringLiteral(TESSALY_WEBSITE));
}
