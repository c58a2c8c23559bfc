// The input: a delimiter, then a text.
#include "Fuzz.h"
#include "foundation/CStringTokeniser.h"

#include <memory>

using Tessitor::Basics::CString;
using Tessitor::Basics::CStringTokeniser;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    CInput input(data, size);
    const char delimiter = static_cast<char>(input.byte());
    const std::string text = untilZero(input.rest());
    const std::string held = text.substr(0, 2047);

    CStringTokeniser tokeniser(text.c_str(), delimiter);
    const std::int32_t count = tokeniser.countTokens();
    std::string joined;
    std::int32_t read = 0;
    while (const std::unique_ptr<char[]> token{tokeniser.getNextToken()}) {
        require(std::string(token.get()).find(delimiter) == std::string::npos,
                "a token contains no delimiter");
        joined += (read > 0 ? std::string(1, delimiter) : "") + token.get();
        ++read;
    }
    require(read == count, "as many tokens are read as are counted");
    require(held.starts_with(joined), "joined, the tokens are the start of the text");

    CString token("kept");
    require(!tokeniser.getNextToken(token) && token == "kept", "there are no more tokens");
    tokeniser.setDelimiter(',');
    tokeniser.setText(text.c_str());
    require(!tokeniser.hasMoreTokens(), "the tokens of a new text are not counted yet");
    tokeniser.countTokens();
    while (tokeniser.getNextToken(token))
        require(token.getNumberOfCharacters() <= 2048, "a token is no longer than the text");
    return 0;
}
