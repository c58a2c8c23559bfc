#include "foundation/ExceptionFence.h"

#include "foundation/CException.h"

namespace Tessitor::Exceptions {

namespace {

Basics::CString reasonBelow(const char *lead, const CException &caught) {
    Basics::CString reason(lead);
    reason.appendString(caught.getErrorReason());
    reason.appendString("\n\n");
    reason.appendString(caught.getFunctionName());
    return reason;
}

// Building a report can run out of memory too. The fences of its strings then let the failure
// through: reporting it would fail in the same way, over and over.
thread_local bool isReporting = false;

struct SReporting {
    SReporting() { isReporting = true; }
    ~SReporting() { isReporting = false; }
};

}  // namespace

void rethrowThrough(const SFence &fence) {
    if (isReporting)
        throw;
    const SReporting reporting;
    try {
        throw;
    } catch (const CException &thrown) {
        // Kept: a copy, as if caught by value. It lowers the instance count of CException.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const CException caught(thrown);
        throw CException(reasonBelow(fence.lead, caught), fence.function, true);
    } catch (...) {
        throw CException(fence.unknown, fence.function, true);
    }
}

}  // namespace Tessitor::Exceptions
