#include "board/ChannelTrack.h"

#include <algorithm>

namespace haldenboard {

ChannelTrack::ChannelTrack(int divisions)
    : on_(static_cast<size_t>(divisions), 0), joint_(static_cast<size_t>(divisions), 0) {}

void ChannelTrack::Clear() {
    std::fill(on_.begin(), on_.end(), uint8_t{0});
    std::fill(joint_.begin(), joint_.end(), uint8_t{0});
}

int ChannelTrack::Next(int division) const {
    return division + 1 == static_cast<int>(on_.size()) ? 0 : division + 1;
}

int ChannelTrack::Before(int division) const {
    return division == 0 ? static_cast<int>(on_.size()) - 1 : division - 1;
}

bool ChannelTrack::Add(int on, int off) {
    const int divisions = static_cast<int>(on_.size());
    if (on < 0 || off < 0 || on >= divisions || off >= divisions || on == off)
        return false;
    const bool touchesBefore = on_[on] == 0 && on_[Before(on)] != 0;
    const bool touchesAfter = on_[off] != 0 && on_[Before(off)] == 0;
    const bool keepsStart = joint_[on] != 0;
    for (int division = on; division != off; division = Next(division)) {
        on_[division] = 1;
        joint_[division] = 0;
    }
    joint_[on] = touchesBefore || keepsStart;
    if (touchesAfter)
        joint_[off] = 1;
    return true;
}

std::vector<PlsEdge> ChannelTrack::Edges() const {
    std::vector<PlsEdge> edges;
    for (int division = 0; division < static_cast<int>(on_.size()); ++division) {
        const auto position = static_cast<uint16_t>(division);
        const bool was = on_[Before(division)] != 0;
        const bool is = on_[division] != 0;
        const bool joint = was && is && joint_[division] != 0;
        if ((was && !is) || joint)
            edges.push_back({0, position});
        if ((!was && is) || joint)
            edges.push_back({1, position});
    }
    return edges;
}

} // namespace haldenboard
