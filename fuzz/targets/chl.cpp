#include "FuzzPLS.h"

// The .CHL file in both layouts.

namespace {
void Run(FuzzInput input) {
    static const FuzzPLSSets sets(QStringLiteral("CHL"));
    sets.Run(input);
}

const RegisteredTarget target("chl", Run);
} // namespace
