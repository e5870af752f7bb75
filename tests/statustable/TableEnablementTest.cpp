#include "statustable/TableEnablement.h"

#include <gtest/gtest.h>

TEST(TableEnablement, FollowsTheProgramSet) {
    struct Case {
        TableProgramState program; // accepted, .nam, .doc, data failed
        TableEnablement enabled;   // NicNames, descriptions, offline data
    };
    const Case cases[] = {
        {{false, false, false, false}, {false, false, false}},
        {{false, true, true, false}, {false, false, false}},
        {{true, false, false, false}, {false, false, true}},
        {{true, true, false, false}, {true, false, true}},
        {{true, false, true, false}, {false, true, true}},
        {{true, true, true, true}, {true, true, false}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(EnabledControls(c.program), c.enabled);
}
