#include "FuzzTarget.h"

#include <cstddef>

// What libFuzzer calls. Each program has one target.

extern "C" int LLVMFuzzerInitialize(int*, char***);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    PrepareFuzzing();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzTargets().front().run({data, size});
    return 0;
}
