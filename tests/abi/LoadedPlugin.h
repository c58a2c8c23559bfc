#pragma once

#include "hostlayer/VstInterface.h"
#include "platform/NativeLibrary.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

/// A loaded plug-in file; by default the built one.
class CPluginFile {
public:
    using Entry = AEffect *(*)(audioMasterCallback);

    explicit CPluginFile(const char *path = CORVEL_PLUGIN_FILE,
                         const char *entryName = "VSTPluginMain")
        : m_entryName(entryName) {
        std::string reason;
        m_library = openNativeLibrary(path, reason);
        if (m_library == nullptr)
            throw std::runtime_error(reason);
    }
    ~CPluginFile() { closeNativeLibrary(m_library); }
    CPluginFile(const CPluginFile &) = delete;
    CPluginFile &operator=(const CPluginFile &) = delete;

    void *symbol(const char *name) const { return nativeSymbol(m_library, name); }
    Entry entry() const { return reinterpret_cast<Entry>(symbol(m_entryName)); }

private:
    const char *m_entryName;
    void *m_library;
};

/// An effect, used only through its AEffect record.
class CLoadedEffect {
public:
    CLoadedEffect(const CPluginFile &file, audioMasterCallback host)
        : m_effect(file.entry()(host)) {
        if (m_effect == nullptr)
            throw std::runtime_error("the entry function returned null");
    }

    AEffect &record() const { return *m_effect; }

    std::intptr_t send(AEffectOpcode opcode, int index = 0, std::intptr_t value = 0,
                       void *ptr = nullptr, float opt = 0.0f) const {
        return m_effect->dispatcher(m_effect.get(), opcode, index, value, ptr, opt);
    }
    std::string text(AEffectOpcode opcode, int index = 0, std::intptr_t value = 0) const {
        char buffer[256] = {};
        send(opcode, index, value, buffer);
        return buffer;
    }

    void setParameter(int index, float value) const {
        m_effect->setParameter(m_effect.get(), index, value);
    }
    float getParameter(int index) const { return m_effect->getParameter(m_effect.get(), index); }
    std::vector<float> parameters() const {
        std::vector<float> values;
        for (int id = 0; id < m_effect->numParams; ++id)
            values.push_back(getParameter(id));
        return values;
    }

    std::vector<char> chunk(bool isPreset) const {
        void *data = nullptr;
        const std::intptr_t size = send(effGetChunk, isPreset ? 1 : 0, 0, &data);
        const char *bytes = static_cast<const char *>(data);
        return {bytes, bytes + size};
    }
    std::intptr_t setChunk(std::vector<char> chunk, bool isPreset) const {
        return send(effSetChunk, isPreset ? 1 : 0, static_cast<std::intptr_t>(chunk.size()),
                    chunk.data());
    }

    void processReplacing(float **in, float **out, int frames) const {
        m_effect->processReplacing(m_effect.get(), in, out, frames);
    }
    void processDoubleReplacing(double **in, double **out, int frames) const {
        m_effect->processDoubleReplacing(m_effect.get(), in, out, frames);
    }

private:
    struct SCloser {
        void operator()(AEffect *effect) const {
            effect->dispatcher(effect, effClose, 0, 0, nullptr, 0.0f);
        }
    };
    std::unique_ptr<AEffect, SCloser> m_effect;
};
