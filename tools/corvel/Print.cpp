#include "corvel/Print.h"

#include <iostream>

namespace Tessitor::Tool {

void print(const std::string &text) {
    std::cout << text << std::flush;
}

void printJson(const nlohmann::ordered_json &json) {
    // File names may be in any encoding.
    print(json.dump(4, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

void printRemark(const std::string &line) {
    std::cerr << "corvel: " + line + "\n" << std::flush;
}

}  // namespace Tessitor::Tool
