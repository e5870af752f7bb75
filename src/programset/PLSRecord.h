#pragma once

#include <array>
#include <QList>
#include <QString>

/// One ON span of a limit switch channel, in divisions of the machine's cycle (0 to the scale
/// factor less 1). ON equal to OFF stands for no span at all; ON above OFF wraps through 0.
struct Setpoint {
    qint16 off = 0;
    qint16 on = 0;

    bool operator==(const Setpoint&) const = default;
    /// True for the placeholder that a channel without a span holds.
    bool IsPlaceholder() const { return on == off; }
};

/// The setpoints of one channel, in the order of display and download. A list without entries
/// means that the channel is Empty: not read, or not in the file. A channel that was read holds at
/// least one entry, the placeholder (0, 0) if nothing is programmed.
using SetpointList = QList<Setpoint>;

/// Most channels that a board has; `Chan` and `ChanHeader` have this many places.
constexpr int plsChannelPlaces = 64;

/// Bits of PLSRecord::OptionFlags.
namespace PLSOption {
constexpr qint16 BrakeWearCompensation = 1;
constexpr qint16 SpeedWindow = 2;
} // namespace PLSOption

/// Configuration and channels of one limit switch board or of the two files that hold them. A new
/// record is blank: all zero, all texts empty, all channels Empty. It is assigned as a whole.
struct PLSRecord {
    QString PCFText;        ///< line of the .PCF file, as read or as built by an upload
    QString CHLText;        ///< whole text of the .CHL file as built by an upload; never read
    qint16 Channels = 0;    ///< 8, 16, 32 or 64
    qint16 ScaleFactor = 0; ///< divisions of a cycle: 2 to 512, R6500 2 to 4096
    qint16 Offset = 0;      ///< resolver offset in divisions
    qint16 PLSProgram = 0;  ///< R6500: 0 to 7
    std::array<qint16, 8> SpeedComp{};                ///< R6500: CH00 to CH07, 0 to 255 msec
    std::array<SetpointList, plsChannelPlaces> Chan;  ///< by binary channel number
    std::array<QString, plsChannelPlaces> ChanHeader; ///< header lines of the .CHL file
    qint16 OptionFlags = 0;                           ///< standard layout: bits of PLSOption
    qint16 StrobePreset = 0;                          ///< standard: units of 2.5 msec
    qint16 StopLocation = 0;                          ///< standard: divisions
    qint16 StopError = 0;                             ///< standard: divisions, plus and minus
    qint16 SignalWidth = 0;                           ///< standard: timing signal width
    qint16 WindowOn = 0;                              ///< standard: compensation window, ON
    qint16 WindowOff = 0;                             ///< standard: compensation window, OFF
    qint16 LowThreshold = 0;                          ///< standard: low speed threshold, RPM
    qint16 HighThreshold = 0;                         ///< standard: high speed threshold, RPM
    QString CHLPath;                                  ///< worked out when the files are read
    QString PCFPath;                                  ///< likewise

    bool operator==(const PLSRecord&) const = default;
};
