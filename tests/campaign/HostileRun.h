#pragma once

#include "base/ApplicationFolder.h"
#include "base/FileSystem.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "campaign/CheckedPort.h"
#include "campaign/RandomUser.h"
#include "support/VirtualClock.h"
#include <bitset>
#include <map>
#include <QStringList>

/// One run of the campaign: a user does a few things with a board on a line that loses, delays,
/// doubles and garbles what the board says. Everything follows from the seed.
class HostileRun {
public:
    /// `folder` is an empty folder for the files of the run.
    HostileRun(unsigned seed, const QString& folder);

    /// Runs it and gives what was found wrong; empty if all is well.
    QStringList Violations();

private:
    static constexpr int memorySize = 65536;

    // Setting.
    void FillMemory();
    void SpoilLine();
    void SpoilWithChances();
    void SpoilAtOneReply();

    // What the user does.
    void DoSomething();
    void ReopenAfterFailure();
    void ReadVariable();
    void WriteVariable();
    void AskBoard();
    void DumpProgram();
    void UploadProgram();
    void DownloadData();
    void UploadData();
    void DownloadDatafile();

    // What must hold.
    void CheckMemory();
    void CheckDumpComplete(const std::map<int, int>& image, std::size_t boxesBefore);
    void CheckFileIsWhole(const QString& name, const QByteArray& before,
                          const std::function<bool(const QByteArray&)>& isWhole);
    void Fail(const QString& what) { violations_ += what; }

    int Number(int low, int high);
    bool Chance(double probability);
    QString Path(const QString& name) const { return folder_ + u'/' + name; }
    void Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Read(const QString& name) const;
    /// The user asks for this byte to become this value.
    void Want(int address, int value);
    /// The user asks for a change of a part of this byte.
    void WantPart(int address);

    std::mt19937 random_;
    QString folder_;
    ApplicationFolder applicationFolder_;
    VirtualClock clock_;
    RandomUser user_;
    NoBusyDisplay busy_;
    FileSystem files_;
    haldenboard::SimulatedBoard board_;
    haldenboard::Line line_;
    CheckedPort port_;
    RSComm link_;
    QStringList violations_;
    QStringList story_;
    std::vector<std::uint8_t> memoryBefore_;
    std::map<int, std::vector<int>> wanted_;
    std::bitset<memorySize> anyValue_;
};
