#include "FuzzFile.h"
#include "programset/ProgramTitle.h"

// The .LTL file with the program title.

namespace {
void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.LTL"));
    file.Put(input);
    Passes([&] {
        const QString title = ReadProgramTitle(file.Path());
        Require(title.size() <= static_cast<qsizetype>(input.size()),
                "a title is part of its file");
    });
}

const RegisteredTarget target("title", Run);
} // namespace
