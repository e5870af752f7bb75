#include "link/TargetBoards.h"
#include "link/RSComm.h"
#include "support/PrintText.h"
#include <gtest/gtest.h>

namespace {
struct Model {
    int index;
    const char* firstCharacter;
    const char* name;
    const char* lcfCode;
    char memoryClass;
    DumpRoute dump;
    int imageStart;
    int imageLength;
    bool configurationBytes;
};

constexpr auto yes = DumpRoute::Program;
constexpr auto pls = DumpRoute::PLS;
constexpr auto refused = DumpRoute::Refused;

// The configuration bytes of 57 and 62 to 64 follow the rule 56 to 65; no dump gets that far.
constexpr Model models[] = {
    {49, "1", "K2010", "1", 'A', refused, 0, 0, false},
    {50, "2", "K2012", "1", 'B', yes, 0x5000, 0xB000, false},
    {51, "3", "K2014", "?", 'A', yes, 0x2000, 0x6000, false},
    {52, "4", "K2021", "2", 'A', yes, 0x2000, 0x2000, false},
    {53, "5", "K2022", "3", 'A', yes, 0x2000, 0x2000, false},
    {54, "6", "K2016", "D", 'A', yes, 0x2000, 0x6000, false},
    {55, "7", "K2041", "", 'C', pls, 0, 0, false},
    {56, "8", "K2024", "F", 'A', yes, 0x2000, 0x2000, true},
    {57, "9", "Not Defined", "", 'C', refused, 0, 0, true},
    {58, ":", "R6010", "@", 'A', yes, 0x2000, 0x6000, true},
    {59, ";", "R6011", "A", 'A', yes, 0x2000, 0x6000, true},
    {60, "<", "R6012", "B", 'A', yes, 0x2000, 0x6000, true},
    {61, "=", "R6020(PLC)", "C", 'A', yes, 0x2000, 0x6000, true},
    {62, ">", "R6020(PLS)", "", 'C', pls, 0, 0, true},
    {63, "?", "R6040", "", 'C', pls, 0, 0, true},
    {64, "@", "R6041", "", 'C', pls, 0, 0, true},
    {65, "A", "T7110", "E", 'A', yes, 0x2000, 0x6000, true},
    {66, "B", "R6021(PLC)", "", 'A', yes, 0x2000, 0x6000, false},
    {67, "C", "R6021(PLS)", "", 'C', pls, 0, 0, false},
    {68, "D", "R6500(PLC)", "G", 'B', yes, 0x4000, 0x8000, false},
    {69, "E", "R6500(PLS)", "", 'C', pls, 0, 0, false},
};

class TargetBoardsTest : public testing::TestWithParam<Model> {};

std::string NameOfIndex(const testing::TestParamInfo<Model>& model) {
    return "Index" + std::to_string(model.param.index);
}
} // namespace

TEST_P(TargetBoardsTest, ModelIsAsTheTableOfTheFamilySays) {
    const Model& model = GetParam();
    const auto index = static_cast<qint16>(model.index);
    EXPECT_EQ(model.firstCharacter[0], model.index);
    EXPECT_EQ(RSComm::TargetboardName(index), QString::fromLatin1(model.name));
    EXPECT_EQ(RSComm::LCFBoardIndex(index), QString::fromLatin1(model.lcfCode));
    EXPECT_EQ(MemoryClass(index), model.memoryClass);
    EXPECT_EQ(IsPLSBoard(index), model.dump == pls);
    EXPECT_EQ(HasConfigurationBytes(index), model.configurationBytes);
    const TargetBoard* board = FindTargetBoard(index);
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->index, index);
    EXPECT_EQ(board->dump, model.dump);
    EXPECT_EQ(board->imageStart, model.imageStart);
    EXPECT_EQ(board->imageLength, model.imageLength);
    EXPECT_EQ(board->imageLength % 16, 0) << "an image is uploaded in records of 16 bytes";
}

INSTANTIATE_TEST_SUITE_P(All, TargetBoardsTest, testing::ValuesIn(models), NameOfIndex);

TEST(TargetBoards, NoOtherIndexIsAModel) {
    for (int index = -32768; index <= 32767; ++index) {
        if (index >= 49 && index <= 69)
            continue;
        const auto board = static_cast<qint16>(index);
        ASSERT_EQ(FindTargetBoard(board), nullptr) << index;
        ASSERT_EQ(LCFBoardIndex(board), QString()) << index;
        ASSERT_EQ(MemoryClass(board), 'C') << index;
        ASSERT_FALSE(IsPLSBoard(board)) << index;
        ASSERT_FALSE(HasConfigurationBytes(board)) << index;
    }
}

TEST(TargetBoards, AnIndexWithoutAModelIsNamedByItsCharacter) {
    EXPECT_EQ(TargetboardName(70), QStringLiteral("F Is Not Defined."));
    EXPECT_EQ(TargetboardName(48), QStringLiteral("0 Is Not Defined."));
    EXPECT_EQ(TargetboardName(0x80), QString(QChar(0x20AC)) + QStringLiteral(" Is Not Defined."));
    EXPECT_EQ(TargetboardName(0), QString(QChar(u'\0')) + QStringLiteral(" Is Not Defined."));
}

TEST(TargetBoards, OnlyTheDisplayModuleAndTheCommunicationsBoardHaveAClock) {
    for (qint16 index = 0; index < 256; ++index)
        EXPECT_EQ(HasRealTimeClock(index), index == 54 || index == 65) << index;
}

TEST(TargetBoards, ASetWithoutABoardFileCountsAsIndex68) {
    EXPECT_EQ(BoardIndex::Default, 68);
}
