// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/amplifiermodels.h"
#include "catalogue/audiomodels.h"
#include "catalogue/commandvalues.h"
#include "catalogue/devicecatalogue.h"
#include "catalogue/lightingmodels.h"
#include "catalogue/videomodels.h"
#include "tests/support/hexbytes.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// "label / id / code / data / dataMax": a failing comparison of lists shows them.
QString described(const QString &label, quint32 id, quint8 code, const QByteArray &data,
                  const QByteArray &dataMax)
{
    return u"%1 / %2 / %3 / %4 / %5"_s.arg(label).arg(id).arg(code).arg(
        QLatin1String(hexBytes(data)), QLatin1String(hexBytes(dataMax)));
}

QStringList described(const QList<CommandEntry> &entries)
{
    QStringList texts;
    for (const CommandEntry &entry : entries)
        texts.append(
            described(entry.label, entry.commandId, entry.code, entry.data, entry.dataMax));
    return texts;
}

QStringList described(const ModelSheet &sheet)
{
    QStringList texts;
    for (const SheetCommand &command : sheet.commands)
        texts.append(
            described(command.label, command.id, command.code, command.data, command.dataMax));
    return texts;
}

} // namespace

class tst_Catalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void order();
    void models_data() { addAllModelRows(); }
    void models();
    void valueRanges_data() { addAllModelRows(); }
    void valueRanges();
    void notOffered();
    void modelsByName();
    void sharedVideoListGoesToTheLastModel_data();
    void sharedVideoListGoesToTheLastModel();

    void defaultDeviceModel();
    void deviceModelArguments();
    void defaultCommandEntry();
    void commandEntryCopiesItsBytes();

private:
    DeviceModel model(const QString &name) const;

    DeviceCatalogue m_catalogue;
    DeviceCatalogue m_notOffered;
};

void tst_Catalogue::initTestCase()
{
    m_catalogue = buildDeviceCatalogue();
    appendLumoBridge(m_notOffered);
}

DeviceModel tst_Catalogue::model(const QString &name) const
{
    const DeviceCatalogue all = m_catalogue + m_notOffered;
    const DeviceModel *found = findModel(all, name);
    return found ? *found : DeviceModel();
}

void tst_Catalogue::order()
{
    const QStringList offered = modelNames(m_catalogue);
    QStringList names;
    for (const ModelSheet &sheet : modelSheets()) {
        names.append(sheet.name);
        QVERIFY2(offered.contains(sheet.name), qPrintable(sheet.name + " is not offered"_L1));
    }
    for (const QString &name : offered)
        QVERIFY2(names.contains(name), qPrintable(name + " has no sheet"_L1));
    QCOMPARE(offered, names);
}

void tst_Catalogue::models()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel actual = model(sheet.name);

    QCOMPARE(actual.name, sheet.name);
    QCOMPARE(actual.protocol, sheet.isExtended ? ProtocolKind::Extended : ProtocolKind::Classic);
    QCOMPARE(actual.transport, sheet.isTcp ? TransportKind::TcpIp : TransportKind::Serial);
    QCOMPARE(actual.connectsOnDemand(), sheet.connectsOnDemand());
    QCOMPARE(int(actual.minPlayerId), sheet.lowestPlayerId);
    QCOMPARE(int(actual.maxPlayerId), sheet.highestPlayerId);
    QCOMPARE(int(actual.folderBankCount), sheet.folderBanks);
    QCOMPARE(actual.baudRates, sheet.baudRates);
    QCOMPARE(actual.defaultBaudRate, sheet.defaultBaudRate);
    QCOMPARE(actual.tcpPort, sheet.tcpPort);
    QCOMPARE(actual.firmwareVersion, sheet.firmware);
    QCOMPARE(described(actual.commands), described(sheet));
}

void tst_Catalogue::valueRanges()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel actual = model(sheet.name);
    QCOMPARE(actual.commands.size(), sheet.commands.size());
    for (qsizetype i = 0; i < sheet.commands.size(); ++i) {
        const SheetCommand &command = sheet.commands.at(i);
        const CommandEntry &entry = actual.commands.at(i);
        bool isNumber = false;
        command.lowest.section(u',', 0, 0).toInt(&isNumber);
        QCOMPARE(takesNumber(entry), isNumber);
        if (isNumber)
            QCOMPARE(valueRange(actual, entry),
                     (NumberRange{command.lowestNumber(), command.highestNumber()}));
    }
}

void tst_Catalogue::notOffered()
{
    QCOMPARE(modelNames(m_notOffered), QStringList{u"Lumo Bridge"_s});
    QVERIFY(!findModel(m_catalogue, u"Lumo Bridge"_s));
}

void tst_Catalogue::modelsByName()
{
    for (const DeviceModel &known : std::as_const(m_catalogue)) {
        QCOMPARE(findModel(m_catalogue, known.name), &known);
        QCOMPARE(findModel(m_catalogue, known.name.toUpper()), &known);
        QVERIFY(!findModel(m_catalogue, known.name.chopped(1)));
    }
    const DeviceCatalogue empty;
    QVERIFY(!findModel(empty, u"Ampra One"_s));
}

void tst_Catalogue::sharedVideoListGoesToTheLastModel_data()
{
    QTest::addColumn<DeviceCatalogue>("catalogue");

    DeviceCatalogue lastIsAmplifier;
    appendTempoDeck(lastIsAmplifier);
    appendAmpraOne(lastIsAmplifier);
    DeviceCatalogue lastIsVideo;
    appendAmpraOne(lastIsVideo);
    appendVistarHomeTcp(lastIsVideo);

    QTest::newRow("only model, bare") << DeviceCatalogue{DeviceModel()};
    QTest::newRow("amplifier") << lastIsAmplifier;
    QTest::newRow("video model that has the list") << lastIsVideo;
}

void tst_Catalogue::sharedVideoListGoesToTheLastModel()
{
    QFETCH(DeviceCatalogue, catalogue);
    const DeviceCatalogue before = catalogue;
    appendSharedVideoCommands(catalogue);

    QCOMPARE(catalogue.size(), before.size());
    for (qsizetype i = 0; i + 1 < before.size(); ++i)
        QCOMPARE(described(catalogue.at(i).commands), described(before.at(i).commands));
    QCOMPARE(described(catalogue.last().commands),
             described(before.last().commands)
                 + described(sheetOf(u"Vistar Show - SV500 (Serial)"_s)));
}

void tst_Catalogue::defaultDeviceModel()
{
    const DeviceModel model;
    QCOMPARE(model.name, QString());
    QCOMPARE(model.protocol, ProtocolKind::Classic);
    QCOMPARE(model.transport, TransportKind::Serial);
    QCOMPARE(int(model.minPlayerId), 0);
    QCOMPARE(int(model.maxPlayerId), 0);
    QCOMPARE(int(model.folderBankCount), 1);
    QCOMPARE(model.baudRates, QList<qint32>());
    QCOMPARE(model.commands.size(), 0);
    QCOMPARE(model.defaultBaudRate, -1);
    QCOMPARE(int(model.tcpPort), 0);
    QCOMPARE(model.firmwareVersion, QString());
}

void tst_Catalogue::deviceModelArguments()
{
    const DeviceModel model(u"Name"_s, ProtocolKind::Extended, TransportKind::TcpIp, 1, 255, 3,
                            4000000, 65535, u"5.6"_s);
    QCOMPARE(model.name, u"Name"_s);
    QCOMPARE(model.protocol, ProtocolKind::Extended);
    QCOMPARE(model.transport, TransportKind::TcpIp);
    QCOMPARE(int(model.minPlayerId), 1);
    QCOMPARE(int(model.maxPlayerId), 255);
    QCOMPARE(int(model.folderBankCount), 3);
    QCOMPARE(model.baudRates, QList<qint32>());
    QCOMPARE(model.commands.size(), 0);
    QCOMPARE(model.defaultBaudRate, 4000000);
    QCOMPARE(int(model.tcpPort), 65535);
    QCOMPARE(model.firmwareVersion, u"5.6"_s);
}

void tst_Catalogue::defaultCommandEntry()
{
    QCOMPARE(described({CommandEntry()}), QStringList{u" / 99 / 0 /  / "_s});
}

void tst_Catalogue::commandEntryCopiesItsBytes()
{
    char low[] = {0x01, 0x02, 0x03};
    char high[] = {0x0A, 0x00};
    const CommandEntry entry(u"Volume"_s, 9, 3, QByteArray::fromRawData(low, sizeof low),
                             QByteArray::fromRawData(high, sizeof high));
    const QList<CommandEntry> entryAndCopy{entry, entry};
    for (char &byte : low)
        byte = 0x55;
    for (char &byte : high)
        byte = 0x66;
    QCOMPARE(described(entryAndCopy), QStringList(2, u"Volume / 9 / 3 / 01 02 03 / 0A 00"_s));
}

TESSALY_TEST(tst_Catalogue)
#include "tst_catalogue.moc"
