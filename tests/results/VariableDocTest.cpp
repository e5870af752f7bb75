#include "results/VariableDoc.h"

#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>

namespace {
class VariableDocFile : public testing::Test {
protected:
    int Names(const QByteArray& content) {
        return doc.Read(folder.Write("PUMP.nam", content), NameKind::NicName);
    }
    int Descriptions(const QByteArray& content) {
        return doc.Read(folder.Write("PUMP.doc", content), NameKind::Description);
    }
    /// "F0012=START|Starts the pump", row by row.
    QStringList Rows() const {
        QStringList rows;
        for (const VariableDoc::Row& row : doc.Rows())
            rows += row.variable + '=' + row.nicName + '|' + row.description;
        return rows;
    }
    void ExpectBounds(const QByteArray& content) {
        for (const NameKind kind : {NameKind::NicName, NameKind::Description})
            ExpectError(ErrorNumber::SubscriptOutOfRange,
                        [&] { VariableDoc().Read(folder.Write("BAD.txt", content), kind); });
    }

    TestFolder folder;
    VariableDoc doc;
};
} // namespace

TEST_F(VariableDocFile, EachSectionHasItsLetterAndItsBits) {
    EXPECT_EQ(Names("0005START\r\n&\r\n0100COUNT\r\n/\r\n3DONE\r\n#\r\n0101LEVEL\r\n&\r\n"
                    "0010PRESS\r\n&\r\n0011VALVE\r\n&\r\n0012IMAGE\r\n/\r\n7TOP\r\n"),
              8);
    EXPECT_EQ(Rows(),
              (QStringList{"F0005=START|", "B0100=COUNT|", "B0100.3=DONE|", "B0101=LEVEL|",
                           "X0010=PRESS|", "Y0011=VALVE|", "I0012=IMAGE|", "I0012.7=TOP|"}));
}

TEST_F(VariableDocFile, ANameWithNoLineInTheDescriptionsGivesARowWithAnEmptyDescription) {
    Names("0005START\r\n0006STOP\r\n");
    Descriptions("0006Stops the pump\r\n0007Only described\r\n");
    EXPECT_EQ(Rows(),
              (QStringList{"F0005=START|", "F0006=STOP|Stops the pump", "F0007=|Only described"}));
}

TEST_F(VariableDocFile, ASlashNotClosedLeavesTheFollowingLinesReadAsBitEntries) {
    Names("&\r\n0100COUNT\r\n/\r\n3DONE\r\n0101LEVEL\r\n");
    EXPECT_EQ(Rows(), (QStringList{"B0100=COUNT|", "B0100.0=101LEVEL|", "B0100.3=DONE|"}));
}

TEST_F(VariableDocFile, BitModeEndsAtACommentAndAtTheEndOfASection) {
    Names("&\r\n0100A\r\n/\r\n# a comment\r\n0101B\r\n/\r\n&\r\n0010C\r\n");
    EXPECT_EQ(Rows(), (QStringList{"B0100=A|", "B0101=B|", "X0010=C|"}));
}

TEST_F(VariableDocFile, ASixthSectionIsNotRead) {
    EXPECT_EQ(Names("&\r\n&\r\n&\r\n&\r\n0001IN\r\n&\r\n9999OUT\r\n\r\n"), 1);
    EXPECT_EQ(Rows(), QStringList{"I0001=IN|"});
}

TEST_F(VariableDocFile, FlagNumber12ShowsWith0012AsItsNumberPart) {
    Names("0012TWELVE\r\n");
    EXPECT_EQ(Rows(), QStringList{"F0012=TWELVE|"});
}

TEST_F(VariableDocFile, NumbersArePaddedToFourDigits) {
    Names("&\r\n0032A\r\n0100B\r\n1000C\r\n8175D\r\n");
    EXPECT_EQ(Rows(), (QStringList{"B0032=A|", "B0100=B|", "B1000=C|", "B8175=D|"}));
}

TEST_F(VariableDocFile, AddressesMayStandWithBlanks) {
    Names("  12A\r\n7   B\r\n");
    EXPECT_EQ(Rows(), (QStringList{"F0007=B|", "F0012=A|"}));
}

TEST_F(VariableDocFile, BytesBelow32AreReadButNotShown) {
    EXPECT_EQ(Names("&\r\n0031HIDDEN\r\n/\r\n1BIT\r\n#\r\n0032SHOWN\r\n"), 3);
    EXPECT_EQ(Rows(), QStringList{"B0032=SHOWN|"});
}

TEST_F(VariableDocFile, ACommaIsPartOfTheText) {
    Descriptions("0001Pump, valve, \"fan\"\r\n");
    EXPECT_EQ(Rows(), QStringList{"F0001=|Pump, valve, \"fan\""});
}

TEST_F(VariableDocFile, ControlLinesAreToldByTheirFirstCharacterWhateverTheirLength) {
    EXPECT_EQ(Names("#0001A\r\n& bytes\r\n0100B\r\n/ bits\r\n2C\r\n"), 2);
    EXPECT_EQ(Rows(), (QStringList{"B0100=B|", "B0100.2=C|"}));
}

TEST_F(VariableDocFile, TextsOfBlanksAreNotShown) {
    EXPECT_EQ(Names("0001   \r\n0002\r\n03\r\n"), 3);
    EXPECT_TRUE(Rows().isEmpty());
}

TEST_F(VariableDocFile, TheFlagsHaveNoBits) {
    Names("0001A\r\n/\r\n9B\r\n");
    EXPECT_EQ(Rows(), QStringList{"F0001=B|"});
}

TEST_F(VariableDocFile, TheLastAddressOfEachSectionIsTaken) {
    Names("0991A\r\n&\r\n8175B\r\n/\r\n7b\r\n&\r\n0151C\r\n&\r\n0151D\r\n&\r\n0151E\r\n");
    EXPECT_EQ(Rows(), (QStringList{"F0991=A|", "B8175=B|", "B8175.7=b|", "X0151=C|", "Y0151=D|",
                                   "I0151=E|"}));
}

TEST_F(VariableDocFile, AnAddressBeyondItsSectionRaisesABoundsErrorInEitherFile) {
    ExpectBounds("0992A\r\n");
    ExpectBounds("&\r\n8176A\r\n");
    ExpectBounds("&\r\n&\r\n0152A\r\n");
    ExpectBounds("&\r\n&\r\n&\r\n0152A\r\n");
    ExpectBounds("&\r\n&\r\n&\r\n&\r\n0152A\r\n");
}

TEST_F(VariableDocFile, AnAddressBelowZeroRaisesABoundsError) {
    ExpectBounds("-001A\r\n");
    ExpectBounds("&\r\n-1  A\r\n");
}

TEST_F(VariableDocFile, ABitAbove7RaisesABoundsError) {
    ExpectBounds("&\r\n0100A\r\n/\r\n8B\r\n");
    ExpectBounds("&\r\n&\r\n/\r\n9B\r\n");
}

TEST_F(VariableDocFile, ABitOfAnAddressTheSectionDoesNotHaveRaisesABoundsError) {
    ExpectBounds("&\r\n8000A\r\n&\r\n/\r\n1B\r\n");
}

TEST_F(VariableDocFile, AnEmptyLineIsAnError) {
    ExpectError(ErrorNumber::InvalidProcedureCall, [&] { Names("0001A\r\n\r\n0002B\r\n"); });
    EXPECT_EQ(Rows(), QStringList{"F0001=A|"}); // what was read so far is kept
}

TEST_F(VariableDocFile, AnEmptyFileHasNoEntries) {
    EXPECT_EQ(Names(""), 0);
    EXPECT_TRUE(Rows().isEmpty());
}

TEST_F(VariableDocFile, AMissingFileRaisesAnError) {
    ExpectError(ErrorNumber::FileNotFound,
                [&] { doc.Read(folder.Path("NONE.nam"), NameKind::NicName); });
}

TEST_F(VariableDocFile, BinaryRubbishIsReadOrRefused) {
    unsigned seed = 12345;
    for (int round = 0; round < 200; ++round) {
        QByteArray rubbish;
        for (int byte = 0; byte < 400; ++byte) {
            seed = seed * 1103515245u + 12345u;
            rubbish += static_cast<char>(seed >> 16);
        }
        try {
            VariableDoc read;
            read.Read(folder.Write("RUBBISH.nam", rubbish), NameKind::NicName);
            read.Rows();
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.Number() == ErrorNumber::SubscriptOutOfRange ||
                        error.Number() == ErrorNumber::InvalidProcedureCall)
                << error.Number();
        }
    }
}

TEST_F(VariableDocFile, OneEndlessLineIsOneEntry) {
    EXPECT_EQ(Names("0001" + QByteArray(1000000, 'x')), 1);
    EXPECT_EQ(doc.Rows().at(0).nicName.size(), 1000000);
    ExpectError(ErrorNumber::OutOfMemory, [&] { Names(QByteArray(17 * 1024 * 1024, 'x')); });
    ExpectError(ErrorNumber::OutOfMemory,
                [&] { Names(QByteArray("0001\n").repeated(4 * 1024 * 1024)); });
}

TEST_F(VariableDocFile, CutInTheMiddleOfAnEntryIsReadToItsEnd) {
    EXPECT_EQ(Names("0001START\r\n00"), 2);
    EXPECT_EQ(Rows(), QStringList{"F0001=START|"});
}
