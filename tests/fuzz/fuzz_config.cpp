// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "tests/fuzz/fuzztarget.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>
#include <QTextEdit>

#include <algorithm>
#include <memory>

#include <sys/mman.h>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Line {
    Head = 0,
    Language = 4,
    Model = 6,
    Port = 8,
    BaudRate = 10,
    FirstAddressPart = 12,
    AutoConnection = 17,
    PlayerId = 19,
    SentForm = 21,
    DataForm = 23,
    LineCount = 24
};

constexpr int addressPartCount = 4;

/// What the window shows before each input, and writes when the input changes nothing.
const QByteArray plainFile = "TSY11.00\n"
                             "Tessaly (Configuration File)\n"
                             "Generate by: Tessaly 1.2.8.0\n"
                             "*** Default Language:\n"
                             "(default)\n"
                             "*** Default Device:\n"
                             "Tempo Deck\n"
                             "*** Default Serial Port:\n"
                             "/dev/ttyTest1\n"
                             "*** Default Baudrate:\n"
                             "19200\n"
                             "*** Default IP Address:\n"
                             "0\n"
                             "0\n"
                             "0\n"
                             "0\n"
                             "*** Default Auto-connection:\n"
                             "0\n"
                             "*** Default Player ID:\n"
                             "0\n"
                             "*** Default Command Bytes Sent Setting:\n"
                             "2\n"
                             "*** Default Data Received Setting:\n"
                             "1\n"_ba;

/// Of its model.
const QByteArrayList plainBaudRates{"9600", "19200", "38400"};

QByteArrayList plainLines()
{
    return plainFile.split('\n').sliced(0, LineCount);
}

/// The console's window, of which there is one for all inputs.
class Console
{
public:
    Console()
    {
        qputenv("HOME", m_home.path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("TESSALY_EXTRA_PORTS", "/dev/ttyTest1:/dev/ttyTest2");
        setApplicationIdentity();
        static int argc = 1;
        static char name[] = "fuzz_config";
        static char *argv[] = {name, nullptr};
        m_application = std::make_unique<QApplication>(argc, argv);
        m_window = std::make_unique<MainWindow>();
    }

    /// \return the lines that the window writes when it has read this file, without their ends
    QByteArrayList settingsOf(const QByteArray &file) const
    {
        // Choosing the model takes most of the time; it is left alone where it is the right one.
        const bool isPlainModel = choice("comboBox_Player") == plainLines().at(Model)
                                  && choices("comboBox_Baudrate") == plainBaudRates;
        load(isPlainModel ? QByteArray(plainFile).replace(plainLines().at(Model), "") : plainFile);
        // No file switches it off.
        m_window->findChild<QCheckBox *>(u"checkBox_Auto_connection"_s)->setChecked(false);
        load(file);
        return save();
    }

    QByteArray choice(const char *list) const
    {
        return m_window->findChild<QComboBox *>(QLatin1StringView(list))->currentText().toUtf8();
    }

    QByteArrayList choices(const char *list) const
    {
        const auto *box = m_window->findChild<QComboBox *>(QLatin1StringView(list));
        QByteArrayList texts;
        for (int row = 0; row < box->count(); ++row)
            texts.append(box->itemText(row).toUtf8());
        if (texts.isEmpty())
            texts.append("(default)");
        return texts;
    }

private:
    void load(const QByteArray &file) const
    {
        QFile out(m_path);
        expect(out.open(QIODevice::WriteOnly) && out.write(file) == file.size() && out.flush(),
               "the input can be written");
        m_window->loadConfig(m_path);
    }

    QByteArrayList save() const
    {
        m_window->saveConfig(m_path);
        m_window->findChild<QTextEdit *>(u"textEdit_Data"_s)->clear(); // of the traces
        QFile in(m_path);
        expect(in.open(QIODevice::ReadOnly), "the settings are saved");
        QByteArrayList lines = in.readAll().split('\n');
        expect(lines.takeLast().isEmpty() && lines.size() == LineCount, "24 lines are written");
        return lines;
    }

    QTemporaryDir m_home;
    /// A file in memory: those on disks are slower than the rest of all.
    QString m_path = u"/proc/self/fd/%1"_s.arg(::memfd_create("input", 0));
    std::unique_ptr<QApplication> m_application;
    std::unique_ptr<MainWindow> m_window;
};

/// 0 to 255, written as the console writes it.
bool isAddressPart(const QByteArray &line)
{
    const int value = line.toInt();
    return value >= 0 && value <= 255 && QByteArray::number(value) == line;
}

/// Whatever was read, what is written is a choice that the window offers.
void checkWritten(const Console &console, const QByteArrayList &lines)
{
    const auto expectOneOf = [&lines](Line line, const QByteArrayList &choices, const char *what) {
        expect(choices.contains(lines.at(line)), what);
    };
    expectOneOf(Head, {"TSY11.00"}, "the head is written");
    expectOneOf(Language, {"(default)", "English", "French"}, "a language is written");
    expectOneOf(Model, console.choices("comboBox_Player"), "a model is written");
    expectOneOf(Port, console.choices("comboBox_Port"), "a port is written");
    expectOneOf(BaudRate, console.choices("comboBox_Baudrate"), "a baud rate is written");
    const QByteArrayList address = lines.sliced(FirstAddressPart, addressPartCount);
    expect(std::all_of(address.begin(), address.end(), isAddressPart), "an address is written");
    expectOneOf(AutoConnection, {"0", "1"}, "auto-connection is written");
    expectOneOf(PlayerId, console.choices("comboBox_ID"), "a player ID is written");
    expectOneOf(SentForm, {"2", "3"}, "a form of sent bytes is written");
    expectOneOf(DataForm, {"1", "2", "3"}, "a form of received bytes is written");
}

/// \a read the lines of a file of plain characters only, of which it is easily told what they mean
void checkTaken(const Console &console, QByteArrayList read, const QByteArrayList &written)
{
    if (!read.at(Head).contains("TSY1") || !read.at(Head).contains("1.00")) {
        expect(written == plainLines(), "a foreign file changes nothing");
        return;
    }
    while (read.size() < LineCount)
        read.append(QByteArray());
    // A line that means nothing leaves what was there before.
    const auto expectIf = [&](bool isValue, int line, const QByteArray &value, const char *what) {
        expect(written.at(line) == (isValue ? value : plainLines().at(line)), what);
    };
    const auto expectChoice = [&](Line line, const QByteArrayList &choices, const char *what) {
        expectIf(choices.contains(read.at(line)), line, read.at(line), what);
    };
    const auto expectNumber = [&](int line, int lowest, int highest, const char *what) {
        bool isNumber = false;
        const int value = read.at(line).toInt(&isNumber);
        expectIf(isNumber && value >= lowest && value <= highest, line, QByteArray::number(value),
                 what);
    };

    expectChoice(Language, {"English", "French"}, "the language is taken over");
    expectChoice(Port, console.choices("comboBox_Port"), "the port is taken over");
    for (int line = FirstAddressPart; line < FirstAddressPart + addressPartCount; ++line)
        expectNumber(line, 0, 255, "the address is taken over");
    expectIf(read.at(AutoConnection).toInt() != 0, AutoConnection, "1",
             "auto-connection is taken over");
    expectNumber(SentForm, 2, 3, "the form of sent bytes is taken over");
    expectNumber(DataForm, 1, 3, "the form of received bytes is taken over");

    const QByteArrayList models = console.choices("comboBox_Player");
    // A model in place of the player ID is selected without its lists.
    if (models.contains(read.at(PlayerId))) {
        expect(written.at(Model) == read.at(PlayerId), "the player ID is looked up among models");
        return;
    }
    expectChoice(Model, models, "the model is taken over");
    if (console.choices("comboBox_Baudrate").contains(read.at(BaudRate)))
        expect(written.at(BaudRate) == read.at(BaudRate), "the baud rate is taken over");
}

} // namespace

/// Fontconfig keeps what it has read of its settings until the process ends.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

/// The input is the configuration file.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Console console;

    const QByteArray file(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArrayList written = console.settingsOf(file);
    checkWritten(console, written);
    const bool isPlain = std::all_of(file.begin(), file.end(), [](char byte) {
        return byte == '\n' || (byte >= ' ' && byte <= '~');
    });
    if (isPlain)
        checkTaken(console, file.split('\n'), written);

    const QByteArrayList again = console.settingsOf(written.join('\n'));
    checkWritten(console, again);
    // The player ID is saved, but never restored; and the lists may not have been the model's.
    QByteArrayList expected = written;
    expected[PlayerId] = again.at(PlayerId);
    if (!console.choices("comboBox_Baudrate").contains(expected.at(BaudRate)))
        expected[BaudRate] = again.at(BaudRate);
    expect(again == expected, "what was written reads the same again");
    return 0;
}
