// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/simulateddevice.h"

#include "catalogue/commandvalues.h"
#include "simulator/framemeaning.h"

#include <QTimeZone>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int filesPerFolder = 12;
constexpr int subtitleTracks = 4;      ///< numbered from 0
constexpr qint64 fileLength = 180'000; ///< in milliseconds

const CommandEntry *findEntry(const DeviceModel &model, quint32 commandId)
{
    const auto entry = std::ranges::find(model.commands, commandId, &CommandEntry::commandId);
    return entry == model.commands.cend() ? nullptr : &*entry;
}

int wrapped(int number, NumberRange range)
{
    if (number < range.first)
        return range.last;
    return number > range.last ? range.first : number;
}

QString durationText(qint64 milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds)).toString(Qt::ISODate);
}

/// The category of a source label, "PLAYLIST" of "PLAYLIST folder (Random)".
QString sourceCategory(const QString &label)
{
    return label.section(u' ', 0, 0).remove(u':');
}

/// The mode of a source label, "Random" of "PLAYLIST folder (Random)"; empty when it has none.
QString sourceMode(const QString &label)
{
    return label.section(u'(', 1).section(u')', 0, 0);
}

} // namespace

SimulatedDevice::SimulatedDevice(const DeviceModel &model, int playerId, const QDateTime &now)
    : m_model(model)
    , m_playerId(playerId)
    , m_now(now)
{
    if (const CommandEntry *volume = findEntry(model, CommandId::Volume))
        m_volumeRange = valueRange(model, *volume);
    m_volume = m_volumeRange.last;
}

bool SimulatedDevice::isAddressedBy(const DecodedCommand &command) const
{
    return command.playerId < 0 || command.playerId == m_playerId;
}

QByteArray SimulatedDevice::obey(const DecodedCommand &command, const QDateTime &now)
{
    elapse(now);
    QString answer;
    if (!command.inRange)
        answer = "ERROR "_L1 + commandMeaning(m_model, command);
    else if (command.entry.commandId == CommandId::Request)
        answer = command.entry.label + ": "_L1 + requestedValue(command.entry.label);
    else
        answer = perform(command);
    return answer.toLatin1() + "\r\n";
}

QString SimulatedDevice::perform(const DecodedCommand &command)
{
    const QString meaning = commandMeaning(m_model, command);
    if (performPower(command) || performSettings(command))
        return "OK "_L1 + meaning;
    if (m_isStandby)
        return "ERROR standby: "_L1 + meaning;

    // What is left over has no state here, such as an output contact or an FTP update.
    static_cast<void>(performPlayback(command) || performSound(command)
                      || performSubtitles(command));
    return "OK "_L1 + meaning;
}

bool SimulatedDevice::performPlayback(const DecodedCommand &command)
{
    switch (command.entry.commandId) {
    case CommandId::Folder:
        m_source.clear();
        startFolder(command.number);
        return true;
    case CommandId::PreviousFolder:
        stepFolder(-1);
        return true;
    case CommandId::NextFolder:
        stepFolder(+1);
        return true;
    case CommandId::PreviousFile:
        startFile(wrapped(m_file - 1, {1, filesPerFolder}));
        return true;
    case CommandId::NextFile:
        startFile(wrapped(m_file + 1, {1, filesPerFolder}));
        return true;
    case CommandId::Play:
        m_playback = Playback::Playing;
        return true;
    case CommandId::Stop:
        m_playback = Playback::Stopped;
        m_position = 0;
        return true;
    case CommandId::Pause:
        if (m_playback != Playback::Stopped) {
            m_playback = m_playback == Playback::Playing ? Playback::Paused : Playback::Playing;
        }
        return true;
    case CommandId::PauseOnly:
        if (m_playback == Playback::Playing)
            m_playback = Playback::Paused;
        return true;
    case CommandId::Resume:
        if (m_playback == Playback::Paused)
            m_playback = Playback::Playing;
        return true;
    case CommandId::SourceFolder:
    case CommandId::SourceSpotReset:
    case CommandId::SourceWebradio:
    case CommandId::SourceAlternate:
        m_source = command.entry.label;
        m_reference = command.number;
        startFile(1);
        return true;
    default:
        return false;
    }
}

bool SimulatedDevice::performSound(const DecodedCommand &command)
{
    switch (command.entry.commandId) {
    case CommandId::Volume:
        setVolume(command.number);
        return true;
    case CommandId::VolumeUp:
        setVolume(m_volume + 1);
        return true;
    case CommandId::VolumeDown:
        setVolume(m_volume - 1);
        return true;
    case CommandId::MuteToggle:
        m_isMuted = !m_isMuted;
        return true;
    case CommandId::Mute:
        m_isMuted = true;
        return true;
    case CommandId::Unmute:
        m_isMuted = false;
        return true;
    default:
        return false;
    }
}

bool SimulatedDevice::performSubtitles(const DecodedCommand &command)
{
    switch (command.entry.commandId) {
    case CommandId::SubtitlesOff:
        m_subtitles.clear();
        return true;
    case CommandId::SubtitlesOn:
        m_subtitles = u"automatic"_s;
        return true;
    case CommandId::SubtitlesPrevious:
        stepSubtitles(-1, false);
        return true;
    case CommandId::SubtitlesNext:
        stepSubtitles(+1, false);
        return true;
    case CommandId::SubtitlesPreviousLoop:
        stepSubtitles(-1, true);
        return true;
    case CommandId::SubtitlesNextLoop:
        stepSubtitles(+1, true);
        return true;
    case CommandId::SubtitlesByLanguage:
        m_subtitles = command.language;
        return true;
    case CommandId::SubtitlesByIndex:
        m_subtitleTrack = command.number;
        m_subtitles = u"track %1"_s.arg(m_subtitleTrack);
        return true;
    default:
        return false;
    }
}

bool SimulatedDevice::performPower(const DecodedCommand &command)
{
    switch (command.entry.commandId) {
    case CommandId::StandbyWakeup:
        m_isStandby = !m_isStandby;
        break;
    case CommandId::Standby:
        m_isStandby = true;
        break;
    case CommandId::Wakeup:
        m_isStandby = false;
        break;
    case CommandId::HdmiCecStandby:
        m_isDisplayStandby = true;
        break;
    case CommandId::HdmiCecWakeup:
        m_isDisplayStandby = false;
        break;
    case CommandId::HdmiCecToggle:
        m_isDisplayStandby = !m_isDisplayStandby;
        break;
    default:
        return false;
    }
    if (m_isStandby) {
        m_playback = Playback::Stopped;
        m_position = 0;
    }
    return true;
}

bool SimulatedDevice::performSettings(const DecodedCommand &command)
{
    const QDateTime clock = m_now.addMSecs(m_clockOffset).toLocalTime();
    const auto setClock = [this](const QDateTime &time) { m_clockOffset = m_now.msecsTo(time); };
    switch (command.entry.commandId) {
    case CommandId::ChangeId:
        m_playerId = command.number;
        return true;
    case CommandId::SetTime:
        setClock(QDateTime(clock.date(), command.time));
        return true;
    case CommandId::SetDate:
        setClock(QDateTime(command.date, clock.time()));
        return true;
    case CommandId::SetDateTime:
        setClock(QDateTime(command.date, command.time));
        return true;
    case CommandId::SetUtcEpoch:
    case CommandId::SetUtcFull:
        setClock(QDateTime(command.date, command.time, QTimeZone::utc()));
        return true;
    case CommandId::Ntp:
        m_ntp = command.entry.data.front() != '\0';
        return true;
    default:
        return false;
    }
}

void SimulatedDevice::elapse(const QDateTime &now)
{
    // A clock set back must not play backwards.
    const qint64 passed = std::max<qint64>(0, m_now.msecsTo(now));
    m_now = now;
    if (m_playback != Playback::Playing)
        return;
    m_position += passed;
    const qint64 finished = m_position / fileLength;
    m_position %= fileLength;
    m_file = static_cast<int>((m_file - 1 + finished) % filesPerFolder) + 1;
}

void SimulatedDevice::startFile(int file)
{
    m_file = file;
    m_position = 0;
    m_playback = Playback::Playing;
}

void SimulatedDevice::startFolder(int folder)
{
    m_folder = folder;
    startFile(1);
}

void SimulatedDevice::stepFolder(int step)
{
    const CommandEntry *folder = findEntry(m_model, CommandId::Folder);
    startFolder(folder ? wrapped(m_folder + step, valueRange(m_model, *folder)) : m_folder);
}

void SimulatedDevice::stepSubtitles(int step, bool loop)
{
    const NumberRange tracks{0, subtitleTracks - 1};
    m_subtitleTrack = loop ? wrapped(m_subtitleTrack + step, tracks)
                           : std::clamp(m_subtitleTrack + step, tracks.first, tracks.last);
    m_subtitles = u"track %1"_s.arg(m_subtitleTrack);
}

void SimulatedDevice::setVolume(int volume)
{
    m_volume = std::clamp(volume, m_volumeRange.first, m_volumeRange.last);
}

QString SimulatedDevice::requestedValue(const QString &label) const
{
    struct Answer
    {
        QLatin1StringView label;
        QString (SimulatedDevice::*text)() const;
    };
    // clang-format off
    static constexpr Answer answers[] = {
        {"Information"_L1,              &SimulatedDevice::informationText},
        {"Player status"_L1,            &SimulatedDevice::playerStatusText},
        {"Current file"_L1,             &SimulatedDevice::fileNameText},
        {"Full path name"_L1,           &SimulatedDevice::pathText},
        {"Used storage media"_L1,       &SimulatedDevice::mediumText},
        {"Current folder number"_L1,    &SimulatedDevice::folderText},
        {"Remaining time"_L1,           &SimulatedDevice::remainingTimeText},
        {"Total time of the file"_L1,   &SimulatedDevice::totalTimeText},
        {"Volume"_L1,                   &SimulatedDevice::volumeText},
        {"Get the list of subtitles"_L1, &SimulatedDevice::subtitleListText},
        {"Source"_L1,                   &SimulatedDevice::sourceText},
        {"Folder type"_L1,              &SimulatedDevice::folderTypeText},
        {"Folder ID"_L1,                &SimulatedDevice::folderText},
        {"Folder mode"_L1,              &SimulatedDevice::folderModeText},
        {"Playlist ID"_L1,              &SimulatedDevice::playlistIdText},
        {"Playlist mode"_L1,            &SimulatedDevice::playlistModeText},
        {"Spot ID"_L1,                  &SimulatedDevice::spotIdText},
        {"Spot mode"_L1,                &SimulatedDevice::spotModeText},
        {"Playing file"_L1,             &SimulatedDevice::fileNameText},
        {"Webradio ID"_L1,              &SimulatedDevice::webradioIdText},
    };
    // clang-format on

    // "Player status" is spelled with a capital S by some models.
    for (const Answer &answer : answers) {
        if (label.compare(answer.label, Qt::CaseInsensitive) == 0)
            return (this->*answer.text)();
    }
    const QString number = label.section(u' ', 1, 1);
    return "Radio "_L1 + number; // "Webradio 3 name"
}

QString SimulatedDevice::informationText() const
{
    return u"simulated %1, ID %2, volume %3%4"_s.arg(m_model.name)
        .arg(m_playerId)
        .arg(m_volume)
        .arg(m_isStandby ? u", standby"_s : QString());
}

QString SimulatedDevice::playerStatusText() const
{
    if (m_isStandby)
        return u"standby"_s;
    QString text = m_playback == Playback::Playing  ? u"playing"_s
                   : m_playback == Playback::Paused ? u"paused"_s
                                                    : u"stopped"_s;
    if (m_isMuted)
        text += ", muted"_L1;
    if (!m_subtitles.isEmpty())
        text += ", subtitles "_L1 + m_subtitles;
    if (m_isDisplayStandby)
        text += ", display standby"_L1;
    const QDateTime clock = m_now.addMSecs(m_clockOffset).toLocalTime();
    return text + ", clock "_L1 + clock.toString(u"yyyy-MM-dd HH:mm:ss"_s)
           + (m_ntp ? u", NTP"_s : QString());
}

QString SimulatedDevice::fileNameText() const
{
    return paddedNumber(m_file);
}

QString SimulatedDevice::pathText() const
{
    return u"/%1/%2"_s.arg(paddedNumber(m_folder), fileNameText());
}

QString SimulatedDevice::mediumText() const
{
    return u"SD card"_s;
}

QString SimulatedDevice::folderText() const
{
    if (m_source.isEmpty())
        return paddedNumber(m_folder);
    return folderTypeText() == "none"_L1 ? u"none"_s : paddedNumber(m_reference);
}

QString SimulatedDevice::remainingTimeText() const
{
    return m_playback == Playback::Stopped ? durationText(0)
                                           : durationText(fileLength - m_position);
}

QString SimulatedDevice::totalTimeText() const
{
    return durationText(fileLength);
}

QString SimulatedDevice::volumeText() const
{
    return QString::number(m_volume) + (m_isMuted ? u" (muted)"_s : QString());
}

QString SimulatedDevice::subtitleListText() const
{
    return u"0 eng, 1 fre, 2 ger, 3 spa; selected: %1"_s.arg(m_subtitles.isEmpty() ? u"off"_s
                                                                                   : m_subtitles);
}

QString SimulatedDevice::sourceText() const
{
    return m_source.isEmpty() ? u"none"_s : m_source;
}

QString SimulatedDevice::folderTypeText() const
{
    return m_source.contains("folder"_L1) ? sourceCategory(m_source) : u"none"_s;
}

QString SimulatedDevice::folderModeText() const
{
    return modeText({});
}

QString SimulatedDevice::playlistIdText() const
{
    return referenceText(u"PLAYLIST"_s);
}

QString SimulatedDevice::playlistModeText() const
{
    return modeText(u"PLAYLIST"_s);
}

QString SimulatedDevice::spotIdText() const
{
    return referenceText(u"SPOT"_s);
}

QString SimulatedDevice::spotModeText() const
{
    return modeText(u"SPOT"_s);
}

QString SimulatedDevice::webradioIdText() const
{
    return referenceText(u"Webradio"_s);
}

QString SimulatedDevice::referenceText(const QString &category) const
{
    return sourceCategory(m_source) == category ? QString::number(m_reference) : u"none"_s;
}

/// \a category the empty one stands for any
QString SimulatedDevice::modeText(const QString &category) const
{
    const bool isChosen = category.isEmpty() || sourceCategory(m_source) == category;
    const QString mode = sourceMode(m_source);
    return isChosen && !mode.isEmpty() ? mode : u"none"_s;
}
