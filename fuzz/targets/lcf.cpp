#include "base/TextFile.h"
#include "FuzzFile.h"
#include "FuzzSession.h"
#include "link/ProgramConfig.h"

// The .lcf file: the configuration codes that a dump sends.

namespace {
constexpr qsizetype lineLength = 44;

bool IsDigit(qint16 code) {
    return code >= 0 && code <= 9;
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.lcf"));
    static const QString hdnFile = MakeFuzzFile(QStringLiteral("S.hdn"), "A\r\n");
    static const QString revFile = MakeFuzzFile(QStringLiteral("S.rev"), "PANEL3:01\r\n");
    file.Put(input);
    FuzzLink session;
    session.link.DownloadFile(hdnFile);
    Require(session.link.ValidProgram() != input.empty(),
            "any line is a configuration, none is not");
    Passes([&] {
        const ProgramConfig config = ParseLcfLine(TextReader(file.Path()).InputItem());
        Require(IsDigit(config.codeA) && IsDigit(config.codeB) && IsDigit(config.codeC),
                "a code is one digit");
        Require(LcfLine(65, config).size() == lineLength, "the codes keep their places");
    });
}

const RegisteredTarget target("lcf", Run);
} // namespace
