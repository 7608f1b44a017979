// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"
#include "catalogue/lightingmodels.h"
#include "catalogue/listnumbers.h"
#include "protocol/bytestext.h"
#include "protocol/frameencoder.h"
#include "protocol/labelledcommands.h"
#include "simulator/framecursor.h"
#include "simulator/framedecoder.h"
#include "tests/support/testregistry.h"
#include "ui/subtitlecodes.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <malloc.h>
#include <time.h>

#ifdef __SANITIZE_ADDRESS__
// GCC comes without the header that declares it.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

using State = FrameCursor::State;

QByteArray bytes(const char *text)
{
    return QByteArray::fromHex(text);
}

/// The offered models, and the DMX bridge that is defined but not offered yet.
const QList<DeviceModel> &allModels()
{
    static const QList<DeviceModel> models = [] {
        DeviceCatalogue catalogue = buildDeviceCatalogue();
        appendLumoBridge(catalogue);
        return catalogue;
    }();
    return models;
}

DeviceModel modelOfName(const QString &name)
{
    for (const DeviceModel &model : allModels()) {
        if (model.name == name)
            return model;
    }
    return {};
}

/// A frame that the console sends, and the command that the user has chosen for it.
struct SentFrame
{
    QByteArray bytes;
    DecodedCommand command;
};

QString commandText(const DecodedCommand &command)
{
    return u"%1 [id %2, code %3, %4 to %5], player %6, number %7, option %8, language '%9'"_s
               .arg(command.entry.label)
               .arg(command.entry.commandId)
               .arg(command.entry.code)
               .arg(hexBytesText(command.entry.data), hexBytesText(command.entry.dataMax))
               .arg(command.playerId)
               .arg(command.number)
               .arg(command.option)
               .arg(command.language)
           + u", date '%1', time '%2'%3"_s.arg(command.date.toString(Qt::ISODate),
                                               command.time.toString(Qt::ISODate),
                                               command.inRange ? u""_s : u", out of range"_s);
}

/// The bytes of each piece and what they are.
QStringList pieceTexts(const QList<DecodedFrame> &frames)
{
    QStringList texts;
    for (const DecodedFrame &frame : frames) {
        texts.append(hexBytesText(frame.bytes) + " = "_L1
                     + (frame.command ? commandText(*frame.command) : u"no frame"_s));
    }
    return texts;
}

/// Labels, or "-" for what is no frame, with the bytes of each piece.
QString outline(const QList<DecodedFrame> &frames)
{
    QStringList texts;
    for (const DecodedFrame &frame : frames) {
        texts.append((frame.command ? frame.command->entry.label : u"-"_s) + ": "_L1
                     + hexBytesText(frame.bytes));
    }
    return texts.join(u" / "_s);
}

void setZone(const QByteArray &zone)
{
    // A zone that was not set has no name at all; an empty one would mean UTC.
    if (zone.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", zone);
    ::tzset();
}

// Written out with their rules, so that no time zone data has to be installed.
const QByteArray zones[] = {
    "UTC0"_ba,
    "NZST-12NZDT,M9.5.0,M4.1.0/3"_ba,
    "PST8PDT,M3.2.0,M11.1.0"_ba,
};

/// Moments of the century that the two-digit years count from.
QList<QDateTime> moments()
{
    QList<QDateTime> result;
    for (const QString &text :
         {u"2000-01-02T00:00:00Z"_s, u"2024-02-29T12:34:56Z"_s, u"2026-03-07T09:05:30Z"_s,
          u"2026-03-29T01:30:00Z"_s, u"2026-12-31T23:59:59Z"_s, u"2027-01-01T00:00:00Z"_s,
          u"2038-01-19T03:14:08Z"_s, u"2099-12-30T23:59:59Z"_s}) {
        result.append(QDateTime::fromString(text, Qt::ISODate));
    }
    return result;
}

/// The console's ways from a click to the bytes, one for each kind of command.
class Console
{
public:
    Console(const DeviceModel &model, const CommandEntry &entry)
        : m_model(model)
        , m_entry(entry)
    {
    }

    /// Every value of the command, to every player in turn, and the first one to all of them.
    QList<SentFrame> frames()
    {
        sendEachValue();
        QList<SentFrame> result;
        int player = m_model.minPlayerId;
        for (const Click &click : std::as_const(m_clicks)) {
            result.append(sent(click, player));
            player = player < m_model.maxPlayerId ? player + 1 : m_model.minPlayerId;
        }
        if (!m_clicks.isEmpty()) {
            for (player = m_model.minPlayerId; player <= m_model.maxPlayerId; ++player)
                result.append(sent(m_clicks.constFirst(), player));
        }
        m_clicks.clear();
        return result;
    }

private:
    struct Click
    {
        quint8 code = 0;
        QByteArray body;
        DecodedCommand command;
    };

    SentFrame sent(const Click &click, int player) const
    {
        SentFrame frame{{}, click.command};
        frame.command.entry = m_entry;
        frame.command.playerId = m_model.protocol == ProtocolKind::Classic ? player : -1;
        const quint8 idByte = playerIdByteFromText(QString::number(player));
        frame.bytes = wireFrame(m_model, idByte, click.code, click.body);
        return frame;
    }

    void sendEachValue()
    {
        switch (m_entry.commandId) {
        case CommandId::Folder:
            for (const QString &text : folderTexts(m_entry, m_model.folderBankCount))
                sendFolder(text);
            break;
        case CommandId::Volume:
            for (int volume : volumes())
                sendVolume(volume);
            break;
        case CommandId::Request:
            sendRequest();
            break;
        case CommandId::ChangeId:
            for (const QString &text : numberTexts(byteRange(m_entry)))
                sendChangeId(text);
            break;
        case CommandId::Relay:
            for (int contacts = 0; contacts <= 255; ++contacts)
                sendRelay(contacts);
            break;
        case CommandId::SourceFolder:
        case CommandId::SourceSpotReset:
        case CommandId::SourceWebradio:
        case CommandId::SourceAlternate:
            sendEachSource();
            break;
        case CommandId::SetTime:
        case CommandId::SetDate:
        case CommandId::SetDateTime:
        case CommandId::SetUtcEpoch:
        case CommandId::SetUtcFull:
            for (const QByteArray &zone : zones) {
                setZone(zone);
                for (const QDateTime &moment : moments())
                    sendOtherCommand(moment);
            }
            break;
        case CommandId::SubtitlesByLanguage:
            for (const QString &type :
                 {subtitleTypeIso6392B, subtitleTypeIso6392T, subtitleTypeIso6393}) {
                for (const QString &language : subtitleValues(type))
                    sendLanguage(language);
            }
            break;
        case CommandId::SubtitlesByIndex:
            for (const QString &text : subtitleValues(subtitleTypeIndex))
                sendIndex(text);
            break;
        case CommandId::VolumeUp:
        case CommandId::VolumeDown:
        case CommandId::Standby:
        case CommandId::Wakeup:
        case CommandId::PauseOnly:
        case CommandId::Resume:
        case CommandId::Mute:
        case CommandId::Unmute:
        case CommandId::Ntp:
        case CommandId::HdmiCecStandby:
        case CommandId::HdmiCecWakeup:
        case CommandId::HdmiCecToggle:
        case CommandId::ProjectorPower:
        case CommandId::Other:
            sendOtherCommand(moments().constFirst());
            break;
        default:
            sendFixedCommand();
            break;
        }
    }

    void sendFixedCommand()
    {
        quint8 code = 0;
        QByteArray body;
        if (appendCommand(m_model, m_entry.commandId, code, body)) {
            appendPlaybackArguments(m_model, m_entry.commandId, body);
            write(code, body);
        }
    }

    void sendFolder(const QString &text)
    {
        quint8 code = 0;
        QByteArray body;
        appendCommand(m_model, CommandId::Folder, code, body);
        applyFolderNumber(numberFromText(text), code, body);
        write(code, body, text.toInt());
    }

    QList<int> volumes() const
    {
        const NumberRange range
            = m_model.protocol == ProtocolKind::Classic ? byteRange(m_entry) : wordRange(m_entry);
        QList<int> result;
        for (int volume = range.first; volume <= range.last; ++volume)
            result.append(volume);
        return result;
    }

    void sendVolume(int volume)
    {
        quint8 code = 0;
        QByteArray body;
        if (appendVolumeCommand(m_model, static_cast<quint8>(volume), code, body))
            write(code, body, volume);
    }

    void sendRequest()
    {
        quint8 code = 0;
        QByteArray body;
        appendRequest(m_model, m_entry.label, code, body);
        if (!body.isEmpty())
            write(code, body);
    }

    void sendChangeId(const QString &text)
    {
        quint8 code = 0;
        QByteArray body;
        appendCommand(m_model, CommandId::ChangeId, code, body);
        applyFirstByte(numberFromText(text), body);
        write(code, body, text.toInt());
    }

    void sendRelay(int contacts)
    {
        quint8 code = 0;
        QByteArray body;
        appendCommand(m_model, CommandId::Relay, code, body);
        for (int bit = 1; bit <= 128; bit *= 2) {
            if (contacts & bit)
                addToFirstByte(bit, body);
        }
        write(code, body, contacts);
    }

    void sendEachSource()
    {
        const NumberRange references = wordRange(m_entry);
        switch (m_entry.commandId) {
        case CommandId::SourceSpotReset: {
            const NumberRange options = byteRange(m_entry, 2);
            for (int reference = references.first; reference <= references.last; ++reference)
                sendSource({reference, options.first, 0});
            for (int option = options.first; option <= options.last; ++option)
                sendSource({references.last, option, 0});
            break;
        }
        case CommandId::SourceFolder:
            for (int reference = references.first; reference <= references.last; ++reference)
                sendSource({reference, 0, 0});
            break;
        case CommandId::SourceWebradio:
            for (int radio = references.first; radio <= references.last; ++radio)
                sendSource({0, 0, radio});
            break;
        default:
            sendSource({});
            break;
        }
    }

    void sendSource(const PlaybackChoice &choice)
    {
        quint8 code = 0;
        QByteArray body;
        appendPlaybackSource(m_model, m_entry.label, choice, code, body);
        if (!body.isEmpty())
            write(code, body, choice.reference + choice.webradio, choice.option);
    }

    void sendOtherCommand(const QDateTime &moment)
    {
        quint8 code = 0;
        QByteArray body;
        appendOtherCommand(m_model, m_entry.label, moment, code, body);
        const QDateTime local = moment.toLocalTime();
        DecodedCommand command;
        switch (m_entry.commandId) {
        case CommandId::SetTime:
            command.time = local.time();
            break;
        case CommandId::SetDate:
            command.date = local.date();
            break;
        case CommandId::SetDateTime:
            command.date = local.date();
            command.time = local.time();
            break;
        case CommandId::SetUtcEpoch:
        case CommandId::SetUtcFull:
            command.date = moment.date();
            command.time = moment.time();
            break;
        default:
            break;
        }
        if (!body.isEmpty())
            writeCommand(code, body, command);
    }

    void sendLanguage(const QString &language)
    {
        quint8 code = 0;
        QByteArray body;
        appendCommand(m_model, CommandId::SubtitlesByLanguage, code, body);
        DecodedCommand command;
        command.language = language;
        writeCommand(code, languageCodeBytes(language), command);
    }

    void sendIndex(const QString &text)
    {
        quint8 code = 0;
        QByteArray body;
        appendCommand(m_model, CommandId::SubtitlesByIndex, code, body);
        write(code, QByteArray(1, static_cast<char>(numberFromText(text))), text.toInt());
    }

    void write(quint8 code, const QByteArray &body, int number = 0, int option = 0)
    {
        DecodedCommand command;
        command.number = number;
        command.option = option;
        writeCommand(code, body, command);
    }

    /// \a command with its values alone
    void writeCommand(quint8 code, const QByteArray &body, const DecodedCommand &command)
    {
        m_clicks.append({code, body, command});
    }

    const DeviceModel &m_model;
    const CommandEntry &m_entry;
    QList<Click> m_clicks;
};

QList<SentFrame> framesOf(const DeviceModel &model)
{
    QList<SentFrame> frames;
    for (const CommandEntry &entry : model.commands)
        frames += Console(model, entry).frames();
    return frames;
}

/// Bytes that begin no frame of the model.
QByteArray junkAlphabet(const DeviceModel &model)
{
    if (model.protocol == ProtocolKind::Classic)
        return bytes("00 01 02 0D 30 7F");
    return model.transport == TransportKind::Serial ? bytes("0C 21 6E 80 FE")
                                                    : bytes("01 05 7F FF");
}

qsizetype allocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return static_cast<qsizetype>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<qsizetype>(info.uordblks) + static_cast<qsizetype>(info.hblkhd);
#endif
}

/// Room that buffers, here and in the decoder, may keep for what comes next.
constexpr qsizetype bufferRoom = 65'536;

constexpr qsizetype longestStrayPiece = 64;
/// The longest frame of all models, a volume over TCP/IP, has 30 bytes.
constexpr qsizetype longestFrame = 30;

/// Feeds a decoder and keeps account of what goes in and comes out.
class Feeder
{
public:
    explicit Feeder(const DeviceModel &model)
        : m_decoder(model)
    {
    }

    void feed(const QByteArray &piece)
    {
        m_outstanding += piece;
        take(m_decoder.feed(piece));
        if (m_decoder.hasBegunFrame() == m_outstanding.isEmpty())
            complain(u"hasBegunFrame() with %1 bytes outstanding"_s.arg(m_outstanding.size()));
        if (m_outstanding.size() >= longestFrame)
            complain(u"%1 bytes kept: %2"_s.arg(m_outstanding.size())
                         .arg(hexBytesText(m_outstanding.first(longestFrame))));
    }

    void flush()
    {
        take(m_decoder.flush());
        if (!m_outstanding.isEmpty() || m_decoder.hasBegunFrame())
            complain(u"kept by flush(): "_s + hexBytesText(m_outstanding.left(longestFrame)));
    }

    /// Feeds all of `data` in pieces of random lengths.
    void feedInPieces(const QByteArray &data, int longestPiece, QRandomGenerator &random)
    {
        for (qsizetype begin = 0; begin < data.size() && m_complaint.isEmpty();) {
            const qsizetype size = random.bounded(1, longestPiece + 1);
            feed(data.mid(begin, size));
            begin += size;
        }
    }

    void keepCommands() { m_keepsCommands = true; }
    QList<DecodedFrame> takeCommands() { return std::exchange(m_commands, {}); }
    qsizetype strayBytes() const { return m_strayBytes; }
    qsizetype commandCount() const { return m_commandCount; }
    QString complaint() const { return m_complaint; }

private:
    void take(const QList<DecodedFrame> &frames)
    {
        qsizetype position = 0;
        for (const DecodedFrame &frame : frames) {
            if (frame.bytes.isEmpty()
                || m_outstanding.mid(position, frame.bytes.size()) != frame.bytes)
                complain(u"not what came in: "_s + hexBytesText(frame.bytes));
            position += frame.bytes.size();
            if (frame.command) {
                ++m_commandCount;
                if (m_keepsCommands)
                    m_commands.append(frame);
                continue;
            }
            m_strayBytes += frame.bytes.size();
            if (frame.bytes.size() > longestStrayPiece)
                complain(u"a piece of %1 bytes"_s.arg(frame.bytes.size()));
        }
        m_outstanding.remove(0, position);
    }

    void complain(const QString &reason)
    {
        if (m_complaint.isEmpty())
            m_complaint = reason;
    }

    FrameDecoder m_decoder;
    QByteArray m_outstanding;
    QList<DecodedFrame> m_commands;
    bool m_keepsCommands = false;
    qsizetype m_strayBytes = 0;
    qsizetype m_commandCount = 0;
    QString m_complaint;
};

QByteArray randomBytes(qsizetype size, const QByteArray &alphabet, QRandomGenerator &random)
{
    QByteArray result(size, Qt::Uninitialized);
    for (char &byte : result) {
        byte = alphabet.isEmpty() ? static_cast<char>(random.bounded(256))
                                  : alphabet.at(random.bounded(static_cast<int>(alphabet.size())));
    }
    return result;
}

QByteArray randomCuts(qsizetype size, const QList<SentFrame> &frames, QRandomGenerator &random)
{
    QByteArray result;
    result.reserve(size + longestFrame);
    while (result.size() < size) {
        const QByteArray &frame = frames.at(random.bounded(static_cast<int>(frames.size()))).bytes;
        const int begin = random.bounded(static_cast<int>(frame.size()));
        result += frame.mid(begin, random.bounded(1, static_cast<int>(frame.size()) + 1));
    }
    return result.first(size);
}

/// The bytes that frames of the model are made of, so that many beginnings of frames come about.
QByteArray frameAlphabet(const QList<SentFrame> &frames)
{
    QByteArray alphabet;
    for (const SentFrame &frame : frames) {
        for (const char byte : frame.bytes) {
            if (!alphabet.contains(byte))
                alphabet += byte;
        }
    }
    return alphabet;
}

} // namespace

class tst_FrameDecoder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (qEnvironmentVariableIsSet("TZ"))
            m_zone = qgetenv("TZ");
    }
    void cleanup() { setZone(m_zone); }

    void cursor_data();
    void cursor();
    void cursorStandsStillBehindAFault();
    void numberTexts_data();
    void numberTexts();

    void sentIsUnderstood_data();
    void sentIsUnderstood();

    void pieces_data();
    void pieces();
    void values_data();
    void values();

    void splitAtEveryByte_data();
    void splitAtEveryByte();
    void streamOfFrames_data();
    void streamOfFrames();
    void junkAroundFrames_data();
    void junkAroundFrames();
    void longestStrayPieceIs64();
    void keepsNoMoreThanABeginning();
    void neverEndingFrames_data();
    void neverEndingFrames();
    void noise_data();
    void noise();

private:
    QByteArray m_zone;
};

Q_DECLARE_METATYPE(FrameCursor::State)

void tst_FrameDecoder::cursor_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<bool>("isWord");
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("position");

    const auto byte = [](const char *name, const char *input, int low, int high, State state,
                         int value, int position) {
        QTest::newRow(name) << bytes(input) << low << high << false << state << value << position;
    };
    byte("lowest byte", "10 AA", 16, 32, State::Fits, 16, 1);
    byte("highest byte", "20", 16, 32, State::Fits, 32, 1);
    byte("byte below", "0F", 16, 32, State::Wrong, 0, 0);
    byte("byte above", "21", 16, 32, State::Wrong, 0, 0);
    byte("byte with the top bit", "FF", 128, 255, State::Fits, 255, 1);
    byte("no byte yet", "", 16, 32, State::Short, 0, 0);
    byte("range without numbers", "00", 0, -1, State::Wrong, 0, 0);

    const auto word = [](const char *name, const char *input, int low, int high, State state,
                         int value, int position) {
        QTest::newRow(name) << bytes(input) << low << high << true << state << value << position;
    };
    word("lowest word", "00 01", 1, 999, State::Fits, 1, 2);
    word("word with a low byte of FF", "00 FF FF", 1, 999, State::Fits, 255, 2);
    word("word of two digits", "01 2C", 1, 999, State::Fits, 300, 2);
    word("highest word", "03 E7", 1, 999, State::Fits, 999, 2);
    word("word 0", "00 00", 1, 999, State::Wrong, 0, 0);
    word("word above", "03 E8", 1, 999, State::Wrong, 0, 0);
    word("word of a wrong high byte alone", "04", 1, 999, State::Wrong, 0, 0);
    word("half a word", "03", 1, 999, State::Short, 0, 0);
    word("no word yet", "", 1, 999, State::Short, 0, 0);
}

void tst_FrameDecoder::cursor()
{
    QFETCH(QByteArray, input);
    QFETCH(int, low);
    QFETCH(int, high);
    QFETCH(bool, isWord);
    QFETCH(State, state);
    QFETCH(int, value);
    QFETCH(int, position);

    FrameCursor cursor(input);
    const int taken = isWord ? cursor.takeWord({low, high}) : cursor.takeByte({low, high});
    QCOMPARE(cursor.state(), state);
    if (state == State::Fits) {
        QCOMPARE(taken, value);
        QCOMPARE(cursor.position(), position);
    }
}

void tst_FrameDecoder::cursorStandsStillBehindAFault()
{
    const QByteArray input = bytes("85 02 01 30 00");
    FrameCursor wrong(input);
    wrong.expect(bytes("85 02"));
    QCOMPARE(wrong.state(), State::Fits);
    QCOMPARE(wrong.position(), 2);
    wrong.expect(bytes("02"));
    QCOMPARE(wrong.state(), State::Wrong);
    QCOMPARE(wrong.takeByte({0, 255}), 0);
    QCOMPARE(wrong.takeWord({0, 65535}), 0);
    QCOMPARE(wrong.takeNumberText(), 0);
    QCOMPARE(wrong.position(), 2);
    QCOMPARE(wrong.state(), State::Wrong);

    FrameCursor ended(input);
    ended.expect(bytes("85 02 01 30 00 00"));
    QCOMPARE(ended.state(), State::Short);
    QCOMPARE(ended.takeByte({0, 255}), 0);
    QCOMPARE(ended.takeNumberText(), 0);
    QCOMPARE(ended.position(), 5);
    QCOMPARE(ended.state(), State::Short);

    FrameCursor rejected(input);
    QCOMPARE(rejected.takeByte({128, 255}), 0x85);
    rejected.reject();
    QCOMPARE(rejected.state(), State::Wrong);
    QCOMPARE(rejected.takeByte({0, 255}), 0);
    QCOMPARE(rejected.position(), 1);
}

void tst_FrameDecoder::numberTexts_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("length");

    const auto row = [](const char *name, QByteArrayView input, State state, int number) {
        QTest::newRow(name) << input.toByteArray() << state << number
                            << static_cast<int>(input.indexOf('\0')) + 1;
    };
    row("empty", {"\0", 1}, State::Fits, 0);
    row("0", {"0\0", 2}, State::Fits, 0);
    row("leading zeros", {"0012\0", 5}, State::Fits, 12);
    row("four digits", {"9999\0", 5}, State::Fits, 9999);
    row("five digits", {"10000\0", 6}, State::Wrong, 0);
    row("five digits without an end", {"10000", 5}, State::Wrong, 0);
    row("four digits without an end", {"1000", 4}, State::Short, 0);
    row("negative", {"-64\0", 4}, State::Fits, -64);
    row("four negative digits", {"-9999\0", 6}, State::Fits, -9999);
    row("five negative digits", {"-10000\0", 7}, State::Wrong, 0);
    row("a minus sign alone", {"-\0", 2}, State::Fits, 0);
    row("a minus sign so far", {"-", 1}, State::Short, 0);
    row("two minus signs", {"--1\0", 4}, State::Wrong, 0);
    row("a minus sign behind a digit", {"1-\0", 3}, State::Wrong, 0);
    row("a plus sign", {"+1\0", 3}, State::Wrong, 0);
    row("a blank", {" 1\0", 3}, State::Wrong, 0);
    row("a letter", {"1a\0", 3}, State::Wrong, 0);
    row("the byte below the digits", {"/\0", 2}, State::Wrong, 0);
    row("the byte above the digits", {":\0", 2}, State::Wrong, 0);
    row("a byte above ASCII", {"\xB2\0", 2}, State::Wrong, 0);
    row("what follows is not looked at", {"7\0x", 3}, State::Fits, 7);
    row("nothing yet", {"", qsizetype(0)}, State::Short, 0);
}

void tst_FrameDecoder::numberTexts()
{
    QFETCH(QByteArray, input);
    QFETCH(State, state);
    QFETCH(int, number);
    QFETCH(int, length);

    FrameCursor cursor(input);
    const int actual = cursor.takeNumberText();
    QCOMPARE(cursor.state(), state);
    QCOMPARE(actual, number);
    if (state == State::Fits)
        QCOMPARE(cursor.position(), length);
}

void tst_FrameDecoder::sentIsUnderstood_data()
{
    QTest::addColumn<int>("modelIndex");
    QTest::addColumn<int>("commandIndex");

    for (int i = 0; i < allModels().size(); ++i) {
        const DeviceModel &model = allModels().at(i);
        for (int k = 0; k < model.commands.size(); ++k) {
            const CommandEntry &entry = model.commands.at(k);
            QTest::addRow("%s: %s, id %u", qPrintable(model.name), qPrintable(entry.label),
                          entry.commandId)
                << i << k;
        }
    }
}

void tst_FrameDecoder::sentIsUnderstood()
{
    QFETCH(int, modelIndex);
    QFETCH(int, commandIndex);
    const DeviceModel &model = allModels().at(modelIndex);
    const CommandEntry &entry = model.commands.at(commandIndex);

    const QList<SentFrame> frames = Console(model, entry).frames();
    QVERIFY(frames.size() > model.maxPlayerId - model.minPlayerId);
    for (const SentFrame &sent : frames) {
        FrameDecoder decoder(model);
        const QList<DecodedFrame> received = decoder.feed(sent.bytes);
        QCOMPARE(pieceTexts(received).join(u'\n'),
                 hexBytesText(sent.bytes) + " = "_L1 + commandText(sent.command));
        QVERIFY(received.constFirst().command->entry == entry);
        QCOMPARE(decoder.hasBegunFrame(), false);
    }
}

void tst_FrameDecoder::pieces_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("fed");
    QTest::addColumn<QString>("flushed");

    const auto row = [](const char *name, const QString &model, const char *input, const char *fed,
                        const char *flushed = "") {
        QTest::newRow(name) << model << bytes(input) << QString::fromLatin1(fed)
                            << QString::fromLatin1(flushed);
    };
    const QString deck = u"Tempo Deck"_s;
    row("no byte", deck, "", "");
    row("one frame", deck, "85 02 01", "Play: 85 02 01");
    row("two frames", deck, "85 02 01 86 02 02", "Play: 85 02 01 / Stop: 86 02 02");
    row("a frame and the beginning of another", deck, "85 02 01 86 02", "Play: 85 02 01",
        "-: 86 02");
    row("a frame that never ends", deck, "85", "", "-: 85");
    row("lowest and highest player", deck, "80 02 01 FF 02 01", "Play: 80 02 01 / Play: FF 02 01");
    row("without a player", deck, "02 01 7F 02 01", "-: 02 01 7F 02 01");
    row("a frame within one that broke off behind the player", deck, "85 86 02 01",
        "-: 85 / Play: 86 02 01");
    row("a frame within one that broke off behind the code", deck, "85 02 86 02 01",
        "-: 85 02 / Play: 86 02 01");
    row("a folder number with the top bit begins a frame", deck, "85 01 86 02 01",
        "-: 85 01 / Play: 86 02 01");
    row("a volume with the top bit begins a frame", deck, "85 03 C0 03 05",
        "-: 85 03 / Volume: C0 03 05");
    row("many players", deck, "85 85 85 85 02 01", "-: 85 85 85 / Play: 85 02 01");
    row("a code between two folder banks", deck, "85 12 05 85 02 01",
        "-: 85 12 05 / Play: 85 02 01");
    row("a code beyond the eighth folder bank", deck, "85 72 05", "-: 85 72 05");
    row("the byte 81 is a player, no ninth folder bank", deck, "85 81 02 01",
        "-: 85 / Play: 81 02 01");
    row("junk before, between and behind", deck, "00 0A 85 02 01 7F 7F 85 02 02 2A",
        "-: 00 0A / Play: 85 02 01 / -: 7F 7F / Stop: 85 02 02 / -: 2A");

    const QString video = u"Vistar Show - SV500 (Serial)"_s;
    row("a clock that broke off", video, "85 0C 09 05 85 0C 09 05 1E",
        "-: 85 0C 09 05 / Set time: 85 0C 09 05 1E");
    row("a language that broke off", video, "85 1D 66 72 85 1D 66 72 65",
        "-: 85 1D 66 72 / ISO639: 85 1D 66 72 65");
    row("a language in capitals", video, "85 1D 46 52 45", "-: 85 1D 46 52 45");
    row("a language of two letters", video, "85 1D 66 72 00 85 02 01",
        "-: 85 1D 66 72 00 / Play: 85 02 01");
    row("the placeholder of the language", video, "85 1D 00", "-: 85 1D 00");
    row("a language not yet complete", video, "85 1D 66 72", "", "-: 85 1D 66 72");
    row("a second that has not come", video, "85 3C 06 4D 2F 54", "", "-: 85 3C 06 4D 2F 54");
    row("given up, the bytes behind are tried again", video, "85 4C 1A 03 85 02 01",
        "-: 85 4C 1A 03 / Play: 85 02 01");

    const QString bridge = u"Lumo Bridge"_s;
    row("output contacts may have the top bit", bridge, "85 19 85 00 85 09 40",
        "Relay: 85 19 85 00 / Close output contact 1: 85 09 40");
    row("the second byte of the output contacts is 0", bridge, "85 19 85 01", "-: 85 19 85 01");

    const QString sonet = u"Sonet A (Serial)"_s;
    row("no player here", sonet, "20 FF FF FF", "Play: 20 FF FF FF");
    row("a player is junk", sonet, "85 20 FF FF FF", "-: 85 / Play: 20 FF FF FF");
    row("fillers must be there", sonet, "20 FF FF 20 FF FF FF", "-: 20 FF FF / Play: 20 FF FF FF");
    row("mute and unmute differ in the middle", sonet, "33 00 01 00 33 00 00 00",
        "Mute: 33 00 01 00 / Unmute: 33 00 00 00");
    row("neither mute nor unmute", sonet, "33 FF 01 FF", "-: 33 FF 01 FF");
    row("a folder 0", sonet, "00 00 00 FF", "-: 00", "-: 00 00 FF");
    row("a SPOT option 0", sonet, "12 00 01 00", "-: 12", "-: 00 01 00");
    row("the volume's high byte is 0", sonet, "30 01 28 00 20 FF FF FF",
        "-: 30 01 28 00 / Play: 20 FF FF FF");
    row("a volume not yet complete", sonet, "30 00 28", "", "-: 30 00 28");

    const QString lite = u"Sonet A Lite (TCP/IP)"_s;
    row("a text message", lite, "04 00 00 00 63 6D 64 00 39 31 00 30 00 30 00",
        "Alternate: Aux input: 04 00 00 00 63 6D 64 00 39 31 00 30 00 30 00");
    row("an empty first argument", lite, "04 00 00 00 63 6D 64 00 38 00 00 30 00",
        "PLAYLIST folder (Random): 04 00 00 00 63 6D 64 00 38 00 00 30 00");
    row("play without its arguments", lite, "04 00 00 00 63 6D 64 00 33 32 00", "",
        "-: 04 00 00 00 63 6D 64 00 33 32 00");
    row("a code alone", lite, "04", "", "-: 04");
    row("the code of another verb", lite, "02 00 00 00 63 6D 64 00", "-: 02 00 00 00 63 6D 64 00");
    row("a message within one that broke off", lite,
        "04 00 00 00 63 6D 02 00 00 00 67 65 74 00 53 6F 75 72 63 65 00",
        "-: 04 00 00 00 63 6D / Source: 02 00 00 00 67 65 74 00 53 6F 75 72 63 65 00");
    row("web radio 1 is not web radio 10", lite,
        "02 00 00 00 67 65 74 00 57 52 61 64 69 6F 31 4E 61 6D 65 00 "
        "02 00 00 00 67 65 74 00 57 52 61 64 69 6F 31 30 4E 61 6D 65 00",
        "Webradio 1 name: 02 00 00 00 67 65 74 00 57 52 61 64 69 6F 31 4E 61 6D 65 00 / "
        "Webradio 10 name: 02 00 00 00 67 65 74 00 57 52 61 64 69 6F 31 30 4E 61 6D 65 00");
}

void tst_FrameDecoder::pieces()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, input);
    QFETCH(QString, fed);
    QFETCH(QString, flushed);

    FrameDecoder decoder(modelOfName(model));
    QCOMPARE(outline(decoder.feed(input)), fed);
    QCOMPARE(decoder.hasBegunFrame(), !flushed.isEmpty());
    QCOMPARE(outline(decoder.flush()), flushed);
    QCOMPARE(decoder.hasBegunFrame(), false);
}

void tst_FrameDecoder::values_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("value");

    const auto row
        = [](const char *name, const QString &model, const char *input, const char *value) {
              QTest::newRow(name) << model << bytes(input) << QString::fromLatin1(value);
          };
    const QString deck = u"Tempo Deck"_s;
    row("folder 0", deck, "85 01 00", "5 0");
    row("folder 200", deck, "85 11 48", "5 200");
    row("folder 999", deck, "85 71 67", "5 999");
    row("folder 1000", deck, "85 71 68", "5 1000 out of range");
    row("folder 128 with one bank", u"HV0xx (legacy)"_s, "80 11 00", "0 128 out of range");
    row("folder 256 with two banks", u"HV1xx (Serial) (legacy)"_s, "80 21 00",
        "0 256 out of range");
    row("volume 64", deck, "FF 03 40", "127 64");
    row("volume 65", deck, "FF 03 41", "127 65 out of range");
    row("volume 13 of HV0xx", u"HV0xx (legacy)"_s, "85 03 0D", "5 13");
    row("volume 14 of HV0xx", u"HV0xx (legacy)"_s, "85 03 0E", "5 14 out of range");
    row("change to ID 0", u"Ampra One"_s, "85 7F 00", "5 0 out of range");
    row("change to ID 1", u"Ampra One"_s, "85 7F 01", "5 1");
    row("change to ID 127", u"Ampra One"_s, "80 7F 7F", "0 127");

    const QString video = u"Vistar Home - HV4xx (TCP/IP)"_s;
    row("time", video, "80 0C 17 3B 3B", "0 0 23:59:59");
    row("hour 24", video, "80 0C 18 00 00", "0 0 out of range");
    row("minute 60", video, "80 0C 00 3C 00", "0 0 out of range");
    row("second 60", video, "80 0C 00 00 3C", "0 0 out of range");
    row("date", video, "80 1C 1A 03 07", "0 0 2026-03-07");
    row("29 February", video, "80 1C 1C 02 1D", "0 0 2028-02-29");
    row("29 February of a common year", video, "80 1C 1A 02 1D", "0 0 out of range");
    row("month 0", video, "80 1C 1A 00 07", "0 0 out of range");
    row("month 13", video, "80 1C 1A 0D 07", "0 0 out of range");
    row("day 0", video, "80 1C 1A 03 00", "0 0 out of range");
    row("31 April", video, "80 1C 1A 04 1F", "0 0 out of range");
    row("right date, wrong time", video, "80 2C 1A 03 07 18 00 00", "0 0 2026-03-07 out of range");
    row("wrong date, right time", video, "80 2C 1A 0D 07 09 05 1E", "0 0 09:05:30 out of range");
    row("UTC", video, "80 4C 1A 03 07 09 05 1E", "0 0 2026-03-07 09:05:30");
    row("seconds since 1970", video, "80 3C 06 2A 4F 62 00", "0 0 2023-11-14 22:13:20");
    row("language", video, "80 1D 66 72 65", "0 0 fre");
    row("language of ISO639-3 alone", video, "80 1D 68 62 73", "0 0 hbs");
    row("unknown language", video, "80 1D 71 71 71", "0 0 qqq out of range");
    row("language aaa", video, "80 1D 61 61 61", "0 0 aaa out of range");
    row("language zzz", video, "80 1D 7A 7A 7A", "0 0 zzz out of range");
    row("subtitle index 127", video, "80 2D 7F", "0 127");

    const QString sonet = u"Sonet A (Serial)"_s;
    row("serial volume 64", sonet, "30 00 40 00", "-1 64");
    row("serial volume 65", sonet, "30 00 41 00", "-1 65 out of range");
    row("serial volume 255", sonet, "30 00 FF 00", "-1 255 out of range");
    row("serial folder", sonet, "08 00 0C FF", "-1 12");
    row("serial folder 999", sonet, "08 03 E7 FF", "-1 999");
    row("serial SPOT folder", sonet, "12 01 2C 02", "-1 300 option 2");
    row("serial SPOT option 255", sonet, "14 00 01 FF", "-1 1 option 255");
    row("serial web radio 10", sonet, "40 00 0A FF", "-1 10");

    const QString lite = u"Sonet A Lite (TCP/IP)"_s;
    row("text volume -24", lite,
        "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 32 34 00",
        "-1 40");
    row("text volume 0", lite,
        "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 30 00",
        "-1 64");
    row("text volume -65", lite,
        "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 2D 36 35 00",
        "-1 -1 out of range");
    row("text volume 9999", lite,
        "03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 00 39 39 39 39 00",
        "-1 10063 out of range");
    row("text folder", lite, "04 00 00 00 63 6D 64 00 38 00 31 32 00 30 00", "-1 12");
    row("text folder 1000", lite, "04 00 00 00 63 6D 64 00 38 00 31 30 30 30 00 30 00",
        "-1 1000 out of range");
    row("text folder with leading zeros", lite, "04 00 00 00 63 6D 64 00 38 00 30 31 32 00 30 00",
        "-1 12");
    row("text web radio 11", lite, "04 00 00 00 63 6D 64 00 36 34 00 31 31 00 30 00",
        "-1 11 out of range");
}

void tst_FrameDecoder::values()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, input);
    QFETCH(QString, value);

    FrameDecoder decoder(modelOfName(model));
    const QList<DecodedFrame> frames = decoder.feed(input);
    QCOMPARE(frames.size(), 1);
    QCOMPARE(hexBytesText(frames.constFirst().bytes), hexBytesText(input));
    QVERIFY(frames.constFirst().command);
    const DecodedCommand &command = *frames.constFirst().command;
    QStringList actual{QString::number(command.playerId), QString::number(command.number)};
    if (command.option != 0)
        actual.append(u"option %1"_s.arg(command.option));
    if (!command.language.isEmpty())
        actual.append(command.language);
    if (command.date.isValid())
        actual.append(command.date.toString(Qt::ISODate));
    if (command.time.isValid())
        actual.append(command.time.toString(Qt::ISODate));
    if (!command.inRange)
        actual.append(u"out of range"_s);
    QCOMPARE(actual.join(u' '), value);
}

namespace {

/// A row for every model.
void addModelRows()
{
    QTest::addColumn<QString>("model");
    for (const DeviceModel &model : allModels())
        QTest::addRow("%s", qPrintable(model.name)) << model.name;
}

} // namespace

void tst_FrameDecoder::splitAtEveryByte_data()
{
    addModelRows();
}

void tst_FrameDecoder::splitAtEveryByte()
{
    QFETCH(QString, model);
    const DeviceModel device = modelOfName(model);

    for (const CommandEntry &entry : device.commands) {
        const QByteArray sent = Console(device, entry).frames().constLast().bytes;
        const QString whole = entry.label + ": "_L1 + hexBytesText(sent);
        for (qsizetype cut = 1; cut < sent.size(); ++cut) {
            FrameDecoder decoder(device);
            QCOMPARE(outline(decoder.feed(sent.first(cut))), QString());
            QVERIFY2(decoder.hasBegunFrame(), qPrintable(whole));
            QCOMPARE(outline(decoder.feed({})), QString());
            QVERIFY2(decoder.hasBegunFrame(), qPrintable(whole));
            QCOMPARE(outline(decoder.feed(sent.sliced(cut))), whole);
            QVERIFY2(!decoder.hasBegunFrame(), qPrintable(whole));
        }

        FrameDecoder decoder(device);
        const QByteArray beginning = sent.first(sent.size() - 1);
        for (const char byte : beginning)
            QCOMPARE(outline(decoder.feed(QByteArray(1, byte))), QString());
        QCOMPARE(outline(decoder.feed(sent.last(1))), whole);

        QCOMPARE(outline(decoder.feed(sent + sent + sent)),
                 QStringList({whole, whole, whole}).join(u" / "_s));
    }
}

void tst_FrameDecoder::streamOfFrames_data()
{
    addModelRows();
}

void tst_FrameDecoder::streamOfFrames()
{
    QFETCH(QString, model);
    const DeviceModel device = modelOfName(model);
    constexpr quint32 seed = 20260307;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);

    const QList<SentFrame> frames = framesOf(device);
    for (const int longestPiece : {1, 10, 4000}) {
        QByteArray stream;
        QStringList expected;
        for (int i = 0; i < 500; ++i) {
            const SentFrame &sent = frames.at(random.bounded(static_cast<int>(frames.size())));
            stream += sent.bytes;
            expected.append(hexBytesText(sent.bytes) + " = "_L1 + commandText(sent.command));
        }
        Feeder feeder(device);
        feeder.keepCommands();
        feeder.feedInPieces(stream, longestPiece, random);
        QCOMPARE(feeder.complaint(), QString());
        QCOMPARE(pieceTexts(feeder.takeCommands()), expected);
        QCOMPARE(feeder.strayBytes(), 0);
        feeder.flush();
        QCOMPARE(feeder.complaint(), QString());
    }
}

void tst_FrameDecoder::junkAroundFrames_data()
{
    addModelRows();
}

void tst_FrameDecoder::junkAroundFrames()
{
    QFETCH(QString, model);
    const DeviceModel device = modelOfName(model);
    constexpr quint32 seed = 14111967;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);

    const QList<SentFrame> frames = framesOf(device);
    const QByteArray alphabet = junkAlphabet(device);
    for (const int longestPiece : {1, 300, 100000}) {
        QByteArray stream;
        QStringList expected;
        qsizetype junkBytes = 0;
        for (int i = 0; i < 300; ++i) {
            const QByteArray junk = randomBytes(random.bounded(200), alphabet, random);
            const SentFrame &sent = frames.at(random.bounded(static_cast<int>(frames.size())));
            stream += junk + sent.bytes;
            junkBytes += junk.size();
            expected.append(hexBytesText(sent.bytes) + " = "_L1 + commandText(sent.command));
        }
        const QByteArray tail = randomBytes(100, alphabet, random);
        Feeder feeder(device);
        feeder.keepCommands();
        feeder.feedInPieces(stream + tail, longestPiece, random);
        QCOMPARE(feeder.complaint(), QString());
        QCOMPARE(pieceTexts(feeder.takeCommands()), expected);
        QCOMPARE(feeder.strayBytes(), junkBytes + tail.size());
    }
}

void tst_FrameDecoder::longestStrayPieceIs64()
{
    FrameDecoder decoder(modelOfName(u"Tempo Deck"_s));
    const auto sizes = [&decoder](qsizetype size) {
        QList<qsizetype> result;
        for (const DecodedFrame &frame : decoder.feed(QByteArray(size, '\x05')))
            result.append(frame.bytes.size());
        return result;
    };
    QCOMPARE(sizes(1), QList<qsizetype>({1}));
    QCOMPARE(sizes(63), QList<qsizetype>({63}));
    QCOMPARE(sizes(64), QList<qsizetype>({64}));
    QCOMPARE(sizes(65), QList<qsizetype>({64, 1}));
    QCOMPARE(sizes(130), QList<qsizetype>({64, 64, 2}));
}

void tst_FrameDecoder::keepsNoMoreThanABeginning()
{
    FrameDecoder decoder(modelOfName(u"Tempo Deck"_s));
    decoder.feed("\x85\x02\x01"_ba);
    const qsizetype before = allocatedBytes();

    decoder.feed(QByteArray(1'048'576, '\x05') + "\x85\x02"_ba);
    QVERIFY(decoder.hasBegunFrame());
    const qsizetype growth = allocatedBytes() - before;
    QVERIFY2(growth < bufferRoom, qPrintable(QString::number(growth)));
}

void tst_FrameDecoder::neverEndingFrames_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("unit");

    const QString video = u"Vistar Show - SV500 (Serial)"_s;
    const QString sonet = u"Sonet A (Serial)"_s;
    const QString lite = u"Sonet A Lite (TCP/IP)"_s;
    const QByteArray folder = bytes("04 00 00 00 63 6D 64 00 38 00");
    QTest::newRow("players without end") << video << QByteArray() << bytes("85");
    QTest::newRow("clock without end") << video << bytes("85 4C") << bytes("7F");
    QTest::newRow("language without end") << video << bytes("85 1D") << bytes("61");
    QTest::newRow("serial fillers without end") << sonet << bytes("20") << bytes("FF");
    QTest::newRow("serial zeros without end") << sonet << bytes("30") << bytes("00");
    QTest::newRow("codes without end") << lite << QByteArray() << bytes("04");
    QTest::newRow("text zeros without end") << lite << bytes("04") << bytes("00");
    QTest::newRow("digits without end") << lite << folder << bytes("31");
    QTest::newRow("minus signs without end") << lite << folder << bytes("2D");
    QTest::newRow("leading zeros without end") << lite << folder << bytes("30");
    QTest::newRow("messages that all lack their end") << lite << QByteArray() << folder;
    QTest::newRow("names without end")
        << lite << bytes("02 00 00 00 67 65 74 00 53 6F 75 72 63 65") << bytes("65");
}

void tst_FrameDecoder::neverEndingFrames()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, unit);
    const DeviceModel device = modelOfName(model);
    QRandomGenerator random(4);

    const QByteArray stream = start + unit.repeated(5000);
    for (const int longestPiece : {1, 100, 1000000}) {
        Feeder feeder(device);
        feeder.feedInPieces(stream, longestPiece, random);
        feeder.flush();
        QCOMPARE(feeder.complaint(), QString());
    }
}

void tst_FrameDecoder::noise_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("size");
    QTest::addColumn<quint32>("seed");

    quint32 seed = 19700101;
    const QStringList families{u"Vistar Show - SV500 (Serial)"_s, u"Sonet A (Serial)"_s,
                               u"Sonet A Lite (TCP/IP)"_s};
    for (const DeviceModel &model : allModels()) {
        const int size = families.contains(model.name) ? 1000000 : 40000;
        QTest::addRow("%s, %d bytes", qPrintable(model.name), size) << model.name << size << ++seed;
    }
}

void tst_FrameDecoder::noise()
{
    QFETCH(QString, model);
    QFETCH(int, size);
    QFETCH(quint32, seed);
    const DeviceModel device = modelOfName(model);
    QRandomGenerator random(seed);

    const QList<SentFrame> frames = framesOf(device);
    const QByteArray alphabet = frameAlphabet(frames);
    const QByteArray valid
        = Console(device, device.commands.constFirst()).frames().constLast().bytes;
    const int pieceLengths[] = {1, 10, 300, 5000};
    QList<QByteArray> noise;
    for (int round = 0; round < 12; ++round) {
        const qsizetype roundSize = size / 12 + 1;
        if (round % 3 == 0)
            noise.append(randomBytes(roundSize, {}, random));
        else if (round % 3 == 1)
            noise.append(randomBytes(roundSize, alphabet, random));
        else
            noise.append(randomCuts(roundSize, frames, random));
    }

    Feeder feeder(device);
    feeder.keepCommands();
    QElapsedTimer timer;
    qint64 milliseconds = 0;
    const auto feedRounds = [&](qsizetype rounds) {
        for (qsizetype round = 0; round < rounds; ++round) {
            timer.start();
            feeder.feedInPieces(noise.at(round), pieceLengths[round % 4], random);
            feeder.flush();
            milliseconds += timer.elapsed();
            QCOMPARE(feeder.complaint(), QString());
            feeder.takeCommands();

            feeder.feed(valid);
            QCOMPARE(outline(feeder.takeCommands()),
                     device.commands.constFirst().label + ": "_L1 + hexBytesText(valid));
            QCOMPARE(feeder.complaint(), QString());
        }
    };
    feedRounds(4);
    if (QTest::currentTestFailed())
        return;
    const qsizetype allocated = allocatedBytes();
    milliseconds = 0;
    feedRounds(noise.size());
    if (QTest::currentTestFailed())
        return;
    const qsizetype growth = allocatedBytes() - allocated;
    qInfo("seed %u: %d bytes in %d ms, %d frames by chance, memory grew by %d bytes", seed, size,
          static_cast<int>(milliseconds), static_cast<int>(feeder.commandCount()),
          static_cast<int>(growth));
    QVERIFY2(growth < bufferRoom, qPrintable(QString::number(growth)));
}

TESSALY_TEST(tst_FrameDecoder)
#include "tst_framedecoder.moc"
