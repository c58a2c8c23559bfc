#include "foundation/XMLEntities.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace Tessitor::IO {

namespace {

struct SEntity {
    char character;
    std::string_view text;
};

// In the order of decoding.
constexpr SEntity entities[] = {{'&', "&amp;"}, {'"', "&quot;"}, {'>', "&gt;"},
                                {'<', "&lt;"},  {'\n', "&#10;"}, {'\r', "&#13;"}};

}  // namespace

Basics::CString encodeEntities(const Basics::CString &text) {
    std::string encoded;
    for (const char character : std::string_view(text.getString())) {
        const auto *entity = std::ranges::find(entities, character, &SEntity::character);
        if (entity != std::end(entities))
            encoded += entity->text;
        else
            encoded += character;
    }
    return encoded.c_str();
}

Basics::CString decodeEntities(const Basics::CString &text) {
    std::string decoded = text.getString();
    for (const SEntity &entity : entities) {
        std::size_t position = 0;
        // Search again from the same place: the new character may begin another entity.
        while ((position = decoded.find(entity.text, position)) != std::string::npos)
            decoded.replace(position, entity.text.size(), 1, entity.character);
    }
    return decoded.c_str();
}

}  // namespace Tessitor::IO
