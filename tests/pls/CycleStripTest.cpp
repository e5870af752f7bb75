#include "pls/CycleStrip.h"

#include <gtest/gtest.h>

namespace {
Setpoint OnOff(int on, int off) {
    return {static_cast<qint16>(off), static_cast<qint16>(on)};
}
} // namespace

TEST(CycleStrip, ASetpointIsOneSpanFromOnToOff) {
    const CycleStrip strip = LayOutCycle(360, {OnOff(90, 180), OnOff(270, 300)}, {}, 720.0);
    EXPECT_EQ(strip.spans, (std::vector<StripSpan>{{180.0, 360.0, 0}, {540.0, 600.0, 1}}));
    EXPECT_FALSE(strip.marker.has_value());
}

TEST(CycleStrip, ASetpointAcrossZeroIsTwoSpans) {
    const CycleStrip strip = LayOutCycle(360, {OnOff(350, 10)}, {}, 360.0);
    EXPECT_EQ(strip.spans, (std::vector<StripSpan>{{350.0, 360.0, 0}, {0.0, 10.0, 0}}));
}

TEST(CycleStrip, ASetpointThatEndsAtZeroIsOneSpanToTheRightEnd) {
    EXPECT_EQ(LayOutCycle(360, {OnOff(350, 0)}, {}, 360.0).spans,
              (std::vector<StripSpan>{{350.0, 360.0, 0}}));
}

TEST(CycleStrip, APlaceholderIsNoSpan) {
    EXPECT_TRUE(LayOutCycle(360, {OnOff(0, 0), OnOff(7, 7)}, {}, 360.0).spans.empty());
    EXPECT_TRUE(LayOutCycle(360, {}, {}, 360.0).spans.empty());
}

TEST(CycleStrip, TheMarkerStandsAtThePosition) {
    EXPECT_EQ(LayOutCycle(4096, {}, 0, 1024.0).marker, 0.0);
    EXPECT_EQ(LayOutCycle(4096, {}, 2048, 1024.0).marker, 512.0);
    EXPECT_EQ(LayOutCycle(4096, {}, 4095, 1024.0).marker, 1023.75);
}

TEST(CycleStrip, APositionOutsideTheCycleHasNoMarker) {
    EXPECT_FALSE(LayOutCycle(360, {}, 360, 720.0).marker.has_value());
    EXPECT_FALSE(LayOutCycle(360, {}, -1, 720.0).marker.has_value());
}

TEST(CycleStrip, SpansStayWithinTheStrip) {
    const SetpointList channel{OnOff(350, 400), OnOff(400, 500), OnOff(500, 10), OnOff(-5, 5)};
    const CycleStrip strip = LayOutCycle(360, channel, {}, 360.0);
    EXPECT_EQ(strip.spans,
              (std::vector<StripSpan>{{350.0, 360.0, 0}, {0.0, 10.0, 2}, {0.0, 5.0, 3}}));
}

TEST(CycleStrip, EverySetpointOfACycleCoversAsManyDivisionsAsTheMachineTurnsFromOnToOff) {
    constexpr int scale = 16;
    for (int on = 0; on < scale; ++on) {
        for (int off = 0; off < scale; ++off) {
            double covered = 0.0;
            for (const StripSpan& span : LayOutCycle(scale, {OnOff(on, off)}, {}, scale).spans)
                covered += span.right - span.left;
            EXPECT_EQ(covered, (off - on + scale) % scale) << on << " to " << off;
        }
    }
}

TEST(CycleStrip, NothingIsLaidOutBeforeAScaleIsKnown) {
    EXPECT_EQ(LayOutCycle(0, {OnOff(1, 2)}, 1, 100.0), CycleStrip());
    EXPECT_EQ(LayOutCycle(1, {OnOff(1, 2)}, 0, 100.0), CycleStrip());
    EXPECT_EQ(LayOutCycle(360, {OnOff(1, 2)}, 1, 0.0), CycleStrip());
}
