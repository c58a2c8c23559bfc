#include "hostlayer/PinProperties.h"

#include <cstddef>
#include <cstring>

namespace {

template <std::size_t size>
void copyLabel(char (&destination)[size], const char *label) {
    std::memset(destination, 0, size);
    std::strncpy(destination, label, size - 1);
}

}  // namespace

void fillPinProperties(VstPinProperties &pin, const char *label, const char *shortLabel,
                       std::int32_t flags) {
    copyLabel(pin.label, label);
    pin.flags = flags;
    pin.arrangementType = (flags & kVstPinIsStereo) != 0 ? kSpeakerArrStereo : kSpeakerArrMono;
    copyLabel(pin.shortLabel, shortLabel);
}
