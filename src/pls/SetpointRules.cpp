#include "pls/SetpointRules.h"

#include "pls/SetpointTexts.h"

namespace {
// Whether a position lies inside a setpoint, its ends included.
bool Covers(Setpoint setpoint, int position, int scaleFactor) {
    if (setpoint.on < setpoint.off)
        return setpoint.on <= position && position <= setpoint.off;
    if (setpoint.on == setpoint.off)
        return false;
    const bool beforeZero = position >= setpoint.on && position < scaleFactor;
    const bool fromZero = position <= setpoint.off && position >= 0;
    return beforeZero || fromZero;
}

SetpointRefusal Refusal(const char* text, const char* title) {
    return {QString::fromLatin1(text), QString::fromLatin1(title)};
}
} // namespace

bool SetpointOverlaps(Setpoint existing, Setpoint candidate, int scaleFactor) {
    return Covers(existing, candidate.on, scaleFactor) ||
           Covers(existing, candidate.off, scaleFactor);
}

std::optional<SetpointRefusal> RefusesAdd(const SetpointList& channel, Setpoint candidate,
                                          int scaleFactor) {
    if (candidate.IsPlaceholder())
        return Refusal(SetpointTexts::equalEnds, SetpointTexts::addTitle);
    for (const Setpoint& existing : channel) {
        if (SetpointOverlaps(existing, candidate, scaleFactor))
            return Refusal(SetpointTexts::addOverlaps, SetpointTexts::addTitle);
    }
    return std::nullopt;
}

std::optional<SetpointRefusal> RefusesAdjust(const SetpointList& channel, int index,
                                             Setpoint candidate, int scaleFactor) {
    if (candidate.IsPlaceholder())
        return Refusal(SetpointTexts::equalEnds, SetpointTexts::adjustEqualTitle);
    for (int i = 0; i < channel.size(); ++i) {
        if (i != index && SetpointOverlaps(channel[i], candidate, scaleFactor))
            return Refusal(SetpointTexts::adjustOverlaps, SetpointTexts::adjustOverlapTitle);
    }
    return std::nullopt;
}

bool AddClearsChannel(const SetpointList& channel) {
    return !channel.isEmpty() && channel.last().IsPlaceholder();
}

bool HasSetpoint(const SetpointList& channel, int index) {
    return index >= 0 && index < channel.size();
}

SetpointList AdjustedSetpoints(SetpointList channel, int index, Setpoint candidate) {
    if (HasSetpoint(channel, index))
        channel[index] = candidate;
    return channel;
}
