#pragma once

#include "dspclasses/parameters/ParameterIds.h"
#include "dspclasses/parameters/Slots.h"

#include <array>
#include <string>

/// One of the parameters that the host sees.
struct SParameter {
    const char *name;  // at most 9 characters
    ESlot slot;        // of the module that it drives; kNoSlot if none
    int index;         // an EParameter of that module
    float (*law)(float v);
    std::string (*text)(float g);
    const char *unit;
};

/// By parameter id.
extern const std::array<SParameter, kParameterCount> parameterTable;
