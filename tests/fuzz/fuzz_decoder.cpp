// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/commandvalues.h"
#include "protocol/chosencommand.h"
#include "simulator/framedecoder.h"
#include "simulator/framemeaning.h"
#include "simulator/simulateddevice.h"
#include "tests/fuzz/fuzztarget.h"
#include "tests/fuzz/modelinput.h"
#include "tests/support/builtmodels.h"

#include <QTimeZone>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestStrayPiece = 64;
/// More than the longest frame of all models.
constexpr qsizetype longestFrame = 64;
constexpr int playerId = 5;
const QDateTime now(QDate(2026, 3, 7), QTime(14, 5), QTimeZone::utc());

const DeviceCatalogue &allModels()
{
    static const DeviceCatalogue models = buildDeviceCatalogue() + unofferedModels();
    return models;
}

struct KnownFrame
{
    QByteArray bytes;
    QString label;
};

/// A frame that the model understands: its first command without a value, or its first one at all.
KnownFrame knownFrame(const DeviceModel &model)
{
    const auto fixed = std::ranges::find_if_not(model.commands, takesNumber);
    ChosenCommand command{fixed != model.commands.cend() ? *fixed : model.commands.constFirst()};
    command.number = valueRange(model, command.entry).first;
    command.language = u"fre"_s;
    return {frameOf(model, playerId, command, now), command.entry.label};
}

bool endsWith(const QList<DecodedFrame> &frames, const KnownFrame &known)
{
    return !frames.isEmpty() && frames.last().bytes == known.bytes && frames.last().command
           && frames.last().command->entry.label == known.label;
}

qsizetype lengthOf(const QList<DecodedFrame> &frames)
{
    qsizetype length = 0;
    for (const DecodedFrame &frame : frames)
        length += frame.bytes.size();
    return length;
}

/// The bytes of the frames, and those between them. How the latter are cut depends on how they
/// arrive; what is a frame does not.
QByteArrayList pieces(const QList<DecodedFrame> &frames)
{
    QByteArrayList result;
    bool wasStray = false;
    for (const DecodedFrame &frame : frames) {
        if (!frame.command && wasStray)
            result.last() += frame.bytes;
        else
            result.append(frame.bytes);
        wasStray = !frame.command;
    }
    return result;
}

/// The simulated device says and does something sensible with it.
void checkUse(const DeviceModel &model, SimulatedDevice &device, const DecodedFrame &frame)
{
    const QString line = frameLine(now, model, device.playerId(), frame);
    expect(std::none_of(line.begin(), line.end(), [](QChar c) { return c.unicode() < 0x20; }),
           "a frame is one line of the log");
    if (!frame.command)
        return;
    const QByteArray answer = device.obey(*frame.command, now);
    expect(answer.endsWith("\r\n"_ba) && answer.count('\n') == 1, "an answer is one line");
}

} // namespace

/// The first line names the model; what follows arrives at the device.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto [model, bytes] = modelInput(allModels(), data, size);

    FrameDecoder decoder(model);
    QList<DecodedFrame> frames;
    qsizetype given = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const QList<DecodedFrame> more = decoder.feed(bytes.sliced(i, 1));
        frames += more;
        given += lengthOf(more);
        expect(i + 1 - given < longestFrame, "no more is kept than the beginning of a frame");
        expect(decoder.hasBegunFrame() == (given < i + 1), "what is kept is a frame that began");
    }
    frames += decoder.flush();
    expect(!decoder.hasBegunFrame(), "a silent line leaves nothing behind");

    QByteArray joined;
    SimulatedDevice device(model, playerId,
                           QDateTime(QDate(2026, 3, 7), QTime(14, 0), QTimeZone::utc()));
    for (const DecodedFrame &frame : std::as_const(frames)) {
        joined += frame.bytes;
        checkUse(model, device, frame);
    }
    expect(joined == bytes, "every byte is given back once, in its order");

    FrameDecoder atOnce(model);
    QList<DecodedFrame> sameFrames = atOnce.feed(bytes);
    sameFrames += atOnce.flush();
    for (const DecodedFrame &frame : std::as_const(sameFrames)) {
        expect(!frame.bytes.isEmpty(), "a piece has bytes");
        expect(frame.bytes.size() <= (frame.command ? longestFrame : longestStrayPiece),
               "a piece is short");
    }
    expect(pieces(sameFrames) == pieces(frames), "one arrival is read like many");

    const KnownFrame known = knownFrame(model);
    expect(endsWith(decoder.feed(known.bytes), known),
           "a frame after noise and silence is understood");
    // Without a silence, the beginning of a frame may take the next one with it.
    FrameDecoder busy(model);
    busy.feed(bytes);
    expect(endsWith(busy.feed(known.bytes + known.bytes), known),
           "the second frame after noise is understood");
    return 0;
}
