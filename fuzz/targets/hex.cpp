#include "FuzzFile.h"
#include "link/HexImage.h"

// The .HEX file: nothing may reach the board that is no whole record.

namespace {
constexpr qsizetype headLength = 3; // bytes: count and address
constexpr int programModeEnd = 0xFF;

void CheckRecord(const HexLine& line) {
    Require(line.wire.size() > headLength, "a record has data");
    const int count = static_cast<std::uint8_t>(line.wire.front());
    Require(count != programModeEnd, "no count ends program mode");
    Require(line.wire.size() == headLength + count, "a record has as many bytes as it says");
    Require(line.address.toUpper().toLatin1() == line.wire.mid(1, 2).toHex().toUpper(),
            "the address shown is the address sent");
    RecordSum(line.wire);
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.hex"));
    file.Put(input);
    Passes([&] {
        const HexImage image(file.Path());
        Require(image.IsEmpty() == input.empty(), "only a file without a character is empty");
        for (const HexLine& line : image.Lines()) {
            Require(line.kind != HexLine::Kind::Unsendable || !image.IsSendable(),
                    "a line that cannot be sent stops the whole image");
            if (line.kind == HexLine::Kind::Record)
                CheckRecord(line);
        }
    });
}

const RegisteredTarget target("hex", Run);
} // namespace
