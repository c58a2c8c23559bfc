#pragma once

#include <stdexcept>

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

}  // namespace Tessitor::Tool
