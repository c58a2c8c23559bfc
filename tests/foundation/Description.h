#pragma once

#include "foundation/ICountedObject.h"

#include <string>

/// The description that an object writes of itself.
inline std::string descriptionOf(const Tessitor::Basics::ICountedObject &object) {
    char text[256];
    object.getObjectDescription(text, sizeof text);
    return text;
}
