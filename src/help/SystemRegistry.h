#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <variant>

/// A value of the system's registry: a text, a 32-bit number or bytes.
using RegistryValue = std::variant<QString, quint32, QByteArray>;

/// The seam for the registry of Windows. Other systems have none.
class SystemRegistry {
public:
    virtual ~SystemRegistry();
    /// Whether this system has a registry at all.
    virtual bool IsThere() const = 0;
    /// The value of a name below a key such as "SOFTWARE\Microsoft"; nothing if key or name are
    /// not there. `root` is "HKEY_LOCAL_MACHINE".
    virtual std::optional<RegistryValue> Read(const QString& root, const QString& key,
                                              const QString& name) const = 0;
};

/// The registry of the machine.
class MachineRegistry final : public SystemRegistry {
public:
    bool IsThere() const override;
    std::optional<RegistryValue> Read(const QString& root, const QString& key,
                                      const QString& name) const override;
};

/// Root of the keys that belong to the machine.
QString LocalMachine();

/// Reads the value `SubKeyRef` of a key as text: a 32-bit value as "&h" and its hexadecimal digits,
/// bytes as the characters they stand for. False, and an empty `KeyVal`, if it is not there.
bool GetKeyValue(const SystemRegistry& registry, const QString& KeyRoot, const QString& KeyName,
                 const QString& SubKeyRef, QString& KeyVal);
