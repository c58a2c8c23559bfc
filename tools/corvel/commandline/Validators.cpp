#include "corvel/commandline/Validators.h"

#include "corvel/console/Text.h"

namespace Tessitor::Tool {

CLI::Validator between(double low, double high) {
    return {[=](std::string &text) -> std::string {
                double number = 0.0;
                if (CLI::detail::lexical_cast(text, number) && number >= low && number <= high)
                    return {};
                return text + " is not a number from " + decimal(low, 0) + " to " +
                       decimal(high, 0);
            },
            ""};
}

CLI::Validator wholeNumber() {
    return {[](std::string &text) -> std::string {
                int number = 0;
                if (CLI::detail::lexical_cast(text, number))
                    return {};
                return text + " is not a whole number";
            },
            ""};
}

}  // namespace Tessitor::Tool
