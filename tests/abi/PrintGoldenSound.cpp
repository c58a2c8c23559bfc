#include "abi/GoldenSound.h"

#include <iostream>

int main() {
    std::cout << "# program              peak dBFS  RMS dBFS  hash of the float samples\n"
                 "# Written by scripts/golden.sh: a line that changes is a change of sound.\n";
    for (const std::string &line : goldenSound())
        std::cout << line << '\n';
}
