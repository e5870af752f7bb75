#include "programset/ToolCommand.h"

#include "link/TargetBoards.h"
#include <gtest/gtest.h>
#include <QProcess>

namespace {
std::string CommandOf(qint16 board) {
    return ToolCommand(u"/halden"_qs, board, u"/sets/PUMP"_qs).toStdString();
}
} // namespace

TEST(ToolCommand, ControllersOfTheFirstFamilyStartTheirConfigurationTool) {
    for (const qint16 board : {49, 51, 52, 53, 54, 56, 58, 59, 60, 61, 65, 66})
        EXPECT_EQ(CommandOf(board),
                  "/halden/tgt51/pgmsetup1.exe /sets/PUMP=" + LCFBoardIndex(board).toStdString())
            << board;
    EXPECT_EQ(CommandOf(54), "/halden/tgt51/pgmsetup1.exe /sets/PUMP=D");
}

TEST(ToolCommand, ControllersOfTheSecondFamilyStartTheirConfigurationTool) {
    EXPECT_EQ(CommandOf(50), "/halden/tgt96/pgmsetup.exe /sets/PUMP=1");
    EXPECT_EQ(CommandOf(68), "/halden/tgt96/pgmsetup.exe /sets/PUMP=G");
}

TEST(ToolCommand, LimitSwitchBoardsStartTheDevelopmentTool) {
    for (const qint16 board : {55, 62, 63, 64, 67})
        EXPECT_EQ(CommandOf(board), "/halden/lmt51/limtool.exe /sets/PUMP") << board;
    EXPECT_EQ(CommandOf(69), "/halden/lmt51/limtool45.exe /sets/PUMP");
}

TEST(ToolCommand, OtherIndexesStartNothing) {
    for (const qint16 board : {0, 48, 57, 70, 255})
        EXPECT_TRUE(CommandOf(board).empty()) << board;
}

TEST(ToolCommand, PartsWithBlanksAndQuotesStayOnePart) {
    const QString command = ToolCommand(u"/my halden"_qs, 54, u"/my \"sets\"/PUMP"_qs);
    EXPECT_EQ(QProcess::splitCommand(command),
              (QStringList{u"/my halden/tgt51/pgmsetup1.exe"_qs, u"/my \"sets\"/PUMP=D"_qs}));
}

TEST(ToolStem, IsThePathWithoutTheLastFourCharacters) {
    EXPECT_EQ(ToolStem(u"/sets/PUMP.HDN"_qs).toStdString(), "/sets/PUMP");
    EXPECT_EQ(ToolStem(u"/PUMP.HDN"_qs).toStdString(), "/PUMP");
}
