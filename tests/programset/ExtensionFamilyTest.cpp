#include "programset/ExtensionFamily.h"

#include <gtest/gtest.h>

TEST(ExtensionFamily, LabelsOfTheWholeFamily) {
    const std::pair<const char*, const char*> labels[] = {
        {"LIN", "INIT (.LIN)"},    {"LMN", "MAIN (.LMN)"},       {"LTD", "TIMED (.LTD)"},
        {"LCM", "CO-CPU (.LCM)"},  {"LCF", "CONFIG (.LCF)"},     {"ERR", "ERROR (.ERR)"},
        {"LTL", "TITLE (.LTL)"},   {"REV", "REVISION (.REV)"},   {"HEX", "HEX (.HEX)"},
        {"CHL", "CHANNEL (.CHL)"}, {"PCF", "PLS Config (.PCF)"}, {"LDT", "DATA (.LDT)"},
    };
    for (const auto& [extension, label] : labels)
        EXPECT_EQ(SiblingLabel(QLatin1String(extension)).toStdString(), label);
}

TEST(ExtensionFamily, LabelKeepsTheExtensionAsFoundOnDisk) {
    EXPECT_EQ(SiblingLabel(u"lmn"_qs).toStdString(), "MAIN (.lmn)");
    EXPECT_EQ(SiblingLabel(u"Pcf"_qs).toStdString(), "PLS Config (.Pcf)");
}

TEST(ExtensionFamily, ProgramFileSearchResultsAndStrangersGetNoNode) {
    for (const char* extension : {"HDN", "GBL", "hdn", "gbl", "BAK", "", "LM", "LMNX", "7", "7x"})
        EXPECT_TRUE(SiblingLabel(QLatin1String(extension)).isEmpty()) << extension;
}

TEST(ExtensionFamily, TwoDigitExtensionShowsAsUfuncWhateverTheFirstLetter) {
    EXPECT_EQ(SiblingLabel(u"x07"_qs).toStdString(), "Ufunc07 (.x07)");
    EXPECT_EQ(SiblingLabel(u"L15"_qs).toStdString(), "Ufunc15 (.L15)");
    EXPECT_EQ(SiblingLabel(u"99"_qs).toStdString(), "Ufunc99 (.99)");
    EXPECT_TRUE(SiblingLabel(u"x0a"_qs).isEmpty());
    EXPECT_TRUE(SiblingLabel(u"x-1"_qs).isEmpty());
}

TEST(ExtensionFamily, ActionsOfADoubleClick) {
    const std::pair<const char*, NodeAction> actions[] = {
        {"LIN", NodeAction::OpenSource},
        {"LMN", NodeAction::OpenSource},
        {"LTD", NodeAction::OpenSource},
        {"LCM", NodeAction::OpenSource},
        {"X07", NodeAction::OpenSource},
        {"LCF", NodeAction::OpenConfiguration},
        {"ERR", NodeAction::ShowErrors},
        {"LTL", NodeAction::EditTitle},
        {"REV", NodeAction::ShowRevision},
        {"HEX", NodeAction::ShowFileData},
        {"CHL", NodeAction::ViewPLS},
        {"PCF", NodeAction::ViewPLS},
        {"LDT", NodeAction::None},
        {"PUMP", NodeAction::None},
        {"", NodeAction::None},
    };
    for (const auto& [key, action] : actions)
        EXPECT_EQ(ActionOfNode(QLatin1String(key)), action) << key;
}

TEST(ExtensionFamily, RootWithABaseNameEndingInTwoDigitsCountsAsASourceNode) {
    EXPECT_EQ(ActionOfNode(u"PUMP12"_qs), NodeAction::OpenSource);
    EXPECT_EQ(ActionOfNode(u"PUMP1"_qs), NodeAction::None);
}
