#include "board/PlsUnit.h"

#include <algorithm>

namespace haldenboard {

namespace {

constexpr int ChannelCountPlace = 18;
constexpr int Unused = -1;
using TableOrder = std::array<int, PlsUnit::TableSize>;

// For each place of the table handed out, the place in the blocks taken in.
constexpr TableOrder StandardOrder = {14, 15, 16, 17, 0,      18,     2,      3,      4, 5,
                                      6,  7,  8,  9,  Unused, Unused, Unused, Unused, 1};
constexpr TableOrder LargeOrder = {18,     0,      1,      2,      3,      4,      6,
                                   7,      8,      9,      Unused, Unused, Unused, Unused,
                                   Unused, Unused, Unused, Unused, Unused};

int MostDivisions(const BoardModel& model) {
    return model.layout == PlsLayout::Large ? 4096 : 512;
}

} // namespace

PlsUnit::PlsUnit(const BoardModel& model) : model_(model) {
    const int mostChannels = model.mostChannels;
    channels_.assign(static_cast<size_t>(mostChannels), Channel{ChannelTrack(scaleFactor_), {}, 0});
    if (model.layout == PlsLayout::Standard)
        config_[1] = 1; // display strobe, in units of 2.5 ms; 0 would stop the display
    config_[ChannelCountPlace] = model.layout == PlsLayout::Large ? 8 : 16;
    staged_ = config_;
}

int PlsUnit::Channels() const {
    const int configured = config_[ChannelCountPlace];
    if (model_.layout == PlsLayout::Standard)
        return configured == 32 && model_.mostChannels == 32 ? 32 : 16;
    return configured == 16 || configured == 32 || configured == 64 ? configured : 8;
}

void PlsUnit::StageBlock(int number, const Block& block) {
    std::copy(block.begin(), block.end(), staged_.begin() + number * BlockSize);
}

void PlsUnit::Commit(int scaleFactor) {
    if (scaleFactor < 2 || scaleFactor > MostDivisions(model_)) {
        staged_ = config_;
        return;
    }
    config_ = staged_;
    if (scaleFactor != scaleFactor_) {
        scaleFactor_ = scaleFactor;
        offset_ = 0;
        ClearFrom(0);
    }
    ClearFrom(Channels());
}

void PlsUnit::ClearFrom(int first) {
    for (size_t place = static_cast<size_t>(first); place < channels_.size(); ++place)
        channels_[place] = Channel{ChannelTrack(scaleFactor_), {}, 0};
}

void PlsUnit::Restart() {
    staged_ = config_;
    for (Channel& channel : channels_)
        channel.next = 0;
}

PlsUnit::Table PlsUnit::ConfigTable() const {
    const TableOrder& order = model_.layout == PlsLayout::Large ? LargeOrder : StandardOrder;
    Table table{};
    for (size_t place = 0; place < table.size(); ++place)
        table[place] = order[place] == Unused ? uint8_t{0} : config_[order[place]];
    return table;
}

void PlsUnit::Programmed(Channel& channel) {
    channel.edges = channel.track.Edges();
    channel.next = 0;
}

void PlsUnit::ClearChannel(int channel) {
    if (!Exists(channel))
        return;
    channels_[channel].track.Clear();
    Programmed(channels_[channel]);
}

void PlsUnit::AddSetpoint(int channel, int on, int off) {
    if (!Exists(channel) || !channels_[channel].track.Add(on, off))
        return;
    Programmed(channels_[channel]);
}

void PlsUnit::SetPulseTrain(int channel, int start, int onDivisions, int offDivisions) {
    const int period = onDivisions + offDivisions;
    if (!Exists(channel) || onDivisions < 1 || offDivisions < 1 || start >= scaleFactor_ ||
        scaleFactor_ % period != 0)
        return;
    channels_[channel].track.Clear();
    for (int pulse = 0; pulse < scaleFactor_ / period; ++pulse) {
        const int on = (start + pulse * period) % scaleFactor_;
        channels_[channel].track.Add(on, (on + onDivisions) % scaleFactor_);
    }
    Programmed(channels_[channel]);
}

void PlsUnit::SetOffset(int offset) {
    if (offset >= 0 && offset < scaleFactor_)
        offset_ = offset;
}

PlsEdge PlsUnit::CurrentEdge(int channel) const {
    if (!Exists(channel) || channels_[channel].edges.empty())
        return {2, 0};
    return channels_[channel].edges[channels_[channel].next];
}

void PlsUnit::EdgeGiven(int channel) {
    if (!Exists(channel) || channels_[channel].edges.empty())
        return;
    Channel& given = channels_[channel];
    given.next = (given.next + 1) % given.edges.size();
}

std::vector<PlsEdge> PlsUnit::Edges(int channel) const {
    return Exists(channel) ? channels_[channel].edges : std::vector<PlsEdge>{};
}

} // namespace haldenboard
