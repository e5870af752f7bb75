#include "FuzzFile.h"
#include "FuzzPLS.h"

// The .CHL file in both layouts.

namespace {
constexpr qint16 standardBoard = 64;
constexpr qint16 r6500Board = 69;

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.CHL"));
    static const bool named = (file.AlsoAs(QStringLiteral("L.CHL")), true);
    static const QString standardSet = MakeFuzzFile(QStringLiteral("S.hdn"), "@\r\n");
    static const QString r6500Set = MakeFuzzFile(QStringLiteral("L.hdn"), "E\r\n");
    Require(named, "both sets have the file");
    file.Put(input);
    ReadAndUsePLS(standardSet, standardBoard);
    ReadAndUsePLS(r6500Set, r6500Board);
}

const RegisteredTarget target("chl", Run);
} // namespace
