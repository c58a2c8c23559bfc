#pragma once

#include "corvel/CEffectInstance.h"
#include "corvel/Chain.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tessitor::Tool {

/// What the call asks the effect to be.
struct SSettingsRequest {
    std::optional<std::string> program;  // number or name
    std::optional<std::string> chain;    // module labels
    std::vector<std::string> set;        // "NAME=VALUE"
};

/// @return the name of a program, empty if the effect gives none.
std::string programName(CEffectInstance &effect, std::int32_t program);

/// @param text  a number from 0, or a name in any capitals.
/// @throws CCallError if the effect has no such program.
std::int32_t programFromText(CEffectInstance &effect, const std::string &text);

/// A request worked out once and then applied to any number of instances alike.
class CEffectSettings {
public:
    /// A parameter as it was set, and as the effect shows it.
    struct SAssignment {
        std::int32_t index;
        float value;  // normalised
        std::string name;
        std::string display;  // with the unit
    };

    /// @param trial  an instance to try values on; afterwards it is as the request wants it.
    /// @throws CCallError if the effect has not what the request names.
    CEffectSettings(const SSettingsRequest &request, CEffectInstance &trial);

    /// To a fresh instance: each parameter is set once, so that none remembers a trial.
    void applyTo(CEffectInstance &effect) const;

    const std::string &programName() const { return m_programName; }
    const std::optional<Chain> &chain() const { return m_chain; }  ///< none without a chain
    const std::vector<SAssignment> &assignments() const { return m_assignments; }

private:
    SAssignment assignmentFromText(const std::string &text, CEffectInstance &trial) const;

    std::optional<std::int32_t> m_program;
    std::optional<Chain> m_newChain;
    std::vector<SAssignment> m_assignments;
    std::string m_programName;
    std::optional<Chain> m_chain;
};

}  // namespace Tessitor::Tool
