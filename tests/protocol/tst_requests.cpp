// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "tests/protocol/linkedwindow.h"
#include "tests/support/builtmodels.h"
#include "tests/support/testmain.h"

#include <QCheckBox>
#include <QFrame>
#include <QTimeZone>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString videoModel = u"Vistar Show - SV500 (Serial)"_s;
const QString serialSonet = u"Sonet A (Serial)"_s;
const QString networkSonet = u"Sonet A Lite (TCP/IP)"_s;
const QString relayModel = u"Lumo Bridge"_s;

constexpr const char *requestButton = "pushButton_Request";
constexpr const char *otherButton = "pushButton_Other_Command";
constexpr const char *launchButton = "pushButton_Launch_Playback";
constexpr const char *sourceList = "comboBox_Source_Of_Playback";
constexpr const char *referenceList = "comboBox_Ref_Of_Playback";
constexpr const char *optionList = "comboBox_Option_Of_Playback";
constexpr const char *webradioList = "comboBox_Webradio_Ref_Of_Playback";

const QString musicFolder = u"MUSIC folder (Random)"_s;
const QString spotFolder = u"SPOT folder (Random + Reset)"_s;
const QString webradio = u"Webradio"_s;

CommandEntry entry(const QString &label, quint32 id, quint8 code, const QByteArray &data,
                   const QByteArray &dataMax)
{
    return {label, id, code, QByteArray::fromHex(data), QByteArray::fromHex(dataMax)};
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

/// The seconds that a frame of the epoch version carries: five groups of seven bits.
qint64 epochSecond(const QByteArray &bytes)
{
    qint64 result = 0;
    const QByteArray groups = QByteArray::fromHex(bytes).sliced(2);
    for (const char group : groups)
        result = result * 128 + group;
    return result;
}

} // namespace

/// Requests, other commands, sources of playback, clock and output contacts: what each family of
/// frames does with any value.
class tst_Requests : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void emptyDataSendsNothing_data();
    void emptyDataSendsNothing();
    void emptyListSendsNothing_data();
    void emptyListSendsNothing();

    void sources_data();
    void sources();
    void unparsableNumbers_data();
    void unparsableNumbers();
    void shortSourceRangesOfferNothing_data();
    void shortSourceRangesOfferNothing();

    void clockIsReadAtTheClick();
    void clockIsTheComputers();

    void contacts_data();
    void contacts();

private:
    /// One window serves all the rows of a test function that are about its model.
    LinkedWindow &windowAt(const QString &model);

    std::function<QDateTime()> m_computerClock = currentMoment;
    std::unique_ptr<LinkedWindow> m_window;
    QString m_model;
};

void tst_Requests::initTestCase()
{
    // Ten hours ahead of UTC, and none of the zones that machines usually stand in.
    qputenv("TZ", "EST-10");
    ::tzset();
}

void tst_Requests::cleanup()
{
    currentMoment = m_computerClock;
}

LinkedWindow &tst_Requests::windowAt(const QString &model)
{
    const QString key = QString::fromLatin1(QTest::currentTestFunction()) + model;
    if (m_model != key) {
        m_window.reset();
        m_window = std::make_unique<LinkedWindow>(model);
        m_model = key;
    }
    return *m_window;
}

void tst_Requests::emptyDataSendsNothing_data()
{
    QTest::addColumn<QString>("model");

    QTest::newRow("classic, serial") << videoModel;
    QTest::newRow("classic, TCP/IP") << u"Vistar Show - SV500 (TCP/IP)"_s;
    QTest::newRow("extended, serial") << serialSonet;
    QTest::newRow("extended, TCP/IP") << networkSonet;
}

// Found, but no body: unlike the buttons, the lists never send a code byte alone.
void tst_Requests::emptyDataSendsNothing()
{
    QFETCH(const QString, model);
    m_window.reset();
    DeviceModel changed = builtModel(model);
    changed.commands = {entry(u"Ask"_s, 10, 4, "", ""), entry(u"Do"_s, 99, 4, "", ""),
                        entry(u"Play it"_s, 26, 4, "", "")};
    LinkedWindow window(changed);
    for (const char *button : {requestButton, otherButton, launchButton}) {
        const QString before = window.text("label_Bytes_Sended");
        const Sent sent = window.press(button);
        QCOMPARE(sent.bytes, ""_ba);
        QCOMPARE(sent.shown, before);
    }
}

void tst_Requests::emptyListSendsNothing_data()
{
    QTest::addColumn<QString>("model");

    QTest::newRow("requests and other commands") << videoModel;
    QTest::newRow("sources and other commands") << serialSonet;
    QTest::newRow("requests and sources") << networkSonet;
}

// What the lists hold is all that they know.
void tst_Requests::emptyListSendsNothing()
{
    QFETCH(const QString, model);
    LinkedWindow &window = windowAt(model);
    for (const char *list : {"comboBox_Request", "comboBox_Other_Command", sourceList})
        window.find<QComboBox>(list)->clear();
    for (const char *slot : {"on_pushButton_Request_clicked", "on_pushButton_Other_Command_clicked",
                             "on_pushButton_Launch_Playback_clicked"}) {
        const QString before = window.text("label_Bytes_Sended");
        const Sent sent = window.call(slot);
        QCOMPARE(sent.bytes, ""_ba);
        QCOMPARE(sent.shown, before);
    }
}

void tst_Requests::sources_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("reference"); // of a folder or a web radio
    QTest::addColumn<QString>("option");    // null: none
    QTest::addColumn<QByteArray>("bytes");

    const auto serial = [](const QString &source, const QString &reference, const QString &option,
                           const QByteArray &bytes) {
        QTest::addRow("serial: %s %s %s", qPrintable(source), qPrintable(reference),
                      qPrintable(option))
            << serialSonet << source << reference << option << bytes;
    };
    serial(musicFolder, u"255"_s, {}, "00 00 FF FF");
    serial(musicFolder, u"256"_s, {}, "00 01 00 FF");
    serial(musicFolder, u"300"_s, {}, "00 01 2C FF");
    serial(spotFolder, u"255"_s, u"001"_s, "12 00 FF 01");
    serial(spotFolder, u"256"_s, u"255"_s, "12 01 00 FF");
    serial(spotFolder, u"300"_s, u"002"_s, "12 01 2C 02");
    serial(spotFolder, u"300"_s, u"128"_s, "12 01 2C 80");
    serial(webradio, u"002"_s, {}, "40 00 02 FF");
    serial(webradio, u"009"_s, {}, "40 00 09 FF");

    const auto network
        = [](const QString &source, const QString &reference, const QByteArray &bytes) {
              QTest::addRow("network: %s %s", qPrintable(source), qPrintable(reference))
                  << networkSonet << source << reference << QString()
                  << "04 00 00 00 63 6D 64 00 " + bytes;
          };
    network(musicFolder, u"255"_s, "30 00 32 35 35 00 30 00");
    network(musicFolder, u"256"_s, "30 00 32 35 36 00 30 00");
    network(musicFolder, u"300"_s, "30 00 33 30 30 00 30 00");
    network(webradio, u"009"_s, "36 34 00 39 00 30 00");
}

void tst_Requests::sources()
{
    QFETCH(const QString, model);
    QFETCH(const QString, source);
    QFETCH(const QString, reference);
    QFETCH(const QString, option);
    QFETCH(const QByteArray, bytes);

    LinkedWindow &window = windowAt(model);
    QVERIFY(window.choose(sourceList, source));
    QVERIFY(window.choose(source == webradio ? webradioList : referenceList, reference));
    if (!option.isNull())
        QVERIFY(window.choose(optionList, option));
    const Sent sent = window.press(launchButton);
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QString::fromLatin1(bytes));
}

void tst_Requests::unparsableNumbers_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    for (const char *text : {"", "12x", "0x10", "2147483648"}) {
        const QString number = QString::fromLatin1(text);
        QTest::addRow("reference \"%s\"", text)
            << serialSonet << musicFolder << QByteArray(referenceList) << number
            << "00 00 00 FF"_ba;
        QTest::addRow("option \"%s\"", text)
            << serialSonet << spotFolder << QByteArray(optionList) << number << "12 00 01 00"_ba;
        QTest::addRow("web radio \"%s\"", text)
            << serialSonet << webradio << QByteArray(webradioList) << number << "40 00 00 FF"_ba;
        QTest::addRow("network reference \"%s\"", text)
            << networkSonet << musicFolder << QByteArray(referenceList) << number
            << "04 00 00 00 63 6D 64 00 30 00 30 00 30 00"_ba;
        QTest::addRow("network web radio \"%s\"", text)
            << networkSonet << webradio << QByteArray(webradioList) << number
            << "04 00 00 00 63 6D 64 00 36 34 00 30 00 30 00"_ba;
    }
    QTest::newRow("reference 010 is ten, not eight")
        << serialSonet << musicFolder << QByteArray(referenceList) << u"010"_s << "00 00 0A FF"_ba;
}

void tst_Requests::unparsableNumbers()
{
    QFETCH(const QString, model);
    QFETCH(const QString, source);
    QFETCH(const QByteArray, list);
    QFETCH(const QString, text);
    QFETCH(const QByteArray, bytes);

    LinkedWindow &window = windowAt(model);
    QVERIFY(window.choose(sourceList, source));
    window.setListText(list.constData(), text);
    QCOMPARE(window.press(launchButton).bytes, bytes);
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
    const QStringList two{u"001"_s, u"002"_s};
    const QStringList three{u"001"_s, u"002"_s, u"003"_s};
    QTest::newRow("folder") << 23U << "00 01 01"_ba
                            << "00 03 02"_ba << three << none << none;
    QTest::newRow("SPOT reset") << 24U << "00 01 01"_ba
                                << "00 03 02"_ba << three << two << none;
    QTest::newRow("web radio") << 25U << "00 01 01"_ba
                               << "00 03 02"_ba << none << none << three;
    QTest::newRow("alternate") << 26U << "00 01 01"_ba
                               << "00 03 02"_ba << none << none << none;
    // All of them take three bytes, also those that read two.
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
    QFETCH(const quint32, id);
    QFETCH(const QByteArray, data);
    QFETCH(const QByteArray, dataMax);
    QFETCH(const QStringList, references);
    QFETCH(const QStringList, options);
    QFETCH(const QStringList, webradios);

    m_window.reset();
    DeviceModel changed = builtModel(serialSonet);
    changed.commands = {entry(u"Source"_s, id, 1, data, dataMax)};
    const LinkedWindow window(changed);
    QVERIFY(window.find<QFrame>("frame_Content_Playback")->isVisible());
    const std::tuple<const char *, const char *, QStringList> lists[] = {
        {referenceList, "frame_Ref_Of_Playback", references},
        {optionList, "frame_Option_Of_Playback", options},
        {webradioList, "frame_Webradio_Ref_Of_Playback", webradios},
    };
    for (const auto &[list, frame, numbers] : lists) {
        QCOMPARE(texts(window.find<QComboBox>(list)), numbers);
        QCOMPARE(window.find<QFrame>(frame)->isVisible(), !numbers.isEmpty());
    }
}

void tst_Requests::clockIsReadAtTheClick()
{
    LinkedWindow &window = windowAt(videoModel);
    QDateTime now;
    currentMoment = [&now] { return now; };
    struct
    {
        QString label;
        QDateTime moment;
        QByteArray bytes;
        QByteArray nextSecond;
    } const rows[] = {
        {u"Set time"_s, utc(2026, 3, 6, 23, 5, 30), "80 0C 09 05 1E", "80 0C 09 05 1F"},
        {u"Set date"_s, utc(2026, 3, 6, 13, 59, 59), "80 1C 1A 03 06", "80 1C 1A 03 07"},
        {u"Set date/time"_s, utc(2026, 12, 31, 13, 59, 59), "80 2C 1A 0C 1F 17 3B 3B",
         "80 2C 1B 01 01 00 00 00"},
        {u"Set UTC/GMT date/time (full version)"_s, utc(2026, 12, 31, 23, 59, 59),
         "80 4C 1A 0C 1F 17 3B 3B", "80 4C 1B 01 01 00 00 00"},
        // The UTC year counts from the century of the local one, which has turned already.
        {u"Set UTC/GMT date/time (full version)"_s, utc(2099, 12, 31, 23, 59, 59),
         "80 4C FF 0C 1F 17 3B 3B", "80 4C 00 01 01 00 00 00"},
        {u"Set UTC/GMT date/time (epoch version)"_s, QDateTime::fromSecsSinceEpoch(1'700'000'000),
         "80 3C 06 2A 4F 62 00", "80 3C 06 2A 4F 62 01"},
    };
    for (const auto &row : rows) {
        QVERIFY(window.choose("comboBox_Other_Command", row.label));
        now = row.moment;
        QCOMPARE(window.press(otherButton).bytes, row.bytes);
        now = now.addSecs(1);
        QCOMPARE(window.press(otherButton).bytes, row.nextSecond);
    }
}

void tst_Requests::clockIsTheComputers()
{
    LinkedWindow &window = windowAt(videoModel);
    QVERIFY(window.choose("comboBox_Other_Command", u"Set UTC/GMT date/time (epoch version)"_s));
    const qint64 before = ::time(nullptr);
    const QByteArray bytes = window.press(otherButton).bytes;
    const qint64 after = ::time(nullptr);
    QVERIFY2(bytes.startsWith("80 3C ") && bytes.size() == 20, bytes.constData());
    // The kernel's coarse clock, which time() reads, runs some milliseconds behind the fine one.
    QVERIFY2(epochSecond(bytes) >= before, bytes.constData());
    QVERIFY2(epochSecond(bytes) <= after + 1, bytes.constData());

    // It goes on, too.
    QTRY_VERIFY_WITH_TIMEOUT(epochSecond(window.press(otherButton).bytes) > epochSecond(bytes),
                             patience);
}

void tst_Requests::contacts_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QList<int>>("boxes");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray own = "00 00"_ba;
    QTest::newRow("1") << own << QList<int>{1} << "80 19 01 00"_ba;
    QTest::newRow("2") << own << QList<int>{2} << "80 19 02 00"_ba;
    QTest::newRow("3") << own << QList<int>{3} << "80 19 04 00"_ba;
    QTest::newRow("4") << own << QList<int>{4} << "80 19 08 00"_ba;
    QTest::newRow("5") << own << QList<int>{5} << "80 19 10 00"_ba;
    QTest::newRow("6") << own << QList<int>{6} << "80 19 20 00"_ba;
    QTest::newRow("7") << own << QList<int>{7} << "80 19 40 00"_ba;
    QTest::newRow("8") << own << QList<int>{8} << "80 19 80 00"_ba;
    QTest::newRow("1 and 8") << own << QList<int>{1, 8} << "80 19 81 00"_ba;
    // The sum starts from the byte of the table, deliberately.
    QTest::newRow("stored byte, none") << "05 07"_ba << QList<int>{} << "80 19 05 07"_ba;
    QTest::newRow("stored byte, carry") << "05 07"_ba << QList<int>{1, 3} << "80 19 0A 07"_ba;
    QTest::newRow("stored byte, modulo 256")
        << "05 07"_ba << QList<int>{1, 2, 3, 4, 5, 6, 7, 8} << "80 19 04 07"_ba;
    QTest::newRow("stored byte alone") << "00"_ba << QList<int>{1, 8} << "80 19 81"_ba;
    QTest::newRow("no stored byte") << ""_ba << QList<int>{1, 8} << "80 19"_ba;
}

void tst_Requests::contacts()
{
    QFETCH(const QByteArray, stored);
    QFETCH(const QList<int>, boxes);
    QFETCH(const QByteArray, bytes);

    m_window.reset();
    DeviceModel model = builtModel(relayModel);
    for (CommandEntry &command : model.commands) {
        if (command.commandId == 22)
            command.data = QByteArray::fromHex(stored);
    }
    LinkedWindow window(model);
    for (const int box : boxes)
        window.find<QCheckBox>("checkBox_Relay_" + QByteArray::number(box))->click();

    // Twice, as each sum starts fresh.
    for (int i = 0; i < 2; ++i) {
        const Sent sent = window.press("pushButton_Relay_Command");
        QCOMPARE(sent.bytes, bytes);
        QCOMPARE(sent.shown, QString::fromLatin1(bytes));
    }
}

TESSALY_WINDOW_TEST(tst_Requests)
#include "tst_requests.moc"
