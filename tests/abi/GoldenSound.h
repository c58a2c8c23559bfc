#pragma once

#include <string>
#include <vector>

/// Plays a generated signal through every factory program of the built plug-in, in single
/// precision: peak level, RMS level and a hash of all bits.
/// @return one line of text per program.
std::vector<std::string> goldenSound();
