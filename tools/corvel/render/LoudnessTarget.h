#pragma once

#include <string>

namespace Tessitor::Tool {

enum class ELoudnessUnit { Lufs, Dbtp };

/// What --normalize asks for: an integrated loudness or a true peak.
struct SLoudnessTarget {
    double value;
    ELoudnessUnit unit;
};

/// @param text  a number from -60 to 0 and a unit: "-16LUFS", "-1 dBTP", in any capitals.
/// @throws CCallError if it is anything else.
SLoudnessTarget targetFromText(const std::string &text);

/// @return "-16 LUFS" or "-1 dBTP".
std::string toText(const SLoudnessTarget &target);

}  // namespace Tessitor::Tool
