#include "programset/NameTable.h"

#include "base/RunTimeError.h"

namespace {
constexpr int kinds = 2;
} // namespace

NameTable::NameTable(int highest, Bits bits)
    : highest_(highest), perNumber_(bits == Bits::Eight ? 9 : 1),
      texts_(static_cast<std::size_t>(kinds) * (highest + 1) * perNumber_) {}

void NameTable::Clear() {
    texts_.assign(texts_.size(), QString());
}

qint64 NameTable::PlaceOf(NameKind kind, qint64 number, int bitIndex) const {
    const int place = perNumber_ == 1 ? 0 : bitIndex;
    if (number < 0 || number > highest_ || place < 0 || place >= perNumber_)
        return -1;
    return (static_cast<int>(kind) * (highest_ + qint64(1)) + number) * perNumber_ + place;
}

void NameTable::Store(NameKind kind, qint64 number, int bitIndex, const QString& text) {
    const qint64 place = PlaceOf(kind, number, bitIndex);
    if (place < 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    texts_[place] = text;
}

QString NameTable::Entry(NameKind kind, qint64 number, int bitIndex) const {
    const qint64 place = PlaceOf(kind, number, bitIndex);
    return place < 0 ? QString() : texts_[place];
}
