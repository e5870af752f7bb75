#include "targetboard/FaultCodes.h"

#include "base/NumberReader.h"

namespace {
QString WithCode(const QString& caption, const QString& code) {
    return caption + QStringLiteral(" Code = ") + code + u'H';
}
} // namespace

QString FaultCodeText(const QString& value) {
    const qint64 number = WholeNumberValue(value);
    return QString::number(number, 16).toUpper().rightJustified(2, u'0');
}

bool CodeEnablesReset(const QString& code) {
    return NumberValue(code) > 0;
}

QString FaultLabelText(int position, const QString& code) {
    switch (position) {
    case FaultPosition::CurrentFault:
        return WithCode(QStringLiteral("Current Fault:"), code);
    case FaultPosition::LastFault:
        return WithCode(QStringLiteral("Last Fault:"), code);
    case FaultPosition::CoCpuSlot:
        return SlotLabelText(QString::number(HexNumberValue(code)));
    case FaultPosition::CurrentCommError:
        return WithCode(QStringLiteral("Current Comm Error:"), code);
    case FaultPosition::LastCommError:
        return WithCode(QStringLiteral("Last Comm Error:"), code);
    default:
        return QStringLiteral("Corrective Action:");
    }
}

QString SlotLabelText(const QString& value) {
    return QStringLiteral("CO-CPU Slot: ") + value;
}
