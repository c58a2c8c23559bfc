#include "corvel/commandline/PresetOptions.h"

#include "corvel/commandline/SettingsOptions.h"
#include "corvel/console/Errors.h"

namespace Tessitor::Tool {

namespace {

constexpr const char *presetHelp = R"(
Formats, by the file's ending
  .fxp   one program, as hosts load and save it
  .fxb   a bank of twenty programs, as hosts load and save it
  .json  a program or a bank as text to read and edit: the program's name, the chain as a list
         of modules, and every parameter in its own unit, as in "CmpThresh": "-20.10 dB".
         Values have as many decimals as they need: the text and the other formats can be
         converted to each other without any loss. A value that its unit cannot express, like
         a switch between two positions, is written {"shown": "On", "normalised": 0.7}.

  FILE:N is program N of a bank, from 0.

Every preset is checked before it is used. A file that is damaged, from another effect or has
values outside the range is refused, and nothing of it reaches the effect.

Examples
  corvel preset save voice.fxp --program "Lead Vocal" --set CmpThresh=-24dB
  corvel preset convert voice.fxp voice.json
  corvel preset show bank.fxb:3
  corvel render voice.wav out.wav --preset voice.json
)";

CLI::App *addShow(CLI::App &preset, SPresetShowCall &call) {
    CLI::App *show = preset.add_subcommand("show", "Show a program's settings, or list a bank");
    show->add_option("FILE", call.file, "FILE or FILE:N")->required()->type_name("");
    show->add_flag("--json", call.json, "Print the JSON form");
    return show;
}

CLI::App *addSave(CLI::App &preset, SPresetSaveCall &call) {
    CLI::App *save = preset.add_subcommand(
        "save", "Save settings as a preset; .fxb saves all programs of the effect");
    save->add_option("FILE", call.file, "The preset to write")->required()->type_name("");
    addSettings(*save, call.settings);
    save->add_flag("--force", call.force, "Replace an existing file");
    save->add_option("--plugin", call.plugin, "The effect's file")->type_name("FILE");
    return save;
}

CLI::App *addConvert(CLI::App &preset, SPresetConvertCall &call) {
    CLI::App *convert = preset.add_subcommand("convert", "Convert a preset to another format");
    convert->add_option("IN", call.in, "FILE or FILE:N")->required()->type_name("");
    convert->add_option("OUT", call.out, "The preset to write")->required()->type_name("");
    convert->add_flag("--force", call.force, "Replace an existing file");
    return convert;
}

CLI::App *addCheck(CLI::App &preset, SPresetCheckCall &call) {
    CLI::App *check = preset.add_subcommand("check", "Check that presets can be used");
    check->add_option("FILES", call.files, "The presets")->required()->type_name("");
    return check;
}

}  // namespace

CPresetOptions::CPresetOptions(CLI::App &app)
    : m_preset(app.add_subcommand("preset", "Show, save, convert and check preset files")),
      m_show(addShow(*m_preset, m_showCall)), m_save(addSave(*m_preset, m_saveCall)),
      m_convert(addConvert(*m_preset, m_convertCall)), m_check(addCheck(*m_preset, m_checkCall)) {
    m_preset->require_subcommand(0, 1);
    m_preset->footer(presetHelp);
}

int CPresetOptions::run() const {
    if (m_show->parsed())
        return runPresetShow(m_showCall);
    if (m_save->parsed())
        return runPresetSave(m_saveCall);
    if (m_convert->parsed())
        return runPresetConvert(m_convertCall);
    if (m_check->parsed())
        return runPresetCheck(m_checkCall);
    throw CCallError("preset: no command; use show, save, convert or check");
}

}  // namespace Tessitor::Tool
