#pragma once

#include "board/BoardModel.h"
#include "board/ChannelTrack.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace haldenboard {

/// The limit switch part of a board: configuration, channels and the place of every recall.
/// What a host sends out of range is acknowledged on the line and changes nothing here, so that a
/// host that swaps bytes finds its values missing when it reads them back.
class PlsUnit {
public:
    static constexpr int BlockCount = 4;
    static constexpr int BlockSize = 6;
    static constexpr int TableSize = 19;
    using Block = std::array<uint8_t, BlockSize>;
    using Table = std::array<uint8_t, TableSize>;

    /// Starts with 360 divisions, offset 0 and nothing programmed.
    explicit PlsUnit(const BoardModel& model);

    int ScaleFactor() const { return scaleFactor_; } ///< divisions of a turn, 2 to 512 or 4096
    int Offset() const { return offset_; }           ///< resolver offset, 0 to scale factor - 1
    int Channels() const;                            ///< channels that can be programmed

    /// Keeps one block until the scale factor arrives: a configuration cut short changes nothing.
    /// @param number 0 to 3
    void StageBlock(int number, const Block& block);

    /// Takes the blocks staged since the last commit, with the scale factor. Another scale factor
    /// clears all channels, whose positions mean nothing any more, and the offset; channels beyond
    /// the new count are cleared too. A scale factor out of range leaves everything as it was.
    void Commit(int scaleFactor);

    /// Forgets what was staged and starts every recall afresh, as a restart of the board does.
    void Restart();

    /// The configuration in the order in which the board hands it out.
    Table ConfigTable() const;

    /// Each starts the channel's recall afresh; a channel from Channels() up is not touched.
    void ClearChannel(int channel);
    void AddSetpoint(int channel, int on, int off);
    /// Replaces the channel: from `start` on, `onDivisions` on and `offDivisions` off all round.
    /// Both must be 1 or more and their sum must divide the scale factor.
    void SetPulseTrain(int channel, int start, int onDivisions, int offDivisions);

    /// @param offset 0 to scale factor - 1; anything else changes nothing
    void SetOffset(int offset);

    /// The edge that the channel's recall stands at: {2, 0} if the channel holds none.
    PlsEdge CurrentEdge(int channel) const;
    /// Moves the channel's recall on, round the turn.
    void EdgeGiven(int channel);

    /// Every edge of a channel from division 0 on.
    std::vector<PlsEdge> Edges(int channel) const;

private:
    struct Channel {
        ChannelTrack track;
        std::vector<PlsEdge> edges;
        size_t next = 0;
    };

    bool Exists(int channel) const { return channel >= 0 && channel < Channels(); }
    void Programmed(Channel& channel);
    void ClearFrom(int first);

    BoardModel model_;
    int scaleFactor_ = 360;
    int offset_ = 0;
    std::array<uint8_t, BlockCount * BlockSize> config_{};
    std::array<uint8_t, BlockCount * BlockSize> staged_{};
    std::vector<Channel> channels_;
};

} // namespace haldenboard
