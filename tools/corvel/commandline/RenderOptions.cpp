#include "corvel/commandline/RenderOptions.h"

#include "corvel/commandline/CallErrors.h"
#include "corvel/commandline/CommonOptions.h"
#include "corvel/commandline/LoudnessOptions.h"
#include "corvel/commandline/PictureOptions.h"
#include "corvel/commandline/RenderHelp.h"
#include "corvel/commandline/SettingsOptions.h"
#include "corvel/commandline/StreamOptions.h"
#include "corvel/commandline/TimeOptions.h"
#include "corvel/commandline/Validators.h"

#include <utility>

namespace Tessitor::Tool {

namespace {

void addFiles(CLI::App &render, SRenderCall &call) {
    render.add_option("FILES", call.files.files, "IN ... OUT: one or more inputs and the output")
        ->type_name("");
    render.add_option("--out-dir", call.files.folder, "Folder for the outputs; FILES are inputs")
        ->type_name("DIR");
    render.add_option("--list", call.files.list, "Read more inputs from FILE, one per line")
        ->type_name("FILE");
    render.add_flag("--recursive", call.files.recursive,
                    "Render the audio files in folders and their sub-folders");
    render.add_option("--name", call.files.name, "How to name the outputs in the folder")
        ->type_name("PATTERN");
    render.add_flag_callback(
        "--force", [&call] { call.options.existing = EExisting::Replaced; },
        "Replace existing outputs");
    render.add_flag("--skip-existing", call.skipExisting,
                    "Skip outputs that are newer than their inputs");
}

void addBatch(CLI::App &render, SRenderCall &call) {
    render.add_option("--jobs", call.jobs, "Files to render at a time, 1 to 256 [all cores]")
        ->type_name("N")
        ->check(wholeNumber())
        ->check(between(1, 256));
    render.add_flag("--dry-run", call.dryRun, "Only print what would be written");
    CLI::Option *quiet = render.add_flag("--quiet", call.quiet, "Print only errors");
    render
        .add_flag_callback(
            "--verbose", [&call] { call.verbose = call.options.timed = true; },
            "Also print how each file was processed")
        ->excludes(quiet);
}

void addProcessing(CLI::App &render, SRenderOptions &options) {
    render.add_option("--tempo", options.tempo, "Tempo in beats per minute, 10 to 1000")
        ->type_name("BPM")
        ->check(between(10.0, 1000.0))
        ->capture_default_str();
    render.add_option("--block", options.blockSize, "Frames per block, up to 1048576")
        ->type_name("N")
        ->check(wholeNumber())
        ->check(between(1, 1 << 20))
        ->capture_default_str();
    render.add_flag("--double", options.doublePrecision,
                    "Process in double precision; compressor and de-esser stay at rest");
    render.add_flag("--resample", options.resample,
                    "Process at 44100 Hz, which the strip is tuned for, and convert back");
    render.add_flag("--keep-nan", options.keepNan,
                    "Keep samples that are infinite or not a number");
}

void addOutput(CLI::App &render, SRenderOptions &options) {
    render
        .add_option_function<std::string>(
            "--format",
            [&options](const std::string &text) { options.format = formatFromText(text); },
            "Container and sample type of the output")
        ->type_name("CONTAINER[:TYPE]");
    addLoudness(render, options);
}

}  // namespace

SCommand addRender(CLI::App &app, SRenderCall &call) {
    CLI::App &render = *app.add_subcommand("render", "Render audio files through the effect");
    addFiles(render, call);
    addSettings(render, call.settings);
    render.add_option("--automate", call.settings.automate, "Change parameters during the file")
        ->type_name("FILE");
    render.add_option("--save-preset", call.savePreset, "Save the settings as a new preset")
        ->type_name("FILE");
    addProcessing(render, call.options);
    addTime(render, call.options);
    addOutput(render, call.options);
    addPicture(render, call);
    addStream(render, call.options);
    addBatch(render, call);
    addPlugin(render, call.plugin);
    addJson(render, call.json);
    render.footer(renderHelp);
    return {&render, [&call] {
                call.files.files = namesAsTyped(std::move(call.files.files));
                if (call.files.name)
                    call.files.name = namesAsTyped({*call.files.name}).front();
                return runRender(call);
            }};
}

}  // namespace Tessitor::Tool
