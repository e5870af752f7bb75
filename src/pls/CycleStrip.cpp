#include "pls/CycleStrip.h"

#include <algorithm>

namespace {
// Lays positions of one cycle on the strip.
struct Ruler {
    int scaleFactor;
    double width;

    double At(int position) const {
        return std::clamp(position, 0, scaleFactor) * width / scaleFactor;
    }
};

void AddSpan(std::vector<StripSpan>& spans, const Ruler& ruler, int from, int to, int setpoint) {
    const StripSpan span{ruler.At(from), ruler.At(to), setpoint};
    if (span.left < span.right)
        spans.push_back(span);
}
} // namespace

CycleStrip LayOutCycle(int scaleFactor, const SetpointList& channel, std::optional<int> position,
                       double width) {
    CycleStrip strip;
    if (scaleFactor < 2 || width <= 0.0)
        return strip;
    const Ruler ruler{scaleFactor, width};
    for (int i = 0; i < channel.size(); ++i) {
        const Setpoint& setpoint = channel[i];
        if (setpoint.on > setpoint.off) {
            AddSpan(strip.spans, ruler, setpoint.on, scaleFactor, i);
            AddSpan(strip.spans, ruler, 0, setpoint.off, i);
        } else {
            AddSpan(strip.spans, ruler, setpoint.on, setpoint.off, i);
        }
    }
    if (position && *position >= 0 && *position < scaleFactor)
        strip.marker = ruler.At(*position);
    return strip;
}

QString CycleInWords(int scaleFactor, const QString& channelName, const SetpointList& channel,
                     std::optional<int> position) {
    if (scaleFactor < 2)
        return QStringLiteral("Nothing was read");
    QStringList spans;
    for (const Setpoint& setpoint : channel)
        if (!setpoint.IsPlaceholder())
            spans += QStringLiteral("%1 to %2").arg(setpoint.on).arg(setpoint.off);
    const QString on = spans.isEmpty() ? QStringLiteral("never ON")
                                       : QStringLiteral("ON ") + spans.join(QStringLiteral(", "));
    const QString place =
        position ? QStringLiteral("; the machine stands at %1").arg(*position) : QString();
    return QStringLiteral("%1: %2 of %3").arg(channelName, on).arg(scaleFactor) + place;
}
