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

// The strings of a report can run out of memory too. Their fences then let the failure through:
// another report would only fail in the same way, without end.
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
        // Caught by value, as everywhere: the copy shows in the class record.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const CException caught(thrown);
        throw CException(reasonBelow(fence.lead, caught), fence.function, true);
    } catch (...) {
        throw CException(fence.unknown, fence.function, true);
    }
}

}  // namespace Tessitor::Exceptions
