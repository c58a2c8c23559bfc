#include "corvel/console/Print.h"

#include "corvel/console/Printable.h"

#include <iostream>

namespace Tessitor::Tool {

void print(const std::string &text) {
    std::cout << text << std::flush;
}

bool isAllPrinted() {
    return !std::cout.flush().fail();
}

namespace {

void printIndented(const nlohmann::ordered_json &json, int spaces) {
    // File names may be in any encoding.
    print(json.dump(spaces, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

}  // namespace

void printJson(const nlohmann::ordered_json &json) {
    printIndented(json, 4);
}

void printJsonLine(const nlohmann::ordered_json &json) {
    printIndented(json, -1);
}

void printRemark(const std::string &line) {
    std::cerr << "corvel: " + printable(line) + "\n" << std::flush;
}

}  // namespace Tessitor::Tool
