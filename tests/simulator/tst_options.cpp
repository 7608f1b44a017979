// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/fault.h"
#include "simulator/modellist.h"
#include "simulator/options.h"
#include "simulator/portlink.h"
#include "tests/support/builtmodels.h"
#include "tests/support/filecontent.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

using Action = SimulatorOptions::Action;

const QString lite = u"Sonet A Lite (TCP/IP)"_s;
const QString tempoDeck = u"Tempo Deck"_s;

SimulatorOptions parsed(const QStringList &arguments)
{
    return parseOptions(QStringList{u"tessaly-simulator"_s} + arguments);
}

/// "Sonet A Lite (TCP/IP) at 127.0.0.1 port 1234"
QStringList places(const QList<Endpoint> &endpoints)
{
    QStringList texts;
    for (const Endpoint &endpoint : endpoints) {
        texts.append(endpoint.model.name
                     + (endpoint.address.isNull()
                            ? QString()
                            : u" at %1 port %2"_s.arg(endpoint.address.toString(),
                                                      QString::number(endpoint.port))));
    }
    return texts;
}

/// Where --all simulates the models: those that share a port have addresses one after the other.
QStringList placesOfAll()
{
    QStringList texts;
    QHash<quint16, int> devices;
    for (const ModelSheet &sheet : modelSheets()) {
        texts.append(sheet.isTcp ? u"%1 at 127.0.0.%2 port %3"_s.arg(sheet.name)
                                       .arg(++devices[sheet.tcpPort])
                                       .arg(sheet.tcpPort)
                                 : sheet.name);
    }
    return texts;
}

/// A command as --list shows it: "Folder (0 to 999)", "Request: Volume".
QString listed(const SheetCommand &command)
{
    if (command.id == 10)
        return command.meaning({});
    const QStringList lowest = command.lowest.split(u", option "_s);
    const QStringList highest = command.highest.split(u", option "_s);
    bool isNumber = false;
    lowest.constFirst().toInt(&isNumber);
    if (!isNumber)
        return command.label;
    QString ranges = lowest.at(0) + " to "_L1 + highest.at(0);
    if (lowest.size() > 1)
        ranges += ", option "_L1 + lowest.at(1) + " to "_L1 + highest.at(1);
    return u"%1 (%2)"_s.arg(command.label, ranges);
}

} // namespace

class tst_Options : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("LC_ALL", "C.UTF-8");
        QCoreApplication::setApplicationName(u"tessaly-simulator"_s);
        QCoreApplication::setApplicationVersion(u"9.8.7"_s);
    }

    void defaults()
    {
        const SimulatorOptions options = parsed({u"--model"_s, lite});
        QCOMPARE(options.action, Action::Play);
        QCOMPARE(options.text, QString());
        QCOMPARE(places(options.endpoints),
                 QStringList{u"Sonet A Lite (TCP/IP) at 127.0.0.1 port 1234"_s});
        QCOMPARE(options.linkPath, QString());
        QCOMPARE(options.logPath, QString());
        QCOMPARE(options.faultName, QString());
        QCOMPARE(options.playerId, 0);
    }

    void allValues()
    {
        const SimulatorOptions options
            = parsed({u"--model"_s, lite, u"--id"_s, u"5"_s, u"--address"_s, u"127.1.2.3"_s,
                      u"--port"_s, u"4321"_s, u"--link"_s, u"/tmp/a link"_s, u"--fault"_s,
                      u"hang-up"_s, u"--log"_s, u"some.log"_s});
        QCOMPARE(options.action, Action::Play);
        QCOMPARE(places(options.endpoints),
                 QStringList{u"Sonet A Lite (TCP/IP) at 127.1.2.3 port 4321"_s});
        QCOMPARE(options.linkPath, u"/tmp/a link"_s);
        QCOMPARE(options.logPath, u"some.log"_s);
        QCOMPARE(options.faultName, u"hang-up"_s);
        QCOMPARE(options.playerId, 5);
    }

    void models_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("expected");

        const QString classicPlace = u"Vistar Show - SV500 (TCP/IP) at 127.0.0.%1 port 65079"_s;
        QTest::newRow("one") << QStringList{u"--model"_s, tempoDeck} << QStringList{tempoDeck};
        QTest::newRow("the other way to write it")
            << QStringList{u"--model=Tempo Deck"_s} << QStringList{tempoDeck};
        QTest::newRow("lower case")
            << QStringList{u"--model"_s, u"tempo deck"_s} << QStringList{tempoDeck};
        QTest::newRow("upper case")
            << QStringList{u"--model"_s, u"HV0XX (LEGACY)"_s} << QStringList{u"HV0xx (legacy)"_s};
        QTest::newRow("several, in their order")
            << QStringList{u"--model"_s, u"HV0xx (legacy)"_s, u"--model"_s, tempoDeck}
            << QStringList{u"HV0xx (legacy)"_s, tempoDeck};
        QTest::newRow("one twice") << QStringList{u"--model"_s, u"Vistar Show - SV500 (TCP/IP)"_s,
                                                  u"--model"_s, u"Vistar Show - SV500 (TCP/IP)"_s}
                                   << QStringList{classicPlace.arg(1), classicPlace.arg(2)};
        QTest::newRow("all") << QStringList{u"--all"_s} << placesOfAll();
        QTest::newRow("all, and one by name")
            << QStringList{u"--all"_s, u"--model"_s, tempoDeck} << placesOfAll();
    }

    void models()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QStringList, expected);

        const SimulatorOptions options = parsed(arguments);
        QCOMPARE(options.action, Action::Play);
        QCOMPARE(places(options.endpoints), expected);
    }

    void accepted_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("playerId");
        QTest::addColumn<QString>("place");

        const QString lite1234 = u"Sonet A Lite (TCP/IP) at %1 port %2"_s;
        const auto at = [&](const char *address, int port) {
            return lite1234.arg(QString::fromLatin1(address), QString::number(port));
        };
        QTest::newRow("lowest ID") << QStringList{u"--id"_s, u"0"_s} << 0 << at("127.0.0.1", 1234);
        QTest::newRow("highest ID")
            << QStringList{u"--id"_s, u"127"_s} << 127 << at("127.0.0.1", 1234);
        QTest::newRow("free port") << QStringList{u"--port"_s, u"0"_s} << 0 << at("127.0.0.1", 0);
        QTest::newRow("highest port")
            << QStringList{u"--port"_s, u"65535"_s} << 0 << at("127.0.0.1", 65535);
        QTest::newRow("end of the loopback net")
            << QStringList{u"--address"_s, u"127.255.255.254"_s} << 0
            << at("127.255.255.254", 1234);
        QTest::newRow("any address, allowed")
            << QStringList{u"--address"_s, u"0.0.0.0"_s, u"--allow-remote"_s} << 0
            << at("0.0.0.0", 1234);
        QTest::newRow("remote address, allowed")
            << QStringList{u"--allow-remote"_s, u"--address"_s, u"192.0.2.7"_s} << 0
            << at("192.0.2.7", 1234);
        QTest::newRow("allowed without need")
            << QStringList{u"--allow-remote"_s} << 0 << at("127.0.0.1", 1234);
    }

    void accepted()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const int, playerId);
        QFETCH(const QString, place);

        const SimulatorOptions options = parsed(QStringList{u"--model"_s, lite} + arguments);
        QCOMPARE(options.text, QString());
        QCOMPARE(options.action, Action::Play);
        QCOMPARE(options.playerId, playerId);
        QCOMPARE(places(options.endpoints), QStringList{place});
    }

    // The address matters to TCP/IP models only.
    void serialModelsHaveNoAddress()
    {
        const SimulatorOptions options
            = parsed({u"--model"_s, tempoDeck, u"--address"_s, u"0.0.0.0"_s});
        QCOMPARE(options.text, QString());
        QCOMPARE(options.action, Action::Play);
    }

    void faults()
    {
        QVERIFY(!faultNames().isEmpty());
        for (const QString &name : faultNames()) {
            const SimulatorOptions options = parsed({u"--all"_s, u"--fault"_s, name});
            QCOMPARE(options.action, Action::Play);
            QCOMPARE(options.faultName, name);
        }
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("text");

        const auto row = [](const char *name, const QStringList &arguments, const char *text) {
            QTest::newRow(name) << arguments << QString::fromLatin1(text);
        };
        const QString model = u"--model"_s;
        row("nothing", {}, "Which model? Give --model NAME or --all; --list shows the models.");
        row("options, but no model", {u"--id"_s, u"5"_s},
            "Which model? Give --model NAME or --all; --list shows the models.");
        row("unknown option", {u"--modle"_s, tempoDeck}, "Unknown option 'modle'.");
        row("unknown short option", {u"-x"_s}, "Unknown option 'x'.");
        row("several unknown options", {u"--modle"_s, u"--idd"_s}, "Unknown options: modle, idd.");
        row("value missing", {model}, "Missing value after '--model'.");
        row("value too many", {u"--all=yes"_s}, "Unexpected value after '--all'.");
        row("name not quoted", {model, u"Tempo"_s, u"Deck"_s},
            "Unexpected argument \"Deck\". A model's name with blanks has to be quoted.");
        row("argument", {u"--all"_s, u"now"_s},
            "Unexpected argument \"now\". A model's name with blanks has to be quoted.");
        row("misspelt model", {model, u"Tmpo Deck"_s},
            "There is no model \"Tmpo Deck\". Did you mean \"Tempo Deck\"*");
        row("a known model and an unknown one", {model, tempoDeck, model, u"Ampra Two"_s},
            "There is no model \"Ampra Two\". Did you mean \"Ampra One\"*");
        row("model that is not offered", {model, u"Lumo Bridge"_s, u"--list"_s},
            "There is no model \"Lumo Bridge\". Did you mean *");
        row("unknown model in the list", {u"--list"_s, model, u"Tmpo Deck"_s},
            "There is no model \"Tmpo Deck\". Did you mean \"Tempo Deck\"*");
        row("misspelt fault", {u"--all"_s, u"--fault"_s, u"megabit"_s},
            "There is no fault \"megabit\". Did you mean \"megabyte\"?");
        row("fault in capitals", {u"--all"_s, u"--fault"_s, u"MEGABYTE"_s},
            "There is no fault \"MEGABYTE\". Did you mean \"megabyte\"?");
        row("ID too high", {u"--all"_s, u"--id"_s, u"128"_s}, "\"128\" is no player ID, 0 to 127.");
        row("ID below zero", {u"--all"_s, u"--id=-1"_s}, "\"-1\" is no player ID, 0 to 127.");
        row("ID that is no number", {u"--all"_s, u"--id"_s, u"0x10"_s},
            "\"0x10\" is no player ID, 0 to 127.");
        row("ID empty", {u"--all"_s, u"--id"_s, QString()}, "\"\" is no player ID, 0 to 127.");
        row("port too high", {u"--all"_s, u"--port"_s, u"65536"_s},
            "\"65536\" is no port, 0 to 65535.");
        row("port below zero", {u"--all"_s, u"--port=-1"_s}, "\"-1\" is no port, 0 to 65535.");
        row("port that is no number", {u"--all"_s, u"--port"_s, u"http"_s},
            "\"http\" is no port, 0 to 65535.");
        row("host name", {u"--all"_s, u"--address"_s, u"localhost"_s},
            "\"localhost\" is no IPv4 address.");
        row("IPv6 address", {u"--all"_s, u"--address"_s, u"::1"_s}, "\"::1\" is no IPv4 address.");
        row("address empty", {u"--all"_s, u"--address"_s, QString()}, "\"\" is no IPv4 address.");
        row("address with a wrong number", {u"--all"_s, u"--address"_s, u"127.0.0.256"_s},
            "\"127.0.0.256\" is no IPv4 address.");
        row("any address", {u"--all"_s, u"--address"_s, u"0.0.0.0"_s},
            "Other computers may reach 0.0.0.0. Add --allow-remote if you want that.");
        row("address of a network", {model, lite, u"--address"_s, u"192.0.2.7"_s},
            "Other computers may reach 192.0.2.7. Add --allow-remote if you want that.");
        row("address below the loopback net", {model, lite, u"--address"_s, u"126.255.255.255"_s},
            "Other computers may reach 126.255.255.255. Add --allow-remote if you want that.");
        row("address above the loopback net", {model, lite, u"--address"_s, u"128.0.0.1"_s},
            "Other computers may reach 128.0.0.1. Add --allow-remote if you want that.");
        row("link without a path", {model, tempoDeck, u"--link"_s, QString()},
            "--link needs a path.");
        row("log without a path", {model, tempoDeck, u"--log"_s, QString()}, "--log needs a path.");
    }

    void errors()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, text);

        const SimulatorOptions options = parsed(arguments);
        QCOMPARE(options.action, Action::Fail);
        // Which models come near is a matter of the models that there are.
        if (text.endsWith(u'*'))
            QVERIFY2(options.text.startsWith(text.chopped(1)), qPrintable(options.text));
        else
            QCOMPARE(options.text, text);
    }

    // The addresses after the first one must stay on the computer, too.
    void addressesAboveTheLoopbackNet()
    {
        const SimulatorOptions options = parsed({u"--all"_s, u"--address"_s, u"127.255.255.255"_s});
        QCOMPARE(options.action, Action::Fail);
        QVERIFY2(options.text.contains("--allow-remote"_L1), qPrintable(options.text));
    }

    void version()
    {
        for (const QString &option : {u"--version"_s, u"-v"_s}) {
            const SimulatorOptions options = parsed({option});
            QCOMPARE(options.action, Action::Print);
            QCOMPARE(options.text, u"tessaly-simulator 9.8.7\n"_s);
        }
    }

    void help()
    {
        for (const QString &option : {u"--help"_s, u"-h"_s}) {
            const SimulatorOptions options = parsed({option, u"--model"_s, u"no such model"_s});
            QCOMPARE(options.action, Action::Print);
            const QString text = options.text.simplified();
            QVERIFY2(text.contains("The wording of the answers is the simulator's own. What real "
                                   "devices answer is not known to this project"_L1),
                     qPrintable(options.text));
            QVERIFY2(text.contains("Exit status: 0 after SIGINT or SIGTERM, 2 after an error."_L1),
                     qPrintable(options.text));
            for (const QString &fault : faultNames())
                QVERIFY2(options.text.contains(u"\n  %1 "_s.arg(fault)), qPrintable(fault));
        }
    }

    void listOfAll()
    {
        static const QRegularExpression address(u"127\\.0\\.0\\.\\d+"_s);
        const SimulatorOptions options = parsed({u"--list"_s});
        QCOMPARE(options.action, Action::Print);
        QString expected;
        for (const ModelSheet &sheet : modelSheets())
            expected += parsed({u"--list"_s, u"--model"_s, sheet.name}).text;
        QCOMPARE(QString(options.text).remove(address), expected.remove(address));
        QCOMPARE(parsed({u"--list"_s, u"--all"_s}).text, options.text);
    }

    void listOfOne_data() { addModelRows(); }

    void listOfOne()
    {
        QFETCH(const ModelSheet, sheet);
        const QString text = parsed({u"--list"_s, u"--model"_s, sheet.name}).text;
        QVERIFY(text.endsWith(u'\n'));
        QStringList lines = text.chopped(1).split(u'\n');
        QCOMPARE(lines.takeFirst(), sheet.name);

        QStringList rates;
        for (const qint32 rate : sheet.baudRates)
            rates.append(QString::number(rate));
        QString link = sheet.isTcp
                           ? u"    TCP/IP, port %1, simulated at 127.0.0.1"_s.arg(sheet.tcpPort)
                           : u"    serial, %1 baud"_s.arg(rates.join(u", "_s));
        if (!sheet.isExtended)
            link += u", player ID %1"_s.arg(sheet.lowestPlayerId);
        if (sheet.hasPlayerIds())
            link += u" to %1"_s.arg(sheet.highestPlayerId);
        QCOMPARE(lines.takeFirst(), link);

        // As many commands in a line as there is room for in 100 columns.
        QStringList expected;
        for (const SheetCommand &command : sheet.commands) {
            const QString item = u' ' + listed(command) + u',';
            if (expected.isEmpty() || expected.constLast().size() + item.size() > 100)
                expected.append(u"   "_s);
            expected.last() += item;
        }
        expected.last().chop(1);
        QCOMPARE(lines, expected);
    }

    void listOfSome()
    {
        const SimulatorOptions options = parsed(
            {u"--list"_s, u"--model"_s, u"hv0XX (legacy)"_s, u"--model"_s, u"ampra one"_s});
        QCOMPARE(options.action, Action::Print);
        QCOMPARE(options.text,
                 u"HV0xx (legacy)\n"
                 "    serial, 19200 baud, player ID 0 to 127\n"
                 "    Folder (0 to 127), Play, Stop, Next File, Previous File, Volume (0 to 13), "
                 "Change ID (1 to 127)\n"
                 "Ampra One\n"
                 "    serial, 4800, 9600, 19200 baud, player ID 0 to 127\n"
                 "    Volume 1 (0 to 56), Request: Information, Triggering of the secondary volume "
                 "(Volume 2),\n"
                 "    Set baudrate = 4800, Set baudrate = 9600, Set baudrate = 19200, Change ID (1 "
                 "to 127)\n"_s);
    }

    void listOfAddresses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("line");

        QTest::newRow("address") << QStringList{u"--address"_s, u"127.9.8.7"_s}
                                 << u"    TCP/IP, port 1234, simulated at 127.9.8.7"_s;
        QTest::newRow("port") << QStringList{u"--port"_s, u"4321"_s}
                              << u"    TCP/IP, port 4321, simulated at 127.0.0.1"_s;
        QTest::newRow("free port") << QStringList{u"--port"_s, u"0"_s}
                                   << u"    TCP/IP, port any, simulated at 127.0.0.1"_s;
    }

    void listOfAddresses()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, line);
        const SimulatorOptions options
            = parsed(QStringList{u"--list"_s, u"--model"_s, lite} + arguments);
        QCOMPARE(options.text.split(u'\n').value(0), lite);
        QCOMPARE(options.text.split(u'\n').value(1), line);
    }

    void endpoints_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<int>("port");
        QTest::addColumn<QStringList>("expected");

        const QString show = u"Vistar Show - SV500 (TCP/IP) at "_s;
        const QString home = u"Vistar Home - HV4xx (TCP/IP) at "_s;
        const QString sonet = u"Sonet A Lite (TCP/IP) at "_s;
        QTest::newRow("own ports")
            << u"127.0.0.1"_s << -1
            << QStringList{tempoDeck, show + u"127.0.0.1 port 65079"_s,
                           sonet + u"127.0.0.1 port 1234"_s, home + u"127.0.0.2 port 65079"_s};
        QTest::newRow("one port for all")
            << u"127.0.0.1"_s << 500
            << QStringList{tempoDeck, show + u"127.0.0.1 port 500"_s,
                           sonet + u"127.0.0.2 port 500"_s, home + u"127.0.0.3 port 500"_s};
        QTest::newRow("free ports need no more addresses")
            << u"127.0.0.1"_s << 0
            << QStringList{tempoDeck, show + u"127.0.0.1 port 0"_s, sonet + u"127.0.0.1 port 0"_s,
                           home + u"127.0.0.1 port 0"_s};
        QTest::newRow("carry to the next number")
            << u"127.0.0.255"_s << -1
            << QStringList{tempoDeck, show + u"127.0.0.255 port 65079"_s,
                           sonet + u"127.0.0.255 port 1234"_s, home + u"127.0.1.0 port 65079"_s};
    }

    void endpoints()
    {
        QFETCH(const QString, address);
        QFETCH(const int, port);
        QFETCH(const QStringList, expected);

        QList<DeviceModel> models;
        for (const QString &name : {tempoDeck, u"Vistar Show - SV500 (TCP/IP)"_s, lite,
                                    u"Vistar Home - HV4xx (TCP/IP)"_s})
            models.append(builtModel(name));
        const std::optional<quint16> given
            = port < 0 ? std::nullopt : std::optional(static_cast<quint16>(port));
        QCOMPARE(places(assignEndpoints(models, QHostAddress(address), given)), expected);
    }

    void endpointsOfNothing()
    {
        QVERIFY(assignEndpoints({}, QHostAddress::LocalHost, std::nullopt).isEmpty());
        QCOMPARE(modelListText({}), QString());
    }

    void link()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        {
            PortLink link;
            QCOMPARE(link.point(path, u"/dev/pts/4711"_s), QString());
            QCOMPARE(QFile::symLinkTarget(path), u"/dev/pts/4711"_s);
            // The plug was pulled and put in elsewhere.
            QCOMPARE(link.point(path, u"/dev/pts/4712"_s), QString());
            QCOMPARE(QFile::symLinkTarget(path), u"/dev/pts/4712"_s);
            QCOMPARE(QDir(folder.path())
                         .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                     QStringList{u"port"_s});
        }
        QVERIFY(!QFileInfo(path).isSymbolicLink());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void staleLinkIsReplaced()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        QVERIFY(QFile::link(u"/dev/pts/999999"_s, path));
        {
            PortLink link;
            QCOMPARE(link.point(path, u"/dev/pts/4711"_s), QString());
            QCOMPARE(QFile::symLinkTarget(path), u"/dev/pts/4711"_s);
        }
        QVERIFY(!QFileInfo(path).isSymbolicLink());
    }

    void whatIsNoLinkStays_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("file") << u"file"_s;
        QTest::newRow("folder") << u"folder"_s;
        QTest::newRow("link to a file") << u"link"_s;
        QTest::newRow("link to nothing") << u"broken link"_s;
    }

    void whatIsNoLinkStays()
    {
        QFETCH(const QString, kind);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        const QString other = folder.filePath(u"other"_s);
        if (kind == "folder"_L1) {
            QVERIFY(QDir().mkdir(path));
        } else if (kind == "broken link"_L1) {
            QVERIFY(QFile::link(other, path));
        } else {
            QFile file(kind == "file"_L1 ? path : other);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write("mine"), 4);
            file.close();
            if (kind == "link"_L1)
                QVERIFY(QFile::link(other, path));
        }
        {
            PortLink link;
            QCOMPARE(link.point(path, u"/dev/pts/4711"_s),
                     path + " exists already and is no link to a pseudo-terminal"_L1);
        }
        const QFileInfo info(path);
        QCOMPARE(info.isSymbolicLink(), kind.endsWith("link"_L1));
        QCOMPARE(info.isDir(), kind == "folder"_L1);
        if (kind == "file"_L1 || kind == "link"_L1)
            QCOMPARE(contentOf(path), "mine"_ba);
        if (kind.endsWith("link"_L1))
            QCOMPARE(info.symLinkTarget(), other);
    }

    void linkOfSomebodyElseStays()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"port"_s);
        {
            PortLink link;
            QCOMPARE(link.point(path, u"/dev/pts/4711"_s), QString());
            QVERIFY(QFile::remove(path));
            QVERIFY(QFile::link(u"/dev/pts/4713"_s, path));
        }
        QCOMPARE(QFile::symLinkTarget(path), u"/dev/pts/4713"_s);
    }

    void linkInNoFolder()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"missing/port"_s);
        PortLink link;
        QCOMPARE(link.point(path, u"/dev/pts/4711"_s),
                 u"cannot link %1: No such file or directory"_s.arg(path));
    }
};

TESSALY_TEST(tst_Options)
#include "tst_options.moc"
