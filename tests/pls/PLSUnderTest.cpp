#include "PLSUnderTest.h"

#include "base/RunTimeError.h"

PLSUnderTest::PLSUnderTest() {
    gPLS = PLSRecord();
    gPLSSnapshot = PLSRecord();
}

PLSUnderTest::~PLSUnderTest() {
    gPLS = PLSRecord();
    gPLSSnapshot = PLSRecord();
}

void PLSUnderTest::WriteHdn(qint16 board) {
    folder_.Write("SET.hdn", QByteArray(1, static_cast<char>(board)) + "\r\n");
}

bool PLSUnderTest::Read() {
    return ReadPLSFileData(HdnFile(), dialogs_);
}

void PLSUnderTest::ExpectReadError(int number) {
    dialogs_.ExpectBox(ErrorReportText(RunTimeError(number)), MsgStyle::Critical,
                       QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    EXPECT_FALSE(Read());
    EXPECT_EQ(dialogs_.Boxes().size(), 1u);
}

SetpointList OnOff(std::initializer_list<std::pair<qint16, qint16>> spans) {
    SetpointList list;
    for (const auto& [on, off] : spans)
        list += {.off = off, .on = on};
    return list;
}

SetpointList PlaceholderList() {
    return OnOff({{0, 0}});
}
