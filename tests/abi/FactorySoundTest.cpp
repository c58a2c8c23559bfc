#include "abi/LoadedPlugin.h"
#include "abi/VoiceFile.h"
#include "dspclasses/PlainModules.h"
#include "dspclasses/PlainStrip.h"
#include "effect/FactoryPrograms.h"
#include "hostlayer/FakeHost.h"

#include <gtest/gtest.h>

using namespace Tessitor::Corvel;

namespace {

class FactorySound : public testing::TestWithParam<int> {
protected:
    static std::unique_ptr<CPlainStrip> plainStrip(int program) {
        auto strip = std::make_unique<CPlainStrip>(makePlainModules());
        std::array<float, parameterCount> values{};
        for (int step : {0, program})
            for (int id = 0; id < parameterCount; ++id) {
                const float value = factoryPrograms[std::size_t(step)].parameters[std::size_t(id)];
                if (value != values[std::size_t(id)])
                    strip->setParameter(id, value);
                values[std::size_t(id)] = value;
            }
        std::vector<int> chain;
        const auto &order = factoryPrograms[std::size_t(program)].order;
        for (int slot = order[1].next; slot != -1; slot = order[std::size_t(slot)].next)
            chain.push_back(slot);
        strip->setChain(chain);
        return strip;
    }

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
        const auto plain = plainStrip(GetParam());
        plain->setTempo(97.0f);

        const auto voice = voiceInStereo<Sample>(readVoice(CORVEL_VOICE_FILE));
        ASSERT_GT(voice.frames(), 40000);
        constexpr int block = 509;
        const auto sound = render(effect, voice, block);
        const auto expected = render(*plain, voice, block);
        for (std::size_t channel = 0; channel < 2; ++channel)
            for (std::size_t i = 0; i < sound.channels[channel].size(); ++i)
                ASSERT_TRUE(sameBits(sound.channels[channel][i], expected.channels[channel][i]))
                    << "channel " << channel << ", frame " << i << ": "
                    << sound.channels[channel][i] << " for " << expected.channels[channel][i];
    }
};

}  // namespace

TEST_P(FactorySound, IsThePlainReadingsInFloat) {
    expectThePlainSound<float>();
}

TEST_P(FactorySound, IsThePlainReadingsInDouble) {
    expectThePlainSound<double>();
}

INSTANTIATE_TEST_SUITE_P(Programs, FactorySound, testing::Range(0, programCount));
