#pragma once

#include "editor/TMenuPanel.h"

namespace Tessitor::Corvel {

namespace PanelDescriptions {
extern const SModulePanel balance, pan, gain, equaliser, rumble, hiPass, presence, parametric, gate,
    compressor, deEsser, modulator, warmer, delay, reverb;
extern const SPanelMenu modulatorMenu, delayMenu;
}  // namespace PanelDescriptions

using CBalancePanel = TModulePanel<PanelDescriptions::balance>;
using CPanPanel = TModulePanel<PanelDescriptions::pan>;
using CGainPanel = TModulePanel<PanelDescriptions::gain>;
using CEQPanel = TModulePanel<PanelDescriptions::equaliser>;
using CRumblePanel = TModulePanel<PanelDescriptions::rumble>;
using CHiPassPanel = TModulePanel<PanelDescriptions::hiPass>;
using CPresencePanel = TModulePanel<PanelDescriptions::presence>;
using CParametricPanel = TModulePanel<PanelDescriptions::parametric>;
using CGatePanel = TModulePanel<PanelDescriptions::gate>;
using CCompressorPanel = TModulePanel<PanelDescriptions::compressor>;
using CDeEsserPanel = TModulePanel<PanelDescriptions::deEsser>;
using CModPanel = TMenuPanel<PanelDescriptions::modulator, PanelDescriptions::modulatorMenu>;
using CWarmerPanel = TModulePanel<PanelDescriptions::warmer>;
using CDelayPanel = TMenuPanel<PanelDescriptions::delay, PanelDescriptions::delayMenu>;
using CReverbPanel = TModulePanel<PanelDescriptions::reverb>;

}  // namespace Tessitor::Corvel
