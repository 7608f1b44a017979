// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "contrast.h"

#include <QRect>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// Relative luminance by WCAG 2.1, 0 to 1.
double luminance(QRgb colour)
{
    static const auto table = [] {
        std::array<double, 256> values{};
        for (size_t i = 0; i < values.size(); ++i) {
            const double value = static_cast<double>(i) / 255;
            values[i] = value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    const auto linear = [](int channel) { return table[static_cast<size_t>(channel)]; };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
           + 0.0722 * linear(qBlue(colour));
}

} // namespace

double contrast(QRgb one, QRgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

void ColourCounts::add(const QImage &image, const QRect &part)
{
    Q_ASSERT(image.depth() == 32);
    const QRect inside = part.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        // Neighbours mostly have the same colour, and the table is slow.
        int start = inside.left();
        for (int x = start + 1; x <= inside.right() + 1; ++x) {
            if (x <= inside.right() && line[x] == line[start])
                continue;
            add(line[start], x - start);
            start = x;
        }
    }
}

QRgb ColourCounts::mostFrequent() const
{
    QRgb found = 0;
    int most = 0;
    for (auto it = m_counts.begin(); it != m_counts.end(); ++it) {
        if (it.value() > most || (it.value() == most && it.key() < found)) {
            most = it.value();
            found = it.key();
        }
    }
    return found;
}
