#pragma once

#include <stdexcept>

namespace Tessitor::Tool {

/// The call asks for what does not exist or contradicts itself: exit status 2.
class CCallError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The call was right and could not be carried out: exit status 1. The text begins with the file.
class CJobError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace Tessitor::Tool
