#include "base/NumberReader.h"
#include "FuzzFile.h"
#include "FuzzSession.h"
#include "HostilePort.h"
#include <array>

// The bytes that a board sends, and when, to each operation of the link. The first byte of the
// input chooses the operation, the second one what it is asked for, the third one the board and how
// the session begins; the rest is the script of the line (HostilePort.h) and of the answers to
// prompts. What the script has left after the operation goes to the next one, with the first two
// bytes as before.

namespace {
constexpr int mostOperations = 8;
constexpr std::array boards{52, 65, 64, 69}; // two controllers, two limit switch boards
constexpr qint64 highestValue = 65535LL * 10000 + 65535;

const std::array variables{
    QStringLiteral("B8176"),  QStringLiteral("W100"),    QStringLiteral("D100"),
    QStringLiteral("B100.3"), QStringLiteral("F17"),     QStringLiteral("F000H"),
    QStringLiteral("B65535"), QStringLiteral("W65535"),  QStringLiteral("FFFFH"),
    QStringLiteral("B768"),   QStringLiteral("X30.2"),   QString(),
    QStringLiteral("."),      QStringLiteral("B8176.9"), QStringLiteral("B-1"),
    QStringLiteral("D65280")};
const std::array values{
    QStringLiteral("86"),    QStringLiteral("0"),         QStringLiteral("1"),
    QStringLiteral("255"),   QStringLiteral("256"),       QStringLiteral("65535"),
    QStringLiteral("65536"), QStringLiteral("655359999"), QStringLiteral("12.5"),
    QStringLiteral(" 3 %"),  QStringLiteral("x"),         QString()};
constexpr std::array<qint16, 8> numbers{0, 1, 63, 64, 90, 359, -1, 32767};

template <typename Table>
const auto& Pick(const Table& table, int number) {
    return table[static_cast<std::size_t>(number) % table.size()];
}

struct Asked {
    RSComm& link;
    HostilePort& port;
    int number; // 0 to 255: what the operation is asked for

    qint16 Number(int place) const { return Pick(numbers, number / (place * 3 + 1)); }
};

void CheckText(const QString& text, qint64 lowest, qint64 highest) {
    const qint64 value = WholeNumberValue(text);
    Require(IsNumeric(text) && value >= lowest && value <= highest, "a reading lies in its range");
}

void CheckWord(const QString& text) {
    if (text != QLatin1String("-9999"))
        CheckText(text, 0, 65535);
}

const QString& SetOfNumber(int number) {
    static const auto make = [](const char* base, const char* board, const char* hex) {
        const QString name = QLatin1String(base);
        MakeFuzzFile(name + QStringLiteral(".rev"), "PANEL3:01\r\n");
        MakeFuzzFile(name + QStringLiteral(".lcf"),
                     "E000000000000000000000000000000000010002000%\r\n");
        MakeFuzzFile(name + QStringLiteral(".hex"), hex);
        return MakeFuzzFile(name + QStringLiteral(".hdn"), board);
    };
    static constexpr auto image = ":0320000001020300\r\n:01400000FF00\r\n:00000001FF\r\n";
    static const std::array sets{make("A", "4\r\n", image), make("B", "A\r\n", image),
                                 make("C", "E\r\n", image), make("D", "4\r\n", "no record\r\n"),
                                 make("E", "A\r\n", ""),    make("F", "\r\n", image)};
    return Pick(sets, number);
}

using Operation = void (*)(const Asked&);

constexpr std::array<Operation, 22> operations{
    [](const Asked& it) { CheckText(it.link.RSRead(Pick(variables, it.number)), 0, highestValue); },
    [](const Asked& it) {
        it.link.RSWrite(Pick(variables, it.number), Pick(values, it.number / 16));
    },
    [](const Asked& it) {
        const qint16 code = it.link.FaultCode();
        Require(code >= 0 && code <= 255, "a fault code is a byte");
        it.link.FaultDescription(code);
    },
    [](const Asked& it) {
        const qint16 revision = it.link.FirmwareRev();
        Require(revision >= -1 && revision <= 255, "a firmware revision is a byte or -1");
    },
    [](const Asked& it) { CheckWord(it.link.PLSOffset()); },
    [](const Asked& it) { CheckWord(it.link.PLSScaleFactor()); },
    [](const Asked& it) { CheckWord(it.link.PLSPos()); },
    [](const Asked& it) { CheckWord(it.link.PLSRpm()); },
    [](const Asked& it) {
        it.link.SingleSetpoint(it.Number(0), it.Number(1), it.Number(2), it.number % 2 == 0);
    },
    [](const Asked& it) {
        it.link.PulseTrain(it.Number(0), it.Number(1), it.Number(2), it.Number(3));
    },
    [](const Asked& it) { it.link.ClearPLSChan(it.Number(0)); },
    [](const Asked& it) {
        const bool recalled = it.link.RecallChannel(it.Number(0));
        const qint16 position = it.link.ChannelRecallPos();
        Require(position >= 0 && position <= 16 * 256 + 255, "an edge lies in its range");
        Require(recalled || it.link.ChannelRecallState() != RecallState::OnEdge,
                "a recall that failed gives no edge");
    },
    [](const Asked& it) { it.link.SetPLSOffset(it.Number(0)); },
    [](const Asked& it) {
        std::array<qint16, 24> table{};
        table.fill(static_cast<qint16>(it.number));
        it.link.PLSConfigDownload(table, it.Number(1));
    },
    [](const Asked& it) {
        for (const qint16 value : it.link.PLSConfigUpload())
            Require(value >= 0 && value <= 255, "configuration values are bytes");
    },
    [](const Asked& it) {
        it.link.DownloadFile(SetOfNumber(it.number));
        it.link.DumpProgram();
        Require(!it.link.InProgramMode() && !it.link.WritingIdent(), "a dump ends");
    },
    [](const Asked& it) {
        it.link.UploadFile(SetOfNumber(it.number));
        it.link.SetInUploadMode(true);
        it.link.UploadProgram();
        Require(!it.link.InUploadMode() && !it.link.ReadingIdent(), "an upload ends");
    },
    [](const Asked& it) { it.link.OpenRSComm(it.port); },
    [](const Asked& it) {
        it.link.CloseRSComm();
        Require(!it.link.OnlineMode(), "a closed link is offline");
    },
    [](const Asked& it) { it.link.DownloadFile(SetOfNumber(it.number)); },
    [](const Asked& it) { it.link.DumpProgram(); },
    [](const Asked& it) { it.link.SetCommError(false); }};

void Begin(RSComm& link, HostilePort& port, int how) {
    constexpr int offline = 0x80;
    port.Watch(link);
    if ((how & offline) == 0)
        link.OpenRSComm(port);
    link.SetTargetboardType(static_cast<qint16>(Pick(boards, how)));
}

void Run(FuzzInput input) {
    FuzzScript script(input);
    int operation = script.Next();
    int number = script.Next();
    const int how = script.Next();
    FuzzLink session(&script, static_cast<int>(input.size()) + 40);
    HostilePort port(session.clock, Pick(boards, how));
    Begin(session.link, port, how);
    port.SpoilWith(script);
    for (int count = 0; count < mostOperations; ++count) {
        Passes([&] { Pick(operations, operation)({session.link, port, number}); });
        Require(!session.link.OperationRuns(), "an operation that has ended does not run");
        if (script.Ended())
            return;
        operation = script.Next();
        number = script.Next();
    }
}

const RegisteredTarget target("link", Run);
} // namespace
