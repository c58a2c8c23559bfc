#pragma once

#include "corvel/batch/Jobs.h"
#include "corvel/render/Render.h"
#include "corvel/settings/CEffectSettings.h"

#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

// Each command prints its result to standard output and errors to standard error, and returns the
// exit status. Before it starts working it may throw CCallError or CJobError.

struct SRenderCall {
    std::optional<std::string> plugin;  // the effect file; by default the one next to the program
    SFileRequest files;
    SSettingsRequest settings;
    SRenderOptions options;
    bool skipExisting = false;              // outputs that are newer than their inputs
    std::optional<std::size_t> jobs;        // files at a time; by default one on each core
    bool dryRun = false;                    // only print what would be done
    bool quiet = false;                     // print only errors, and JSON if asked for
    bool verbose = false;                   // describe also how the files were processed
    std::optional<std::string> savePreset;  // file to save the settings to
    std::optional<std::string> plot;        // what namePictures() takes
    bool json = false;
};
int runRender(const SRenderCall &call);

struct SProgramsCall {
    std::optional<std::string> plugin;
    bool describe = false;  // say what each program is for
    bool json = false;
};
int runPrograms(const SProgramsCall &call);

struct SParamsCall {
    std::optional<std::string> plugin;
    std::optional<std::string> program;
    bool json = false;
};
int runParams(const SParamsCall &call);

struct SInfoCall {
    std::optional<std::string> plugin;
    bool json = false;
};
int runInfo(const SInfoCall &call);

}  // namespace Tessitor::Tool
