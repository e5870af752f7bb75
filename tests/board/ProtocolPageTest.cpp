#include "board/SimulatedBoard.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

// docs/board-protocol.md shows dialogues in indented blocks of "→ 0x01" and "← 0x55". People build
// boards from them, so that the simulated board holds each of them byte by byte.

using namespace haldenboard;

namespace {

constexpr int StandardPls = 64; // knows the limit switch commands too

struct Said {
    bool toBoard;
    std::string what; // "0x55", or a word where the byte is anything

    bool IsByte() const { return what.starts_with("0x"); }
    uint8_t Byte() const { return static_cast<uint8_t>(std::stoi(what, nullptr, 16)); }
};

using Dialogue = std::vector<Said>;

bool ReadLine(const std::string& line, Dialogue& dialogue) {
    if (!line.starts_with("    → "))
        return false;
    std::istringstream words(line);
    std::string arrow;
    std::string what;
    while (words >> arrow >> what)
        dialogue.push_back({arrow == "→", what});
    return true;
}

std::vector<Dialogue> DialoguesOfPage() {
    std::ifstream page(QUENTOR_SOURCE_FOLDER "/docs/board-protocol.md");
    std::vector<Dialogue> dialogues;
    bool inside = false;
    for (std::string line; std::getline(page, line);) {
        Dialogue said;
        const bool isDialogue = ReadLine(line, said);
        if (isDialogue && !inside)
            dialogues.emplace_back();
        inside = isDialogue;
        if (inside)
            dialogues.back().insert(dialogues.back().end(), said.begin(), said.end());
    }
    return dialogues;
}

// "mode" stands for any of the three; the other words are only said by the board.
uint8_t ByteToSend(const Said& said) {
    return said.IsByte() ? said.Byte() : wire::EnterRead;
}

void Hold(const Dialogue& dialogue) {
    SimulatedBoard board(StandardPls);
    board.Receive(wire::Attention);
    std::optional<Reply> reply;
    for (const Said& said : dialogue) {
        if (said.toBoard) {
            EXPECT_FALSE(reply) << "an answer nobody reads, ahead of " << said.what;
            reply = board.Receive(ByteToSend(said));
            continue;
        }
        ASSERT_TRUE(reply) << "no answer, but the page has " << said.what;
        if (said.IsByte()) {
            EXPECT_EQ(reply->value, said.Byte());
        }
        reply.reset();
    }
    EXPECT_FALSE(reply) << "an answer that the page does not have";
}

} // namespace

TEST(ProtocolPage, HasADialogueForEachWayToTalkToABoard) {
    EXPECT_EQ(DialoguesOfPage().size(), 5u); // handshake, read, write, program, ready poll
}

TEST(ProtocolPage, IsHeldByTheSimulatedBoardByteByByte) {
    for (const Dialogue& dialogue : DialoguesOfPage())
        Hold(dialogue);
}
