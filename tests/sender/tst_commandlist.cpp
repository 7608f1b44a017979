// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/commandlist.h"
#include "tests/support/builtmodels.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Without spaces and, to be read more easily, with single quotes.
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

/// The model of that name in a list of models.
QByteArray modelIn(const QJsonArray &models, const QString &name)
{
    for (const auto &value : models) {
        if (value.toObject().value(u"name"_s) == name)
            return compact(value);
    }
    return "none";
}

QString listName(const SheetCommand &command)
{
    switch (command.id) {
    case 10:
        return u"request"_s;
    case 23:
    case 24:
    case 25:
    case 26:
        return u"source"_s;
    case 39:
    case 40:
        return u"subtitles"_s;
    default:
        return {};
    }
}

} // namespace

class tst_CommandList : public QObject
{
    Q_OBJECT

private slots:
    void models()
    {
        QStringList expected;
        for (const ModelSheet &sheet : modelSheets()) {
            QStringList rates;
            for (const qint32 rate : sheet.baudRates)
                rates.append(QString::number(rate));
            QString line = sheet.name + ": "_L1;
            line += sheet.isTcp ? u"TCP/IP, port %1"_s.arg(sheet.tcpPort)
                                : u"serial, %1 baud"_s.arg(rates.join(u", "_s));
            if (sheet.hasPlayerIds()) {
                line += u", player ID %1 to %2"_s.arg(sheet.lowestPlayerId)
                            .arg(sheet.highestPlayerId);
            }
            expected.append(line);
        }
        QCOMPARE(modelsText(buildDeviceCatalogue()).split(u'\n'), expected + QStringList{u""_s});
    }

    void commands()
    {
        QCOMPARE(commandsText(builtModel(u"Ampra One"_s)),
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
        const QString sonet = commandsText(builtModel(u"Sonet A (Serial)"_s));
        QVERIFY(sonet.contains(
            u"\n    source \"SPOT folder (Random + Reset)\" NUMBER (1 to 999) OPTION (1 to 255)\n"_s));
        const QString video = commandsText(builtModel(u"Vistar Show - SV500 (TCP/IP)"_s));
        QVERIFY(video.contains(u"\n    subtitles LANGUAGE\n    subtitles NUMBER (0 to 127)\n"_s));
        QVERIFY(video.contains(u"\n    Folder NUMBER (0 to 999)\n"_s));
        QVERIFY(commandsText(builtModel(u"Lumo Bridge"_s))
                    .contains(u"\n    Relay CONTACT... (1 to 8)\n"_s));
    }

    void modelsAsJson()
    {
        const QJsonArray models
            = QJsonDocument::fromJson(modelsJson(buildDeviceCatalogue()).toUtf8()).array();
        QStringList names;
        for (const auto &model : models)
            names.append(model.toObject().value(u"name"_s).toString());
        QStringList expected;
        for (const ModelSheet &sheet : modelSheets())
            expected.append(sheet.name);
        QCOMPARE(names, expected);
        QCOMPARE(modelIn(models, u"Tempo Deck"_s),
                 "{'baudRates':[9600,19200,38400],'defaultBaudRate':19200,'firmware':'1.2',"
                 "'link':'serial','name':'Tempo Deck','playerIds':{'max':127,'min':0}}"_ba);
        QCOMPARE(modelIn(models, u"Vistar Show - SV500 (TCP/IP)"_s),
                 "{'firmware':'1.11','link':'tcp','name':'Vistar Show - SV500 (TCP/IP)',"
                 "'playerIds':{'max':0,'min':0},'tcpPort':65079}"_ba);
    }

    void commandsAsJson_data() { addAllModelRows(); }

    void commandsAsJson()
    {
        QFETCH(const ModelSheet, sheet);
        const QString text = commandsJson(builtModel(sheet.name));
        const QJsonObject model = QJsonDocument::fromJson(text.toUtf8()).object();
        QCOMPARE(model.value(u"name"_s).toString(), sheet.name);
        QStringList commands;
        const QJsonArray array = model.value(u"commands"_s).toArray();
        for (const auto &command : array) {
            commands.append(command.toObject().value(u"list"_s).toString() + u'/'
                            + command.toObject().value(u"label"_s).toString());
        }
        QStringList expected;
        for (const SheetCommand &command : sheet.commands)
            expected.append(listName(command) + u'/' + command.label);
        QCOMPARE(commands, expected);
    }

    void commandFieldsAsJson()
    {
        const QString text = commandsJson(builtModel(u"Vistar Home - HV4xx (Serial)"_s));
        const QJsonObject video = QJsonDocument::fromJson(text.toUtf8()).object();
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
