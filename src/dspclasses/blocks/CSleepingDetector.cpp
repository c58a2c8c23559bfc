#include "dspclasses/blocks/CSleepingDetector.h"

#include "dspclasses/blocks/ExcessSmoothing.h"
#include "dspclasses/blocks/NeighbourFlush.h"
#include "dspclasses/kernels/SingleMath.h"

bool CSleepingDetector::isAsleep() const {
    const float excessDb = m_state.smoothedExcessDb, release = m_settings.smoother.releaseCoef;
    const bool onlyDecays = excessDb >= -smoothingBias && release >= 0.0f && release <= 1.0f;
    return isFlushedByNeighbour<double>(m_gain.decibels) && onlyDecays &&
           excessDb <= leastActiveExcessDb;
}

void CSleepingDetector::detect(double level) {
    float &peak = m_state.peak, &smoothedDb = m_state.smoothedExcessDb;
    peak = isFlushedByNeighbour<double>(m_gain.decibels) ? 0.0f : peakFollower.next(peak, level);
    const bool isAbove = peak - m_settings.thresholdLinear > 0.0f;
    const double excessDb =
        isAbove ? logDouble(level + double{smoothingBias}) * double{exponentPerDecibel} -
                      double{m_settings.thresholdDb}
                : 0.0;
    smoothedDb = isFlushedByNeighbour<double>(m_settings.thresholdDb)
                     ? 0.0f
                     : smoothExcess(m_settings.smoother, smoothedDb, excessDb);
    m_gain = m_settings.law.gain(isAbove || smoothedDb > leastActiveExcessDb, smoothedDb);
}

void CSleepingDetector::sleep(int frames) {
    m_state.peak = 0.0f;
    m_gain = m_settings.law.gain(false, 0.0f);
    float &smoothedDb = m_state.smoothedExcessDb;
    if (isFlushedByNeighbour<double>(m_settings.thresholdDb)) {
        smoothedDb = 0.0f;
        return;
    }
    for (int i = 0; i < frames; ++i) {
        const float before = smoothedDb;
        smoothedDb = decayExcess(m_settings.smoother, smoothedDb);
        if (smoothedDb == before)  // at rest
            return;
    }
}
