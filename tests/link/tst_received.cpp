// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "link/receivedbytestext.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QRadioButton>
#include <QScrollBar>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTextBlock>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray ascii = "radioButton_Data_ASCII"_ba;
const QByteArray hexadecimal = "radioButton_Data_Hex"_ba;
const QByteArray decimal = "radioButton_Data_Dec"_ba;

enum class Link { Serial, Tcp };

/// The window, connected to a device over one of the links.
class Session : public ConsoleWindow
{
public:
    explicit Session(Link link = Link::Serial)
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
    }

    QTextEdit *editor() const { return find<QTextEdit>("textEdit_Data"); }
    QString shown() const { return editor()->toPlainText(); }

    void setForm(const QByteArray &button) const
    {
        find<QRadioButton>(button.constData())->setChecked(true);
    }

    void send(const QByteArray &bytes)
    {
        if (m_link == Link::Tcp)
            m_tcpPeer.send(bytes);
        else if (!m_serialPeer.send(bytes))
            qFatal("the console does not take the bytes");
    }

    /// Sends the bytes and waits until the received text has grown by them, so that the next ones
    /// are an arrival of their own.
    bool arrive(const QByteArray &bytes)
    {
        const qsizetype before = receivedText.size();
        send(bytes);
        return QTest::qWaitFor([before] { return receivedText.size() > before; });
    }

    QByteArray sentToDevice()
    {
        return m_link == Link::Serial ? m_serialPeer.received() : m_tcpPeer.received();
    }

    PtyPeer m_serialPeer;
    TcpPeer m_tcpPeer{portOf(tcpModel)};

private:
    Link m_link;
};

/// The text with its code points spelled out, so that a failure shows what cannot be seen.
QString spelled(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c.unicode() >= 0x20 && c.unicode() < 0x7F)
            result += c;
        else
            result += u"{%1}"_s.arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Link)

class tst_Received : public QObject
{
    Q_OBJECT

private slots:
    void forms_data();
    void forms();
    void everyByteInHexAndDecimal();
    void appendFollowsTheButtons_data();
    void appendFollowsTheButtons();

    void arrivals_data();
    void arrivals();
    void lineEndOfTheDevice();
    void markupIsShownAsRichText_data();
    void markupIsShownAsRichText();
    void changedFormKeepsTheText();
    void scrolledToTheBottom();
    void emptyReadChangesNothing_data();
    void emptyReadChangesNothing();
    void readSignalOfAClosedLink();
    void readsOfAClosedLinkKeepTheBytes();
    void readsReplaceTheBytes();
    void clear_data();
    void clear();
    void clearWhileBytesArrive();
    void textSurvivesDisconnectAndModelChange();
    void textIsSharedByBothLinks();
};

void tst_Received::forms_data()
{
    QTest::addColumn<QByteArray>("bytesHex");
    QTest::addColumn<QString>("asAscii");
    QTest::addColumn<QString>("asHex");
    QTest::addColumn<QString>("asDecimal");

    QTest::newRow("nothing") << ""_ba << u""_s << u""_s << u""_s;
    QTest::newRow("one byte") << "41"_ba << u"A"_s << u" 41"_s << u" 65"_s;
    QTest::newRow("01 AB 10") << "01AB10"_ba << u"{0001}{fffd}{0010}"_s << u" 01 AB 10"_s
                              << u" 1 171 16"_s;
    QTest::newRow("lowest, padded, highest")
        << "000AFF"_ba << u"{0000}{000a}{fffd}"_s << u" 00 0A FF"_s << u" 0 10 255"_s;
    QTest::newRow("zero byte inside")
        << "410042"_ba << u"A{0000}B"_s << u" 41 00 42"_s << u" 65 0 66"_s;
    QTest::newRow("UTF-8, two bytes") << "C3A9"_ba << u"{00e9}"_s << u" C3 A9"_s << u" 195 169"_s;
    QTest::newRow("UTF-8, three bytes")
        << "E282AC"_ba << u"{20ac}"_s << u" E2 82 AC"_s << u" 226 130 172"_s;
    QTest::newRow("UTF-8, four bytes")
        << "F09F8EB5"_ba << u"{d83c}{dfb5}"_s << u" F0 9F 8E B5"_s << u" 240 159 142 181"_s;
    QTest::newRow("first half of a character")
        << "41C3"_ba << u"A{fffd}"_s << u" 41 C3"_s << u" 65 195"_s;
    QTest::newRow("second half of a character")
        << "A942"_ba << u"{fffd}B"_s << u" A9 42"_s << u" 169 66"_s;
    QTest::newRow("never part of UTF-8")
        << "FEFF"_ba << u"{fffd}{fffd}"_s << u" FE FF"_s << u" 254 255"_s;
    // Every byte is decoded, also those that Qt leaves out by itself.
    QTest::newRow("byte-order mark")
        << "EFBBBF41"_ba << u"{feff}A"_s << u" EF BB BF 41"_s << u" 239 187 191 65"_s;
    QTest::newRow("line end") << "0D0A"_ba << u"{000d}{000a}"_s << u" 0D 0A"_s << u" 13 10"_s;
}

void tst_Received::forms()
{
    QFETCH(const QByteArray, bytesHex);
    const QByteArray bytes = QByteArray::fromHex(bytesHex);
    QTEST(spelled(asciiReceivedText(bytes)), "asAscii");
    QTEST(hexReceivedText(bytes), "asHex");
    QTEST(decimalReceivedText(bytes), "asDecimal");
}

void tst_Received::everyByteInHexAndDecimal()
{
    const QString digits = u"0123456789ABCDEF"_s;
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte(1, static_cast<char>(value));
        QCOMPARE(hexReceivedText(byte),
                 u' ' + digits.mid(value / 16, 1) + digits.mid(value % 16, 1));
        QCOMPARE(decimalReceivedText(byte), u" %1"_s.arg(value));
    }
}

void tst_Received::appendFollowsTheButtons_data()
{
    QTest::addColumn<QByteArrayList>("checked");
    QTest::addColumn<QString>("text");

    QTest::newRow("ASCII") << QByteArrayList{ascii} << u"oldA{fffd}"_s;
    QTest::newRow("hexadecimal") << QByteArrayList{hexadecimal} << u"old 41 FF"_s;
    QTest::newRow("decimal") << QByteArrayList{decimal} << u"old 65 255"_s;
    QTest::newRow("none") << QByteArrayList() << u"old"_s;
    // Each button counts for itself.
    QTest::newRow("all, in order")
        << QByteArrayList{ascii, hexadecimal, decimal} << u"oldA{fffd} 41 FF 65 255"_s;
}

void tst_Received::appendFollowsTheButtons()
{
    QFETCH(const QByteArrayList, checked);
    ConsoleWindow console;
    for (const QByteArray &name : {ascii, hexadecimal, decimal}) {
        auto *button = console.find<QRadioButton>(name.constData());
        button->setAutoExclusive(false);
        button->setChecked(checked.contains(name));
    }
    QString text = u"old"_s;
    console.window.appendReceivedData("\x41\xFF"_ba, text);
    QTEST(spelled(text), "text");
    QCOMPARE(receivedText, QString());
}

void tst_Received::arrivals_data()
{
    QTest::addColumn<Link>("link");
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArrayList>("arrivals");
    QTest::addColumn<QString>("text");

    const auto row
        = [](const char *name, Link link, const QByteArray &form, const QByteArrayList &arrivals,
             const QString &text) { QTest::newRow(name) << link << form << arrivals << text; };
    row("text on one line", Link::Serial, ascii, {"4142", "4344"}, u"ABCD"_s);
    row("each arrival has its leading space", Link::Serial, hexadecimal, {"0102", "AB"},
        u" 01 02 AB"_s);
    row("decimal without padding", Link::Serial, decimal, {"0102", "AB"}, u" 1 2 171"_s);
    // Each arrival is decoded by itself.
    row("character in two arrivals", Link::Serial, ascii, {"41C3", "A942"}, u"A{fffd}{fffd}B"_s);
    row("zero bytes are kept", Link::Serial, ascii, {"410042", "00", "43"}, u"A{0000}B{0000}C"_s);
    row("flow control bytes are data", Link::Serial, hexadecimal, {"1113", "03"}, u" 11 13 03"_s);
    row("TCP/IP, text", Link::Tcp, ascii, {"41C3", "A942"}, u"A{fffd}{fffd}B"_s);
    row("TCP/IP, hexadecimal", Link::Tcp, hexadecimal, {"0102", "AB"}, u" 01 02 AB"_s);
}

void tst_Received::arrivals()
{
    QFETCH(const Link, link);
    QFETCH(const QByteArray, form);
    QFETCH(const QByteArrayList, arrivals);
    QFETCH(const QString, text);
    Session session(link);
    session.setForm(form);
    for (const QByteArray &bytes : arrivals)
        QVERIFY(session.arrive(QByteArray::fromHex(bytes)));
    QCOMPARE(spelled(receivedText), text);
    QTRY_COMPARE(spelled(session.shown()), text);
    // What arrives is not answered.
    QCOMPARE(session.sentToDevice(), QByteArray());
}

void tst_Received::lineEndOfTheDevice()
{
    Session session;
    QVERIFY(session.arrive("OK\r\n"_ba));
    QCOMPARE(spelled(receivedText), u"OK{000d}{000a}"_s);
    QTRY_COMPARE(spelled(session.shown()), u"OK{000a}"_s);
    QVERIFY(session.arrive("NEXT"_ba));
    QTRY_COMPARE(spelled(session.shown()), u"OK{000a}NEXT"_s);
    QCOMPARE(session.editor()->document()->blockCount(), 2);
}

void tst_Received::markupIsShownAsRichText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("boldAt"); // -1: nowhere

    QTest::newRow("a bold word") << "<b>bold</b>"_ba << u"bold"_s << 0;
    QTest::newRow("a bold word after others") << "say <b>bold</b>"_ba << u"say bold"_s << 4;
    QTest::newRow("a sign that opens no tag") << "a < b"_ba << u"a < b"_s << -1;
}

void tst_Received::markupIsShownAsRichText()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, shown);
    QFETCH(const int, boldAt);
    Session session;
    QVERIFY(session.arrive(bytes));
    QTRY_COMPARE(session.shown(), shown);
    int firstBold = -1;
    for (int i = 0; i < session.shown().size() && firstBold < 0; ++i) {
        QTextCursor cursor(session.editor()->document());
        cursor.setPosition(i + 1);
        if (cursor.charFormat().fontWeight() == QFont::Bold)
            firstBold = i;
    }
    QCOMPARE(firstBold, boldAt);
    QCOMPARE(receivedText, QString::fromLatin1(bytes));
}

void tst_Received::changedFormKeepsTheText()
{
    Session session;
    QVERIFY(session.arrive("AB"_ba));
    session.setForm(hexadecimal);
    QCOMPARE(session.shown(), u"AB"_s);
    QVERIFY(session.arrive("\x41"_ba));
    QTRY_COMPARE(session.shown(), u"AB 41"_s);
    session.setForm(decimal);
    QCOMPARE(session.shown(), u"AB 41"_s);
    QVERIFY(session.arrive("\x41"_ba));
    QTRY_COMPARE(session.shown(), u"AB 41 65"_s);
    QCOMPARE(receivedText, u"AB 41 65"_s);
}

void tst_Received::scrolledToTheBottom()
{
    Session session;
    QScrollBar *bar = session.editor()->verticalScrollBar();
    QVERIFY(session.arrive("line\r\n"_ba.repeated(100)));
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());

    bar->setValue(0);
    QVERIFY(session.arrive("last"_ba));
    QTRY_VERIFY(session.shown().endsWith(u"last"_s));
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_Received::emptyReadChangesNothing_data()
{
    QTest::addColumn<Link>("link");

    QTest::newRow("serial") << Link::Serial;
    QTest::newRow("TCP/IP") << Link::Tcp;
}

void tst_Received::emptyReadChangesNothing()
{
    QFETCH(const Link, link);
    Session session(link);
    QVERIFY(session.arrive("line\r\n"_ba.repeated(100)));
    QTRY_COMPARE(session.shown(), u"line\n"_s.repeated(100));
    QScrollBar *bar = session.editor()->verticalScrollBar();
    bar->setValue(0);
    // The editor is not written again either.
    session.editor()->append(u"note"_s);
    bar->setValue(0);
    const QString shown = session.shown();

    if (link == Link::Serial)
        emit serialPort->readyRead();
    else
        emit tcpSocket->readyRead();
    session.window.update_Serial_Read_Data();
    session.window.update_TCP_Read_Data();

    QCOMPARE(receivedText, u"line\r\n"_s.repeated(100));
    QCOMPARE(session.shown(), shown);
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), 0);
}

void tst_Received::readSignalOfAClosedLink()
{
    Session session;
    QVERIFY(session.arrive("AB"_ba));
    session.click("pushButton_Disconnect");
    session.editor()->append(u"note"_s);
    emit serialPort->readyRead();
    emit tcpSocket->readyRead();
    QCOMPARE(receivedText, u"AB"_s);
    QCOMPARE(session.shown(), u"AB\nnote"_s);
}

void tst_Received::readsOfAClosedLinkKeepTheBytes()
{
    ConsoleWindow console;
    QByteArray bytes = "kept"_ba;
    console.window.readSerialData(bytes);
    QCOMPARE(bytes, "kept"_ba);
    console.window.readTcpData(bytes);
    QCOMPARE(bytes, "kept"_ba);
}

void tst_Received::readsReplaceTheBytes()
{
    Session serial;
    serial.window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
    QTRY_VERIFY(serial.m_tcpPeer.isConnected());
    // Taken before the window does.
    QVERIFY(serialPort->disconnect(SIGNAL(readyRead())));
    QVERIFY(tcpSocket->disconnect(SIGNAL(readyRead())));
    QVERIFY(serial.m_serialPeer.send("one"_ba));
    serial.m_tcpPeer.send("two"_ba);
    QTRY_COMPARE(serialPort->bytesAvailable(), 3);
    QTRY_COMPARE(tcpSocket->bytesAvailable(), 3);

    QByteArray bytes = "gone"_ba;
    serial.window.readSerialData(bytes);
    QCOMPARE(bytes, "one"_ba);
    serial.window.readTcpData(bytes);
    QCOMPARE(bytes, "two"_ba);
    serial.window.readSerialData(bytes);
    QCOMPARE(bytes, QByteArray());
    QCOMPARE(receivedText, QString());
}

void tst_Received::clear_data()
{
    QTest::addColumn<Link>("link");
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QString>("next");

    QTest::newRow("serial, ASCII") << Link::Serial << ascii << u"B"_s;
    QTest::newRow("serial, hexadecimal") << Link::Serial << hexadecimal << u" 42"_s;
    QTest::newRow("TCP/IP, decimal") << Link::Tcp << decimal << u" 66"_s;
}

void tst_Received::clear()
{
    QFETCH(const Link, link);
    QFETCH(const QByteArray, form);
    QFETCH(const QString, next);
    Session session(link);
    session.setForm(form);
    QVERIFY(session.arrive("A"_ba));
    session.click("pushButton_Clear");
    QCOMPARE(receivedText, QString());
    QCOMPARE(session.shown(), QString());
    QVERIFY(session.arrive("B"_ba));
    QCOMPARE(receivedText, next);
    QTRY_COMPARE(session.shown(), next);
    QCOMPARE(session.sentToDevice(), QByteArray());
}

void tst_Received::clearWhileBytesArrive()
{
    Session session;
    const QByteArray sent = "0123456789ABCDEF"_ba;
    QString all;
    for (int i = 0; i < sent.size(); ++i) {
        session.send(sent.mid(i, 1));
        QCoreApplication::processEvents();
        if (i % 4 == 3) {
            // The last bytes may still be on their way: they start the fresh text.
            all += receivedText;
            session.click("pushButton_Clear");
            QCOMPARE(session.shown(), QString());
        }
    }
    const QString rest = QString::fromLatin1(sent).mid(all.size());
    QTRY_COMPARE(receivedText, rest);
    QTRY_COMPARE(session.shown(), rest);

    session.click("pushButton_Clear");
    QVERIFY(session.arrive("fresh"_ba));
    QTRY_COMPARE(session.shown(), u"fresh"_s);
}

void tst_Received::textSurvivesDisconnectAndModelChange()
{
    Session session;
    QVERIFY(session.arrive("AB"_ba));
    session.click("pushButton_Disconnect");
    QTRY_COMPARE(session.shown(), u"AB"_s);
    for (int row = 0; row < deviceCatalogue.size(); ++row)
        session.selectModel(row);
    QCOMPARE(session.shown(), u"AB"_s);
    session.selectModel(session.rowOfModel(serialModel));
    session.connectSerial(session.m_serialPeer);
    QVERIFY(session.arrive("CD"_ba));
    QCOMPARE(receivedText, u"ABCD"_s);
    QTRY_COMPARE(session.shown(), u"ABCD"_s);
}

void tst_Received::textIsSharedByBothLinks()
{
    Session session;
    session.window.connectTcpSocket(TcpPeer::address().toString(), portOf(tcpModel));
    QTRY_VERIFY(session.m_tcpPeer.isConnected());
    QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);

    QVERIFY(session.m_serialPeer.send("AB"_ba));
    QTRY_COMPARE(session.shown(), u"AB"_s);
    session.m_tcpPeer.send("CD"_ba);
    QTRY_COMPARE(session.shown(), u"ABCD"_s);
    QVERIFY(session.m_serialPeer.send("EF"_ba));
    QTRY_COMPARE(session.shown(), u"ABCDEF"_s);
    QCOMPARE(receivedText, u"ABCDEF"_s);
}

TESSALY_WINDOW_TEST(tst_Received)
#include "tst_received.moc"
