#pragma once

#include "base/MSComm.h"
#include <QSerialPort>

class ApplicationFolder;
class Clock;

/// The port on a serial device of the machine: 8 data bits, no parity, one stop bit, no flow
/// control. DTR and RTS are raised for as long as it is open, because isolators and converters on
/// a PROG port's cable take their supply from these lines.
///
/// While it is open the device is locked against other programs, and its driver is asked to hand
/// over each byte at once. A device that goes away is noticed by the first error that its driver
/// confirms: from then on PortOpen is false, nothing is sent or received, and the port can be
/// opened again once the device is back.
class SerialMSComm final : public MSComm {
public:
    /// `clock` gives the deadlines of WaitForInput, `folder` the links that name devices. Both must
    /// outlive the object.
    SerialMSComm(Clock& clock, const ApplicationFolder& folder);
    ~SerialMSComm() override;
    SerialMSComm(const SerialMSComm&) = delete;
    SerialMSComm& operator=(const SerialMSComm&) = delete;

    int CommPort() const override { return commPort_; }
    void SetCommPort(int port) override;
    QString Settings() const override;
    void SetSettings(const QString& settings) override;
    void SetInputLen(int length) override;
    void SetInputMode(int mode) override;
    bool PortOpen() const override { return isOpen_; }
    void SetPortOpen(bool open) override;
    int InBufferCount() override;
    void SetInBufferCount(int count) override;
    void Output(const QByteArray& bytes) override;
    QByteArray Input() override;
    bool WaitForInput(double deadline) override;

    /// The device that was opened last, resolved; empty before the first opening.
    const QString& Device() const { return device_; }

private:
    class Call;
    void Open();
    void Close();
    void HandOverBytesAtOnce();
    void TakeError(QSerialPort::SerialPortError error);
    bool ErrorIsLoss();
    void LosePort();
    bool TakeFromDriver(double seconds);

    Clock& clock_;
    const ApplicationFolder& folder_;
    QSerialPort serial_;
    QString device_;
    int commPort_ = 1;
    qint32 baud_ = 9600;
    int inputLength_ = 0;
    bool isOpen_ = false;
    bool restoreLatency_ = false;
    int calls_ = 0;            // how deep the calls into serial_ are on the stack
    bool errorStands_ = false; // an error came during the call and waits to be looked at
    int doubtfulErrors_ = 0;   // errors since the last byte that the driver did not confirm
};
