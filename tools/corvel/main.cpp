#include "corvel/commandline/CommandLine.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Print.h"

#include <cstdio>
#include <exception>

using namespace Tessitor::Tool;

namespace {

// If standard output is closed, the next file that is opened would take its place, and our report
// would be written into it.
void reserveStandardStreams() {
    for (int stream = 0; stream < 3; ++stream)
        std::fopen("/dev/null", "rb");
}

int runAndReport(int argc, char **argv) {
    try {
        return parseAndRun(argc, argv);
    } catch (const CCallError &error) {
        printRemark(error.what());
        return 2;
    } catch (const std::exception &error) {
        printRemark(reasonOf(error));
        return 1;
    }
}

}  // namespace

int main(int argc, char **argv) {
    reserveStandardStreams();
    const int status = runAndReport(argc, argv);
    if (isAllPrinted() || status != 0)
        return status;
    printRemark("the result cannot be printed: standard output does not accept it");
    return 1;
}
