// manual_facts: prints the facts of the manual as JSON.
#include "manual_facts/Facts.h"

#include <iostream>

int main() {
    std::cout << manualFacts().dump(1) << '\n';
    return std::cout.flush() ? 0 : 1;
}
