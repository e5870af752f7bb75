#include "base/Dialogs.h"
#include "pls/ReadPLSFileData.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>

TEST(PLSReadLimits, AChannelFileOfMoreThanAMillionLinesIsRefusedBeforeItFillsTheMemory) {
    const TestFolder folder;
    const QString hdnFile = folder.Write(QStringLiteral("CAM.hdn"), "E\r\n");
    ScriptedDialogs dialogs;
    folder.Write(QStringLiteral("CAM.CHL"), QByteArray(1'000'000, '\n'));
    EXPECT_TRUE(ReadPLSFileData(hdnFile, dialogs));
    folder.Write(QStringLiteral("CAM.CHL"), QByteArray(1'000'001, '\n'));
    dialogs.ExpectBoxTitled(QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    EXPECT_FALSE(ReadPLSFileData(hdnFile, dialogs));
}
