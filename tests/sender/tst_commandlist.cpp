// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/commandlist.h"

#include "catalogue/lightingmodels.h"
#include "tests/support/testregistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

DeviceModel modelOf(const QString &name)
{
    const DeviceCatalogue catalogue = buildDeviceCatalogue();
    const DeviceModel *model = findModel(catalogue, name);
    return model ? *model : DeviceModel();
}

/// Without blanks and, to be read more easily, with single quotes.
QByteArray compact(const QJsonValue &value)
{
    return QJsonDocument(value.toObject())
        .toJson(QJsonDocument::Compact)
        .replace("\\\"", "''")
        .replace('"', '\'');
}

/// The command of that label and list.
QByteArray commandOf(const QJsonObject &model, const QString &label, const QString &list)
{
    const QJsonArray commands = model.value(u"commands"_s).toArray();
    for (const auto &value : commands) {
        const QJsonObject command = value.toObject();
        if (command.value(u"label"_s) == label && command.value(u"list"_s) == list)
            return compact(command);
    }
    return "none";
}

} // namespace

class tst_CommandList : public QObject
{
    Q_OBJECT

private slots:
    void models()
    {
        const QStringList lines = modelsText(buildDeviceCatalogue()).split(u'\n');
        QCOMPARE(lines.size(), 16); // with the empty one behind the last line end
        QCOMPARE(lines.at(0), u"Tempo Deck: serial, 9600, 19200, 38400 baud, player ID 0 to 127"_s);
        QCOMPARE(lines.at(6), u"Sonet A (Serial): serial, 115200 baud"_s);
        QCOMPARE(lines.at(7), u"Sonet A Lite (TCP/IP): TCP/IP, port 1234"_s);
        QCOMPARE(lines.at(15), QString());
    }

    void commands()
    {
        QCOMPARE(commandsText(modelOf(u"Ampra One"_s)),
                 u"Ampra One: serial, 4800, 9600, 19200 baud, player ID 0 to 127\n"
                 "    \"Volume 1\" NUMBER (0 to 56)\n"
                 "    request Information\n"
                 "    \"Triggering of the secondary volume (Volume 2)\"\n"
                 "    \"Set baudrate = 4800\"\n"
                 "    \"Set baudrate = 9600\"\n"
                 "    \"Set baudrate = 19200\"\n"
                 "    \"Change ID\" NUMBER (1 to 127)\n"_s);
    }

    void commandsWithOtherValues()
    {
        const QString sonet = commandsText(modelOf(u"Sonet A (Serial)"_s));
        QVERIFY(sonet.contains(
            u"\n    source \"SPOT folder (Random + Reset)\" NUMBER (1 to 999) OPTION (1 to 255)\n"_s));
        const QString video = commandsText(modelOf(u"Vistar Show - SV500 (TCP/IP)"_s));
        QVERIFY(video.contains(u"\n    subtitles LANGUAGE\n    subtitles NUMBER (0 to 127)\n"_s));
        QVERIFY(video.contains(u"\n    Folder NUMBER (0 to 999)\n"_s));
        DeviceCatalogue catalogue;
        appendLumoBridge(catalogue);
        QVERIFY(
            commandsText(catalogue.constFirst()).contains(u"\n    Relay CONTACT... (1 to 8)\n"_s));
    }

    void modelsAsJson()
    {
        const QJsonArray models
            = QJsonDocument::fromJson(modelsJson(buildDeviceCatalogue()).toUtf8()).array();
        QCOMPARE(models.size(), 15);
        QCOMPARE(compact(models.at(0)),
                 "{'baudRates':[9600,19200,38400],'defaultBaudRate':19200,'firmware':'1.2',"
                 "'link':'serial','name':'Tempo Deck','playerIds':{'max':127,'min':0}}"_ba);
        QCOMPARE(compact(models.at(3)),
                 "{'firmware':'1.11','link':'tcp','name':'Vistar Show - SV500 (TCP/IP)',"
                 "'playerIds':{'max':0,'min':0},'tcpPort':65079}"_ba);
    }

    void commandsAsJson()
    {
        const QString text = commandsJson(modelOf(u"Vistar Home - HV4xx (Serial)"_s));
        const QJsonObject video = QJsonDocument::fromJson(text.toUtf8()).object();
        QCOMPARE(video.value(u"name"_s).toString(), u"Vistar Home - HV4xx (Serial)"_s);
        QCOMPARE(video.value(u"commands"_s).toArray().size(), 48);
        QCOMPARE(commandOf(video, u"Next File"_s, u""_s),
                 "{'label':'Next File','list':'','values':[],'words':'''Next File'''}"_ba);
        QCOMPARE(commandOf(video, u"Volume"_s, u""_s),
                 "{'label':'Volume','list':'','values':[{'max':100,'min':0,'name':"
                 "'number'}],"
                 "'words':'Volume'}"_ba);
        QCOMPARE(commandOf(video, u"Volume"_s, u"request"_s),
                 "{'label':'Volume','list':'request','values':[],'words':'request Volume'}"_ba);
        QCOMPARE(commandOf(video, u"ISO639"_s, u"subtitles"_s),
                 "{'label':'ISO639','list':'subtitles','values':[{'name':'language'}],"
                 "'words':'subtitles'}"_ba);
    }
};

TESSALY_TEST(tst_CommandList)
#include "tst_commandlist.moc"
