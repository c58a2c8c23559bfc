#pragma once

#include "corvel/plot/CSubject.h"

#include <string>
#include <vector>

/// The built effect with a chain and parameters, ready to be measured.
class CMeasuredStrip {
public:
    /// @param chain  as in --chain. @param set  as in --set.
    explicit CMeasuredStrip(const std::string &chain, const std::vector<std::string> &set = {},
                            const std::string &effect = CORVEL_EFFECT)
        : m_library(effect), m_trial(m_library), m_settings({"Empty", chain, set}, m_trial),
          m_subject(m_library, m_settings, 120.0) {}

    const Tessitor::Tool::CSubject &subject() const { return m_subject; }

private:
    Tessitor::Tool::CEffectLibrary m_library;
    Tessitor::Tool::CEffectInstance m_trial;
    Tessitor::Tool::CEffectSettings m_settings;
    Tessitor::Tool::CSubject m_subject;
};
