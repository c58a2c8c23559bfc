#include "tools/live/CJackBench.h"
#include "tools/live/CJackServer.h"
#include "tools/live/CLiveProgram.h"
#include "tools/live/WaitUntil.h"
#include "tools/support/AudioFiles.h"

#include <array>
#include <cmath>
#include <csignal>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// `corvel live` on a JACK server

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;

namespace {

constexpr double sixDecibels = 1.9952623149688795;

class Live : public testing::Test {
protected:
    /// Arguments that name the server, and others.
    std::vector<std::string> with(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--server", server.name()});
        return arguments;
    }

    CJackServer server{"-C 0 -P 0"};  // the bench has the system's ports
    CJackBench bench{server.name()};
};

/// Renders what the bench has played during a recording.
CJackBench::SRecording rendered(const CJackBench::SRecording &recording,
                                std::vector<std::string> arguments, std::uint32_t blockFrames,
                                int sampleRate) {
    const CTemporaryFolder folder;
    SSound sound;
    sound.sampleRate = sampleRate;
    for (std::uint32_t i = 0; i < recording.samples[0].size(); ++i)
        for (const std::size_t channel : {0u, 1u})
            sound.samples.push_back(
                static_cast<double>(CJackBench::sampleAt(channel, recording.first + i)));
    writeSound(folder / "in.wav", sound);
    arguments.insert(arguments.begin(), {"render", folder / "in.wav", folder / "out.wav", "--block",
                                         std::to_string(blockFrames)});
    EXPECT_EQ(corvel(arguments).status, 0);
    const SSound out = readSound(folder / "out.wav");
    CJackBench::SRecording result{recording.first, {}};
    for (std::size_t i = 0; i < out.samples.size(); ++i)
        result.samples[i % 2].push_back(static_cast<float>(out.samples[i]));
    return result;
}

/// @return the gain from the source to the recording, which the test effect keeps constant.
double gainOf(const CJackBench::SRecording &recording, std::size_t frame) {
    const float played =
        CJackBench::sampleAt(0, recording.first + static_cast<std::uint32_t>(frame));
    return static_cast<double>(recording.samples[0][frame] / played);
}

class LiveSound : public Live, public testing::WithParamInterface<std::vector<std::string>> {};

}  // namespace

// Sound

TEST_P(LiveSound, IsWhatRenderingTheSameSoundGives) {
    CLiveProgram live(with(GetParam()));
    ASSERT_TRUE(live.prints("plays"));
    const auto recording = bench.record(30000);
    live.send(SIGTERM);
    EXPECT_EQ(live.wait().status, 0);
    const auto expected = rendered(recording, GetParam(), bench.blockFrames(), 44100);
    ASSERT_EQ(recording.samples[0].size(), expected.samples[0].size());
    EXPECT_TRUE(recording.samples[0] == expected.samples[0]);
    EXPECT_TRUE(recording.samples[1] == expected.samples[1]);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, LiveSound,
    testing::Values(std::vector<std::string>{}, std::vector<std::string>{"--program", "7"},
                    std::vector<std::string>{"--chain", "Compressor,Modulator 1,Delay", "--set",
                                             "DlySync=Crotchet", "--tempo", "97"},
                    std::vector<std::string>{"--set", "CmpThresh=-30dB", "--chain",
                                             "Compressor,Reverb"}));

TEST_F(Live, PlaysAPreset) {
    const CTemporaryFolder folder;
    const std::string preset = folder / "my.fxp";
    ASSERT_EQ(corvel({"preset", "save", preset, "--program", "4", "--set", "InGain=@0.3"}).status,
              0);
    CLiveProgram live(with({"--preset", preset}));
    const auto recording = bench.record(5000);
    const auto expected = rendered(recording, {"--preset", preset}, bench.blockFrames(), 44100);
    EXPECT_TRUE(recording.samples == expected.samples);
}

TEST_F(Live, KeepsPlayingWhenTheBlocksChange) {
    CLiveProgram live(with({"--plugin", testEffect("Whole")}));
    ASSERT_TRUE(live.prints("44100 Hz, blocks of 256 frames"));
    bench.setBlockFrames(1024);
    EXPECT_TRUE(live.prints("now at 44100 Hz, blocks of 1024 frames\n"));
    bench.forget();
    const auto recording = bench.record(4096);
    EXPECT_EQ(gainOf(recording, 4000), 1.0);
    bench.setBlockFrames(64);
    EXPECT_TRUE(live.prints("now at 44100 Hz, blocks of 64 frames\n"));
    live.send(SIGINT);
    EXPECT_EQ(live.wait().errors, "");
}

// Ports

TEST_F(Live, ConnectsToTheSystem) {
    CLiveProgram live(with({"--midi"}));
    ASSERT_TRUE(live.prints("plays"));
    EXPECT_THAT(bench.connectionsOf("corvel:in_left"), ElementsAre("source:1"));
    EXPECT_THAT(bench.connectionsOf("corvel:in_right"), ElementsAre("source:2"));
    EXPECT_THAT(bench.connectionsOf("corvel:out_left"), ElementsAre("sink:1"));
    EXPECT_THAT(bench.connectionsOf("corvel:out_right"), ElementsAre("sink:2"));
    EXPECT_THAT(bench.connectionsOf("corvel:midi_in"), ElementsAre("source:midi"));
}

TEST_F(Live, ConnectsToNothingIfAsked) {
    CLiveProgram live(with({"--midi", "--no-connect", "--name", "Voice 1"}));
    ASSERT_TRUE(live.prints("Voice 1 plays"));
    for (const std::string port : {"in_left", "in_right", "out_left", "out_right", "midi_in"}) {
        EXPECT_NE(jack_port_by_name(bench.client(), ("Voice 1:" + port).c_str()), nullptr) << port;
        EXPECT_THAT(bench.connectionsOf("Voice 1:" + port), IsEmpty()) << port;
    }
}

TEST_F(Live, HasNoMidiPortUnlessAsked) {
    CLiveProgram live(with({}));
    ASSERT_TRUE(live.prints("plays"));
    EXPECT_NE(jack_port_by_name(bench.client(), "corvel:in_left"), nullptr);
    EXPECT_EQ(jack_port_by_name(bench.client(), "corvel:midi_in"), nullptr);
}

TEST_F(Live, TellsTheServerItsLatency) {
    CLiveProgram live(with({"--plugin", testEffect("Late")}));
    ASSERT_TRUE(live.prints("plays"));
    const auto latencyOf = [&](const char *port, jack_latency_callback_mode_t mode) {
        jack_latency_range_t range{};
        jack_port_get_latency_range(jack_port_by_name(bench.client(), port), mode, &range);
        return std::array<jack_nframes_t, 2>{range.min, range.max};
    };
    const std::array<jack_nframes_t, 2> late{1000, 1000};
    EXPECT_TRUE(waitUntil([&] {
        return latencyOf("corvel:out_left", JackCaptureLatency) == late &&
               latencyOf("corvel:in_right", JackPlaybackLatency) == late;
    }));
}

TEST(LiveSystem, OneInputAndOneOutputServeBothSides) {
    CJackServer server("-C 1 -P 1");
    CLiveProgram live({"--server", server.name()});
    ASSERT_TRUE(live.prints("plays"));
    CJackBench bench(server.name());
    EXPECT_THAT(bench.connectionsOf("system:capture_1"),
                UnorderedElementsAre("corvel:in_left", "corvel:in_right"));
    EXPECT_THAT(bench.connectionsOf("system:playback_1"),
                UnorderedElementsAre("corvel:out_left", "corvel:out_right"));
}

TEST(LiveSystem, WithoutPortsIsNoted) {
    CJackServer server("-C 0 -P 0");
    const SProgramRun run = corvel({"live", "--server", server.name(), "--seconds", "0.1"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "corvel: note: the system has no inputs and no outputs to connect to\n");
}

TEST(LiveSystem, AtAnotherSampleRateIsNoted) {
    CJackServer server("", 48000, 512);
    const SProgramRun run = corvel({"live", "--server", server.name(), "--seconds", "0.1"});
    EXPECT_EQ(run.errors, "corvel: note: the server runs at 48000 Hz, but the strip is tuned for "
                          "44100 Hz\n");
    EXPECT_THAT(run.out, HasSubstr("at 48000 Hz, blocks of 512 frames"));
    const SProgramRun other = corvel(
        {"live", "--server", server.name(), "--seconds", "0.1", "--plugin", testEffect("Lively")});
    EXPECT_EQ(other.errors, "");
}

// MIDI and time

TEST_F(Live, AControllerSetsAParameter) {
    CLiveProgram live(with({"--plugin", testEffect("Lively"), "--cc", "7=Gain"}));
    ASSERT_TRUE(live.prints("plays"));
    bench.sendMidi({0, 0xB0, 7, 127});
    EXPECT_NEAR(gainOf(bench.record(256), 100), sixDecibels, 1e-6);
    bench.sendMidi({0, 0xB5, 7, 0});
    EXPECT_NEAR(gainOf(bench.record(256), 100), 1.0 / sixDecibels, 1e-6);
}

TEST_F(Live, AProgramChangeSelectsAProgram) {
    CLiveProgram live(with({"--plugin", testEffect("Lively"), "--midi"}));
    ASSERT_TRUE(live.prints("plays \"Plain\""));
    bench.sendMidi({0, 0xC0, 1, 0});
    EXPECT_TRUE(live.prints("program 1: Loud\n"));
    bench.forget();
    const auto recording = bench.record(1024);
    EXPECT_NEAR(gainOf(recording, 1000), sixDecibels, 1e-6);
    bench.sendMidi({0, 0xC0, 100, 0});
    EXPECT_TRUE(live.prints("program 100: the effect has only 3 programs\n"));
}

TEST_F(Live, ListensToOneChannelIfAsked) {
    CLiveProgram live(with({"--plugin", testEffect("Lively"), "--cc", "7=Gain", "--channel", "2"}));
    ASSERT_TRUE(live.prints("plays"));
    bench.sendMidi({0, 0xB0, 7, 127});
    EXPECT_EQ(gainOf(bench.record(256), 100), 1.0);
    bench.sendMidi({0, 0xB1, 7, 127});
    EXPECT_NEAR(gainOf(bench.record(256), 100), sixDecibels, 1e-6);
}

TEST_F(Live, TheEffectFollowsTheServersTransport) {
    const CTemporaryFolder folder;
    setenv("CORVEL_TEST_LOG", (folder / "log").c_str(), 1);
    CLiveProgram live(with({"--plugin", testEffect("Lively"), "--tempo", "77"}));
    unsetenv("CORVEL_TEST_LOG");
    const auto logs = [&](const std::string &text) {
        return waitUntil([&] { return readFile(folder / "log").find(text) != std::string::npos; });
    };
    EXPECT_TRUE(logs("tempo 77\n"));
    EXPECT_TRUE(logs("process 256 at 0\n"));
    bench.keepTime(133.0);
    jack_transport_locate(bench.client(), 1000000);
    jack_transport_start(bench.client());
    EXPECT_TRUE(logs("tempo 133\n"));
    EXPECT_TRUE(logs("process 256 at 1000256\n"));
    EXPECT_TRUE(logs("quarter 9.5, bar from 8\n"));
    jack_transport_stop(bench.client());
    live.send(SIGTERM);
    live.wait();
}

// Presets

TEST_F(Live, SavesInTheEndWhatMidiHasChanged) {
    const CTemporaryFolder folder;
    const std::string preset = folder / "my.json";
    CLiveProgram live(with({"--save-preset", preset, "--midi", "--cc", "21=InGain"}));
    ASSERT_TRUE(live.prints("plays"));
    bench.sendMidi({0, 0xC0, 5, 0});
    ASSERT_TRUE(live.prints("program 5"));
    bench.sendMidi({0, 0xB0, 21, 127});
    live.send(SIGTERM);
    EXPECT_EQ(live.wait().status, 0);
    const std::string other = folder / "other.json";
    ASSERT_EQ(corvel({"preset", "save", other, "--program", "5", "--set", "InGain=@1"}).status, 0);
    EXPECT_EQ(readFile(preset), readFile(other));
}

TEST_F(Live, SavesAlsoWhenTheServerIsGone) {
    const CTemporaryFolder folder;
    writeFile(folder / "my.fxb", "old");
    CLiveProgram live(with({"--save-preset", folder / "my.fxb", "--force"}));
    ASSERT_TRUE(live.prints("plays"));
    server.end();
    EXPECT_EQ(live.wait().status, 1);
    EXPECT_EQ(corvel({"preset", "check", folder / "my.fxb"}).status, 0);
}

// Xruns

TEST_F(Live, CountsXruns) {
    CLiveProgram live(with({"--json"}));
    bench.record(2048);
    for (int i = 0; i < 3; ++i) {
        bench.delayNextCycle(200);
        bench.record(512);
    }
    live.send(SIGTERM);
    const SProgramRun run = live.wait();
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_GE(json["xruns"], 3) << run.out;
}

// How it ends

TEST_F(Live, EndsAfterItsSecondsAndReports) {
    const SProgramRun run = corvel({"live", "--server", server.name(), "--seconds", "0.5"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.out,
                MatchesRegex("corvel plays \"Lead Vocal\" at 44100 Hz, blocks of 256 frames; "
                             "Ctrl-C ends it\n0\\.5 s played, (no|[0-9]+) xruns?\n"));
}

TEST_F(Live, ReportsAsJson) {
    const SProgramRun run = corvel({"live", "--server", server.name(), "--seconds", "0.3", "--json",
                                    "--program", "3", "--name", "Voice"});
    EXPECT_EQ(run.status, 0);
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["effect"], CORVEL_EFFECT);
    EXPECT_EQ(json["client"], "Voice");
    EXPECT_EQ(json["program"],
              nlohmann::json::parse(corvel({"programs", "--json"}).out)[3]["name"]);
    EXPECT_EQ(json["sampleRate"], 44100);
    EXPECT_EQ(json["blockFrames"], 256);
    EXPECT_GE(json["seconds"], 0.3);
    EXPECT_EQ(json["nonFiniteSamples"], 0);
    EXPECT_EQ(json["lostMessages"], 0);
    EXPECT_EQ(json["end"], "seconds");
}

TEST_F(Live, EndsCleanlyOnSignals) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGUSR1}) {
        CLiveProgram live(with({}));
        ASSERT_TRUE(live.prints("plays"));
        live.send(signal);
        const SProgramRun run = live.wait();
        EXPECT_EQ(run.status, 0) << signal;
        EXPECT_EQ(run.errors, "") << signal;
        EXPECT_THAT(run.out, HasSubstr(" s played, ")) << signal;
        EXPECT_TRUE(waitUntil([&] {
            return jack_port_by_name(bench.client(), "corvel:in_left") == nullptr;
        })) << signal;
    }
}

TEST(LiveServer, ThatEndsEndsTheProgramWithOneLine) {
    for (const bool crashes : {false, true}) {
        CJackServer server;
        CLiveProgram live({"--server", server.name()});
        ASSERT_TRUE(live.prints("plays"));
        crashes ? server.crash() : server.end();
        const SProgramRun run = live.wait();
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.errors, "corvel: the JACK server has shut down\n");
        EXPECT_THAT(run.out, HasSubstr(" s played, "));
    }
}
