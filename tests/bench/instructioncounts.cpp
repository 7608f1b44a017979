// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/bench/allframes.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QRadioButton>
#include <QSerialPort>

/// The work whose instructions scripts/bench counts. By itself, it gives Qt's benchmark figures.
class InstructionCounts : public QObject
{
    Q_OBJECT

private slots:
    void encoder();
    void panelChange();
    void receivedData_data();
    void receivedData();
};

void InstructionCounts::encoder()
{
    const DeviceCatalogue models = buildDeviceCatalogue();
    qsizetype count = 0;
    QBENCHMARK
    {
        forEachFrame(models, [&count](const QByteArray &frame) { count += frame.size(); });
    }
    QVERIFY(count > 0);
}

void InstructionCounts::panelChange()
{
    ConsoleWindow console;
    QVERIFY(QTest::qWaitForWindowExposed(&console.window));
    // The first change of all measures texts and icons once and for all.
    for (int row = 0; row < deviceCatalogue.size(); ++row)
        console.selectModel(row);
    QBENCHMARK
    {
        for (int row = 0; row < deviceCatalogue.size(); ++row)
            console.selectModel(row);
    }
}

void InstructionCounts::receivedData_data()
{
    QTest::addColumn<QByteArray>("form");

    QTest::newRow("text") << QByteArray("radioButton_Data_ASCII");
    QTest::newRow("hexadecimal") << QByteArray("radioButton_Data_Hex");
}

void InstructionCounts::receivedData()
{
    QFETCH(const QByteArray, form);
    ConsoleWindow console;
    PtyPeer peer;
    console.connectSerial(peer);
    console.find<QRadioButton>(form.constData())->setChecked(true);
    // The bytes are here before their signal is sent, which is part of what is counted.
    const QSignalBlocker blocker(serialPort);
    const QByteArray bytes = QByteArray("status: playing, folder 012\r\n").repeated(40);
    QVERIFY(peer.send(bytes));
    QTRY_COMPARE(serialPort->bytesAvailable(), bytes.size());
    QBENCHMARK_ONCE
    {
        console.window.update_Serial_Read_Data();
    }
    QVERIFY(receivedText.size() >= bytes.size());
}

int main(int argc, char *argv[])
{
    return runWindowTest<InstructionCounts>(argc, argv);
}

#include "instructioncounts.moc"
