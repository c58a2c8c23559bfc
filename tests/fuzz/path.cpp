// The input: a path, then commands that change it, each followed by a text.
#include "Fuzz.h"
#include "foundation/CHtmlString.h"

#include <cstring>
#include <memory>

using Tessitor::Basics::CHtmlString;
using Tessitor::Basics::CString;

namespace {

void change(CHtmlString &path, std::uint8_t order, const CString &text) {
    switch (order % 18) {
    case 0:
        path += text;
        break;
    case 1:
        path.appendPath(text);
        break;
    case 2:
        path.setNewExtension(text, true);
        break;
    case 3:
        path.setNewExtension(text, false);
        break;
    case 4:
        path.removeExtension();
        break;
    case 5:
        path.removeFileName();
        break;
    case 6:
        path.removeLastPathSection();
        break;
    case 7:
        path.removeFirstPathSection();
        break;
    case 8:
        path.convertSlashes();
        break;
    case 9:
        path.appendSeparator();
        break;
    case 10:
        path.removeTrailingAndLeadingWhiteSpace();
        break;
    case 11:
        path.replaceStringWithChar('/', text);
        break;
    case 12:
        path.replaceCharWithString('/', text);
        break;
    case 13:
        path.toUpperCase();
        break;
    case 14:
        path.removeLastCharacter();
        break;
    case 15:
        path = path.getPath().getString();
        break;
    case 16:
        path = path.getFileName().getString();
        break;
    default:
        path.addProtocol(text == "");
        break;
    }
}

void look(const CHtmlString &path, const CString &text) {
    require(std::strlen(path.getString()) < static_cast<std::size_t>(path.getNumberOfCharacters()),
            "the number of characters includes the terminator");
    path.hasExtension(text);
    path.getDrive(true);
    path.getDrive(false);
    path.getExtension();
    path.getLastPathSection();
    path.getSubString(text.getNumberOfCharacters(), path.getNumberOfCharacters());
    const std::int32_t sections = path.getNumberOfPathSections();
    for (const std::int32_t index : {-1, 0, sections - 1, sections, sections + 1}) {
        const std::unique_ptr<CString> section(path.getPathSection(index));
        require(section != nullptr || index >= sections || sections == 0,
                "every counted section exists");
    }
    require(!path.isFileAddress() && !path.isWebAddress(), "both always return false");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    CInput input(data, size);
    CHtmlString path(input.text().c_str());
    look(path, "");
    // Some commands multiply the length of the path.
    while (!input.isUsedUp() && path.getNumberOfCharacters() < 10'000) {
        const std::uint8_t order = input.byte();
        const CString text(input.text().c_str());
        change(path, order, text);
        look(path, text);
    }
    return 0;
}
