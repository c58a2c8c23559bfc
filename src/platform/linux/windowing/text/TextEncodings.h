#pragma once

#include <string>
#include <string_view>

/// @param text  in Latin-1.
std::string utf8FromLatin1(std::string_view text);
/// @return with "?" for each character that Latin-1 lacks.
std::string latin1FromUtf8(const std::string &text);
