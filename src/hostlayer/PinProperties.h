#pragma once

#include "hostlayer/VstInterface.h"

#include <cstdint>

/// Fills a pin's record as far as every host has it: label, flags, arrangement, short label. The
/// bytes behind them are not written, since one host's record ends there and lies on its stack.
/// @param flags  VstPinPropertiesFlags; a stereo pin gets the stereo arrangement, another the mono.
/// Longer labels are cut to the published lengths. [any thread]
void fillPinProperties(VstPinProperties &pin, const char *label, const char *shortLabel,
                       std::int32_t flags);
