// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "contactlog.h"
#include "tests/support/consolewindow.h"
#include "tests/support/examplemodels.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QHostAddress>
#include <QHostInfo>
#include <QMimeData>
#include <QPushButton>
#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QUrl>

#include <array>

#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A folder with one file in it, and whether anybody has opened that.
class WatchedFolder
{
public:
    WatchedFolder()
        : m_watch(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
    {
        QFile file(path());
        // An image and a style sheet are asked for by the same name.
        if (!file.open(QIODevice::WriteOnly) || file.write("b { color: red }") < 0)
            qFatal("no file");
        file.close();
        if (::inotify_add_watch(m_watch, QFile::encodeName(m_folder.path()).constData(),
                                IN_OPEN | IN_ACCESS)
            < 0) {
            qFatal("no watch");
        }
    }
    ~WatchedFolder() { ::close(m_watch); }
    Q_DISABLE_COPY_MOVE(WatchedFolder)

    QString folder() const { return m_folder.path(); }
    QString path() const { return m_folder.filePath(fileName()); }
    static QString fileName() { return u"named.png"_s; }

    /// Whether the folder or the file has been opened since the last call.
    bool takeOpened() const
    {
        std::array<char, 4096> buffer;
        bool isOpened = false;
        while (::read(m_watch, buffer.data(), buffer.size()) > 0)
            isOpened = true;
        return isOpened;
    }

private:
    QTemporaryDir m_folder;
    int m_watch = -1;
};

/// Keeps what somebody asks the desktop to open.
class DesktopCatcher : public QObject
{
    Q_OBJECT

public:
    DesktopCatcher()
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "handle");
    }
    ~DesktopCatcher() override
    {
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Q_DISABLE_COPY_MOVE(DesktopCatcher)

    QList<QUrl> opened;

public slots:
    void handle(const QUrl &url) { opened.append(url); }

private:
    const QStringList schemes{u"http"_s, u"https"_s, u"file"_s, u"mailto"_s};
};

} // namespace

class tst_Isolation : public QObject
{
    Q_OBJECT

private slots:
    void contactsAreSeen();
    void namesInReceivedTextAreNotFollowed_data();
    void namesInReceivedTextAreNotFollowed();
    void onlyTheChosenDeviceIsContacted();
};

/// What the other tests rely on.
void tst_Isolation::contactsAreSeen()
{
    takeContacts();
    QTcpServer server;
    QVERIFY(server.listen(TcpPeer::address()));
    QTcpSocket socket;
    socket.connectToHost(TcpPeer::address(), server.serverPort());
    QTRY_COMPARE(socket.state(), QAbstractSocket::ConnectedState);
    QCOMPARE(takeContacts(),
             QStringList(u"%1:%2"_s.arg(TcpPeer::address().toString()).arg(server.serverPort())));
    QHostInfo::fromName(u"localhost"_s);
    QVERIFY(takeContacts().contains(u"name:localhost"_s));

    const WatchedFolder folder;
    QVERIFY(!folder.takeOpened());
    QFile file(folder.path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(folder.takeOpened());
}

void tst_Isolation::namesInReceivedTextAreNotFollowed_data()
{
    QTest::addColumn<QString>("markup"); // %1 is the name

    QTest::newRow("picture") << u"<b>OK</b><img src=\"%1\">"_s;
    QTest::newRow("picture of a size") << u"<img src='%1' width=10 height=10>"_s;
    QTest::newRow("link") << u"<a href=\"%1\">OK OK OK OK OK OK OK OK</a>"_s;
    QTest::newRow("style sheet")
        << u"<html><head><link rel=\"stylesheet\" href=\"%1\"></head><b>OK</b></html>"_s;
    QTest::newRow("style sheet of a kind")
        << u"<html><head><link rel=stylesheet type=text/css href=%1></head><b>OK</b></html>"_s;
    QTest::newRow("imported style")
        << u"<html><head><style>@import url(%1);</style></head><b>OK</b></html>"_s;
    QTest::newRow("background of a paragraph")
        << u"<p style=\"background-image: url(%1)\">OK</p>"_s;
    QTest::newRow("background in a style")
        << u"<style>b { background-image: url(%1) }</style><b>OK</b>"_s;
    QTest::newRow("background of the page") << u"<body background=\"%1\"><b>OK</b></body>"_s;
    QTest::newRow("background of a table")
        << u"<table background=\"%1\"><tr><td background=\"%1\">OK</td></tr></table>"_s;
    QTest::newRow("sign of a list")
        << u"<ul style=\"list-style-image: url(%1)\"><li>OK</li></ul>"_s;
    QTest::newRow("frame") << u"<b>OK</b><iframe src=\"%1\"></iframe>"_s;
    QTest::newRow("object") << u"<b>OK</b><object data=\"%1\"></object><embed src=\"%1\">"_s;
    QTest::newRow("script") << u"<b>OK</b><script src=\"%1\"></script>"_s;
    QTest::newRow("another address")
        << u"<head><meta http-equiv=refresh content='0;url=%1'><base href=\"%1\"></head><b>OK</b>"_s;
    QTest::newRow("film") << u"<b>OK</b><video src=\"%1\" poster=\"%1\"></video>"_s;
}

void tst_Isolation::namesInReceivedTextAreNotFollowed()
{
    QFETCH(const QString, markup);
    const WatchedFolder folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.folder()));
    const auto comeBack = qScopeGuard([&] { QDir::setCurrent(before); });
    const DesktopCatcher desktop;
    QTcpServer server;
    QVERIFY(server.listen(TcpPeer::address()));
    const QString host = u"%1:%2"_s.arg(TcpPeer::address().toString()).arg(server.serverPort());

    PtyPeer peer;
    ConsoleWindow console;
    console.selectModel(console.rowOfModel(serialModel));
    console.connectSerial(peer);
    auto *editor = console.find<QTextEdit>("textEdit_Data");
    takeContacts();
    folder.takeOpened();

    for (const QString &name :
         {"http://"_L1 + host + "/named.png"_L1, "//"_L1 + host + "/named"_L1,
          "file://"_L1 + folder.path(), folder.path(), WatchedFolder::fileName()}) {
        const QString text = markup.arg(name);
        console.click("pushButton_Clear");
        QVERIFY(peer.send(text.toUtf8()));
        QTRY_COMPARE(receivedText, text);
        QTRY_VERIFY(!editor->toPlainText().isEmpty());
        QVERIFY(!editor->toPlainText().contains(name));

        // Painted, passed over and clicked by the mouse, copied, pasted elsewhere.
        editor->grab();
        for (const QPoint &point : {QPoint(8, 12), QPoint(20, 14), QPoint(60, 14)}) {
            QTest::mouseMove(editor->viewport(), point);
            QTest::mouseClick(editor->viewport(), Qt::LeftButton, {}, point);
            QTest::mouseClick(editor->viewport(), Qt::LeftButton, Qt::ControlModifier, point);
        }
        editor->selectAll();
        editor->copy();
        QTextEdit elsewhere;
        elsewhere.show();
        elsewhere.paste();
        elsewhere.grab();
        // A second arrival shows it again.
        QVERIFY(peer.send(" OK"_ba));
        QTRY_COMPARE(receivedText, text + u" OK"_s);
        QTRY_VERIFY(editor->toPlainText().trimmed().endsWith(u"OK"_s));
        editor->grab();

        QVERIFY2(!folder.takeOpened(), qPrintable(name));
        QCOMPARE(takeContacts(), QStringList());
        QCOMPARE(desktop.opened, QList<QUrl>());
    }
    // Nor later.
    QVERIFY(!QTest::qWaitFor([&] { return server.hasPendingConnections(); }, 50));
    QVERIFY(!folder.takeOpened());
    QCOMPARE(takeContacts(), QStringList());
}

void tst_Isolation::onlyTheChosenDeviceIsContacted()
{
    takeContacts();
    PtyPeer serialPeer;
    TcpPeer tcpPeer(portOf(tcpModel));
    TcpPeer onDemandPeer(portOf(onDemandModel));
    const QString address = TcpPeer::address().toString();
    ConsoleWindow console;
    console.setAddress(address);
    for (const ModelSheet &sheet : modelSheets()) {
        console.selectModel(console.rowOfModel(sheet.name));
        if (!sheet.connectsOnDemand())
            console.window.on_pushButton_Play_clicked();
    }
    QCOMPARE(takeContacts(), QStringList());

    console.selectModel(console.rowOfModel(serialModel));
    console.connectSerial(serialPeer);
    console.click("pushButton_Play");
    QTRY_COMPARE(serialPeer.received().toHex(), "800201"_ba);
    QVERIFY(serialPeer.send("OK"_ba));
    QTRY_COMPARE(receivedText, u"OK"_s);
    console.click("pushButton_Disconnect");
    QCOMPARE(takeContacts(), QStringList());

    console.selectModel(console.rowOfModel(tcpModel));
    QVERIFY(console.connectTcp());
    QCOMPARE(takeContacts(), QStringList(u"%1:%2"_s.arg(address).arg(portOf(tcpModel))));
    console.click("pushButton_Play");
    QTRY_COMPARE(tcpPeer.received().toHex(), "800201"_ba);
    tcpPeer.send("OK"_ba);
    QTRY_COMPARE(receivedText, u"OKOK"_s);
    console.click("pushButton_Disconnect");
    QCOMPARE(takeContacts(), QStringList());

    console.selectModel(console.rowOfModel(onDemandModel));
    QCOMPARE(takeContacts(), QStringList());
    for (int i = 1; i <= 3; ++i) {
        console.click("pushButton_Play");
        QTRY_COMPARE(onDemandPeer.received().size(), qsizetype(19) * i);
        QCOMPARE(takeContacts(), QStringList(u"%1:%2"_s.arg(address).arg(portOf(onDemandModel))));
        onDemandPeer.hangUp();
        QTRY_VERIFY(!tcpSocket->isOpen());
    }
    console.window.close();
    QCoreApplication::processEvents();
    QCOMPARE(takeContacts(), QStringList());
}

TESSALY_WINDOW_TEST(tst_Isolation)
#include "tst_isolation.moc"
