#include "base/NumberReader.h"
#include "FuzzFile.h"
#include "FuzzSession.h"
#include "link/DumpPrompt.h"
#include "programset/SiblingBoxes.h"
#include "targetboard/ProgramIdent.h"

// The .rev file: ident, checksum and revision, as browser, ident page and link read it.

namespace {
bool IsByte(int value) {
    return value >= 0 && value <= 255;
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.rev"));
    static const QString hdnFile = MakeFuzzFile(QStringLiteral("S.hdn"), "2\r\n");
    file.Put(input);
    Passes([&] {
        const RevisionRecord record = ReadRevisionRecord(file.Path());
        RevisionText(record);
        Require(IsByte(static_cast<int>(WholeNumberValue(record.checksum))) &&
                    IsByte(static_cast<int>(WholeNumberValue(record.revision))),
                "checksum and revision of the browser are bytes");
        const ::ProgramIdent ident{record.ident, record.revision, record.checksum};
        DumpQuestion(ident, QStringLiteral("K2012"), ident);
        Require(IdentBytes(record.ident).size() == IdentBlock::IdentLength,
                "an ident goes to the board as eight bytes");
    });
    Passes([&] {
        const DiskIdent ident = ReadDiskIdent(hdnFile);
        ident.Texts();
        Require(IsByte(ident.checksum) && IsByte(ident.revision),
                "checksum and revision of the ident page are bytes");
    });
    FuzzLink session;
    session.link.DownloadFile(hdnFile);
}

const RegisteredTarget target("rev", Run);
} // namespace
