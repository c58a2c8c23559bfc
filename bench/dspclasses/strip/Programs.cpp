#include "dspclasses/modules/PlainModules.h"
#include "dspclasses/strip/CDSPMultiFX.h"
#include "dspclasses/strip/PlainStrip.h"
#include "dspclasses/support/SSubject.h"
#include "effect/FactoryPrograms.h"

using Tessitor::Corvel::factoryPrograms;
using Tessitor::Corvel::SProgram;

/// Sends the parameters of a program to a strip. The effect starts with all values at 0 and sends
/// only changes, so a 0 is not sent here either.
template <typename Set>
static void sendParameters(const SProgram &program, Set set) {
    for (int id = 0; id < kParameterCount; ++id) {
        const float value = program.parameters[static_cast<std::size_t>(id)];
        if (value != 0.0f)
            set(id, value);
    }
}

static std::unique_ptr<CDSPBase> makeStrip(const SProgram &program) {
    auto strip = std::make_unique<CDSPMultiFX>();
    sendParameters(program, [&](int id, float value) { strip->setStripParameter(id, value); });
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const auto &link = program.order[static_cast<std::size_t>(slot)];
        strip->setOrderEntry(slot, link.prev, link.next);
    }
    return strip;
}

static std::unique_ptr<CDSPBase> makePlainStrip(const SProgram &program) {
    auto strip = std::make_unique<CPlainStrip>(makePlainModules());
    sendParameters(program, [&](int id, float value) { strip->setParameter(id, value); });
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const auto &link = program.order[static_cast<std::size_t>(slot)];
        strip->orderEntry(slot) = {link.prev, link.next};
    }
    return strip;
}

std::vector<SSubject> programsToMeasure() {
    std::vector<SSubject> subjects;
    subjects.reserve(factoryPrograms.size());
    for (const SProgram &program : factoryPrograms) {
        subjects.push_back({std::string("Program: ") + program.name.data(),
                            [&] { return makeStrip(program); },
                            [&] { return makePlainStrip(program); }});
    }
    return subjects;
}
