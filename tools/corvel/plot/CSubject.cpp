#include "corvel/plot/CSubject.h"

#include "corvel/plot/StereoSound.h"

namespace Tessitor::Tool {

std::unique_ptr<CEffectInstance> CSubject::start() const {
    auto effect = std::make_unique<CEffectInstance>(m_library);
    m_settings.applyTo(*effect);
    SRunSettings run;
    run.sampleRate = probeRate;
    run.tempo = m_tempo;
    run.blockSize = probeBlock;
    effect->start(run);
    return effect;
}

}  // namespace Tessitor::Tool
