#include "board/Line.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace haldenboard {

namespace {

constexpr double BitsPerByte = 10;

bool ComesBefore(double at, const LoggedByte& logged) {
    return at < logged.at;
}

} // namespace

Line::Line(SimulatedBoard& board) : board_(board), byteTime_(BitsPerByte / DefaultBaud) {}

void Line::SetBaud(int baud) {
    if (baud < 0)
        throw std::invalid_argument("a baud rate is not negative");
    byteTime_ = baud == 0 ? 0 : BitsPerByte / baud;
}

void Line::HostWrites(uint8_t byte, double now) {
    DeliverUntil(now);
    hostFree_ = std::max(now, hostFree_) + byteTime_;
    toBoard_.push_back({hostFree_, byte});
}

void Line::Note(double at, bool toBoard, uint8_t value) const {
    if (!keepLog_)
        return;
    const auto place = std::upper_bound(log_.begin(), log_.end(), at, ComesBefore);
    log_.insert(place, {at, toBoard, value});
}

void Line::Send(const Transmission& sent, double at) const {
    if (sent.reset)
        board_.Reset();
    if (sent.bytes.empty())
        return;
    boardFree_ = std::max(boardFree_, at + sent.delay);
    for (const uint8_t value : sent.bytes) {
        boardFree_ += byteTime_;
        toHost_.push_back({boardFree_, value});
        Note(boardFree_, false, value);
    }
}

void Line::DeliverOne() const {
    const Flight byte = toBoard_.front();
    toBoard_.pop_front();
    Note(byte.at, true, byte.value);
    board_.AdvanceTo(byte.at);
    if (const auto reply = board_.Receive(byte.value))
        Send(faults_.Pass(*reply), byte.at);
}

void Line::DeliverUntil(double now) const {
    while (!toBoard_.empty() && toBoard_.front().at <= now)
        DeliverOne();
}

void Line::Settle(double now) {
    DeliverUntil(now);
    board_.AdvanceTo(now);
}

std::optional<double> Line::NextArrival() const {
    // The board's answers leave in the order of the questions: the first is final once it stands.
    while (toHost_.empty() && !toBoard_.empty())
        DeliverOne();
    if (toHost_.empty())
        return std::nullopt;
    return toHost_.front().at;
}

int Line::HostAvailable(double now) {
    DeliverUntil(now);
    const auto waiting = std::find_if(toHost_.begin(), toHost_.end(),
                                      [now](const Flight& byte) { return byte.at > now; });
    return static_cast<int>(waiting - toHost_.begin());
}

std::optional<uint8_t> Line::HostReads(double now) {
    DeliverUntil(now);
    if (toHost_.empty() || toHost_.front().at > now)
        return std::nullopt;
    const uint8_t value = toHost_.front().value;
    toHost_.pop_front();
    return value;
}

void Line::DiscardHostInput(double now) {
    while (HostReads(now)) {
    }
}

const std::vector<LoggedByte>& Line::Log() const {
    DeliverUntil(std::numeric_limits<double>::infinity());
    return log_;
}

std::vector<LoggedByte> Line::TakeLog(double now) {
    DeliverUntil(now);
    const auto end = std::upper_bound(log_.begin(), log_.end(), now, ComesBefore);
    std::vector<LoggedByte> taken(log_.begin(), end);
    log_.erase(log_.begin(), end);
    return taken;
}

} // namespace haldenboard
