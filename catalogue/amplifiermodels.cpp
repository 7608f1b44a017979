// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/amplifiermodels.h"

#include "catalogue/commandtable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Codes are per model: 9 triggers the secondary volume here. The baud rates travel as the ASCII
// digits 0, 1 and 2, in the order of the model's list.

// clang-format off
constexpr CommandRow ampraOneCommands[] = {
    // label                                           id                   code  data   dataMax
    { "Volume 1",                                      CommandId::Volume,      3, "00",  "38" },
    { "Information",                                   CommandId::Request,     4, "40" },
    { "Triggering of the secondary volume (Volume 2)", CommandId::Other,       9, "01" },
    { "Set baudrate = 4800",                           CommandId::Other,       8, "30" },
    { "Set baudrate = 9600",                           CommandId::Other,       8, "31" },
    { "Set baudrate = 19200",                          CommandId::Other,       8, "32" },
    { "Change ID",                                     CommandId::ChangeId,  127, "01",  "7F" },
};
// clang-format on

} // namespace

void appendAmpraOne(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Ampra One"_s, ProtocolKind::Classic, TransportKind::Serial, 0,
                                127, 8, 19200, 0, QString());
    model.baudRates = {4800, 9600, 19200};
    appendCommands(model, ampraOneCommands);
}
