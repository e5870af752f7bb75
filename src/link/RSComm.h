#pragma once

#include "link/ParsedAddress.h"
#include "link/ProgramConfig.h"
#include "link/ProgramIdent.h"
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <QString>
#include <QStringList>
#include <span>

class ApplicationFolder;
class BusyDisplay;
class Clock;
class Dialogs;
class HexImage;
class MSComm;
class RunTimeError;
class LongWait;
struct HexLine;

/// Result of an exchange that got no reply; no byte (0 to 255) has this value.
constexpr int noReply = 9999;

/// Steps into which the link can be put by a handshake: 0 none, 1 read, 2 write, 3 to 8 commands
/// of limit switch boards, 9 program mode while a dump enters it. A time-out puts it to none.
namespace LinkMode {
constexpr int None = 0;
constexpr int Read = 1;
constexpr int Write = 2;
constexpr int PLSChannel = 3;
constexpr int PLSReadWord = 4;
constexpr int PLSWriteWord = 5;
constexpr int PLSRecall = 6;
constexpr int PLSBlock = 7;
constexpr int PLSTable = 8;
constexpr int Program = 9;
} // namespace LinkMode

/// Values of a limit switch board's configuration as the board hands them out, 0 to 255 each.
using PLSConfigTable = std::array<qint16, 19>;

/// What ChannelRecallState holds besides the two kinds of edge.
namespace RecallState {
constexpr qint16 OffEdge = 0;
constexpr qint16 OnEdge = 1;
constexpr qint16 None = 2; ///< nothing is programmed, or the recall failed
} // namespace RecallState

/// The one object through which every byte to or from a target board passes.
///
/// The line is a lockstep of single bytes: one out, one in. There is no frame and no check byte;
/// integrity comes from the board echoing what it was sent. Failures never reach a caller as an
/// error: they set CommError, which stops all traffic until somebody clears it, and show the
/// link's own boxes. While a reply is waited for no handler and no timer runs.
class RSComm {
public:
    /// `dialogs` shows the link's boxes, `clock` measures time-outs, `busy` is told of long waits,
    /// `folder` holds the settings and the fault texts. All must outlive the object.
    RSComm(Dialogs& dialogs, Clock& clock, BusyDisplay& busy, const ApplicationFolder& folder);
    ~RSComm();
    RSComm(const RSComm&) = delete;
    RSComm& operator=(const RSComm&) = delete;

    // Board catalog and variable addresses: total functions that never touch the line. They are
    // described in TargetBoards.h, VariableAddress.h and MarkHex.h, where they are made.
    static QString TargetboardName(qint16 BoardType);
    static QString LCFBoardIndex(qint16 BoardType);
    static QString EquateAdd(const QString& Var, qint16 TargetBoardIndex);
    static bool ValidAdd(const QString& Var, qint16 TargetBoardIndex);
    static QString MarkHex2HEX(QString& MarkHEX);
    static QString HEX2MarkHEX(QString& HexCode);
    static qint16 Dec2Octal(qint16 DecNum);
    static qint16 Octal2Dec(qint16 OctNum);

    // State of the session.

    /// The link is open and trusted.
    bool OnlineMode() const { return onlineMode_; }
    void SetOnlineMode(bool online) { onlineMode_ = online; }
    /// A communication failure stands: no byte goes out until somebody clears it. It stands too for
    /// as long as one of the link's own Retry and Cancel boxes is up: a handler or a timer that
    /// runs behind the box must not break into the exchange that waits for the answer.
    bool CommError() const { return commError_ || asksUser_; }
    void SetCommError(bool error) { commError_ = error; }
    /// A reply time-out is under way: true from the first time-out until a byte arrives.
    bool CommErrorAlert() const { return commErrorAlert_; }
    void SetCommErrorAlert(bool alert) { commErrorAlert_ = alert; }
    /// Board index (TargetBoards.h) of the selected program set.
    qint16 TargetboardType() const { return targetboardType_; }
    void SetTargetboardType(qint16 index) { targetboardType_ = index; }
    /// A program dump runs.
    bool InProgramMode() const { return inProgramMode_; }
    /// A program upload is wanted or runs: set by the callers, cleared by UploadProgram.
    bool InUploadMode() const { return inUploadMode_; }
    void SetInUploadMode(bool UploadMode) { inUploadMode_ = UploadMode; }
    /// An operation of the link is on the stack, a box that it shows included: nobody else may
    /// use the line now.
    bool OperationRuns() const { return operations_ > 0; }

    // Port.

    /// Sets the port up from the settings file, opens it and sends attention. OnlineMode tells the
    /// outcome; a port that cannot be opened is reported by a box. Copes with an open port.
    void OpenRSComm(MSComm& CommObj);
    /// Leaves the board out of any mode, closes the port, goes offline. Harmless when closed.
    void CloseRSComm();
    /// Full path of the file with port number and baud.
    QString CommSettingsFile() const;

    // Variables: `Add` is a variable (VariableAddress.h) already passed through EquateAdd if it was
    // a point. One of which a byte would lie outside 0 to FFFFH, the addresses that the wire
    // carries, raises Overflow (6) before anything is sent; while CommError stands it does not.

    /// Value of a variable in decimal: bytes 0 to 255, words 0 to 65535, double words 0 to
    /// 655415535 (any bytes), bits 0 or 1. "0" on failure, so look at CommError before trusting it.
    QString RSRead(const QString& Add);
    /// Writes a decimal value: bytes 0 to 255, words 0 to 65535, double words 0 to 655359999,
    /// bits 0 or 1. A value that does not fit is refused with a box and nothing is sent. A wrong
    /// echo is retried once; a second one is silent.
    void RSWrite(const QString& Add, const QString& DataValue);
    /// Calls of RSRead and RSWrite, from the start on, that did not come to their end: a "0" that
    /// is no value of the board, a value that was refused or not echoed. Who must not take the one
    /// for the other compares before and after.
    quint64 FailedOperations() const { return failedOperations_; }

    // Faults and keep-alive.

    /// Current fault code of the board, 0 to 255; 0 while CommError stands.
    qint16 FaultCode();
    /// "Fault Code (05H): " and the text that the fault table holds for the code, 0 to 255.
    QString FaultDescription(qint16 FltCode);
    /// Offset of a limit switch board in divisions of the cycle, in decimal, 0 to 65535; "-9999" on
    /// failure.
    QString PLSOffset();
    /// Firmware revision of the board, 0 to 255; -1 while offline or in a communication failure.
    qint16 FirmwareRev();

    // Limit switch boards. Channels are plain numbers 0 to 63, positions are divisions of the
    // machine's cycle. Each command does its own handshake; those that write end when the board
    // reports ready, and false tells that the board may not have taken them. A command that a
    // time-out struck is never sent on: what the board holds of it is made void, and the caller
    // decides whether to send it again.

    /// Divisions of a cycle, position less offset, turns a minute: in decimal, 0 to 65535; "-9999"
    /// on failure.
    QString PLSScaleFactor();
    QString PLSPos();
    QString PLSRpm();
    /// Adds one setpoint to a channel; with `ClearChan` those before go first. A position from the
    /// scale factor up is refused with a box, a negative one and an unknown channel without. True
    /// when the board has taken the setpoint.
    bool SingleSetpoint(qint16 Chan, qint16 OnSetpoint, qint16 OffSetpoint, bool ClearChan);
    /// Programs a channel with pulses all round, from START_Division (0 to the scale factor less 1)
    /// on. Divisions 1 to 255 whose sum divides the scale factor; anything else is refused with a
    /// box, a negative start and an unknown channel without. True when the board has taken it.
    bool PulseTrain(qint16 Chan, qint16 ON_Division, qint16 OFF_Division, qint16 START_Division);
    /// Takes all setpoints from a channel.
    bool ClearPLSChan(qint16 Chan);
    /// Reads the next edge of a channel; the board goes round and keeps a place for each channel.
    /// What it read stands in the two members below. True when the board gave an edge or told that
    /// nothing is programmed.
    bool RecallChannel(qint16 Chan);
    /// Position of the edge last recalled, 0 to 4351; 0 after a failure.
    qint16 ChannelRecallPos() const { return channelRecallPos_; }
    /// What was last recalled: a RecallState, or what else the board answered.
    qint16 ChannelRecallState() const { return channelRecallState_; }
    /// Sets the offset so that the present position reads as `Position`, 0 to the scale factor; a
    /// higher one is refused with a box. True when the board has taken the offset.
    bool SetPLSOffset(qint16 Position);
    /// Sends the first 24 values of `CfgParam`, 0 to 255 each, as four blocks of six and then the
    /// scale factor, 0 to 32767, with which the board takes them over. Values that are no bytes and
    /// fewer than 24 are refused without a box. True when the board has taken all five.
    bool PLSConfigDownload(std::span<const qint16> CfgParam, qint16 ScaleFactor);
    /// Reads the configuration. A failure is reported by a box and leaves CommError set; the table
    /// is the one read before then.
    const PLSConfigTable& PLSConfigUpload();

    // Programs.

    /// Names a program set for DumpProgram and checks it; ValidProgram tells the outcome. Shows
    /// why a set cannot go to a board. Never touches the line.
    void DownloadFile(const QString& HDN_FileName);
    /// Names a program set for UploadProgram. Never touches the line.
    void UploadFile(const QString& HDN_FileName);
    /// Sends the image of the named set into the board and reports how it ended. A set that cannot
    /// be sent is refused before anything is written: the machine runs on, the link stays online.
    /// After a halt on the way the link is offline and the board may stand in program mode until
    /// it is opened again. ValidProgram is false after anything was written.
    void DumpProgram();
    /// Reads the image out of the board into the named set and reports how it ended: the .REV file
    /// first, then the .LCF file of a board with configuration bytes, the .HEX file last and whole.
    /// From 0xFF00 up the image holds 00: the high byte of such an address is attention, so the
    /// board cannot be asked for it.
    void UploadProgram();
    /// Address of the record in transfer: four hexadecimal digits and "H".
    const QString& CurrentProgramAdd() const { return currentProgramAdd_; }
    /// DumpProgram is writing the ident block.
    bool WritingIdent() const { return writingIdent_; }
    /// UploadProgram is reading the ident block.
    bool ReadingIdent() const { return readingIdent_; }
    /// The set named in the last DownloadFile passed its checks.
    bool ValidProgram() const { return validProgram_; }

private:
    // Counts how deep the link's operations are on the stack.
    class Operation {
    public:
        explicit Operation(RSComm& link) : link_(link) { ++link_.operations_; }
        ~Operation() { --link_.operations_; }
        Operation(const Operation&) = delete;
        Operation& operator=(const Operation&) = delete;

    private:
        RSComm& link_;
    };

    // RSCommPort.cpp: settings, opening, closing.
    void InitializeRSComm(MSComm& CommObj);
    void RetryOrGiveUp(const std::function<void()>& statement);
    void ReportPortError(const RunTimeError& error);

    // RSCommExchange.cpp: one byte out, one byte in.
    enum class Reply { Wait, None };
    enum class InputBuffer { Keep, Clear };
    int ExchangeByte(std::uint8_t byte, Reply reply = Reply::Wait,
                     InputBuffer input = InputBuffer::Keep);
    int ExchangeOverPort(std::uint8_t byte, Reply reply, InputBuffer input);
    int FailLink();
    int AwaitReply();
    bool InputArrives(double deadline, LongWait& display);
    bool InputArrivesWithin(double seconds);
    void SendByte(std::uint8_t byte);
    bool UserRetries(const QString& text);
    bool UserRetriesLine();
    bool SetTargetMode(int mode, std::uint8_t modeByte, int dataBytes = 0);
    bool BoardAwaitsCommand(int mode);
    bool LetLineFallQuiet();
    int SendAttention();
    void WaitSeconds(double seconds);

    // RSCommVariables.cpp: read and write mode.
    static QString ByteVariable(qint32 address) { return u'B' + QString::number(address); }
    QString ReadVariable(const QString& variable);
    void ParseForReading(const QString& variable);
    bool ReadByteAt(qint32 address, std::uint8_t& data);
    QString ComposeValue() const;
    void WriteVariable(const QString& Add, const QString& DataValue);
    std::optional<double> NumberToWrite(const QString& DataValue);
    std::optional<double> ByteWithBit(const ParsedAddress& target, double bit);
    void SendBytes(qint32 address, const QByteArray& bytes);
    bool EchoedAlike(std::uint8_t byte, bool& answered);
    void RefuseEntry(const QString& reason);

    // RSCommPLSShapes.cpp: the shapes of the limit switch commands on the line.
    int ReadPLSWord(std::uint8_t command);
    bool ReadPLSBytes(int mode, std::uint8_t command, std::span<std::uint8_t> bytes);
    bool ClockBytes(int mode, std::span<std::uint8_t> bytes);
    bool SendPLSData(int mode, std::uint8_t command, std::span<const std::uint8_t> data);
    bool WritePLS(int mode, std::uint8_t command, std::span<const std::uint8_t> data);
    bool WritePLSWord(std::uint8_t command, int value);
    bool WriteChannelRecord(std::uint8_t command, qint16 channel, int first, int second, bool flag);
    bool WaitPLSReady();
    bool BoardSaysReady(int mode);
    bool ReadEdge(qint16 channel, std::array<std::uint8_t, 3>& edge, bool& mayBeGiven);

    // RSCommPLS.cpp: commands of limit switch boards.
    static bool IsPLSChannel(qint16 channel);
    void RefusePLS(const QString& text, const QString& title);
    bool SetpointFits(qint16 setpoint, int scaleFactor);
    static QString PulseTrainRefusal(qint16 onDivision, qint16 offDivision, qint16 start,
                                     int scaleFactor);

    // RSCommProgramSet.cpp: the files of a program set.
    void SetProgramIdent(const QString& revFile);
    void SetProgramConfig(const QString& lcfFile);
    void NameProgramSet(const QString& hdnFile);
    bool ReadBoardIndex(const QString& hdnFile);
    void CheckProgramSet(const QString& hdnFile);
    void CheckProgramFiles();
    void RefuseProgramFile(const QString& reason);

    // RSCommDump.cpp: a program dump, step by step. RSCommDumpRecords.cpp: its records.
    enum class RecordsEnd { AllSent, LinkFailed, Halted };
    void RunDump();
    bool DumpMayStart();
    ProgramIdent IdentInBoard();
    bool UserWantsDump();
    std::optional<HexImage> ImageToSend();
    void RequestDump();
    void WriteConfiguration();
    void EnterProgramMode();
    RecordsEnd SendRecords(const HexImage& image);
    bool SendRecord(const HexLine& record, std::optional<std::uint8_t>& lastReply);
    std::optional<std::uint8_t> RecordReply();
    bool LeaveProgramMode();
    void WriteIdentBlock();
    void ReportDump();
    void HaltDump(const QString& reason, int style, const QString& title);

    // RSCommUpload.cpp: a program upload.
    void RunUpload();
    void WriteTextLine(const QString& path, const QString& line);
    std::optional<QString> ReadRevLine();
    void ReadConfiguration();
    bool UploadImage();
    QByteArray ReadImageLine(qint32 address);
    int ReadProgramByte(qint32 address);
    void ReportUploadFailed();
    void ReportUploadComplete();

    Dialogs& dialogs_;
    Clock& clock_;
    BusyDisplay& busy_;
    const ApplicationFolder& folder_;
    MSComm* port_ = nullptr;

    bool onlineMode_ = false;
    bool commError_ = false;
    bool commErrorAlert_ = false;
    bool asksUser_ = false; // a box is up in the middle of an exchange
    qint16 targetboardType_ = 0;
    bool inProgramMode_ = false;
    bool inUploadMode_ = false;
    int operations_ = 0;

    int linkMode_ = LinkMode::None;
    bool inDoubt_ = false; // what arrives next may answer an earlier byte
    int dataOwed_ = 0;     // data bytes of a command that the board may still be waiting for
    bool writeFailed_ = false;
    bool writeTaken_ = false; // all bytes of the last write were echoed
    quint64 failedOperations_ = 0;
    bool portSettingsBad_ = false;

    ParsedAddress parsed_;
    std::optional<QString> lastVariable_; // the text that parsed_ was made from by a read
    int lastByteCount_ = 0;               // 1, 2 or 4
    std::array<std::uint8_t, 4> lastBytes_{};

    qint16 channelRecallPos_ = 0;
    qint16 channelRecallState_ = 0;
    PLSConfigTable plsConfig_{};

    QString currentProgramAdd_;
    bool writingIdent_ = false;
    bool readingIdent_ = false;
    bool validProgram_ = false;
    ProgramIdent program_;
    ProgramConfig config_;
    QString hdnPath_;
    QString revPath_;
    QString hexPath_;
    QString lcfPath_;
    QString boardName_;
    qint16 boardIndex_ = 0;
};
