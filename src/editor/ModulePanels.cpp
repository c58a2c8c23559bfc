#include "editor/ModulePanels.h"

namespace Tessitor::Corvel::PanelDescriptions {

namespace {

constexpr int centred = SPanelControl::centred;
constexpr EPanelControl knob = EPanelControl::Knob, menuKnob = EPanelControl::MenuKnob,
                        button = EPanelControl::Button;

constexpr SPanelControl balanceControls[] = {
    {"Balance", "0", knob, centred, 0, kBalanceImage},
};
constexpr SPanelControl panControls[] = {
    {"Pan", "0", knob, centred, 0, kPanImage},
};
constexpr SPanelControl gainControls[] = {
    {"Gain", "0.0dB", knob, centred, 0, kLevelImage},
};
constexpr SPanelControl equaliserControls[] = {
    {"Lo", "0dB", knob, centred, 2, kCutAndBoostImage},
    {"Mid", "0dB", knob, centred, 1, kCutAndBoostImage},
    {"Hi", "0dB", knob, centred, 0, kCutAndBoostImage},
    {"LoXOver", "100Hz", knob, 0, 3, kPlainImage},
    {"HiXOver", "1600Hz", knob, 1, 3, kPlainImage},
};
constexpr SPanelControl rumbleControls[] = {
    {"Rumble", "5Hz", knob, centred, 0, kAmountImage},
};
constexpr SPanelControl hiPassControls[] = {
    {"HiPass", "100Hz", knob, centred, 0, kAmountImage},
};
constexpr SPanelControl presenceControls[] = {
    {"Freq", "1000Hz", knob, 0, 0, kPlainImage},
    {"Gain", "0dB", knob, 1, 0, kCutAndBoostImage},
};
constexpr SPanelControl parametricControls[] = {
    {"Freq", "100Hz", knob, 0, 0, kPlainImage},
    {"BW", "0.125Oct", knob, 1, 0, kWidthImage},
    {"Gain", "0dB", knob, centred, 1, kCutAndBoostImage},
};
constexpr SPanelControl gateControls[] = {
    {"Threshold", "-30dB", knob, centred, 0, kPlainImage},
    {"Attack", "10ms", knob, 0, 1, kTimeImage},
    {"Release", "50ms", knob, 1, 1, kTimeImage},
};
constexpr SPanelControl compressorControls[] = {
    {"Threshold", "-60dB", knob, 0, 0, kThresholdImage},
    {"Attack", "1ms", knob, 0, 1, kTimeImage},
    {"Release", "20ms", knob, 1, 1, kTimeImage},
    {"Ratio", "1:1", knob, 1, 0, kLevelImage},
    {"MakeUp", "0dB", knob, centred, 2, kCutAndBoostImage},
    {"Channels", "Off", button, centred, 3, kButtonUpImage},
};
constexpr SPanelControl deEsserControls[] = {
    {"Threshold", "-60dB", knob, 0, 0, kThresholdImage},
    {"Speed", "0", knob, 1, 1, kTimeImage},
    {"Ratio", "1:1", knob, 1, 0, kLevelImage},
    {"Freq", "1000Hz", knob, 0, 1, kPlainImage},
    {"Band", "Wide", button, centred, 2, kButtonUpImage},
    {"Listening", "DeEsser", button, centred, 3, kButtonUpImage},
};
constexpr SPanelControl modulatorControls[] = {
    {"ModType", "Vibrato", menuKnob, centred, 0, kModulationImage},
    {"Width", "5ms", knob, 0, 1, kPlainImage},
    {"Depth", "0%", knob, 1, 1, kAmountImage},
    {"Speed", "0.2Hz", knob, 0, 2, kAmountImage},
    {"Spread", "0%", knob, 1, 2, kSpreadImage},
    {"FdBck", "0%", knob, 0, 3, kLevelImage},
    {"Mix", "0%", knob, 1, 3, kWidthImage},
};
constexpr SPanelControl warmerControls[] = {
    {"Warmer", "0%", knob, centred, 0, kLevelImage},
};
constexpr SPanelControl delayControls[] = {
    {"Time", "50ms", knob, 0, 0, kPlainImage},   {"Sync", "ms", menuKnob, 0, 1, kDelayTypeImage},
    {"Feedback", "0%", knob, 1, 0, kLevelImage}, {"PingPong", "Off", button, 1, 1, kButtonUpImage},
    {"Dry", "0%", knob, 0, 2, kPlainImage},      {"Wet", "0%", knob, 1, 2, kPlainImage},
};
constexpr SPanelControl reverbControls[] = {
    {"RoomSize", "1m", knob, 0, 0, kAmountImage}, {"Time", "0.2s", knob, 0, 1, kWidthImage},
    {"Brite", "0%", knob, 1, 0, kPlainImage},     {"WallDamp", "0%", knob, 1, 1, kPlainImage},
    {"Spread", "0%", knob, 0, 2, kSpreadImage},   {"InputLev", "0%", knob, 1, 2, kAmountImage},
    {"ER Lev", "0%", knob, 0, 3, kAmountImage},   {"Tail Lev", "0%", knob, 1, 3, kAmountImage},
};

constexpr SPanelMenuItem modulatorMenuItems[] = {{"Vibrato", -2}, {"ADT", -1}, {"Phaser", 0}};
// Kept: the order is not that of the values.
constexpr SPanelMenuItem delayMenuItems[] = {
    {"Fixed Time", -3}, {"4th / Crotchet", -1}, {"8th / Quaver", -2}};

}  // namespace

constinit const SPanelMenu modulatorMenu = {modulatorMenuItems, 75, 36};
constinit const SPanelMenu delayMenu = {delayMenuItems, 100, 36};

constinit const SModulePanel balance = {"CBalancePanel", balanceControls};
constinit const SModulePanel pan = {"CPanPanel", panControls};
constinit const SModulePanel gain = {"CGainPanel", gainControls};
constinit const SModulePanel equaliser = {"CEQPanel", equaliserControls};
constinit const SModulePanel rumble = {"CRumblePanel", rumbleControls};
constinit const SModulePanel hiPass = {"CHiPassPanel", hiPassControls};
constinit const SModulePanel presence = {"CPresencePanel", presenceControls};
constinit const SModulePanel parametric = {"CParametricPanel", parametricControls};
constinit const SModulePanel gate = {"CGatePanel", gateControls};
constinit const SModulePanel compressor = {"CCompressorPanel", compressorControls};
constinit const SModulePanel deEsser = {"CDeEsserPanel", deEsserControls};
constinit const SModulePanel modulator = {"CModPanel", modulatorControls};
constinit const SModulePanel warmer = {"CWarmerPanel", warmerControls};
constinit const SModulePanel delay = {"CDelayPanel", delayControls};
constinit const SModulePanel reverb = {"CReverbPanel", reverbControls};

}  // namespace Tessitor::Corvel::PanelDescriptions
