#pragma once

#include "hostlayer/AudioEffectX.h"
#include "hostlayer/STempoInformation.h"

#include <memory>

namespace Tessitor::Vst {

/// Reads the host's transport, once per block. [audio thread]
class CVstTempo : public Basics::CCountedObject {
public:
    CVstTempo();  ///< has no effect yet; set one before reading
    /// @throws CException if the effect is null.
    explicit CVstTempo(AudioEffectX *effect);
    CVstTempo(const CVstTempo &) = delete;
    CVstTempo &operator=(const CVstTempo &) = delete;
    ~CVstTempo() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void setEffect(AudioEffectX *effect) { m_theEffect = effect; }  ///< must outlive this object

    /// Asks the host and updates the information, which keeps its values if the host has no time.
    /// @param mask  the VstTimeInfoFlags to ask for; others that the host sets are read too.
    /// @return isValid()
    /// @throws CException if there is no effect. Otherwise allocates nothing.
    bool getTempoInformation(int mask);

    bool isValid() const { return m_valid; }  ///< the host had a time when it was last asked
    const STempoInformation &getInformation() const { return *m_information; }

private:
    void readTempo(const VstTimeInfo &time);
    void readTimeSignature(const VstTimeInfo &time);
    void readPosition(const VstTimeInfo &time);
    void countSamplesToNextBar(double sampleRate);

    static Basics::TClassRecord<CVstTempo> s_class;

    AudioEffectX *m_theEffect = nullptr;  // not owned
    bool m_valid = false;
    std::unique_ptr<STempoInformation> m_information = std::make_unique<STempoInformation>();
};

}  // namespace Tessitor::Vst
