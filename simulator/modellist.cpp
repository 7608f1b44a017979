// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/modellist.h"

#include "catalogue/commandvalues.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype lineWidth = 100;
const QString indent = u"    "_s;

QString commandText(const DeviceModel &model, const CommandEntry &entry)
{
    if (!takesNumber(entry))
        return commandTitle(entry);
    QString ranges = rangeText(valueRange(model, entry));
    if (entry.commandId == CommandId::SourceSpotReset)
        ranges += ", option "_L1 + rangeText(byteRange(entry, 2));
    return u"%1 (%2)"_s.arg(entry.label, ranges);
}

QString linkText(const Endpoint &endpoint)
{
    if (endpoint.model.transport == TransportKind::TcpIp) {
        const QString port = endpoint.port == 0 ? u"any"_s : QString::number(endpoint.port);
        return u"TCP/IP, port %1, simulated at %2"_s.arg(port, endpoint.address.toString());
    }
    return u"serial, %1 baud"_s.arg(baudRatesText(endpoint.model));
}

/// The texts behind each other, separated by commas, on indented lines.
QString wrapped(const QStringList &texts)
{
    QString lines;
    QString line = indent;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const QString item = texts.at(i) + (i + 1 < texts.size() ? u","_s : QString());
        if (line.size() + 1 + item.size() > lineWidth && line != indent) {
            lines += line + u'\n';
            line = indent;
        }
        line += (line == indent ? u""_s : u" "_s) + item;
    }
    return lines + line + u'\n';
}

} // namespace

QString modelListText(const QList<Endpoint> &endpoints)
{
    QString text;
    for (const Endpoint &endpoint : endpoints) {
        const DeviceModel &model = endpoint.model;
        QStringList commands;
        for (const CommandEntry &entry : model.commands)
            commands.append(commandText(model, entry));
        text += model.name + u'\n' + indent + linkText(endpoint);
        if (model.protocol == ProtocolKind::Classic)
            text += ", player ID "_L1 + rangeText({model.minPlayerId, model.maxPlayerId});
        text += u'\n' + wrapped(commands);
    }
    return text;
}
