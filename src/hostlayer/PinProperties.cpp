#include "hostlayer/PinProperties.h"

#include "foundation/CopyText.h"

using Tessitor::Basics::copyText;

void fillPinProperties(VstPinProperties &pin, const char *label, const char *shortLabel,
                       std::int32_t flags) {
    copyText(pin.label, sizeof pin.label, label);
    pin.flags = flags;
    pin.arrangementType = (flags & kVstPinIsStereo) != 0 ? kSpeakerArrStereo : kSpeakerArrMono;
    copyText(pin.shortLabel, sizeof pin.shortLabel, shortLabel);
}
