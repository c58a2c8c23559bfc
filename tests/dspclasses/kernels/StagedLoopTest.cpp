#include "dspclasses/kernels/StagedLoop.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

/// Runs a block through stages. Each passes the number of its step to the next in a plain variable.
class CStagedBlock {
public:
    static constexpr int stages = 7;

    explicit CStagedBlock(int frames) : m_frames(frames) {
        const auto stage = [this](int number) {
            return [=, this](const SStep &step) { work(number, step); };
        };
        const auto refresh = [this] { m_refreshedAt.push_back(m_steps[0]); };
        runStaged(frames, refresh, stage(0), stage(1), stage(2), stage(3), stage(4), stage(5),
                  stage(6));
    }

    int stepsOf(int stage) const { return m_steps[stage]; }
    /// The number of steps that the first stage had finished at each refresh.
    const std::vector<int> &refreshedAt() const { return m_refreshedAt; }

private:
    void work(int stage, const SStep &step) {
        EXPECT_EQ(step.first, 4 * m_steps[stage]) << "stage " << stage;
        EXPECT_EQ(step.count, std::min(4, m_frames - step.first));
        if (stage > 0) {
            EXPECT_EQ(m_workedOn[stage - 1], step.first) << "what stage " << stage << " receives";
        }
        m_workedOn[stage] = step.first;
        ++m_steps[stage];
    }

    int m_frames;
    int m_steps[stages] = {};
    int m_workedOn[stages] = {};
    std::vector<int> m_refreshedAt;
};

}  // namespace

TEST(StagedLoop, CallsEveryStageForEveryStepInOrder) {
    for (int frames = 1; frames < 300; ++frames) {
        SCOPED_TRACE(frames);
        const CStagedBlock block(frames);
        for (int stage = 0; stage < CStagedBlock::stages; ++stage)
            EXPECT_EQ(block.stepsOf(stage), (frames + 3) / 4);
    }
}

TEST(StagedLoop, RefreshesBeforeTheFirstStepAndEverySixteenth) {
    for (int frames = 1; frames < 300; ++frames) {
        SCOPED_TRACE(frames);
        const std::vector<int> refreshedAt = CStagedBlock(frames).refreshedAt();
        for (int step = 0; 4 * step < frames; step += 16)
            EXPECT_EQ(std::count(refreshedAt.begin(), refreshedAt.end(), step), 1) << step;
    }
}

TEST(StagedLoop, LoadsAndStoresAnIncompleteLastStep) {
    std::vector<float> block(7);
    std::iota(block.begin(), block.end(), 1.0f);
    const SStep last = SStep::last(7);
    const TFour<float> left = last.load(block.data());
    EXPECT_EQ(left.values[2], 7.0f);
    EXPECT_EQ(left.values[3], 0.0f);
    EXPECT_EQ(last.lastOf(left.values), 7.0f);
    std::vector<float> written(8, -1.0f);
    last.store(written.data(), left);
    EXPECT_EQ(written, (std::vector<float>{-1.0f, -1.0f, -1.0f, -1.0f, 5.0f, 6.0f, 7.0f, -1.0f}));
}
