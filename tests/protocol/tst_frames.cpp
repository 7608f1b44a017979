// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "protocol/chosencommand.h"
#include "protocol/frameencoder.h"
#include "tests/support/builtmodels.h"
#include "tests/support/hexbytes.h"
#include "tests/support/sheetrows.h"
#include "tests/support/sheetvalues.h"
#include "tests/support/testregistry.h"

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The choice of a value that the sheet names.
ChosenCommand chosen(const CommandEntry &entry, const QString &value)
{
    ChosenCommand result{entry};
    result.number = value.section(u',', 0, 0).toInt();
    result.option = optionOf(value);
    result.language = value;
    for (const int contact : contactsOf(value)) {
        if (entry.commandId == CommandId::Relay)
            result.closed.set(static_cast<size_t>(contact - 1));
    }
    return result;
}

QString line(const SheetCommand &command, const QString &value, int playerId,
             const QByteArray &frame)
{
    return u"%1, player %2: %3"_s.arg(command.meaning(value))
        .arg(playerId)
        .arg(QLatin1String(hexBytes(frame)));
}

} // namespace

/// The frames of all models, against their sheets.
class tst_Frames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyCommand_data() { addAllModelRows(); }
    void everyCommand();
    void everyPlayer_data() { addAllModelRows(); }
    void everyPlayer();
    void lackedCommands_data() { addAllModelRows(); }
    void lackedCommands();
};

void tst_Frames::initTestCase()
{
    // Ten hours ahead of UTC, and none of the zones that machines usually stand in.
    qputenv("TZ", "EST-10");
    ::tzset();
}

void tst_Frames::everyCommand()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel model = builtModel(sheet.name);
    QCOMPARE(model.commands.size(), sheet.commands.size());

    for (const int playerId : sheet.playerIdSamples()) {
        for (qsizetype i = 0; i < sheet.commands.size(); ++i) {
            const SheetCommand &command = sheet.commands.at(i);
            QList<std::pair<QString, QByteArray>> ends{{command.lowest, command.frame}};
            if (command.hasRange())
                ends.append({command.highest, command.highestFrame});
            for (const auto &[value, frame] : std::as_const(ends)) {
                const QByteArray actual = frameOf(
                    model, playerId, chosen(model.commands.at(i), value), momentOf(value));
                QCOMPARE(line(command, value, playerId, actual),
                         line(command, value, playerId, sheet.addressed(frame, playerId)));
            }
        }
    }
}

void tst_Frames::everyPlayer()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel model = builtModel(sheet.name);
    const SheetCommand &command = sheet.commands.constFirst();
    for (int playerId = sheet.lowestPlayerId; playerId <= sheet.highestPlayerId; ++playerId) {
        const QByteArray actual
            = frameOf(model, playerId, chosen(model.commands.constFirst(), command.lowest),
                      momentOf(command.lowest));
        QCOMPARE(hexBytes(actual), hexBytes(sheet.addressed(command.frame, playerId)));
    }
}

void tst_Frames::lackedCommands()
{
    QFETCH(const ModelSheet, sheet);
    const DeviceModel model = builtModel(sheet.name);
    constexpr quint8 untouched = 0xAB;
    for (quint32 id = 0; id <= 100; ++id) {
        quint8 code = untouched;
        QByteArray body;
        QCOMPARE(appendCommand(model, id, code, body), sheet.has(id));
        if (sheet.has(id))
            continue;
        if (id == CommandId::Volume)
            QVERIFY(!appendVolumeCommand(model, 1, code, body));
        QCOMPARE(int(code), int(untouched));
        QCOMPARE(hexBytes(body), ""_ba);
    }
}

TESSALY_TEST(tst_Frames)
#include "tst_frames.moc"
