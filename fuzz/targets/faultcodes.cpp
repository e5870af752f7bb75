#include "FuzzFile.h"
#include "link/FaultTable.h"
#include "targetboard/CodeFile.h"

// The tables of fault and communication codes, as the link and as the target board view read them.

namespace {
void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("FaultErrCodes.txt"));
    file.Put(input);
    for (const char* name : {"05", "AF"}) {
        const QString code = QLatin1String(name);
        std::optional<QString> shown;
        const bool whole = Passes([&] { shown = DescriptionInCodeFile(file.Path(), code); });
        QString text;
        const bool found = Passes([&] { AppendFaultText(text, code, file.Path()); });
        Require(!whole || found, "what the view can read to its end the link can read too");
        Require(!whole || shown || text.isEmpty(), "a code that the link knows the view knows too");
    }
}

const RegisteredTarget target("faultcodes", Run);
} // namespace
