#pragma once

#include "corvel/settings/CEffectSettings.h"

#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

// Each command prints its result to standard output and errors to standard error, and returns the
// exit status. It may throw CCallError or CJobError.

struct SPresetShowCall {
    std::string file;  // FILE or FILE:N
    bool json = false;
};
int runPresetShow(const SPresetShowCall &call);

struct SPresetSaveCall {
    std::optional<std::string> plugin;
    std::string file;
    SSettingsRequest settings;
    bool force = false;
};
int runPresetSave(const SPresetSaveCall &call);

struct SPresetConvertCall {
    std::string in;  // FILE or FILE:N
    std::string out;
    bool force = false;
};
int runPresetConvert(const SPresetConvertCall &call);

struct SPresetCheckCall {
    std::vector<std::string> files;
};
int runPresetCheck(const SPresetCheckCall &call);

/// Saves the program that the settings make, or for an .fxb file all programs of the effect.
/// @throws CCallError if the effect is not a channel strip or the ending is unknown, CJobError if
///         the file cannot be written.
void savePreset(const std::string &file, const CEffectLibrary &library,
                const CEffectSettings &settings, bool replace);

/// @throws CCallError if the effect is not a channel strip.
void requirePresets(const CEffectInstance &effect);

/// Saves the current program of an effect, or for an .fxb file all its programs.
/// @param effect  must pass requirePresets().
void savePreset(const std::string &file, CEffectInstance &effect, bool replace);

}  // namespace Tessitor::Tool
