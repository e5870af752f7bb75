#include "jobs/DatafileStart.h"

#include "base/NumberReader.h"
#include "base/RunTimeError.h"

namespace {
constexpr qint16 firstUserByte = 32;

struct Form {
    char16_t letter;
    qint16 step;
    bool evenOnly;
    const char16_t* complaint;
};

constexpr Form forms[] = {
    {u'B', 1, false, u" is out of range."},
    {u'W', 2, true, u" is invalid or out of range."},
    {u'D', 4, true, u" is invalid or out of range."},
};

DatafileStartReading Refused(const QString& message) {
    return {std::nullopt, message};
}

qint16 AddressNumber(QString text, QChar letter) {
    return ToInteger16(RoundToWhole(NumberValue(text.replace(letter, u'0'))));
}

DatafileStartReading ReadAs(const Form& form, const QString& startingAdd) {
    const qint16 address = AddressNumber(startingAdd, form.letter);
    if (address < firstUserByte || (form.evenOnly && address % 2 != 0))
        return Refused(QStringLiteral("Address ") + form.letter + QString::number(address) +
                       QString::fromUtf16(form.complaint));
    return {DatafileStart{form.letter, address, form.step}, QString()};
}
} // namespace

DatafileStartReading ReadDatafileStart(const QString& startingAdd) {
    if (!startingAdd.contains(u'.'))
        for (const Form& form : forms)
            if (startingAdd.contains(form.letter))
                return ReadAs(form, startingAdd);
    return Refused(QStringLiteral("Only Byte (Bxxx) or Word (Wyyy) variable types allowed."));
}
