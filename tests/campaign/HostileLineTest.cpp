#include "campaign/HostileRun.h"
#include "support/PrintText.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

// The campaign: seeded runs on a hostile line, in virtual time.

namespace {
#ifdef QUENTOR_CAMPAIGN_RUNS
constexpr unsigned runs = QUENTOR_CAMPAIGN_RUNS;
#else
constexpr unsigned runs = 20'000;
#endif
constexpr unsigned shards = 20;
constexpr unsigned runsOfShard = runs / shards;

QString ResultOf(unsigned seed) {
    const QTemporaryDir folder;
    return HostileRun(seed, folder.path()).Violations().join(u'\n');
}

class HostileLine : public testing::TestWithParam<unsigned> {};
} // namespace

TEST_P(HostileLine, EveryRunEndsAndHarmsNothing) {
    int failures = 0;
    for (unsigned i = 0; i < runsOfShard && failures < 5; ++i) {
        const unsigned seed = 1 + GetParam() * runsOfShard + i;
        const QString result = ResultOf(seed);
        failures += result.isEmpty() ? 0 : 1;
        EXPECT_TRUE(result.isEmpty()) << "seed " << seed << ": " << result.toStdString();
    }
}
INSTANTIATE_TEST_SUITE_P(Seeds, HostileLine, testing::Range(0u, shards));
