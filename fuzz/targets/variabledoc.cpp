#include "results/VariableDoc.h"
#include "FuzzFile.h"
#include <optional>

// The .nam and .doc files as the documentation view reads them.

namespace {
constexpr std::size_t sizesWithRows = 256; // one size in so many: the rows take long to gather

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.doc"));
    static std::optional<VariableDoc> doc;
    file.Put(input);
    if (!doc)
        doc.emplace();
    Passes([&] { doc->Read(file.Path(), NameKind::Description); });
    if (input.size() % sizesWithRows != 0)
        return;
    const auto rows = doc->Rows();
    Require(rows.size() <= VariableDoc::mostVariables, "no more rows than variables");
    for (const VariableDoc::Row& row : rows)
        Require(row.variable.size() >= 5, "every row names its variable");
    doc.reset(); // the next run begins with empty tables
}

const RegisteredTarget target("variabledoc", Run);
} // namespace
