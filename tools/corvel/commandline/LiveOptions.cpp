#include "corvel/commandline/LiveOptions.h"

#include "corvel/commandline/CommonOptions.h"
#include "corvel/commandline/LiveHelp.h"
#include "corvel/commandline/SettingsOptions.h"
#include "corvel/commandline/Validators.h"

namespace Tessitor::Tool {

namespace {

void addServer(CLI::App &live, SLiveCall &call) {
    live.add_option("--name", call.jack.name, "Name of the JACK client")
        ->type_name("NAME")
        ->check(CLI::Validator([](std::string &text) { return problemOfClientName(text); }, ""))
        ->capture_default_str();
    live.add_option("--server", call.jack.server, "Name of the JACK server, if not the usual one")
        ->type_name("NAME");
    live.add_flag_callback(
        "--no-connect", [&call] { call.connects = false; }, "Leave the ports unconnected");
}

void addMidi(CLI::App &live, SLiveCall &call) {
    live.add_flag("--midi", call.midi, "Listen to MIDI: program changes and --cc");
    live.add_option("--cc", call.controllers, "Set a parameter by a MIDI controller")
        ->type_name("NUMBER=PARAMETER")
        ->allow_extra_args(false);
    live.add_option("--channel", call.channel, "Listen to this MIDI channel only, 1 to 16")
        ->type_name("N")
        ->check(wholeNumber())
        ->check(between(1, 16));
}

}  // namespace

SCommand addLive(CLI::App &app, SLiveCall &call) {
    CLI::App &live = *app.add_subcommand("live", "Play live, as a JACK client");
    addSettings(live, call.settings);
    addServer(live, call);
    addMidi(live, call);
    live.add_option("--tempo", call.tempo, "Tempo in beats per minute, 10 to 1000")
        ->type_name("BPM")
        ->check(between(10.0, 1000.0))
        ->capture_default_str();
    live.add_option("--seconds", call.seconds, "End after this long, up to 1000000")
        ->type_name("SECONDS")
        ->check(between(0.0, 1e6));
    live.add_flag("--editor", call.editor, "Open the effect's editor; closing it ends the program");
    live.add_option("--save-preset", call.savePreset, "In the end, save the settings as a preset")
        ->type_name("FILE");
    live.add_flag("--force", call.force, "Replace an existing preset");
    addPlugin(live, call.plugin);
    addJson(live, call.json);
    live.footer(liveHelp);
    return {&live, [&call] { return runLive(call); }};
}

}  // namespace Tessitor::Tool
