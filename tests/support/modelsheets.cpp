// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/modelsheets.h"

#include "tests/support/folders.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QMap>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString noModel = u"none"_s;
const QString notOffered = u"not offered"_s;

/// Reads one file, and ends the program with the position of the first slip.
class SheetReader
{
public:
    explicit SheetReader(const QString &path)
        : m_path(path)
    {
    }

    ModelSheet read();
    QString predecessor() const { return m_predecessor; }
    /// File and line of a key in the head.
    QString positionOf(const QString &key) const
    {
        return u"%1:%2"_s.arg(m_path).arg(m_keyLines.value(key));
    }

private:
    [[noreturn]] void fail(const QString &text) const
    {
        qFatal("%s:%d: %s", qPrintable(m_path), m_line, qPrintable(text));
    }

    void readHead(const QString &line);
    QString take(const QString &key);
    QString takeOneOf(const QString &key, const QStringList &values);
    int number(const QString &text, int lowest, int highest) const;
    void readFields();
    void readBaudRates();
    void readPlayerIds();
    void readCommand(const QString &line);
    void checkValues(const QStringList &values) const;
    QByteArray bytes(const QString &text) const;
    void checkFrame(const QByteArray &frame) const;
    void readCatalogueColumn(const QString &column, SheetCommand &command) const;
    void derive(SheetCommand &command) const;

    QString m_path;
    int m_line = 0;
    QMap<QString, QString> m_head;
    QHash<QString, int> m_keyLines;
    QString m_predecessor;
    ModelSheet m_sheet;
};

ModelSheet SheetReader::read()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        fail(file.errorString());
    bool isHead = true;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        ++m_line;
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (isHead && !line.contains(u'|')) {
            readHead(line);
            continue;
        }
        if (isHead)
            readFields();
        isHead = false;
        readCommand(line);
    }
    if (m_sheet.commands.isEmpty())
        fail(u"no command up to here"_s);
    return m_sheet;
}

void SheetReader::readHead(const QString &line)
{
    const qsizetype end = line.indexOf(u':');
    const QString key = line.left(end);
    const QString value = line.mid(end + 1).trimmed();
    if (end < 0 || value.isEmpty())
        fail(u"neither \"key: value\" nor a command"_s);
    static const QStringList keys{u"model"_s,      u"after"_s,        u"family"_s,
                                  u"link"_s,       u"TCP port"_s,     u"baud rates"_s,
                                  u"player IDs"_s, u"folder banks"_s, u"firmware"_s};
    if (!keys.contains(key))
        fail(u"\"%1\" is none of: %2"_s.arg(key, keys.join(u", "_s)));
    if (m_head.contains(key))
        fail(u"\"%1\" stands here for the second time"_s.arg(key));
    m_head.insert(key, value);
    m_keyLines.insert(key, m_line);
}

QString SheetReader::take(const QString &key)
{
    if (!m_head.contains(key))
        fail(u"the head up to here has no \"%1\""_s.arg(key));
    return m_head.take(key);
}

QString SheetReader::takeOneOf(const QString &key, const QStringList &values)
{
    QString value = take(key);
    if (!values.contains(value))
        fail(u"\"%1\" is none of: %2"_s.arg(value, values.join(u", "_s)));
    return value;
}

int SheetReader::number(const QString &text, int lowest, int highest) const
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    if (!isNumber || value < lowest || value > highest)
        fail(u"\"%1\" is no number from %2 to %3"_s.arg(text).arg(lowest).arg(highest));
    return value;
}

void SheetReader::readFields()
{
    m_sheet.fileName = QFileInfo(m_path).fileName();
    m_sheet.name = take(u"model"_s);
    m_predecessor = take(u"after"_s);
    m_sheet.isOffered = m_predecessor != notOffered;
    m_sheet.isExtended = takeOneOf(u"family"_s, {u"Classic"_s, u"Extended"_s}) == "Extended"_L1;
    m_sheet.isTcp = takeOneOf(u"link"_s, {u"serial"_s, u"TCP/IP"_s}) == "TCP/IP"_L1;
    if (m_sheet.isTcp)
        m_sheet.tcpPort = static_cast<quint16>(number(take(u"TCP port"_s), 1, 65535));
    else
        readBaudRates();
    readPlayerIds();
    m_sheet.folderBanks = number(take(u"folder banks"_s), 1, 255);
    const QString firmware = take(u"firmware"_s);
    if (firmware != "none"_L1)
        m_sheet.firmware = firmware;
    if (!m_head.isEmpty())
        fail(u"\"%1\" does not go with this link"_s.arg(m_head.firstKey()));
}

void SheetReader::readBaudRates()
{
    for (QString rate : take(u"baud rates"_s).split(u", "_s)) {
        const bool isDefault = rate.endsWith(" (default)"_L1);
        if (isDefault)
            rate.chop(10);
        m_sheet.baudRates.append(number(rate, 1, 4'000'000));
        if (!isDefault)
            continue;
        if (m_sheet.defaultBaudRate != -1)
            fail(u"a second default baud rate in the head up to here"_s);
        m_sheet.defaultBaudRate = m_sheet.baudRates.constLast();
    }
    if (m_sheet.defaultBaudRate == -1)
        fail(u"no default baud rate in the head up to here"_s);
}

void SheetReader::readPlayerIds()
{
    const QStringList ids = take(u"player IDs"_s).split(u" to "_s);
    if (ids.size() > 2)
        fail(u"the player IDs are \"LOWEST to HIGHEST\", or one number"_s);
    m_sheet.lowestPlayerId = number(ids.constFirst(), 0, 127);
    m_sheet.highestPlayerId = number(ids.constLast(), m_sheet.lowestPlayerId, 127);
}

void SheetReader::readCommand(const QString &line)
{
    QStringList columns = line.split(u'|');
    for (QString &column : columns)
        column = column.trimmed();
    if (columns.size() < 3 || columns.size() > 6)
        fail(u"%1 columns instead of 3 to 6"_s.arg(columns.size()));
    for (int i = 0; i < 3; ++i) {
        if (columns.at(i).isEmpty())
            fail(u"column %1 is empty"_s.arg(i + 1));
    }
    const QStringList values = columns.value(3).split(u" to "_s);
    const bool hasRange = values.size() == 2;
    if (values.size() > 2 || hasRange == columns.value(4).isEmpty())
        fail(u"\"LOWEST to HIGHEST\" and the frame of the highest value belong together"_s);

    SheetCommand command;
    command.label = columns.at(0);
    command.id = static_cast<quint32>(number(columns.at(1), 1, 99));
    command.frame = bytes(columns.at(2));
    command.lowest = values.constFirst();
    checkValues(values);
    checkFrame(command.frame);
    if (hasRange) {
        command.highest = values.constLast();
        command.highestFrame = bytes(columns.at(4));
        checkFrame(command.highestFrame);
    }
    derive(command);
    readCatalogueColumn(columns.value(5), command);
    m_sheet.commands.append(command);
}

void SheetReader::checkValues(const QStringList &values) const
{
    if (values.size() == 2) {
        const auto begins = [](const QString &value) { return value.front().isDigit(); };
        // Contacts, as in "none to 1, 2", are the one kind whose ends differ.
        if (values.constLast().isEmpty()
            || (begins(values.constFirst()) && !begins(values.constLast())))
            fail(u"\"%1\" does not go with \"%2\""_s.arg(values.constLast(), values.constFirst()));
        return;
    }
    // One value without a range is a moment.
    const QString moment = values.constFirst().section(u" UTC"_s, 0, 0);
    if (!moment.isEmpty() && !QDate::fromString(moment, u"yyyy-MM-dd"_s).isValid()
        && !QTime::fromString(moment, u"hh:mm:ss"_s).isValid()
        && !QDateTime::fromString(moment, u"yyyy-MM-dd hh:mm:ss"_s).isValid())
        fail(u"\"%1\" is neither a range nor a moment"_s.arg(moment));
}

/// Bytes such as: 04 00 "cmd" 00
QByteArray SheetReader::bytes(const QString &text) const
{
    QByteArray result;
    bool isQuoted = false;
    const QStringList stretches = text.split(u'"');
    if (stretches.size() % 2 == 0)
        fail(u"a quotation mark is missing in: %1"_s.arg(text));
    for (const QString &stretch : stretches) {
        if (isQuoted) {
            result += stretch.toLatin1();
        } else if (!stretch.trimmed().isEmpty()) {
            for (const QString &byte : stretch.trimmed().split(u' ')) {
                const QByteArray digits = byte.toLatin1();
                const QByteArray value = QByteArray::fromHex(digits);
                if (value.toHex().toUpper() != digits || value.size() != 1)
                    fail(u"\"%1\" is no byte in: %2"_s.arg(byte, text));
                result += value;
            }
        }
        isQuoted = !isQuoted;
    }
    return result;
}

void SheetReader::checkFrame(const QByteArray &frame) const
{
    if (frame.size() < (m_sheet.isExtended ? 1 : 2))
        fail(u"a frame of %1 bytes"_s.arg(frame.size()));
    if (!m_sheet.isExtended && frame.front() != '\x80')
        fail(u"the first byte of a Classic frame to player 0 is 80"_s);
}

/// What the catalogue holds as a rule. What follows the verb names a text message; in the
/// catalogue, it follows the ends of the range, or FF FF.
void SheetReader::derive(SheetCommand &command) const
{
    const qsizetype header = m_sheet.isExtended ? 1 : 2;
    command.code = static_cast<quint8>(command.frame.at(header - 1));
    if (!m_sheet.connectsOnDemand()) {
        command.data = command.frame.sliced(header);
        command.dataMax = command.hasRange() ? command.highestFrame.sliced(header) : command.data;
        return;
    }
    const QByteArray name = command.frame.sliced(header).split('\0').value(4);
    const auto held = [&](int value) {
        return (command.hasRange()
                    ? QByteArray(1, static_cast<char>(value / 256)) + static_cast<char>(value)
                    : "\xFF\xFF"_ba)
               + name;
    };
    command.data = held(command.lowestNumber());
    command.dataMax = held(command.highestNumber());
}

void SheetReader::readCatalogueColumn(const QString &column, SheetCommand &command) const
{
    if (column.isEmpty())
        return;
    bool hasMax = false;
    for (const QString &part : column.split(u", "_s)) {
        const QString field = part.section(u' ', 0, 0);
        const QByteArray value = bytes(part.section(u' ', 1));
        if (value.isEmpty())
            fail(u"\"%1\" names no bytes"_s.arg(part));
        if (field == "data"_L1 && !hasMax)
            command.data = command.dataMax = value;
        else if (field == "dataMax"_L1)
            command.dataMax = value;
        else
            fail(u"\"%1\" is neither data nor, after it, dataMax"_s.arg(field));
        hasMax = field == "dataMax"_L1;
    }
}

/// The sheets in the order of the list.
class SheetList
{
public:
    SheetList()
    {
        const QDir folder(sourcePath(u"tests/models"_s));
        for (const QString &name : folder.entryList({u"*.txt"_s}, QDir::Files)) {
            SheetReader reader(folder.filePath(name));
            const ModelSheet sheet = reader.read();
            if (m_positions.contains(sheet.name))
                qFatal("%s: %s has another sheet, see %s",
                       qPrintable(reader.positionOf(u"model"_s)), qPrintable(sheet.name),
                       qPrintable(m_positions.value(sheet.name)));
            m_positions.insert(sheet.name, reader.positionOf(u"after"_s));
            if (!sheet.isOffered) {
                unoffered.append(sheet);
                continue;
            }
            m_predecessors.insert(sheet.name, reader.predecessor());
            m_followers[reader.predecessor()].append(sheet);
        }
        appendFollowers(noModel);
        checkAllFollow();
    }

    QList<ModelSheet> offered;
    QList<ModelSheet> unoffered;

private:
    /// A model that only comes after a missing one is not to blame.
    void checkAllFollow() const
    {
        for (auto it = m_predecessors.cbegin(); it != m_predecessors.cend(); ++it) {
            QString name = it.value();
            bool isBroken = name != noModel && !m_predecessors.contains(name);
            for (qsizetype step = 0; step < m_predecessors.size() && !isBroken; ++step) {
                isBroken = name == it.key();
                name = m_predecessors.value(name);
            }
            if (isBroken)
                qFatal("%s: the list that begins after \"none\" does not lead to \"%s\"",
                       qPrintable(m_positions.value(it.key())), qPrintable(it.value()));
        }
    }

    qsizetype followersOf(const QString &name) const
    {
        qsizetype count = 0;
        for (const ModelSheet &sheet : m_followers.value(name))
            count += 1 + followersOf(sheet.name);
        return count;
    }

    void appendFollowers(const QString &name)
    {
        QList<ModelSheet> followers = m_followers.value(name);
        std::ranges::sort(followers, {},
                          [this](const ModelSheet &sheet) { return followersOf(sheet.name); });
        for (qsizetype i = 1; i < followers.size(); ++i) {
            if (followersOf(followers.at(i - 1).name) == followersOf(followers.at(i).name))
                qFatal("%s: another model comes after \"%s\", too, see %s",
                       qPrintable(m_positions.value(followers.at(i).name)), qPrintable(name),
                       qPrintable(m_positions.value(followers.at(i - 1).name)));
        }
        for (const ModelSheet &sheet : std::as_const(followers)) {
            offered.append(sheet);
            appendFollowers(sheet.name);
        }
    }

    QMap<QString, QString> m_predecessors; ///< of each model that is offered
    QHash<QString, QList<ModelSheet>> m_followers;
    QHash<QString, QString> m_positions; ///< of the line "after" of each sheet
};

const SheetList &sheets()
{
    static const SheetList list;
    return list;
}

} // namespace

QString SheetCommand::meaning(const QString &value) const
{
    // Those of the window that are no label with a value.
    switch (id) {
    case 10:
        return "Request: "_L1 + label;
    case 39:
        // The lists of languages begin and end alike.
        return "Subtitles "_L1 + value + " (ISO639-2 (B), ISO639-2 (T), ISO639-3)"_L1;
    case 40:
        return "Subtitles "_L1 + value + " ("_L1 + label + u')';
    default:
        return value.isEmpty() ? label : label + u' ' + value;
    }
}

QList<int> ModelSheet::playerIdSamples() const
{
    if (!hasPlayerIds())
        return {lowestPlayerId};
    QList<int> samples{lowestPlayerId};
    for (const int id : {1, 5, 64}) {
        if (id > lowestPlayerId && id < highestPlayerId)
            samples.append(id);
    }
    return samples + QList<int>{highestPlayerId};
}

QByteArray ModelSheet::addressed(const QByteArray &frame, int playerId) const
{
    if (isExtended || frame.isEmpty())
        return frame;
    return static_cast<char>(0x80 + playerId) + frame.sliced(1);
}

QList<SheetCommand> ModelSheet::commandsOf(quint32 id) const
{
    QList<SheetCommand> found;
    std::ranges::copy_if(commands, std::back_inserter(found),
                         [id](const SheetCommand &command) { return command.id == id; });
    return found;
}

const QList<ModelSheet> &modelSheets()
{
    return sheets().offered;
}

const QList<ModelSheet> &unofferedSheets()
{
    return sheets().unoffered;
}

const ModelSheet &sheetOf(const QString &name)
{
    for (const QList<ModelSheet> *list : {&sheets().offered, &sheets().unoffered}) {
        const auto found = std::ranges::find(*list, name, &ModelSheet::name);
        if (found != list->cend())
            return *found;
    }
    qFatal("there is no sheet of %s in tests/models", qPrintable(name));
}
