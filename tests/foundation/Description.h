#pragma once

#include "foundation/ICountedObject.h"

#include <string>

/// @return the description of an object.
inline std::string descriptionOf(const Tessitor::Basics::ICountedObject &object) {
    char text[256];
    object.getObjectDescription(text, sizeof text);
    return text;
}
