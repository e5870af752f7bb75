#include "results/views/frmEditDoc.h"

#include "base/Dialogs.h"
#include "controls/grid/Grid.h"
#include "support/gui/ModalView.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QPushButton>
#include <QTest>

namespace {
class EditDoc : public testing::Test {
protected:
    /// Shows the view as the command does, does `act` in it and closes it.
    void Show(std::function<void()> act) {
        view.InitializeVar(folder.Path("PUMP"));
        InModalView("frmEditDoc", [&](QWidget&) {
            UntilRead();
            act();
            view.close();
        });
        view.exec();
    }
    /// What the view was asked to do when it came up is done with all events that are pending.
    static void UntilRead() { QCoreApplication::processEvents(); }

    Grid& Table() { return *PartOf<Grid>(view, "fgEditDoc"); }
    /// "F0012=START|Starts the pump", rows with texts only.
    QStringList Rows() {
        QStringList rows;
        for (int row = 1; row < Table().Rows(); ++row)
            if (!Table().TextMatrix(row, 0).isEmpty())
                rows += Table().TextMatrix(row, 0) + '=' + Table().TextMatrix(row, 1) + '|' +
                        Table().TextMatrix(row, 2);
        return rows;
    }
    void ExpectError(const char* text) {
        dialogs.ExpectBox(text, MsgStyle::Critical, "EditDoc DisplayData", MsgAnswer::Ok);
    }
    void ExpectBounds() { ExpectError("Error Number = 9\r\n\r\nSubscript out of range"); }

    TestFolder folder;
    ScriptedDialogs dialogs;
    frmEditDoc view{dialogs};
};
} // namespace

TEST_F(EditDoc, ANameWithNoLineInTheDocFileGivesARowWithAnEmptyDescription) {
    folder.Write("PUMP.nam", "0005START\r\n0006STOP\r\n");
    folder.Write("PUMP.doc", "0006Stops the pump, at once\r\n");
    Show([this] {
        EXPECT_EQ(Rows(), (QStringList{"F0005=START|", "F0006=STOP|Stops the pump, at once"}));
    });
}

TEST_F(EditDoc, ASlashNotClosedLeavesTheFollowingLinesReadAsBitEntries) {
    folder.Write("PUMP.nam", "&\r\n0100COUNT\r\n/\r\n3DONE\r\n5101\r\n");
    Show([this] {
        EXPECT_EQ(Rows(), (QStringList{"B0100=COUNT|", "B0100.3=DONE|", "B0100.5=101|"}));
    });
}

TEST_F(EditDoc, ASixthSectionIsNotRead) {
    folder.Write("PUMP.nam", "&\r\n&\r\n&\r\n&\r\n0001IMAGE\r\n&\r\n0002SIXTH\r\n9999X\r\n");
    Show([this] { EXPECT_EQ(Rows(), QStringList{"I0001=IMAGE|"}); });
}

TEST_F(EditDoc, FlagNumber12ShowsWith0012AsItsNumberPart) {
    folder.Write("PUMP.nam", "0012TWELVE\r\n");
    Show([this] { EXPECT_EQ(Rows(), QStringList{"F0012=TWELVE|"}); });
}

TEST_F(EditDoc, HasTheHeadsOfItsThreeColumns) {
    Show([this] {
        EXPECT_EQ(Table().Cols(), 3);
        EXPECT_EQ(Table().FixedRows(), 1);
        EXPECT_EQ(Table().TextMatrix(0, 0), "Variable");
        EXPECT_EQ(Table().TextMatrix(0, 1), "NicName");
        EXPECT_EQ(Table().TextMatrix(0, 2), "Description");
        EXPECT_GE(Table().columnWidth(0), 1000 / 15);
        EXPECT_LE(Table().columnWidth(0), 1500 / 15);
        EXPECT_GE(Table().columnWidth(1), 1500 / 15);
        EXPECT_GE(Table().columnWidth(2), 3000 / 15);
        const auto alignment = [this](int column) {
            return Table().Model().index(0, column).data(Qt::TextAlignmentRole).toInt();
        };
        EXPECT_TRUE(alignment(0) & Qt::AlignHCenter);
        EXPECT_TRUE(alignment(1) & Qt::AlignLeft);
        EXPECT_TRUE(alignment(2) & Qt::AlignLeft);
    });
}

TEST_F(EditDoc, AProgramWithNeitherFileShowsAnEmptyGrid) {
    Show([this] {
        EXPECT_TRUE(Rows().isEmpty());
        EXPECT_EQ(Table().Row(), 1);
        EXPECT_EQ(Table().Col(), 1);
    });
}

TEST_F(EditDoc, FilesThatNameDifferentVariablesLoseNoRow) {
    folder.Write("PUMP.nam", "0001A\r\n0002B\r\n0003C\r\n");
    folder.Write("PUMP.doc", "0004d\r\n0005e\r\n");
    Show([this] {
        EXPECT_EQ(Rows(),
                  (QStringList{"F0001=A|", "F0002=B|", "F0003=C|", "F0004=|d", "F0005=|e"}));
        EXPECT_EQ(Table().Rows(), 6);
    });
}

TEST_F(EditDoc, TheNumberOfRowsIsThatOfTheFileWithMoreEntries) {
    folder.Write("PUMP.nam", "0001A\r\n0001AA\r\n0002B\r\n");
    folder.Write("PUMP.doc", "0001a\r\n");
    Show([this] {
        EXPECT_EQ(Table().Rows(), 4);
        EXPECT_EQ(Rows(), (QStringList{"F0001=AA|a", "F0002=B|"}));
    });
}

TEST_F(EditDoc, EachBoundsErrorEndsTheDisplayWithTheErrorBox) {
    for (const char* file : {"PUMP.nam", "PUMP.doc"})
        for (const char* content : {"0992A\r\n", "-001A\r\n", "&\r\n8176A\r\n",
                                    "&\r\n&\r\n0152A\r\n", "&\r\n&\r\n&\r\n0152A\r\n",
                                    "&\r\n&\r\n&\r\n&\r\n0152A\r\n", "&\r\n0100A\r\n/\r\n8A\r\n"}) {
            folder.Write("PUMP.nam", "0001A\r\n");
            folder.Write("PUMP.doc", "0001a\r\n");
            folder.Write(file, content);
            ExpectBounds();
            const std::size_t boxes = dialogs.Boxes().size();
            Show([this] { EXPECT_TRUE(Rows().isEmpty()); });
            EXPECT_EQ(dialogs.Boxes().size(), boxes + 1) << file << ": " << content;
        }
}

TEST_F(EditDoc, AnEmptyLineEndsTheDisplayWithTheErrorBox) {
    folder.Write("PUMP.nam", "0001A\r\n\r\n");
    ExpectError("Error Number = 5\r\n\r\nInvalid procedure call or argument");
    Show([this] { EXPECT_TRUE(Rows().isEmpty()); });
}

TEST_F(EditDoc, EachShowingReadsBothFilesAgain) {
    folder.Write("PUMP.nam", "0001A\r\n0002B\r\n");
    Show([this] { EXPECT_EQ(Rows().size(), 2); });
    folder.Write("PUMP.nam", "0003C\r\n");
    folder.Write("PUMP.doc", "0003c\r\n");
    Show([this] { EXPECT_EQ(Rows(), QStringList{"F0003=C|c"}); });
}

TEST_F(EditDoc, FilesAreFoundWhateverTheCaseOfTheirNames) {
    folder.Write("PUMP.NAM", "0001A\r\n");
    Show([this] { EXPECT_EQ(Rows(), QStringList{"F0001=A|"}); });
}

TEST_F(EditDoc, BothButtonsAndEscapeCloseItAndWriteNothing) {
    folder.Write("PUMP.nam", "0001A\r\n");
    for (const char* name : {"cmdOk", "cmdCancel"}) {
        Show([&] {
            QTest::mouseClick(PartOf<QPushButton>(view, name), Qt::LeftButton);
            EXPECT_FALSE(view.isVisible()) << name;
        });
    }
    Show([this] {
        QTest::keyClick(&Table(), Qt::Key_Escape);
        EXPECT_FALSE(view.isVisible());
    });
    EXPECT_EQ(folder.Content("PUMP.nam"), "0001A\r\n");
    EXPECT_EQ(folder.Names(), QStringList{"PUMP.nam"});
}

TEST_F(EditDoc, TypingChangesNothing) {
    folder.Write("PUMP.nam", "0001A\r\n");
    Show([this] {
        QTest::keyClicks(&Table(), "xyz");
        EXPECT_EQ(Rows(), QStringList{"F0001=A|"});
    });
}

TEST_F(EditDoc, EveryVariableOfTheLargestProgramIsShown) {
    QByteArray names;
    const auto section = [&names](int last, bool bits) {
        for (int number = 0; number <= last; ++number) {
            names += QByteArray::number(number).rightJustified(4, '0') + "N\r\n";
            if (!bits)
                continue;
            names += "/\r\n";
            for (int bit = 0; bit < 8; ++bit)
                names += QByteArray::number(bit) + "N\r\n";
            names += "#\r\n";
        }
        names += "&\r\n";
    };
    section(991, false);
    section(8175, true);
    for (int points = 0; points < 3; ++points)
        section(151, true);
    folder.Write("PUMP.nam", names);
    folder.Write("PUMP.doc", names);
    Show([this] {
        EXPECT_EQ(Rows().size(), 992 + 9 * (8176 - 32 + 3 * 152));
        EXPECT_EQ(Rows().last(), "I0151.7=N|N");
    });
}

TEST_F(EditDoc, AnEndlessTextIsShownCut) {
    folder.Write("PUMP.nam", "0001" + QByteArray(1000000, 'x'));
    Show([this] {
        view.grab();
        EXPECT_EQ(Table().TextMatrix(1, 1).size(), 1001);
        EXPECT_TRUE(Table().TextMatrix(1, 1).endsWith(QChar(0x2026)));
    });
}
