#include "campaign/HostileRun.h"

#include <algorithm>
#include <array>
#include <QFile>

namespace {
constexpr int k2010 = 49;
constexpr int k2016 = 54;
constexpr int thingsDone = 4; // by the user, at most
} // namespace

HostileRun::HostileRun(unsigned seed, const QString& folder)
    : random_(seed), folder_(folder), applicationFolder_(folder), user_(random_),
      board_(static_cast<int>(k2010 + seed % (k2016 - k2010 + 1))), line_(board_),
      port_(clock_, line_), link_(user_, clock_, busy_, applicationFolder_) {
    line_.KeepLog(false);
    port_.Watch(link_);
    FillMemory();
}

int HostileRun::Number(int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random_);
}

bool HostileRun::Chance(double probability) {
    return std::uniform_real_distribution<>(0.0, 1.0)(random_) < probability;
}

void HostileRun::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("a file of the run cannot be written");
}

QByteArray HostileRun::Read(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void HostileRun::FillMemory() {
    const int offset = Number(0, 255);
    for (int address = 0; address < memorySize; ++address)
        board_.Poke(static_cast<std::uint16_t>(address),
                    static_cast<std::uint8_t>(address * 31 + offset));
    for (int address = 0; address < memorySize; ++address)
        memoryBefore_.push_back(board_.Peek(static_cast<std::uint16_t>(address)));
}

void HostileRun::SpoilLine() {
    if (Chance(0.05))
        return; // a good line
    if (Chance(0.5))
        SpoilWithChances();
    if (Chance(0.6))
        SpoilAtOneReply();
    if (Chance(0.1))
        port_.PullAfter(Number(1, 400), Chance(0.5) ? 0.0 : Number(1, 30));
}

void HostileRun::SpoilWithChances() {
    const double often = Chance(0.3) ? 0.05 : 0.004;
    haldenboard::RandomFaults chances;
    chances.seed = static_cast<std::uint32_t>(random_());
    const auto maybe = [&] { return Chance(0.4) ? often : 0.0; };
    chances.lost = maybe();
    chances.late = maybe();
    chances.lateSeconds = Chance(0.5) ? 0.05 : 4.0;
    chances.doubled = maybe();
    chances.wrong = maybe();
    chances.garbage = maybe();
    chances.reset = maybe() / 4;
    line_.Faults().SetRandom(chances);
}

void HostileRun::SpoilAtOneReply() {
    using haldenboard::FaultKind;
    constexpr std::array kinds{FaultKind::Lost,  FaultKind::Late,    FaultKind::Doubled,
                               FaultKind::Wrong, FaultKind::Garbage, FaultKind::Reset};
    for (int faults = Number(1, 3); faults > 0; --faults) {
        haldenboard::Fault fault;
        fault.kind = kinds.at(static_cast<std::size_t>(Number(0, int(kinds.size()) - 1)));
        fault.nth = Number(1, Chance(0.7) ? 30 : 2000);
        fault.standing = fault.kind == FaultKind::Lost && Chance(0.3);
        fault.seconds = Number(1, 60) / 10.0;
        fault.mask = static_cast<std::uint8_t>(Number(1, 255));
        fault.bytes = {static_cast<std::uint8_t>(Number(0, 255))};
        line_.Faults().Order(fault);
    }
}

// What the wire itself makes possible: the attention that follows a time-out can meet a board that
// waits for the low address or the data of a write. It is then stored in the byte that was being
// written or in the last byte of its page of 256, where a mode byte can follow it when a late
// acknowledge was taken for the answer. There is no byte that a board would understand instead.
void HostileRun::Want(int address, int value) {
    constexpr std::array resynchronising{0xFF, 0x01, 0x02, 0x03};
    wanted_[address].insert(wanted_[address].end(), {value, resynchronising[0]});
    std::vector<int>& endOfPage = wanted_[address | 0xFF];
    endOfPage.insert(endOfPage.end(), resynchronising.begin(), resynchronising.end());
}

void HostileRun::WantPart(int address) {
    anyValue_.set(static_cast<std::size_t>(address));
    Want(address, 0xFF);
}

QStringList HostileRun::Violations() {
    link_.OpenRSComm(port_);
    if (!link_.OnlineMode())
        Fail(QStringLiteral("a good line does not go online"));
    SpoilLine();
    try {
        for (int thing = Number(1, thingsDone); thing > 0; --thing) {
            DoSomething();
            if (Chance(0.7))
                ReopenAfterFailure();
        }
    } catch (const RunsAway&) {
        Fail(QStringLiteral("it does not end"));
    }
    CheckMemory();
    if (port_.BytesAfterFailure() > 0)
        Fail(QStringLiteral("%1 bytes went out in a communication failure")
                 .arg(port_.BytesAfterFailure()));
    if (!violations_.isEmpty())
        violations_ += QStringLiteral("story: ") + story_.join(QStringLiteral("; "));
    return violations_;
}

void HostileRun::CheckMemory() {
    for (int address = 0; address < memorySize; ++address) {
        const int value = board_.Peek(static_cast<std::uint16_t>(address));
        if (value == memoryBefore_[static_cast<std::size_t>(address)] ||
            anyValue_.test(static_cast<std::size_t>(address)))
            continue;
        const auto wanted = wanted_.find(address);
        if (wanted == wanted_.end())
            Fail(QStringLiteral("%1 was written unasked: %2").arg(address).arg(value));
        else if (std::find(wanted->second.begin(), wanted->second.end(), value) ==
                 wanted->second.end())
            Fail(QStringLiteral("%1 holds %2, which nobody sent").arg(address).arg(value));
    }
}

void HostileRun::CheckFileIsWhole(const QString& name, const QByteArray& before,
                                  const std::function<bool(const QByteArray&)>& isWhole) {
    const QByteArray now = Read(name);
    if (now != before && !isWhole(now))
        Fail(QStringLiteral("%1 is neither old nor whole: ").arg(name) +
             QString::fromLatin1(now.left(80)));
}
