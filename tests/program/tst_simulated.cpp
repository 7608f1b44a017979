// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/program/desk.h"
#include "tests/support/programtestmain.h"
#include "tests/support/sheetrows.h"

#include <QLabel>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A move of the user and what the device makes of it.
struct Step
{
    enum class Move { Choose, Click, Press };

    Move move;
    const char *widget;
    QString input;  ///< the text to choose or the key to press
    QString frame;  ///< "ID 0 | 80 02 01 | Play"; empty: nothing is sent
    QString answer; ///< empty: none
    QString volume; ///< what the volume's label reads from now on; empty: what it did before
};

Step choose(const char *list, const QString &text)
{
    return {Step::Move::Choose, list, text, {}, {}, {}};
}

Step click(const char *button, const QString &frame, const QString &answer,
           const QString &volume = {})
{
    return {Step::Move::Click, button, {}, frame, answer, volume};
}

Step press(const QString &key, const QString &frame, const QString &answer,
           const QString &volume = {})
{
    return {Step::Move::Press, nullptr, key, frame, answer, volume};
}

const QString notObeyed = u" (for another player, not obeyed)"_s;

bool take(Desk &desk, const Step &step)
{
    switch (step.move) {
    case Step::Move::Choose:
        return desk.console().choose(step.widget, step.input);
    case Step::Move::Click:
        return desk.console().click(step.widget);
    case Step::Move::Press:
        return desk.console().looksAsExpected() && desk.console().press({step.input});
    }
    return false;
}

/// A user who tries out a model: what is sent, and what the device makes of it.
class Walk
{
public:
    explicit Walk(const ModelSheet &sheet)
        : m_sheet(sheet)
        , m_desk(sheet)
    {
    }

    void run();

private:
    void send(const QList<UserMove> &moves);
    void sendAtOnce(const QList<UserMove> &moves);
    void request(const UserMove &move);
    void changePlayer();
    UserMove probe() const;

    const ModelSheet m_sheet;
    Desk m_desk;
    int m_addressed = 0; ///< the player ID that the window shows
    int m_own = 0;       ///< that of the device
    QStringList m_frames;
    QString m_received;
};

/// One for each list and, where the value is chosen in different lists, for each of these commands.
/// The last of them has the highest value.
QList<UserMove> selectedMoves(const ModelSheet &sheet)
{
    QMap<QString, UserMove> moves;
    for (const UserMove &move : choosingMoves(sheet)) {
        const quint32 id = move.frame.command.id;
        const bool hasMoreLists = move.choices.size() > 1;
        const bool isStandby = id == 15; // in which the device refuses what comes next
        if (!isStandby)
            moves.insert(move.input + (hasMoreLists ? QString::number(id) : QString()), move);
    }
    return moves.values();
}

void Walk::run()
{
    m_addressed = m_own = m_sheet.lowestPlayerId;
    QVERIFY(m_desk.start());
    QVERIFY(m_desk.connectLink());

    const QList<UserMove> selected = selectedMoves(m_sheet);
    for (const UserMove &move : selected) {
        if (move.frame.command.id == 10)
            request(move);
    }
    QList<UserMove> moves = plainMoves(m_sheet);
    // In standby, the device refuses what comes next.
    const auto isStandby = [](const UserMove &move) { return move.frame.command.id == 12; };
    QList<UserMove> standbyMoves;
    std::ranges::copy_if(moves, std::back_inserter(standbyMoves), isStandby);
    moves.removeIf(isStandby);
    if (!QTest::currentTestFailed())
        send(moves);
    for (const UserMove &move : selected) {
        const quint32 id = move.frame.command.id;
        if (id != 10 && id != 11 && !QTest::currentTestFailed())
            send({move});
    }
    if (!QTest::currentTestFailed() && m_sheet.hasPlayerIds())
        changePlayer();
    if (!QTest::currentTestFailed())
        send(standbyMoves);
    if (QTest::currentTestFailed())
        return;

    QVERIFY(m_desk.showsReceived(m_received));
    QVERIFY(m_desk.showsSent(Desk::sentBytes(m_frames.constLast())));
    QVERIFY(m_desk.saveScreenshot());
    QVERIFY(m_desk.disconnectLink());
    QVERIFY(m_desk.quit());
    QCOMPARE(m_desk.frames(), m_frames);
}

void Walk::send(const QList<UserMove> &moves)
{
    if (!m_sheet.connectsOnDemand()) {
        sendAtOnce(moves);
        return;
    }
    // Until the device has closed the connection, the next command would arrive twice.
    for (const UserMove &move : moves) {
        sendAtOnce({move});
        QVERIFY(m_desk.showsReceived(m_received));
    }
}

void Walk::sendAtOnce(const QList<UserMove> &moves)
{
    if (moves.isEmpty())
        return;
    QStringList inputs;
    for (const UserMove &move : moves) {
        QVERIFY(m_desk.choose(move));
        inputs.append(move.input);
        m_frames.append(logLine(m_sheet, move.frame, m_addressed));
        if (m_addressed != m_own)
            m_frames.last() += notObeyed;
        else if (move.frame.command.id != 10)
            m_received += "OK "_L1 + move.frame.meaning() + u'\n';
    }
    QVERIFY(m_desk.console().perform(inputs));
    QTRY_COMPARE_WITH_TIMEOUT(m_desk.frames(), m_frames, Desk::timeLimit);
    m_desk.expectSent(m_frames.constLast());
    for (const UserMove &move : moves) {
        if (move.frame.command.id == 9)
            m_desk.console().twin<QLabel>("label_Volume_2")->setText(move.frame.value);
    }
}

/// The answer's wording is the simulator's own.
void Walk::request(const UserMove &move)
{
    sendAtOnce({move});
    QVERIFY(m_desk.console().click("textEdit_Data"));
    QVERIFY(m_desk.console().copiesMatch(QRegularExpression::escape(move.frame.command.label)
                                         + u": .+\n"_s));
    QVERIFY(m_desk.clear());
}

/// To another player than the one that is there, and to it again if it can be given a new ID.
void Walk::changePlayer()
{
    const QList<UserMove> moves = choosingMoves(m_sheet);
    const int other = m_sheet.highestPlayerId;
    const auto change = std::ranges::find_if(moves, [other](const UserMove &move) {
        return move.frame.value == QString::number(other) && move.frame.command.id == 11;
    });
    if (change != moves.cend()) {
        send({*change});
        m_own = other;
        send({probe()});
    }
    QVERIFY(m_desk.console().choose("comboBox_ID", QString::number(other)));
    m_addressed = other;
    send({probe()});
}

/// A command that can be sent again and again.
UserMove Walk::probe() const
{
    for (const UserMove &move : plainMoves(m_sheet) + selectedMoves(m_sheet)) {
        const quint32 id = move.frame.command.id;
        if (id != 9 && id != 10 && id != 11 && id != 12)
            return move;
    }
    qFatal("%s has volume, requests and IDs alone", qPrintable(m_sheet.name));
}

} // namespace

class tst_Simulated : public QObject
{
    Q_OBJECT

private slots:
    void walk_data() { addModelRows(); }
    void walk();
    void answers_data();
    void answers();
};

void tst_Simulated::walk()
{
    QFETCH(const ModelSheet, sheet);
    Walk(sheet).run();
}

void tst_Simulated::answers_data()
{
    QTest::addColumn<QList<Step>>("steps");

    QTest::newRow("Vistar Show - SV500 (Serial)") << QList<Step>{
        press(u"ctrl+7"_s, u"ID 0 | 80 01 07 | Folder 7"_s, u"OK Folder 7"_s),
        choose("comboBox_Request", u"Current folder number"_s),
        click("pushButton_Request", u"ID 0 | 80 04 06 | Request: Current folder number"_s,
              u"Current folder number: 007"_s),
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 63 | Volume 99"_s, u"OK Volume 99"_s, u"99"_s),
        choose("comboBox_Request", u"Volume"_s),
        click("pushButton_Request", u"ID 0 | 80 04 0B | Request: Volume"_s, u"Volume: 99"_s),
        choose("comboBox_Subtitles_Type", u"ISO639-2 (T)"_s),
        choose("comboBox_Subtitles_Value", u"deu"_s),
        click("pushButton_Subtitles_Select",
              u"ID 0 | 80 1D 64 65 75 | Subtitles deu (ISO639-2 (T), ISO639-3)"_s,
              u"OK Subtitles deu (ISO639-2 (T), ISO639-3)"_s),
        choose("comboBox_Request", u"Get the list of subtitles"_s),
        click("pushButton_Request", u"ID 0 | 80 04 41 | Request: Get the list of subtitles"_s,
              u"Get the list of subtitles: 0 eng, 1 fre, 2 ger, 3 spa; selected: deu"_s),
        click("pushButton_Standby_Wakeup", u"ID 0 | 80 02 08 | Standby/Wakeup"_s,
              u"OK Standby/Wakeup"_s),
        press(u"ctrl+1"_s, u"ID 0 | 80 01 01 | Folder 1"_s, u"ERROR standby: Folder 1"_s),
    };
    QTest::newRow("Vistar Home - HV4xx (TCP/IP)") << QList<Step>{
        press(u"XF86AudioNext"_s, u"ID 0 | 80 02 03 | Next File"_s, u"OK Next File"_s),
        choose("comboBox_Request", u"Full path name"_s),
        click("pushButton_Request", u"ID 0 | 80 04 03 | Request: Full path name"_s,
              u"Full path name: /000/002"_s),
        click("pushButton_Volume_Less", u"ID 0 | 80 03 00 | Volume 0"_s, u"OK Volume 0"_s, u"0"_s),
        press(u"ctrl+plus"_s, u"ID 0 | 80 03 01 | Volume 1"_s, u"OK Volume 1"_s, u"1"_s),
        click("pushButton_Volume_Mute_Unmute", u"ID 0 | 80 02 10 | Mute/Demute"_s,
              u"OK Mute/Demute"_s),
        choose("comboBox_Request", u"Volume"_s),
        click("pushButton_Request", u"ID 0 | 80 04 0B | Request: Volume"_s, u"Volume: 1 (muted)"_s),
    };
    QTest::newRow("Ampra One") << QList<Step>{
        press(u"ctrl+minus"_s, u"ID 0 | 80 03 37 | Volume 1 55"_s, u"OK Volume 1 55"_s, u"55"_s),
        choose("comboBox_Change_ID", u"12"_s),
        click("pushButton_Change_ID", u"ID 0 | 80 7F 0C | Change ID 12"_s, u"OK Change ID 12"_s),
        choose("comboBox_ID", u"12"_s),
        click("pushButton_Request", u"ID 12 | 8C 04 40 | Request: Information"_s,
              u"Information: simulated Ampra One, ID 12, volume 55"_s),
    };
    QTest::newRow("Sonet A (Serial)") << QList<Step>{
        press(u"ctrl+minus"_s, u"no ID | 30 00 3F 00 | Volume 63"_s, u"OK Volume 63"_s, u"63"_s),
        choose("comboBox_Source_Of_Playback", u"SPOT folder (Random + Reset)"_s),
        choose("comboBox_Ref_Of_Playback", u"300"_s),
        choose("comboBox_Option_Of_Playback", u"002"_s),
        click("pushButton_Launch_Playback",
              u"no ID | 12 01 2C 02 | SPOT folder (Random + Reset) 300, option 2"_s,
              u"OK SPOT folder (Random + Reset) 300, option 2"_s),
    };
    QTest::newRow("Sonet A Lite (TCP/IP)") << QList<Step>{
        press(u"ctrl+minus"_s,
              u"no ID | 03 00 00 00 73 65 74 00 56 6F 6C 75 6D 65 4C 6F 63 61 6C 4D 75 73 69 63 "
              "00 2D 31 00 | Volume 63"_s,
              u"OK Volume 63"_s, u"63"_s),
        choose("comboBox_Source_Of_Playback", u"PLAYLIST folder (Random)"_s),
        choose("comboBox_Ref_Of_Playback", u"012"_s),
        click(
            "pushButton_Launch_Playback",
            u"no ID | 04 00 00 00 63 6D 64 00 38 00 31 32 00 30 00 | PLAYLIST folder (Random) 12"_s,
            u"OK PLAYLIST folder (Random) 12"_s),
        choose("comboBox_Request", u"Playlist ID"_s),
        click("pushButton_Request",
              u"no ID | 02 00 00 00 67 65 74 00 50 6C 61 79 6C 69 73 74 49 44 00 | "
              "Request: Playlist ID"_s,
              u"Playlist ID: 12"_s),
    };
}

void tst_Simulated::answers()
{
    QFETCH(const QList<Step>, steps);
    const QString model = QString::fromLatin1(QTest::currentDataTag());
    Desk desk(model);
    QVERIFY(desk.start());
    QVERIFY(desk.connectLink());

    QStringList frames;
    QString received;
    for (const Step &step : steps) {
        QVERIFY(take(desk, step));
        if (step.frame.isEmpty())
            continue;
        frames.append(model + " | "_L1 + step.frame);
        QTRY_COMPARE_WITH_TIMEOUT(desk.frames(), frames, Desk::timeLimit);
        desk.expectSent(frames.constLast());
        if (!step.volume.isEmpty())
            desk.console().twin<QLabel>("label_Volume_2")->setText(step.volume);
        received += step.answer + u'\n';
        // Until the device has closed the connection, the next command would arrive twice.
        if (desk.connectsOnDemand())
            QVERIFY(desk.showsReceived(received));
    }
    QVERIFY(desk.showsReceived(received));
    QVERIFY(desk.disconnectLink());
    QVERIFY(desk.quit());
}

TESSALY_PROGRAM_TEST(tst_Simulated)
#include "tst_simulated.moc"
