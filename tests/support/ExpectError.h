#pragma once

#include "base/RunTimeError.h"
#include <gtest/gtest.h>

/// The operation must raise a run-time error of this number.
template <typename Operation>
void ExpectError(int number, Operation operation) {
    try {
        operation();
        ADD_FAILURE() << "no error " << number << " was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), number) << error.what();
    }
}
