#include "foundation/CaughtException.h"

#include "foundation/CException.h"
#include "foundation/DisplayMessage.h"
#include "foundation/Trace.h"

#include <exception>
#include <string>

namespace Tessitor::Exceptions {

namespace {

std::string describeCaughtException() {
    try {
        throw;
    } catch (const CException &caught) {
        return std::string(caught.getErrorReason().getString()) + "\n\n" +
               caught.getFunctionName().getString();
    } catch (const std::exception &caught) {
        return caught.what();
    } catch (...) {
        return "Unknown exception";
    }
}

template <typename Report>
void reportIfPossible(Report report) noexcept {
    try {
        report(describeCaughtException());
    } catch (...) {  // most likely out of memory
        return;
    }
}

}  // namespace

void traceCaughtException(const char *lead) noexcept {
    reportIfPossible([lead](const std::string &text) { IO::trace("%s: %s", lead, text.c_str()); });
}

void displayCaughtException(const char *caption) noexcept {
    reportIfPossible(
        [caption](const std::string &text) { displayMessage(text.c_str(), caption, true); });
}

}  // namespace Tessitor::Exceptions
