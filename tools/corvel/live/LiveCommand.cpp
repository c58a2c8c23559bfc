#include "corvel/live/LiveCommand.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/console/Print.h"
#include "corvel/console/Printable.h"
#include "corvel/console/Text.h"
#include "corvel/live/CLiveSession.h"
#include "corvel/presets/PresetCommand.h"
#include "corvel/presets/PresetFile.h"
#include "corvel/render/Render.h"

#include <algorithm>

namespace Tessitor::Tool {

namespace {

/// What the arguments mean for the effect.
struct SLivePlan {
    CEffectSettings settings;
    SLiveMidi midi;
};

void printLine(const SLiveCall &call, const std::string &line) {
    if (!call.json)
        print(printable(line) + "\n");
}

void connect(CJackClient &client) {
    const std::vector<std::string> missing = client.connectToSystem();
    if (missing.empty())
        return;
    const std::string what = missing.size() == 1 ? missing.front() : "inputs and no outputs";
    printRemark("note: the system has no " + what + " to connect to");
}

void printNotes(const CEffectSettings &settings, const CJackClient &client,
                const CEffectInstance &effect) {
    for (const std::string &note : settings.notes())
        printRemark(note);
    if (hasChain(effect) && client.sampleRate() != stripRate)
        printRemark("note: the server runs at " + std::to_string(client.sampleRate()) +
                    " Hz, but the strip is tuned for 44100 Hz");
}

std::string counted(std::uint64_t number, const std::string &thing) {
    return (number == 0 ? "no" : std::to_string(number)) + " " + thing + (number == 1 ? "" : "s");
}

const char *nameOf(ELiveEnd end) {
    switch (end) {
    case ELiveEnd::Interrupted:
        return "interrupted";
    case ELiveEnd::TimeIsUp:
        return "seconds";
    case ELiveEnd::EditorClosed:
        return "editor closed";
    case ELiveEnd::ServerGone:
        break;
    }
    return "server gone";
}

void printResult(const SLiveCall &call, const CLiveRack &rack, const CJackClient &client,
                 CEffectInstance &effect, ELiveEnd end) {
    if (!call.json) {
        print(decimal(rack.secondsPlayed(), 1) + " s played, " + counted(client.xruns(), "xrun") +
              "\n");
        return;
    }
    printJson({{"effect", effect.fileName()},
               {"client", client.name()},
               {"program", effect.text(effGetProgramName)},
               {"sampleRate", client.sampleRate()},
               {"blockFrames", client.blockFrames()},
               {"seconds", rack.secondsPlayed()},
               {"xruns", client.xruns()},
               {"nonFiniteSamples", rack.nonFiniteSamples()},
               {"lostMessages", rack.lostMessages()},
               {"end", nameOf(end)}});
}

void printWarnings(const CLiveRack &rack) {
    if (rack.nonFiniteSamples() > 0)
        printRemark("warning: " + counted(rack.nonFiniteSamples(), "input sample") +
                    " infinite or not a number, played as 0");
    if (rack.lostMessages() > 0)
        printRemark("warning: " + counted(rack.lostMessages(), "MIDI message") +
                    " lost, since too many came at once");
}

SLivePlan planOf(const SLiveCall &call, const CEffectLibrary &library) {
    CEffectInstance trial(library);
    requireRenderable(trial, {});
    if (call.editor)
        requireEditor(trial);
    if (call.savePreset) {
        requirePresets(trial);
        requireWritable(*call.savePreset, call.force);
    }
    const CEffectSettings settings(call.settings, trial);
    return {settings, {CControllers(call.controllers, trial), call.channel}};
}

SJackOptions jackOptionsOf(const SLiveCall &call, const CEffectInstance &effect) {
    SJackOptions options = call.jack;
    options.midi = call.midi || !call.controllers.empty();
    options.latency = std::max(0, effect.record().initialDelay);
    return options;
}

/// Plays from the start to the end of a session.
/// @param rack  of the effect.
ELiveEnd play(const SLiveCall &call, CEffectInstance &effect, CLiveRack &rack, CJackClient &client,
              CEditorWindow *editor) {
    client.activate(rack);
    if (call.connects)
        connect(client);
    CLiveSession session(effect, rack, client, editor,
                         [&](const std::string &line) { printLine(call, line); });
    session.start();
    printLine(call, client.name() + " plays " + inQuotes(effect.text(effGetProgramName)) + " at " +
                        session.format() + "; Ctrl-C ends it");
    return session.run(call.seconds);
}

}  // namespace

int runLive(const SLiveCall &call) {
    setProcessLevelOfThread(kVstProcessLevelUser);
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    const SLivePlan plan = planOf(call, library);

    // Each uses those above it, so they go in the opposite order.
    CEffectInstance effect(library);
    plan.settings.applyTo(effect);
    CLiveRack rack(effect, plan.midi, call.tempo);
    CJackClient client(jackOptionsOf(call, effect));
    std::optional<CEditorWindow> editor;
    if (call.editor)
        editor.emplace(effect);

    printNotes(plan.settings, client, effect);
    noteInterrupts();
    const ELiveEnd end = play(call, effect, rack, client, editor ? &*editor : nullptr);
    printResult(call, rack, client, effect, end);
    printWarnings(rack);
    if (call.savePreset)
        savePreset(*call.savePreset, effect, call.force);
    if (end == ELiveEnd::ServerGone)
        throw CJobError("the JACK server has shut down");
    return 0;
}

}  // namespace Tessitor::Tool
