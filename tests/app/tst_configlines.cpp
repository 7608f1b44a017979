// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/configlines.h"

#include "app/applicationobjects.h"
#include "tests/support/settingsfile.h"
#include "tests/support/testregistry.h"

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

/// What a failing comparison shows: language, model, port, baud rate, the address, auto-connection,
/// player ID, forms of sent and received bytes. Empty: no settings.
QStringList described(const std::optional<SavedSettings> &settings)
{
    if (!settings)
        return {};
    QStringList texts{nameOf(settings->language), settings->model, settings->port,
                      settings->baudRate};
    for (const std::optional<int> part : settings->address)
        texts.append(nameOf(part));
    return texts
           + QStringList{settings->autoConnection ? u"on"_s : u"off"_s, settings->playerId,
                         nameOf(settings->sentForm), nameOf(settings->dataForm)};
}

QStringList linesOf(const SettingsFile &file)
{
    QStringList lines;
    for (const QByteArray &line : file.lines())
        lines.append(QString::fromUtf8(line));
    return lines;
}

/// No setting is the one of a file in which nothing is chosen.
const SettingsFile fullFile{.language = "French",
                            .model = "Vistar Show - SV500 (Serial)",
                            .port = "ttyUSB0",
                            .baudRate = "57600",
                            .address = {"10", "20", "30", "40"},
                            .autoConnection = "1",
                            .playerId = "12",
                            .sentForm = "3",
                            .dataForm = "2"};
const QStringList fullSettings{u"French"_s,  u"Vistar Show - SV500 (Serial)"_s,
                               u"ttyUSB0"_s, u"57600"_s,
                               u"10"_s,      u"20"_s,
                               u"30"_s,      u"40"_s,
                               u"on"_s,      u"12"_s,
                               u"dec"_s,     u"hex"_s};
/// Of a file that has its head alone.
const QStringList noSettings{u"default"_s, u""_s,     u""_s,    u""_s, u"none"_s, u"none"_s,
                             u"none"_s,    u"none"_s, u"off"_s, u""_s, u"none"_s, u"none"_s};
/// The line of each of them, counted from 1.
constexpr int valueLines[] = {5, 7, 9, 11, 13, 14, 15, 16, 18, 20, 22, 24};

/// fullFile with another content of one line, counted from 1.
QByteArray fullFileWith(int number, const QByteArray &line)
{
    QByteArrayList lines = fullFile.lines();
    lines[number - 1] = line;
    return lines.join('\n') + '\n';
}

} // namespace

Q_DECLARE_METATYPE(SavedSettings)
Q_DECLARE_METATYPE(SettingsFile)

class tst_configlines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setApplicationIdentity(); }
    void written_data();
    void written();
    void head_data();
    void head();
    void language_data();
    void language();
    void addressPart_data();
    void addressPart();
    void everyAddressPart();
    void autoConnection_data();
    void autoConnection();
    void sentForm_data();
    void sentForm();
    void dataForm_data();
    void dataForm();
    void read_data();
    void read();
    void cutShort_data();
    void cutShort();
};

void tst_configlines::written_data()
{
    QTest::addColumn<SavedSettings>("settings");
    QTest::addColumn<SettingsFile>("file");

    // Begins with nothing chosen.
    using Choose = void (*)(SavedSettings & settings, SettingsFile & file);
    const auto row = [](const char *name, Choose choose) {
        SavedSettings settings;
        SettingsFile file;
        choose(settings, file);
        QTest::newRow(name) << settings << file;
    };

    row("nothing", [](SavedSettings &, SettingsFile &) {});
    row("everything", [](SavedSettings &settings, SettingsFile &file) {
        settings.language = LanguageChoice::French;
        settings.model = u"Vistar Show - SV500 (Serial)"_s;
        settings.port = u"ttyUSB0"_s;
        settings.baudRate = u"57600"_s;
        settings.address = {10, 20, 30, 40};
        settings.autoConnection = true;
        settings.playerId = u"12"_s;
        settings.sentForm = SentForm::Dec;
        settings.dataForm = DataForm::Hex;
        file = fullFile;
    });
    row("language English", [](SavedSettings &settings, SettingsFile &file) {
        settings.language = LanguageChoice::English;
        file.language = "English";
    });
    row("model of one space", [](SavedSettings &settings, SettingsFile &file) {
        settings.model = u" "_s;
        file.model = " ";
    });
    row("port with path", [](SavedSettings &settings, SettingsFile &file) {
        settings.port = u"/dev/pts/7"_s;
        file.port = "/dev/pts/7";
    });
    row("port beyond ASCII", [](SavedSettings &settings, SettingsFile &file) {
        settings.port = u"pörté"_s;
        file.port = "p\xC3\xB6rt\xC3\xA9";
    });
    row("empty texts", [](SavedSettings &settings, SettingsFile &) {
        settings.model = settings.port = settings.baudRate = settings.playerId = u""_s;
    });
    row("highest address", [](SavedSettings &settings, SettingsFile &file) {
        settings.address = {255, 255, 255, 255};
        file.address = {"255", "255", "255", "255"};
    });
    row("address without its parts",
        [](SavedSettings &settings, SettingsFile &) { settings.address = {}; });
    row("player ID 0", [](SavedSettings &settings, SettingsFile &file) {
        settings.playerId = u"0"_s;
        file.playerId = "0";
    });
    // Sent bytes have no ASCII form: their numbers begin where hexadecimal stands in line 24.
    row("sent hexadecimal", [](SavedSettings &settings, SettingsFile &file) {
        settings.sentForm = SentForm::Hex;
        file.sentForm = "2";
    });
    row("data ASCII", [](SavedSettings &settings, SettingsFile &file) {
        settings.dataForm = DataForm::Ascii;
        file.dataForm = "1";
    });
    row("data decimal", [](SavedSettings &settings, SettingsFile &file) {
        settings.dataForm = DataForm::Dec;
        file.dataForm = "3";
    });
}

void tst_configlines::written()
{
    QFETCH(const SavedSettings, settings);
    QFETCH(const SettingsFile, file);
    QCOMPARE(configLines(settings), linesOf(file));
}

void tst_configlines::head_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("ours");

    QTest::newRow("as written") << u"TSY11.00"_s << true;
    QTest::newRow("inside other characters") << u"XTSY11.00Y"_s << true;
    QTest::newRow("among spaces") << u"  TSY1 \t 1.00  "_s << true;
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
    QTest::newRow("spaces") << u"    "_s << false;
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
    QTest::newRow("space after English") << u"English "_s << u"default"_s;
    QTest::newRow("space before French") << u" French"_s << u"default"_s;
    QTest::newRow("tab after French") << u"French\t"_s << u"default"_s;
    QTest::newRow("English cut") << u"Englis"_s << u"default"_s;
    QTest::newRow("French and more") << u"French2"_s << u"default"_s;
    QTest::newRow("both") << u"EnglishFrench"_s << u"default"_s;
    QTest::newRow("own name of French") << u"français"_s << u"default"_s;
    QTest::newRow("language code") << u"fr"_s << u"default"_s;
    QTest::newRow("locale name") << u"en_US"_s << u"default"_s;
    QTest::newRow("language that is not offered") << u"German"_s << u"default"_s;
    QTest::newRow("number") << u"1"_s << u"default"_s;
    QTest::newRow("empty") << QString() << u"default"_s;
    QTest::newRow("space") << u" "_s << u"default"_s;
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

    QTest::newRow("plus sign") << u"+5"_s << u"5"_s;
    QTest::newRow("leading zero") << u"05"_s << u"5"_s;
    QTest::newRow("leading zeros, not octal") << u"0010"_s << u"10"_s;
    QTest::newRow("minus zero") << u"-0"_s << u"0"_s;
    QTest::newRow("space before") << u" 7"_s << u"7"_s;
    QTest::newRow("space after") << u"7 "_s << u"7"_s;
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
    QTest::newRow("space") << u" "_s << u"none"_s;
    QTest::newRow("sign alone") << u"-"_s << u"none"_s;
    QTest::newRow("two signs") << u"++5"_s << u"none"_s;
    QTest::newRow("sign apart") << u"+ 5"_s << u"none"_s;
    QTest::newRow("hexadecimal prefix") << u"0x10"_s << u"none"_s;
    QTest::newRow("hexadecimal digits") << u"FF"_s << u"none"_s;
    QTest::newRow("fraction") << u"1.0"_s << u"none"_s;
    QTest::newRow("exponent") << u"1e2"_s << u"none"_s;
    QTest::newRow("thousands") << u"0,255"_s << u"none"_s;
    QTest::newRow("unit after") << u"5x"_s << u"none"_s;
    QTest::newRow("two numbers") << u"1 2"_s << u"none"_s;
    QTest::newRow("whole address") << u"192.168.0.1"_s << u"none"_s;
    QTest::newRow("word") << u"five"_s << u"none"_s;
}

void tst_configlines::addressPart()
{
    QFETCH(QString, line);
    QTEST(nameOf(addressPartFromLine(line)), "number");
}

void tst_configlines::everyAddressPart()
{
    for (int number = 0; number <= 255; ++number)
        QCOMPARE(addressPartFromLine(QString::number(number)), std::optional(number));
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
    QTest::newRow("spaces around") << u" 1 "_s << true;
    QTest::newRow("0") << u"0"_s << false;
    QTest::newRow("00") << u"00"_s << false;
    QTest::newRow("+0") << u"+0"_s << false;
    QTest::newRow("-0") << u"-0"_s << false;
    QTest::newRow("above 32 bits") << u"2147483648"_s << false;
    QTest::newRow("below 32 bits") << u"-2147483649"_s << false;
    QTest::newRow("1 modulo 32 bits") << u"4294967297"_s << false;
    QTest::newRow("placeholder") << u"(default)"_s << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("space") << u" "_s << false;
    QTest::newRow("true") << u"true"_s << false;
    QTest::newRow("yes") << u"yes"_s << false;
    QTest::newRow("fraction") << u"1.0"_s << false;
    QTest::newRow("unit after") << u"1x"_s << false;
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
    QTest::newRow("2 among spaces") << u" 2 "_s << u"hex"_s;
    QTest::newRow("3 after a tab") << u"\t3"_s << u"dec"_s;
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
    QTest::newRow("unit after") << u"2x"_s << u"none"_s;
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
    QTest::newRow("3 among spaces") << u" 3 "_s << u"dec"_s;
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
    QTest::newRow("unit after") << u"1x"_s << u"none"_s;
    QTest::newRow("word") << u"ASCII"_s << u"none"_s;
}

void tst_configlines::dataForm()
{
    QFETCH(QString, line);
    QTEST(nameOf(dataFormFromLine(line)), "form");
}

void tst_configlines::read_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("settings");

    const QStringList foreign;
    const auto row = [](const char *name, const QByteArray &bytes, const QStringList &settings) {
        QTest::newRow(name) << bytes << settings;
    };
    const auto fullWith = [](int i, const QString &value) {
        QStringList settings = fullSettings;
        settings[i] = value;
        return settings;
    };
    const QByteArray full = fullFile.bytes();
    const QByteArray mebibyte(1 << 20, 'A');

    row("as written", full, fullSettings);
    row("nothing chosen", SettingsFile{}.bytes(),
        {u"default"_s, u"(default)"_s, u"(default)"_s, u"(default)"_s, u"0"_s, u"0"_s, u"0"_s,
         u"0"_s, u"off"_s, u"(default)"_s, u"none"_s, u"none"_s});
    row("labels are not looked at",
        "TSY11.00\na\n\nb\nFrench\nEnglish\nVistar Show - SV500 (Serial)\nc\nttyUSB0\n9600\n57600"
        "\n1\n10\n20\n30\n40\n0\n1\nAmpra One\n12\n2\n3\n1\n2\n",
        fullSettings);
    row("lines after the last", full + "English\nAmpra One\n1\n", fullSettings);
    row("no line end at the end", full.chopped(1), fullSettings);
    row("CR LF", fullFile.bytes("\r\n"), fullSettings);
    row("CR LF, none at the end", fullFile.bytes("\r\n").chopped(2), fullSettings);
    QByteArrayList lines = fullFile.lines();
    lines.removeAt(6);
    row("one missing line moves the others", lines.join('\n'),
        {u"French"_s, u"*** Default Serial Port:"_s, u"*** Default Baudrate:"_s,
         u"*** Default IP Address:"_s, u"20"_s, u"30"_s, u"40"_s, u"none"_s, u"off"_s,
         u"*** Default Command Bytes Sent Setting:"_s, u"none"_s, u"none"_s});

    row("head after 1 MiB", fullFileWith(1, mebibyte + "TSY11.00"), fullSettings);
    row("head after invalid UTF-8", fullFileWith(1, "\xFF\xC0TSY11.00"), fullSettings);
    row("head cut in two by an invalid byte",
        fullFileWith(1, "TSY\xFF"
                        "11.00"),
        foreign);
    row("head of version 2.00", fullFileWith(1, "TSY12.00"), foreign);
    row("head empty", fullFileWith(1, ""), foreign);
    row("head on the second line", '\n' + full, foreign);
    row("labels of 1 MiB", fullFileWith(2, mebibyte), fullSettings);
    row("a value of 1 MiB", fullFileWith(9, mebibyte), fullWith(2, QString::fromLatin1(mebibyte)));
    row("NUL after a value", fullFileWith(5, "French\0"_ba), fullWith(0, u"default"_s));
    row("invalid UTF-8 in a text", fullFileWith(7, "Ampra\xFF"), fullWith(1, u"Ampra\uFFFD"_s));
    row("invalid UTF-8 in a number",
        fullFileWith(13, "\xFF"
                         "5"),
        fullWith(4, u"none"_s));

    row("empty file", "", foreign);
    row("24 empty lines", QByteArray(24, '\n'), foreign);
    row("head and 23 empty lines", "TSY11.00" + QByteArray(24, '\n'), noSettings);
    // A line ends with LF: all is in the first one.
    row("CR alone", fullFile.bytes("\r"), noSettings);
    row("NULs", QByteArray(4096, '\0'), foreign);
    row("1 MiB without a line end", mebibyte, foreign);

    const QString text = QString::fromLatin1(full);
    row("UTF-8 with byte order mark", "\xEF\xBB\xBF" + full, fullSettings);
    row("UTF-16 byte order mark before UTF-8", "\xFF\xFE" + full, foreign);
    const QByteArray littleEndian(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    row("UTF-16 without byte order mark", littleEndian, foreign);
    // The text stream recognizes it and reads on in it.
    row("UTF-16 with byte order mark", "\xFF\xFE" + littleEndian, fullSettings);
}

void tst_configlines::read()
{
    QFETCH(const QByteArray, bytes);
    QTEST(described(settingsFromConfig(bytes)), "settings");
}

void tst_configlines::cutShort_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("settings");

    const auto settingsUpTo = [](int line) {
        QStringList settings = noSettings;
        for (qsizetype i = 0; i < settings.size(); ++i) {
            if (valueLines[i] <= line)
                settings[i] = fullSettings.at(i);
        }
        return settings;
    };
    for (int count = 1; count < 24; ++count) {
        const QByteArray bytes = fullFile.lines().sliced(0, count).join('\n');
        QTest::addRow("after line %d", count) << bytes << settingsUpTo(count);
        QTest::addRow("after line %d and its end", count) << bytes + '\n' << settingsUpTo(count);
    }

    const auto inLine = [&](int number, qsizetype length, qsizetype setting, const QString &rest) {
        QStringList settings = settingsUpTo(number - 1);
        settings[setting] = rest;
        QByteArrayList lines = fullFile.lines().sliced(0, number);
        lines.last().truncate(length);
        QTest::addRow("in line %d after \"%s\"", number, lines.constLast().constData())
            << lines.join('\n') << settings;
    };
    inLine(5, 5, 0, u"default"_s);
    inLine(7, 11, 1, u"Vistar Show"_s);
    // The rest of a number is a number.
    inLine(13, 1, 4, u"1"_s);
    inLine(16, 1, 7, u"4"_s);
    QTest::newRow("in the head") << "TSY11.0"_ba << QStringList();
}

void tst_configlines::cutShort()
{
    QFETCH(const QByteArray, bytes);
    QTEST(described(settingsFromConfig(bytes)), "settings");
}

TESSALY_TEST(tst_configlines)
#include "tst_configlines.moc"
