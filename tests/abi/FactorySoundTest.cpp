#include "abi/LoadedPlugin.h"
#include "abi/VoiceFile.h"
#include "effect/PlainEffect.h"
#include "hostlayer/FakeHost.h"

#include <gtest/gtest.h>

namespace {

class FactorySound : public testing::TestWithParam<int> {
protected:
    template <typename Sample>
    void expectThePlainSound() {
        FakeHost host;
        host.logging = false;
        host.time = VstTimeInfo{};
        host.time->tempo = 97.0;
        host.time->flags = kVstTempoValid;

        const CPluginFile file;
        const CLoadedEffect effect(file, FakeHost::callback);
        effect.send(effOpen);
        effect.send(effSetProgram, 0, GetParam());
        effect.send(effMainsChanged, 0, 1);
        CPlainEffect plain;
        plain.setProgram(GetParam());
        plain.resume(true);
        plain.setTempo(97.0);

        const auto voice = voiceInStereo<Sample>(readVoice(CORVEL_VOICE_FILE));
        ASSERT_GT(voice.frames(), 40000);
        constexpr int block = 509;
        const auto sound = render(effect, voice, block);
        const auto expected = render(plain, voice, block);
        for (std::size_t channel = 0; channel < 2; ++channel)
            for (std::size_t i = 0; i < sound.channels[channel].size(); ++i)
                ASSERT_TRUE(sameBits(sound.channels[channel][i], expected.channels[channel][i]))
                    << "channel " << channel << ", frame " << i << ": "
                    << sound.channels[channel][i] << " for " << expected.channels[channel][i];
    }
};

}  // namespace

TEST_P(FactorySound, EqualsThePlainVersionInFloat) {
    expectThePlainSound<float>();
}

TEST_P(FactorySound, EqualsThePlainVersionInDouble) {
    expectThePlainSound<double>();
}

INSTANTIATE_TEST_SUITE_P(Programs, FactorySound, testing::Range(0, Tessitor::Corvel::programCount));
