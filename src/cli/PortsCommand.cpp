#include "base/SerialPorts.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include <QJsonArray>

Outcome ListPortsCommand(CommandContext& context) {
    if (!context.Given().operands.isEmpty())
        return Ended(ExitCode::Usage, QStringLiteral("ports takes no operands."));
    Outcome outcome;
    QJsonArray ports;
    for (const FoundPort& port : context.Platform().ports.Found()) {
        ports.append(QJsonObject{
            {QStringLiteral("number"), port.number ? QJsonValue(*port.number) : QJsonValue()},
            {QStringLiteral("device"), port.device},
            {QStringLiteral("description"), port.description}});
        const QString number = port.number ? QString::number(*port.number) : QStringLiteral("-");
        outcome.lines += QStringLiteral("%1  %2  %3")
                             .arg(number.rightJustified(2), port.device, port.description)
                             .trimmed();
    }
    outcome.result.insert(QStringLiteral("ports"), ports);
    return outcome;
}
