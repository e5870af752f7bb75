#include "base/Dialogs.h"
#include "link/RSComm.h"
#include <algorithm>

namespace {
constexpr std::uint8_t readScaleFactor = 0x18;
constexpr std::uint8_t readOffset = 0x28;
constexpr std::uint8_t readPosition = 0x48;
constexpr std::uint8_t readSpeed = 0x58;
constexpr std::uint8_t setpointRecord = 0x1B;
constexpr std::uint8_t pulseTrainRecord = 0x2B;
constexpr std::uint8_t writeOffset = 0x2A;
constexpr std::uint8_t writeScaleFactor = 0x1A;
constexpr std::uint8_t readTable = 0x0C;
constexpr std::array<std::uint8_t, 4> blockCommands{0x3B, 0x4B, 0x5B, 0x6B};
constexpr std::size_t blockSize = 6;
constexpr int divisionLimit = 256; // a division of a pulse train goes out as one byte
constexpr int highestPositionByte = 16;
constexpr qint16 highestChannel = 63;
constexpr int failedRead = -9999;

QString NotProgrammed() {
    return QStringLiteral("\r\n\r\nPLS Channel will not be Programmed.");
}

bool IsByte(qint16 value) {
    return value >= 0 && value <= 0xFF;
}
} // namespace

bool RSComm::IsPLSChannel(qint16 channel) {
    return channel >= 0 && channel <= highestChannel;
}

QString RSComm::PLSScaleFactor() {
    const Operation operation(*this);
    return QString::number(ReadPLSWord(readScaleFactor));
}

QString RSComm::PLSOffset() {
    const Operation operation(*this);
    return QString::number(ReadPLSWord(readOffset));
}

QString RSComm::PLSPos() {
    const Operation operation(*this);
    return QString::number(ReadPLSWord(readPosition));
}

QString RSComm::PLSRpm() {
    const Operation operation(*this);
    return QString::number(ReadPLSWord(readSpeed));
}

void RSComm::RefusePLS(const QString& text, const QString& title) {
    dialogs_.MsgBox(text, MsgStyle::Exclamation, title);
}

bool RSComm::SingleSetpoint(qint16 Chan, qint16 OnSetpoint, qint16 OffSetpoint, bool ClearChan) {
    const Operation operation(*this);
    const int scaleFactor = ReadPLSWord(readScaleFactor);
    if (scaleFactor == failedRead || !SetpointFits(OnSetpoint, scaleFactor) ||
        !SetpointFits(OffSetpoint, scaleFactor))
        return false;
    if (ClearChan && (!WriteChannelRecord(setpointRecord, Chan, 0, 0, false) || commError_))
        return false;
    return WriteChannelRecord(setpointRecord, Chan, OnSetpoint, OffSetpoint, true);
}

bool RSComm::SetpointFits(qint16 setpoint, int scaleFactor) {
    if (setpoint > scaleFactor - 1)
        RefusePLS(QStringLiteral("Setpoint setting %1 is greater than scale factor.\r\n\r\n"
                                 "Channel can not be programmed.")
                      .arg(setpoint),
                  QStringLiteral("PLS Single Setpoint"));
    return setpoint >= 0 && setpoint <= scaleFactor - 1;
}

bool RSComm::ClearPLSChan(qint16 Chan) {
    const Operation operation(*this);
    return WriteChannelRecord(setpointRecord, Chan, 0, 0, false);
}

bool RSComm::PulseTrain(qint16 Chan, qint16 ON_Division, qint16 OFF_Division,
                        qint16 START_Division) {
    const QString title = QStringLiteral("PLS Pulse Train");
    const Operation operation(*this);
    const int scaleFactor = ReadPLSWord(readScaleFactor);
    if (scaleFactor == failedRead)
        return false;
    const QString refusal =
        PulseTrainRefusal(ON_Division, OFF_Division, START_Division, scaleFactor);
    if (!refusal.isEmpty()) {
        RefusePLS(refusal + NotProgrammed(), title);
        return false;
    }
    if (START_Division < 0)
        return false;
    const int divisions = OFF_Division * 256 + ON_Division; // the ON division goes out first
    if (!WriteChannelRecord(pulseTrainRecord, Chan, START_Division, divisions, false)) {
        dialogs_.MsgBox(QStringLiteral("Error Encountered while Programming Pulse Train.") +
                            NotProgrammed(),
                        MsgStyle::Information, title);
        return false;
    }
    return !commError_;
}

// Why a pulse train cannot be programmed; empty if it can. A negative division counts as none:
// their sum could be 0.
QString RSComm::PulseTrainRefusal(qint16 onDivision, qint16 offDivision, qint16 start,
                                  int scaleFactor) {
    if (onDivision <= 0 || offDivision <= 0)
        return QStringLiteral("ON Division and OFF Division Must be Greater Than 0.");
    if (scaleFactor % (onDivision + offDivision) != 0)
        return QStringLiteral("ON Division Plus OFF Division\r\nMust be a Multiple of %1.")
            .arg(scaleFactor);
    if (onDivision >= divisionLimit || offDivision >= divisionLimit)
        return QStringLiteral("ON Division or OFF Division Must be Less Than 255.");
    if (start > scaleFactor - 1)
        return QStringLiteral("Start Position Must Not Be Greater Than %1.").arg(scaleFactor - 1);
    return QString();
}

// When a time-out struck before the edge could count as given, the recall starts over, once.
bool RSComm::RecallChannel(qint16 Chan) {
    const Operation operation(*this);
    channelRecallState_ = RecallState::None;
    channelRecallPos_ = 0;
    if (!IsPLSChannel(Chan) || commError_)
        return false;
    std::array<std::uint8_t, 3> edge{}; // state, low and high byte of the position
    bool mayBeGiven = false;
    bool read = ReadEdge(Chan, edge, mayBeGiven);
    const bool timedOut = linkMode_ != LinkMode::PLSRecall;
    if (!read && timedOut && !mayBeGiven && !commError_)
        read = ReadEdge(Chan, edge, mayBeGiven);
    linkMode_ = LinkMode::None;
    if (!read || edge[2] > highestPositionByte)
        return false;
    channelRecallState_ = edge[0];
    channelRecallPos_ = static_cast<qint16>(edge[2] * 256 + edge[1]);
    return true;
}

// The raw position is position plus offset; the new offset makes it read as `Position`.
bool RSComm::SetPLSOffset(qint16 Position) {
    const Operation operation(*this);
    const int offset = ReadPLSWord(readOffset);
    const int position = offset == failedRead ? failedRead : ReadPLSWord(readPosition);
    const int scaleFactor = position == failedRead ? failedRead : ReadPLSWord(readScaleFactor);
    if (scaleFactor <= 0) // failed, or no cycle at all
        return false;
    if (Position > scaleFactor) {
        RefusePLS(QStringLiteral("Desired Position cannot be greater than Scale Factor of %1."
                                 "\r\n\r\nPLS Offset will not be Programmed.")
                      .arg(scaleFactor),
                  QStringLiteral("Set PLS Offset"));
        return false;
    }
    const int raw = (offset + position) % scaleFactor;
    return WritePLSWord(writeOffset, (scaleFactor + raw - Position) % scaleFactor);
}

bool RSComm::PLSConfigDownload(std::span<const qint16> CfgParam, qint16 ScaleFactor) {
    constexpr std::size_t count = blockCommands.size() * blockSize;
    if (CfgParam.size() < count || ScaleFactor < 0 ||
        !std::all_of(CfgParam.begin(), CfgParam.begin() + count, IsByte))
        return false;
    const Operation operation(*this);
    auto next = CfgParam.begin();
    for (const std::uint8_t command : blockCommands) {
        std::array<std::uint8_t, blockSize> block{};
        std::copy_n(next, blockSize, block.begin());
        if (!WritePLS(LinkMode::PLSBlock, command, block))
            return false;
        next += blockSize;
    }
    return WritePLSWord(writeScaleFactor, ScaleFactor);
}

const PLSConfigTable& RSComm::PLSConfigUpload() {
    const Operation operation(*this);
    std::array<std::uint8_t, std::tuple_size_v<PLSConfigTable>> bytes{};
    if (ReadPLSBytes(LinkMode::PLSTable, readTable, bytes)) {
        std::copy(bytes.begin(), bytes.end(), plsConfig_.begin());
    } else {
        commError_ = true;
        RefusePLS(QStringLiteral("Not able to Upload Configuration from PLS."),
                  QStringLiteral("PLS Upload"));
    }
    return plsConfig_;
}
