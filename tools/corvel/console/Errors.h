#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace Tessitor::Tool {

/// The command line names something that does not exist or contradicts itself: exit status 2.
class CCallError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A valid command could not be carried out: exit status 1. The text starts with the file name.
class CJobError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// @return the reason for the user: the text of our own errors, and never that of a library.
std::string reasonOf(const std::exception &error);

}  // namespace Tessitor::Tool
