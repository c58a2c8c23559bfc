#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>
#include <sndfile.h>

// `corvel render` with --start, --length and --tail, and what a file says about its sound.

using testing::HasSubstr;

namespace {

class RenderTime : public testing::Test {
protected:
    /// Renders in.wav to out.wav.
    SSound render(std::vector<std::string> options) {
        options.insert(options.begin(),
                       {"render", folder / "in.wav", folder / "out.wav", "--force"});
        options.insert(options.end(), {"--plugin", effect});
        const SProgramRun run = corvel(options);
        EXPECT_EQ(run.status, 0) << run.errors;
        return readSound(folder / "out.wav");
    }

    CTemporaryFolder folder;
    std::string effect = testEffect("Whole");
};

std::vector<double> frames(const SSound &sound, std::size_t begin, std::size_t end) {
    const auto at = [&](std::size_t frame) {
        return sound.samples.begin() + static_cast<std::ptrdiff_t>(2 * frame);
    };
    return {at(begin), at(end)};
}

}  // namespace

TEST_F(RenderTime, AnExcerptIsRendered) {
    const SSound sound = voice(41, 60000);
    writeSound(folder / "in.wav", sound);
    EXPECT_EQ(render({"--start", "1"}).samples, frames(sound, 44100, 60000));
    EXPECT_EQ(render({"--length", "250ms"}).samples, frames(sound, 0, 11025));
    EXPECT_EQ(render({"--start", "0:00.5", "--length", "0.25s"}).samples,
              frames(sound, 22050, 33075));
    EXPECT_EQ(render({"--start", "1", "--length", "1:00"}).samples, frames(sound, 44100, 60000));
    // 17.64 and 17.2 frames
    EXPECT_EQ(render({"--start", "0.4ms", "--length", "0.39ms"}).samples, frames(sound, 18, 35));
}

TEST_F(RenderTime, AnExcerptHasATail) {
    const SSound sound = voice(41, 60000);
    writeSound(folder / "in.wav", sound);
    std::vector<double> expected = frames(sound, 22050, 33075);
    expected.resize(2 * 22050, 0.0);
    EXPECT_EQ(render({"--start", "0.5", "--length", "0.25", "--tail", "0:00.25"}).samples,
              expected);
}

TEST_F(RenderTime, AnAutomaticTailOfNothingIsEmpty) {
    SSound sound = voice(41, 60000);
    std::fill(sound.samples.begin() + 100000, sound.samples.end(), 0.0);
    writeSound(folder / "in.wav", sound);
    // The silence of the input itself stays.
    EXPECT_EQ(render({"--tail", "auto"}).samples, sound.samples);
}

TEST_F(RenderTime, AnAutomaticTailEndsWithTheLastEcho) {
    effect = CORVEL_EFFECT;
    SSound sound;
    sound.samples.assign(2 * 10, 0.5);
    writeSound(folder / "in.wav", sound);
    const std::vector<std::string> delay = {"--chain", "Delay",        "--set",   "DlyTime=1500 ms",
                                            "--set",   "DlyFdBk=50 %", "--set",   "DlyWet=0 dB",
                                            "--tail",  "auto",         "--tempo", "1000"};
    const SSound out = render(delay);
    // The first echo has the level of the input, the next ones half as much each.
    constexpr std::size_t period = 66151;
    EXPECT_EQ(out.frames(), 10u + 15 * period);
    EXPECT_GE(std::abs(out.samples.back()), 3.162e-5);
    EXPECT_LT(std::abs(out.samples.back()), 2 * 3.163e-5);

    for (const char *block : {"1", "999", "65536"}) {
        std::vector<std::string> options = delay;
        options.insert(options.end(), {"--block", block});
        EXPECT_EQ(render(options).samples, out.samples) << block;
    }
    // At a lower rate the echoes have the same distance in frames.
    sound.sampleRate = 8000;
    writeSound(folder / "in.wav", sound);
    EXPECT_EQ(render(delay).samples, out.samples);
}

TEST_F(RenderTime, AnAutomaticTailThatNeverFallsSilentEndsAfterAnHour) {
    // A delay that feeds all of its output back.
    effect = CORVEL_EFFECT;
    SSound sound;
    sound.sampleRate = 100;
    sound.samples.assign(2 * 70000, 0.5);
    writeSound(folder / "in.wav", sound);
    const SSound out = render({"--chain", "Delay", "--set", "DlyTime=1500 ms", "--set",
                               "DlyFdBk=100 %", "--tail", "auto"});
    EXPECT_EQ(out.frames(), 70000u + 360000u);
}

TEST_F(RenderTime, OpusTakesTheNextRateWithResample) {
    SSound sound = voice(41, 44100);
    writeSound(folder / "in.wav", sound);
    const SProgramRun run = corvel({"render", folder / "in.wav", folder / "out.ogg", "--format",
                                    "ogg:opus", "--resample", "--tail", "0.5", "--plugin", effect});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.out, HasSubstr("in.wav (44100 Hz, stereo, WAV, 32-bit float)\n"));
    EXPECT_THAT(run.out, HasSubstr("out.ogg (48000 Hz, stereo, Ogg, Opus)\n"));
    EXPECT_THAT(run.out, HasSubstr("duration   0:01.500\n"));
    EXPECT_EQ(readSound(folder / "out.ogg").frames(), 72000u);
    EXPECT_EQ(readSound(folder / "out.ogg").sampleRate, 48000);
}

TEST_F(RenderTime, TagsAreCarriedOverAndMoveAlong) {
    SSound sound = voice(41, 60000);
    SF_INFO info{};
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    info.samplerate = 44100;
    info.channels = 2;
    SNDFILE *file = sf_open((folder / "in.wav").c_str(), SFM_WRITE, &info);
    sf_set_string(file, SF_STR_TITLE, "Song");
    SF_BROADCAST_INFO broadcast{};
    broadcast.time_reference_low = 1000;
    sf_command(file, SFC_SET_BROADCAST_INFO, &broadcast, sizeof(broadcast));
    SF_CUES cues{};
    cues.cue_count = 2;
    cues.cue_points[0].sample_offset = cues.cue_points[0].position = 100;
    cues.cue_points[1].sample_offset = cues.cue_points[1].position = 50000;
    sf_command(file, SFC_SET_CUE, &cues, sizeof(cues));
    sf_writef_double(file, sound.samples.data(), 60000);
    sf_close(file);

    render({"--start", "1"});
    file = sf_open((folder / "out.wav").c_str(), SFM_READ, &info);
    EXPECT_STREQ(sf_get_string(file, SF_STR_TITLE), "Song");
    EXPECT_EQ(sf_command(file, SFC_GET_BROADCAST_INFO, &broadcast, sizeof(broadcast)), SF_TRUE);
    EXPECT_EQ(broadcast.time_reference_low, 45100u);
    EXPECT_EQ(sf_command(file, SFC_GET_CUE, &cues, sizeof(cues)), SF_TRUE);
    EXPECT_EQ(cues.cue_count, 1u);
    EXPECT_EQ(cues.cue_points[0].sample_offset, 5900u);
    sf_close(file);
}
