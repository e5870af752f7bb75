#include "board/MemoryDialogue.h"

namespace haldenboard {

bool MemoryDialogue::Begin(uint8_t command) {
    switch (command) {
    case wire::EnterRead:
        mode_ = Mode::Read;
        break;
    case wire::EnterWrite:
        mode_ = Mode::Write;
        break;
    case wire::EnterProgram:
        mode_ = Mode::Program;
        break;
    default:
        return false;
    }
    field_ = mode_ == Mode::Program ? Field::Count : Field::High;
    return true;
}

bool MemoryDialogue::AttentionHere() const {
    return field_ == (mode_ == Mode::Program ? Field::Count : Field::High);
}

std::optional<Reply> MemoryDialogue::Take(uint8_t byte) {
    switch (mode_) {
    case Mode::Read:
        return TakeRead(byte);
    case Mode::Write:
        return TakeWrite(byte);
    default:
        return TakeProgram(byte);
    }
}

std::optional<Reply> MemoryDialogue::TakeRead(uint8_t byte) {
    if (field_ == Field::High) {
        high_ = byte;
        field_ = Field::Low;
        return Reply{byte};
    }
    low_ = byte;
    field_ = Field::High;
    return Reply{memory_[Address()]};
}

std::optional<Reply> MemoryDialogue::TakeWrite(uint8_t byte) {
    switch (field_) {
    case Field::High:
        high_ = byte;
        field_ = Field::Low;
        break;
    case Field::Low:
        low_ = byte;
        field_ = Field::Data;
        break;
    default:
        memory_[Address()] = byte;
        field_ = Field::High;
    }
    return Reply{byte};
}

std::optional<Reply> MemoryDialogue::TakeProgram(uint8_t byte) {
    sum_ = static_cast<uint8_t>(field_ == Field::Count ? byte : sum_ + byte);
    switch (field_) {
    case Field::Count:
        left_ = byte;
        field_ = Field::High;
        return std::nullopt;
    case Field::High:
        high_ = byte;
        field_ = Field::Low;
        return std::nullopt;
    case Field::Low:
        low_ = byte;
        address_ = Address();
        field_ = Field::Data;
        break;
    case Field::Data:
        memory_[address_++] = byte;
        --left_;
        break;
    }
    return left_ == 0 ? EndRecord() : std::nullopt;
}

std::optional<Reply> MemoryDialogue::EndRecord() {
    field_ = Field::Count;
    return Reply{sum_, ReplyKind::RecordSum};
}

} // namespace haldenboard
