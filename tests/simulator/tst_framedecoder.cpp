// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandvalues.h"
#include "protocol/bytestext.h"
#include "protocol/chosencommand.h"
#include "simulator/framecursor.h"
#include "simulator/framedecoder.h"
#include "tests/support/builtmodels.h"
#include "tests/support/sheetrows.h"
#include "tests/support/testregistry.h"
#include "ui/subtitlecodes.h"

#include <QRandomGenerator>

#include <malloc.h>
#include <time.h>

#ifdef TESSALY_SANITIZED
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

/// What can be chosen for a command, and what the device is to understand then: everything but the
/// player.
struct Choice
{
    ChosenCommand chosen;
    DecodedCommand expected;
    QByteArray zone = zones[0]; ///< of the computer
    QDateTime now = moments().constFirst();
};

QList<Choice> clockChoices(const CommandEntry &entry)
{
    const quint32 id = entry.commandId;
    const bool isUtc = id == CommandId::SetUtcEpoch || id == CommandId::SetUtcFull;
    QList<Choice> choices;
    for (const QByteArray &zone : zones) {
        setZone(zone);
        for (const QDateTime &now : moments()) {
            Choice choice{{.entry = entry}, {}, zone, now};
            const QDateTime told = isUtc ? now : now.toLocalTime();
            if (id != CommandId::SetTime)
                choice.expected.date = told.date();
            if (id != CommandId::SetDate)
                choice.expected.time = told.time();
            choices.append(choice);
        }
    }
    return choices;
}

QList<Choice> numberChoices(const DeviceModel &model, const CommandEntry &entry)
{
    const NumberRange numbers = valueRange(model, entry);
    const bool hasOption = entry.commandId == CommandId::SourceSpotReset;
    const NumberRange options = hasOption ? byteRange(entry, 2) : NumberRange{0, 0};
    QList<Choice> choices;
    const auto choose = [&](int number, int option) {
        Choice choice{{.entry = entry, .number = number, .option = option}, {}};
        choice.expected.number = number;
        choice.expected.option = option;
        choices.append(choice);
    };
    for (int number = numbers.first; number <= numbers.last; ++number)
        choose(number, options.first);
    for (int option = options.first + 1; option <= options.last; ++option)
        choose(numbers.last, option);
    return choices;
}

/// Every value of a command.
QList<Choice> choicesOf(const DeviceModel &model, const CommandEntry &entry)
{
    if (takesNumber(entry))
        return numberChoices(model, entry);
    QList<Choice> choices;
    switch (entry.commandId) {
    case CommandId::SetTime:
    case CommandId::SetDate:
    case CommandId::SetDateTime:
    case CommandId::SetUtcEpoch:
    case CommandId::SetUtcFull:
        return clockChoices(entry);
    case CommandId::SubtitlesByLanguage:
        for (const QString &type :
             {subtitleTypeIso6392B, subtitleTypeIso6392T, subtitleTypeIso6393}) {
            for (const QString &language : subtitleValues(type)) {
                choices.append({{.entry = entry, .language = language}, {}});
                choices.last().expected.language = language;
            }
        }
        return choices;
    case CommandId::Relay:
        for (int contacts = 0; contacts <= 255; ++contacts) {
            choices.append(
                {{.entry = entry, .closed = static_cast<unsigned long long>(contacts)}, {}});
            choices.last().expected.number = contacts;
        }
        return choices;
    default:
        return {{{.entry = entry}, {}}};
    }
}

/// Every value of the command, to every player in turn, and the first one to all of them.
QList<SentFrame> framesOf(const DeviceModel &model, const CommandEntry &entry)
{
    QList<SentFrame> frames;
    const auto send = [&](const Choice &choice, int player) {
        setZone(choice.zone);
        SentFrame frame{frameOf(model, player, choice.chosen, choice.now), choice.expected};
        frame.command.entry = entry;
        frame.command.playerId = model.protocol == ProtocolKind::Classic ? player : -1;
        frames.append(frame);
    };
    const QList<Choice> choices = choicesOf(model, entry);
    int player = model.minPlayerId;
    for (const Choice &choice : choices) {
        send(choice, player);
        player = player < model.maxPlayerId ? player + 1 : model.minPlayerId;
    }
    for (player = model.minPlayerId; player <= model.maxPlayerId; ++player)
        send(choices.constFirst(), player);
    return frames;
}

QList<SentFrame> framesOf(const DeviceModel &model)
{
    QList<SentFrame> frames;
    for (const CommandEntry &entry : model.commands)
        frames += framesOf(model, entry);
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
#ifdef TESSALY_SANITIZED
    return static_cast<qsizetype>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<qsizetype>(info.uordblks) + static_cast<qsizetype>(info.hblkhd);
#endif
}

/// Room that buffers, here and in the decoder, may keep for what comes next.
constexpr qsizetype bufferRoom = 65'536;

constexpr qsizetype longestStrayPiece = 64;
/// More than the longest frame of any model.
constexpr qsizetype longestFrame = 64;

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
    void cursorStopsAtAFault();
    void numberTexts_data();
    void numberTexts();

    void sentIsUnderstood_data() { addAllModelRows(); }
    void sentIsUnderstood();

    void pieces_data();
    void pieces();

    void splitAtEveryByte_data() { addAllModelRows(); }
    void splitAtEveryByte();
    void streamOfFrames_data() { addAllModelRows(); }
    void streamOfFrames();
    void junkAroundFrames_data() { addAllModelRows(); }
    void junkAroundFrames();
    void longestStrayPieceIs64();
    void keepsNoMoreThanABeginning();
    void neverEndingFrames_data();
    void neverEndingFrames();
    void noise_data() { addAllModelRows(); }
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

void tst_FrameDecoder::cursorStopsAtAFault()
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
    row("a minus sign after a digit", {"1-\0", 3}, State::Wrong, 0);
    row("a plus sign", {"+1\0", 3}, State::Wrong, 0);
    row("a space", {" 1\0", 3}, State::Wrong, 0);
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

void tst_FrameDecoder::sentIsUnderstood()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel model = builtModel(sheet.name);
    QCOMPARE(model.commands.size(), sheet.commands.size());
    for (const CommandEntry &entry : model.commands) {
        const QList<SentFrame> frames = framesOf(model, entry);
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
    row("a frame within one that broke off after the player", deck, "85 86 02 01",
        "-: 85 / Play: 86 02 01");
    row("a frame within one that broke off after the code", deck, "85 02 86 02 01",
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
    row("junk before, between and after", deck, "00 0A 85 02 01 7F 7F 85 02 02 2A",
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
    row("given up, the bytes that follow are tried again", video, "85 4C 1A 03 85 02 01",
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

    FrameDecoder decoder(builtModel(model));
    QCOMPARE(outline(decoder.feed(input)), fed);
    QCOMPARE(decoder.hasBegunFrame(), !flushed.isEmpty());
    QCOMPARE(outline(decoder.flush()), flushed);
    QCOMPARE(decoder.hasBegunFrame(), false);
}

void tst_FrameDecoder::splitAtEveryByte()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel device = builtModel(sheet.name);

    for (const CommandEntry &entry : device.commands) {
        const QByteArray sent = framesOf(device, entry).constLast().bytes;
        const QString expected = entry.label + ": "_L1 + hexBytesText(sent);
        for (qsizetype cut = 1; cut < sent.size(); ++cut) {
            FrameDecoder decoder(device);
            QCOMPARE(outline(decoder.feed(sent.first(cut))), QString());
            QVERIFY2(decoder.hasBegunFrame(), qPrintable(expected));
            QCOMPARE(outline(decoder.feed({})), QString());
            QVERIFY2(decoder.hasBegunFrame(), qPrintable(expected));
            QCOMPARE(outline(decoder.feed(sent.sliced(cut))), expected);
            QVERIFY2(!decoder.hasBegunFrame(), qPrintable(expected));
        }

        FrameDecoder decoder(device);
        const QByteArray beginning = sent.first(sent.size() - 1);
        for (const char byte : beginning)
            QCOMPARE(outline(decoder.feed(QByteArray(1, byte))), QString());
        QCOMPARE(outline(decoder.feed(sent.last(1))), expected);

        QCOMPARE(outline(decoder.feed(sent + sent + sent)),
                 QStringList({expected, expected, expected}).join(u" / "_s));
    }
}

void tst_FrameDecoder::streamOfFrames()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel device = builtModel(sheet.name);
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

void tst_FrameDecoder::junkAroundFrames()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel device = builtModel(sheet.name);
    constexpr quint32 seed = 14111967;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);

    const QList<SentFrame> frames = framesOf(device);
    const QByteArray alphabet = junkAlphabet(device);
    for (const int longestPiece : {1, 300, 100000}) {
        QByteArray stream;
        QStringList expected;
        qsizetype junkBytes = 0;
        for (int i = 0; i < 100; ++i) {
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
    FrameDecoder decoder(builtModel(u"Tempo Deck"_s));
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
    FrameDecoder decoder(builtModel(u"Tempo Deck"_s));
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
    const DeviceModel device = builtModel(model);
    QRandomGenerator random(4);

    const QByteArray stream = start + unit.repeated(2000);
    for (const int longestPiece : {1, 100, 1000000}) {
        Feeder feeder(device);
        feeder.feedInPieces(stream, longestPiece, random);
        feeder.flush();
        QCOMPARE(feeder.complaint(), QString());
    }
}

void tst_FrameDecoder::noise()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel device = builtModel(sheet.name);
    constexpr quint32 seed = 19700101;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);

    constexpr qsizetype roundSize = 3000;
    constexpr int pieceLengths[] = {1, 10, 300, 5000};
    const QList<SentFrame> frames = framesOf(device);
    const QByteArray alphabet = frameAlphabet(frames);
    const CommandEntry &first = device.commands.constFirst();
    const QByteArray valid = framesOf(device, first).constLast().bytes;
    Feeder feeder(device);
    feeder.keepCommands();
    for (const int longestPiece : pieceLengths) {
        for (const QByteArray &noise :
             {randomBytes(roundSize, {}, random), randomBytes(roundSize, alphabet, random),
              randomCuts(roundSize, frames, random)}) {
            feeder.feedInPieces(noise, longestPiece, random);
            feeder.flush();
            QCOMPARE(feeder.complaint(), QString());
            feeder.takeCommands();

            feeder.feed(valid);
            QCOMPARE(outline(feeder.takeCommands()), first.label + ": "_L1 + hexBytesText(valid));
            QCOMPARE(feeder.complaint(), QString());
        }
    }
}

TESSALY_TEST(tst_FrameDecoder)
#include "tst_framedecoder.moc"
