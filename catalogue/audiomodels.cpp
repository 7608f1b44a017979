// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/audiomodels.h"

#include "catalogue/commandtable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Classic frames: code 1 selects a folder, code 2 carries one action byte, code 3 sets the volume.
// The decks of the first table know no pause (action 05).

// clang-format off
constexpr CommandRow deckCommands[] = {
    // label              id                           code  data   dataMax
    { "Folder",           CommandId::Folder,              1, "00",  "7F" },
    { "Play",             CommandId::Play,                2, "01" },
    { "Stop",             CommandId::Stop,                2, "02" },
    { "Next File",        CommandId::NextFile,            2, "03" },
    { "Previous File",    CommandId::PreviousFile,        2, "04" },
    { "Volume",           CommandId::Volume,              3, "00",  "40" },
    { "Next Folder",      CommandId::NextFolder,          2, "06" },
    { "Previous Folder",  CommandId::PreviousFolder,      2, "07" },
    { "Volume +",         CommandId::VolumeUp,            2, "09" },
    { "Volume -",         CommandId::VolumeDown,          2, "0A" },
};

constexpr CommandRow picoDeckLegacyCommands[] = {
    // label              id                           code  data   dataMax
    { "Folder",           CommandId::Folder,              1, "00",  "7F" },
    { "Play",             CommandId::Play,                2, "01" },
    { "Stop",             CommandId::Stop,                2, "02" },
    { "Next File",        CommandId::NextFile,            2, "03" },
    { "Previous File",    CommandId::PreviousFile,        2, "04" },
    { "Volume",           CommandId::Volume,              3, "00",  "1F" },
};

constexpr CommandRow cardDeckHdCommands[] = {
    // label              id                           code  data   dataMax
    { "Folder",           CommandId::Folder,              1, "00",  "7F" },
    { "Play",             CommandId::Play,                2, "01" },
    { "Stop",             CommandId::Stop,                2, "02" },
    { "Next File",        CommandId::NextFile,            2, "03" },
    { "Previous File",    CommandId::PreviousFile,        2, "04" },
    { "Pause",            CommandId::Pause,               2, "05" },
    { "Volume",           CommandId::Volume,              3, "00",  "1F" },
    { "Change ID",        CommandId::ChangeId,          127, "01",  "7F" },
};

// Extended frames over RS-232: three data bytes, the first two a 16-bit big-endian value; FF fills
// a byte that carries none. The SPOT reset variants take an option in the third byte, and the
// device skips code 19 between them.
constexpr CommandRow sonetASerialCommands[] = {
    // label                                  id                          code  data        dataMax
    { "Play",                                 CommandId::Play,              32, "FF FF FF" },
    { "Stop",                                 CommandId::Stop,              34, "FF FF FF" },
    { "Next File",                            CommandId::NextFile,          35, "FF FF FF" },
    { "Previous File",                        CommandId::PreviousFile,      36, "FF FF FF" },
    { "MUSIC folder (Random)",                CommandId::SourceFolder,       0, "00 01 FF", "03 E7 FF" },
    { "MUSIC folder (Random + Reset)",        CommandId::SourceFolder,       1, "00 01 FF", "03 E7 FF" },
    { "MUSIC folder (Sequential)",            CommandId::SourceFolder,       2, "00 01 FF", "03 E7 FF" },
    { "MUSIC folder (Sequential + Reset)",    CommandId::SourceFolder,       3, "00 01 FF", "03 E7 FF" },
    { "PLAYLIST folder (Random)",             CommandId::SourceFolder,       8, "00 01 FF", "03 E7 FF" },
    { "PLAYLIST folder (Random + Reset)",     CommandId::SourceFolder,       9, "00 01 FF", "03 E7 FF" },
    { "PLAYLIST folder (Sequential)",         CommandId::SourceFolder,      10, "00 01 FF", "03 E7 FF" },
    { "PLAYLIST folder (Sequential + Reset)", CommandId::SourceFolder,      11, "00 01 FF", "03 E7 FF" },
    { "SPOT folder (Random)",                 CommandId::SourceFolder,      16, "00 01 FF", "03 E7 FF" },
    { "SPOT folder (Sequential)",             CommandId::SourceFolder,      17, "00 01 FF", "03 E7 FF" },
    { "SPOT folder (Random + Reset)",         CommandId::SourceSpotReset,   18, "00 01 01", "03 E7 FF" },
    { "SPOT folder (Sequential + Reset)",     CommandId::SourceSpotReset,   20, "00 01 01", "03 E7 FF" },
    { "Webradio",                             CommandId::SourceWebradio,    64, "00 01 FF", "00 0A FF" },
    { "Alternate: Internal USB",              CommandId::SourceAlternate,   83, "FF FF FF" },
    { "Alternate: External USB",              CommandId::SourceAlternate,   82, "FF FF FF" },
    { "Alternate: SD card",                   CommandId::SourceAlternate,   81, "FF FF FF" },
    { "Alternate: Internal HDD",              CommandId::SourceAlternate,   84, "FF FF FF" },
    { "Alternate: Aux input",                 CommandId::SourceAlternate,   91, "FF FF FF" },
    { "Mute",                                 CommandId::Mute,              51, "00 01 00" },
    { "Unmute",                               CommandId::Unmute,            51, "00 00 00" },
    { "FTP update: preset 1",                 CommandId::Other,             65, "00 01 FF" },
    { "FTP update: preset 2",                 CommandId::Other,             65, "00 02 FF" },
    { "FTP update: preset 3",                 CommandId::Other,             65, "00 03 FF" },
    { "FTP update: preset 4",                 CommandId::Other,             65, "00 04 FF" },
    { "FTP update: preset 5",                 CommandId::Other,             65, "00 05 FF" },
    { "FTP update: preset 6",                 CommandId::Other,             65, "00 06 FF" },
    { "FTP update: preset 7",                 CommandId::Other,             65, "00 07 FF" },
    { "FTP update: preset 8",                 CommandId::Other,             65, "00 08 FF" },
    { "FTP update: preset 9",                 CommandId::Other,             65, "00 09 FF" },
    { "FTP update: preset 10",                CommandId::Other,             65, "00 0A FF" },
    { "Volume",                               CommandId::Volume,            48, "00 00 00", "00 40 00" },
};

// Extended frames over TCP/IP: behind two range or filler bytes stand, in ASCII, the number of the
// serial model's code (code 4) or the device's key of the value asked for (code 2). The two
// `dataMax` that differ from their `data` for no visible reason (previous file, name of web radio
// 10) are the product's own and never sent.
constexpr CommandRow sonetALiteTcpCommands[] = {
    // label                                  id                          code  data          dataMax
    { "Play",                                 CommandId::Play,               4, "FF FF '32'" },
    { "Stop",                                 CommandId::Stop,               4, "FF FF '34'" },
    { "Next File",                            CommandId::NextFile,           4, "FF FF '35'" },
    { "Previous File",                        CommandId::PreviousFile,       4, "FF FF '36'", "FF FF '6'" },
    { "Volume",                               CommandId::Volume,             3, "00 00 00",   "00 40 00" },
    { "MUSIC folder (Random)",                CommandId::SourceFolder,       4, "00 01 '0'",  "03 E7 '0'" },
    { "MUSIC folder (Random + Reset)",        CommandId::SourceFolder,       4, "00 01 '1'",  "03 E7 '1'" },
    { "MUSIC folder (Sequential)",            CommandId::SourceFolder,       4, "00 01 '2'",  "03 E7 '2'" },
    { "MUSIC folder (Sequential + Reset)",    CommandId::SourceFolder,       4, "00 01 '3'",  "03 E7 '3'" },
    { "PLAYLIST folder (Random)",             CommandId::SourceFolder,       4, "00 01 '8'",  "03 E7 '8'" },
    { "PLAYLIST folder (Random + Reset)",     CommandId::SourceFolder,       4, "00 01 '9'",  "03 E7 '9'" },
    { "PLAYLIST folder (Sequential)",         CommandId::SourceFolder,       4, "00 01 '10'", "03 E7 '10'" },
    { "PLAYLIST folder (Sequential + Reset)", CommandId::SourceFolder,       4, "00 01 '11'", "03 E7 '11'" },
    { "SPOT folder (Random)",                 CommandId::SourceFolder,       4, "00 01 '16'", "03 E7 '16'" },
    { "SPOT folder (Sequential)",             CommandId::SourceFolder,       4, "00 01 '17'", "03 E7 '17'" },
    { "Webradio",                             CommandId::SourceWebradio,     4, "00 01 '64'", "00 0A '64'" },
    { "Alternate: Internal USB",              CommandId::SourceAlternate,    4, "FF FF '83'" },
    { "Alternate: External USB",              CommandId::SourceAlternate,    4, "FF FF '82'" },
    { "Alternate: SD card",                   CommandId::SourceAlternate,    4, "FF FF '81'" },
    { "Alternate: Internal HDD",              CommandId::SourceAlternate,    4, "FF FF '84'" },
    { "Alternate: Aux input",                 CommandId::SourceAlternate,    4, "FF FF '91'" },
    { "Player status",                        CommandId::Request,            2, "FF FF 'PlayerStatus'" },
    { "Source",                               CommandId::Request,            2, "FF FF 'Source'" },
    { "Folder type",                          CommandId::Request,            2, "FF FF 'FolderType'" },
    { "Folder ID",                            CommandId::Request,            2, "FF FF 'FolderID'" },
    { "Folder mode",                          CommandId::Request,            2, "FF FF 'FolderMode'" },
    { "Playlist ID",                          CommandId::Request,            2, "FF FF 'PlaylistID'" },
    { "Playlist mode",                        CommandId::Request,            2, "FF FF 'PlaylistMode'" },
    { "Spot ID",                              CommandId::Request,            2, "FF FF 'SpotID'" },
    { "Spot mode",                            CommandId::Request,            2, "FF FF 'SpotMode'" },
    { "Playing file",                         CommandId::Request,            2, "FF FF 'PlayingFile'" },
    { "Remaining time",                       CommandId::Request,            2, "FF FF 'RemainingTime'" },
    { "Volume",                               CommandId::Request,            2, "FF FF 'VolumeLocalMusic'" },
    { "Webradio ID",                          CommandId::Request,            2, "FF FF 'WebRadioID'" },
    { "Webradio 1 name",                      CommandId::Request,            2, "FF FF 'WRadio1Name'" },
    { "Webradio 2 name",                      CommandId::Request,            2, "FF FF 'WRadio2Name'" },
    { "Webradio 3 name",                      CommandId::Request,            2, "FF FF 'WRadio3Name'" },
    { "Webradio 4 name",                      CommandId::Request,            2, "FF FF 'WRadio4Name'" },
    { "Webradio 5 name",                      CommandId::Request,            2, "FF FF 'WRadio5Name'" },
    { "Webradio 6 name",                      CommandId::Request,            2, "FF FF 'WRadio6Name'" },
    { "Webradio 7 name",                      CommandId::Request,            2, "FF FF 'WRadio7Name'" },
    { "Webradio 8 name",                      CommandId::Request,            2, "FF FF 'WRadio8Name'" },
    { "Webradio 9 name",                      CommandId::Request,            2, "FF FF 'WRadio9Name'" },
    { "Webradio 10 name",                     CommandId::Request,            2, "FF FF 'WRadio10Name'", "FF FF 'WRadio1' 03 'Name'" },
};
// clang-format on

} // namespace

void appendTempoDeck(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Tempo Deck"_s, ProtocolKind::Classic, TransportKind::Serial, 0,
                                127, 8, 19200, 0, u"1.2"_s);
    model.baudRates = {9600, 19200, 38400};
    appendCommands(model, deckCommands);
}

void appendShowDeckGen2(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Show Deck (Gen 2)"_s, ProtocolKind::Classic,
                                TransportKind::Serial, 0, 127, 8, 19200, 0, u"2.04"_s);
    model.baudRates = {9600, 19200, 38400};
    appendCommands(model, deckCommands);
}

void appendPicoDeckGen23(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Pico Deck Gen 2/3"_s, ProtocolKind::Classic,
                                TransportKind::Serial, 0, 127, 8, 19200, 0, u"1.5"_s);
    model.baudRates = {9600, 19200, 38400};
    appendCommands(model, deckCommands);
}

void appendSonetASerial(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Sonet A (Serial)"_s, ProtocolKind::Extended,
                                TransportKind::Serial, 0, 0, 8, 115200, 0, u"1710"_s);
    model.baudRates = {115200};
    appendCommands(model, sonetASerialCommands);
}

void appendSonetALiteTcp(DeviceCatalogue &catalogue)
{
    DeviceModel &model = catalogue.emplaceBack(u"Sonet A Lite (TCP/IP)"_s, ProtocolKind::Extended,
                                               TransportKind::TcpIp, 0, 0, 8, -1, 1234, u"1710"_s);
    appendCommands(model, sonetALiteTcpCommands);
}

void appendPicoDeckLegacy(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Pico Deck (legacy)"_s, ProtocolKind::Classic,
                                TransportKind::Serial, 0, 127, 8, 19200, 0, u"1.40"_s);
    model.baudRates = {19200};
    appendCommands(model, picoDeckLegacyCommands);
}

void appendCardDeckHd(DeviceCatalogue &catalogue)
{
    DeviceModel &model
        = catalogue.emplaceBack(u"Card Deck HD (legacy)"_s, ProtocolKind::Classic,
                                TransportKind::Serial, 0, 127, 1, 9600, 0, QString());
    model.baudRates = {9600};
    appendCommands(model, cardDeckHdCommands);
}
