#pragma once

#include "corvel/effect/CEffectLibrary.h"
#include "corvel/effect/HostCallback.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>

namespace Tessitor::Tool {

/// Settings for one run of an instance.
struct SRunSettings {
    double sampleRate = 44100.0;    // Hz
    double tempo = 120.0;           // beats per minute
    std::int32_t blockSize = 1024;  // longest block, frames
    bool doublePrecision = false;
    bool rightInputConnected = true;
    bool rightOutputConnected = true;
};

/// One instance of an effect, from opening to closing. [one thread at a time]
class CEffectInstance {
public:
    /// Calls the library's entry function and opens the effect.
    /// @throws CJobError if the result is not a usable effect.
    explicit CEffectInstance(const CEffectLibrary &library);
    ~CEffectInstance();
    CEffectInstance(const CEffectInstance &) = delete;
    CEffectInstance &operator=(const CEffectInstance &) = delete;

    const AEffect &record() const { return *m_effect; }
    bool has(VstAEffectFlags flag) const { return (m_effect->flags & flag) != 0; }
    std::string fileName() const { return m_library.file().string(); }

    std::intptr_t dispatch(AEffectOpcode opcode, std::int32_t index = 0, std::intptr_t value = 0,
                           void *ptr = nullptr, float opt = 0.0f);
    /// @return the text that an opcode writes to its `ptr`; empty if the effect writes none.
    std::string text(AEffectOpcode opcode, std::int32_t index = 0, std::intptr_t value = 0);

    float parameter(std::int32_t index) { return m_effect->getParameter(m_effect, index); }
    void setParameter(std::int32_t index, float value) {
        m_effect->setParameter(m_effect, index, value);
    }

    /// @return the state of the current program. The effect owns it; valid until the next call.
    /// @throws CJobError if the effect returns none.
    std::span<const std::byte> programChunk();
    void setProgramChunk(std::span<const std::byte> chunk);

    /// Sends sample rate, block size, precision, mains on and start. The transport starts at 0.
    void start(const SRunSettings &settings);
    /// Sends stop and mains off. Does nothing unless started.
    void stop();

    /// The answer when the effect asks for the time during the next block. Without this, the
    /// transport runs on from block to block.
    void setTime(const VstTimeInfo &time) { m_host.time = time; }

    /// @param window  that shows the effect's editor, to be resized when the effect wishes it; null
    ///                for none.
    void setEditorHost(IEditorHost *window) { m_host.editor = window; }

    /// Only between start() and stop().
    /// @param in, out  two channels of `frames` samples; out[1] may be null without a right output.
    /// @param frames   at most the block size.
    void process(float **in, float **out, std::int32_t frames);
    /// For effects with effFlagsCanDoubleReplacing, started in double precision.
    void process(double **in, double **out, std::int32_t frames);

private:
    struct SCloser {
        std::mutex &lock;
        void operator()(AEffect *effect) const;
    };

    void advanceTransport(std::int32_t frames);

    const CEffectLibrary &m_library;
    SHostState m_host;
    std::unique_ptr<AEffect, SCloser> m_owner;
    AEffect *m_effect = nullptr;  // owned by m_owner
    bool m_running = false;
};

}  // namespace Tessitor::Tool
