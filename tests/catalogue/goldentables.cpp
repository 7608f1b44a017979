// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "goldentables.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One row of a golden file: hands out its columns by number, and keeps the first complaint.
class GoldenRow
{
public:
    explicit GoldenRow(const QString &line)
        : m_columns(line.split(u'|'))
    {
        for (QString &column : m_columns)
            column = column.trimmed();
    }

    void expectColumns(qsizetype count)
    {
        if (m_columns.size() == count)
            return;
        complain(u"%1 columns instead of %2"_s.arg(m_columns.size()).arg(count));
        m_columns.resize(count);
    }

    QString text(qsizetype column)
    {
        if (m_columns.at(column).isEmpty())
            complain(u"column %1 is empty"_s.arg(column + 1));
        return m_columns.at(column);
    }

    /// A text that may be absent, which is written "-".
    QString optionalText(qsizetype column)
    {
        const QString value = text(column);
        return value == "-"_L1 ? QString() : value;
    }

    int number(qsizetype column, int lowest, int highest)
    {
        return toNumber(text(column), lowest, highest);
    }

    QList<int> numbers(qsizetype column)
    {
        QList<int> values;
        for (const QString &value : optionalText(column).split(u' ', Qt::SkipEmptyParts))
            values.append(toNumber(value, 1, std::numeric_limits<int>::max()));
        return values;
    }

    int oneOf(qsizetype column, const QStringList &names)
    {
        const qsizetype index = names.indexOf(text(column));
        if (index < 0)
            complain(u"\"%1\" is none of %2"_s.arg(text(column), names.join(", "_L1)));
        return static_cast<int>(index);
    }

    QByteArray bytes(qsizetype column)
    {
        static const QRegularExpression form(u"\\A[0-9A-F]{2}( [0-9A-F]{2})*\\z"_s);
        const QString value = text(column);
        if (!form.match(value).hasMatch())
            complain(u"\"%1\" is no list of bytes"_s.arg(value));
        return value.toLatin1();
    }

    void complain(const QString &reason)
    {
        if (m_complaint.isEmpty())
            m_complaint = reason;
    }

    QString complaint() const { return m_complaint; }

private:
    int toNumber(const QString &text, int lowest, int highest)
    {
        bool ok = false;
        const int value = text.toInt(&ok);
        if (!ok || value < lowest || value > highest)
            complain(u"\"%1\" is no number from %2 to %3"_s.arg(text).arg(lowest).arg(highest));
        return value;
    }

    QStringList m_columns;
    QString m_complaint;
};

template<typename Record, typename ReadRow>
QList<Record> parse(const QString &fileName, const QByteArray &text, QString &error,
                    ReadRow readRow)
{
    QList<Record> records;
    int lineNumber = 0;
    for (const QString &line : QString::fromUtf8(text).split(u'\n')) {
        ++lineNumber;
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        GoldenRow row(line);
        records.append(readRow(row, records.size()));
        if (!row.complaint().isEmpty()) {
            error = u"%1:%2: %3"_s.arg(fileName).arg(lineNumber).arg(row.complaint());
            return {};
        }
    }
    if (records.isEmpty())
        error = u"%1:%2: no row up to here"_s.arg(fileName).arg(lineNumber);
    return records;
}

QByteArray readFile(const QString &path, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = u"%1: %2"_s.arg(path, file.errorString());
        return {};
    }
    return file.readAll();
}

} // namespace

QList<GoldenCommand> parseGoldenCommands(const QString &fileName, const QByteArray &text,
                                         QString &error)
{
    return parse<GoldenCommand>(fileName, text, error, [](GoldenRow &row, qsizetype) {
        row.expectColumns(5);
        GoldenCommand command;
        command.label = row.text(0);
        command.commandId = row.number(1, 1, 99);
        command.code = row.number(2, 0, 255);
        command.data = row.bytes(3);
        command.dataMax = row.bytes(4);
        return command;
    });
}

QList<GoldenModel> parseGoldenModels(const QString &fileName, const QByteArray &text,
                                     QString &error)
{
    return parse<GoldenModel>(fileName, text, error, [](GoldenRow &row, qsizetype position) {
        row.expectColumns(12);
        GoldenModel model;
        const QString place = row.optionalText(0);
        model.offered = !place.isEmpty();
        if (model.offered && place != QString::number(position))
            row.complain(u"row %1 stands at place %2"_s.arg(place).arg(position));
        model.name = row.text(1);
        model.protocol = row.oneOf(2, {u"Classic"_s, u"Extended"_s});
        model.transport = row.oneOf(3, {u"Serial"_s, u"TcpIp"_s});
        model.minPlayerId = row.number(4, 0, 255);
        model.maxPlayerId = row.number(5, 0, 255);
        model.folderBankCount = row.number(6, 0, 255);
        model.baudRates = row.numbers(7);
        model.defaultBaudRate = row.number(8, -1, std::numeric_limits<int>::max());
        model.tcpPort = row.number(9, 0, 65535);
        model.firmwareVersion = row.optionalText(10);
        model.commandFile = row.text(11);
        return model;
    });
}

QList<GoldenModel> loadGoldenModels(const QString &folder, QString &error)
{
    const QString listName = u"models.txt"_s;
    QStringList unused = QDir(folder).entryList(QDir::Files);
    unused.removeAll(listName);

    const auto path = [&folder](const QString &fileName) { return folder + u'/' + fileName; };
    const QByteArray list = readFile(path(listName), error);
    if (!error.isEmpty())
        return {};

    QList<GoldenModel> models = parseGoldenModels(listName, list, error);
    for (GoldenModel &model : models) {
        const QByteArray text = readFile(path(model.commandFile), error);
        if (error.isEmpty())
            model.commands = parseGoldenCommands(model.commandFile, text, error);
        if (!error.isEmpty())
            return {};
        unused.removeAll(model.commandFile);
    }
    if (error.isEmpty() && !unused.isEmpty())
        error = u"%1: no model has these commands"_s.arg(unused.join(u' '));
    return error.isEmpty() ? models : QList<GoldenModel>();
}
