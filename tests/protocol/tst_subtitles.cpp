// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/protocol/linkedwindow.h"
#include "tests/support/builtmodels.h"
#include "tests/support/testmain.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString videoModel = u"Vistar Show - SV500 (Serial)"_s;
constexpr const char *typeList = "comboBox_Subtitles_Type";
constexpr const char *valueList = "comboBox_Subtitles_Value";
constexpr const char *selectButton = "pushButton_Subtitles_Select";

} // namespace

/// The choice of a subtitle track by its language or its number.
class tst_Subtitles : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_window = std::make_unique<LinkedWindow>(videoModel); }
    void cleanup() { m_window.reset(); }

    void selection_data();
    void selection();
    void selectionOfAnyText_data();
    void selectionOfAnyText();
    void indexWithoutValues();
    void selectionNeedsItsCommand();
    void selectionOfExtendedModels_data();
    void selectionOfExtendedModels();

private:
    void changeModel(const DeviceModel &model)
    {
        m_window.reset();
        m_window = std::make_unique<LinkedWindow>(model);
    }

    std::unique_ptr<LinkedWindow> m_window;
};

void tst_Subtitles::selection_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("bytes");

    struct
    {
        const char *type;
        int row;
        const char *value;
        const char *bytes;
    } const choices[] = {
        {"ISO639-2 (B)", 137, "fre", "85 1D 66 72 65"},
        {"ISO639-2 (B)", 150, "ger", "85 1D 67 65 72"},
        {"ISO639-2 (B)", 225, "kim", "85 1D 6B 69 6D"},
        {"ISO639-2 (B)", 373, "scc", "85 1D 73 63 63"},
        {"ISO639-2 (T)", 137, "fra", "85 1D 66 72 61"},
        {"ISO639-2 (T)", 150, "deu", "85 1D 64 65 75"},
        {"ISO639-2 (T)", 225, "kmb", "85 1D 6B 6D 62"},
        {"ISO639-2 (T)", 373, "srp", "85 1D 73 72 70"},
        {"ISO639-3", 137, "fra", "85 1D 66 72 61"},
        {"ISO639-3", 173, "hbs", "85 1D 68 62 73"},
        {"ISO639-3", 226, "kmb", "85 1D 6B 6D 62"},
        {"ISO639-3", 358, "rcf", "85 1D 72 63 66"},
        {"ISO639-3", 488, "zza", "85 1D 7A 7A 61"},
        {"Index", 0, "0", "85 2D 00"},
        {"Index", 1, "1", "85 2D 01"},
        {"Index", 100, "100", "85 2D 64"},
        {"Index", 127, "127", "85 2D 7F"},
    };
    for (const auto &choice : choices) {
        QTest::addRow("%s %s", choice.type, choice.value)
            << QString::fromLatin1(choice.type) << choice.row << QString::fromLatin1(choice.value)
            << QByteArray(choice.bytes);
    }
}

void tst_Subtitles::selection()
{
    QFETCH(const QString, type);
    QFETCH(const int, row);
    QFETCH(const QString, value);
    QFETCH(const QByteArray, bytes);

    QVERIFY(m_window->choosePlayer(5));
    QVERIFY(m_window->choose(typeList, type));
    auto *values = m_window->find<QComboBox>(valueList);
    values->setCurrentIndex(row);
    QCOMPARE(values->currentText(), value);
    const Sent sent = m_window->press(selectButton);
    QCOMPARE(sent.bytes, bytes);
    QCOMPARE(sent.shown, QString::fromLatin1(bytes));
}

void tst_Subtitles::selectionOfAnyText_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("bytes");

    const QString byLanguage = u"ISO639-2 (B)"_s;
    QTest::newRow("letter above 255") << byLanguage << u"a\u20AC"_s << "80 1D 61 00"_ba;
    QTest::newRow("no letter: the code alone") << byLanguage << QString() << "80 1D"_ba;

    const QString byIndex = u"Index"_s;
    QTest::newRow("no number") << byIndex << u"fre"_s << "80 2D 00"_ba;
    QTest::newRow("empty text") << byIndex << QString() << "80 2D 00"_ba;
    QTest::newRow("beyond 32 bits") << byIndex << u"4294967297"_s << "80 2D 00"_ba;
    QTest::newRow("low 8 bits") << byIndex << u"300"_s << "80 2D 2C"_ba;
    QTest::newRow("255") << byIndex << u"255"_s << "80 2D FF"_ba;

    QTest::newRow("type in another case") << u"iso639-3"_s << u"fra"_s << ""_ba;
    QTest::newRow("label of the command as type") << u"ISO639"_s << u"fra"_s << ""_ba;
    QTest::newRow("empty type") << QString() << u"fra"_s << ""_ba;
}

void tst_Subtitles::selectionOfAnyText()
{
    QFETCH(const QString, type);
    QFETCH(const QString, value);
    QFETCH(const QByteArray, bytes);

    m_window->setListText(typeList, type);
    m_window->setListText(valueList, value);
    QCOMPARE(m_window->press(selectButton).bytes, bytes);
}

// The values stay empty until the user touches the type list, deliberately.
void tst_Subtitles::indexWithoutValues()
{
    DeviceModel model = builtModel(videoModel);
    model.commands.removeIf([](const CommandEntry &command) { return command.commandId == 39; });
    changeModel(model);
    QCOMPARE(m_window->find<QComboBox>(typeList)->currentText(), u"Index"_s);
    QCOMPARE(m_window->find<QComboBox>(valueList)->count(), 0);
    QCOMPARE(m_window->press(selectButton).bytes, "80 2D 00"_ba);

    QVERIFY(m_window->choose(typeList, u"Index"_s));
    QVERIFY(m_window->choose(valueList, u"127"_s));
    QCOMPARE(m_window->press(selectButton).bytes, "80 2D 7F"_ba);
}

void tst_Subtitles::selectionNeedsItsCommand()
{
    for (const quint32 lacking : {39U, 40U}) {
        DeviceModel model = builtModel(videoModel);
        model.commands.removeIf(
            [lacking](const CommandEntry &command) { return command.commandId == lacking; });
        changeModel(model);
        m_window->setListText(typeList, lacking == 39 ? u"ISO639-3"_s : u"Index"_s);
        m_window->setListText(valueList, u"7"_s);
        QCOMPARE(m_window->press(selectButton).bytes, ""_ba);
    }
}

void tst_Subtitles::selectionOfExtendedModels_data()
{
    QTest::addColumn<QString>("model");

    QTest::newRow("serial") << u"Sonet A (Serial)"_s;
    QTest::newRow("TCP/IP: no text form") << u"Sonet A Lite (TCP/IP)"_s;
}

void tst_Subtitles::selectionOfExtendedModels()
{
    QFETCH(const QString, model);

    DeviceModel changed = builtModel(model);
    changed.commands
        = {{u"ISO639"_s, 39, 4, QByteArray::fromHex("FFFF33"), QByteArray::fromHex("FFFF33")},
           {u"Index"_s, 40, 4, QByteArray::fromHex("000034"), QByteArray::fromHex("007F34")}};
    changeModel(changed);
    QVERIFY(m_window->choose(valueList, u"fre"_s));
    QCOMPARE(m_window->press(selectButton).bytes, "04 66 72 65"_ba);

    QVERIFY(m_window->choose(typeList, u"Index"_s));
    QVERIFY(m_window->choose(valueList, u"12"_s));
    QCOMPARE(m_window->press(selectButton).bytes, "04 0C"_ba);
}

TESSALY_WINDOW_TEST(tst_Subtitles)
#include "tst_subtitles.moc"
