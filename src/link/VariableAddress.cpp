#include "link/VariableAddress.h"

#include "base/NumberReader.h"
#include "link/TargetBoards.h"
#include <algorithm>
#include <optional>
#include <span>

namespace {
struct PointByte {
    qint64 point;
    int byte;
};

constexpr PointByte xOfK2010[] = {{30, 49}, {31, 50}, {50, 51}, {51, 52}, {60, 53},
                                  {61, 54}, {70, 55}, {71, 56}, {80, 57}};
constexpr PointByte yOfK2010[] = {{81, 58},  {90, 59},  {100, 60}, {110, 61}, {111, 62},
                                  {120, 63}, {121, 64}, {130, 65}, {140, 66}, {141, 67}};
constexpr PointByte xOfR6010[] = {{10, 51}, {11, 52}};
constexpr PointByte xOfR6011[] = {{10, 51}, {11, 52}, {20, 53}, {21, 54}};
constexpr PointByte xOfR6012[] = {{10, 51}, {11, 52}, {20, 53}};
constexpr PointByte yOfR6012[] = {{0, 49}, {1, 50}, {21, 54}};
constexpr PointByte yOfR6010[] = {{0, 49}, {1, 50}};
constexpr PointByte xOfR6020[] = {{0, 49}, {1, 50}, {10, 51}};
constexpr PointByte yOfR6020[] = {{11, 52}};

std::span<const PointByte> PointsOf(qint16 board, bool isX) {
    using Points = std::span<const PointByte>;
    switch (board) {
    case 49:
        return isX ? Points(xOfK2010) : Points(yOfK2010);
    case 58:
        return isX ? Points(xOfR6010) : Points(yOfR6010);
    case 59:
    case 66:
        return isX ? Points(xOfR6011) : Points(yOfR6010);
    case 60:
    case 65:
        return isX ? Points(xOfR6012) : Points(yOfR6012);
    case 61:
        return isX ? Points(xOfR6020) : Points(yOfR6020);
    default:
        return {};
    }
}

// The K2012 maps all points by one rule: groups of two, from a first byte on.
std::optional<int> ByteOnK2012(QChar prefix, qint64 point) {
    constexpr int firstPoint = 160;
    constexpr int firstImagePoint = 192;
    if (point < 0 || point > 151 || point % 10 > 1)
        return std::nullopt;
    const int first = prefix == u'I' ? firstImagePoint : firstPoint;
    return first + static_cast<int>(2 * (point / 10) + point % 10);
}

std::optional<int> ByteOfPoint(QChar prefix, qint64 point, qint16 board) {
    if (prefix != u'X' && prefix != u'Y' && prefix != u'I')
        return std::nullopt;
    if (board == BoardIndex::K2012)
        return ByteOnK2012(prefix, point);
    if (prefix == u'I')
        return std::nullopt;
    const auto points = PointsOf(board, prefix == u'X');
    const auto found = std::find_if(points.begin(), points.end(),
                                    [point](const PointByte& p) { return p.point == point; });
    return found == points.end() ? std::nullopt : std::optional(found->byte);
}

struct Limits {
    qint64 lowest = 0;
    qint64 highest = 0;
    bool evenOnly = false;
    bool pointDigit = false; // the last decimal digit must be 0 or 1
};

Limits MemoryLimits(QChar prefix, char memoryClass) {
    if (prefix == u'F')
        return {0, memoryClass == 'A' ? 120 : 991};
    const qint64 highestByte = memoryClass == 'A' ? 255 : memoryClass == 'B' ? 8275 : 65535;
    if (prefix == u'B')
        return {32, highestByte};
    return {32, highestByte - 1, true};
}

// Limits of the points X, Y and I; none where the board has none of them.
std::optional<Limits> PointLimits(QChar prefix, qint16 board) {
    constexpr Limits wide{0, 151, false, true};
    constexpr Limits narrow{0, 21, false, true};
    if (board == 49 || board == 50)
        return wide;
    if (prefix == u'I') {
        const bool hasImage = (board >= 51 && board <= 54) || board == 56;
        return hasImage ? std::optional(narrow) : std::nullopt;
    }
    return board == 0 || board == 68 ? std::nullopt : std::optional(narrow);
}

std::optional<Limits> LimitsOf(QChar prefix, qint16 board) {
    switch (prefix.unicode()) {
    case u'B':
    case u'W':
    case u'D':
    case u'F':
        return MemoryLimits(prefix, MemoryClass(board));
    case u'X':
    case u'Y':
    case u'I':
        return PointLimits(prefix, board);
    default:
        return Limits{}; // any other letter passes with the number 0 alone
    }
}
} // namespace

QString EquateAdd(const QString& Var, qint16 TargetBoardIndex) {
    if (Var.isEmpty())
        return Var;
    const QChar prefix = Var.front().toUpper();
    const QStringView rest = QStringView(Var).mid(1);
    const bool isBit = rest.contains(u'.');
    const qsizetype bitLength = std::min<qsizetype>(2, rest.size());
    const qint64 point = WholeNumberValue(isBit ? rest.chopped(bitLength) : rest);
    const auto byte = ByteOfPoint(prefix, point, TargetBoardIndex);
    if (!byte)
        return Var;
    const QString equivalent = u'B' + QString::number(*byte);
    if (!isBit)
        return equivalent;
    const qint64 bit = std::clamp<qint64>(WholeNumberValue(QStringView(Var).last(1)), 0, 7);
    return equivalent + u'.' + QString::number(bit);
}

bool ValidAdd(const QString& Var, qint16 TargetBoardIndex) {
    if (Var.isEmpty())
        return false;
    const QStringView rest = QStringView(Var).mid(1);
    const qsizetype bitLength = Var.contains(u'.') ? std::min<qsizetype>(2, rest.size()) : 0;
    const qint64 number = WholeNumberValue(rest.chopped(bitLength));
    const auto limits = LimitsOf(Var.front().toUpper(), TargetBoardIndex);
    if (!limits || number < limits->lowest || number > limits->highest)
        return false;
    if (limits->evenOnly && number % 2 != 0)
        return false;
    return !limits->pointDigit || number % 10 <= 1;
}
