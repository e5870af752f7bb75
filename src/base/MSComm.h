#pragma once

#include <QByteArray>
#include <QString>

/// The serial port as the link uses it: a control with properties, and one blocking wait for
/// input, so that nothing spins. Every operation may raise a RunTimeError.
class MSComm {
public:
    virtual ~MSComm();

    /// Number of the port, 1 to 99.
    virtual int CommPort() const = 0;
    /// Sets the number. Raises InvalidPortNumber (8002) outside 1 to 99 and PortAlreadyOpen
    /// (8005) while the port is open.
    virtual void SetCommPort(int port) = 0;

    /// Baud rate followed by ",n,8,1".
    virtual QString Settings() const = 0;
    /// Sets speed and format, "9600,n,8,1". Raises InvalidProcedureCall (5) for any other form.
    virtual void SetSettings(const QString& settings) = 0;

    /// Bytes that one Input takes; 0 takes all there are. The link sets 1.
    virtual void SetInputLen(int length) = 0;
    /// 0 text, 1 binary; only binary is supported. Raises InvalidProcedureCall (5) for others.
    virtual void SetInputMode(int mode) = 0;

    /// True while the port is open and its device was not lost.
    virtual bool PortOpen() const = 0;
    /// Opens or closes. Opening raises DeviceUnavailable (68), PermissionDenied (70) or
    /// PortAlreadyOpen (8005) with a description that names the device and the cause.
    virtual void SetPortOpen(bool open) = 0;

    /// Received bytes that wait to be read.
    virtual int InBufferCount() = 0;
    /// With 0, discards the received bytes. Any other value raises InvalidProcedureCall (5).
    virtual void SetInBufferCount(int count) = 0;

    /// Sends the bytes; does not wait for them to leave.
    virtual void Output(const QByteArray& bytes) = 0;
    /// Takes up to InputLen received bytes; empty when there are none.
    virtual QByteArray Input() = 0;

    /// Blocks until at least one received byte waits (true) or the clock's monotonic seconds
    /// reach `deadline` (false). Runs no handler and no timer. Returns false early if the port
    /// is not open or is lost meanwhile; PortOpen tells.
    virtual bool WaitForInput(double deadline) = 0;
};
