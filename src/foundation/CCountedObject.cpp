#include "foundation/CCountedObject.h"

#include <cstdio>
#include <cstring>

namespace Tessitor::Basics {

TClassRecord<CCountedObject> CCountedObject::s_class("CCountedObject", "ICountedObject");

void CCountedObject::dereference() {
    if (--m_referenceCount < 1)
        delete this;
}

void CCountedObject::getObjectDescription(char *array, long size) const {
    char text[1024];
    std::snprintf(text, sizeof text, "[CCounted Object Base Reference Count = %li",
                  static_cast<long>(getReferenceCount()));
    if (array != nullptr && size > 0)
        std::strncpy(array, text, static_cast<std::size_t>(size));
}

}  // namespace Tessitor::Basics
