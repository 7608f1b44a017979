// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/filecontent.h"
#include "tests/support/folders.h"
#include "tests/support/modelsheets.h"
#include "tests/support/testregistry.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString sendProgram = u"tessaly-send"_s;
const QString simulatorProgram = u"tessaly-simulator"_s;

QString outputOf(const QString &command, const QStringList &arguments)
{
    QProcess process;
    process.start(command, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return u"%1 failed: %2"_s.arg(command, QString::fromUtf8(process.readAllStandardError()));
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// What bash offers for the last of the words, which are those of readline.
QStringList completions(const QString &program, const QStringList &words)
{
    const QString script = u"set -u\n"
                           "source \"$0\"\n"
                           "function=_${1//-/_}\n"
                           "program=$2\n"
                           "COMP_WORDS=(\"$1\" \"${@:3}\")\n"
                           "COMP_CWORD=$(($# - 2))\n"
                           "$function \"$program\" \"${COMP_WORDS[COMP_CWORD]#\\\"}\" "
                           "\"${COMP_WORDS[COMP_CWORD - 1]}\"\n"
                           "((${#COMPREPLY[@]} == 0)) || printf '%s\\n' \"${COMPREPLY[@]}\"\n"_s;
    return outputOf(u"bash"_s, QStringList{u"-c"_s, script,
                                           sourcePath("packaging/bash-completion/"_L1 + program),
                                           program, programPath(program)}
                                   + words)
        .split(u'\n', Qt::SkipEmptyParts);
}

/// "--model NAME" or "--list": the options that the program reads, in alphabetical order.
QStringList optionsOf(const QString &program)
{
    static const QRegularExpression line(u"^  (-., )?(--[a-z-]+)(?: <([A-Z]+)>)?"_s,
                                         QRegularExpression::MultilineOption);
    QStringList options;
    for (const auto &match : line.globalMatch(outputOf(programPath(program), {u"--help"_s})))
        options.append((match.captured(2) + u' ' + match.captured(3)).trimmed());
    options.sort();
    return options;
}

QStringList faults()
{
    static const QRegularExpression line(u"^  ([a-z-]+) "_s, QRegularExpression::MultilineOption);
    QStringList names;
    const QString help = outputOf(programPath(simulatorProgram), {u"--help"_s});
    for (const auto &match :
         line.globalMatch(help.section(u"\nFaults:\n"_s, 1).section(u"\n\n"_s, 0, 0)))
        names.append(match.captured(1));
    return names;
}

/// The heads of the paragraphs about the options, in alphabetical order: "--model NAME", "hang-up".
QStringList headsInManual(const QString &program)
{
    QString page = QString::fromUtf8(contentOf(sourcePath(u"packaging/man/%1.1"_s.arg(program))));
    page = page.section(u"\n.SH OPTIONS\n"_s, 1).section(u"\n.SH "_s, 0, 0).remove(u'\\');
    static const QRegularExpression head(u"^\\.TP\n\\.B[IR]? (.*)$"_s,
                                         QRegularExpression::MultilineOption);
    QStringList heads;
    for (const auto &match : head.globalMatch(page)) {
        // One head may stand for several: -h ", " --help
        for (QString text : match.captured(1).split(u" \", \" "_s)) {
            if (text.startsWith("--"_L1) || !text.startsWith(u'-'))
                heads.append(text.replace(u'~', QString()));
        }
    }
    heads.sort();
    return heads;
}

QString nameOf(const QString &option)
{
    return option.section(u' ', 0, 0);
}

/// The model's name as bash wants it.
QString escaped(QString name)
{
    static const QRegularExpression special(u"([ ()])"_s);
    return name.replace(special, u"\\\\1"_s);
}

} // namespace

/// An option is declared in a program's source alone: bash asks the program, and its manual page
/// has to name the same.
class tst_Completion : public QObject
{
    Q_OBJECT

private slots:
    void options_data() { addPrograms(); }
    void options();
    void values_data() { addPrograms(); }
    void values();
    void models_data() { addPrograms(); }
    void models();
    void manual_data() { addPrograms(); }
    void manual();
    void faultNames();
    void commands_data();
    void commands();
    void files();

private:
    static void addPrograms();
};

void tst_Completion::addPrograms()
{
    QTest::addColumn<QString>("program");

    QTest::newRow("tessaly-send") << sendProgram;
    QTest::newRow("tessaly-simulator") << simulatorProgram;
}

void tst_Completion::options()
{
    QFETCH(const QString, program);

    QStringList names;
    for (const QString &option : optionsOf(program))
        names.append(nameOf(option));
    QVERIFY(names.contains(u"--model"_s) && names.contains(u"--help"_s));
    for (const QString &beginning : {u"--"_s, u"--l"_s, u"--model"_s, u"--none"_s}) {
        QStringList expected = names;
        expected.removeIf([&](const QString &name) { return !name.startsWith(beginning); });
        QStringList offered = completions(program, {beginning});
        offered.sort();
        QCOMPARE(offered, expected);
        offered = completions(program, {u"--model"_s, u"Ampra\\ One"_s, beginning});
        offered.sort();
        QCOMPARE(offered, expected);
    }
}

/// Where an option wants a value, there is no place for another option.
void tst_Completion::values()
{
    QFETCH(const QString, program);

    for (const QString &option : optionsOf(program)) {
        const QStringList offered = completions(program, {nameOf(option), u"--he"_s});
        const bool wantsValue = option.contains(u' ');
        QVERIFY2(offered.contains(u"--help"_s) != wantsValue, qPrintable(option));
    }
}

void tst_Completion::models()
{
    QFETCH(const QString, program);

    QStringList names;
    QStringList beginningsWithS;
    for (const ModelSheet &sheet : modelSheets()) {
        names.append(escaped(sheet.name));
        if (sheet.name.startsWith(u"sonet a ("_s, Qt::CaseInsensitive))
            beginningsWithS.append(sheet.name);
    }
    QCOMPARE(completions(program, {u"--model"_s, QString()}), names);
    QCOMPARE(completions(program, {u"--model"_s, u"="_s, QString()}), names);
    QCOMPARE(completions(program, {u"--model"_s, u"="_s}), names);
    // In quotes, nothing has to be escaped.
    QCOMPARE(completions(program, {u"--model"_s, u"\"sonet a ("_s}), beginningsWithS);
    names.removeIf(
        [](const QString &name) { return !name.startsWith(u"tempo\\ d"_s, Qt::CaseInsensitive); });
    QVERIFY(names.contains(u"Tempo\\ Deck"_s));
    QCOMPARE(completions(program, {u"--model"_s, u"tempo\\ d"_s}), names);
}

void tst_Completion::manual()
{
    QFETCH(const QString, program);

    QStringList expected = optionsOf(program);
    if (program == simulatorProgram)
        expected += faults();
    expected.sort();
    QCOMPARE(headsInManual(program), expected);
}

void tst_Completion::faultNames()
{
    QVERIFY(faults().contains(u"hang-up"_s));
    QCOMPARE(completions(simulatorProgram, {u"--fault"_s, QString()}), faults());
    QCOMPARE(completions(simulatorProgram, {u"--fault"_s, u"hang"_s}), QStringList{u"hang-up"_s});
    QCOMPARE(completions(simulatorProgram, {u"--all"_s, u"--fault"_s, u"="_s, u"meg"_s}),
             QStringList{u"megabyte"_s});
}

void tst_Completion::commands_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("offered");

    const QString deck = u"Tempo\\ Deck"_s;
    const auto row = [](const char *name, const QStringList &words, const QStringList &offered) {
        QTest::newRow(name) << words << offered;
    };
    row("command", {u"--model"_s, deck, u"next"_s}, {u"next-file"_s, u"next-folder"_s});
    row("command of a model in quotes", {u"--model"_s, u"\"Tempo Deck\""_s, u"sto"_s}, {u"stop"_s});
    row("command after other options",
        {u"--model"_s, u"="_s, deck, u"--id"_s, u"3"_s, u"--dry-run"_s, u"fo"_s}, {u"folder"_s});
    row("the value of an option is no command",
        {u"--model"_s, deck, u"--port"_s, u"/dev/ttyUSB0"_s, u"pl"_s}, {u"play"_s});
    row("lists beside commands",
        {u"--model"_s, u"Vistar\\ Show\\ -\\ SV500\\ \\(Serial\\)"_s, u"s"_s},
        {u"standby/wakeup"_s, u"stop"_s, u"standby"_s, u"set-time"_s, u"set-date"_s,
         u"set-date/time"_s, u"set-utc/gmt-date/time-\\(epoch-version\\)"_s,
         u"set-utc/gmt-date/time-\\(full-version\\)"_s, u"subtitles"_s});
    row("from a list", {u"--model"_s, u"Ampra\\ One"_s, u"request"_s, u""_s}, {u"information"_s});
    row("no list of that name", {u"--model"_s, deck, u"request"_s, u""_s}, {});
    row("no model", {u"pl"_s}, {});
    row("after the values", {u"--model"_s, deck, u"folder"_s, u"12"_s, u""_s}, {});
}

void tst_Completion::commands()
{
    QFETCH(const QStringList, words);
    QTEST(completions(sendProgram, words), "offered");
}

void tst_Completion::files()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a file"_s);
    QVERIFY(QFile::link(file, file));
    const QString beginning = folder.filePath(u"a"_s);
    for (const QString &option : {u"--port"_s, u"--script"_s, u"--log"_s})
        QCOMPARE(completions(sendProgram, {option, beginning}), QStringList{file});
    for (const QString &option : {u"--link"_s, u"--log"_s})
        QCOMPARE(completions(simulatorProgram, {option, beginning}), QStringList{file});
    QCOMPARE(completions(simulatorProgram, {u"--port"_s, beginning}), QStringList());
}

TESSALY_TEST(tst_Completion)
#include "tst_completion.moc"
