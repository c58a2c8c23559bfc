#pragma once

#include "corvel/settings/CEffectSettings.h"

#include <memory>

namespace Tessitor::Tool {

/// An effect with its settings, as something to measure. [any thread]
class CSubject {
public:
    /// @param library, settings  must outlive this.
    /// @param tempo              beats per minute.
    CSubject(const CEffectLibrary &library, const CEffectSettings &settings, double tempo)
        : m_library(library), m_settings(settings), m_tempo(tempo) {}

    /// @return a new instance, running at the rate that the strip is tuned for. No earlier sound is
    ///         left in it.
    std::unique_ptr<CEffectInstance> start() const;

private:
    const CEffectLibrary &m_library;
    const CEffectSettings &m_settings;
    double m_tempo;
};

}  // namespace Tessitor::Tool
