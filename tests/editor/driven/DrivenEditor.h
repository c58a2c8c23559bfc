#pragma once

#include "CEffectInHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

inline void PrintTo(const SStoredProgram &program, std::ostream *out) {
    *out << "a program with the links";
    for (const auto &[prev, next] : program.links)
        *out << ' ' << prev << '/' << next;
    *out << " and the values";
    for (const float value : program.parameters)
        *out << ' ' << value;
}

/// A call of audioMasterAutomate.
struct SAutomation {
    int id;
    float value;

    bool operator==(const SAutomation &) const = default;
    friend void PrintTo(const SAutomation &call, std::ostream *out) {
        *out << call.id << " = " << call.value;
    }
};

/// The built effect, loaded, with its editor still closed. The tests share a desktop.
class DrivenEffect : public testing::Test {
protected:
    static void SetUpTestSuite() { desktop = std::make_unique<CDesktop>(); }
    static void TearDownTestSuite() { desktop.reset(); }

    /// @return the automation that editors have sent to the host since the last call.
    std::vector<SAutomation> takeAutomation() {
        std::vector<SAutomation> taken;
        for (const SHostCall &call : host.calls(audioMasterAutomate))
            taken.push_back({call.index, call.opt});
        host.forgetCalls();
        return taken;
    }

    static inline std::unique_ptr<CDesktop> desktop;
    CPluginFile file;
    FakeHost host;
    CEffectInHost driven{*desktop, file};
};

/// The same with the editor open.
class DrivenEditor : public DrivenEffect {
protected:
    DrivenEditor() { driven.open(); }
    ~DrivenEditor() override { driven.effect.send(effEditClose); }

    /// Fills the slots by way of the host.
    void showChain(const std::vector<int> &modules) {
        SStoredProgram program = driven.stored();
        program.links = chainOf(modules);
        driven.restore(program);
        driven.settle();
    }
};
