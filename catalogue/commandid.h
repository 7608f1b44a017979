// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// What a command is for: the vocabulary shared by the model tables, the panels and the command
/// slots. A number means the same control in every model; 45 is accepted by the other-command
/// list although no model uses it yet.
namespace CommandId {

enum Value : quint32 {
    Folder = 1, ///< ranged: lowest and highest folder number of a bank
    PreviousFolder = 2,
    PreviousFile = 3,
    Play = 4,
    Stop = 5,
    Pause = 6,
    NextFile = 7,
    NextFolder = 8,
    Volume = 9, ///< ranged
    Request = 10,
    ChangeId = 11, ///< ranged
    StandbyWakeup = 12,
    VolumeUp = 13,
    VolumeDown = 14,
    Standby = 15,
    Wakeup = 16,
    PauseOnly = 17, ///< pauses without toggling, beside the toggle of id 6
    Resume = 18,
    MuteToggle = 19,
    Mute = 20,
    Unmute = 21,
    Relay = 22,           ///< ranged, two bytes
    SourceFolder = 23,    ///< ranged: folder of a category
    SourceSpotReset = 24, ///< ranged: SPOT folder, with an option byte
    SourceWebradio = 25,  ///< ranged
    SourceAlternate = 26, ///< another medium or an input
    SetTime = 27,
    SetDate = 28,
    SetDateTime = 29,
    SetUtcEpoch = 30,
    SetUtcFull = 31,
    Ntp = 32,
    SubtitlesOff = 33,
    SubtitlesOn = 34,
    SubtitlesPrevious = 35,
    SubtitlesNext = 36,
    SubtitlesPreviousLoop = 37,
    SubtitlesNextLoop = 38,
    SubtitlesByLanguage = 39,
    SubtitlesByIndex = 40, ///< ranged
    HdmiCecStandby = 41,
    HdmiCecWakeup = 42,
    HdmiCecToggle = 43,
    ProjectorPower = 44,
    Reserved45 = 45,
    Other = 99,
};

} // namespace CommandId
