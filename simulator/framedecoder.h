// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"
#include "simulator/decodedframe.h"

#include <QList>

/// Cuts the bytes that arrive at a device into its frames.
///
/// The bytes may come in any pieces. What is no frame of the model is given back in pieces of at
/// most 64 bytes, and the search goes on at the next byte. No more is kept than the beginning of
/// one frame.
class FrameDecoder
{
public:
    explicit FrameDecoder(const DeviceModel &model)
        : m_model(model)
    {
    }

    /// \return what the bytes complete, in the order of arrival
    QList<DecodedFrame> feed(const QByteArray &bytes);

    /// For a line that has fallen silent, or is gone: gives up on the frame that has begun.
    QList<DecodedFrame> flush();

    bool hasBegunFrame() const { return !m_pending.isEmpty(); }

private:
    QList<DecodedFrame> decode(bool isComplete);

    DeviceModel m_model;
    QByteArray m_pending;
};
