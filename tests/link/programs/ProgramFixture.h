#pragma once

#include "base/ApplicationFolder.h"
#include "link/RSComm.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedPort.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

/// A folder for program sets and a link with scripted prompts, in virtual time. No port yet.
class ProgramTest : public testing::Test {
protected:
    /// Path of a file in the folder, which exists or not.
    QString Path(const QString& name) const { return folder.path() + u'/' + name; }
    /// Puts a file into the folder and returns its path.
    QString Write(const QString& name, const QByteArray& bytes) const;
    /// Bytes of a file of the folder; an absent file fails the test.
    QByteArray Read(const QString& name) const;
    /// Puts a set of four files into the folder and returns the path of its .hdn file.
    QString WriteSet(const QString& base, char board, const QByteArray& rev, const QByteArray& hex,
                     const QByteArray& lcf = {}) const;

    QTemporaryDir folder;
    ApplicationFolder applicationFolder{folder.path()};
    VirtualClock clock;
    ScriptedDialogs dialogs;
    NoBusyDisplay busy;
    RSComm link{dialogs, clock, busy, applicationFolder};
};

/// A program test on a port whose other end answers from a script. Each step of the script says
/// what must go out and what comes back; CheckWire compares the bytes that really went out.
class WireTest : public ProgramTest {
protected:
    /// Opens the port: attention, acknowledged.
    void GoOnline();
    /// `out` is sent and answered by `in`.
    void Pair(int out, int in);
    /// `out` is sent and answered by `in` after `seconds`.
    void Late(int out, int in, double seconds);
    /// `out` is sent and not answered.
    void Quiet(int out);
    /// `out` is sent three times over 5 seconds of silence: byte, attention, attention.
    void Dead(int out);
    /// Attention and a mode byte, both acknowledged.
    void Handshake(int modeByte);
    /// One byte in read mode.
    void ReadByte(int address, int data);
    /// One byte in write mode.
    void WriteByte(int address, int data);
    /// The ident block as a dump or an upload reads it, handshake included.
    void ReadIdentBlock(const QByteArray& ident, int checksum, int revision);
    /// A record: all bytes unanswered but the last, which is answered by `reply` (-1: silence).
    void Record(const std::vector<int>& bytes, int reply);
    /// A record answered by its right sum.
    void GoodRecord(const std::vector<int>& bytes);
    /// Dump request, fault reset and the attention after them.
    void RequestDump();
    /// The ident block as a dump writes it, handshake included.
    void WriteIdentBlock(const QByteArray& eightBytes, int checksum, int revision);
    /// The bytes sent since the port was opened are those of the script, no more and no fewer.
    void CheckWire() const;

    ScriptedPort port{clock};

private:
    std::vector<int> expected_;
};

/// Address of the board's ident block.
constexpr int identAddress = 0xEFF0;
