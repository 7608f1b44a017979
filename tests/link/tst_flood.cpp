// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "attentionmeter.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"
#include "tirelesssender.h"

#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTextEdit>

#include <algorithm>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Sixteen bytes each. A serial line at 115200 baud takes twenty seconds for all of them.
constexpr int count = 20 * 11'520 / 16;
constexpr auto patience = 120s; ///< reached only by what fails

constexpr auto pieceTime = 50ms; ///< the sender does not need it for its next piece

enum class Link { Serial, Tcp };

/// The window, connected to a device that floods it.
class Flood : public ConsoleWindow
{
public:
    Flood(Link link, const QByteArray &form)
        : m_link(link)
    {
        if (link == Link::Serial) {
            selectModel(rowOfModel(serialModel));
            connectSerial(m_serialPeer);
        } else {
            selectModel(rowOfModel(tcpModel));
            if (!connectTcp() || !QTest::qWaitFor([this] { return m_tcpPeer.isConnected(); }))
                qFatal("no connection");
        }
        find<QRadioButton>(form.constData())->setChecked(true);
    }

    int deviceHandle() const
    {
        return m_link == Link::Serial ? m_serialPeer.handle() : m_tcpPeer.handle();
    }
    QByteArray sentToDevice()
    {
        return m_link == Link::Serial ? m_serialPeer.received() : m_tcpPeer.received();
    }

    QTextEdit *editor() const { return find<QTextEdit>("textEdit_Data"); }
    QString shown() const { return editor()->toPlainText(); }
    qsizetype shownSize() const { return editor()->document()->characterCount() - 1; }

    bool send(const QByteArray &bytes)
    {
        if (m_link == Link::Serial)
            return m_serialPeer.send(bytes);
        m_tcpPeer.send(bytes);
        return true;
    }

    PtyPeer m_serialPeer;
    TcpPeer m_tcpPeer{portOf(tcpModel)};

private:
    Link m_link;
};

template<typename Condition>
bool comesTrue(Condition condition)
{
    return QTest::qWaitFor(condition, int(std::chrono::milliseconds(patience).count()));
}

} // namespace

Q_DECLARE_METATYPE(Link)

class tst_Flood : public QObject
{
    Q_OBJECT

private slots:
    void leavesTheWindowToItsUser_data();
    void leavesTheWindowToItsUser();
    void isShownAsSetTextShowsIt_data();
    void isShownAsSetTextShowsIt();
    void canBeCleared();
    void fastNetworkDeviceIsReadInPieces();
};

void tst_Flood::leavesTheWindowToItsUser_data()
{
    QTest::addColumn<Link>("link");
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("sixteenBytes");
    QTest::addColumn<QString>("shownBytes");

    const QByteArray line = "0123456789:;=?@\n"_ba;
    const QByteArray ascii = "radioButton_Data_ASCII"_ba;
    const QByteArray hexadecimal = "radioButton_Data_Hex"_ba;
    const QString hexLine = u" 30 31 32 33 34 35 36 37 38 39 3A 3B 3D 3F 40 0A"_s;
    QTest::newRow("serial, twenty seconds' bytes at once, ASCII")
        << Link::Serial << ascii << line << QString::fromLatin1(line);
    QTest::newRow("serial, twenty seconds' bytes at once, hexadecimal")
        << Link::Serial << hexadecimal << line << hexLine;
    // What a line of another speed may look like: one word.
    QTest::newRow("serial, twenty seconds' bytes at once, ASCII, no UTF-8")
        << Link::Serial << ascii << QByteArray(16, '\xFF')
        << QString(16, QChar::ReplacementCharacter);
    QTest::newRow("TCP/IP, twenty seconds' bytes at once, hexadecimal")
        << Link::Tcp << hexadecimal << line << hexLine;
}

void tst_Flood::leavesTheWindowToItsUser()
{
    QFETCH(const Link, link);
    QFETCH(const QByteArray, form);
    QFETCH(const QByteArray, sixteenBytes);
    QFETCH(const QString, shownBytes);
    const QString expected = shownBytes.repeated(count);

    Flood flood(link, form);
    const AttentionMeter attention;
    const TirelessSender device(flood.deviceHandle(), sixteenBytes.repeated(count));
    // Its user works on meanwhile.
    QVERIFY(comesTrue([&] { return device.sentCount() > 16 * count / 2; }));
    flood.click("pushButton_Play");
    QCOMPARE(flood.text("label_Bytes_Sended"), u"80 02 01"_s);
    QVERIFY(comesTrue([&] { return flood.sentToDevice() == "\x80\x02\x01"_ba; }));

    QVERIFY(comesTrue([&] { return receivedText.size() == expected.size(); }));
    QVERIFY(receivedText == expected);
    QVERIFY(comesTrue([&] { return flood.shownSize() == expected.size(); }));
    QVERIFY(flood.shown() == expected);
    const QScrollBar *bar = flood.editor()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());

    // The time for which another byte has to wait belongs to the flood.
    QVERIFY(flood.send("\n"_ba));
    QVERIFY(comesTrue([&] { return flood.shownSize() > expected.size(); }));
    const int ticks = attention.tickCount();
    QTRY_VERIFY(attention.tickCount() > ticks);
    qInfo("the user has %.0f %% of the time, and waits for %d ms at most", 100 * attention.share(),
          int(attention.longestAbsence().count()));
    // More than half, but for what a busy machine takes.
    QVERIFY2(attention.share() >= 0.4, qPrintable(QString::number(attention.share())));

    flood.click("pushButton_Clear");
    QCOMPARE(receivedText, QString());
    QCOMPARE(flood.shown(), QString());
}

void tst_Flood::isShownAsSetTextShowsIt_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray ascii = "radioButton_Data_ASCII"_ba;
    QTest::newRow("lines") << ascii << "Volume: 64\r\nFolder: 001\r\n"_ba.repeated(2000);
    QTest::newRow("one line") << ascii << "0123456789 "_ba.repeated(4500);
    QTest::newRow("one word") << ascii << "0123456789ABCDEF"_ba.repeated(3000);
    QTest::newRow("one word after lines")
        << ascii << "Volume: 64\r\n"_ba.repeated(1000) + QByteArray(30'000, '\0');
    QTest::newRow("any bytes") << ascii
                               << "\x00\xFF\xC3\xA9\t\x07&lt;\xE2\x80\xA8"_ba.repeated(2000);
    QTest::newRow("markup from the first line on")
        << ascii << "<b>Volume</b>: 64<br>\n<i>Folder</i>: 001\r\n"_ba.repeated(2000);
    QTest::newRow("markup that comes late")
        << ascii << "\n"_ba + "Volume: 64 < 65 "_ba.repeated(2500) + "<b>end</b>"_ba;
    QTest::newRow("hexadecimal") << "radioButton_Data_Hex"_ba
                                 << "Volume: 64\r\n"_ba.repeated(2000);
    QTest::newRow("decimal") << "radioButton_Data_Dec"_ba
                             << "Volume: 64\r\n"_ba.repeated(2000);
}

void tst_Flood::isShownAsSetTextShowsIt()
{
    QFETCH(const QByteArray, form);
    QFETCH(const QByteArray, bytes);
    Flood flood(Link::Serial, form);
    {
        const TirelessSender device(flood.deviceHandle(), bytes);
        QVERIFY(comesTrue([&] { return device.isDone(); }));
    }
    // What comes last does so after a while, as an arrival of its own.
    QVERIFY(flood.m_serialPeer.send("END"_ba));
    const QString end = form == "radioButton_Data_ASCII" ? u"END"_s
                        : form == "radioButton_Data_Hex" ? u" 45 4E 44"_s
                                                         : u" 69 78 68"_s;
    QVERIFY(comesTrue([&] { return receivedText.endsWith(end); }));
    QVERIFY(comesTrue([&] { return flood.shown().endsWith(end); }));

    QTextEdit plain;
    plain.setFont(flood.editor()->font());
    plain.setText(receivedText);
    QVERIFY(flood.shown() == plain.toPlainText());
    QVERIFY(flood.editor()->toHtml() == plain.toHtml());
}

void tst_Flood::canBeCleared()
{
    const QByteArray line = "0123456789:;=?@\n"_ba;
    const int lineCount = 3 * count; // many times what three clears take
    Flood flood(Link::Serial, "radioButton_Data_Hex"_ba);
    int clears = 0;
    bool clearsGoOn = true;
    const QObject scope;
    connect(serialPort, &QSerialPort::readyRead, &scope, [&] {
        // The editor is behind: a showing is due.
        if (!clearsGoOn || receivedText.size() < 100'000
            || flood.shownSize() >= receivedText.size())
            return;
        ++clears;
        flood.click("pushButton_Clear");
        QCOMPARE(receivedText, QString());
        QCOMPARE(flood.shown(), QString());
    });

    const TirelessSender device(flood.deviceHandle(), line.repeated(lineCount));
    QVERIFY(comesTrue([&] { return device.isDone(); }));
    clearsGoOn = false;
    QVERIFY(flood.m_serialPeer.send("\xFF"_ba));
    QVERIFY(comesTrue([&] { return flood.shown().endsWith(u" FF"_s); }));
    QVERIFY2(clears >= 3, qPrintable(QString::number(clears)));
    // No byte comes back, and none is lost after the last Clear.
    const QString all
        = u" 30 31 32 33 34 35 36 37 38 39 3A 3B 3D 3F 40 0A"_s.repeated(lineCount) + u" FF"_s;
    QVERIFY(receivedText.size() < all.size() - 300'000);
    QVERIFY(flood.shown() == all.last(flood.shown().size()));
    QVERIFY(flood.shown() == receivedText);
}

void tst_Flood::fastNetworkDeviceIsReadInPieces()
{
    const QByteArray line = "0123456789:;=?@\n"_ba;
    const int lineCount = 60'000;
    Flood flood(Link::Tcp, "radioButton_Data_ASCII"_ba);
    qsizetype longestArrival = 0;
    qsizetype before = 0;
    const QObject scope;
    connect(tcpSocket, &QTcpSocket::readyRead, &scope, [&] {
        longestArrival = std::max(longestArrival, receivedText.size() - before);
        before = receivedText.size();
    });
    const TirelessSender device(flood.deviceHandle(), line.repeated(lineCount));
    // The window has no turn before the system's buffers are full or hold all of it.
    qsizetype sent = -1;
    while (std::exchange(sent, device.sentCount()) != device.sentCount() || sent == 0)
        std::this_thread::sleep_for(pieceTime);

    QVERIFY(sent > 200'000);
    QVERIFY(comesTrue([&] { return receivedText.size() == line.size() * lineCount; }));
    QVERIFY2(longestArrival <= 65'536, qPrintable(QString::number(longestArrival)));
    QVERIFY(receivedText == QString::fromLatin1(line).repeated(lineCount));
}

TESSALY_WINDOW_TEST(tst_Flood)
#include "tst_flood.moc"
