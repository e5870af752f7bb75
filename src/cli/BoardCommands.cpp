#include "base/NumberReader.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "session/Globals.h"
#include "targetboard/CodeFile.h"
#include "targetboard/CorrectiveAdvice.h"
#include "targetboard/FaultCodes.h"
#include "targetboard/ProgramIdent.h"
#include "targetboard/TargetBoardTexts.h"

namespace {
struct FaultPlace {
    int position;     // in faultAddresses
    const char* name; // in the result
    const char* file; // with the texts of its codes
};

constexpr const char* faultFile = "support/FaultErrCodes.txt";
constexpr const char* commErrorFile = "support/CommErrCodes.txt";
constexpr std::array<FaultPlace, 4> faultPlaces = {{
    {FaultPosition::CurrentFault, "currentFault", faultFile},
    {FaultPosition::LastFault, "lastFault", faultFile},
    {FaultPosition::CurrentCommError, "currentCommError", commErrorFile},
    {FaultPosition::LastCommError, "lastCommError", commErrorFile},
}};

std::optional<Outcome> NoOperands(const CommandContext& context) {
    if (context.Given().operands.isEmpty())
        return std::nullopt;
    return Ended(ExitCode::Usage,
                 QStringLiteral("%1 takes no operands.").arg(context.Given().command));
}

QString ReadAt(CommandContext& context, int position) {
    const char16_t* address = faultAddresses.at(static_cast<std::size_t>(position));
    return context.Link().RSRead(QString::fromUtf16(address));
}

void AddFault(const CommandContext& context, const FaultPlace& place, const QString& value,
              Outcome& outcome) {
    const QString code = FaultCodeText(value);
    const QString text =
        DescriptionInCodeFile(context.Platform().folder.Path(QString::fromLatin1(place.file)), code)
            .value_or(QString());
    outcome.result.insert(QString::fromLatin1(place.name),
                          QJsonObject{{QStringLiteral("value"), value.toInt()},
                                      {QStringLiteral("code"), code},
                                      {QStringLiteral("description"), text}});
    outcome.lines += (FaultLabelText(place.position, code) + QLatin1String("  ") + text).trimmed();
}

Outcome ReadFaults(CommandContext& context) {
    Outcome outcome;
    int lastFault = 0;
    for (const FaultPlace& place : faultPlaces) {
        const QString value = ReadAt(context, place.position);
        if (auto failure = context.FailureOrInterruption())
            return *failure;
        AddFault(context, place, value, outcome);
        if (place.position == FaultPosition::LastFault)
            lastFault = value.toInt();
    }
    const QString advice = CorrectiveAdvice(lastFault);
    outcome.result.insert(QStringLiteral("correctiveAction"), advice);
    if (!advice.isEmpty())
        outcome.lines += QStringLiteral("Corrective Action: ") + OneLine(advice);
    return outcome;
}

QJsonObject IdentObject(const QString& name, const QString& checksum, const QString& revision) {
    return {{QStringLiteral("ident"), name},
            {QStringLiteral("checksum"), checksum.toInt()},
            {QStringLiteral("revision"), revision.toInt()}};
}

// A board fills up a short name with bytes 0, the user with blanks.
QString PlainName(QString name) {
    return name.remove(QChar(0)).trimmed();
}

std::optional<Outcome> ReadIdent(CommandContext& context, IdentInPLC& ident) {
    for (int offset = 0; offset < BoardIdent::length; ++offset) {
        const QString value = context.Link().RSRead(BoardIdentAddress(offset));
        if (auto failure = context.FailureOrInterruption())
            return failure;
        TakeIdentByte(ident, offset, value);
    }
    return std::nullopt;
}

QString IdentLine(const QString& where, const QJsonObject& ident) {
    return QStringLiteral("%1: %2, revision %3, checksum %4")
        .arg(where, ident[QStringLiteral("ident")].toString())
        .arg(ident[QStringLiteral("revision")].toInt())
        .arg(ident[QStringLiteral("checksum")].toInt());
}
} // namespace

Outcome FaultsCommand(CommandContext& context) {
    if (auto failure = NoOperands(context))
        return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    return ReadFaults(context);
}

Outcome ResetFaultsCommand(CommandContext& context) {
    if (auto failure = NoOperands(context))
        return *failure;
    if (auto failure = context.Ask(TargetBoardText::ResetPrompt(), TargetBoardText::ResetTitle()))
        return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    for (const char16_t* address : faultResetAddresses) {
        context.Link().RSWrite(QString::fromUtf16(address), QStringLiteral("0"));
        if (auto failure = context.FailureOrInterruption())
            return *failure;
    }
    return ReadFaults(context);
}

Outcome IdentCommand(CommandContext& context) {
    const bool compares = !context.Given().operands.isEmpty();
    if (compares)
        if (auto failure = context.TakeSet())
            return *failure;
    const DiskIdent disk = compares ? ReadDiskIdent(gHdnFile) : DiskIdent();
    if (auto failure = context.GoOnline())
        return *failure;
    IdentInPLC ident;
    if (auto failure = ReadIdent(context, ident))
        return *failure;
    const QJsonObject inBoard =
        IdentObject(PlainName(ident[IdentLabel::Name]), ident[IdentLabel::Checksum],
                    ident[IdentLabel::Revision]);
    Outcome outcome;
    outcome.result.insert(QStringLiteral("board"), inBoard);
    outcome.lines += IdentLine(QStringLiteral("In the board"), inBoard);
    if (!compares)
        return outcome;
    const QJsonObject onDisk = IdentObject(PlainName(disk.name), QString::number(disk.checksum),
                                           QString::number(disk.revision));
    outcome.result.insert(QStringLiteral("disk"), onDisk);
    outcome.lines += IdentLine(QStringLiteral("On disk"), onDisk);
    if (inBoard != onDisk) {
        outcome.code = ExitCode::Different;
        outcome.reason = QStringLiteral("The board holds another program than the set.");
    }
    return outcome;
}
