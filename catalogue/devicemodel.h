// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/commandentry.h"

#include <QList>
#include <QString>

/// Link over which a model is driven.
enum class TransportKind : quint8 {
    Serial = 0,
    TcpIp = 1,
};

/// Family of frames that a model understands; see protocol/frameencoder.h.
enum class ProtocolKind : quint32 {
    Classic = 0,
    Extended = 1,
};

/// Everything that the console knows about one device model.
struct DeviceModel
{
    DeviceModel() = default;
    DeviceModel(const QString &modelName, ProtocolKind protocolKind, TransportKind transportKind,
                quint8 lowestPlayerId, quint8 highestPlayerId, quint8 folderBanks,
                qint32 presetBaudRate, quint16 port, const QString &lowestFirmware);

    QString name;
    ProtocolKind protocol = ProtocolKind::Classic;
    TransportKind transport = TransportKind::Serial;
    quint8 minPlayerId = 0;
    quint8 maxPlayerId = 0;
    quint8 folderBankCount = 1;
    QList<qint32> baudRates;      ///< in the order shown; empty for TCP/IP models
    QList<CommandEntry> commands; ///< in the order shown and searched
    qint32 defaultBaudRate = -1;  ///< -1: none, all TCP/IP models
    quint16 tcpPort = 0;          ///< 0: none, all serial models
    QString firmwareVersion;      ///< lowest firmware that knows all the commands; may be empty

    /// Whether commands travel as text messages on a connection made for each of them: such a
    /// device hangs up after every command.
    bool connectsOnDemand() const
    {
        return protocol == ProtocolKind::Extended && transport == TransportKind::TcpIp;
    }
};

/// The baud rates for people: "9600, 19200, 38400"; empty for TCP/IP models.
QString baudRatesText(const DeviceModel &model);
