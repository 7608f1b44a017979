// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/framedecoder.h"

#include "simulator/commandreader.h"

namespace {

constexpr qsizetype longestStrayPiece = 64;

using State = FrameCursor::State;

/// The reading of the entry that fits; else a short one, when an entry may still fit.
CommandReading readAny(const DeviceModel &model, QByteArrayView bytes)
{
    CommandReading best;
    for (const CommandEntry &entry : model.commands) {
        CommandReading reading = readCommand(model, entry, bytes);
        if (reading.state == State::Fits)
            return reading;
        if (reading.state == State::Short)
            best.state = State::Short;
    }
    return best;
}

} // namespace

QList<DecodedFrame> FrameDecoder::feed(const QByteArray &bytes)
{
    m_pending += bytes;
    return decode(false);
}

QList<DecodedFrame> FrameDecoder::flush()
{
    return decode(true);
}

QList<DecodedFrame> FrameDecoder::decode(bool isComplete)
{
    QList<DecodedFrame> frames;
    QByteArray stray;
    const auto giveStray = [&] {
        if (!stray.isEmpty())
            frames.append({std::exchange(stray, {}), std::nullopt});
    };

    qsizetype position = 0;
    while (position < m_pending.size()) {
        const QByteArrayView rest = QByteArrayView(m_pending).sliced(position);
        const CommandReading reading = readAny(m_model, rest);
        if (reading.state == State::Fits) {
            giveStray();
            frames.append({rest.first(reading.length).toByteArray(), reading.command});
            position += reading.length;
        } else if (reading.state == State::Short && !isComplete) {
            break;
        } else {
            stray += rest.front();
            if (stray.size() == longestStrayPiece)
                giveStray();
            ++position;
        }
    }
    giveStray();
    // A copy: remove() would keep the room that all the bytes have taken.
    m_pending = m_pending.sliced(position);
    return frames;
}
