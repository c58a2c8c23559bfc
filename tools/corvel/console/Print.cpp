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

void printJson(const nlohmann::ordered_json &json) {
    // File names may be in any encoding.
    print(json.dump(4, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

void printRemark(const std::string &line) {
    std::cerr << "corvel: " + printable(line) + "\n" << std::flush;
}

}  // namespace Tessitor::Tool
