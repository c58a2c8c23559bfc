#pragma once

#include "corvel/presets/PresetCommand.h"

#include <CLI/CLI.hpp>

namespace Tessitor::Tool {

/// The command `preset` with its own commands.
class CPresetOptions {
public:
    /// @param app  keeps references to this object.
    explicit CPresetOptions(CLI::App &app);
    CPresetOptions(const CPresetOptions &) = delete;
    CPresetOptions &operator=(const CPresetOptions &) = delete;
    CLI::App *app() const { return m_preset; }
    int run() const;  ///< the command that was parsed

private:
    SPresetShowCall m_showCall;
    SPresetSaveCall m_saveCall;
    SPresetConvertCall m_convertCall;
    SPresetCheckCall m_checkCall;
    CLI::App *m_preset;
    CLI::App *m_show, *m_save, *m_convert, *m_check;  // owned by m_preset
};

}  // namespace Tessitor::Tool
