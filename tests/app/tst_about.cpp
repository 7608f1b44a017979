// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"
#include "tests/support/testmain.h"

#include "app/aboutwindow.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The name of the system as its maker writes it.
QString prettySystemName()
{
    QFile file(u"/etc/os-release"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith("PRETTY_NAME="_L1))
            return line.section(u'=', 1).remove(u'"');
    }
    return {};
}

QString informationText()
{
    return u"<p>Tessaly 1.2.8.0</p><p>Copyright © 2021</p><p>Ambrette</p><p>"
           u"<a href=\"https://www.ambrette.example/\">https://www.ambrette.example/</a></p><p>"_s
           + prettySystemName() + u"</p>"_s;
}

QList<aboutwindow *> aboutWindows()
{
    QList<aboutwindow *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<aboutwindow *>(widget))
            windows.append(dialog);
    }
    return windows;
}

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(32).toImage();
}

} // namespace

/// Takes the place of the browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(u"https"_s, this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(u"https"_s); }
    Q_DISABLE_COPY_MOVE(Browser)

    QList<QUrl> urls;

public slots:
    void open(const QUrl &url) { urls.append(url); }
};

class tst_About : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void texts_data();
    void texts();
    void systemText();
    void placeholderBeforeFilling();
    void fillingTwiceChangesNothing();
    void objects();
    void places();
    void sizeBeforeShowing();
    void flags();
    void modal();
    void notResizable();
    void pictures();
    void picturesOnScaledScreen();
    void okAccepts();
    void otherWaysOutKeepTheDialog_data();
    void otherWaysOutKeepTheDialog();
    void linkOpensTheWebsite();
    void twoDialogsInARow();
    void secondDialogIsInThePresentLanguage();

private:
    /// Triggers About and returns the dialog, which is on the screen by then.
    aboutwindow *openDialog();

    ConsoleWindow *m_console = nullptr;
};

aboutwindow *tst_About::openDialog()
{
    const QList<aboutwindow *> before = aboutWindows();
    m_console->find<QAction>("action_About")->trigger();
    for (aboutwindow *dialog : aboutWindows()) {
        if (!before.contains(dialog) && QTest::qWaitForWindowExposed(dialog))
            return dialog;
    }
    qFatal("no About dialog was opened");
}

void tst_About::initTestCase()
{
    QVERIFY(QDir::setCurrent(programPath(u"."_s)));
    QVERIFY2(!prettySystemName().isEmpty(), "this system does not say its name");
}

void tst_About::init()
{
    m_console = new ConsoleWindow;
    QVERIFY(QTest::qWaitForWindowExposed(&m_console->window));
}

void tst_About::cleanup()
{
    qDeleteAll(aboutWindows());
    m_console->find<QAction>("action_English")->trigger();
    delete m_console;
}

void tst_About::texts_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("title");

    QTest::newRow("English") << "action_English"_ba << u"About Tessaly"_s;
    QTest::newRow("French") << "action_French"_ba << u"À propos de Tessaly"_s;
}

void tst_About::texts()
{
    QFETCH(const QByteArray, language);
    QFETCH(const QString, title);

    m_console->find<QAction>(language.constData())->trigger();
    const aboutwindow *dialog = openDialog();
    QCOMPARE(dialog->windowTitle(), title);
    QCOMPARE(dialog->findChild<QLabel *>(u"label_Infos"_s)->text(), informationText());
    QCOMPARE(dialog->findChild<QLabel *>(u"label"_s)->text(), QString());
    QCOMPARE(dialog->whatsThis(), QString());
}

void tst_About::systemText()
{
    const aboutwindow dialog;
    QCOMPARE(dialog.operatingSystemText(), prettySystemName());
}

void tst_About::placeholderBeforeFilling()
{
    const aboutwindow dialog;
    QCOMPARE(dialog.windowTitle(), u"About"_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"label_Infos"_s)->text(), u"..."_s);
    QCOMPARE(dialog.whatsThis(), QString());
}

void tst_About::fillingTwiceChangesNothing()
{
    aboutwindow dialog;
    dialog.fillAboutText();
    dialog.fillAboutText();
    QCOMPARE(dialog.windowTitle(), u"About Tessaly"_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"label_Infos"_s)->text(), informationText());
}

void tst_About::objects()
{
    const aboutwindow *dialog = openDialog();
    QCOMPARE(dialog->objectName(), u"aboutwindow"_s);
    QCOMPARE(QByteArray(dialog->metaObject()->className()), "aboutwindow"_ba);
    QVERIFY(dialog->inherits("QDialog"));
    QVERIFY(!dialog->parent());

    QByteArrayList objects;
    for (const QObject *child : dialog->children()) {
        objects.append(QByteArray(child->metaObject()->className()) + ' '
                       + child->objectName().toLatin1());
    }
    QCOMPARE(objects, QByteArrayList({"QGridLayout gridLayout", "QLabel label",
                                      "QLabel label_Infos", "QDialogButtonBox buttonBox"}));

    const auto *infos = dialog->findChild<QLabel *>(u"label_Infos"_s);
    QCOMPARE(infos->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QVERIFY(infos->openExternalLinks());
    const auto *buttons = dialog->findChild<QDialogButtonBox *>();
    QCOMPARE(buttons->orientation(), Qt::Horizontal);
    QCOMPARE(buttons->standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
    QCOMPARE(buttons->buttons().size(), 1);
    QCOMPARE(buttons->button(QDialogButtonBox::Ok)->text(), u"OK"_s);
}

void tst_About::places()
{
    const aboutwindow dialog;
    const auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QStringList places;
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        places.append(u"%1 at %2,%3 spans %4,%5"_s.arg(grid->itemAt(i)->widget()->objectName())
                          .arg(row)
                          .arg(column)
                          .arg(rowSpan)
                          .arg(columnSpan));
    }
    QCOMPARE(places, QStringList({u"label at 0,0 spans 1,1"_s, u"label_Infos at 0,1 spans 1,1"_s,
                                  u"buttonBox at 1,0 spans 1,2"_s}));
    QCOMPARE(grid->columnStretch(0), 0);
    QCOMPARE(grid->columnStretch(1), 1);
    QCOMPARE(grid->sizeConstraint(), QLayout::SetFixedSize);
}

void tst_About::sizeBeforeShowing()
{
    const aboutwindow dialog;
    QCOMPARE(dialog.size(), QSize(320, 239));
}

void tst_About::flags()
{
    // What Qt makes of the close button hint alone: it adds a window's type, title and system menu.
    // The dialog is no longer one of type Dialog, and has no other button.
    const Qt::WindowFlags expected
        = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    QCOMPARE(openDialog()->windowFlags(), expected);
}

void tst_About::modal()
{
    const aboutwindow *dialog = openDialog();
    QVERIFY(dialog->isModal());
    QCOMPARE(QApplication::activeModalWidget(), dialog);

    // The window below it takes no clicks.
    QTest::mouseClick(m_console->window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      m_console->find<QAbstractButton>("radioButton_Sent_Dec")
                          ->mapTo(&m_console->window, QPoint(8, 8)));
    QVERIFY(!m_console->find<QAbstractButton>("radioButton_Sent_Dec")->isChecked());
}

void tst_About::notResizable()
{
    aboutwindow *dialog = openDialog();
    const QSize size = dialog->size();
    QCOMPARE(size, dialog->sizeHint());
    QCOMPARE(dialog->minimumSize(), size);
    QCOMPARE(dialog->maximumSize(), size);
    dialog->resize(size * 2);
    QCOMPARE(dialog->size(), size);
    dialog->resize(10, 10);
    QCOMPARE(dialog->size(), size);
}

void tst_About::pictures()
{
    const aboutwindow *dialog = openDialog();
    const QImage icon = imageOf(QIcon(u":/Images/AppIcon.ico"_s));
    QVERIFY(!icon.isNull());
    QCOMPARE(imageOf(dialog->windowIcon()), icon);

    const bool isScaled = qgetenv("QT_SCALE_FACTOR") == "2";
    QCOMPARE(dialog->devicePixelRatio(), isScaled ? 2.0 : 1.0);
    const QImage logo(isScaled ? u":/Images/Help_Panel_New_Logo@2x.png"_s
                               : u":/Images/Help_Panel_New_Logo.png"_s);
    const auto *label = dialog->findChild<QLabel *>(u"label"_s);
    QCOMPARE(logo.width(), isScaled ? 320 : 160);
    const QImage shown = label->pixmap().toImage();
    QCOMPARE(shown, logo.convertToFormat(shown.format()));
    QVERIFY(label->isVisible());
    QVERIFY(label->width() >= 160 && label->height() >= 160);
}

void tst_About::picturesOnScaledScreen()
{
    // The scale holds for a process.
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {runningTest(), u"pictures"_s});
    QVERIFY(program.waitForFinished());
    QVERIFY2(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0,
             program.readAllStandardOutput().constData());
}

void tst_About::okAccepts()
{
    const QPointer<aboutwindow> dialog = openDialog();
    const QSignalSpy accepted(dialog.data(), &QDialog::accepted);
    auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QVERIFY(!dialog->isVisible());
    QVERIFY(!QApplication::activeModalWidget());

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(dialog);
    QVERIFY(m_console->window.isVisible());
}

void tst_About::otherWaysOutKeepTheDialog_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("close button of the frame") << false;
}

void tst_About::otherWaysOutKeepTheDialog()
{
    QFETCH(bool, byKey);

    const QPointer<aboutwindow> dialog = openDialog();
    if (byKey)
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
    else
        dialog->close();
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
    QVERIFY(!dialog->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(dialog);
}

void tst_About::linkOpensTheWebsite()
{
    const Browser browser;
    const aboutwindow *dialog = openDialog();
    auto *infos = dialog->findChild<QLabel *>(u"label_Infos"_s);
    // Down the middle of the centred lines: the link is the fourth of five.
    int y = infos->height() / 2;
    for (; y < infos->height() && browser.urls.isEmpty(); y += 2)
        QTest::mouseClick(infos, Qt::LeftButton, Qt::NoModifier, QPoint(infos->width() / 2, y));
    QCOMPARE(browser.urls, QList<QUrl>{QUrl(u"https://www.ambrette.example/"_s)});

    // The last line is no link.
    QTest::mouseClick(infos, Qt::LeftButton, Qt::NoModifier,
                      QPoint(infos->width() / 2, infos->height() - 8));
    QCOMPARE(browser.urls.size(), 1);
}

void tst_About::twoDialogsInARow()
{
    QCOMPARE(aboutWindows().size(), 0);
    const QPointer<aboutwindow> first = openDialog();
    first->findChild<QLabel *>(u"label_Infos"_s)->setText(u"stale"_s);
    first->setWindowTitle(u"stale"_s);
    QTest::mouseClick(first->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QVERIFY(!first->isVisible());

    const QPointer<aboutwindow> second = openDialog();
    QVERIFY(first);
    QVERIFY(second != first);
    QCOMPARE(aboutWindows().size(), 2);
    QVERIFY(!first->isVisible());
    QVERIFY(second->isVisible());
    QCOMPARE(second->windowTitle(), u"About Tessaly"_s);
    QCOMPARE(second->findChild<QLabel *>(u"label_Infos"_s)->text(), informationText());
    QCOMPARE(first->windowTitle(), u"stale"_s);
    QTest::mouseClick(second->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QCOMPARE(second->result(), int(QDialog::Accepted));
    QCOMPARE(aboutWindows().size(), 2);
}

void tst_About::secondDialogIsInThePresentLanguage()
{
    aboutwindow *first = openDialog();
    first->accept();
    m_console->find<QAction>("action_French")->trigger();
    aboutwindow *second = openDialog();
    QCOMPARE(first->windowTitle(), u"About Tessaly"_s);
    QCOMPARE(second->windowTitle(), u"À propos de Tessaly"_s);
    second->accept();
    m_console->find<QAction>("action_English")->trigger();
    QCOMPARE(openDialog()->windowTitle(), u"About Tessaly"_s);
}

TESSALY_WINDOW_TEST(tst_About)
#include "tst_about.moc"
