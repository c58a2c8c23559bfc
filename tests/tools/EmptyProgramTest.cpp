#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

// The program and the effect of this build together.

namespace {

class ChannelStrip : public testing::Test {
protected:
    SSound render(const SSound &sound, std::vector<std::string> options) {
        writeSound(folder / "in.wav", sound);
        options.insert(options.begin(), {"render", folder / "in.wav", folder / "out.wav"});
        const SProgramRun run = corvel(options);
        EXPECT_EQ(run.status, 0) << run.errors;
        return readSound(folder / "out.wav");
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(ChannelStrip, TheEmptyProgramGivesAVoiceBackBitForBit) {
    const SSound sound = voice(31, 100000);
    EXPECT_EQ(render(sound, {"--program", "Empty"}).samples, sound.samples);
    EXPECT_EQ(render(sound, {"--program", "Empty", "--double"}).samples, sound.samples);
}
