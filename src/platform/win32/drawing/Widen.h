#pragma once

#include <string>

/// @param text  in the system's narrow encoding.
std::wstring widen(const char *text);
