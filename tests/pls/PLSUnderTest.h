#pragma once

#include "pls/ReadPLSFileData.h"
#include "session/Globals.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>

/// A program set SET of one board in a folder of its own, read into gPLS, which is blank at the
/// start and at the end of each test.
class PLSUnderTest : public testing::Test {
protected:
    PLSUnderTest();
    ~PLSUnderTest() override;

    void WriteHdn(qint16 board);
    void WritePCF(const QByteArray& bytes) { folder_.Write("SET.PCF", bytes); }
    void WriteCHL(const QByteArray& bytes) { folder_.Write("SET.CHL", bytes); }
    QString HdnFile() const { return folder_.Path("SET.hdn"); }
    /// Reads the set; any box fails the test.
    bool Read();
    /// Reads the set, which must be reported as this error.
    void ExpectReadError(int number);

    TestFolder folder_;
    ScriptedDialogs dialogs_;
};

/// A list of setpoints from pairs of ON and OFF.
SetpointList OnOff(std::initializer_list<std::pair<qint16, qint16>> spans);

/// The list of a channel without a span.
SetpointList PlaceholderList();
