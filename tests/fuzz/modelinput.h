// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicecatalogue.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/// An input that is meant for a model.
struct ModelInput
{
    const DeviceModel &model;
    QByteArray bytes; ///< what the target makes of it
};

/// The first line of the input is the name of its model, so that the inputs of the corpus keep
/// theirs when other models come and go. The bytes of an input that names none choose a model, too,
/// and all of them are meant for it.
/// \a models stay for as long as the result is used
inline ModelInput modelInput(const DeviceCatalogue &models, const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype lineEnd = input.indexOf('\n');
    if (lineEnd >= 0) {
        if (const auto *named = findModel(models, QString::fromUtf8(input.first(lineEnd))))
            return {*named, input.sliced(lineEnd + 1)};
    }
    // The rest may change without changing the model.
    const quint16 hash = qChecksum(input.first(qMin(input.size(), 4)));
    return {models.at(hash % models.size()), input};
}
