#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "programset/RecentList.h"
#include "session/Globals.h"
#include <QDir>
#include <QFileInfo>

namespace {
// The program selects at its start the newest set of its list. A path that the list cannot hold
// goes in all the same: better no set selected than another one than the user pointed at.
bool PutFirst(const QString& set, const QString& file) {
    QDir().mkpath(QFileInfo(file).path());
    RecentList list;
    list.Read(file);
    list.UpdateRecentFile(set);
    list.Write(file);
    RecentList atStart;
    atStart.Read(file);
    return atStart.ProgramAtStart() == set;
}
} // namespace

Outcome OpenCommand(CommandContext& context) {
    bool isSelected = true;
    if (!context.Given().operands.isEmpty()) {
        if (auto failure = context.TakeSet())
            return *failure;
        isSelected = PutFirst(gHdnFile, RecentList::FileIn(context.Platform().folder));
    }
    context.Platform().startQuentor();
    if (!isSelected)
        return Ended(ExitCode::Failed,
                     QStringLiteral("Quentor was started without a set: its list of the last sets "
                                    "cannot hold %1.")
                         .arg(gHdnFile));
    Outcome outcome;
    outcome.result = {{QStringLiteral("set"), gHdnFile}};
    return outcome;
}
