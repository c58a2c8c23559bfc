#include "corvel/render/TRenderOutput.h"

#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

// @return how finish() ended after a signal: 1 if it was interrupted.
int finishAfterSignal(const CTemporaryFolder &folder) {
    const SRenderJob job{"in.wav", folder / "out.wav"};
    SRenderOptions options;
    options.clip = EClip::Headroom;
    SRenderResult result;
    result.formatOut = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    CAudioWriter writer(job.out, EExisting::Kept, result.formatOut, 44100, 2);
    CSoundMeter meter(44100, 2, {});
    TRenderOutput<double> output(job, options, result, writer, meter);
    const SSound sound = voice(1, 50000);
    output.write(sound.samples.data(), sound.frames());

    noteInterrupts();
    std::raise(SIGTERM);
    try {
        output.finish([](double) {});
    } catch (const CInterruption &) {
        return 1;
    }
    return 0;
}

}  // namespace

TEST(TRenderOutput, TheSecondPassCanBeInterrupted) {
    const CTemporaryFolder folder;
    EXPECT_EXIT(std::exit(finishAfterSignal(folder)), testing::ExitedWithCode(1), "");
}
