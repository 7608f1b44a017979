// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/configlines.h"

#include "app/applicationobjects.h"
#include "tests/support/testregistry.h"

#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

QString nameOf(LanguageChoice language)
{
    switch (language) {
    case LanguageChoice::Default:
        return u"default"_s;
    case LanguageChoice::English:
        return u"English"_s;
    case LanguageChoice::French:
        return u"French"_s;
    }
    return u"?"_s;
}

QString nameOf(std::optional<SentForm> form)
{
    if (!form)
        return u"none"_s;
    return *form == SentForm::Hex ? u"hex"_s : u"dec"_s;
}

QString nameOf(std::optional<DataForm> form)
{
    if (!form)
        return u"none"_s;
    switch (*form) {
    case DataForm::Ascii:
        return u"ascii"_s;
    case DataForm::Hex:
        return u"hex"_s;
    case DataForm::Dec:
        return u"dec"_s;
    }
    return u"?"_s;
}

QString nameOf(std::optional<int> number)
{
    return number ? QString::number(*number) : u"none"_s;
}

using Address = std::array<std::optional<int>, 4>;

template<typename T>
SavedSettings settingsWith(T SavedSettings::*member, const T &value)
{
    SavedSettings settings;
    settings.*member = value;
    return settings;
}

/// The lines of settings that nobody has made.
QStringList linesOfNothing()
{
    return {
        u"TSY11.00"_s,
        u"Tessaly (Configuration File)"_s,
        u"Generate by: Tessaly 1.2.8.0"_s,
        u"*** Default Language:"_s,
        u"(default)"_s,
        u"*** Default Device:"_s,
        u"(default)"_s,
        u"*** Default Serial Port:"_s,
        u"(default)"_s,
        u"*** Default Baudrate:"_s,
        u"(default)"_s,
        u"*** Default IP Address:"_s,
        u"0"_s,
        u"0"_s,
        u"0"_s,
        u"0"_s,
        u"*** Default Auto-connection:"_s,
        u"0"_s,
        u"*** Default Player ID:"_s,
        u"(default)"_s,
        u"*** Default Command Bytes Sent Setting:"_s,
        u"(default)"_s,
        u"*** Default Data Received Setting:"_s,
        u"(default)"_s,
    };
}

} // namespace

Q_DECLARE_METATYPE(SavedSettings)

class tst_configlines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void written_data();
    void written();
    void writtenAllChanged();
    void head_data();
    void head();
    void language_data();
    void language();
    void addressPart_data();
    void addressPart();
    void autoConnection_data();
    void autoConnection();
    void sentForm_data();
    void sentForm();
    void dataForm_data();
    void dataForm();
    void read();
    void readCutShort();
    void readForeign();
};

void tst_configlines::initTestCase()
{
    setApplicationIdentity();
}

void tst_configlines::written_data()
{
    QTest::addColumn<SavedSettings>("settings");
    QTest::addColumn<int>("number"); // of the line that changes, from 1; 0: none
    QTest::addColumn<QString>("line");

    const auto row
        = [](const char *name, int number, const QString &line, const SavedSettings &settings) {
              QTest::newRow(name) << settings << number << line;
          };

    row("nothing chosen", 0, {}, {});
    row("language default", 5, u"(default)"_s,
        settingsWith(&SavedSettings::language, LanguageChoice::Default));
    row("language English", 5, u"English"_s,
        settingsWith(&SavedSettings::language, LanguageChoice::English));
    row("language French", 5, u"French"_s,
        settingsWith(&SavedSettings::language, LanguageChoice::French));
    row("model", 7, u"Vistar Home - HV4xx (TCP/IP)"_s,
        settingsWith(&SavedSettings::model, u"Vistar Home - HV4xx (TCP/IP)"_s));
    row("model empty", 7, u"(default)"_s, settingsWith(&SavedSettings::model, u""_s));
    row("model of one blank", 7, u" "_s, settingsWith(&SavedSettings::model, u" "_s));
    row("port of Windows", 9, u"COM3"_s, settingsWith(&SavedSettings::port, u"COM3"_s));
    row("port with path", 9, u"/dev/pts/7"_s, settingsWith(&SavedSettings::port, u"/dev/pts/7"_s));
    row("port beyond ASCII", 9, u"pörté"_s, settingsWith(&SavedSettings::port, u"pörté"_s));
    row("port empty", 9, u"(default)"_s, settingsWith(&SavedSettings::port, u""_s));
    row("baud rate", 11, u"115200"_s, settingsWith(&SavedSettings::baudRate, u"115200"_s));
    row("baud rate empty", 11, u"(default)"_s, settingsWith(&SavedSettings::baudRate, u""_s));
    row("address 1", 13, u"192"_s, settingsWith(&SavedSettings::address, Address{192, 0, 0, 0}));
    row("address 2", 14, u"168"_s, settingsWith(&SavedSettings::address, Address{0, 168, 0, 0}));
    row("address 3", 15, u"7"_s, settingsWith(&SavedSettings::address, Address{0, 0, 7, 0}));
    row("address 4", 16, u"255"_s, settingsWith(&SavedSettings::address, Address{0, 0, 0, 255}));
    row("auto-connection on", 18, u"1"_s, settingsWith(&SavedSettings::autoConnection, true));
    row("auto-connection off", 18, u"0"_s, settingsWith(&SavedSettings::autoConnection, false));
    row("player ID", 20, u"127"_s, settingsWith(&SavedSettings::playerId, u"127"_s));
    row("player ID 0", 20, u"0"_s, settingsWith(&SavedSettings::playerId, u"0"_s));
    row("player ID empty", 20, u"(default)"_s, settingsWith(&SavedSettings::playerId, u""_s));
    // Sent bytes have no ASCII form: their numbers begin where hexadecimal stands in line 24.
    row("sent hexadecimal", 22, u"2"_s,
        settingsWith(&SavedSettings::sentForm, std::optional(SentForm::Hex)));
    row("sent decimal", 22, u"3"_s,
        settingsWith(&SavedSettings::sentForm, std::optional(SentForm::Dec)));
    row("sent none", 22, u"(default)"_s,
        settingsWith(&SavedSettings::sentForm, std::optional<SentForm>()));
    row("data ASCII", 24, u"1"_s,
        settingsWith(&SavedSettings::dataForm, std::optional(DataForm::Ascii)));
    row("data hexadecimal", 24, u"2"_s,
        settingsWith(&SavedSettings::dataForm, std::optional(DataForm::Hex)));
    row("data decimal", 24, u"3"_s,
        settingsWith(&SavedSettings::dataForm, std::optional(DataForm::Dec)));
    row("data none", 24, u"(default)"_s,
        settingsWith(&SavedSettings::dataForm, std::optional<DataForm>()));
}

void tst_configlines::written()
{
    QFETCH(SavedSettings, settings);
    QFETCH(int, number);
    QFETCH(QString, line);

    QStringList expected = linesOfNothing();
    if (number > 0)
        expected[number - 1] = line;
    QCOMPARE(configLines(settings), expected);
}

void tst_configlines::writtenAllChanged()
{
    SavedSettings settings;
    settings.language = LanguageChoice::French;
    settings.model = u"Vistar Show - SV500 (Serial)"_s;
    settings.port = u"ttyUSB0"_s;
    settings.baudRate = u"57600"_s;
    settings.address = {10, 20, 30, 40};
    settings.autoConnection = true;
    settings.playerId = u"12"_s;
    settings.sentForm = SentForm::Dec;
    settings.dataForm = DataForm::Hex;
    const QStringList expected{
        u"TSY11.00"_s,
        u"Tessaly (Configuration File)"_s,
        u"Generate by: Tessaly 1.2.8.0"_s,
        u"*** Default Language:"_s,
        u"French"_s,
        u"*** Default Device:"_s,
        u"Vistar Show - SV500 (Serial)"_s,
        u"*** Default Serial Port:"_s,
        u"ttyUSB0"_s,
        u"*** Default Baudrate:"_s,
        u"57600"_s,
        u"*** Default IP Address:"_s,
        u"10"_s,
        u"20"_s,
        u"30"_s,
        u"40"_s,
        u"*** Default Auto-connection:"_s,
        u"1"_s,
        u"*** Default Player ID:"_s,
        u"12"_s,
        u"*** Default Command Bytes Sent Setting:"_s,
        u"3"_s,
        u"*** Default Data Received Setting:"_s,
        u"2"_s,
    };
    QCOMPARE(configLines(settings), expected);
}

void tst_configlines::head_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("ours");

    QTest::newRow("as written") << u"TSY11.00"_s << true;
    QTest::newRow("inside other characters") << u"XTSY11.00Y"_s << true;
    QTest::newRow("among blanks") << u"  TSY1 \t 1.00  "_s << true;
    QTest::newRow("in the other order") << u"1.00 TSY1"_s << true;
    QTest::newRow("sharing the 1") << u"TSY1.00"_s << true;
    QTest::newRow("after a byte order mark") << u"\uFEFFTSY11.00"_s << true;
    QTest::newRow("with a later version as well") << u"TSY12.00 1.00"_s << true;
    QTest::newRow("version 11.00") << u"TSY111.00"_s << true;
    QTest::newRow("at the end of 1 MiB") << QString(1 << 20, u'A') + u"TSY11.00"_s << true;
    QTest::newRow("version 2.00") << u"TSY12.00"_s << false;
    QTest::newRow("version 1.0") << u"TSY11.0"_s << false;
    QTest::newRow("version 1,00") << u"TSY11,00"_s << false;
    QTest::newRow("version 1.01") << u"TSY11.01"_s << false;
    QTest::newRow("lower case") << u"tsy11.00"_s << false;
    QTest::newRow("mixed case") << u"Tsy11.00"_s << false;
    QTest::newRow("magic alone") << u"TSY1"_s << false;
    QTest::newRow("version alone") << u"1.00"_s << false;
    QTest::newRow("broken magic") << u"TSY 11.00"_s << false;
    QTest::newRow("magic of a second kind") << u"TSY21.00"_s << false;
    QTest::newRow("title") << u"Tessaly (Configuration File)"_s << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("blanks") << u"    "_s << false;
    QTest::newRow("garbage") << u"\u0001\u00FF\uFFFD"_s << false;
}

void tst_configlines::head()
{
    QFETCH(QString, line);
    QTEST(isConfigHead(line), "ours");
}

void tst_configlines::language_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("choice");

    QTest::newRow("English") << u"English"_s << u"English"_s;
    QTest::newRow("French") << u"French"_s << u"French"_s;
    QTest::newRow("placeholder") << u"(default)"_s << u"default"_s;
    QTest::newRow("english in lower case") << u"english"_s << u"default"_s;
    QTest::newRow("ENGLISH in upper case") << u"ENGLISH"_s << u"default"_s;
    QTest::newRow("french in lower case") << u"french"_s << u"default"_s;
    QTest::newRow("FRENCH in upper case") << u"FRENCH"_s << u"default"_s;
    QTest::newRow("blank behind English") << u"English "_s << u"default"_s;
    QTest::newRow("blank before French") << u" French"_s << u"default"_s;
    QTest::newRow("tab behind French") << u"French\t"_s << u"default"_s;
    QTest::newRow("English cut") << u"Englis"_s << u"default"_s;
    QTest::newRow("French and more") << u"French2"_s << u"default"_s;
    QTest::newRow("both") << u"EnglishFrench"_s << u"default"_s;
    QTest::newRow("own name of French") << u"français"_s << u"default"_s;
    QTest::newRow("language code") << u"fr"_s << u"default"_s;
    QTest::newRow("locale name") << u"en_US"_s << u"default"_s;
    QTest::newRow("language that is not offered") << u"German"_s << u"default"_s;
    QTest::newRow("number") << u"1"_s << u"default"_s;
    QTest::newRow("empty") << QString() << u"default"_s;
    QTest::newRow("blank") << u" "_s << u"default"_s;
    QTest::newRow("1 MiB") << QString(1 << 20, u'F') << u"default"_s;
}

void tst_configlines::language()
{
    QFETCH(QString, line);
    QTEST(nameOf(languageFromLine(line)), "choice");
}

void tst_configlines::addressPart_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("number");

    for (int number = 0; number <= 255; ++number) {
        const QString text = QString::number(number);
        QTest::addRow("%d", number) << text << text;
    }
    QTest::newRow("plus sign") << u"+5"_s << u"5"_s;
    QTest::newRow("leading zero") << u"05"_s << u"5"_s;
    QTest::newRow("leading zeros, not octal") << u"0010"_s << u"10"_s;
    QTest::newRow("minus zero") << u"-0"_s << u"0"_s;
    QTest::newRow("blank before") << u" 7"_s << u"7"_s;
    QTest::newRow("blank behind") << u"7 "_s << u"7"_s;
    QTest::newRow("tabs around") << u"\t255\t"_s << u"255"_s;
    QTest::newRow("256") << u"256"_s << u"none"_s;
    QTest::newRow("257") << u"257"_s << u"none"_s;
    QTest::newRow("-1") << u"-1"_s << u"none"_s;
    QTest::newRow("-255") << u"-255"_s << u"none"_s;
    QTest::newRow("300") << u"300"_s << u"none"_s;
    QTest::newRow("1000") << u"1000"_s << u"none"_s;
    QTest::newRow("largest of 32 bits") << u"2147483647"_s << u"none"_s;
    QTest::newRow("above 32 bits") << u"2147483648"_s << u"none"_s;
    QTest::newRow("smallest of 32 bits") << u"-2147483648"_s << u"none"_s;
    QTest::newRow("5 modulo 32 bits") << u"4294967301"_s << u"none"_s;
    QTest::newRow("5 modulo 64 bits") << u"18446744073709551621"_s << u"none"_s;
    QTest::newRow("1 MiB of digits") << QString(1 << 20, u'5') << u"none"_s;
    QTest::newRow("placeholder") << u"(default)"_s << u"none"_s;
    QTest::newRow("empty") << QString() << u"none"_s;
    QTest::newRow("blank") << u" "_s << u"none"_s;
    QTest::newRow("sign alone") << u"-"_s << u"none"_s;
    QTest::newRow("two signs") << u"++5"_s << u"none"_s;
    QTest::newRow("sign apart") << u"+ 5"_s << u"none"_s;
    QTest::newRow("hexadecimal prefix") << u"0x10"_s << u"none"_s;
    QTest::newRow("hexadecimal digits") << u"FF"_s << u"none"_s;
    QTest::newRow("fraction") << u"1.0"_s << u"none"_s;
    QTest::newRow("exponent") << u"1e2"_s << u"none"_s;
    QTest::newRow("thousands") << u"0,255"_s << u"none"_s;
    QTest::newRow("unit behind") << u"5x"_s << u"none"_s;
    QTest::newRow("two numbers") << u"1 2"_s << u"none"_s;
    QTest::newRow("whole address") << u"192.168.0.1"_s << u"none"_s;
    QTest::newRow("word") << u"five"_s << u"none"_s;
}

void tst_configlines::addressPart()
{
    QFETCH(QString, line);
    QTEST(nameOf(addressPartFromLine(line)), "number");
}

void tst_configlines::autoConnection_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("on");

    QTest::newRow("1") << u"1"_s << true;
    QTest::newRow("2") << u"2"_s << true;
    QTest::newRow("-1") << u"-1"_s << true;
    QTest::newRow("+1") << u"+1"_s << true;
    QTest::newRow("01") << u"01"_s << true;
    QTest::newRow("255") << u"255"_s << true;
    QTest::newRow("256") << u"256"_s << true;
    QTest::newRow("65536") << u"65536"_s << true;
    QTest::newRow("largest of 32 bits") << u"2147483647"_s << true;
    QTest::newRow("smallest of 32 bits") << u"-2147483648"_s << true;
    QTest::newRow("blanks around") << u" 1 "_s << true;
    QTest::newRow("0") << u"0"_s << false;
    QTest::newRow("00") << u"00"_s << false;
    QTest::newRow("+0") << u"+0"_s << false;
    QTest::newRow("-0") << u"-0"_s << false;
    QTest::newRow("above 32 bits") << u"2147483648"_s << false;
    QTest::newRow("below 32 bits") << u"-2147483649"_s << false;
    QTest::newRow("1 modulo 32 bits") << u"4294967297"_s << false;
    QTest::newRow("placeholder") << u"(default)"_s << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("blank") << u" "_s << false;
    QTest::newRow("true") << u"true"_s << false;
    QTest::newRow("yes") << u"yes"_s << false;
    QTest::newRow("fraction") << u"1.0"_s << false;
    QTest::newRow("unit behind") << u"1x"_s << false;
    QTest::newRow("hexadecimal prefix") << u"0x1"_s << false;
}

void tst_configlines::autoConnection()
{
    QFETCH(QString, line);
    QTEST(autoConnectionFromLine(line), "on");
}

void tst_configlines::sentForm_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("form");

    QTest::newRow("2") << u"2"_s << u"hex"_s;
    QTest::newRow("3") << u"3"_s << u"dec"_s;
    QTest::newRow("+2") << u"+2"_s << u"hex"_s;
    QTest::newRow("03") << u"03"_s << u"dec"_s;
    QTest::newRow("2 among blanks") << u" 2 "_s << u"hex"_s;
    QTest::newRow("3 behind a tab") << u"\t3"_s << u"dec"_s;
    QTest::newRow("1, which would be ASCII") << u"1"_s << u"none"_s;
    QTest::newRow("0") << u"0"_s << u"none"_s;
    QTest::newRow("4") << u"4"_s << u"none"_s;
    QTest::newRow("-2") << u"-2"_s << u"none"_s;
    QTest::newRow("23") << u"23"_s << u"none"_s;
    QTest::newRow("256") << u"256"_s << u"none"_s;
    QTest::newRow("2 modulo 8 bits") << u"258"_s << u"none"_s;
    QTest::newRow("above 32 bits") << u"2147483648"_s << u"none"_s;
    QTest::newRow("2 modulo 32 bits") << u"4294967298"_s << u"none"_s;
    QTest::newRow("placeholder") << u"(default)"_s << u"none"_s;
    QTest::newRow("empty") << QString() << u"none"_s;
    QTest::newRow("fraction") << u"2.0"_s << u"none"_s;
    QTest::newRow("unit behind") << u"2x"_s << u"none"_s;
    QTest::newRow("word") << u"hex"_s << u"none"_s;
}

void tst_configlines::sentForm()
{
    QFETCH(QString, line);
    QTEST(nameOf(sentFormFromLine(line)), "form");
}

void tst_configlines::dataForm_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("form");

    QTest::newRow("1") << u"1"_s << u"ascii"_s;
    QTest::newRow("2") << u"2"_s << u"hex"_s;
    QTest::newRow("3") << u"3"_s << u"dec"_s;
    QTest::newRow("+1") << u"+1"_s << u"ascii"_s;
    QTest::newRow("002") << u"002"_s << u"hex"_s;
    QTest::newRow("3 among blanks") << u" 3 "_s << u"dec"_s;
    QTest::newRow("0") << u"0"_s << u"none"_s;
    QTest::newRow("4") << u"4"_s << u"none"_s;
    QTest::newRow("-1") << u"-1"_s << u"none"_s;
    QTest::newRow("12") << u"12"_s << u"none"_s;
    QTest::newRow("256") << u"256"_s << u"none"_s;
    QTest::newRow("1 modulo 8 bits") << u"257"_s << u"none"_s;
    QTest::newRow("above 32 bits") << u"2147483648"_s << u"none"_s;
    QTest::newRow("1 modulo 32 bits") << u"4294967297"_s << u"none"_s;
    QTest::newRow("placeholder") << u"(default)"_s << u"none"_s;
    QTest::newRow("empty") << QString() << u"none"_s;
    QTest::newRow("fraction") << u"1.0"_s << u"none"_s;
    QTest::newRow("unit behind") << u"1x"_s << u"none"_s;
    QTest::newRow("word") << u"ASCII"_s << u"none"_s;
}

void tst_configlines::dataForm()
{
    QFETCH(QString, line);
    QTEST(nameOf(dataFormFromLine(line)), "form");
}

void tst_configlines::read()
{
    const auto settings = settingsFromConfig("TSY11.00\nx\nx\n*\nFrench\n*\nTempo Deck\n*\n"
                                             "/dev/ttyUSB0\n*\n38400\n*\n192\n168\n256\n20\n*\n1\n"
                                             "*\n12\n*\n3\n*\n2\n");
    QVERIFY(settings);
    QVERIFY(settings->language == LanguageChoice::French);
    QCOMPARE(settings->model, u"Tempo Deck"_s);
    QCOMPARE(settings->port, u"/dev/ttyUSB0"_s);
    QCOMPARE(settings->baudRate, u"38400"_s);
    QVERIFY((settings->address == Address{192, 168, std::nullopt, 20}));
    QVERIFY(settings->autoConnection);
    QCOMPARE(settings->playerId, u"12"_s);
    QVERIFY(settings->sentForm == SentForm::Dec);
    QVERIFY(settings->dataForm == DataForm::Hex);
}

void tst_configlines::readCutShort()
{
    const auto settings = settingsFromConfig("TSY11.00\nx\nx\n*\nEnglish\n*\nTempo Deck");
    QVERIFY(settings);
    QVERIFY(settings->language == LanguageChoice::English);
    QCOMPARE(settings->model, u"Tempo Deck"_s);
    QCOMPARE(settings->port, QString());
    QVERIFY(settings->address == Address{});
    QVERIFY(!settings->autoConnection);
    QVERIFY(!settings->sentForm);
    QVERIFY(!settings->dataForm);
}

void tst_configlines::readForeign()
{
    QVERIFY(!settingsFromConfig("TSY12.00\nx\nx\n*\nEnglish\n*\nTempo Deck\n"));
    QVERIFY(!settingsFromConfig({}));
}

TESSALY_TEST(tst_configlines)
#include "tst_configlines.moc"
