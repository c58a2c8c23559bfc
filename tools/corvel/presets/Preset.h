#pragma once

#include "effect/SProgram.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// The contents of a preset file: one program, or a bank of all twenty.
struct SPreset {
    std::vector<Corvel::SProgram> programs;
    std::size_t current = 0;  // the program of a bank that was in use

    bool isBank() const { return programs.size() > 1; }
    bool operator==(const SPreset &) const = default;
};

/// A preset cannot be used: the reason, without the file's name.
class CPresetError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Checks what the effect trusts: values from 0 to 1, a running order that comes to an end, links
/// to slots that exist, and a terminated name. Links that the running order does not use may lead
/// to any slot, since replacing a module in the editor leaves such links.
/// @throws CPresetError with the first fault. In a bank it names the program.
void requireSound(const SPreset &preset);

/// @return the name as UTF-8. Hosts store names in their own encoding: bytes that are not UTF-8 are
///         taken as Latin-1.
std::string nameOf(const Corvel::SProgram &program);

/// @return the parameter's name, also for the two that have none.
std::string parameterName(int id);

}  // namespace Tessitor::Tool
