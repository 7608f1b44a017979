// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consoleprogram.h"
#include "tests/support/hexbytes.h"
#include "tests/support/programtestmain.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"

#include <QHostAddress>
#include <QLabel>
#include <QMessageBox>

using namespace Qt::Literals::StringLiterals;

class tst_Program : public QObject
{
    Q_OBJECT

private slots:
    void startAndExitShortcut();
    void serialLink();
    void mediaAndSignKeys();
    void tcpLink();
    void unknownSerialPort();
    void closeByWindowManager();
};

void tst_Program::startAndExitShortcut()
{
    PtyPeer peer;
    ConsoleProgram program(peer.portName());
    QVERIFY(program.start());
    program.twin<QLabel>("label_Bytes_Sended")->setText(u"0"_s);
    program.twin<QLabel>("label_Volume_2")->setText(u"..."_s);
    program.expectLink(false);
    QVERIFY(program.looksAsExpected());
    QVERIFY(program.saveScreenshot(u"start"_s));

    QVERIFY(program.press({u"ctrl+q"_s}));
    QVERIFY(program.endsWell());
    QCOMPARE(hexBytes(peer.received()), ""_ba);
}

void tst_Program::serialLink()
{
    PtyPeer peer;
    ConsoleProgram program(peer.portName());
    QVERIFY(program.start());
    QVERIFY(program.choose("comboBox_Player", u"Tempo Deck"_s));
    QVERIFY(program.choose("comboBox_Port", peer.portName()));
    // Before the connection a command goes nowhere, also later.
    QVERIFY(program.press({u"ctrl+5"_s}));
    QVERIFY(program.click("pushButton_Connect"));
    program.expectLink(true);

    QVERIFY(program.choose("comboBox_ID", u"3"_s));
    QVERIFY(program.click("pushButton_Play"));
    QTRY_COMPARE(hexBytes(peer.received()), "83 02 01"_ba);
    QVERIFY(program.click("label_Bytes_Sended"));
    QVERIFY(program.copies(u"83 02 01"_s));

    QVERIFY(program.press({u"ctrl+5"_s}));
    QTRY_COMPARE(hexBytes(peer.received()), "83 02 01 83 01 05"_ba);
    QVERIFY(program.copies(u"83 01 05"_s));
    QVERIFY(program.click("radioButton_Sent_Dec"));
    QVERIFY(program.click("label_Bytes_Sended"));
    QVERIFY(program.copies(u"131 1 5"_s));
    QVERIFY(program.click("radioButton_Sent_Hex"));

    QVERIFY(peer.send("OK\r\n"_ba));
    QVERIFY(program.click("textEdit_Data"));
    QVERIFY(program.copies(u"OK\n"_s)); // the device's own line end is kept
    QVERIFY(program.saveScreenshot(u"serial"_s));

    QVERIFY(program.click("pushButton_Clear"));
    // After the click, so that what comes next is not cleared with the rest.
    QVERIFY(program.press({u"ctrl+5"_s}));
    QTRY_COMPARE(hexBytes(peer.received()), "83 02 01 83 01 05 83 01 05"_ba);
    QVERIFY(peer.send("READY"_ba));
    QVERIFY(program.click("textEdit_Data"));
    QVERIFY(program.copies(u"READY"_s));

    QVERIFY(program.click("pushButton_Disconnect"));
    program.expectLink(false);
    program.twin<QLabel>("label_Bytes_Sended")->setText(u"83 01 05"_s);
    QVERIFY(program.looksAsExpected());
    QVERIFY(program.press({u"ctrl+6"_s}));
    QVERIFY(program.press({u"ctrl+q"_s}));
    QVERIFY(program.endsWell());
    QCOMPARE(hexBytes(peer.received()), "83 02 01 83 01 05 83 01 05"_ba);
}

void tst_Program::mediaAndSignKeys()
{
    PtyPeer peer;
    ConsoleProgram program(peer.portName());
    QVERIFY(program.start());
    QVERIFY(program.choose("comboBox_Player", u"Tempo Deck"_s));
    QVERIFY(program.choose("comboBox_Port", peer.portName()));
    QVERIFY(program.click("pushButton_Connect"));
    program.expectLink(true);
    QVERIFY(program.looksAsExpected());

    // What Tempo Deck lacks sends nothing, so the next row shows it.
    const struct
    {
        const char *key;
        QByteArray bytes;
    } rows[] = {
        {"XF86AudioPlay", "80 02 01"_ba},
        {"XF86AudioPause", ""_ba},
        {"XF86AudioStop", "80 02 02"_ba},
        {"XF86AudioMute", ""_ba},
        {"XF86AudioNext", "80 02 03"_ba},
        {"XF86AudioPrev", "80 02 04"_ba},
        {"ctrl+XF86AudioNext", "80 02 06"_ba},
        {"ctrl+XF86AudioPrev", "80 02 07"_ba},
        {"ctrl+plus", ""_ba}, // the slider is at its end already
        {"ctrl+minus", "80 03 3F"_ba},
        {"ctrl+0", "80 01 00"_ba},
    };
    for (const auto &[key, bytes] : rows) {
        QVERIFY(program.press({QString::fromLatin1(key)}));
        if (bytes.isEmpty())
            continue;
        QTRY_COMPARE(hexBytes(peer.received()), bytes);
        peer.takeReceived();
    }
    program.twin<QLabel>("label_Volume_2")->setText(u"63"_s);
    QVERIFY(program.looksAsExpected());
    QVERIFY(program.saveScreenshot(u"keys"_s));

    QVERIFY(program.press({u"ctrl+q"_s}));
    QVERIFY(program.endsWell());
    QCOMPARE(hexBytes(peer.received()), ""_ba);
}

void tst_Program::tcpLink()
{
    TcpPeer peer(65079);
    ConsoleProgram program({});
    QVERIFY(program.start());
    QVERIFY(program.choose("comboBox_Player", u"Vistar Show - SV500 (TCP/IP)"_s));

    QVERIFY(program.typeAddress(TcpPeer::address().toString()));
    QCOMPARE(peer.connectionCount(), 0);
    QVERIFY(program.click("pushButton_Connect"));
    QTRY_VERIFY(peer.isConnected());
    program.expectLink(true);

    QVERIFY(program.click("pushButton_Play"));
    QTRY_COMPARE(hexBytes(peer.received()), "80 02 01"_ba);
    peer.send("Playing"_ba);
    QVERIFY(program.click("textEdit_Data"));
    QVERIFY(program.copies(u"Playing"_s));
    QVERIFY(program.click("label_Bytes_Sended"));
    QVERIFY(program.copies(u"80 02 01"_s));
    QVERIFY(program.saveScreenshot(u"tcp"_s));

    QVERIFY(program.press({u"ctrl+q"_s}));
    QVERIFY(program.endsWell());
    QTRY_VERIFY(!peer.isConnected());
    QCOMPARE(peer.connectionCount(), 1);
    QCOMPARE(hexBytes(peer.received()), "80 02 01"_ba);
}

void tst_Program::unknownSerialPort()
{
    const QTemporaryDir folder;
    const QString port = folder.filePath(u"no-such-port"_s);
    ConsoleProgram program(port);
    QVERIFY(program.start());
    QVERIFY(program.choose("comboBox_Player", u"Tempo Deck"_s));
    QVERIFY(program.choose("comboBox_Port", port));
    QVERIFY(program.click("pushButton_Connect"));

    const QString title = u"Serial port error"_s;
    QTRY_VERIFY(program.hasWindow(title));
    QMessageBox twin(QMessageBox::Critical, title,
                     u"An error on the serial port has occurred!\nDevice not found error."_s,
                     QMessageBox::Ok);
    twin.setAttribute(Qt::WA_DontShowOnScreen);
    twin.show();
    QVERIFY(program.looksLike(&twin, title));
    QVERIFY(program.saveScreenshot(u"serial-port-error"_s, title));

    QVERIFY(program.focus(title));
    QVERIFY(program.press({u"Return"_s}));
    QTRY_VERIFY(!program.hasWindow(title));
    QVERIFY(program.looksAsExpected());
    QVERIFY(program.saveScreenshot(u"after-serial-port-error"_s));
    QVERIFY(program.focus(ConsoleProgram::title()));
    QVERIFY(program.press({u"ctrl+q"_s}));
    QVERIFY(program.endsWell());
}

void tst_Program::closeByWindowManager()
{
    ConsoleProgram program({});
    QVERIFY(program.start());
    QVERIFY(program.looksAsExpected());
    QVERIFY(program.saveScreenshot(u"before-close"_s));
    QVERIFY(program.requestClose(ConsoleProgram::title()));
    QVERIFY(program.endsWell());
}

TESSALY_PROGRAM_TEST(tst_Program)
#include "tst_program.moc"
