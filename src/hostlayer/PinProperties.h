#pragma once

#include "hostlayer/VstInterface.h"

#include <cstdint>

/// Fills in label, flags, arrangement and short label of a pin, and writes nothing after them:
/// Giada's record is on its stack and ends there. Long labels are cut to the published lengths.
/// @param flags  VstPinPropertiesFlags; kVstPinIsStereo selects the stereo arrangement, otherwise
///               it is mono. [any thread]
void fillPinProperties(VstPinProperties &pin, const char *label, const char *shortLabel,
                       std::int32_t flags);
