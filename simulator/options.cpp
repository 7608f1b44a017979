// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/options.h"

#include "catalogue/devicecatalogue.h"
#include "catalogue/listnumbers.h"
#include "catalogue/nearesttexts.h"
#include "simulator/fault.h"
#include "simulator/modellist.h"
#include "simulator/protocolpage.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highestPlayerId = 127;

SimulatorOptions failure(const QString &text)
{
    SimulatorOptions options;
    options.action = SimulatorOptions::Action::Fail;
    options.text = text;
    return options;
}

SimulatorOptions output(const QString &text)
{
    SimulatorOptions options;
    options.action = SimulatorOptions::Action::Print;
    options.text = text;
    return options;
}

} // namespace

SimulatorOptions parseOptions(const QStringList &arguments)
{
    const QCommandLineOption list(u"list"_s,
                                  u"Show the models with their links and commands, and end."_s);
    const QCommandLineOption protocol(
        u"protocol"_s,
        u"Print the page docs/protocol.md: the bytes of every command of every model."_s);
    const QCommandLineOption model(
        u"model"_s, u"Play the model of that name. May be given several times."_s, u"NAME"_s);
    const QCommandLineOption all(u"all"_s, u"Play all models at once."_s);
    const QCommandLineOption id(
        u"id"_s,
        u"Answer to that player ID at first, 0 to 127 (0). Network models have ID 0 alone."_s,
        u"N"_s, u"0"_s);
    const QCommandLineOption address(
        u"address"_s,
        u"Let TCP/IP models listen on that IP address (127.0.0.1). Models that share a port get "
        "the addresses behind it."_s,
        u"IP"_s, u"127.0.0.1"_s);
    const QCommandLineOption port(
        u"port"_s,
        u"Let TCP/IP models listen on that port instead of their own; 0 takes a free one."_s,
        u"PORT"_s);
    const QCommandLineOption allowRemote(u"allow-remote"_s,
                                         u"Allow an address that other computers can reach."_s);
    const QCommandLineOption link(
        u"link"_s,
        u"Keep a symbolic link to the pseudo-terminal of a serial model. With several serial "
        "models, PATH is a folder that holds a link for each."_s,
        u"PATH"_s);
    const QCommandLineOption fault(u"fault"_s, u"Fail in the way of that name, see above."_s,
                                   u"NAME"_s);
    const QCommandLineOption log(u"log"_s, u"Append the lines to that file, too."_s, u"FILE"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Plays Ambrette devices, so that the console or a control system can be tried without "
        "them.\n"
        "Serial models appear as pseudo-terminals, TCP/IP models listen on their own port. Every\n"
        "frame that arrives is shown with its meaning:\n\n"
        "  time | model | player ID | bytes in hexadecimal | meaning\n\n"
        "The wording of the answers is the simulator's own. What real devices answer is not\n"
        "known to this project, so do not build a control system on it.\n\n"
        "Faults:\n"_s
        + faultDescriptions() + u"\nExit status: 0 after SIGINT or SIGTERM, 2 after an error."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Show this help, and end."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Show the version, and end."_s);
    parser.addOptions({help, version, list, protocol, model, all, id, address, port, allowRemote,
                       link, fault, log});

    if (!parser.parse(arguments))
        return failure(parser.errorText());
    if (parser.isSet(help))
        return output(parser.helpText());
    if (parser.isSet(version)) {
        return output(QCoreApplication::applicationName() + u' '
                      + QCoreApplication::applicationVersion() + u'\n');
    }
    if (!parser.positionalArguments().isEmpty()) {
        return failure(
            u"Unexpected argument \"%1\". A model's name with blanks has to be quoted."_s.arg(
                parser.positionalArguments().constFirst()));
    }

    const DeviceCatalogue catalogue = buildDeviceCatalogue();
    if (parser.isSet(protocol))
        return output(protocolPage(catalogue));
    QList<DeviceModel> models;
    for (const QString &name : parser.values(model)) {
        const DeviceModel *found = findModel(catalogue, name);
        if (!found)
            return failure("There is no model "_L1 + didYouMean(name, modelNames(catalogue)));
        models.append(*found);
    }
    if (parser.isSet(all) || (parser.isSet(list) && models.isEmpty()))
        models = catalogue;

    SimulatorOptions options;
    const QHostAddress firstAddress(parser.value(address));
    if (firstAddress.protocol() != QAbstractSocket::IPv4Protocol)
        return failure(u"\"%1\" is no IPv4 address."_s.arg(parser.value(address)));
    std::optional<quint16> givenPort;
    if (parser.isSet(port)) {
        const std::optional<int> number = numberInRange(parser.value(port), {0, 65535});
        if (!number)
            return failure(u"\"%1\" is no port, 0 to 65535."_s.arg(parser.value(port)));
        givenPort = static_cast<quint16>(*number);
    }
    options.endpoints = assignEndpoints(models, firstAddress, givenPort);
    if (parser.isSet(list))
        return output(modelListText(options.endpoints));
    if (models.isEmpty())
        return failure(u"Which model? Give --model NAME or --all; --list shows the models."_s);

    const auto isRemote = [](const Endpoint &endpoint) {
        return !endpoint.address.isNull() && !endpoint.address.isLoopback();
    };
    const auto remote = std::ranges::find_if(std::as_const(options.endpoints), isRemote);
    if (remote != options.endpoints.cend() && !parser.isSet(allowRemote)) {
        return failure(u"Other computers may reach %1. Add --allow-remote if you want that."_s.arg(
            remote->address.toString()));
    }
    const std::optional<int> playerId = numberInRange(parser.value(id), {0, highestPlayerId});
    if (!playerId)
        return failure(u"\"%1\" is no player ID, 0 to 127."_s.arg(parser.value(id)));
    options.playerId = *playerId;
    options.faultName = parser.value(fault);
    if (parser.isSet(fault) && !faultNames().contains(options.faultName))
        return failure("There is no fault "_L1 + didYouMean(options.faultName, faultNames()));
    for (const QCommandLineOption &path : {link, log}) {
        if (parser.isSet(path) && parser.value(path).isEmpty())
            return failure(u"--%1 needs a path."_s.arg(path.names().constFirst()));
    }
    options.linkPath = parser.value(link);
    options.logPath = parser.value(log);
    return options;
}
