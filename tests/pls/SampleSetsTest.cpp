#include "pls/PLSFileTexts.h"
#include "pls/PLSLayout.h"
#include "PLSUnderTest.h"
#include "support/PrintText.h"
#include <QFile>

namespace {
const QString samples = QStringLiteral(QUENTOR_SAMPLES);

QByteArray Content(const QString& name) {
    QFile file(samples + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

// The samples are written by a script that shares nothing with this program.
void ExpectRebuilt(const QString& name, const PLSLayout& layout) {
    EXPECT_EQ(BuildPCFText(gPLS, layout) + "\r\n", QString::fromLatin1(Content(name + ".PCF")));
    EXPECT_EQ(BuildCHLText(gPLS, layout) + "\r\n", QString::fromLatin1(Content(name + ".CHL")));
}

using SampleSets = PLSUnderTest;
} // namespace

TEST_F(SampleSets, TheSetOfTheR6500LayoutIsReadAndRebuiltByteForByte) {
    ASSERT_TRUE(ReadPLSFileData(samples + QStringLiteral("/CAM1.hdn"), dialogs_));
    EXPECT_EQ(gPLS.ScaleFactor, 1000);
    EXPECT_EQ(gPLS.SpeedComp[5], 25);
    EXPECT_EQ(gPLS.Chan[3], OnOff({{930, 80}}));
    EXPECT_EQ(gPLS.Chan[5], OnOff({{300, 310}, {340, 350}, {380, 390}, {980, 5}}));
    EXPECT_EQ(ChannelLabel(gPLS.ChanHeader[2], r6500Layout), QString("REJECT GATE, LINE 2"));
    ExpectRebuilt(QStringLiteral("CAM1"), r6500Layout);
}

TEST_F(SampleSets, TheSetOfTheStandardLayoutIsReadAndRebuiltByteForByte) {
    ASSERT_TRUE(ReadPLSFileData(samples + QStringLiteral("/CAM2.hdn"), dialogs_));
    EXPECT_EQ(gPLS.OptionFlags, 3);
    EXPECT_EQ(gPLS.HighThreshold, 120);
    EXPECT_EQ(gPLS.Chan[15], OnOff({{0, 359}}));
    EXPECT_EQ(gPLS.Chan[14], PlaceholderList());
    ExpectRebuilt(QStringLiteral("CAM2"), standardLayout);
}
