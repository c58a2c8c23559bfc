#include "corvel/CallErrors.h"
#include "corvel/Commands.h"
#include "corvel/Errors.h"
#include "corvel/Print.h"
#include "corvel/SettingsOptions.h"
#include "corvel/Text.h"
#include "corvel/presets/PresetOptions.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <functional>
#include <string>
#include <utility>

using namespace Tessitor::Tool;

namespace {

constexpr const char *generalHelp = R"(
The effect is the file named with --plugin. By default it is ../plugin/Corvel.so, seen from
this program's folder, or Corvel.so in the same folder.

Exit status: 0 on success, 1 if a job failed, 2 if the command line was wrong, 130 if it was
interrupted.

See corvel COMMAND --help for the options of a command.
)";

constexpr const char *renderHelp = R"(
Files
  OUT is a file, or a folder if it exists as one or ends in a slash. --out-dir names a folder
  instead, and then all FILES are inputs. In a folder, which is created if necessary, outputs
  are named after their inputs. Several inputs always need a folder; they are rendered on all
  cores, each through its own instance of the effect. If one fails, the others are still
  rendered.

  An existing file is only replaced with --force, and only when the output is complete: after
  a failure it is unchanged. It passes on its mode; a write-protected file is not replaced.
  --skip-existing passes over outputs that are newer than their inputs, so the same command
  continues a batch that was interrupted. A name that starts with a dash follows after "--".

  Inputs are WAV, AIFF, FLAC and Ogg files with one or two channels at any sample rate. The
  output keeps the rate of its input. A mono file is processed as if the host had connected
  only the left input. Its output is stereo, or with --mono the strip's mono sum.

  Samples that are infinite or not a number are rendered as 0, and a warning says how many.
  --keep-nan leaves them alone; they usually silence the rest of the file.

  The container is taken from --format, else from OUT's extension, else from the input. The
  sample type is taken from --format, else from the input, else it is the closest that the
  container supports. Integer formats clip samples beyond full scale, and a warning says how
  many; floating-point formats keep them.
    wav, aiff   8, 16, 24, 32, float, double
    flac        8, 16, 24
    ogg         vorbis, opus

Settings
  --set NAME=VALUE sets a parameter and may be repeated; of several values for one parameter
  the last one counts. corvel params lists the names and ranges; case does not matter. A
  VALUE is a text as the effect displays it, with its unit: -18dB, "120 Hz", "1.2 kHz",
  3:1, Linked, 100:80. If several values display that text, the middle one is used, or 0, 1
  or 0.5 if it is among them. If no value displays it, the closest displayed number is used.
  A number outside the range is an error. @VALUE is the normalised value from 0 to 1 that
  hosts store; so is a plain number from 0 to 1.

  What is asked for is what is heard, whatever the order: a hard pan is reached through a
  position in between, as by hand, and DlySync wins over DlyTime.

  --chain lists the modules in running order, separated by commas: Balance, Pan, Gain,
  3Band, Rumble Filter, HiPass, Presence, Parametric, Gate, Compressor, DeEsser,
  Modulator 1, Modulator 2, Warmer, Delay, Reverb. Each may appear only once; "none" is the
  empty chain.

  A program's name may be shortened as long as only one begins with it. --preset loads a
  program from an .fxp, .fxb or JSON file instead of --program; FILE:N is program N of a bank.
  --save-preset saves the settings to a new file, ready for --preset. See corvel preset --help.
  The program or preset is set first, then the chain, then the parameters.

Precision and blocks
  With --double the compressor and the de-esser stay at rest: the strip has them only in
  single precision. --block changes the sound if the compressor is in use and CmpLink is
  Separate; otherwise it does not.

Examples
  corvel render voice.wav out.wav --program "Lead Vocal" --set CmpThresh=-24dB
  corvel render *.flac mixed/ --chain "Rumble Filter,Compressor" --format wav:24
  corvel render phone.wav out.wav --resample --json
)";

/// A subcommand and the function that runs it.
struct SCommand {
    CLI::App *app;
    std::function<int()> run;
};

// CLI::Range accepts a NaN.
CLI::Validator between(double low, double high) {
    return {[=](std::string &text) -> std::string {
                double number = 0.0;
                if (CLI::detail::lexical_cast(text, number) && number >= low && number <= high)
                    return {};
                return text + " is not a number from " + decimal(low, 0) + " to " +
                       decimal(high, 0);
            },
            ""};
}

CLI::Validator wholeNumber() {
    return {[](std::string &text) -> std::string {
                int number = 0;
                if (CLI::detail::lexical_cast(text, number))
                    return {};
                return text + " is not a whole number";
            },
            ""};
}

void addPlugin(CLI::App &app, std::optional<std::string> &plugin) {
    app.add_option("--plugin", plugin, "The effect's file")->type_name("FILE");
}

void addJson(CLI::App &app, bool &json) {
    app.add_flag("--json", json, "Print the result as JSON");
}

SCommand addRender(CLI::App &app, SRenderCall &call) {
    CLI::App &render = *app.add_subcommand("render", "Render audio files through the effect");
    SRenderOptions &options = call.options;
    render.add_option("FILES", call.files.files, "IN ... OUT: one or more inputs and the output")
        ->type_name("");
    render.add_option("--out-dir", call.files.folder, "Folder for the outputs; FILES are inputs")
        ->type_name("DIR");
    render.add_flag_callback(
        "--force", [&options] { options.existing = EExisting::Replaced; },
        "Replace existing outputs");
    render.add_flag("--skip-existing", call.skipExisting,
                    "Skip outputs that are newer than their inputs");
    addSettings(render, call.settings);
    render.add_option("--save-preset", call.savePreset, "Save the settings as a new preset")
        ->type_name("FILE");
    render.add_option("--tempo", options.tempo, "Tempo in beats per minute, 10 to 1000")
        ->type_name("BPM")
        ->check(between(10.0, 1000.0))
        ->capture_default_str();
    render.add_option("--block", options.blockSize, "Frames per block, up to 1048576")
        ->type_name("N")
        ->check(wholeNumber())
        ->check(between(1, 1 << 20))
        ->capture_default_str();
    render
        .add_option("--tail", options.tailSeconds,
                    "Keep rendering past the end of the input, up to an hour")
        ->type_name("SECONDS")
        ->check(between(0.0, 3600.0));
    render
        .add_option_function<std::string>(
            "--format",
            [&options](const std::string &text) { options.format = formatFromText(text); },
            "Container and sample type of the output")
        ->type_name("CONTAINER[:TYPE]");
    render.add_flag("--double", options.doublePrecision,
                    "Process in double precision; compressor and de-esser stay at rest");
    render.add_flag("--resample", options.resample,
                    "Process at 44100 Hz, which the strip is tuned for, and convert back");
    render.add_flag("--mono", options.mono,
                    "Write a mono file as the mono sum of the strip's output");
    render.add_flag("--keep-nan", options.keepNan,
                    "Keep samples that are infinite or not a number");
    addPlugin(render, call.plugin);
    addJson(render, call.json);
    render.footer(renderHelp);
    return {&render, [&call] {
                call.files.files = namesAsTyped(std::move(call.files.files));
                return runRender(call);
            }};
}

SCommand addPrograms(CLI::App &app, SProgramsCall &call) {
    CLI::App &programs = *app.add_subcommand("programs", "List the effect's programs");
    programs.add_flag("--describe", call.describe, "Say what each program is for");
    addPlugin(programs, call.plugin);
    addJson(programs, call.json);
    return {&programs, [&call] { return runPrograms(call); }};
}

SCommand addParams(CLI::App &app, SParamsCall &call) {
    CLI::App &params = *app.add_subcommand("params", "List the effect's parameters");
    params.add_option("--program", call.program, "Show the values of this program")
        ->type_name("N|NAME");
    addPlugin(params, call.plugin);
    addJson(params, call.json);
    return {&params, [&call] { return runParams(call); }};
}

SCommand addInfo(CLI::App &app, SInfoCall &call) {
    CLI::App &info = *app.add_subcommand("info", "Show what a host sees of an effect");
    CLI::Option *file =
        info.add_option("FILE", call.plugin, "The effect's file; by default the one beside corvel")
            ->type_name("");
    info.add_option("--plugin", call.plugin, "The same")->type_name("FILE")->excludes(file);
    addJson(info, call.json);
    return {&info, [&call] { return runInfo(call); }};
}

SCommand addPreset(CPresetOptions &options) {
    return {options.app(), [&options] { return options.run(); }};
}

int parseAndRun(int argc, char **argv) {
    CLI::App app("Runs the Corvel channel strip without a host program.", "corvel");
    app.require_subcommand(0, 1);
    app.set_version_flag("--version", "corvel " CORVEL_VERSION);
    app.footer(generalHelp);

    SRenderCall render;
    SProgramsCall programs;
    SParamsCall params;
    SInfoCall info;
    CPresetOptions preset(app);
    const SCommand commands[] = {addRender(app, render), addPrograms(app, programs),
                                 addParams(app, params), addInfo(app, info), addPreset(preset)};
    try {
        app.parse(argumentsForParser(argc, argv));
    } catch (const CLI::Success &help) {
        return app.exit(help);
    } catch (const CLI::ParseError &error) {
        throw CCallError(describe(error));
    }
    for (const SCommand &command : commands)
        if (command.app->parsed())
            return command.run();
    throw CCallError(
        "no command; use render, programs, params, info or preset (see corvel --help)");
}

// If standard output is closed, the next file that is opened would take its place, and our report
// would be written into it.
void reserveStandardStreams() {
    for (int stream = 0; stream < 3; ++stream)
        std::fopen("/dev/null", "rb");
}

int runAndReport(int argc, char **argv) {
    try {
        return parseAndRun(argc, argv);
    } catch (const CCallError &error) {
        printRemark(error.what());
        return 2;
    } catch (const std::exception &error) {
        printRemark(reasonOf(error));
        return 1;
    }
}

}  // namespace

int main(int argc, char **argv) {
    reserveStandardStreams();
    const int status = runAndReport(argc, argv);
    if (isAllPrinted() || status != 0)
        return status;
    printRemark("the result cannot be printed: standard output does not accept it");
    return 1;
}
