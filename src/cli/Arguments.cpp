#include "cli/Arguments.h"

#include "base/VersionRecord.h"
#include "cli/Commands.h"
#include "cli/ExitCode.h"
#include "link/PortSettings.h"
#include "link/TargetBoards.h"
#include <limits>
#include <QCommandLineParser>

namespace {
constexpr qint16 lowestModel = 49;
constexpr qint16 highestModel = 69;
constexpr int usageWidth = 30;

QString CommandList() {
    QString list = QStringLiteral("Commands:\n");
    for (const Command& command : Commands()) {
        const QString usage =
            QString::fromLatin1(command.name) + u' ' + QString::fromLatin1(command.operands);
        list += QLatin1String("  ") + usage.leftJustified(usageWidth) +
                QString::fromLatin1(command.summary) + u'\n';
    }
    return list;
}

// An option without a name for its value takes none.
void Describe(QCommandLineParser& parser) {
    const auto option = [&parser](const char* name, const char* value, const char* text) {
        parser.addOption(
            {QString::fromLatin1(name), QString::fromLatin1(text), QString::fromLatin1(value)});
    };
    option("port", "port", "Number (1 to 99) or device path; else that of the settings file.");
    option("baud", "baud", "9600 or 19200; else that of the settings file.");
    option("set", "file.hdn", "The program set that tells the model of the board.");
    option("model", "model", "The model of the board, by name (K2012) or by index (50).");
    option("from", "address", "First byte address of a data transfer.");
    option("to", "address", "Last byte address of a data transfer.");
    option("yes", "", "Answer all questions Yes.");
    option("json", "", "Give the result as one JSON object.");
    parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("See below."));
    parser.addPositionalArgument(QStringLiteral("operands"), QStringLiteral("See below."),
                                 QStringLiteral("[operands...]"));
}

QString HelpText(const QCommandLineParser& parser) {
    return parser.helpText() + u'\n' + CommandList() + u'\n' + ExitCodeTable();
}

std::optional<qint16> ModelOf(const QString& text) {
    for (qint16 index = lowestModel; index <= highestModel; ++index) {
        const TargetBoard* board = FindTargetBoard(index);
        if (board && (QString::number(index) == text ||
                      QString::fromUtf16(board->name).compare(text, Qt::CaseInsensitive) == 0))
            return index;
    }
    return std::nullopt;
}

// Takes the values of the options one after the other; the first bad one counts.
class OptionValues {
public:
    OptionValues(const QCommandLineParser& parser, ParsedArguments& parsed)
        : parser_(parser), parsed_(parsed) {}

    void Take() {
        Arguments& taken = parsed_.arguments;
        taken.yes = parser_.isSet(QStringLiteral("yes"));
        taken.json = parser_.isSet(QStringLiteral("json"));
        taken.set = parser_.value(QStringLiteral("set"));
        TakePort();
        TakeBaud();
        TakeModel();
        taken.from = Address(QStringLiteral("from"));
        taken.to = Address(QStringLiteral("to"));
    }

private:
    void Refuse(const QString& name, const QString& wanted) {
        if (parsed_.error.isEmpty())
            parsed_.error =
                QStringLiteral("--%1 takes %2, not \"%3\".").arg(name, wanted, parser_.value(name));
    }

    void TakePort() {
        const QString name = QStringLiteral("port");
        if (!parser_.isSet(name))
            return;
        parsed_.arguments.port = parser_.value(name);
        bool isNumber = false;
        parsed_.arguments.port.toLongLong(&isNumber);
        if (parsed_.arguments.port.isEmpty() || (isNumber && !IsPortText(parsed_.arguments.port)))
            Refuse(name, QStringLiteral("a number of 1 to 99 or the path of a device"));
    }

    void TakeBaud() {
        const QString name = QStringLiteral("baud");
        if (!parser_.isSet(name))
            return;
        const qint32 baud = parser_.value(name).toInt();
        if (baud != PortSettings::slowBaud && baud != PortSettings::fastBaud)
            Refuse(name, QStringLiteral("9600 or 19200"));
        parsed_.arguments.baud = baud;
    }

    void TakeModel() {
        const QString name = QStringLiteral("model");
        if (!parser_.isSet(name))
            return;
        parsed_.arguments.model = ModelOf(parser_.value(name));
        if (!parsed_.arguments.model)
            Refuse(name, QStringLiteral("the name or the index of a board"));
    }

    std::optional<qint16> Address(const QString& name) {
        if (!parser_.isSet(name))
            return std::nullopt;
        bool isNumber = false;
        const int address = parser_.value(name).toInt(&isNumber);
        if (!isNumber || address < 0 || address > std::numeric_limits<qint16>::max())
            Refuse(name, QStringLiteral("a byte address in decimal"));
        return static_cast<qint16>(address);
    }

    const QCommandLineParser& parser_;
    ParsedArguments& parsed_;
};

void TakeCommand(const QCommandLineParser& parser, ParsedArguments& parsed) {
    QStringList words = parser.positionalArguments();
    if (words.isEmpty()) {
        parsed.error = QStringLiteral("Which command? --help lists them.");
        return;
    }
    parsed.arguments.command = words.takeFirst();
    parsed.arguments.operands = words;
    if (!FindCommand(parsed.arguments.command) && parsed.error.isEmpty())
        parsed.error = QStringLiteral("There is no command \"%1\"; --help lists them.")
                           .arg(parsed.arguments.command);
}
} // namespace

ParsedArguments ParseArguments(const QStringList& words) {
    QCommandLineParser parser;
    parser.setApplicationDescription(ProgramVersion().description);
    Describe(parser);
    ParsedArguments parsed;
    if (!parser.parse(words))
        parsed.error = parser.errorText() + u'.';
    else if (parser.isSet(QStringLiteral("help")))
        parsed.text = HelpText(parser);
    else if (parser.isSet(QStringLiteral("version")))
        parsed.text = ProgramVersion().title + u' ' + ProgramVersion().Number();
    else
        OptionValues(parser, parsed).Take();
    if (parsed.error.isEmpty() && parsed.text.isEmpty())
        TakeCommand(parser, parsed);
    parsed.arguments.json = words.contains(QStringLiteral("--json"));
    return parsed;
}
