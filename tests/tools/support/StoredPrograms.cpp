#include "tools/support/StoredPrograms.h"

#include "corvel/effect/CEffectInstance.h"
#include "dspclasses/strip/CChainOrder.h"

#include <cstring>
#include <iterator>
#include <random>

using namespace Tessitor;
using Corvel::SProgram;

namespace {

class CProgramMaker {
public:
    explicit CProgramMaker(unsigned seed) : m_random(seed) {}

    SProgram make() {
        SProgram program{};
        for (int id = 0; id < kUnused62; ++id)
            program.parameters[static_cast<std::size_t>(id)] = value();
        if (below(10) == 0)
            program.parameters[kUnused63] = value();
        makeChain(program);
        setName(program);
        setName(program);
        return program;
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    float value() {
        constexpr float special[] = {0.0f, 1.0f, 0.5f, -0.0f, 1e-40f, 1e-8f, 0.99999994f};
        switch (below(6)) {
        case 0:
            return special[below(std::size(special))];
        case 1:
            return std::uniform_real_distribution<float>(0.0f, 1.0f)(m_random);
        default:
            return static_cast<float>(below(201)) / 200.0f;
        }
    }

    void makeChain(SProgram &program) {
        CChainOrder order;
        for (int edits = below(30); edits > 0; --edits)
            edit(order);
        for (int slot = 0; slot < kSlotCount; ++slot) {
            const auto &[prev, next] = order.entry(slot);
            program.order[static_cast<std::size_t>(slot)] = {prev, next};
        }
    }

    void edit(CChainOrder &order) {
        const int slot = kFirstModuleSlot + below(16), target = kFirstModuleSlot + below(16);
        const bool isFree = order.entry(slot).prev == kNoSlot;
        const bool isTargetFree = order.entry(target).prev == kNoSlot;
        const int kind = below(5);
        if (!isFree && kind == 0)
            order.remove(slot);
        else if (isFree && kind == 1 && !isTargetFree)
            order.replace(target, slot);
        else if (isFree && kind == 2 && !isTargetFree)
            order.insertBefore(target, slot);
        else if (isFree)
            order.append(slot);
        // Some edits after a replacement make a circle.
        order.recount();
        if (order.getCount() == 0)
            order.initialise();
    }

    void setName(SProgram &program) {
        std::string name(static_cast<std::size_t>(below(24)), ' ');
        const bool isPlain = below(3) > 0;
        for (char &letter : name)
            letter = static_cast<char>(isPlain ? 'a' + below(26) : 1 + below(255));
        std::memcpy(program.name.data(), name.c_str(), name.size() + 1);
    }

    std::mt19937 m_random;
};

}  // namespace

std::vector<SProgram> factoryPrograms() {
    const Tool::CEffectLibrary library(CORVEL_EFFECT);
    Tool::CEffectInstance effect(library);
    void *data = nullptr;
    effect.dispatch(effGetChunk, 0, 0, &data);
    std::vector<SProgram> programs(Corvel::programCount);
    std::memcpy(programs.data(), data, sizeof(SProgram) * programs.size());
    return programs;
}

SProgram randomProgram(unsigned seed) {
    return CProgramMaker(seed).make();
}

Tool::SPreset randomBank(unsigned seed) {
    Tool::SPreset bank;
    for (unsigned number = 0; number < Corvel::programCount; ++number)
        bank.programs.push_back(randomProgram(seed * Corvel::programCount + number));
    bank.current = seed % Corvel::programCount;
    return bank;
}

std::string bytesOf(const Tool::SPreset &preset) {
    return {reinterpret_cast<const char *>(preset.programs.data()),
            preset.programs.size() * sizeof(SProgram)};
}
