#include "abi/LoadedPlugin.h"
#include "dspclasses/parameters/ParameterIds.h"
#include "dspclasses/support/Signals.h"
#include "hostlayer/FakeHost.h"

#include <gtest/gtest.h>
#include <thread>

// Call sequences observed in real hosts. Those that restore a saved state must all lead to the same
// parameters and the same sound.

namespace {

class HostSequences : public testing::Test {
protected:
    FakeHost host;
    CPluginFile file;

    CLoadedEffect load() { return {file, FakeHost::callback}; }

    // What a host saves, and the sound that belongs to it.
    struct SState {
        std::vector<char> bank, preset;
        std::vector<float> parameters;
        TStereo<float> sound;
    };
    SState edited() {
        const CLoadedEffect effect = load();
        start(effect);
        effect.send(effSetProgram, 0, 0);
        effect.setParameter(kInGain, 0.37f);
        effect.setParameter(kCmpThresh, 0.5f);
        SState state;
        state.bank = effect.chunk(false);
        state.preset = effect.chunk(true);
        state.parameters = effect.parameters();
        state.sound = sound(effect);
        return state;
    }

    static void start(const CLoadedEffect &effect) {
        effect.send(effOpen);
        effect.send(effSetSampleRate, 0, 0, nullptr, 48000.0f);
        effect.send(effSetBlockSize, 0, 1024);
        effect.send(effMainsChanged, 0, 1);
    }

    static TStereo<float> sound(const CLoadedEffect &effect) {
        return render(effect, makeSignal<float>(ESignal::Bursts, 1, 4096), 512);
    }

    static void expectState(const CLoadedEffect &effect, const SState &state) {
        EXPECT_EQ(effect.parameters(), state.parameters);
        EXPECT_EQ(sound(effect), state.sound);
    }
};

}  // namespace

// Ardour 7.3
TEST_F(HostSequences, ParametersThenMainsThenProgramThenBank) {
    const SState state = edited();
    const CLoadedEffect effect = load();
    effect.send(effOpen);
    for (int id = 0; id < kParameterCount; ++id)
        effect.setParameter(id, state.parameters[std::size_t(id)]);
    effect.send(effMainsChanged, 0, 0);
    effect.send(effMainsChanged, 0, 1);
    effect.send(effMainsChanged, 0, 1);
    effect.send(effSetProgram, 0, 0);
    effect.setChunk(state.bank, false);
    expectState(effect, state);
}

// Qtractor 0.9.31
TEST_F(HostSequences, BankThenEveryParameterInShuffledOrder) {
    const SState state = edited();
    const CLoadedEffect effect = load();
    effect.send(effGetPlugCategory);
    effect.send(effSetSampleRate, 0, 0, nullptr, 44100.0f);
    effect.send(effSetBlockSize, 0, 2048);
    effect.send(effOpen);
    effect.setChunk(state.bank, false);
    for (int k = 0; k < 64; ++k) {
        const int id = k * 37 % kParameterCount;
        char text[32];
        std::snprintf(text, sizeof text, "%g", double{state.parameters[std::size_t(id)]});
        effect.setParameter(id, std::stof(text));
    }
    effect.send(effMainsChanged, 0, 1);
    expectState(effect, state);
}

// MusE 4.1
TEST_F(HostSequences, BankAfterProcessingStartedThenParametersOnTheAudioThread) {
    const SState state = edited();
    const CLoadedEffect effect = load();
    start(effect);
    effect.send(effMainsChanged, 0, 1);
    effect.send(effStartProcess);
    effect.setChunk(state.bank, false);
    TStereo<float> result;
    std::thread audio([&] {
        for (int id = 0; id < kParameterCount; ++id) {
            effect.send(effCanBeAutomated, id);
            if (effect.getParameter(id) != state.parameters[std::size_t(id)])
                effect.setParameter(id, state.parameters[std::size_t(id)]);
        }
        result = sound(effect);
    });
    audio.join();
    EXPECT_EQ(effect.parameters(), state.parameters);
    EXPECT_EQ(result, state.sound);
}

// Audacity 3.2.4
TEST_F(HostSequences, ProgramChunkBetweenBeginAndEnd) {
    const SState state = edited();
    const CLoadedEffect effect = load();
    effect.send(effIdentify);
    effect.send(effSetSampleRate, 0, 0, nullptr, 44100.0f);
    effect.send(effSetBlockSize, 0, 512);
    effect.send(effOpen);
    effect.send(effSetProgram, 0, 0);
    VstPatchChunkInfo info{};
    info.version = 1;
    info.pluginUniqueID = effect.record().uniqueID;
    EXPECT_EQ(effect.send(effBeginLoadProgram, 0, 0, &info), 0);
    effect.send(effBeginSetProgram);
    EXPECT_EQ(effect.setChunk(state.preset, true), 424);
    effect.send(effEndSetProgram);
    effect.send(effBeginSetProgram);
    for (int id = 0; id < kParameterCount; ++id)
        effect.setParameter(id, state.parameters[std::size_t(id)]);
    effect.send(effEndSetProgram);
    effect.send(effSetBlockSize, 0, 8192);
    effect.send(effMainsChanged, 0, 1);
    expectState(effect, state);
}

// Ardour 7.3, for the instance from which it lists the programs
TEST_F(HostSequences, ClosesAfterAHandfulOfCalls) {
    const CLoadedEffect effect = load();
    effect.send(effOpen);
    effect.send(effGetVstVersion);
    effect.text(effGetProgramNameIndexed, 0);
    effect.send(effMainsChanged, 0, 0);
}

// Audacity 3.2.4 passes the parameter as the value and 0 as the index.
TEST_F(HostSequences, SaysThatEveryParameterCanBeAutomated) {
    const CLoadedEffect effect = load();
    EXPECT_EQ(effect.send(effCanBeAutomated, kUnused63), 1);
    EXPECT_EQ(effect.send(effCanBeAutomated, kInGain, kUnused63), 1);
}

// MusE 4.1 processes in place and cuts blocks at automation points.
TEST_F(HostSequences, BlocksOfAnyLengthAndBuffersInPlaceSoundTheSame) {
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 2, 6000);
    const CLoadedEffect steady = load(), cut = load();
    start(steady);
    start(cut);
    const TStereo<float> expected = render(steady, voice, 1024);

    TStereo<float> inPlace = voice;
    CRandom random(3);
    for (int done = 0; done < voice.frames();) {
        const int frames = std::min(voice.frames() - done, random.whole(1, 1500));
        auto channels = inPlace.pointers(done);
        cut.processReplacing(channels.data(), channels.data(), frames);
        done += frames;
    }
    EXPECT_EQ(inPlace, expected);
}

TEST_F(HostSequences, MonoTrackFeedsBothChannels) {
    host.unconnectedInputs = {1};
    const CLoadedEffect effect = load();
    start(effect);
    effect.send(effSetProgram, 0, 19);
    const TStereo<double> voice = makeSignal<double>(ESignal::Noise, 4, 256);
    const TStereo<double> result = render(effect, voice, 256);
    EXPECT_EQ(result.channels[0], voice.channels[0]);
    EXPECT_EQ(result.channels[1], voice.channels[0]);
}

TEST_F(HostSequences, EmptyProgramPassesTheInputBitForBit) {
    const CLoadedEffect effect = load();
    start(effect);
    effect.send(effSetProgram, 0, 19);
    const TStereo<float> single = makeSignal<float>(ESignal::Loud, 5, 5000);
    EXPECT_EQ(render(effect, single, 512), single);
    const TStereo<double> twice = makeSignal<double>(ESignal::Loud, 5, 5000);
    EXPECT_EQ(render(effect, twice, 512), twice);
}
