#pragma once

#include "dspclasses/modules/CDSPBase.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A module or a strip to measure, with its plain version. Both are set up with the same values.
struct SSubject {
    using Make = std::function<std::unique_ptr<CDSPBase>()>;

    std::string name;
    Make makeKernel;
    Make makePlain;
};

/// Parameters by the module's index, in the module's unit.
using Settings = std::vector<std::pair<int, float>>;

template <typename Module>
SSubject::Make makerOf(const Settings &settings) {
    return [settings] {
        auto module = std::make_unique<Module>();
        for (const auto &[index, value] : settings)
            module->setParameter(index, value);
        return module;
    };
}

/// A row of the table of modules.
template <typename Kernel, typename Plain>
SSubject subject(std::string name, const Settings &settings) {
    return {std::move(name), makerOf<Kernel>(settings), makerOf<Plain>(settings)};
}

std::vector<SSubject> modulesToMeasure();
std::vector<SSubject> programsToMeasure();
