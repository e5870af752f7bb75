#include "programset/ShortName.h"

#include "programset/SetFolder.h"
#include <gtest/gtest.h>

TEST(ShortName, UpToEightCharactersStay) {
    EXPECT_EQ(ShortFormOf(u"pump"_qs, {u"PUMP"_qs}).toStdString(), "pump");
    EXPECT_EQ(ShortFormOf(u"Pump 1,2"_qs, {}).toStdString(), "Pump 1,2");
}

TEST(ShortName, NineCharactersBecomeSixLettersAndDigitsInUpperCase) {
    EXPECT_EQ(ShortFormOf(u"pumpstatn"_qs, {}).toStdString(), "PUMPST~1");
    EXPECT_EQ(ShortFormOf(u"a 1-b 2.c3d4"_qs, {}).toStdString(), "A1B2C3~1");
    EXPECT_EQ(ShortFormOf(u"\"---, ---\""_qs, {}).toStdString(), "~1");
    EXPECT_EQ(ShortFormOf(u"Köhlerpumpe"_qs, {}).toStdString(), "KÖHLER~1");
}

TEST(ShortName, LowestNumberThatNoSetBears) {
    EXPECT_EQ(ShortFormOf(u"pumpstation"_qs, {u"pumpst~1"_qs, u"PUMPST~3"_qs}).toStdString(),
              "PUMPST~2");
}

TEST(ShortName, FromTheTenthOnEightCharactersAreKept) {
    QStringList taken;
    for (int number = 1; number < 10; ++number)
        taken.append(u"PUMPST~%1"_qs.arg(number));
    EXPECT_EQ(ShortFormOf(u"pumpstation"_qs, taken).toStdString(), "PUMPS~10");
}

TEST(ShortName, FilesOfTheFolderCountWhateverTheirExtension) {
    SetFolder folder;
    folder.Make(u"PUMPST~1.HEX"_qs);
    EXPECT_EQ(ShortBaseName(folder.Path(), u"pumpstation"_qs).toStdString(), "PUMPST~2");
}
