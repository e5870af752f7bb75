#include "FuzzFile.h"
#include "statustable/NameTables.h"

// The .nam and .doc files as the status table reads them, with both widths of a number.

namespace {
constexpr int runsOfTables = 4096; // then they are emptied: they keep texts of earlier runs

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.nam"));
    static NameTables tables;
    static int run = 0;
    file.Put(input);
    if (++run % runsOfTables == 0)
        tables.Clear();
    for (const int width : {3, 4})
        Passes([&] { ReadNameFile(file.Path(), NameKind::Description, width, tables); });
    for (const char* address :
         {"F0", "F1000", "B8195.7", "W8194", "X151.0", "Y0.9", "I10", "2003H"})
        NameOfVariable(tables, QLatin1String(address), NameKind::Description);
}

const RegisteredTarget target("names", Run);
} // namespace
