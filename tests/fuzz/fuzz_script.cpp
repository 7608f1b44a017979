// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"
#include "sender/script.h"
#include "tests/fuzz/fuzztarget.h"

#include <algorithm>

namespace {

void checkStep(const DeviceModel &model, const Step &step)
{
    const auto *command = std::get_if<ChosenCommand>(&step);
    if (!command)
        return;
    expect(model.commands.contains(command->entry), "a command is one of the model's");
    expect(!commandText(*command).isEmpty(), "a command has a text");
    const QByteArray frame = frameOf(model, 127, *command, QDateTime::fromSecsSinceEpoch(0));
    expect(frame.size() >= 2, "a command has its bytes");
    expect(model.protocol == ProtocolKind::Extended || frame.front() == '\xFF',
           "a classic frame begins with its player");
}

} // namespace

/// The first byte chooses the model, the others are the script.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const DeviceCatalogue catalogue = buildDeviceCatalogue();
    if (size == 0)
        return 0;
    const DeviceModel &model = catalogue.at(data[0] % catalogue.size());
    const QByteArray text(reinterpret_cast<const char *>(data) + 1,
                          static_cast<qsizetype>(size) - 1);
    const Script script = readScript(model, QStringLiteral("x"), text);
    expect(script.steps.isEmpty() != script.errors.isEmpty(), "either steps or errors");
    expect(script.errors.size() <= 11, "few errors are told");
    std::ranges::for_each(script.steps, [&](const Step &step) { checkStep(model, step); });
    return 0;
}
