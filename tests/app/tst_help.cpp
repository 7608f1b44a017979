// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"
#include "tests/support/messageboxcatcher.h"
#include "tests/support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

/// Takes the place of the browser and of the mail program.
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener()
    {
        QDesktopServices::setUrlHandler(u"https"_s, this, "open");
        QDesktopServices::setUrlHandler(u"mailto"_s, this, "open");
    }
    ~Opener() override
    {
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QDesktopServices::unsetUrlHandler(u"mailto"_s);
    }
    Q_DISABLE_COPY_MOVE(Opener)

    QList<QUrl> urls;

public slots:
    void open(const QUrl &url) { urls.append(url); }
};

class tst_Help : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void urls_data();
    void urls();
    void failingOpenerIsSilent_data();
    void failingOpenerIsSilent();
};

void tst_Help::initTestCase()
{
    QVERIFY(QDir::setCurrent(programPath(u"."_s)));
}

void tst_Help::urls_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("encoded");

    const QByteArray english = "action_English"_ba;
    const QByteArray french = "action_French"_ba;
    const QByteArray website = "action_Website"_ba;
    const QByteArray mail = "action_Contact_Technical_Support"_ba;

    QTest::newRow("website in English") << english << website << u"https://www.ambrette.example/"_s
                                        << "https://www.ambrette.example/"_ba;
    QTest::newRow("website in French") << french << website << u"https://www.ambrette.example/"_s
                                       << "https://www.ambrette.example/"_ba;
    QTest::newRow("mail in English")
        << english << mail
        << u"mailto:support@ambrette.example?subject=Support request (from: Tessaly - 1.2.8.0)"
           u"&body=( write here your question... )"_s
        << "mailto:support@ambrette.example?subject=Support%20request%20(from:%20Tessaly%20-%20"
           "1.2.8.0)&body=(%20write%20here%20your%20question...%20)"_ba;
    QTest::newRow("mail in French")
        << french << mail
        << u"mailto:support@ambrette.example?subject=Demande d’assistance (depuis\u00A0: Tessaly - "
           u"1.2.8.0)&body=( écrivez ici votre question... )"_s
        << "mailto:support@ambrette.example?subject=Demande%20d%E2%80%99assistance%20(depuis%C2%A0:"
           "%20"
           "Tessaly%20-%201.2.8.0)&body=(%20%C3%A9crivez%20ici%20votre%20question...%20)"_ba;
}

void tst_Help::urls()
{
    QFETCH(QByteArray, language);
    QFETCH(QByteArray, action);
    QFETCH(QString, text);
    QFETCH(QByteArray, encoded);

    const Opener opener;
    const ConsoleWindow console;
    console.find<QAction>(language.constData())->trigger();
    QCOMPARE(opener.urls.size(), 0);
    console.find<QAction>(action.constData())->trigger();
    QCOMPARE(opener.urls.size(), 1);
    QVERIFY(opener.urls.constFirst().isValid());
    QCOMPARE(opener.urls.constFirst().toString(), text);
    QCOMPARE(opener.urls.constFirst().toEncoded(), encoded);
}

void tst_Help::failingOpenerIsSilent_data()
{
    QTest::addColumn<QByteArray>("action");
    for (const char *action : {"action_Website", "action_Contact_Technical_Support"})
        QTest::newRow(action) << QByteArray(action);
}

void tst_Help::failingOpenerIsSilent()
{
    QFETCH(QByteArray, action);

    // The offscreen platform has neither a browser nor a mail program.
    QCOMPARE(QGuiApplication::platformName(), u"offscreen"_s);
    QVERIFY(!QDesktopServices::openUrl(QUrl(u"https://www.ambrette.example/"_s)));

    const ConsoleWindow console;
    const MessageBoxCatcher catcher;
    const qsizetype windows = QApplication::topLevelWidgets().size();
    const QString bytes = console.text("label_Bytes_Sended");
    console.find<QAction>(action.constData())->trigger();
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(catcher.messages.size(), 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    QCOMPARE(console.text("label_Bytes_Sended"), bytes);
    QVERIFY(console.window.isVisible());
    QVERIFY(console.window.isEnabled());
}

TESSALY_WINDOW_TEST(tst_Help)
#include "tst_help.moc"
