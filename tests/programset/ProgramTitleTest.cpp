#include "programset/ProgramTitle.h"

#include "base/RunTimeError.h"
#include "programset/SetFolder.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>

namespace {
const QString prompt = QStringLiteral("Enter Program Title.");
}

TEST(ProgramTitle, AnswerBecomesTheOnlyLine) {
    SetFolder folder;
    folder.Make(u"pump.ltl"_qs, "Old title\r\nsecond line\r\n");
    ScriptedDialogs dialogs;
    dialogs.ExpectInput(prompt, u"pump.ltl"_qs, u"Old title"_qs, u"Pump, line 2"_qs);
    EditProgramTitle(folder.Path(u"PUMP.LTL"_qs), dialogs);
    EXPECT_EQ(folder.Bytes(u"pump.ltl"_qs), "Pump, line 2\r\n");
    EXPECT_EQ(folder.Names().size(), 1);
}

TEST(ProgramTitle, EmptyAnswerKeepsTheFileAsItIs) {
    SetFolder folder;
    folder.Make(u"pump.ltl"_qs, "Old title\nsecond line");
    ScriptedDialogs dialogs;
    dialogs.ExpectInput(prompt, u"pump.ltl"_qs, u"Old title"_qs, QString());
    EditProgramTitle(folder.Path(u"pump.ltl"_qs), dialogs);
    EXPECT_EQ(folder.Bytes(u"pump.ltl"_qs), "Old title\nsecond line");
}

TEST(ProgramTitle, EmptyFileOffersAnEmptyTitle) {
    SetFolder folder;
    folder.Make(u"pump.ltl"_qs);
    ScriptedDialogs dialogs;
    dialogs.ExpectInput(prompt, u"pump.ltl"_qs, QString(), u"Förderpumpe"_qs);
    EditProgramTitle(folder.Path(u"pump.ltl"_qs), dialogs);
    EXPECT_EQ(folder.Bytes(u"pump.ltl"_qs), "F\xf6rderpumpe\r\n");
    EXPECT_EQ(ReadProgramTitle(folder.Path(u"pump.ltl"_qs)).toStdString(), "Förderpumpe");
}

TEST(ProgramTitle, MissingFileIsAnErrorAndAsksNothing) {
    SetFolder folder;
    ScriptedDialogs dialogs;
    EXPECT_THROW(EditProgramTitle(folder.Path(u"pump.ltl"_qs), dialogs), RunTimeError);
}
