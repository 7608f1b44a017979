// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/videomodels.h"

#include "catalogue/commandtable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::initializer_list<qint32> currentPlayerBaudRates = {
    1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200,
};

/// Reads as 65079, the unsigned value of the 16-bit pattern FE37.
constexpr quint16 videoPlayerPort = 0xFE37;

// Classic frames: code 2 carries one action byte, code 13 a subtitle action, code 4 asks for the
// value that its byte names. The clock entries (ids 27 to 31) hold placeholders: what is sent is
// the moment of the click.

// clang-format off
constexpr CommandRow sharedVideoCommands[] = {
    // label                                   id                                code  data                dataMax
    { "Folder",                                CommandId::Folder,                   1, "00",               "7F" },
    { "Standby/Wakeup",                        CommandId::StandbyWakeup,            2, "08" },
    { "Play",                                  CommandId::Play,                     2, "01" },
    { "Stop",                                  CommandId::Stop,                     2, "02" },
    { "Next File",                             CommandId::NextFile,                 2, "03" },
    { "Previous File",                         CommandId::PreviousFile,             2, "04" },
    { "Play/Pause",                            CommandId::Pause,                    2, "05" },
    { "Next Folder",                           CommandId::NextFolder,               2, "06" },
    { "Previous Folder",                       CommandId::PreviousFolder,           2, "07" },
    { "Volume +",                              CommandId::VolumeUp,                 2, "09" },
    { "Volume -",                              CommandId::VolumeDown,               2, "0A" },
    { "Standby",                               CommandId::Standby,                  2, "0C" },
    { "Wakeup",                                CommandId::Wakeup,                   2, "0D" },
    { "HDMI-CEC Standby",                      CommandId::HdmiCecStandby,           2, "13" },
    { "HDMI-CEC Wakeup",                       CommandId::HdmiCecWakeup,            2, "14" },
    { "HDMI-CEC Standby/Wakeup",               CommandId::HdmiCecToggle,            2, "15" },
    { "PJLink Video Projector Power On",       CommandId::ProjectorPower,           2, "16" },
    { "PJLink Video Projector Power Off",      CommandId::ProjectorPower,           2, "17" },
    { "Pause",                                 CommandId::PauseOnly,                2, "0E" },
    { "Resume",                                CommandId::Resume,                   2, "0F" },
    { "Mute/Demute",                           CommandId::MuteToggle,               2, "10" },
    { "Mute",                                  CommandId::Mute,                     2, "11" },
    { "Unmute",                                CommandId::Unmute,                   2, "12" },
    { "NTP on",                                CommandId::Ntp,                     92, "01" },
    { "NTP off",                               CommandId::Ntp,                     92, "00" },
    { "Set time",                              CommandId::SetTime,                 12, "01 02 03" },
    { "Set date",                              CommandId::SetDate,                 28, "04 05 06" },
    { "Set date/time",                         CommandId::SetDateTime,             44, "07 08 09 0A 0B 0C" },
    { "Set UTC/GMT date/time (epoch version)", CommandId::SetUtcEpoch,             60, "05 7F 7F 7F 7F" },
    { "Set UTC/GMT date/time (full version)",  CommandId::SetUtcFull,              76, "01 02 03 04 05 06" },
    { "Enable auto subtitles",                 CommandId::SubtitlesOn,             13, "01" },
    { "Disable subtitles",                     CommandId::SubtitlesOff,            13, "00" },
    { "Previous subtitles (without loop)",     CommandId::SubtitlesPrevious,       13, "02" },
    { "Next subtitles (without loop)",         CommandId::SubtitlesNext,           13, "03" },
    { "Previous subtitles (with loop)",        CommandId::SubtitlesPreviousLoop,   13, "04" },
    { "Next subtitles (with loop)",            CommandId::SubtitlesNextLoop,       13, "05" },
    { "ISO639",                                CommandId::SubtitlesByLanguage,     29, "00" },
    { "Index",                                 CommandId::SubtitlesByIndex,        45, "00",               "7F" },
    { "Volume",                                CommandId::Volume,                   3, "00",               "64" },
    { "Player Status",                         CommandId::Request,                  4, "01" },
    { "Current file",                          CommandId::Request,                  4, "02" },
    { "Full path name",                        CommandId::Request,                  4, "03" },
    { "Used storage media",                    CommandId::Request,                  4, "04" },
    { "Current folder number",                 CommandId::Request,                  4, "06" },
    { "Remaining time",                        CommandId::Request,                  4, "09" },
    { "Total time of the file",                CommandId::Request,                  4, "0A" },
    { "Volume",                                CommandId::Request,                  4, "0B" },
    { "Get the list of subtitles",             CommandId::Request,                  4, "41" },
};

constexpr CommandRow hv1xxCommands[] = {
    // label                    id                       code  data   dataMax
    { "Folder",                 CommandId::Folder,          1, "00",  "7F" },
    { "Play",                   CommandId::Play,            2, "01" },
    { "Stop",                   CommandId::Stop,            2, "02" },
    { "Next File",              CommandId::NextFile,        2, "03" },
    { "Previous File",          CommandId::PreviousFile,    2, "04" },
    { "Pause",                  CommandId::Pause,           2, "05" },
    { "Next Folder",            CommandId::NextFolder,      2, "06" },
    { "Previous Folder",        CommandId::PreviousFolder,  2, "07" },
    { "Volume",                 CommandId::Volume,          3, "00",  "1F" },
    { "Player Status",          CommandId::Request,         4, "01" },
    { "Current file",           CommandId::Request,         4, "02" },
    { "Full path name",         CommandId::Request,         4, "03" },
    { "Used storage media",     CommandId::Request,         4, "04" },
    { "Current folder number",  CommandId::Request,         4, "06" },
    { "Remaining time",         CommandId::Request,         4, "09" },
    { "Total time of the file", CommandId::Request,         4, "0A" },
    { "Volume",                 CommandId::Request,         4, "0B" },
    { "Change ID",              CommandId::ChangeId,      127, "01",  "7F" },
};

constexpr CommandRow hv0xxCommands[] = {
    // label           id                       code  data   dataMax
    { "Folder",        CommandId::Folder,          1, "00",  "7F" },
    { "Play",          CommandId::Play,            2, "01" },
    { "Stop",          CommandId::Stop,            2, "02" },
    { "Next File",     CommandId::NextFile,        2, "03" },
    { "Previous File", CommandId::PreviousFile,    2, "04" },
    { "Volume",        CommandId::Volume,          3, "00",  "0D" },
    { "Change ID",     CommandId::ChangeId,      127, "01",  "7F" },
};
// clang-format on

} // namespace

void appendSharedVideoCommands(DeviceCatalogue &catalogue)
{
    Q_ASSERT(!catalogue.isEmpty());
    appendCommands(catalogue.last(), sharedVideoCommands);
}

void appendVistarShowSerial(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Vistar Show - SV500 (Serial)"_s, ProtocolKind::Classic,
                                TransportKind::Serial, 0, 127, 8, 115200, 0, u"1.11"_s);
    model.baudRates = currentPlayerBaudRates;
    appendSharedVideoCommands(catalogue);
}

void appendVistarShowTcp(DeviceCatalogue &catalogue)
{
    catalogue.emplaceBack(u"Vistar Show - SV500 (TCP/IP)"_s, ProtocolKind::Classic,
                          TransportKind::TcpIp, 0, 0, 8, -1, videoPlayerPort, u"1.11"_s);
    appendSharedVideoCommands(catalogue);
}

void appendVistarHomeSerial(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Vistar Home - HV4xx (Serial)"_s, ProtocolKind::Classic,
                                TransportKind::Serial, 0, 127, 8, 115200, 0, u"1.11"_s);
    model.baudRates = currentPlayerBaudRates;
    appendSharedVideoCommands(catalogue);
}

void appendVistarHomeTcp(DeviceCatalogue &catalogue)
{
    catalogue.emplaceBack(u"Vistar Home - HV4xx (TCP/IP)"_s, ProtocolKind::Classic,
                          TransportKind::TcpIp, 0, 0, 8, -1, videoPlayerPort, u"1.11"_s);
    appendSharedVideoCommands(catalogue);
}

// Two folder banks here, eight on the TCP/IP twin: deliberate.
void appendHv1xxSerial(DeviceCatalogue &catalogue)
{
    DeviceModel &model = catalogue.emplaceBack(u"HV1xx (Serial) (legacy)"_s, ProtocolKind::Classic,
                                               TransportKind::Serial, 0, 127, 2, 19200, 0,
                                               u"AP 1.11 / MCU 1.05"_s);
    model.baudRates = {19200};
    appendCommands(model, hv1xxCommands);
}

void appendHv1xxTcp(DeviceCatalogue &catalogue)
{
    DeviceModel &model = catalogue.emplaceBack(u"HV1xx (TCP/IP) (legacy)"_s, ProtocolKind::Classic,
                                               TransportKind::TcpIp, 0, 0, 8, -1, videoPlayerPort,
                                               u"AP 1.11 / MCU 1.05"_s);
    appendCommands(model, hv1xxCommands);
}

void appendHv0xx(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"HV0xx (legacy)"_s, ProtocolKind::Classic, TransportKind::Serial,
                                0, 127, 1, 19200, 0, QString());
    model.baudRates = {19200};
    appendCommands(model, hv0xxCommands);
}
