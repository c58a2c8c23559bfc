// Runs a fuzz target without libFuzzer. With a folder and a number it runs every file in it and
// that many mutations of each; with a file and a seed it runs that one mutation.
#include "Fuzz.h"
#include "foundation/ReadFile.h"

#include <filesystem>
#include <random>
#include <vector>

namespace {

void run(const std::string &bytes) {
    // On the heap with the exact size, so that a sanitizer notices reads past the end.
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

std::string mutated(std::string bytes, unsigned seed) {
    std::mt19937 random(seed);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (auto changes = 1 + below(8); changes > 0; --changes) {
        const std::size_t place = below(bytes.size() + 1);
        const std::size_t length = below(bytes.size() - place + 1);
        switch (below(5)) {
        case 0:
            bytes.insert(place, 1, static_cast<char>(random()));
            break;
        case 1:
            bytes.erase(place, 1 + length / 8);
            break;
        case 2:
            bytes.insert(place, bytes.substr(place, length));
            break;
        case 3:
            bytes.insert(place, 1 + below(3000), static_cast<char>(random()));
            break;
        default:
            if (place < bytes.size())
                bytes[place] = static_cast<char>(random());
        }
    }
    return bytes;
}

}  // namespace

int main(int count, char **arguments) {
    if (count != 3)
        return 2;
    const std::filesystem::path path = arguments[1];
    const auto number = static_cast<unsigned>(std::stoul(arguments[2]));
    if (!std::filesystem::is_directory(path)) {
        run(mutated(readFile(path.string()), number));
        return 0;
    }
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator(path)) {
        const std::string bytes = readFile(entry.path().string());
        std::printf("%s and %u mutations\n", entry.path().filename().string().c_str(), number);
        std::fflush(stdout);
        run(bytes);
        for (unsigned seed = 0; seed < number; ++seed)
            run(mutated(bytes, seed));
        ++files;
    }
    return files > 0 ? 0 : 1;
}
