#pragma once

#include "corvel/live/CJackClient.h"
#include "corvel/settings/CEffectSettings.h"

#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

struct SLiveCall {
    std::optional<std::string> plugin;  // the effect file; by default the one next to the program
    SSettingsRequest settings;
    SJackOptions jack;
    bool connects = true;                  // to the system's ports
    bool midi = false;                     // also if there are controllers
    std::vector<std::string> controllers;  // "NUMBER=PARAMETER"
    std::optional<int> channel;            // 1 to 16
    double tempo = 120.0;                  // beats per minute, if nobody on the server keeps time
    std::optional<double> seconds;         // to play
    bool editor = false;
    std::optional<std::string> savePreset;  // file to save the settings to, in the end
    bool force = false;                     // replace that file
    bool json = false;
};

/// Plays live until it is asked to end. Prints what it plays to standard output, and errors to
/// standard error.
/// @return the exit status.
/// @throws CCallError or CJobError before it starts to play.
int runLive(const SLiveCall &call);

}  // namespace Tessitor::Tool
