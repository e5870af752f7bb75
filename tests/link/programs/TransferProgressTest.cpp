#include "link/TransferProgress.h"
#include "link/programs/ProgramFixture.h"

namespace {
struct Row {
    qint16 mode;
    TransferProgress progress;
    const char* text;
};

constexpr qint16 dump = TransferMode::Dump;
constexpr qint16 upload = TransferMode::Upload;
} // namespace

TEST(TransferProgressTest, TextAtStartTellsTheDirection) {
    EXPECT_EQ(TransferTextAtStart(dump), QStringLiteral("Sending Program at Address: "));
    EXPECT_EQ(TransferTextAtStart(upload), QStringLiteral("Reading Program at Address: "));
    EXPECT_EQ(TransferTextAtStart(2), QString());
}

// Columns of the flags: in program mode, writing the ident, in upload mode, reading the ident.
TEST(TransferProgressTest, TextOfEveryState) {
    const QString address = QStringLiteral("20A0H");
    const Row rows[] = {
        {dump, {false, false, false, false, address}, "before"},
        {dump, {false, true, false, false, address}, "before"},
        {dump, {true, false, false, false, address}, "Writing to Program Address: 20A0H"},
        {dump, {true, true, false, false, address}, "Writing Program Ident ... "},
        {dump, {true, false, true, true, address}, "Writing to Program Address: 20A0H"},
        {dump, {false, false, true, true, address}, "before"},
        {upload, {false, false, false, false, address}, "before"},
        {upload, {false, false, false, true, address}, "before"},
        {upload, {false, false, true, false, address}, "Reading From Program Address: 20A0H"},
        {upload, {false, false, true, true, address}, "Reading Program Ident ... "},
        {upload, {true, true, true, false, address}, "Reading From Program Address: 20A0H"},
        {upload, {true, true, false, false, address}, "before"},
        {2, {true, true, true, true, address}, "before"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(TransferText(row.mode, row.progress, QStringLiteral("before")),
                  QString::fromLatin1(row.text))
            << row.mode << row.progress.inProgramMode << row.progress.writingIdent
            << row.progress.inUploadMode << row.progress.readingIdent;
}
