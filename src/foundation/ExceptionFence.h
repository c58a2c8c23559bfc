#pragma once

#include <utility>

namespace Tessitor::Exceptions {

/// The texts that a fence adds to an exception that passes through it.
struct SFence {
    const char *lead;      ///< before the reason of a CException; ends in "more below\n\n"
    const char *unknown;   ///< reason for any other exception: "Caught unknown exception ..."
    const char *function;  ///< the signature of the fenced function
};

/// Call this while handling an exception: it throws a CException with the fence's texts. The reason
/// and function name of a caught CException follow the lead text, so a chain of fences reads from
/// the outermost operation down to the first failure.
[[noreturn]] void rethrowThrough(const SFence &fence);

/// Runs an operation inside a fence: anything that it throws becomes a CException.
///
///     constexpr SFence storing{"Caught exception during string storing, more below\n\n",
///                              "Caught unknown exception during string storing",
///                              "Tessitor::Basics::CString::setString"};
///     fenced(storing, [&] { replaceBlock(text); });
///
/// @return what the operation returns. Costs nothing unless something is thrown.
template <typename Operation>
decltype(auto) fenced(const SFence &fence, Operation &&operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        rethrowThrough(fence);
    }
}

}  // namespace Tessitor::Exceptions
