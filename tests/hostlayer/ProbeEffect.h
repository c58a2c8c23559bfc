#pragma once

#include "hostlayer/AudioEffectX.h"

/// Overrides only the pure virtual operations, so it answers like the published classes.
class ProbeEffect : public AudioEffectX {
public:
    explicit ProbeEffect(audioMasterCallback host = nullptr) : AudioEffectX(host, 3, 2) {}

    std::intptr_t call(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0,
                       void *ptr = nullptr, float opt = 0.0f) {
        return getAeffect()->dispatcher(getAeffect(), opcode, index, value, ptr, opt);
    }

    void processReplacing(float **, float **, int) override {}
};

/// An editor without a window.
class ProbeEditor : public AEffEditor {
public:
    using AEffEditor::AEffEditor;

    bool getRect(ERect **rect) override {
        *rect = &rectangle;
        return true;
    }

    ERect rectangle{0, 0, 370, 748};
};
