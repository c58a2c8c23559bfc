#pragma once

#include "platform/INativeFont.h"

#include <algorithm>
#include <string_view>

/// @param height  as in the record: negative for the size of the letters.
inline SNativeFontRecord fontRecord(std::string_view face, std::int32_t height) {
    SNativeFontRecord record;
    record.height = height;
    std::copy(face.begin(), face.end(), record.faceName);
    return record;
}

inline SNativeFontRecord arial(std::int32_t height) {
    return fontRecord("Arial", height);
}
