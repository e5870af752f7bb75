#include "pls/jobs/PLSJobsFixture.h"

#include <algorithm>
#include <QFile>

PLSJobsFixture::PLSJobsFixture(int boardIndex) {
    gPLS = PLSRecord();
    gPLSSnapshot = PLSRecord();
    gHdnFile = SetFile("hdn");
    ConnectBoard(boardIndex);
}

PLSJobsFixture::~PLSJobsFixture() {
    gPLS = PLSRecord();
    gPLSSnapshot = PLSRecord();
    gHdnFile.clear();
}

void PLSJobsFixture::ConnectBoard(int boardIndex) {
    if (boardPort && boardPort->PortOpen())
        boardPort->SetPortOpen(false);
    WriteSetFile("hdn", QByteArray(1, static_cast<char>(boardIndex)) + "\r\n");
    board = std::make_unique<haldenboard::SimulatedBoard>(boardIndex);
    line = std::make_unique<haldenboard::Line>(*board);
    boardPort = std::make_unique<BoardPort>(clock, *line);
    link.OpenRSComm(*boardPort);
    ASSERT_TRUE(link.OnlineMode());
}

void PLSJobsFixture::Configure(int channels, int scaleFactor) {
    std::array<qint16, 24> table{};
    table[18] = static_cast<qint16>(channels);
    ASSERT_TRUE(link.PLSConfigDownload(table, static_cast<qint16>(scaleFactor)));
    gPLS.ScaleFactor = static_cast<qint16>(scaleFactor);
    gPLS.Channels = static_cast<qint16>(channels);
}

void PLSJobsFixture::Program(int channel, const SetpointList& setpoints) {
    ASSERT_TRUE(link.ClearPLSChan(static_cast<qint16>(channel)));
    for (const Setpoint& setpoint : setpoints)
        ASSERT_TRUE(
            link.SingleSetpoint(static_cast<qint16>(channel), setpoint.on, setpoint.off, false));
}

void PLSJobsFixture::CutLineAtReply(int nth) {
    line->Faults().Order(
        {.kind = haldenboard::FaultKind::Lost, .nth = nth, .standing = true, .bytes = {}});
}

void PLSJobsFixture::SpoilReply(int nth) {
    line->Faults().Order({.kind = haldenboard::FaultKind::Wrong, .nth = nth, .bytes = {}});
}

int PLSJobsFixture::RepliesSoFar() const {
    return static_cast<int>(
        std::count_if(line->Log().begin(), line->Log().end(),
                      [](const haldenboard::LoggedByte& byte) { return !byte.toBoard; }));
}

void PLSJobsFixture::WriteSetFile(const char* extension, const QByteArray& content) const {
    QFile file(SetFile(extension));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray PLSJobsFixture::SetFileContent(const char* extension) const {
    QFile file(SetFile(extension));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}
