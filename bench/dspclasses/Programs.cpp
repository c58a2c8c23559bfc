#include "dspclasses/CDSPMultiFX.h"
#include "dspclasses/PlainModules.h"
#include "dspclasses/PlainStrip.h"
#include "dspclasses/SSubject.h"

/// Parameters by the id and in the range that the host knows; both routings start out as stereo.
static SSubject program(std::string name, const std::vector<int> &chain, const Settings &settings) {
    const auto makeKernel = [=] {
        auto strip = std::make_unique<CDSPMultiFX>();
        strip->setStripParameter(1, 1.0f);
        strip->setStripParameter(61, 1.0f);
        for (const auto &[id, value] : settings)
            strip->setStripParameter(id, value);
        for (const int slot : chain)
            strip->appendFX(slot);
        return strip;
    };
    const auto makePlain = [=] {
        auto strip = std::make_unique<CPlainStrip>(makePlainModules());
        strip->setParameter(1, 1.0f);
        strip->setParameter(61, 1.0f);
        for (const auto &[id, value] : settings)
            strip->setParameter(id, value);
        strip->setChain(chain);
        return strip;
    };
    return {std::move(name), makeKernel, makePlain};
}

std::vector<SSubject> programsToMeasure() {
    return {
        program("Strip, empty", {}, {}),
        program("Strip, gain and pan", {4, 3}, {{4, 0.4f}, {3, 0.3f}}),
    };
}
