#include "results/VariableDoc.h"
#include "FuzzFile.h"
#include <optional>

// The .nam and .doc files as the documentation view reads them.

namespace {
// Gathering the rows takes as long as some hundred runs: it is done now and then, and for the
// inputs of one size, which a seed has.
constexpr int runsOfTables = 4096;
constexpr std::size_t sizeWithRows = 4096; // bytes

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.doc"));
    static std::optional<VariableDoc> doc;
    static int run = 0;
    file.Put(input);
    if (!doc)
        doc.emplace();
    Passes([&] { doc->Read(file.Path(), NameKind::Description); });
    if (++run % runsOfTables != 0 && input.size() != sizeWithRows)
        return;
    const auto rows = doc->Rows();
    Require(rows.size() <= VariableDoc::mostVariables, "no more rows than variables");
    for (const VariableDoc::Row& row : rows)
        Require(row.variable.size() >= 5, "every row names its variable");
    doc.reset(); // the next run begins with empty tables
}

const RegisteredTarget target("variabledoc", Run);
} // namespace
