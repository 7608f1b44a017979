// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QImage>

/// Contrast of two colours by WCAG 2.1: 1 for the same, 21 for black and white.
double contrast(QRgb one, QRgb other);

/// How often each colour is found in parts of images.
class ColourCounts
{
public:
    /// Counts the pixels of a part of an image with 32 bits per pixel.
    void add(const QImage &image, const QRect &part);
    void add(QRgb colour, int count) { m_counts[colour] += count; }

    bool isEmpty() const { return m_counts.isEmpty(); }
    /// Of colours that are equally frequent, the one with the lowest number.
    QRgb mostFrequent() const;
    const QHash<QRgb, int> &counts() const { return m_counts; }

private:
    QHash<QRgb, int> m_counts;
};
