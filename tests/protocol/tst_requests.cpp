// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "catalogue/lightingmodels.h"
#include "tests/support/consolewindow.h"
#include "tests/support/folders.h"
#include "tests/support/ptypeer.h"
#include "tests/support/tcppeer.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFrame>
#include <QTcpSocket>
#include <QTimeZone>

#include <functional>
#include <memory>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Link { Serial, Tcp, OnDemand };

struct Model
{
    const char *name;
    const char *golden; ///< its file in golden/requests
    Link link;
    quint16 tcpPort = 0;
    bool hasSubtitles = false;
};

// The rows of the model list.
// clang-format off
constexpr Model models[] = {
    {"Tempo Deck",                     "tempo_deck",         Link::Serial},
    {"Show Deck (Gen 2)",              "show_deck_gen2",     Link::Serial},
    {"Vistar Show - SV500 (Serial)",   "vistar_show_serial", Link::Serial,   0,     true},
    {"Vistar Show - SV500 (TCP/IP)",   "vistar_show_tcp",    Link::Tcp,      65079, true},
    {"Ampra One",                      "ampra_one",          Link::Serial},
    {"Pico Deck Gen 2/3",              "pico_deck_gen23",    Link::Serial},
    {"Sonet A (Serial)",               "sonet_a_serial",     Link::Serial},
    {"Sonet A Lite (TCP/IP)",          "sonet_a_lite_tcp",   Link::OnDemand, 1234},
    {"Vistar Home - HV4xx (Serial)",   "vistar_home_serial", Link::Serial,   0,     true},
    {"Vistar Home - HV4xx (TCP/IP)",   "vistar_home_tcp",    Link::Tcp,      65079, true},
    {"HV1xx (Serial) (legacy)",        "hv1xx_serial",       Link::Serial},
    {"HV1xx (TCP/IP) (legacy)",        "hv1xx_tcp",          Link::Tcp,      65079},
    {"Pico Deck (legacy)",             "pico_deck_legacy",   Link::Serial},
    {"Card Deck HD (legacy)",          "card_deck_hd",       Link::Serial},
    {"HV0xx (legacy)",                 "hv0xx",              Link::Serial},
    // Defined but not offered yet: the test adds it.
    {"Lumo Bridge",                    "lumo_bridge",        Link::Serial},
};
// clang-format on

constexpr int vistarShowSerial = 2;
constexpr int vistarShowTcp = 3;
constexpr int sonetASerial = 6;
constexpr int sonetALiteTcp = 7;
constexpr int modelCount = static_cast<int>(std::size(models));
constexpr int lumoBridge = modelCount - 1;

/// What goes out when a button is pressed, and the text that shows it.
struct Sent
{
    QByteArray bytes; ///< as the console writes bytes: "85 02 01"
    QString shown;
};

/// The window at a model, with the link of the model up to a far end on the model's own port.
class Device
{
public:
    using Change = std::function<void(DeviceModel &)>;

    /// \a change is made to the model before it is chosen
    explicit Device(int row, const Change &change = {})
        : m_link(models[row].link)
    {
        if (m_link != Link::Serial)
            m_tcp = std::make_unique<TcpPeer>(models[row].tcpPort);
        console = std::make_unique<ConsoleWindow>();
        if (row == lumoBridge) {
            appendLumoBridge(deviceCatalogue);
            console->find<QComboBox>("comboBox_Player")->addItem(deviceCatalogue.last().name);
        }
        if (change)
            change(deviceCatalogue[row]);
        console->selectModel(row);
        // The models that are addressed by a number stand at player 5.
        if (console->find<QComboBox>("comboBox_ID")->count() > 1)
            console->selectText("comboBox_ID", u"5"_s);

        if (m_link == Link::Serial)
            console->connectSerial(m_pty);
        else if (m_link == Link::Tcp)
            m_isReady = console->connectTcp();
        else
            console->setAddress(TcpPeer::address().toString());
    }

    bool isReady() const { return m_isReady; }
    TcpPeer *tcp() const { return m_tcp.get(); }

    QComboBox *list(const char *name) const { return console->find<QComboBox>(name); }

    void setListText(const char *name, const QString &text) const
    {
        list(name)->addItem(text);
        list(name)->setCurrentIndex(list(name)->count() - 1);
    }

    void selectSource(const QString &label) const
    {
        QVERIFY2(console->selectText("comboBox_Source_Of_Playback", label), qPrintable(label));
        QComboBox *sources = list("comboBox_Source_Of_Playback");
        emit sources->activated(sources->currentIndex());
    }

    Sent press(const char *button)
    {
        return sentBy([&] { console->click(button); });
    }
    Sent call(void (MainWindow::*slot)())
    {
        return sentBy([&] { (console->window.*slot)(); });
    }

    std::unique_ptr<ConsoleWindow> console;

private:
    /// Sends a last frame of a code that no model has, so that neither a frame too many nor one
    /// that should not be there goes unseen.
    Sent sentBy(const std::function<void()> &action)
    {
        takeReceived();
        action();
        const QString shown = console->text("label_Bytes_Sended");

        const quint8 endCode = 0x7E;
        QByteArray end(1, static_cast<char>(endCode));
        if (deviceCatalogue.at(list("comboBox_Player")->currentIndex()).protocol
            == ProtocolKind::Classic) {
            end.prepend(list("comboBox_ID")->currentText() == "5"_L1 ? '\x85' : '\x80');
        }
        // Known to write twice to a connection that is open already.
        if (m_link == Link::OnDemand && tcpSocket->isOpen())
            end += end;
        console->window.sendCommand(endCode, {});

        QByteArray received;
        const bool ended = QTest::qWaitFor([&] {
            received += takeReceived();
            return received.endsWith(end);
        });
        if (m_link == Link::OnDemand)
            hangUp();
        if (!ended)
            return {"never ended: " + received.toHex(' ').toUpper(), shown};
        received.chop(end.size());
        return {received.toHex(' ').toUpper(), shown};
    }

    /// As such a device does after each command.
    void hangUp() const
    {
        if (m_tcp->isConnected())
            m_tcp->hangUp();
        QVERIFY(QTest::qWaitFor([] { return !tcpSocket->isOpen(); }));
    }

    QByteArray takeReceived() { return m_tcp ? m_tcp->takeReceived() : m_pty.takeReceived(); }

    const Link m_link;
    bool m_isReady = true;
    PtyPeer m_pty;
    std::unique_ptr<TcpPeer> m_tcp;
};

/// A line of a golden file; a column that does not apply is "-".
struct GoldenLine
{
    QString list;
    QString label;
    QString reference;
    QString option;
    QString webradio;
    QByteArray bytes;
};

QList<GoldenLine> goldenLines(int row)
{
    const QString path = sourcePath("tests/protocol/golden/requests/"_L1
                                    + QLatin1StringView(models[row].golden) + u".txt"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));

    QList<GoldenLine> lines;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        QStringList columns = line.split(u'|');
        if (columns.size() != 6)
            qFatal("%s: not six columns: %s", qPrintable(path), qPrintable(line));
        for (QString &column : columns)
            column = column.trimmed();
        if (columns[0] != "request"_L1 && columns[0] != "other"_L1 && columns[0] != "source"_L1)
            qFatal("%s: no such list: %s", qPrintable(path), qPrintable(line));
        lines.append(
            {columns[0], columns[1], columns[2], columns[3], columns[4], columns[5].toLatin1()});
    }
    return lines;
}

QStringList goldenLabels(int row, const QString &list)
{
    QStringList labels;
    for (const GoldenLine &line : goldenLines(row)) {
        if (line.list == list && !labels.contains(line.label))
            labels.append(line.label);
    }
    return labels;
}

QStringList texts(const QComboBox *list)
{
    QStringList result;
    for (int row = 0; row < list->count(); ++row)
        result.append(list->itemText(row));
    return result;
}

QDateTime utc(int year, int month, int day, int hour, int minute, int second)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), QTimeZone::utc());
}

CommandEntry entry(const QString &label, quint32 id, quint8 code, const QByteArray &data,
                   const QByteArray &dataMax)
{
    return CommandEntry(label, id, code, QByteArray::fromHex(data), QByteArray::fromHex(dataMax));
}

} // namespace

class tst_Requests : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void lists_data();
    void lists();
    void listOfEachId();
    void everyEntry_data();
    void everyEntry();
    void lackedCommandsSendNothing_data();
    void lackedCommandsSendNothing();
    void emptyDataSendsNothing();
    void nothingWithoutLink();
    void openSocketGetsEachFrameTwice();
    void decimalDisplay();

    void sourceNumbers_data();
    void sourceNumbers();
    void shortSourceRangesOfferNothing_data();
    void shortSourceRangesOfferNothing();
    void unparsableNumbers_data();
    void unparsableNumbers();

    void clockIsReadAtTheClick();
    void clockIsTheComputers();

    void relays_data();
    void relays();
    void relayPanel();

    void subtitleSteps_data();
    void subtitleSteps();
    void subtitleSelection_data();
    void subtitleSelection();
    void subtitleSelectionOfAnyText_data();
    void subtitleSelectionOfAnyText();
    void subtitleIndexWithoutValues();
    void subtitleSelectionNeedsItsCommand();
    void subtitleSelectionOfExtendedModels_data();
    void subtitleSelectionOfExtendedModels();

private:
    /// One device serves all the rows of a test function that are about its model.
    Device &device(int row);
    static void addModelRows();

    std::function<QDateTime()> m_computerClock;
    std::unique_ptr<Device> m_device;
    int m_deviceRow = -1;
    QByteArray m_function;
};

void tst_Requests::initTestCase()
{
    m_computerClock = currentMoment;
    // Ten hours ahead of UTC, and none of the zones that machines usually stand in.
    qputenv("TZ", "EST-10");
    ::tzset();
}

void tst_Requests::init()
{
    if (m_function != QTest::currentTestFunction())
        m_device.reset();
    m_function = QTest::currentTestFunction();
    currentMoment = [] { return utc(2026, 3, 6, 23, 5, 30); };
}

void tst_Requests::cleanupTestCase()
{
    m_device.reset();
    currentMoment = m_computerClock;
}

Device &tst_Requests::device(int row)
{
    if (!m_device || m_deviceRow != row) {
        m_device.reset();
        m_device = std::make_unique<Device>(row);
        m_deviceRow = row;
    }
    return *m_device;
}

void tst_Requests::addModelRows()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < modelCount; ++row)
        QTest::newRow(models[row].name) << row;
}

void tst_Requests::lists_data()
{
    addModelRows();
}

void tst_Requests::lists()
{
    QFETCH(int, row);
    const Device console(row);

    QCOMPARE(console.list("comboBox_Player")->currentText(), QLatin1StringView(models[row].name));
    QCOMPARE(console.list("comboBox_Player")->count(),
             row == lumoBridge ? lumoBridge + 1 : lumoBridge);

    struct
    {
        const char *comboBox;
        const char *frame;
        QString name;
    } const panels[] = {
        {"comboBox_Request", "frame_Request", u"request"_s},
        {"comboBox_Other_Command", "frame_Other_Command", u"other"_s},
        {"comboBox_Source_Of_Playback", "frame_Content_Playback", u"source"_s},
    };
    for (const auto &panel : panels) {
        const QStringList labels = goldenLabels(row, panel.name);
        QCOMPARE(texts(console.list(panel.comboBox)), labels);
        QCOMPARE(console.list(panel.comboBox)->currentIndex(), labels.isEmpty() ? -1 : 0);
        QCOMPARE(console.console->find<QFrame>(panel.frame)->isVisible(), !labels.isEmpty());
    }
}

void tst_Requests::listOfEachId()
{
    ConsoleWindow console;
    QList<CommandEntry> commands;
    for (quint32 id = 0; id <= 101; ++id)
        commands.append(entry(QString::number(id), id, 2, "01 02 03", "01 02 03"));
    deviceCatalogue[sonetASerial].commands = commands;
    console.selectModel(sonetASerial);

    QCOMPARE(texts(console.find<QComboBox>("comboBox_Request")), QStringList{u"10"_s});
    QCOMPARE(texts(console.find<QComboBox>("comboBox_Other_Command")),
             u"13 14 15 16 17 18 20 21 27 28 29 30 31 32 41 42 43 44 45 99"_s.split(u' '));
    QCOMPARE(texts(console.find<QComboBox>("comboBox_Source_Of_Playback")),
             u"23 24 25 26"_s.split(u' '));
}

void tst_Requests::everyEntry_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("webradio");
    QTest::addColumn<QByteArray>("bytes");

    for (int row = 0; row < modelCount; ++row) {
        for (const GoldenLine &line : goldenLines(row)) {
            QTest::addRow("%s: %s: %s %s %s %s", models[row].name, qPrintable(line.list),
                          qPrintable(line.label), qPrintable(line.reference),
                          qPrintable(line.option), qPrintable(line.webradio))
                << row << line.list << line.label << line.reference << line.option << line.webradio
                << line.bytes;
        }
    }
}

void tst_Requests::everyEntry()
{
    QFETCH(int, row);
    QFETCH(QString, list);
    QFETCH(QString, label);
    QFETCH(QString, reference);
    QFETCH(QString, option);
    QFETCH(QString, webradio);
    QFETCH(QByteArray, bytes);
    Device &far = device(row);
    QVERIFY(far.isReady());

    Sent sent;
    if (list == "request"_L1) {
        QVERIFY(far.console->selectText("comboBox_Request", label));
        sent = far.press("pushButton_Request");
    } else if (list == "other"_L1) {
        QVERIFY(far.console->selectText("comboBox_Other_Command", label));
        sent = far.press("pushButton_Other_Command");
    } else {
        far.selectSource(label);
        const std::pair<const char *, QString> choices[] = {
            {"comboBox_Ref_Of_Playback", reference},
            {"comboBox_Option_Of_Playback", option},
            {"comboBox_Webradio_Ref_Of_Playback", webradio},
        };
        for (const auto &[comboBox, choice] : choices) {
            if (choice != "-"_L1)
                QVERIFY2(far.console->selectText(comboBox, choice), comboBox);
        }
        sent = far.press("pushButton_Launch_Playback");
    }
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QLatin1StringView(bytes));
}

void tst_Requests::lackedCommandsSendNothing_data()
{
    addModelRows();
}

void tst_Requests::lackedCommandsSendNothing()
{
    QFETCH(int, row);
    Device far(row);
    QVERIFY(far.isReady());

    // What the lists hold is all that they know.
    for (const char *list :
         {"comboBox_Request", "comboBox_Other_Command", "comboBox_Source_Of_Playback"})
        far.list(list)->clear();
    QList<void (MainWindow::*)()> slotsToCall = {
        &MainWindow::on_pushButton_Request_clicked,
        &MainWindow::on_pushButton_Other_Command_clicked,
        &MainWindow::on_pushButton_Launch_Playback_clicked,
    };

    QCOMPARE(far.console->find<QFrame>("frame_Relay_Command")->isVisible(), row == lumoBridge);
    if (row != lumoBridge) {
        far.console->find<QCheckBox>("checkBox_Relay_1")->setChecked(true);
        slotsToCall += &MainWindow::on_pushButton_Relay_Command_clicked;
    }

    const bool hasSubtitles = models[row].hasSubtitles;
    QCOMPARE(far.console->find<QFrame>("frame_Content_Subtitles")->isVisible(), hasSubtitles);
    if (!hasSubtitles) {
        slotsToCall += {
            &MainWindow::on_pushButton_Subtitles_On_clicked,
            &MainWindow::on_pushButton_Subtitles_Off_clicked,
            &MainWindow::on_pushButton_Subtitles_Previous_clicked,
            &MainWindow::on_pushButton_Subtitles_Next_clicked,
            &MainWindow::on_pushButton_Subtitles_Previous_Loop_clicked,
            &MainWindow::on_pushButton_Subtitles_Next_Loop_clicked,
            &MainWindow::on_pushButton_Subtitles_Select_clicked,
        };
    }

    for (const auto slot : slotsToCall) {
        const QString before = far.console->text("label_Bytes_Sended");
        const Sent sent = far.call(slot);
        QCOMPARE(sent.bytes, ""_ba);
        QCOMPARE(sent.shown, before);
    }

    if (hasSubtitles)
        return;
    // Nor when the lists hold something that such a command would send.
    for (const QString &type : {u"ISO639-2 (B)"_s, u"ISO639-2 (T)"_s, u"ISO639-3"_s, u"Index"_s}) {
        far.setListText("comboBox_Subtitles_Type", type);
        far.setListText("comboBox_Subtitles_Value", u"1"_s);
        QCOMPARE(far.call(&MainWindow::on_pushButton_Subtitles_Select_clicked).bytes, ""_ba);
    }
}

// Found, but no body: unlike the buttons, the lists never send a code byte alone.
void tst_Requests::emptyDataSendsNothing()
{
    const QList<CommandEntry> commands
        = {entry(u"Ask"_s, 10, 4, "", ""), entry(u"Do"_s, 99, 4, "", ""),
           entry(u"Play it"_s, 26, 4, "", "")};
    for (const int row : {vistarShowSerial, vistarShowTcp, sonetASerial, sonetALiteTcp}) {
        Device far(row, [&](DeviceModel &model) { model.commands = commands; });
        QVERIFY(far.isReady());
        for (const char *button :
             {"pushButton_Request", "pushButton_Other_Command", "pushButton_Launch_Playback"}) {
            const QString before = far.console->text("label_Bytes_Sended");
            const Sent sent = far.press(button);
            QCOMPARE(sent.bytes, ""_ba);
            QCOMPARE(sent.shown, before);
        }
    }
}

void tst_Requests::nothingWithoutLink()
{
    ConsoleWindow console;
    for (const int row : {vistarShowSerial, vistarShowTcp, sonetASerial}) {
        console.selectModel(row);
        console.window.on_pushButton_Request_clicked();
        console.window.on_pushButton_Other_Command_clicked();
        console.window.on_pushButton_Launch_Playback_clicked();
        console.window.on_pushButton_Subtitles_On_clicked();
        console.window.on_pushButton_Subtitles_Select_clicked();
        QCOMPARE(console.text("label_Bytes_Sended"), u"0"_s);
        QVERIFY(!tcpSocket->isOpen());
    }
}

// A known trait of the connect-on-demand model, kept deliberately.
void tst_Requests::openSocketGetsEachFrameTwice()
{
    Device far(sonetALiteTcp);
    const QByteArray request = QByteArray::fromHex("02 000000 676574 00 536F75726365 00");
    const QByteArray launch = QByteArray::fromHex("04 000000 636D64 00 3833 00 30 00 30 00");
    QVERIFY(far.console->selectText("comboBox_Request", u"Source"_s));
    far.selectSource(u"Alternate: Internal USB"_s);

    far.console->click("pushButton_Request");
    QTRY_COMPARE(far.tcp()->received().toHex(' '), request.toHex(' '));
    QTRY_COMPARE(tcpSocket->state(), QAbstractSocket::ConnectedState);

    far.console->click("pushButton_Request");
    QTRY_COMPARE(far.tcp()->received().toHex(' '), (request + request + request).toHex(' '));
    far.tcp()->takeReceived();

    far.console->click("pushButton_Launch_Playback");
    QTRY_COMPARE(far.tcp()->received().toHex(' '), (launch + launch).toHex(' '));
    // Shown once all the same.
    QCOMPARE(far.console->text("label_Bytes_Sended"),
             u"04 00 00 00 63 6D 64 00 38 33 00 30 00 30 00"_s);
    QCOMPARE(far.tcp()->connectionCount(), 1);
}

void tst_Requests::decimalDisplay()
{
    Device far(vistarShowSerial);
    far.console->click("radioButton_Sent_Dec");
    QVERIFY(far.console->selectText("comboBox_Request", u"Get the list of subtitles"_s));
    const Sent sent = far.press("pushButton_Request");
    QCOMPARE(sent.bytes, "85 04 41"_ba);
    QCOMPARE(sent.shown, u"133 4 65"_s);
}

void tst_Requests::sourceNumbers_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("references");
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("webradios");

    for (const int row : {sonetASerial, sonetALiteTcp}) {
        for (const QString &source : goldenLabels(row, u"source"_s)) {
            // The SPOT reset variants alone take an option; there are none on the network.
            const bool isSpotReset = source == "SPOT folder (Random + Reset)"_L1
                                     || source == "SPOT folder (Sequential + Reset)"_L1;
            const bool isFolder = source.contains("folder"_L1);
            QTest::addRow("%s: %s", models[row].name, qPrintable(source))
                << row << source << (isFolder ? 999 : 0) << (isSpotReset ? 255 : 0)
                << (source == "Webradio"_L1 ? 10 : 0);
        }
    }
}

void tst_Requests::sourceNumbers()
{
    QFETCH(int, row);
    QFETCH(QString, source);
    QFETCH(int, references);
    QFETCH(int, options);
    QFETCH(int, webradios);
    Device &far = device(row);
    far.selectSource(source);

    struct
    {
        const char *comboBox;
        const char *frame;
        int count;
        QString last;
    } const panels[] = {
        {"comboBox_Ref_Of_Playback", "frame_Ref_Of_Playback", references, u"999"_s},
        {"comboBox_Option_Of_Playback", "frame_Option_Of_Playback", options, u"255"_s},
        {"comboBox_Webradio_Ref_Of_Playback", "frame_Webradio_Ref_Of_Playback", webradios,
         u"010"_s},
    };
    for (const auto &panel : panels) {
        const QStringList numbers = texts(far.list(panel.comboBox));
        QCOMPARE(numbers.size(), panel.count);
        QCOMPARE(far.console->find<QFrame>(panel.frame)->isVisible(), panel.count > 0);
        if (panel.count > 0) {
            QCOMPARE(numbers.first(), u"001"_s);
            QCOMPARE(numbers.last(), panel.last);
        }
    }
}

void tst_Requests::shortSourceRangesOfferNothing_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("dataMax");
    QTest::addColumn<QStringList>("references");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("webradios");

    const QStringList none;
    const QStringList three = {u"001"_s, u"002"_s, u"003"_s};
    const QStringList two = {u"001"_s, u"002"_s};

    QTest::newRow("folder") << 23U << "00 01 01"_ba
                            << "00 03 02"_ba << three << none << none;
    QTest::newRow("SPOT reset") << 24U << "00 01 01"_ba
                                << "00 03 02"_ba << three << two << none;
    QTest::newRow("web radio") << 25U << "00 01 01"_ba
                               << "00 03 02"_ba << none << none << three;
    QTest::newRow("alternate") << 26U << "00 01 01"_ba
                               << "00 03 02"_ba << none << none << none;
    // All want three bytes, also those that read two.
    for (const quint32 id : {23U, 24U, 25U}) {
        QTest::addRow("%u, data of two bytes", id) << id << "00 01"_ba
                                                   << "00 03 02"_ba << none << none << none;
        QTest::addRow("%u, dataMax of two bytes", id) << id << "00 01 01"_ba
                                                      << "00 03"_ba << none << none << none;
    }
    QTest::newRow("SPOT reset, no reference, but options") << 24U << "00 03 01"_ba
                                                           << "00 01 02"_ba << none << two << none;
}

void tst_Requests::shortSourceRangesOfferNothing()
{
    QFETCH(quint32, id);
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, dataMax);
    QFETCH(QStringList, references);
    QFETCH(QStringList, options);
    QFETCH(QStringList, webradios);

    ConsoleWindow console;
    deviceCatalogue[sonetASerial].commands = {entry(u"Source"_s, id, 1, data, dataMax)};
    console.selectModel(sonetASerial);
    QCOMPARE(texts(console.find<QComboBox>("comboBox_Ref_Of_Playback")), references);
    QCOMPARE(texts(console.find<QComboBox>("comboBox_Option_Of_Playback")), options);
    QCOMPARE(texts(console.find<QComboBox>("comboBox_Webradio_Ref_Of_Playback")), webradios);
    QVERIFY(console.find<QFrame>("frame_Content_Playback")->isVisible());
    QCOMPARE(console.find<QFrame>("frame_Ref_Of_Playback")->isVisible(), !references.isEmpty());
    QCOMPARE(console.find<QFrame>("frame_Option_Of_Playback")->isVisible(), !options.isEmpty());
    QCOMPARE(console.find<QFrame>("frame_Webradio_Ref_Of_Playback")->isVisible(),
             !webradios.isEmpty());
}

void tst_Requests::unparsableNumbers_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QByteArray>("comboBox");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray reference = "comboBox_Ref_Of_Playback"_ba;
    const QByteArray option = "comboBox_Option_Of_Playback"_ba;
    const QByteArray webradio = "comboBox_Webradio_Ref_Of_Playback"_ba;
    const QString folder = u"MUSIC folder (Random)"_s;
    const QString spot = u"SPOT folder (Random + Reset)"_s;

    constexpr const char *badTexts[] = {"", "abc", "12x", "0x10", "1.5", "2147483648"};

    for (const char *text : badTexts) {
        const QString number = QString::fromLatin1(text);
        QTest::addRow("reference \"%s\"", text)
            << sonetASerial << folder << reference << number << "00 00 00 FF"_ba;
        QTest::addRow("option \"%s\"", text)
            << sonetASerial << spot << option << number << "12 00 01 00"_ba;
        QTest::addRow("web radio \"%s\"", text)
            << sonetASerial << u"Webradio"_s << webradio << number << "40 00 00 FF"_ba;
    }
    for (const char *text : badTexts) {
        const QString number = QString::fromLatin1(text);
        QTest::addRow("network reference \"%s\"", text)
            << sonetALiteTcp << folder << reference << number
            << "04 00 00 00 63 6D 64 00 30 00 30 00 30 00"_ba;
        QTest::addRow("network web radio \"%s\"", text)
            << sonetALiteTcp << u"Webradio"_s << webradio << number
            << "04 00 00 00 63 6D 64 00 36 34 00 30 00 30 00"_ba;
    }
    QTest::newRow("reference 010 is ten, not eight")
        << sonetASerial << folder << reference << u"010"_s << "00 00 0A FF"_ba;
}

void tst_Requests::unparsableNumbers()
{
    QFETCH(int, row);
    QFETCH(QString, source);
    QFETCH(QByteArray, comboBox);
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    Device &far = device(row);

    far.selectSource(source);
    far.setListText(comboBox.constData(), text);
    QCOMPARE(far.press("pushButton_Launch_Playback").bytes, bytes);
}

void tst_Requests::clockIsReadAtTheClick()
{
    Device far(vistarShowSerial);
    QVERIFY(far.console->selectText("comboBox_Other_Command", u"Set date/time"_s));

    QDateTime now = utc(2026, 12, 31, 13, 59, 59);
    currentMoment = [&now] { return now; };
    QCOMPARE(far.press("pushButton_Other_Command").bytes, "85 2C 1A 0C 1F 17 3B 3B"_ba);
    now = now.addSecs(1);
    QCOMPARE(far.press("pushButton_Other_Command").bytes, "85 2C 1B 01 01 00 00 00"_ba);

    QVERIFY(far.console->selectText("comboBox_Other_Command",
                                    u"Set UTC/GMT date/time (full version)"_s));
    now = utc(2026, 12, 31, 23, 59, 59);
    QCOMPARE(far.press("pushButton_Other_Command").bytes, "85 4C 1A 0C 1F 17 3B 3B"_ba);
    now = now.addSecs(1);
    QCOMPARE(far.press("pushButton_Other_Command").bytes, "85 4C 1B 01 01 00 00 00"_ba);

    QVERIFY(far.console->selectText("comboBox_Other_Command",
                                    u"Set UTC/GMT date/time (epoch version)"_s));
    now = QDateTime::fromSecsSinceEpoch(1'700'000'000);
    QCOMPARE(far.press("pushButton_Other_Command").bytes, "85 3C 06 2A 4F 62 00"_ba);
}

void tst_Requests::clockIsTheComputers()
{
    currentMoment = m_computerClock;
    Device far(vistarShowSerial);
    QVERIFY(far.console->selectText("comboBox_Other_Command",
                                    u"Set UTC/GMT date/time (epoch version)"_s));

    const auto second = [](const Sent &sent) {
        qint64 result = 0;
        const QByteArray groups = QByteArray::fromHex(sent.bytes).sliced(2);
        for (const char group : groups)
            result = result * 128 + group;
        return result;
    };
    const qint64 before = ::time(nullptr);
    const Sent sent = far.press("pushButton_Other_Command");
    const qint64 after = ::time(nullptr);
    QVERIFY2(sent.bytes.startsWith("85 3C ") && sent.bytes.size() == 20, sent.bytes.constData());
    // The kernel's coarse clock, which time() reads, runs some milliseconds behind the fine one.
    QVERIFY2(second(sent) >= before, sent.bytes.constData());
    QVERIFY2(second(sent) <= after + 1, sent.bytes.constData());

    // It goes on, too.
    QTRY_VERIFY(second(far.press("pushButton_Other_Command")) > second(sent));
}

void tst_Requests::relays_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QList<int>>("boxes");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray own = "00 00"_ba;
    QTest::newRow("none") << own << QList<int>{} << "85 19 00 00"_ba;
    QTest::newRow("1") << own << QList<int>{1} << "85 19 01 00"_ba;
    QTest::newRow("2") << own << QList<int>{2} << "85 19 02 00"_ba;
    QTest::newRow("3") << own << QList<int>{3} << "85 19 04 00"_ba;
    QTest::newRow("4") << own << QList<int>{4} << "85 19 08 00"_ba;
    QTest::newRow("5") << own << QList<int>{5} << "85 19 10 00"_ba;
    QTest::newRow("6") << own << QList<int>{6} << "85 19 20 00"_ba;
    QTest::newRow("7") << own << QList<int>{7} << "85 19 40 00"_ba;
    QTest::newRow("8") << own << QList<int>{8} << "85 19 80 00"_ba;
    QTest::newRow("1 and 8") << own << QList<int>{1, 8} << "85 19 81 00"_ba;
    QTest::newRow("2, 3 and 7") << own << QList<int>{2, 3, 7} << "85 19 46 00"_ba;
    QTest::newRow("all") << own << QList<int>{1, 2, 3, 4, 5, 6, 7, 8} << "85 19 FF 00"_ba;
    // The sum starts from the byte of the table, deliberately.
    QTest::newRow("stored byte, none") << "05 07"_ba << QList<int>{} << "85 19 05 07"_ba;
    QTest::newRow("stored byte, carry") << "05 07"_ba << QList<int>{1, 3} << "85 19 0A 07"_ba;
    QTest::newRow("stored byte, modulo 256")
        << "05 07"_ba << QList<int>{1, 2, 3, 4, 5, 6, 7, 8} << "85 19 04 07"_ba;
    QTest::newRow("stored byte alone") << "00"_ba << QList<int>{1, 8} << "85 19 81"_ba;
    QTest::newRow("no stored byte") << ""_ba << QList<int>{1, 8} << "85 19"_ba;
}

void tst_Requests::relays()
{
    QFETCH(QByteArray, stored);
    QFETCH(QList<int>, boxes);
    QFETCH(QByteArray, bytes);

    Device far(lumoBridge, [&](DeviceModel &model) {
        for (CommandEntry &command : model.commands) {
            if (command.commandId == 22)
                command.data = QByteArray::fromHex(stored);
        }
    });
    for (const int box : boxes)
        far.console->find<QCheckBox>("checkBox_Relay_" + QByteArray::number(box))->click();

    // Twice, as each sum starts anew.
    for (int i = 0; i < 2; ++i) {
        const Sent sent = far.press("pushButton_Relay_Command");
        QCOMPARE(sent.bytes, bytes);
        QCOMPARE(sent.shown, QLatin1StringView(bytes));
    }
}

void tst_Requests::relayPanel()
{
    const Device far(lumoBridge);
    QVERIFY(far.console->find<QFrame>("frame_Relay_Command")->isVisible());
    for (int box = 1; box <= 8; ++box) {
        const auto *relay
            = far.console->find<QCheckBox>("checkBox_Relay_" + QByteArray::number(box));
        QVERIFY(relay->isVisible());
        QVERIFY(relay->isEnabled());
    }
}

void tst_Requests::subtitleSteps_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("bytes");

    for (int row = 0; row < modelCount; ++row) {
        if (!models[row].hasSubtitles)
            continue;
        const QByteArray head = models[row].link == Link::Serial ? "85 0D "_ba : "80 0D "_ba;
        const std::pair<const char *, const char *> buttons[] = {
            {"pushButton_Subtitles_On", "01"},
            {"pushButton_Subtitles_Off", "00"},
            {"pushButton_Subtitles_Previous", "02"},
            {"pushButton_Subtitles_Next", "03"},
            {"pushButton_Subtitles_Previous_Loop", "04"},
            {"pushButton_Subtitles_Next_Loop", "05"},
        };
        for (const auto &[button, action] : buttons) {
            QTest::addRow("%s: %s", models[row].name, button)
                << row << QByteArray(button) << head + action;
        }
    }
}

void tst_Requests::subtitleSteps()
{
    QFETCH(int, row);
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, bytes);
    Device &far = device(row);
    QVERIFY(far.isReady());

    const Sent sent = far.press(button.constData());
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QLatin1StringView(bytes));
}

void tst_Requests::subtitleSelection_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("valueRow");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("command"); // code and body

    struct
    {
        const char *type;
        int row;
        const char *value;
        const char *command;
    } const choices[] = {
        {"ISO639-2 (B)", 0, "aar", "1D 61 61 72"},
        {"ISO639-2 (B)", 137, "fre", "1D 66 72 65"},
        {"ISO639-2 (B)", 150, "ger", "1D 67 65 72"},
        {"ISO639-2 (B)", 225, "kim", "1D 6B 69 6D"},
        {"ISO639-2 (B)", 373, "scc", "1D 73 63 63"},
        {"ISO639-2 (B)", 487, "zza", "1D 7A 7A 61"},
        {"ISO639-2 (T)", 0, "aar", "1D 61 61 72"},
        {"ISO639-2 (T)", 137, "fra", "1D 66 72 61"},
        {"ISO639-2 (T)", 150, "deu", "1D 64 65 75"},
        {"ISO639-2 (T)", 225, "kmb", "1D 6B 6D 62"},
        {"ISO639-2 (T)", 373, "srp", "1D 73 72 70"},
        {"ISO639-2 (T)", 487, "zza", "1D 7A 7A 61"},
        {"ISO639-3", 0, "aar", "1D 61 61 72"},
        {"ISO639-3", 137, "fra", "1D 66 72 61"},
        {"ISO639-3", 173, "hbs", "1D 68 62 73"},
        {"ISO639-3", 226, "kmb", "1D 6B 6D 62"},
        {"ISO639-3", 358, "rcf", "1D 72 63 66"},
        {"ISO639-3", 488, "zza", "1D 7A 7A 61"},
        {"Index", 0, "0", "2D 00"},
        {"Index", 1, "1", "2D 01"},
        {"Index", 100, "100", "2D 64"},
        {"Index", 127, "127", "2D 7F"},
    };
    for (int row = 0; row < modelCount; ++row) {
        if (!models[row].hasSubtitles)
            continue;
        for (const auto &choice : choices) {
            QTest::addRow("%s: %s %s", models[row].name, choice.type, choice.value)
                << row << QString::fromLatin1(choice.type) << choice.row
                << QString::fromLatin1(choice.value) << QByteArray(choice.command);
        }
    }
}

void tst_Requests::subtitleSelection()
{
    QFETCH(int, row);
    QFETCH(QString, type);
    QFETCH(int, valueRow);
    QFETCH(QString, value);
    QFETCH(QByteArray, command);
    Device &far = device(row);
    QVERIFY(far.isReady());

    QVERIFY(far.console->selectText("comboBox_Subtitles_Type", type));
    QComboBox *types = far.list("comboBox_Subtitles_Type");
    emit types->activated(types->currentIndex());
    far.list("comboBox_Subtitles_Value")->setCurrentIndex(valueRow);
    QCOMPARE(far.list("comboBox_Subtitles_Value")->currentText(), value);

    const QByteArray bytes = (models[row].link == Link::Serial ? "85 "_ba : "80 "_ba) + command;
    const Sent sent = far.press("pushButton_Subtitles_Select");
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QLatin1StringView(bytes));
}

void tst_Requests::subtitleSelectionOfAnyText_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("bytes");

    const QString byLanguage = u"ISO639-2 (B)"_s;
    QTest::newRow("letter below 256") << byLanguage << u"\u00E9"_s << "85 1D E9"_ba;
    QTest::newRow("letter above 255") << byLanguage << u"a\u20AC"_s << "85 1D 61 00"_ba;
    QTest::newRow("no letter: the code alone") << byLanguage << QString() << "85 1D"_ba;

    const QString byIndex = u"Index"_s;
    QTest::newRow("no number") << byIndex << u"fre"_s << "85 2D 00"_ba;
    QTest::newRow("empty text") << byIndex << QString() << "85 2D 00"_ba;
    QTest::newRow("beyond 32 bits") << byIndex << u"4294967297"_s << "85 2D 00"_ba;
    QTest::newRow("low 8 bits") << byIndex << u"300"_s << "85 2D 2C"_ba;
    QTest::newRow("255") << byIndex << u"255"_s << "85 2D FF"_ba;

    QTest::newRow("type in another case") << u"iso639-3"_s << u"fra"_s << ""_ba;
    QTest::newRow("label of the command as type") << u"ISO639"_s << u"fra"_s << ""_ba;
    QTest::newRow("empty type") << QString() << u"fra"_s << ""_ba;
}

void tst_Requests::subtitleSelectionOfAnyText()
{
    QFETCH(QString, type);
    QFETCH(QString, value);
    QFETCH(QByteArray, bytes);
    Device &far = device(vistarShowSerial);

    far.setListText("comboBox_Subtitles_Type", type);
    far.setListText("comboBox_Subtitles_Value", value);
    QCOMPARE(far.press("pushButton_Subtitles_Select").bytes, bytes);
}

// The values stay empty until the user touches the type list, deliberately.
void tst_Requests::subtitleIndexWithoutValues()
{
    Device far(vistarShowTcp, [](DeviceModel &model) {
        model.commands.removeIf(
            [](const CommandEntry &command) { return command.commandId == 39; });
    });
    QVERIFY(far.isReady());
    QCOMPARE(texts(far.list("comboBox_Subtitles_Type")), QStringList{u"Index"_s});
    QCOMPARE(far.list("comboBox_Subtitles_Value")->count(), 0);
    QCOMPARE(far.press("pushButton_Subtitles_Select").bytes, "80 2D 00"_ba);

    emit far.list("comboBox_Subtitles_Type")->activated(0);
    QCOMPARE(far.list("comboBox_Subtitles_Value")->count(), 128);
    far.list("comboBox_Subtitles_Value")->setCurrentIndex(127);
    QCOMPARE(far.press("pushButton_Subtitles_Select").bytes, "80 2D 7F"_ba);
}

void tst_Requests::subtitleSelectionNeedsItsCommand()
{
    for (const quint32 lacking : {39U, 40U}) {
        Device far(vistarShowSerial, [&](DeviceModel &model) {
            model.commands.removeIf(
                [&](const CommandEntry &command) { return command.commandId == lacking; });
        });
        far.setListText("comboBox_Subtitles_Type", lacking == 39 ? u"ISO639-3"_s : u"Index"_s);
        far.setListText("comboBox_Subtitles_Value", u"7"_s);
        QCOMPARE(far.press("pushButton_Subtitles_Select").bytes, ""_ba);
    }
}

void tst_Requests::subtitleSelectionOfExtendedModels_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("serial") << sonetASerial;
    QTest::newRow("TCP/IP: no text form") << sonetALiteTcp;
}

void tst_Requests::subtitleSelectionOfExtendedModels()
{
    QFETCH(int, row);
    Device far(row, [](DeviceModel &model) {
        model.commands = {entry(u"ISO639"_s, 39, 4, "FF FF 33", "FF FF 33"),
                          entry(u"Index"_s, 40, 4, "00 00 34", "00 7F 34")};
    });
    QVERIFY(far.console->selectText("comboBox_Subtitles_Value", u"fre"_s));
    QCOMPARE(far.press("pushButton_Subtitles_Select").bytes, "04 66 72 65"_ba);

    QVERIFY(far.console->selectText("comboBox_Subtitles_Type", u"Index"_s));
    emit far.list("comboBox_Subtitles_Type")->activated(3);
    QVERIFY(far.console->selectText("comboBox_Subtitles_Value", u"12"_s));
    QCOMPARE(far.press("pushButton_Subtitles_Select").bytes, "04 0C"_ba);
}

TESSALY_WINDOW_TEST(tst_Requests)
#include "tst_requests.moc"
