#include "base/NumberReader.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "link/ParsedAddress.h"
#include "link/VariableAddress.h"
#include "link/VariableValue.h"
#include <QJsonArray>
#include <QRegularExpression>
#include <vector>

namespace {
// The high byte of these addresses would be attention: the board cannot be asked for them.
constexpr qint32 firstUnreachable = 0xFF00;

struct Variable {
    QString text;       // as the user wrote it
    QString equivalent; // as the board knows it
};

struct Assignment {
    Variable variable;
    qint64 value;
};

// Stricter than what the entries of a table take: a script that writes to another byte than it
// meant would not see it.
bool IsVariable(const QString& text, qint16 model) {
    static const QRegularExpression form(
        QStringLiteral("^([BWDF][0-9]{1,5}|F[0-9A-F]{3}H|[BXYI][0-9]{1,5}\\.[0-7]|"
                       "[XYI][0-9]{1,5})$"),
        QRegularExpression::CaseInsensitiveOption);
    return form.match(text).hasMatch() && ValidAdd(text, model);
}

std::optional<Outcome> TakeVariable(const QString& text, qint16 model, Variable& variable) {
    variable = {text, EquateAdd(text, model)};
    const bool isPoint = !text.isEmpty() && QStringLiteral("XYI").contains(text.front().toUpper());
    const bool hasByte = !isPoint || variable.equivalent != text;
    if (!IsVariable(text, model) || !hasByte)
        return Ended(ExitCode::Usage,
                     QStringLiteral("\"%1\" is no variable of this board.").arg(text));
    const ParsedAddress parsed = ParseAddress(variable.equivalent);
    if (parsed.address + BytesOfWidth(parsed.width) > firstUnreachable)
        return Ended(ExitCode::Usage,
                     QStringLiteral("\"%1\" cannot be reached over the line.").arg(text));
    return std::nullopt;
}

// Digits and nothing else: the link drops points and blanks, and "12.5" would be 125.
std::optional<Outcome> TakeAssignment(const QString& text, qint16 model, Assignment& assignment) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,9}$"));
    const QString value = text.section(u'=', 1);
    if (!digits.match(value).hasMatch())
        return Ended(ExitCode::Usage,
                     QStringLiteral("\"%1\" is no variable=value with a whole number.").arg(text));
    if (auto failure = TakeVariable(text.section(u'=', 0, 0), model, assignment.variable))
        return failure;
    const ParsedAddress parsed = ParseAddress(assignment.variable.equivalent);
    const qint64 highest = parsed.isBit ? 1 : LimitOfWidth(parsed.width).highest;
    assignment.value = value.toLongLong();
    if (assignment.value > highest)
        return Ended(
            ExitCode::Usage,
            QStringLiteral("%1 takes 0 to %2.").arg(assignment.variable.text).arg(highest));
    return std::nullopt;
}

void AddValue(const QString& variable, qint64 value, QJsonArray& values, Outcome& outcome) {
    values.append(
        QJsonObject{{QStringLiteral("variable"), variable}, {QStringLiteral("value"), value}});
    outcome.lines += QStringLiteral("%1 = %2").arg(variable).arg(value);
}

// What had been done by the failure is part of the result.
Outcome Finished(Outcome outcome, const QJsonArray& values, const std::optional<Outcome>& failure) {
    outcome.result = {{QStringLiteral("values"), values}};
    if (failure) {
        outcome.code = failure->code;
        outcome.reason = failure->reason;
    }
    return outcome;
}

// A bit goes out with the seven others of its byte. They are read here, where a read that failed
// shows, and not by the link's own bit write, and a second try sends what was read at the first.
std::optional<Outcome> WriteOne(CommandContext& context, const Assignment& assignment) {
    RSComm& link = context.Link();
    const ParsedAddress target = ParseAddress(assignment.variable.equivalent);
    if (!target.isBit) {
        link.RSWrite(assignment.variable.equivalent, QString::number(assignment.value));
        return context.FailureOrInterruption();
    }
    const QString byteVariable = u'B' + QString::number(target.address);
    const int byte = static_cast<int>(WholeNumberValue(link.RSRead(byteVariable)));
    if (auto failure = context.FailureOrInterruption())
        return failure;
    const int wanted = assignment.value == 1 ? byte | target.mask : byte & ~target.mask;
    link.RSWrite(byteVariable, QString::number(wanted));
    return context.FailureOrInterruption();
}

std::optional<Outcome> TakeOperands(CommandContext& context) {
    if (context.Given().operands.isEmpty())
        return Ended(ExitCode::Usage,
                     QStringLiteral("%1 needs a variable.").arg(context.Given().command));
    return context.TakeModel();
}
} // namespace

Outcome ReadCommand(CommandContext& context) {
    if (auto failure = TakeOperands(context))
        return *failure;
    std::vector<Variable> variables;
    for (const QString& operand : context.Given().operands)
        if (auto failure = TakeVariable(operand, context.Model(), variables.emplace_back()))
            return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    Outcome outcome;
    QJsonArray values;
    for (const Variable& variable : variables) {
        const qint64 value = WholeNumberValue(context.Link().RSRead(variable.equivalent));
        if (auto failure = context.FailureOrInterruption())
            return Finished(outcome, values, failure);
        AddValue(variable.text, value, values, outcome);
    }
    return Finished(outcome, values, std::nullopt);
}

Outcome WriteCommand(CommandContext& context) {
    if (auto failure = TakeOperands(context))
        return *failure;
    std::vector<Assignment> assignments;
    for (const QString& operand : context.Given().operands)
        if (auto failure = TakeAssignment(operand, context.Model(), assignments.emplace_back()))
            return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    Outcome outcome;
    QJsonArray values;
    for (const Assignment& assignment : assignments) {
        if (auto failure = WriteOne(context, assignment))
            return Finished(outcome, values, failure);
        AddValue(assignment.variable.text, assignment.value, values, outcome);
    }
    return Finished(outcome, values, std::nullopt);
}
