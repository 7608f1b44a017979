// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/commandlist.h"

#include "sender/commandwords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

QString linkText(const DeviceModel &model)
{
    if (model.transport == TransportKind::TcpIp)
        return u"TCP/IP, port %1"_s.arg(model.tcpPort);
    return u"serial, %1 baud"_s.arg(baudRatesText(model));
}

QString modelText(const DeviceModel &model)
{
    QString text = model.name + ": "_L1 + linkText(model);
    if (model.minPlayerId != model.maxPlayerId)
        text += ", player ID "_L1 + rangeText({model.minPlayerId, model.maxPlayerId});
    return text + u'\n';
}

QString valueText(const CommandValue &value)
{
    const QString repeated = value.isRepeatable ? u"..."_s : QString();
    if (!value.range)
        return value.name.toUpper();
    return u"%1%2 (%3)"_s.arg(value.name.toUpper(), repeated, rangeText(*value.range));
}

QJsonObject rangeObject(NumberRange range)
{
    return {{u"min"_s, range.first}, {u"max"_s, range.last}};
}

QJsonObject modelObject(const DeviceModel &model)
{
    QJsonObject object{
        {u"name"_s, model.name},
        {u"playerIds"_s, rangeObject({model.minPlayerId, model.maxPlayerId})},
        {u"firmware"_s, model.firmwareVersion},
    };
    if (model.transport == TransportKind::TcpIp) {
        object[u"link"_s] = u"tcp"_s;
        object[u"tcpPort"_s] = model.tcpPort;
        return object;
    }
    QJsonArray rates;
    for (const qint32 rate : model.baudRates)
        rates.append(rate);
    object[u"link"_s] = u"serial"_s;
    object[u"baudRates"_s] = rates;
    object[u"defaultBaudRate"_s] = model.defaultBaudRate;
    return object;
}

QJsonObject commandObject(const DeviceModel &model, const CommandEntry &entry)
{
    QJsonArray values;
    for (const CommandValue &value : valuesOf(model, entry)) {
        QJsonObject object = value.range ? rangeObject(*value.range) : QJsonObject();
        object[u"name"_s] = value.name;
        if (value.isRepeatable)
            object[u"repeatable"_s] = true;
        values.append(object);
    }
    return {{u"label"_s, entry.label},
            {u"list"_s, pickListName(entry)},
            {u"words"_s, commandWords(entry)},
            {u"values"_s, values}};
}

} // namespace

QString modelsText(const DeviceCatalogue &catalogue)
{
    QString text;
    for (const DeviceModel &model : catalogue)
        text += modelText(model);
    return text;
}

QString commandsText(const DeviceModel &model)
{
    QString text = modelText(model);
    for (const CommandEntry &entry : model.commands) {
        text += "    "_L1 + commandWords(entry);
        for (const CommandValue &value : valuesOf(model, entry))
            text += u' ' + valueText(value);
        text += u'\n';
    }
    return text;
}

QString modelsJson(const DeviceCatalogue &catalogue)
{
    QJsonArray models;
    for (const DeviceModel &model : catalogue)
        models.append(modelObject(model));
    return QString::fromUtf8(QJsonDocument(models).toJson());
}

QString commandsJson(const DeviceModel &model)
{
    QJsonArray commands;
    for (const CommandEntry &entry : model.commands)
        commands.append(commandObject(model, entry));
    QJsonObject object = modelObject(model);
    object[u"commands"_s] = commands;
    return QString::fromUtf8(QJsonDocument(object).toJson());
}
