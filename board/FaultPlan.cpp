#include "board/FaultPlan.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace haldenboard {

namespace {

bool Counts(const Fault& fault, const Reply& reply) {
    if (fault.kind == FaultKind::WrongSum)
        return reply.kind == ReplyKind::RecordSum;
    if (fault.kind == FaultKind::WrongExit)
        return reply.kind == ReplyKind::ProgramExit;
    return true;
}

bool IsChance(double value) {
    return value >= 0 && value <= 1; // false for what is no number
}

} // namespace

void FaultPlan::Order(Fault fault) {
    if (fault.nth < 1)
        throw std::invalid_argument("replies are counted from 1");
    if (!std::isfinite(fault.seconds) || fault.seconds < 0)
        throw std::invalid_argument("a reply is late by 0 seconds or more");
    faults_.push_back(std::move(fault));
}

void FaultPlan::SetRandom(const RandomFaults& chances) {
    const double all[] = {chances.lost,  chances.late,    chances.doubled,
                          chances.wrong, chances.garbage, chances.reset};
    if (!std::all_of(std::begin(all), std::end(all), IsChance))
        throw std::invalid_argument("a chance is 0 to 1");
    if (!std::isfinite(chances.lateSeconds) || chances.lateSeconds < 0)
        throw std::invalid_argument("a reply is late by 0 seconds or more");
    chances_ = chances;
    random_.seed(chances.seed);
    anyChance_ = std::any_of(std::begin(all), std::end(all), [](double p) { return p > 0; });
}

void FaultPlan::Clear() {
    faults_.clear();
    chances_ = RandomFaults{};
    anyChance_ = false;
    silence_ = false;
}

size_t FaultPlan::Outstanding() const {
    return static_cast<size_t>(std::count_if(faults_.begin(), faults_.end(),
                                             [](const Fault& fault) { return !fault.standing; }));
}

void FaultPlan::Strike(const Fault& fault, Transmission& sent) {
    switch (fault.kind) {
    case FaultKind::Lost:
        lost_ = true;
        break;
    case FaultKind::Late:
        sent.delay += fault.seconds;
        break;
    case FaultKind::Doubled:
        sent.bytes.push_back(sent.bytes.back());
        break;
    case FaultKind::Wrong:
    case FaultKind::WrongSum:
    case FaultKind::WrongExit:
        sent.bytes.back() ^= fault.mask;
        break;
    case FaultKind::Garbage:
        sent.bytes.insert(sent.bytes.begin(), fault.bytes.begin(), fault.bytes.end());
        break;
    case FaultKind::Reset:
        sent.reset = true;
        break;
    }
}

bool FaultPlan::Chance(double probability) {
    return static_cast<double>(random_()) < probability * 4294967296.0;
}

void FaultPlan::StrikeAtRandom(Transmission& sent) {
    if (Chance(chances_.lost))
        lost_ = true;
    if (Chance(chances_.late))
        sent.delay += chances_.lateSeconds * static_cast<double>(random_()) / 4294967296.0;
    if (Chance(chances_.wrong))
        sent.bytes.back() ^= static_cast<uint8_t>(1u << (random_() % 8));
    if (Chance(chances_.doubled))
        sent.bytes.push_back(sent.bytes.back());
    if (Chance(chances_.garbage))
        sent.bytes.insert(sent.bytes.begin(), static_cast<uint8_t>(random_() % 256));
    if (Chance(chances_.reset))
        sent.reset = true;
}

Transmission FaultPlan::Pass(const Reply& reply) {
    Transmission sent;
    sent.bytes.push_back(reply.value);
    lost_ = silence_;
    for (Fault& fault : faults_) {
        if (!Counts(fault, reply))
            continue;
        if (fault.nth > 0)
            --fault.nth;
        if (fault.nth == 0)
            Strike(fault, sent);
    }
    std::erase_if(faults_, [](const Fault& f) { return f.nth == 0 && !f.standing; });
    if (anyChance_)
        StrikeAtRandom(sent);
    if (lost_ || sent.reset)
        sent.bytes.clear();
    return sent;
}

} // namespace haldenboard
