#pragma once

#include <string>
#include <string_view>
#include <vector>

/// @param list      addresses as text/uri-list has them, from whatever program: a line each, and
///                  comments that begin with #.
/// @param hostName  of this computer.
/// @return the paths of the files of this computer, each below 2048 bytes. Other addresses are left
///         out.
std::vector<std::string> filesOfAddresses(std::string_view list, std::string_view hostName);
