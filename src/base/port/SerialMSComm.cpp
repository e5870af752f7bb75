#include "base/port/SerialMSComm.h"

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/port/LinuxPort.h"
#include "base/port/PortDevices.h"
#include "base/port/PortTrouble.h"
#include "base/RunTimeError.h"
#include <algorithm>
#include <cmath>
#include <QRegularExpression>
#include <utility>

namespace {
constexpr int lowestPort = 1;
constexpr int highestPort = 99;
constexpr int binaryInput = 1;
constexpr qint64 inputBufferSize = 4096; // bytes; noise on an idle line fills no more than this
constexpr int mostDoubtfulErrors = 3;
constexpr double longestWait = 3600; // seconds in one call, so that milliseconds fit an integer

[[noreturn]] void Raise(const PortTrouble& trouble) {
    throw RunTimeError(trouble.number, trouble.description);
}

// The handle of the system, which is a number on one and a pointer on the other.
qintptr HandleOf(const QSerialPort& serial) {
    return qintptr(serial.handle());
}
} // namespace

// A call into serial_. An error that comes meanwhile is looked at when the call is over: a port
// must not be closed under its own feet.
class SerialMSComm::Call {
public:
    explicit Call(SerialMSComm& port) : port_(port) { ++port_.calls_; }
    ~Call() {
        if (--port_.calls_ == 0 && std::exchange(port_.errorStands_, false) && port_.ErrorIsLoss())
            port_.LosePort();
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

private:
    SerialMSComm& port_;
};

SerialMSComm::SerialMSComm(Clock& clock, const ApplicationFolder& folder)
    : clock_(clock), folder_(folder) {
    serial_.setReadBufferSize(inputBufferSize);
    QObject::connect(&serial_, &QSerialPort::errorOccurred, &serial_,
                     [this](QSerialPort::SerialPortError error) { TakeError(error); });
}

SerialMSComm::~SerialMSComm() {
    Close();
}

void SerialMSComm::SetCommPort(int port) {
    if (port < lowestPort || port > highestPort)
        throw RunTimeError(ErrorNumber::InvalidPortNumber);
    if (isOpen_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    commPort_ = port;
}

QString SerialMSComm::Settings() const {
    return QString::number(baud_) + QLatin1String(",n,8,1");
}

void SerialMSComm::SetSettings(const QString& settings) {
    static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{0,6}),n,8,1$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(settings);
    if (!match.hasMatch())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    baud_ = match.captured(1).toInt();
    const Call call(*this);
    if (!serial_.setBaudRate(baud_) && isOpen_)
        throw RunTimeError(ErrorNumber::DeviceIOError);
}

void SerialMSComm::SetInputLen(int length) {
    if (length < 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    inputLength_ = length;
}

void SerialMSComm::SetInputMode(int mode) {
    if (mode != binaryInput)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

void SerialMSComm::SetPortOpen(bool open) {
    if (open)
        Open();
    else
        Close();
}

void SerialMSComm::Open() {
    if (isOpen_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    Close();
    device_ = PortDevices::Read(folder_).Device(commPort_);
    if (device_.isEmpty())
        Raise(ExplainPortTrouble(GatherPortFacts(commPort_, device_, false, QString())));
    serial_.setPortName(device_);
    serial_.setBaudRate(baud_);
    serial_.setDataBits(QSerialPort::Data8);
    serial_.setParity(QSerialPort::NoParity);
    serial_.setStopBits(QSerialPort::OneStop);
    serial_.setFlowControl(QSerialPort::NoFlowControl);
    if (!serial_.open(QIODevice::ReadWrite)) {
        const bool isBusy = serial_.error() == QSerialPort::PermissionError ||
                            serial_.error() == QSerialPort::OpenError;
        Raise(
            ExplainPortTrouble(GatherPortFacts(commPort_, device_, isBusy, serial_.errorString())));
    }
    // A pseudo-terminal has no such lines and refuses, which does no harm.
    serial_.setDataTerminalReady(true);
    serial_.setRequestToSend(true);
    HandOverBytesAtOnce();
    doubtfulErrors_ = 0;
    errorStands_ = false;
    isOpen_ = true;
}

// USB adapters hold bytes back for up to 16 ms to gather more of them: in a lockstep of single
// bytes there are never more to come.
void SerialMSComm::HandOverBytesAtOnce() {
    restoreLatency_ = LinuxPort::LowLatency(HandleOf(serial_)) == std::optional(false);
    if (restoreLatency_)
        LinuxPort::SetLowLatency(HandleOf(serial_), true);
}

void SerialMSComm::Close() {
    isOpen_ = false;
    if (!serial_.isOpen())
        return;
    const Call call(*this);
    if (std::exchange(restoreLatency_, false))
        LinuxPort::SetLowLatency(HandleOf(serial_), false);
    serial_.close();
}

// Called by serial_ in the middle of its work: in one of our calls, or when the event loop tells
// it that something happened on an idle line.
void SerialMSComm::TakeError(QSerialPort::SerialPortError error) {
    const bool isHarmless = error == QSerialPort::NoError || error == QSerialPort::TimeoutError ||
                            error == QSerialPort::UnsupportedOperationError;
    if (isHarmless || !isOpen_)
        return;
    if (calls_ > 0) {
        errorStands_ = true;
        return;
    }
    if (!ErrorIsLoss())
        return;
    isOpen_ = false;
    QMetaObject::invokeMethod(
        &serial_,
        [this] {
            if (!isOpen_)
                LosePort();
        },
        Qt::QueuedConnection);
}

// An error is the loss of the port when the driver confirms it. A single one that it does not
// confirm may be a wake-up for a byte that was taken meanwhile; several in a row without a byte
// between them are a loss too, whatever the driver says.
bool SerialMSComm::ErrorIsLoss() {
    return isOpen_ && (LinuxPort::HungUp(HandleOf(serial_)) || LinuxPort::NodeIsGone(device_) ||
                       ++doubtfulErrors_ > mostDoubtfulErrors);
}

// Nothing is put back on a device that is gone.
void SerialMSComm::LosePort() {
    restoreLatency_ = false;
    Close();
}

int SerialMSComm::InBufferCount() {
    if (!isOpen_)
        return 0;
    return static_cast<int>(serial_.bytesAvailable()) +
           LinuxPort::DriverInputCount(HandleOf(serial_));
}

void SerialMSComm::SetInBufferCount(int count) {
    if (count != 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    if (!isOpen_)
        return;
    const Call call(*this);
    serial_.clear(QSerialPort::Input);
    // Reading stops when the buffer is full and is taken up again by a read or by this: without
    // it nobody would notice on an idle line that the device goes away.
    serial_.setReadBufferSize(inputBufferSize);
}

void SerialMSComm::Output(const QByteArray& bytes) {
    if (!isOpen_)
        return;
    const Call call(*this);
    serial_.write(bytes);
    serial_.flush();
}

QByteArray SerialMSComm::Input() {
    if (!isOpen_)
        return QByteArray();
    const bool wantsMore = inputLength_ == 0 || serial_.bytesAvailable() < inputLength_;
    if (wantsMore && LinuxPort::DriverInputCount(HandleOf(serial_)) > 0)
        TakeFromDriver(0);
    if (!isOpen_)
        return QByteArray();
    return inputLength_ == 0 ? serial_.readAll() : serial_.read(inputLength_);
}

// Lets serial_ read what the driver has, after a wait of up to `seconds` for it. True when a byte
// came.
bool SerialMSComm::TakeFromDriver(double seconds) {
    const Call call(*this);
    const double wait = std::clamp(seconds, 0.0, longestWait);
    return serial_.waitForReadyRead(static_cast<int>(std::ceil(wait * 1000)));
}

bool SerialMSComm::WaitForInput(double deadline) {
    while (isOpen_) {
        if (serial_.bytesAvailable() > 0)
            return true;
        const double left = deadline - clock_.MonotonicSeconds();
        if (TakeFromDriver(left)) {
            doubtfulErrors_ = 0;
            return true;
        }
        // An early end without a byte, and every end of a wait, is worth a look at the device.
        if (isOpen_ && (LinuxPort::HungUp(HandleOf(serial_)) || LinuxPort::NodeIsGone(device_)))
            LosePort();
        if (left <= 0)
            return false;
    }
    return false;
}
