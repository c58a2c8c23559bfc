#pragma once

#include "hostlayer/VstInterface.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A call from an effect to its host.
struct SHostCall {
    AEffect *effect;
    std::int32_t opcode;
    std::int32_t index;
    std::intptr_t value;
    float opt;
    std::string text;  // the word of audioMasterCanDo, or a text buffer as the effect passed it
};

/// A host whose answers a test sets, with a log of all calls. Only one can exist at a time, since
/// an effect sees its host as a plain function. Set the answers while no effect is calling; effects
/// may call from several threads.
class FakeHost {
public:
    FakeHost() {
        EXPECT_EQ(s_current, nullptr) << "one fake host at a time";
        s_current = this;
    }
    ~FakeHost() { s_current = nullptr; }
    FakeHost(const FakeHost &) = delete;
    FakeHost &operator=(const FakeHost &) = delete;

    /// Pass this to the entry point or to the constructor of an effect.
    static std::intptr_t callback(AEffect *effect, std::int32_t opcode, std::int32_t index,
                                  std::intptr_t value, void *ptr, float opt) {
        return s_current->answer({effect, opcode, index, value, opt, {}}, ptr);
    }

    std::map<std::int32_t, std::intptr_t> answers{{audioMasterVersion, 2400}};  // others are 0
    std::map<std::string, std::intptr_t> canDo;  // 0 for words that are not listed
    std::set<std::int32_t> unconnectedInputs;
    std::optional<VstTimeInfo> time;  // unset if the host has no time information
    // Written without a terminator, as a bad host might do. If unset, the buffer is left alone.
    std::optional<std::string> product, vendor;
    bool logging = true;  // switched off by tests that count allocations

    std::vector<SHostCall> calls() const {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }
    std::vector<SHostCall> calls(std::int32_t opcode) const {
        std::vector<SHostCall> found = calls();
        std::erase_if(found, [=](const SHostCall &call) { return call.opcode != opcode; });
        return found;
    }
    void forgetCalls() {
        const std::lock_guard lock(m_mutex);
        m_calls.clear();
    }

private:
    std::intptr_t answer(SHostCall call, void *ptr) {
        char *text = static_cast<char *>(ptr);
        if (logging) {
            if (call.opcode == audioMasterCanDo)
                call.text = text;
            else if (isTextQuestion(call.opcode))
                call.text.assign(text, kVstMaxVendorStrLen);
            const std::lock_guard lock(m_mutex);
            m_calls.push_back(call);
        }
        switch (call.opcode) {
        case audioMasterCanDo:
            return wordAnswer(text);
        case audioMasterPinConnected:
            return unconnectedInputs.contains(call.index) ? 1 : 0;
        case audioMasterGetTime:
            return time ? reinterpret_cast<std::intptr_t>(&*time) : 0;
        case audioMasterGetProductString:
            return write(product, text);
        case audioMasterGetVendorString:
            return write(vendor, text);
        default:
            return fixedAnswer(call.opcode);
        }
    }

    static bool isTextQuestion(std::int32_t opcode) {
        return opcode == audioMasterGetProductString || opcode == audioMasterGetVendorString;
    }

    std::intptr_t fixedAnswer(std::int32_t opcode) const {
        const auto found = answers.find(opcode);
        return found != answers.end() ? found->second : 0;
    }

    std::intptr_t wordAnswer(const char *word) const {
        const auto found = canDo.find(word);
        return found != canDo.end() ? found->second : 0;
    }

    static std::intptr_t write(const std::optional<std::string> &answer, char *text) {
        if (!answer)
            return 0;
        answer->copy(text, answer->size());
        return 1;
    }

    static inline FakeHost *s_current = nullptr;

    mutable std::mutex m_mutex;
    std::vector<SHostCall> m_calls;
};
