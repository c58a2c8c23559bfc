#include "dspclasses/modules/ReverbGroup.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

constexpr int frames = 5;

/// A group whose frames all hold the same tails; early is `early` in every line.
std::unique_ptr<SReverbGroup> groupOf(const float (&tails)[reverbLines], float early) {
    auto group = std::make_unique<SReverbGroup>();
    for (int k = 0; k < reverbLines; ++k) {
        std::fill_n(group->tail[k], frames, tails[k]);
        std::fill_n(group->early[k], frames, early);
    }
    return group;
}

}  // namespace

TEST(ReverbGroup, ScatteringKeepsTheEnergy) {
    const auto group = groupOf({0.3f, -0.7f, 0.2f, 1.1f}, 0.0f);
    SReverbGroup::Lines fed;
    scatter(*group, fed, frames);
    for (int i = 0; i < frames; ++i) {
        float before = 0.0f, after = 0.0f;
        for (int k = 0; k < reverbLines; ++k) {
            before += group->tail[k][i] * group->tail[k][i];
            after += fed[k][i] * fed[k][i];
        }
        EXPECT_NEAR(after, before, 1e-6f);
    }
}

TEST(ReverbGroup, ScatteringFollowsTheMatrix) {
    const float rows[reverbLines][reverbLines] = {
        {1, 1, -1, -1}, {1, -1, -1, 1}, {-1, 1, -1, 1}, {1, 1, 1, 1}};
    for (int from = 0; from < reverbLines; ++from) {
        float tails[reverbLines] = {};
        tails[from] = 1.0f;
        const auto group = groupOf(tails, 8.0f);
        SReverbGroup::Lines fed;
        scatter(*group, fed, frames);
        for (int to = 0; to < reverbLines; ++to)
            EXPECT_EQ(fed[to][frames - 1], 0.5f * rows[to][from] + 8.0f) << from << ' ' << to;
    }
}

TEST(ReverbGroup, TheWetSignalInvertsEverySecondLine) {
    const auto group = groupOf({1.0f, 2.0f, 4.0f, 8.0f}, 0.25f);
    group->early[1][0] = 0.5f;
    mixWet(*group, 2.0f, 10.0f, frames);
    EXPECT_EQ(group->left[0], 10.0f * (1.0f - 2.0f + 4.0f - 8.0f) - 2.0f * 0.25f);
    EXPECT_EQ(group->right[0], group->left[0]);
}

TEST(ReverbGroup, TheMonoMixHasNoDenormal) {
    const float left[] = {1.0f, 1.5e-38f}, right[] = {0.5f, 0.0f};
    float mono[2];
    mixToMono(left, right, mono, 2);
    EXPECT_EQ(mono[0], 0.75f);
    EXPECT_EQ(mono[1], 0.0f);
}
