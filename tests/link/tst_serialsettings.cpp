// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "link/serialsettings.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_SerialSettings : public QObject
{
    Q_OBJECT

private slots:
    void baudRates_data();
    void baudRates();
    void lineSettings();
    void errorMessages_data();
    void errorMessages();
    void portNames_data();
    void portNames();
};

void tst_SerialSettings::baudRates_data()
{
    QTest::addColumn<qint32>("asked");
    QTest::addColumn<qint32>("opened");

    for (const qint32 rate : {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200})
        QTest::addRow("%d is known", rate) << rate << rate;
    QTest::newRow("14400 lies between known ones") << 14400 << 9600;
    QTest::newRow("300 is too slow") << 300 << 9600;
    QTest::newRow("230400 is too fast") << 230400 << 9600;
    QTest::newRow("0") << 0 << 9600;
    QTest::newRow("-1, a model without a preset") << -1 << 9600;
}

void tst_SerialSettings::baudRates()
{
    QFETCH(const qint32, asked);
    QTEST(acceptedBaudRate(asked), "opened");
}

void tst_SerialSettings::lineSettings()
{
    QSerialPort port;
    port.setParity(QSerialPort::EvenParity);
    applyLineSettings(u"/dev/ttyUSB7"_s, 38400, port);
    QCOMPARE(port.portName(), u"ttyUSB7"_s);
    QCOMPARE(port.baudRate(QSerialPort::Input), 38400);
    QCOMPARE(port.baudRate(QSerialPort::Output), 38400);
    QCOMPARE(port.dataBits(), QSerialPort::Data8);
    QCOMPARE(port.parity(), QSerialPort::NoParity);
    QCOMPARE(port.stopBits(), QSerialPort::OneStop);
    QCOMPARE(port.flowControl(), QSerialPort::NoFlowControl);
}

void tst_SerialSettings::errorMessages_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("message");

    QTest::newRow("0 no error") << 0 << u"No error."_s;
    QTest::newRow("1 device not found") << 1 << u"Device not found error."_s;
    QTest::newRow("2 permission") << 2 << u"Permission error."_s;
    QTest::newRow("3 open") << 3 << u"Open error."_s;
    QTest::newRow("4 write") << 4 << u"Write error."_s;
    QTest::newRow("5 read") << 5 << u"Read error."_s;
    QTest::newRow("6 resource") << 6 << u"Resource error."_s;
    QTest::newRow("7 unsupported operation") << 7 << u"Unsupported operation error."_s;
    QTest::newRow("8 unknown") << 8 << u"Unknown error."_s;
    QTest::newRow("9 timeout") << 9 << u"Timeout error."_s;
    QTest::newRow("10 not open") << 10 << u"Not open error."_s;
    // The odd spelling tells a number without a name from error 8.
    QTest::newRow("11 has no name") << 11 << u"Unkown error."_s;
    QTest::newRow("-1 has no name") << -1 << u"Unkown error."_s;
    QTest::newRow("a thousand has no name") << 1000 << u"Unkown error."_s;
}

void tst_SerialSettings::errorMessages()
{
    QFETCH(const int, error);
    QTEST(QString::fromLatin1(serialErrorMessage(error)), "message");
}

void tst_SerialSettings::portNames_data()
{
    QTest::addColumn<QString>("extraPorts");
    QTest::addColumn<QStringList>("added");

    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("empty text") << u""_s << QStringList();
    QTest::newRow("one") << u"/dev/pts/7"_s << QStringList{u"/dev/pts/7"_s};
    QTest::newRow("two in their order") << u"/b:/a"_s << QStringList{u"/b"_s, u"/a"_s};
    QTest::newRow("empty parts are left out") << u":x::y:"_s << QStringList{u"x"_s, u"y"_s};
    QTest::newRow("separators alone") << u":::"_s << QStringList();
}

void tst_SerialSettings::portNames()
{
    QFETCH(const QString, extraPorts);
    QFETCH(const QStringList, added);

    QStringList names;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports)
        names.append(port.portName());
    QCOMPARE(serialPortNames(extraPorts), names + added);
}

TESSALY_WINDOW_TEST(tst_SerialSettings)
#include "tst_serialsettings.moc"
