#include "corvel/commandline/PlotOptions.h"

#include "corvel/commandline/CallErrors.h"
#include "corvel/commandline/CommonOptions.h"
#include "corvel/commandline/SettingsOptions.h"
#include "corvel/commandline/Validators.h"

namespace Tessitor::Tool {

namespace {

constexpr const char *plotHelp = R"(
What is measured, at 44100 Hz and with the same signal in both inputs:

  Frequency response  Pink noise at --level. Each point is the gain of a band of a twelfth of
                      an octave, averaged over six seconds, so modulators show their mean and
                      the overtones of the warmer count as gain. A compressor or a gate shows
                      what it does at that level.
  Level               A steady tone from -60 to 0 dB, where 0 dB reaches full scale. The
                      default of 1 kHz hardly moves the de-esser; try --tone 6000.
  Decay               What is still to come after the noise has stopped, in decibels of all of
                      it. RT60 is the time for 60 dB, from a straight line between -5 and -35
                      dB. The loudest 50 ms of the tail are compared with those of the sound
                      before it.

Left and right are drawn separately where they differ.

An .svg shows light or dark colours, whichever the viewer prefers; a .png is light. --light and
--dark choose. An existing file is only replaced with --force.

--json prints all numbers, and then OUT may be missing. A level of null is silence.

Examples
  corvel plot lead.svg --program "Lead Vocal"
  corvel plot compressor.png --chain Compressor --set CmpThresh=-30dB --dark
  corvel plot --preset voice.fxp --json
)";

void addMeasurement(CLI::App &plot, SMeasurementOptions &options) {
    plot.add_option("--level", options.level, "Level of the noise, -80 to 0 dB RMS")
        ->type_name("DB")
        ->check(between(-80.0, 0.0))
        ->capture_default_str();
    plot.add_option("--tone", options.tone, "Frequency of the tone, 20 to 20000 Hz")
        ->type_name("HZ")
        ->check(between(20.0, 20000.0))
        ->capture_default_str();
    plot.add_option("--tempo", options.tempo, "Tempo in beats per minute, 10 to 1000")
        ->type_name("BPM")
        ->check(between(10.0, 1000.0))
        ->capture_default_str();
}

void addPicture(CLI::App &plot, SPlotCall &call) {
    CLI::Option *light = plot.add_flag_callback(
        "--light", [&call] { call.theme = ETheme::Light; }, "Always draw light colours");
    plot.add_flag_callback(
            "--dark", [&call] { call.theme = ETheme::Dark; }, "Always draw dark colours")
        ->excludes(light);
    plot.add_option("--scale", call.scale, "Size of a .png, 1 to 8; 1 is 1200 x 900 pixels")
        ->type_name("N")
        ->check(between(1.0, 8.0))
        ->default_str("2");
    plot.add_flag_callback(
        "--force", [&call] { call.existing = EExisting::Replaced; }, "Replace an existing picture");
}

}  // namespace

SCommand addPlot(CLI::App &app, SPlotCall &call) {
    CLI::App &plot =
        *app.add_subcommand("plot", "Draw the effect's frequency response, level curve and decay");
    plot.add_option("OUT", call.picture, "The picture to write, .svg or .png")->type_name("");
    addSettings(plot, call.settings);
    addMeasurement(plot, call.measurement);
    addPicture(plot, call);
    addPlugin(plot, call.plugin);
    addJson(plot, call.json);
    plot.footer(plotHelp);
    return {&plot, [&call] {
                if (call.picture)
                    call.picture = namesAsTyped({*call.picture}).front();
                return runPlot(call);
            }};
}

}  // namespace Tessitor::Tool
