#pragma once

#include <string>

/// The display texts of the parameters, made from the value g that a module's getParameter returns.
/// They are the same on every system and in every locale. [any thread]
namespace ParameterTexts {

std::string none(float g);  ///< always empty

std::string whole(float g);  ///< no decimals
std::string twoDecimals(float g);
std::string decibels(float g);  ///< g in dB; "-oo" at -60 and below
std::string level(float g);     ///< g as a linear factor, shown in dB; "-oo" at 0.001 and below
std::string percent(float g);
std::string deEsserSpeed(float g);  ///< 100 for 0, 0 for 1
std::string ratio(float g);         ///< "4.0:1"
std::string roomSize(float g);

std::string balance(float g);  ///< "100:0" at 0, "100:100" in the middle, "0:100" at 1
std::string mix(float g);      ///< dry and wet percent, "30:70"

std::string monoMode(float g);
std::string link(float g);
std::string deEsserBand(float g);
std::string deEsserListen(float g);
std::string modulationType(float g);
std::string delaySync(float g);
std::string onOff(float g);

}  // namespace ParameterTexts
