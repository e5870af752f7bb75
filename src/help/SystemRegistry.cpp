#include "help/SystemRegistry.h"

#include "base/CharacterSet.h"
#include <QSettings>
#include <QSysInfo>

namespace {
// A text in the registry ends with a zero, which may or may not be counted.
QString UpToZero(const QString& text) {
    return text.section(QChar::Null, 0, 0);
}

QString TextOf(const RegistryValue& value) {
    if (const auto* number = std::get_if<quint32>(&value))
        return QStringLiteral("&h") + QString::number(*number, 16).toUpper();
    if (const auto* bytes = std::get_if<QByteArray>(&value))
        return UpToZero(FromWindows1252(*bytes));
    return UpToZero(std::get<QString>(value));
}
} // namespace

SystemRegistry::~SystemRegistry() = default;

bool MachineRegistry::IsThere() const {
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

std::optional<RegistryValue> MachineRegistry::Read(const QString& root, const QString& key,
                                                   const QString& name) const {
    if (!IsThere())
        return std::nullopt;
    const QSettings settings(root + u'\\' + key, QSettings::NativeFormat);
    const QVariant value = settings.value(name);
    if (!value.isValid())
        return std::nullopt;
    if (value.typeId() == QMetaType::Int || value.typeId() == QMetaType::UInt)
        return value.toUInt();
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray();
    return value.toString();
}

QString LocalMachine() {
    return QStringLiteral("HKEY_LOCAL_MACHINE");
}

bool GetKeyValue(const SystemRegistry& registry, const QString& KeyRoot, const QString& KeyName,
                 const QString& SubKeyRef, QString& KeyVal) {
    const std::optional<RegistryValue> value = registry.Read(KeyRoot, KeyName, SubKeyRef);
    KeyVal = value ? TextOf(*value) : QString();
    return value.has_value();
}
