#include "FuzzFile.h"
#include "programset/RecentList.h"

// The recent list, and the path in it that the program opens at its start.

namespace {
void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("HD2000.dat"));
    file.Put(input);
    RecentList list;
    Passes([&] { list.Read(file.Path()); });
    for (int index = 0; index < RecentList::length; ++index)
        Require(!list.Shown(index) || list.Caption(index).endsWith(list.Path(index)),
                "the menu shows the path");
    list.ProgramAtStart();
    list.UpdateRecentFile(QStringLiteral("/P.hdn"));
    Require(list.Path(0).toUpper() == QLatin1String("/P.HDN"), "the newest set stands first");
}

const RegisteredTarget target("recent", Run);
} // namespace
