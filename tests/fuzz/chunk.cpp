// The input: a byte that chooses the current program and whether the chunk is a bank, then the
// chunk. The effect trusts the chunks of its host, so the input is made valid first: values become
// normalised, since others fail the delay line's assertion or allocate gigabytes, and links lead to
// existing slots. A cyclic chain is loaded but not run.
#include "Fuzz.h"
#include "effect/CCorvel.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <set>
#include <vector>

using namespace Tessitor::Corvel;

namespace {

std::intptr_t host(AEffect *, std::int32_t opcode, std::int32_t, std::intptr_t, void *, float) {
    return opcode == audioMasterVersion ? 2400 : 0;
}

std::vector<SProgram> programsFrom(std::string bytes, std::size_t count) {
    std::vector<SProgram> programs(count);
    bytes.resize(count * sizeof(SProgram));
    std::memcpy(programs.data(), bytes.data(), bytes.size());
    for (SProgram &program : programs) {
        for (float &value : program.parameters)
            if (!(value >= 0.0f && value <= 1.0f))
                value = static_cast<float>(std::bit_cast<std::uint32_t>(value) % 1001) / 1000.0f;
        for (SChainLink &link : program.order) {
            link.prev =
                static_cast<std::int32_t>(std::uint32_t(link.prev + 1LL) % (kSlotCount + 1)) - 1;
            link.next =
                static_cast<std::int32_t>(std::uint32_t(link.next + 1LL) % (kSlotCount + 1)) - 1;
        }
    }
    return programs;
}

bool hasEnd(const SProgram &program) {
    std::set<std::int32_t> seen;
    std::int32_t slot = 0;
    while (slot != -1 && seen.insert(slot).second)
        slot = program.order[static_cast<std::size_t>(slot)].next;
    return slot == -1;
}

void requireNames(CCorvel &effect) {
    for (int program = 0; program < programCount; ++program) {
        char name[24];
        std::memset(name, 'x', sizeof name);
        require(effect.getProgramNameIndexed(0, program, name), "every program has a name");
        require(std::memchr(name, '\0', sizeof name) != nullptr, "a name ends inside its record");
    }
}

void requireTexts(CCorvel &effect) {
    for (int id = 0; id < kParameterCount; ++id) {
        char text[256];
        std::memset(text, 'x', sizeof text);
        effect.getParameterDisplay(id, text);
        require(std::memchr(text, '\0', sizeof text) != nullptr, "a display text is terminated");
    }
}

template <typename Sample>
struct SBlock {
    std::vector<Sample> left = std::vector<Sample>(64, Sample(0.5));
    std::vector<Sample> right = std::vector<Sample>(64, Sample(-0.5));
    Sample *channels[2] = {left.data(), right.data()};
};

void run(CCorvel &effect) {
    SBlock<float> in, out;
    effect.processReplacing(in.channels, out.channels, 64);
    effect.processReplacing(in.channels, out.channels, 1);
    SBlock<double> inDouble, outDouble;
    effect.processDoubleReplacing(inDouble.channels, outDouble.channels, 64);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    CCorvel effect(host);
    CInput input(data, size);
    const std::uint8_t order = input.byte();
    const bool isPreset = order < 128;
    std::vector<SProgram> programs = programsFrom(input.rest(), isPreset ? 1 : programCount);
    const int byteSize = static_cast<int>(programs.size() * sizeof(SProgram));

    effect.setProgram(isPreset ? order % programCount : 0);
    require(effect.setChunk(programs.data(), byteSize, isPreset) == byteSize,
            "setChunk accepts the whole chunk");
    void *stored = nullptr;
    require(effect.getChunk(&stored, isPreset) == byteSize, "getChunk returns a whole chunk");
    require(std::equal(programs.begin(), programs.end(), static_cast<const SProgram *>(stored)),
            "getChunk returns what setChunk received");
    requireNames(effect);
    requireTexts(effect);
    if (hasEnd(programs[0]))
        run(effect);
    return 0;
}
