#include "FuzzFile.h"
#include "FuzzSession.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include <optional>

// The .hdn file: the board index, as the shell and as the link read it.

namespace {
void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.hdn"));
    file.Put(input);
    std::optional<qint16> index;
    Passes([&] { index = BoardIndexOfHdnFile(file.Path()); });
    if (index) {
        Require(*index >= 0 && *index <= 255, "a board index is a character code");
        Require(!TargetboardName(*index).isEmpty(), "every board index has a name to show");
    }
    std::optional<qint16> again;
    Passes([&] { again = ProgramBoardIndex(FuzzFolder() + QStringLiteral("/S.PCF")); });
    Require(index == again, "siblings name the same board");
    FuzzLink session;
    session.link.DownloadFile(file.Path());
    Require(!session.link.ValidProgram(), "a set without its other files is never valid");
    session.link.UploadFile(file.Path());
}

const RegisteredTarget target("hdn", Run);
} // namespace
