// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicemodel.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

DeviceModel::DeviceModel(const QString &modelName, ProtocolKind protocolKind,
                         TransportKind transportKind, quint8 lowestPlayerId, quint8 highestPlayerId,
                         quint8 folderBanks, qint32 presetBaudRate, quint16 port,
                         const QString &lowestFirmware)
    : name(modelName)
    , protocol(protocolKind)
    , transport(transportKind)
    , minPlayerId(lowestPlayerId)
    , maxPlayerId(highestPlayerId)
    , folderBankCount(folderBanks)
    , defaultBaudRate(presetBaudRate)
    , tcpPort(port)
    , firmwareVersion(lowestFirmware)
{
}

QString baudRatesText(const DeviceModel &model)
{
    QStringList rates;
    for (const qint32 rate : model.baudRates)
        rates.append(QString::number(rate));
    return rates.join(u", "_s);
}
