#include "hostlayer/CHostCanDo.h"

#include "foundation/CException.h"

namespace Tessitor::Vst {

namespace {

constexpr std::array<const char *, numberOfHostCapabilities> words{"sendVstEvents",
                                                                   "sendVstMidiEvent",
                                                                   "sendVstTimeInfo",
                                                                   "receiveVstEvents",
                                                                   "receiveVstMidiEvent",
                                                                   "receiveVstTimeInfo",
                                                                   "reportConnectionChanges",
                                                                   "acceptIOChanges",
                                                                   "sizeWindow",
                                                                   "asyncProcessing",
                                                                   "offline",
                                                                   "supplyIdle",
                                                                   "supportShell",
                                                                   "editFile",
                                                                   "closeFileSelector",
                                                                   "startStopProcess"};

/// Larger than the published 64 bytes, in case a host writes more. Zeroed, in case it writes
/// nothing.
using HostText = std::array<char, 256>;

}  // namespace

Basics::TClassRecord<CHostCanDo> CHostCanDo::s_class("CHostCanDo", "CCountedObject");

void CHostCanDo::setFromAudioEffectX(AudioEffectX *effect) {
    if (effect == nullptr)
        throw Exceptions::CException("Effect is NULL",
                                     "CHostCanDo::setFromAudioEffectX(AudioEffectX *)", true);
    // Kept: every answer but 0 counts as yes, even -1, which means no.
    for (std::size_t i = 0; i < words.size(); ++i)
        m_capabilities[i] = effect->canHostDo(words[i]) != 0;

    HostText product{}, vendor{};
    effect->getHostProductString(product.data());
    effect->getHostVendorString(vendor.data());
    m_product.setString(product.data());
    m_vendor.setString(vendor.data());
    m_version = effect->getHostVendorVersion();
}

void CHostCanDo::clear() {
    m_capabilities.fill(false);
    m_product.setString("");
    m_vendor.setString("");
    m_version = 0;
}

}  // namespace Tessitor::Vst
