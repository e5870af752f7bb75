#include "FuzzPLS.h"

// The .PCF file in both layouts.

namespace {
void Run(FuzzInput input) {
    static const FuzzPLSSets sets(QStringLiteral("PCF"));
    sets.Run(input);
}

const RegisteredTarget target("pcf", Run);
} // namespace
