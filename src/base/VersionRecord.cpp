#include "base/VersionRecord.h"

QString VersionRecord::Number() const {
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(revision);
}

QString VersionRecord::VersionText() const {
    return QStringLiteral("Version ") + Number();
}

namespace {
VersionRecord MakeRecord() {
    VersionRecord record;
    record.title = QStringLiteral(QUENTOR_TITLE);
    record.major = QUENTOR_VERSION_MAJOR;
    record.minor = QUENTOR_VERSION_MINOR;
    record.revision = QUENTOR_VERSION_REVISION;
    record.description = QStringLiteral(QUENTOR_DESCRIPTION);
    record.copyright = QStringLiteral(QUENTOR_COPYRIGHT);
    record.company = record.copyright.section(u' ', 3);
    record.product = QStringLiteral("Halden suite");
    record.licence = QStringLiteral("MIT licence. The program comes without any warranty.");
    record.warning = QStringLiteral("Warning: what this program writes to a target board acts on "
                                    "the machine at once. Make sure that nobody can be hurt before "
                                    "you download a program or change a value.");
    record.technicalHelp =
        QStringLiteral("Ask the supplier of your target board.\n"
                       "Have the board's type, the fault code and the text of the System Info "
                       "button at hand: its Copy button puts all of it on the clipboard.");
    return record;
}
} // namespace

const VersionRecord& ProgramVersion() {
    static const VersionRecord record = MakeRecord();
    return record;
}
