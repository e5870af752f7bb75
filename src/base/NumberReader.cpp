#include "base/NumberReader.h"

#include "base/RunTimeError.h"
#include <cmath>
#include <limits>
#include <QLocale>
#include <QString>

namespace {
bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool IsBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

qsizetype SkipDigits(QStringView text, qsizetype at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

// End of the mantissa that starts at `start`, or `start` if there is none.
qsizetype MantissaEnd(QStringView text, qsizetype start) {
    qsizetype at = start;
    if (at < text.size() && (text[at] == u'+' || text[at] == u'-'))
        ++at;
    const qsizetype whole = SkipDigits(text, at);
    qsizetype end = whole;
    qsizetype digits = whole - at;
    if (end < text.size() && text[end] == u'.') {
        end = SkipDigits(text, whole + 1);
        digits += end - whole - 1;
    }
    return digits > 0 ? end : start;
}

// End of the exponent at `at`, or `at` if what stands there is none.
qsizetype ExponentEnd(QStringView text, qsizetype at) {
    if (at >= text.size() || (text[at] != u'e' && text[at] != u'E'))
        return at;
    qsizetype digits = at + 1;
    if (digits < text.size() && (text[digits] == u'+' || text[digits] == u'-'))
        ++digits;
    const qsizetype end = SkipDigits(text, digits);
    return end > digits ? end : at;
}
} // namespace

double NumberValue(QStringView text) {
    qsizetype start = 0;
    while (start < text.size() && IsBlank(text[start]))
        ++start;
    const qsizetype mantissa = MantissaEnd(text, start);
    if (mantissa == start)
        return 0.0;
    const qsizetype end = ExponentEnd(text, mantissa);
    // A number too large for the type stays the largest there is: as 0 it would pass range checks.
    const double value = QLocale::c().toDouble(text.mid(start, end - start));
    const double largest = std::numeric_limits<double>::max();
    return std::fmin(std::fmax(value, -largest), largest);
}

qint64 WholeNumberValue(QStringView text) {
    const double value = std::trunc(NumberValue(text));
    constexpr double limit = 9.2e18;
    return static_cast<qint64>(std::fmin(std::fmax(value, -limit), limit));
}

qint64 HexNumberValue(QStringView text) {
    qint64 value = 0;
    for (qsizetype at = 0; at < text.size() && at < 8; ++at) {
        const char16_t c = text[at].unicode();
        int digit = -1;
        if (c >= u'0' && c <= u'9')
            digit = c - u'0';
        else if (c >= u'A' && c <= u'F')
            digit = c - u'A' + 10;
        else if (c >= u'a' && c <= u'f')
            digit = c - u'a' + 10;
        if (digit < 0)
            break;
        value = value * 16 + digit;
    }
    return value;
}

bool IsNumeric(QStringView text) {
    const QStringView trimmed = text.trimmed();
    const qsizetype mantissa = MantissaEnd(trimmed, 0);
    return mantissa > 0 && ExponentEnd(trimmed, mantissa) == trimmed.size();
}

qint32 RoundToWhole(double value) {
    const double rounded = std::nearbyint(value); // the default mode rounds halves to even
    if (!(rounded >= std::numeric_limits<qint32>::min() &&
          rounded <= std::numeric_limits<qint32>::max()))
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<qint32>(rounded);
}
