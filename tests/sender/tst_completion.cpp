// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

QString program()
{
    return programPath(u"tessaly-send"_s);
}

QString completion()
{
    return sourcePath(u"packaging/bash-completion/tessaly-send"_s);
}

QString manual()
{
    return sourcePath(u"packaging/man/tessaly-send.1"_s);
}

QString textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QString outputOf(const QString &command, const QStringList &arguments)
{
    QProcess process;
    process.start(command, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qWarning().noquote() << command << "failed:" << process.readAllStandardError();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// What bash is offered for the last of the words, as readline hands them over.
QStringList completions(const QStringList &words)
{
    const QString script = u"set -u\n"
                           "source \"$0\"\n"
                           "program=$1\n"
                           "shift\n"
                           "COMP_WORDS=(tessaly-send \"$@\")\n"
                           "COMP_CWORD=$#\n"
                           "_tessaly_send \"$program\" \"${COMP_WORDS[COMP_CWORD]#\\\"}\" "
                           "\"${COMP_WORDS[COMP_CWORD - 1]}\"\n"
                           "((${#COMPREPLY[@]} == 0)) || printf '%s\\n' \"${COMPREPLY[@]}\"\n"_s;
    return outputOf(u"bash"_s, QStringList{u"-c"_s, script, completion(), program()} + words)
        .split(u'\n', Qt::SkipEmptyParts);
}

QSet<QString> optionsIn(const QString &text)
{
    static const QRegularExpression option(u"--[a-z]+(-[a-z]+)*"_s);
    QSet<QString> options;
    for (const QRegularExpressionMatch &match : option.globalMatch(text))
        options.insert(match.captured());
    return options;
}

} // namespace

/// What is said about the program in places that it cannot keep right itself.
class tst_Completion : public QObject
{
    Q_OBJECT

private slots:
    void words_data();
    void words();
    void portsAndFiles();
    void optionsAreKnownEverywhere();
};

void tst_Completion::words_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("offered");

    const QString deck = u"Tempo\\ Deck"_s;
    const auto row = [](const char *name, const QStringList &words, const QStringList &offered) {
        QTest::newRow(name) << words << offered;
    };
    row("option", {u"--mo"_s}, {u"--model"_s});
    row("options", {u"--h"_s}, {u"--help"_s, u"--host"_s, u"--hex"_s});
    row("model", {u"--model"_s, u"tem"_s}, {deck});
    row("model behind a blank", {u"--model"_s, u"tempo\\ "_s}, {deck});
    row("model behind an equals sign", {u"--model"_s, u"="_s, u"tem"_s}, {deck});
    row("model in quotes", {u"--model"_s, u"\"Sonet A ("_s}, {u"Sonet A (Serial)"_s});
    row("value that nobody knows", {u"--id"_s, u""_s}, {});
    row("command", {u"--model"_s, deck, u"next"_s}, {u"next-file"_s, u"next-folder"_s});
    row("command of a model in quotes", {u"--model"_s, u"\"Tempo Deck\""_s, u"sto"_s}, {u"stop"_s});
    row("command behind other options",
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
    row("behind the values", {u"--model"_s, deck, u"folder"_s, u"12"_s, u""_s}, {});
}

void tst_Completion::words()
{
    QFETCH(const QStringList, words);
    QTEST(completions(words), "offered");
}

void tst_Completion::portsAndFiles()
{
    const QString file = QFileInfo(manual()).path() + "/tessaly-se"_L1;
    for (const QString &option : {u"--port"_s, u"--script"_s, u"--log"_s})
        QCOMPARE(completions({option, file}), QStringList{manual()});
}

void tst_Completion::optionsAreKnownEverywhere()
{
    const QSet<QString> options = optionsIn(outputOf(program(), {u"--help"_s}));
    QVERIFY(options.size() > 15);
    const QSet<QString> completed = optionsIn(completions({u"--"_s}).join(u' '));
    QCOMPARE(completed, options);
    const QString page = textOf(manual()).remove(u'\\');
    // Those of the command that lets a user open ports.
    const QSet<QString> foreign{u"--append"_s, u"--groups"_s};
    QCOMPARE(optionsIn(page) - foreign, options);
}

TESSALY_TEST(tst_Completion)
#include "tst_completion.moc"
