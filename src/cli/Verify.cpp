#include "cli/Verify.h"

#include <algorithm>

namespace {
// The high byte of these addresses would be attention: the board cannot be asked for them.
constexpr int firstUnreadable = 0xFF00;
constexpr int readsOfDoubt = 3;
constexpr int readsThatDecide = 2;
constexpr qsizetype headLength = 3; // count and address of a record

int AddressOf(const QByteArray& wire) {
    return static_cast<std::uint8_t>(wire[1]) * 256 + static_cast<std::uint8_t>(wire[2]);
}

void LayRecord(const QByteArray& wire, ExpectedMemory& memory) {
    int address = AddressOf(wire);
    for (const char byte : wire.sliced(headLength)) {
        if (address < ExpectedMemory::size)
            memory.bytes[static_cast<std::size_t>(address)] = static_cast<std::uint8_t>(byte);
        else
            ++memory.beyond;
        ++address;
    }
}

void LayIdent(const ProgramIdent& ident, ExpectedMemory& memory) {
    QByteArray block = IdentBytes(ident.ident);
    block.append(static_cast<char>(ident.checksum.toInt()));
    block.append(static_cast<char>(ident.revision.toInt()));
    auto place = static_cast<std::size_t>(IdentBlock::Address);
    for (const char byte : block) {
        if (memory.bytes[place])
            memory.bytes[place] = static_cast<std::uint8_t>(byte);
        ++place;
    }
}

using Reader = std::function<std::optional<int>(int address)>;

// The value that the board gives for a byte, in doubt by majority; nothing when a read failed.
std::optional<int> Settled(int address, int expected, const Reader& read) {
    std::optional<int> other;
    int alike = 0;
    for (int attempt = 0; attempt < readsOfDoubt; ++attempt) {
        const std::optional<int> found = read(address);
        if (!found)
            return std::nullopt;
        if (*found == expected && (attempt == 0 || ++alike == readsThatDecide))
            return expected;
        if (*found != expected) {
            if (other == found)
                return found;
            other = found;
        }
    }
    return other;
}
} // namespace

int ExpectedMemory::Count() const {
    return static_cast<int>(std::count_if(bytes.begin(), bytes.end(),
                                          [](const auto& byte) { return byte.has_value(); }));
}

ExpectedMemory MemoryOfImage(const HexImage& image, const std::optional<ProgramIdent>& ident) {
    ExpectedMemory memory;
    for (const HexLine& line : image.Lines())
        if (line.kind == HexLine::Kind::Record)
            LayRecord(line.wire, memory);
    if (ident)
        LayIdent(*ident, memory);
    return memory;
}

VerifyReport CompareMemory(const ExpectedMemory& expected, const Reader& read) {
    VerifyReport report;
    report.unreadable = expected.beyond;
    for (int address = 0; address < ExpectedMemory::size; ++address) {
        const auto& wanted = expected.bytes[static_cast<std::size_t>(address)];
        if (!wanted)
            continue;
        if (address >= firstUnreadable) {
            ++report.unreadable;
            continue;
        }
        const std::optional<int> found = Settled(address, *wanted, read);
        if (!found)
            return report;
        ++report.compared;
        if (*found == *wanted)
            continue;
        if (++report.differences == 1)
            report.first = Difference{address, *wanted, *found};
    }
    report.whole = true;
    return report;
}
