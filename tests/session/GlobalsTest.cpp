#include "session/Globals.h"
#include <gtest/gtest.h>

TEST(Globals, StartEmpty) {
    EXPECT_EQ(gRSComm, nullptr);
    EXPECT_EQ(gCommControl, nullptr);
    EXPECT_EQ(gFSO, nullptr);
    EXPECT_TRUE(gHdnFile.isEmpty());
    EXPECT_EQ(gPrintContext, 0);
}

TEST(Globals, PrintContextsHaveTheirNumbers) {
    EXPECT_EQ(PrintContext::Browser, 0);
    EXPECT_EQ(PrintContext::StatusTable, 1);
    EXPECT_EQ(PrintContext::Results, 2);
    EXPECT_EQ(PrintContext::Trending, 3);
}
