#include "board/Resolver.h"

#include <algorithm>
#include <cmath>

namespace haldenboard {

double Resolver::TurnsAt(double now) const {
    const double turns = turns_ + Speed() * (now - since_) / 60.0;
    return turns - std::floor(turns);
}

void Resolver::SetSpeed(int rpm, double now) {
    turns_ = TurnsAt(now);
    since_ = now;
    rpm_ = rpm;
}

void Resolver::Hold(bool held, double now) {
    turns_ = TurnsAt(now);
    since_ = now;
    held_ = held;
}

int Resolver::Position(double now, int divisions) const {
    return std::min(static_cast<int>(TurnsAt(now) * divisions), divisions - 1);
}

} // namespace haldenboard
