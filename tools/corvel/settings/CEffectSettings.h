#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "corvel/settings/CAutomation.h"
#include "corvel/settings/Chain.h"
#include "corvel/settings/StripSteps.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tessitor::Tool {

/// The effect settings on the command line.
struct SSettingsRequest {
    std::optional<std::string> program;     // number or name
    std::optional<std::string> chain;       // module labels
    std::vector<std::string> set;           // "NAME=VALUE"
    std::optional<std::string> preset{};    // FILE or FILE:N, instead of a program
    std::optional<std::string> automate{};  // file of a CAutomation
};

/// @return the name of a program; empty if the effect has none for it.
std::string programName(CEffectInstance &effect, std::int32_t program);

/// @param text  a number from 0, or a name in upper or lower case. It may be shortened as long as
///              only one program begins with it.
/// @throws CCallError if the effect has no such program, or several.
std::int32_t programFromText(CEffectInstance &effect, const std::string &text);

/// @param option  that names the parameter, for the error.
/// @param name    in upper or lower case.
/// @throws CCallError if the effect has no such parameter.
std::int32_t parameterFromName(CEffectInstance &effect, const std::string &option,
                               std::string_view name);

/// A request, resolved once and then applied to any number of instances.
class CEffectSettings {
public:
    /// A parameter's value, and how the effect displays it.
    struct SAssignment {
        std::int32_t index;
        float value;  // normalised
        std::string name;
        std::string display;  // with the unit
    };

    /// @param trial  an instance to look up names and try values on. In the end the request is
    ///               applied to it, too.
    /// @throws CCallError if the effect has no such program, module, parameter or value; CJobError
    ///         if the preset cannot be used.
    CEffectSettings(const SSettingsRequest &request, CEffectInstance &trial);

    /// @param effect  must be new: the sound of some modules depends on earlier values, such as
    ///                those that were tried on the other instance.
    void applyTo(CEffectInstance &effect) const;

    const std::string &programName() const { return m_programName; }
    const std::optional<Chain> &chain() const { return m_chain; }  ///< none for other effects
    const std::vector<SAssignment> &assignments() const { return m_assignments; }
    const std::optional<CAutomation> &automation() const { return m_automation; }
    const std::vector<std::string> &notes() const { return m_notes; }  ///< one line each

private:
    void loadProgram(CEffectInstance &effect) const;
    void assign(const std::string &text, CEffectInstance &trial);
    void dropEarlier(std::int32_t index);
    void findSteps(bool isStrip, bool isSynchronised);

    std::optional<std::int32_t> m_program;
    std::optional<Corvel::SProgram> m_preset;
    std::optional<Chain> m_newChain;
    std::vector<SAssignment> m_assignments;
    std::vector<SStep> m_steps;  // that lead to the assigned values
    std::vector<std::string> m_notes;
    std::optional<CAutomation> m_automation;
    std::string m_programName;
    std::optional<Chain> m_chain;
};

}  // namespace Tessitor::Tool
