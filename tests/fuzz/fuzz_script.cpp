// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/script.h"
#include "tests/fuzz/fuzztarget.h"
#include "tests/fuzz/modelinput.h"

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

/// The first line names the model; what follows is the script.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const DeviceCatalogue catalogue = buildDeviceCatalogue();
    const auto [model, text] = modelInput(catalogue, data, size);
    const Script script = readScript(model, QStringLiteral("x"), text);
    expect(script.steps.isEmpty() != script.errors.isEmpty(), "either steps or errors");
    expect(script.errors.size() <= 11, "few errors are told");
    for (const Step &step : script.steps)
        checkStep(model, step);
    return 0;
}
