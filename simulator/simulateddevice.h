// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "catalogue/devicemodel.h"
#include "catalogue/listnumbers.h"
#include "simulator/decodedframe.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// What a device does: it plays, keeps its settings and answers. It knows neither link nor bytes
/// of commands; the moment of each command is handed in.
///
/// An answer is one ASCII line ended by CR LF. Its wording is this simulator's own: the answers of
/// the real devices are not known to this project.
class SimulatedDevice
{
public:
    /// A device that has just been switched on: stopped, at its loudest, with the player ID given.
    SimulatedDevice(const DeviceModel &model, int playerId, const QDateTime &now);

    int playerId() const { return m_playerId; }

    /// Whether the command is for this device. A frame without a player ID always is.
    bool isAddressedBy(const DecodedCommand &command) const;

    /// Does what a command says that is addressed to this device.
    /// \return the answer: the requested value, "OK ..." or, for what it cannot do, "ERROR ..."
    QByteArray obey(const DecodedCommand &command, const QDateTime &now);

private:
    enum class Playback { Stopped, Playing, Paused };

    QString perform(const DecodedCommand &command);
    bool performPlayback(const DecodedCommand &command);
    bool performSound(const DecodedCommand &command);
    bool performSubtitles(const DecodedCommand &command);
    bool performPower(const DecodedCommand &command);
    bool performSettings(const DecodedCommand &command);

    void elapse(const QDateTime &now);
    void startFile(int file);
    void startFolder(int folder);
    void stepFolder(int step);
    void stepSubtitles(int step, bool loop);
    void setVolume(int volume);

    QString requestedValue(const QString &label) const;
    QString informationText() const;
    QString playerStatusText() const;
    QString fileNameText() const;
    QString pathText() const;
    QString mediumText() const;
    QString folderText() const;
    QString remainingTimeText() const;
    QString totalTimeText() const;
    QString volumeText() const;
    QString subtitleListText() const;
    QString sourceText() const;
    QString folderTypeText() const;
    QString folderModeText() const;
    QString playlistIdText() const;
    QString playlistModeText() const;
    QString spotIdText() const;
    QString spotModeText() const;
    QString webradioIdText() const;
    QString referenceText(const QString &category) const;
    QString modeText(const QString &category) const;

    DeviceModel m_model;
    int m_playerId;
    QDateTime m_now;
    qint64 m_clockOffset = 0; ///< of the device's clock against m_now, in milliseconds
    bool m_ntp = false;

    Playback m_playback = Playback::Stopped;
    int m_folder = 0;
    int m_file = 1;
    qint64 m_position = 0; ///< in the file, in milliseconds
    QString m_source;      ///< label of the source chosen last; empty before the first
    int m_reference = 0;   ///< folder or preset of the source

    int m_volume = 0;
    NumberRange m_volumeRange;
    bool m_isMuted = false;

    bool m_isStandby = false;
    bool m_isDisplayStandby = false;

    QString m_subtitles; ///< empty: off
    int m_subtitleTrack = 0;
};
