#include "corvel/batch/CBatchReport.h"

#include "tools/support/JsonLines.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;

namespace {

class CBatchReportTest : public testing::Test {
protected:
    CBatchReportTest() {
        for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
            SRenderOutcome &outcome = outcomes.emplace_back();
            outcome.job.in = name;
            outcome.kind = EOutcome::Failed;
            outcome.error = std::string(name) + ": bad";
        }
        outcomes[2].kind = EOutcome::Skipped;
    }

    int finishIn(const std::vector<std::size_t> &order) {
        CProgressBar progress({{"a.wav"}, {"b.wav"}, {"c.wav"}}, false);
        CBatchReport report(outcomes, call, settings, library, progress);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        for (const std::size_t job : order)
            report.handleFinished(job);
        const int status = report.finish();
        out = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
        return status;
    }

    const CEffectLibrary library{testEffect("Whole")};
    CEffectInstance trial{library};
    const CEffectSettings settings{{}, trial};
    SRenderCall call;
    std::vector<SRenderOutcome> outcomes;
    std::string out, errors;
};

}  // namespace

TEST_F(CBatchReportTest, JsonLinesComeInTheOrderOfEnding) {
    call.json = true;
    EXPECT_EQ(finishIn({2, 1, 0}), 1);
    const auto lines = jsonLines(out);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0]["in"], "c.wav");
    EXPECT_EQ(lines[0]["status"], "skipped");
    EXPECT_EQ(lines[1]["in"], "b.wav");
    EXPECT_EQ(lines[1]["error"], "b.wav: bad");
    EXPECT_EQ(lines[2]["program"], "Plain");
}

TEST_F(CBatchReportTest, ErrorsComeInTheOrderOfTheJobs) {
    finishIn({2, 1, 0});
    EXPECT_EQ(errors, "corvel: a.wav: bad\ncorvel: b.wav: bad\n"
                      "corvel: 0 of 3 files rendered, 1 skipped, 2 failed\n");
}

TEST_F(CBatchReportTest, AQuietReportHasOnlyErrors) {
    call.quiet = true;
    outcomes[0].kind = EOutcome::Rendered;
    outcomes[0].result.sampleRate = 48000;
    outcomes[0].result.clippedSamples = 5;
    EXPECT_EQ(finishIn({0, 1, 2}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(errors, "corvel: b.wav: bad\n");
}
