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

// A report's own strings may fail as well, for want of memory above all. Their fences then let it
// through: a report of that would fail in the same way, without end.
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
        // Taken by value, as everywhere: the class record counts the copy's end.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const CException caught(thrown);
        throw CException(reasonBelow(fence.lead, caught), fence.function, true);
    } catch (...) {
        throw CException(fence.unknown, fence.function, true);
    }
}

}  // namespace Tessitor::Exceptions
