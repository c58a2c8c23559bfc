// The input: a file. It is read line by line and compared with a simple split. Then it is read as a
// mixture of lines and numbers, which its own bytes choose.
#include "Fuzz.h"
#include "foundation/CTextStream.h"

using Tessitor::Basics::CString;
using Tessitor::IO::CTextStream;
using Tessitor::IO::EStreamMode;

namespace {

constexpr std::size_t longestLine = 2047;

void requireLines(const std::string &path, const std::string &bytes) {
    CTextStream stream(path.c_str(), EStreamMode::Read);
    std::size_t position = 0;
    while (!stream.isEndOfFile() && !stream.hasFailed()) {
        CString line;
        stream >> line;
        const std::size_t end = std::min(bytes.find('\n', position), bytes.size());
        const std::size_t length = std::min(end - position, longestLine);
        std::string expected = untilZero(bytes.substr(position, length));
        if (expected.ends_with('\r'))
            expected.pop_back();
        require(line == expected.c_str(), "a line is the text between two line feeds");
        require(stream.hasFailed() == (end - position > longestLine), "only overlong lines fail");
        require(stream.hasFailed() || stream.isEndOfFile() == (end == bytes.size()),
                "the file ends with the last line");
        position = std::min(end + 1, bytes.size());
    }
}

void readMixture(const std::string &path, CInput orders) {
    CTextStream stream(path.c_str(), EStreamMode::Read);
    CString line;
    int whole = 0;
    long large = 0;
    float single = 0;
    double precise = 0;
    for (int i = 0; i < 64 && !stream.isEndOfFile(); ++i) {
        switch (orders.byte() % 5) {
        case 0:
            stream >> line;
            break;
        case 1:
            stream >> whole;
            break;
        case 2:
            stream >> large;
            break;
        case 3:
            stream >> single;
            break;
        default:
            stream >> precise;
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile file;
    const std::string bytes = CInput(data, size).rest();
    const std::string path = file.write(bytes);
    requireLines(path, bytes);
    readMixture(path, CInput(data, size));
    return 0;
}
