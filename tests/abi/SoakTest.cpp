#include "abi/HeapInUse.h"
#include "abi/LoadedPlugin.h"
#include "effect/PlainEffect.h"
#include "hostlayer/FakeHost.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>
#include <span>

// Random calls in random order. After each, the effect must equal its plain version to the bit, and
// no call may leak memory.

namespace {

class CSoak {
public:
    explicit CSoak(std::uint64_t seed) : random(seed) {
        host.logging = false;
        effect.send(effOpen);
        resume();
        lengthenDelay();
    }

    void step() {
        switch (random.whole(0, 11)) {
        case 0:
            setProgram();
            break;
        case 1:
            setPreset();
            break;
        case 2:
            setBank();
            break;
        case 3:
            setTempo();
            break;
        case 4:
            resume();
            break;
        case 5:
        case 6:
        case 7:
            for (int edits = random.whole(1, 8); edits > 0; --edits)
                setParameter();
            break;
        case 8:
            processBlock<double>();
            break;
        default:
            processBlock<float>();
        }
    }

private:
    // The slowest tempo has the longest delay. Set first, it leaves no allocation to later tempos.
    void lengthenDelay() {
        setParameter(kDlySync, 1.0f);
        host.time = VstTimeInfo{};
        host.time->tempo = slowestTempo;
        host.time->flags = kVstTempoValid;
        processBlock<float>();
    }

    void setParameter() { setParameter(random.whole(0, kParameterCount - 1), anyValue()); }
    void setParameter(int id, float value) {
        effect.setParameter(id, value);
        plain.setParameter(id, value);
    }

    void setProgram() {
        const int program = random.whole(0, 19);
        effect.send(effSetProgram, 0, program);
        plain.setProgram(program);
        ASSERT_EQ(effect.send(effGetProgram), plain.program());
        expectState();
    }

    void setPreset() {
        const std::vector<char> chunk = bytesOf({anyProgram()});
        ASSERT_EQ(effect.setChunk(chunk, true), 424);
        plain.setChunk(chunk, true);
        expectState();
    }

    void setBank() {
        std::vector<SProgram> programs(20);
        std::ranges::generate(programs, [this] { return anyProgram(); });
        const std::vector<char> chunk = bytesOf(programs);
        ASSERT_EQ(effect.setChunk(chunk, false), 8480);
        plain.setChunk(chunk, false);
        expectState();
    }

    void expectState() {
        ASSERT_EQ(effect.chunk(true), plain.chunk(true));
        ASSERT_EQ(effect.chunk(false), plain.chunk(false));
        ASSERT_TRUE(std::ranges::equal(effect.parameters(), plain.parameters()));
    }

    void setTempo() {
        if (random.chance(0.2)) {
            host.time.reset();
            return;
        }
        host.time = VstTimeInfo{};
        host.time->tempo = random.real(slowestTempo, 1000.0);
        host.time->flags = random.chance(0.8) ? kVstTempoValid : 0;
    }

    // The tempo that the effect reads from the host's answer; none if the host provides no time.
    std::optional<double> tempo() const {
        if (!host.time)
            return std::nullopt;
        return host.time->flags == kVstTempoValid ? host.time->tempo : 0.0;
    }

    void resume() {
        isRightConnected = random.chance(0.7);
        host.unconnectedInputs.clear();
        if (!isRightConnected)
            host.unconnectedInputs.insert(1);
        effect.send(effMainsChanged, 0, 0);
        effect.send(effMainsChanged, 0, 1);
        plain.resume(isRightConnected);
    }

    template <typename Sample>
    void processBlock() {
        plain.setTempo(tempo());
        const int frames = random.chance(0.1) ? 4096 : random.whole(1, 4096);
        const auto kind = static_cast<ESignal>(random.whole(0, signalCount - 1));
        const auto input = makeSignal<Sample>(kind, random.bits(), frames);
        const bool isMonoOut = !isRightConnected && random.chance(0.5);
        const auto expected = run(plain, input, isMonoOut, false);
        const auto result = run(effect, input, isMonoOut, random.chance(0.3));
        ASSERT_TRUE(result == expected) << frames << " frames";
    }

    // With a mono output the right buffer is null, so the right channel is compared as zeros.
    template <typename Effect, typename Sample>
    static TStereo<Sample> run(Effect &to, TStereo<Sample> input, bool isMonoOut, bool inPlace) {
        TStereo<Sample> output = inPlace ? input : TStereo<Sample>(input.frames());
        auto in = inPlace ? output.pointers() : input.pointers(), out = output.pointers();
        if (isMonoOut)
            out[1] = nullptr;
        process(to, in.data(), out.data(), input.frames());
        if (isMonoOut)
            std::ranges::fill(output.channels[1], Sample(0));
        return output;
    }

    using SProgram = CPlainEffect::SProgram;

    // Any value, but more often than by chance an end or the middle of the range.
    float anyValue() {
        if (random.chance(0.2))
            return static_cast<float>(random.whole(0, 2)) * 0.5f;
        return static_cast<float>(random.real(0.0, 1.0));
    }

    SProgram anyProgram() {
        SProgram program{};
        std::ranges::generate(program.parameters, [this] { return anyValue(); });
        std::array<int, 16> slots;
        std::iota(slots.begin(), slots.end(), kFirstModuleSlot);
        for (int left = 16; left > 1; --left)
            std::swap(slots[std::size_t(left - 1)], slots[std::size_t(random.whole(0, left - 1))]);
        program.order.fill({kNoSlot, kNoSlot});
        program.order[kInGainSlot].next = kInMonoSlot;
        program.order[kInMonoSlot].prev = kInGainSlot;
        int last = kInMonoSlot;
        for (int length = random.whole(0, 8); const int slot : std::span(slots).first(length)) {
            program.order[std::size_t(last)].next = slot;
            program.order[std::size_t(slot)].prev = last;
            last = slot;
        }
        std::snprintf(program.name.data(), program.name.size(), "%d", random.whole(0, 999999));
        return program;
    }

    static std::vector<char> bytesOf(const std::vector<SProgram> &programs) {
        const auto bytes = std::as_bytes(std::span(programs));
        std::vector<char> chunk(bytes.size());
        std::memcpy(chunk.data(), bytes.data(), bytes.size());
        return chunk;
    }

    static constexpr double slowestTempo = 10.0;

    CRandom random;
    FakeHost host;
    CPluginFile file;
    CLoadedEffect effect{file, FakeHost::callback};
    CPlainEffect plain;
    bool isRightConnected = true;
};

// scripts/soak.sh sets the length of the long run.
int setting(const char *variable, int usual) {
    const char *text = std::getenv(variable);
    return text != nullptr ? std::stoi(text) : usual;
}

}  // namespace

TEST(Soak, EqualsThePlainVersionAndLeaksNothingThroughRandomCalls) {
    const int calls = setting("CORVEL_SOAK_CALLS", 10000), seed = setting("CORVEL_SOAK_SEED", 1);
    CSoak soak(static_cast<std::uint64_t>(seed));
    std::size_t halfway = 0;
    for (int call = 0; call < calls; ++call) {
        // By halfway the longest blocks and delays have occurred; their buffers stay allocated.
        if (call == calls / 2)
            halfway = heapInUse();
        soak.step();
        ASSERT_FALSE(HasFatalFailure()) << "call " << call << ", seed " << seed;
    }
    const std::size_t end = heapInUse();
    std::cout << calls << " calls, seed " << seed << ": " << halfway << " bytes in use halfway, "
              << end << " at the end\n";
    constexpr std::size_t bytesPerCall = 16;
    EXPECT_LT(end, halfway + bytesPerCall * static_cast<std::size_t>(calls / 2));
}
