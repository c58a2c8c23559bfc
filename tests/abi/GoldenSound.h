#pragma once

#include <string>
#include <vector>

/// What every factory program makes of one generated signal, as the built plug-in plays it in
/// single precision: peak and RMS level, and a hash of every bit.
/// @return one line of text per program.
std::vector<std::string> goldenSound();
