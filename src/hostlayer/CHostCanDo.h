#pragma once

#include "foundation/CString.h"
#include "hostlayer/AudioEffectX.h"

#include <array>

namespace Tessitor::Vst {

/// The capabilities that a host may report, in the order in which they are asked.
enum EHostCapability {
    hostSendsVstEvents,
    hostSendsVstMidiEvent,
    hostSendsVstTimeInfo,
    hostReceivesVstEvents,
    hostReceivesVstMidiEvent,
    hostReceivesVstTimeInfo,
    hostReportsConnectionChanges,
    hostAcceptsIOChanges,
    hostSizesWindow,
    hostProcessesAsynchronously,
    hostWorksOffline,
    hostSuppliesIdle,
    hostSupportsShell,
    hostEditsFile,
    hostClosesFileSelector,
    hostStartsAndStopsProcess,
    numberOfHostCapabilities
};

/// The host's identity and capabilities, as it reported them.
class CHostCanDo : public Basics::CCountedObject {
public:
    CHostCanDo() { s_class.incrementInstanceCount(); }
    CHostCanDo(const CHostCanDo &) = delete;
    CHostCanDo &operator=(const CHostCanDo &) = delete;
    ~CHostCanDo() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    /// Asks the effect's host. @throws CException if the effect is null.
    void setFromAudioEffectX(AudioEffectX *effect);
    void clear();

    bool canDo(EHostCapability capability) const { return m_capabilities[capability]; }
    const Basics::CString &getProduct() const { return m_product; }
    const Basics::CString &getVendor() const { return m_vendor; }
    std::int32_t getVersion() const { return m_version; }

private:
    static Basics::TClassRecord<CHostCanDo> s_class;

    std::array<bool, numberOfHostCapabilities> m_capabilities{};
    Basics::CString m_product;
    Basics::CString m_vendor;
    std::int32_t m_version = 0;
};

}  // namespace Tessitor::Vst
