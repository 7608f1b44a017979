// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/lightingmodels.h"

#include "catalogue/commandtable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Codes are per model: 9 switches one output contact here, bit 6 closes it, the low three bits are
// its number less one. Code 8 sets up the interface; the step accuracy labels name the device's
// own setting numbers.

// clang-format off
constexpr CommandRow lumoBridgeCommands[] = {
    // label                            id                   code  data     dataMax
    { "Change ID",                      CommandId::ChangeId,  127, "01",    "7F" },
    { "Information",                    CommandId::Request,     4, "40" },
    { "Set baudrate = 4800",            CommandId::Other,       8, "30" },
    { "Set baudrate = 9600",            CommandId::Other,       8, "31" },
    { "Set baudrate = 19200",           CommandId::Other,       8, "32" },
    { "Set step accuracy = 50 ms (3)",  CommandId::Other,       8, "22" },
    { "Set step accuracy = 100 ms (4)", CommandId::Other,       8, "23" },
    { "Set step accuracy = 200 ms (5)", CommandId::Other,       8, "24" },
    { "Relay",                          CommandId::Relay,      25, "00 00", "0F 0F" },
    { "Close output contact 1",         CommandId::Other,       9, "40" },
    { "Close output contact 2",         CommandId::Other,       9, "41" },
    { "Close output contact 3",         CommandId::Other,       9, "42" },
    { "Close output contact 4",         CommandId::Other,       9, "43" },
    { "Close output contact 5",         CommandId::Other,       9, "44" },
    { "Close output contact 6",         CommandId::Other,       9, "45" },
    { "Close output contact 7",         CommandId::Other,       9, "46" },
    { "Close output contact 8",         CommandId::Other,       9, "47" },
    { "Open output contact 1",          CommandId::Other,       9, "00" },
    { "Open output contact 2",          CommandId::Other,       9, "01" },
    { "Open output contact 3",          CommandId::Other,       9, "02" },
    { "Open output contact 4",          CommandId::Other,       9, "03" },
    { "Open output contact 5",          CommandId::Other,       9, "04" },
    { "Open output contact 6",          CommandId::Other,       9, "05" },
    { "Open output contact 7",          CommandId::Other,       9, "06" },
    { "Open output contact 8",          CommandId::Other,       9, "07" },
};
// clang-format on

} // namespace

void appendLumoBridge(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Lumo Bridge"_s, ProtocolKind::Classic, TransportKind::Serial, 0,
                                127, 8, 19200, 0, QString());
    model.baudRates = {4800, 9600, 19200};
    appendCommands(model, lumoBridgeCommands);
}
