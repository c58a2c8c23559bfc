#pragma once

#include <utility>

namespace Tessitor::Exceptions {

/// What a fence puts on top of a failure that passes through it.
struct SFence {
    const char *lead;      ///< above a CException: a text that ends in "more below\n\n"
    const char *unknown;   ///< for anything else: "Caught unknown exception ..."
    const char *function;  ///< the signature of the fenced function
};

/// For use where an exception is being handled: throws the CException that the fence makes of it.
/// A CException keeps its own reason and function name below the lead text, so that a chain of
/// fences reads from the outermost operation down to the first failure.
[[noreturn]] void rethrowThrough(const SFence &fence);

/// Runs an operation behind a fence; what it throws leaves as a CException.
///
///     constexpr SFence storing{"Caught exception during string storing, more below\n\n",
///                              "Caught unknown exception during string storing",
///                              "Tessitor::Basics::CString::setString"};
///     fenced(storing, [&] { replaceBlock(text); });
///
/// @return what the operation returns. Costs nothing while nothing is thrown.
template <typename Operation>
decltype(auto) fenced(const SFence &fence, Operation &&operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        rethrowThrough(fence);
    }
}

}  // namespace Tessitor::Exceptions
